#include "automation/OfficeInterfaces.h"
#include "objects/Application.h"
#include "objects/DocumentWindow.h"
#include "objects/HostModel.h"

namespace host
{
namespace
{

using A = ApplicationObject;
using D = DocumentObject;
using W = DocumentWindowObject;

// It has no Build and no Run, and its command bars belong to its windows.
constexpr Member kApplication[] = {
    {0, L"Name", kGet, Answer<&A::GetName>},
    {1, L"Version", kGet, Answer<&A::GetVersion>},
    {2, L"Inspectors", kGet, Answer<&A::GetWindows>},
    {3, L"ActiveInspector", kMethod, Answer<&A::GetActiveWindowOrNothing>},
    {4, L"CreateItem", kMethod, Answer<&A::CreateItem>},
    {5, L"COMAddIns", kGet, Answer<&A::GetComAddIns>},
};

constexpr Member kItem[] = {
    {0, L"Subject", kGetPut, Answer<&D::Subject>},
    {1, L"Application", kGet, Answer<&D::GetApplication>},
    {2, L"Body", kGetPut, Answer<&D::Body>},
    {3, L"To", kGetPut, Answer<&D::To>},
    {4, L"CC", kGetPut, Answer<&D::Copy>},
    {5, L"Saved", kGet, Answer<&D::Saved>},
    {6, L"SaveAs", kMethod, Answer<&D::DoSaveCopyAs>},
    {7, L"Display", kMethod, Answer<&D::DoDisplay>},
    {8, L"Close", kMethod, Answer<&D::DoClose>},
    {9, L"GetInspector", kGet, Answer<&D::GetWindow>},
};

constexpr Member kInspector[] = {
    {0, L"Caption", kGet, Answer<&W::GetCaption>},
    {1, L"CurrentItem", kGet, Answer<&W::GetDocument>},
    {2, L"CommandBars", kGet, Answer<&W::GetCommandBars>},
    {3, L"Activate", kMethod, Answer<&W::DoActivate>},
};

constexpr HostModel kModel{{L"Application", OfficeId(0x00063001), kApplication},
                           {L"Items", OfficeId(0x00063041), {}},
                           {L"MailItem", OfficeId(0x00063034), kItem},
                           {L"Inspectors", OfficeId(0x00063008), {}},
                           {L"Inspector", OfficeId(0x00063005), kInspector}};

} // namespace

const HostModel& OutlookModel() { return kModel; }

} // namespace host
