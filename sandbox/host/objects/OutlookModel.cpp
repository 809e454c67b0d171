#include "automation/OfficeInterfaces.h"
#include "objects/Application.h"
#include "objects/DocumentWindow.h"

namespace host
{
namespace
{

using A = ApplicationObject;
using D = DocumentObject;
using W = DocumentWindowObject;

// It has no Build and no Run, and its command bars belong to its windows.
constexpr Member kApplication[] = {
    {0, L"Name", kGet, Answer<&A::Name>},
    {1, L"Version", kGet, Answer<&A::Version>},
    {2, L"Inspectors", kGet, Answer<&A::Windows>},
    {3, L"ActiveInspector", kMethod, Answer<&A::ActiveWindowOrNothing>},
    {4, L"CreateItem", kMethod, Answer<&A::CreateItem>},
    {5, L"COMAddIns", kGet, Answer<&A::ComAddIns>},
};

constexpr Member kItem[] = {
    {0, L"Subject", kGetPut, Answer<&D::Subject>},   {1, L"Application", kGet, Answer<&D::Application>},
    {2, L"Body", kGetPut, Answer<&D::Body>},         {3, L"To", kGetPut, Answer<&D::To>},
    {4, L"CC", kGetPut, Answer<&D::Copy>},           {5, L"Saved", kGet, Answer<&D::Saved>},
    {6, L"SaveAs", kMethod, Answer<&D::SaveCopyAs>}, {7, L"Display", kMethod, Answer<&D::Display>},
    {8, L"Close", kMethod, Answer<&D::Close>},       {9, L"GetInspector", kGet, Answer<&D::FirstWindow>},
};

constexpr Member kInspector[] = {
    {0, L"Caption", kGet, Answer<&W::Caption>},
    {1, L"CurrentItem", kGet, Answer<&W::Document>},
    {2, L"CommandBars", kGet, Answer<&W::CommandBars>},
    {3, L"Activate", kMethod, Answer<&W::Activate>},
};

constexpr HostModel kModel{{L"Application", OfficeId(0x00063001), kApplication},
                           {L"Items", OfficeId(0x00063041), {}},
                           {L"MailItem", OfficeId(0x00063034), kItem},
                           {L"Inspectors", OfficeId(0x00063008), {}},
                           {L"Inspector", OfficeId(0x00063005), kInspector}};

} // namespace

const HostModel& OutlookModel() { return kModel; }

} // namespace host
