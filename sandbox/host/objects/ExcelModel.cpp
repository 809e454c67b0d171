#include "automation/OfficeInterfaces.h"
#include "objects/Application.h"
#include "objects/DocumentWindow.h"
#include "objects/HostModel.h"
#include "objects/Session.h"

namespace host
{
namespace
{

using A = ApplicationObject;
using C = DocumentsObject;
using D = DocumentObject;
using W = DocumentWindowObject;

// Asks the session first whether it takes the call now.
template<auto answer, auto check>
Variant Checked(ObjectCore& object, const Arguments& arguments)
{
    (AsAnswering<answer>(object).Owner().*check)();
    return Answer<answer>(object, arguments);
}

// While a cell is edited most members fail, and in the busier kinds of editing even the command bars.
template<auto Method>
constexpr auto WhenReady = &Checked<Method, &Session::CheckReady>;
template<auto Method>
constexpr auto WhenAnswering = &Checked<Method, &Session::CheckAnswering>;

constexpr Member kApplication[] = {
    {0, L"Name", kGet, Answer<&A::GetName>},
    {1, L"Workbooks", kGet, WhenReady<&A::GetDocuments>},
    {2, L"Windows", kGet, WhenReady<&A::GetWindows>},
    {3, L"ActiveWorkbook", kGet, WhenReady<&A::GetActiveDocumentOrNothing>},
    {4, L"ActiveWindow", kGet, WhenReady<&A::GetActiveWindowOrNothing>},
    {5, L"CommandBars", kGet, WhenAnswering<&A::GetCommandBars>},
    {6, L"Build", kGet, Answer<&A::GetBuildNumber>},
    {7, L"Version", kGet, Answer<&A::GetVersion>},
    {8, L"Run", kMethod, WhenReady<&A::Run>},
    {9, L"Hwnd", kGet, Answer<&A::GetWindowHandle>},
    {10, L"COMAddIns", kGet, Answer<&A::GetComAddIns>},
    {11, L"Interactive", kGetPut, WhenReady<&A::Interactive>},
    {12, L"Ready", kGet, WhenAnswering<&A::GetReady>},
};

constexpr Member kWorkbooks[] = {
    {0, L"Item", kEither, Answer<&C::Item>},
    {1, L"Count", kGet, Answer<&C::Count>},
    {2, L"Add", kMethod, WhenReady<&C::Add>},
    {3, L"Open", kMethod, WhenReady<&C::Open<2>>},
};

constexpr Member kWorkbook[] = {
    {0, L"Name", kGet, Answer<&D::GetName>},
    {1, L"Application", kGet, Answer<&D::GetApplication>},
    {2, L"BuiltinDocumentProperties", kEither, WhenReady<&D::GetBuiltIn>},
    {3, L"CustomDocumentProperties", kEither, WhenReady<&D::GetCustom>},
    {4, L"Path", kGet, Answer<&D::GetPath>},
    {5, L"FullName", kGet, Answer<&D::GetFullName>},
    {6, L"ReadOnly", kGet, Answer<&D::GetReadOnly>},
    {7, L"Saved", kGetPut, WhenReady<&D::Saved>},
    {8, L"Windows", kGet, WhenReady<&D::GetWindows>},
    {9, L"Save", kMethod, WhenReady<&D::DoSave>},
    {10, L"SaveAs", kMethod, WhenReady<&D::DoSaveAs>},
    {11, L"SaveCopyAs", kMethod, WhenReady<&D::DoSaveCopyAsItIs>},
    {12, L"Close", kMethod, WhenReady<&D::DoCloseSaving>},
    {13, L"Final", kGetPut, WhenReady<&D::Final>},
    {14, L"HasVBProject", kGet, WhenReady<&D::GetHasVBProject>},
};

constexpr Member kWindow[] = {
    {0, L"Caption", kGet, Answer<&W::GetCaption>},
    {1, L"Activate", kMethod, Answer<&W::DoActivate>},
};

constexpr HostModel kModel{{L"Application", OfficeId(0x000208D5), kApplication},
                           {L"Workbooks", OfficeId(0x000208DB), kWorkbooks},
                           {L"Workbook", OfficeId(0x000208DA), kWorkbook, 1},
                           {L"Windows", OfficeId(0x00020892), {}},
                           {L"Window", OfficeId(0x00020893), kWindow}};

} // namespace

const HostModel& ExcelModel() { return kModel; }

} // namespace host
