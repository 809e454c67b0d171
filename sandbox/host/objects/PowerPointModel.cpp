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
    {2022, L"Run", kMethod, Answer<&A::Run>},
    {2023, L"Activate", kMethod, Answer<&A::Activate>},
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
    {2009, L"Active", kGet, AsNumber<&W::IsActive>},
    {2011, L"Caption", kGet, Answer<&W::Caption>},
    {2017, L"Activate", kMethod, Answer<&W::Activate>},
};

constexpr EventTable kEvents{kApplicationEventsId, 2009, 2018, 2004, 2031};

constexpr HostModel kModel{
    {L"Application", kApplicationId, kApplication},       {L"Presentations", kPresentationsId, kPresentations},
    {L"Presentation", kPresentationId, kPresentation, 1}, {L"DocumentWindows", kDocumentWindowsId, {}},
    {L"DocumentWindow", kDocumentWindowId, kWindow},      &kEvents};

} // namespace

const HostModel& PowerPointModel() { return kModel; }

} // namespace host
