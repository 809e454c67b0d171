#include "objects/HostModel.h"

#include "automation/OfficeInterfaces.h"
#include "objects/Application.h"

namespace host
{
namespace
{

constexpr int kAddingVersion = 12;

using A = ApplicationObject;
using C = DocumentsObject;
using D = DocumentObject;
using W = DocumentWindowObject;

namespace powerpoint
{

// A truth as a number of three states.
template<auto answer>
Variant AsNumber(ObjectCore& object, const Arguments& arguments)
{
    Variant truth = Answer<answer>(object, arguments);
    return truth.Type() == VT_BOOL ? Variant{truth.Boolean() ? -1 : 0} : std::move(truth);
}

constexpr Member kApplication[] = {
    {0, L"Name", kGet, Answer<&A::Name>},
    {2001, L"Presentations", kGet, Answer<&A::Documents>},
    {2002, L"Windows", kGet, Answer<&A::Windows>},
    {2004, L"ActiveWindow", kGet, Answer<&A::ActiveWindow>},
    {2005, L"ActivePresentation", kGet, Answer<&A::ActiveDocument>},
    {2007, L"CommandBars", kGet, Answer<&A::CommandBars>},
    {2013, L"Build", kGet, Answer<&A::Build>},
    {2014, L"Version", kGet, Answer<&A::Version>},
    {2021, L"Quit", kMethod, Answer<&A::Quit>},
    {2022, L"Run", kMethod, Answer<&A::Run>},
    {2031, L"HWND", kGet, Answer<&A::WindowHandle>},
    {2035, L"COMAddIns", kGet, Answer<&A::ComAddIns>},
};

constexpr Member kPresentations[] = {
    {0, L"Item", kEither, Answer<&C::Item>},
    {11, L"Count", kGet, Answer<&C::Count>},
    {2003, L"Add", kMethod, Answer<&C::Add>},
    {2005, L"Open", kMethod, Answer<&C::Open<1>>},
};

constexpr Member kPresentation[] = {
    {2001, L"Application", kGet, Answer<&D::Application>},
    {2020, L"BuiltInDocumentProperties", kEither, Answer<&D::BuiltIn>},
    {2021, L"CustomDocumentProperties", kEither, Answer<&D::Custom>},
    {2023, L"ReadOnly", kGet, AsNumber<&D::IsReadOnly>},
    {2024, L"FullName", kGet, Answer<&D::FullName>},
    {2025, L"Name", kGet, Answer<&D::Name>},
    {2026, L"Path", kGet, Answer<&D::Path>},
    {2027, L"Saved", kGetPut, AsNumber<&D::Saved>},
    {2030, L"Windows", kGet, Answer<&D::Windows>},
    {2035, L"Save", kMethod, Answer<&D::Save>},
    {2036, L"SaveAs", kMethod, Answer<&D::SaveUnder>},
    {2037, L"SaveCopyAs", kMethod, Answer<&D::SaveCopyAs>},
    {2039, L"Close", kMethod, Answer<&D::Close>},
    {2080, L"Final", kGetPut, Answer<&D::Final>},
    {2081, L"HasVBProject", kGet, Answer<&D::HasVBProject>},
};

constexpr Member kWindow[] = {
    {2005, L"Presentation", kGet, Answer<&W::Document>},
    {2011, L"Caption", kGet, Answer<&W::Caption>},
    {2017, L"Activate", kMethod, Answer<&W::Activate>},
};

constexpr EventTable kEvents{kApplicationEventsId, 2009, 2018, 2004, 2031};

constexpr HostModel kModel{
    {L"Application", kApplicationId, kApplication},       {L"Presentations", kPresentationsId, kPresentations},
    {L"Presentation", kPresentationId, kPresentation, 1}, {L"DocumentWindows", kDocumentWindowsId, {}},
    {L"DocumentWindow", kDocumentWindowId, kWindow},      &kEvents};

} // namespace powerpoint

namespace word
{

constexpr Member kApplication[] = {
    {0, L"Name", kGet, Answer<&A::Name>},
    {1, L"Documents", kGet, Answer<&A::Documents>},
    {2, L"Windows", kGet, Answer<&A::Windows>},
    {3, L"ActiveDocument", kGet, Answer<&A::ActiveDocument>},
    {4, L"ActiveWindow", kGet, Answer<&A::ActiveWindow>},
    {5, L"CommandBars", kGet, Answer<&A::CommandBars>},
    {6, L"Build", kGet, Answer<&A::Build>},
    {7, L"Version", kGet, Answer<&A::Version>},
    {8, L"Run", kMethod, Answer<&A::Run>},
    {10, L"COMAddIns", kGet, Answer<&A::ComAddIns>},
};

constexpr Member kDocuments[] = {
    {0, L"Item", kEither, Answer<&C::Item>},
    {1, L"Count", kGet, Answer<&C::Count>},
    {2, L"Add", kMethod, Answer<&C::Add>},
    {3, L"Open", kMethod, Answer<&C::Open<2>>},
};

constexpr Member kDocument[] = {
    {0, L"Name", kGet, Answer<&D::Name>},
    {1, L"Application", kGet, Answer<&D::Application>},
    {2, L"BuiltInDocumentProperties", kEither, Answer<&D::BuiltIn>},
    {3, L"CustomDocumentProperties", kEither, Answer<&D::Custom>},
    {4, L"Path", kGet, Answer<&D::Path>},
    {5, L"FullName", kGet, Answer<&D::FullName>},
    {6, L"ReadOnly", kGet, Answer<&D::IsReadOnly>},
    {7, L"Saved", kGetPut, Answer<&D::Saved>},
    {8, L"Windows", kGet, Answer<&D::Windows>},
    {9, L"Save", kMethod, Answer<&D::Save>},
    {10, L"SaveAs", kMethod, Answer<&D::SaveUnder>},
    {11, L"Close", kMethod, Answer<&D::CloseSaving>},
    {12, L"Final", kGetPut, Answer<&D::Final>},
    {13, L"HasVBProject", kGet, Answer<&D::HasVBProject>},
};

constexpr Member kWindow[] = {
    {0, L"Caption", kGet, Answer<&W::Caption>},
    {1, L"Document", kGet, Answer<&W::Document>},
};

constexpr HostModel kModel{{L"Application", OfficeId(0x00020970), kApplication},
                           {L"Documents", OfficeId(0x0002096C), kDocuments},
                           {L"Document", OfficeId(0x0002096B), kDocument, 1},
                           {L"Windows", OfficeId(0x00020961), {}},
                           {L"Window", OfficeId(0x00020962), kWindow}};

} // namespace word

namespace excel
{

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
};

constexpr HostModel kModel{{L"Application", OfficeId(0x000208D5), kApplication},
                           {L"Workbooks", OfficeId(0x000208DB), kWorkbooks},
                           {L"Workbook", OfficeId(0x000208DA), kWorkbook, 1},
                           {L"Windows", OfficeId(0x00020892), {}},
                           {L"Window", OfficeId(0x00020893), kWindow}};

} // namespace excel

namespace outlook
{

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
};

constexpr HostModel kModel{{L"Application", OfficeId(0x00063001), kApplication},
                           {L"Items", OfficeId(0x00063041), {}},
                           {L"MailItem", OfficeId(0x00063034), kItem},
                           {L"Inspectors", OfficeId(0x00063008), {}},
                           {L"Inspector", OfficeId(0x00063005), kInspector}};

} // namespace outlook

} // namespace

std::span<const Member> ClassTable::Members(int version) const
{
    return version >= kAddingVersion ? members : members.first(members.size() - added);
}

const HostModel& ModelOf(HostKind kind)
{
    static constexpr const HostModel* kModels[] = {&powerpoint::kModel, &word::kModel, &excel::kModel,
                                                   &outlook::kModel}; // in the order of HostKind
    return *kModels[static_cast<std::size_t>(kind)];
}

} // namespace host
