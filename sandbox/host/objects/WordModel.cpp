#include "automation/OfficeInterfaces.h"
#include "objects/Application.h"
#include "objects/DocumentWindow.h"
#include "objects/HostModel.h"

namespace host
{
namespace
{

using A = ApplicationObject;
using C = DocumentsObject;
using D = DocumentObject;
using W = DocumentWindowObject;

constexpr Member kApplication[] = {
    {0, L"Name", kGet, Answer<&A::GetName>},
    {1, L"Documents", kGet, Answer<&A::GetDocuments>},
    {2, L"Windows", kGet, Answer<&A::GetWindows>},
    {3, L"ActiveDocument", kGet, Answer<&A::GetActiveDocument>},
    {4, L"ActiveWindow", kGet, Answer<&A::GetActiveWindow>},
    {5, L"CommandBars", kGet, Answer<&A::GetCommandBars>},
    {6, L"Build", kGet, Answer<&A::GetBuild>},
    {7, L"Version", kGet, Answer<&A::GetVersion>},
    {8, L"Run", kMethod, Answer<&A::Run>},
    {9, L"Activate", kMethod, Answer<&A::Activate>},
    {10, L"COMAddIns", kGet, Answer<&A::GetComAddIns>},
};

constexpr Member kDocuments[] = {
    {0, L"Item", kEither, Answer<&C::Item>},
    {1, L"Count", kGet, Answer<&C::Count>},
    {2, L"Add", kMethod, Answer<&C::Add>},
    {3, L"Open", kMethod, Answer<&C::Open<2>>},
};

constexpr Member kDocument[] = {
    {0, L"Name", kGet, Answer<&D::GetName>},
    {1, L"Application", kGet, Answer<&D::GetApplication>},
    {2, L"BuiltInDocumentProperties", kEither, Answer<&D::GetBuiltIn>},
    {3, L"CustomDocumentProperties", kEither, Answer<&D::GetCustom>},
    {4, L"Path", kGet, Answer<&D::GetPath>},
    {5, L"FullName", kGet, Answer<&D::GetFullName>},
    {6, L"ReadOnly", kGet, Answer<&D::GetReadOnly>},
    {7, L"Saved", kGetPut, Answer<&D::Saved>},
    {8, L"Windows", kGet, Answer<&D::GetWindows>},
    {9, L"Save", kMethod, Answer<&D::DoSave>},
    {10, L"SaveAs", kMethod, Answer<&D::DoSaveAs>},
    {11, L"Close", kMethod, Answer<&D::DoCloseSaving>},
    {12, L"Final", kGetPut, Answer<&D::Final>},
    {13, L"HasVBProject", kGet, Answer<&D::GetHasVBProject>},
};

constexpr Member kWindow[] = {
    {0, L"Caption", kGet, Answer<&W::GetCaption>},
    {1, L"Document", kGet, Answer<&W::GetDocument>},
    {2, L"Active", kGet, Answer<&W::GetActive>},
    {3, L"Activate", kMethod, Answer<&W::DoActivate>},
};

constexpr HostModel kModel{{L"Application", OfficeId(0x00020970), kApplication},
                           {L"Documents", OfficeId(0x0002096C), kDocuments},
                           {L"Document", OfficeId(0x0002096B), kDocument, 1},
                           {L"Windows", OfficeId(0x00020961), {}},
                           {L"Window", OfficeId(0x00020962), kWindow}};

} // namespace

const HostModel& WordModel() { return kModel; }

} // namespace host
