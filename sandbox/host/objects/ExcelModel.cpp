#include "automation/OfficeInterfaces.h"
#include "objects/Application.h"
#include "objects/DocumentWindow.h"

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
    {0, L"Name", kGet, Answer<&A::Name>},
    {1, L"Workbooks", kGet, WhenReady<&A::Documents>},
    {2, L"Windows", kGet, WhenReady<&A::Windows>},
    {3, L"ActiveWorkbook", kGet, WhenReady<&A::ActiveDocumentOrNothing>},
    {4, L"ActiveWindow", kGet, WhenReady<&A::ActiveWindowOrNothing>},
    {5, L"CommandBars", kGet, WhenAnswering<&A::CommandBars>},
    {6, L"Build", kGet, Answer<&A::BuildNumber>},
    {7, L"Version", kGet, Answer<&A::Version>},
    {8, L"Run", kMethod, WhenReady<&A::Run>},
    {9, L"Hwnd", kGet, Answer<&A::WindowHandle>},
    {10, L"COMAddIns", kGet, Answer<&A::ComAddIns>},
    {11, L"Interactive", kGetPut, WhenReady<&A::Interactive>},
    {12, L"Ready", kGet, WhenAnswering<&A::Ready>},
};

constexpr Member kWorkbooks[] = {
    {0, L"Item", kEither, Answer<&C::Item>},
    {1, L"Count", kGet, Answer<&C::Count>},
    {2, L"Add", kMethod, WhenReady<&C::Add>},
    {3, L"Open", kMethod, WhenReady<&C::Open<2>>},
};

constexpr Member kWorkbook[] = {
    {0, L"Name", kGet, Answer<&D::Name>},
    {1, L"Application", kGet, Answer<&D::Application>},
    {2, L"BuiltinDocumentProperties", kEither, WhenReady<&D::BuiltIn>},
    {3, L"CustomDocumentProperties", kEither, WhenReady<&D::Custom>},
    {4, L"Path", kGet, Answer<&D::Path>},
    {5, L"FullName", kGet, Answer<&D::FullName>},
    {6, L"ReadOnly", kGet, Answer<&D::IsReadOnly>},
    {7, L"Saved", kGetPut, WhenReady<&D::Saved>},
    {8, L"Windows", kGet, WhenReady<&D::Windows>},
    {9, L"Save", kMethod, WhenReady<&D::Save>},
    {10, L"SaveAs", kMethod, WhenReady<&D::SaveUnder>},
    {11, L"SaveCopyAs", kMethod, WhenReady<&D::SaveCopyAsItIs>},
    {12, L"Close", kMethod, WhenReady<&D::CloseSaving>},
    {13, L"Final", kGetPut, WhenReady<&D::Final>},
    {14, L"HasVBProject", kGet, WhenReady<&D::HasVBProject>},
};

constexpr Member kWindow[] = {
    {0, L"Caption", kGet, Answer<&W::Caption>},
    {1, L"Activate", kMethod, Answer<&W::Activate>},
};

constexpr HostModel kModel{{L"Application", OfficeId(0x000208D5), kApplication},
                           {L"Workbooks", OfficeId(0x000208DB), kWorkbooks},
                           {L"Workbook", OfficeId(0x000208DA), kWorkbook, 1},
                           {L"Windows", OfficeId(0x00020892), {}},
                           {L"Window", OfficeId(0x00020893), kWindow}};

} // namespace

const HostModel& ExcelModel() { return kModel; }

} // namespace host
