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
    {2001, L"Presentations", kGet, Answer<&A::GetDocuments>},
    {2002, L"Windows", kGet, Answer<&A::GetWindows>},
    {2004, L"ActiveWindow", kGet, Answer<&A::GetActiveWindow>},
    {2005, L"ActivePresentation", kGet, Answer<&A::GetActiveDocument>},
    {2007, L"CommandBars", kGet, Answer<&A::GetCommandBars>},
    {2013, L"Build", kGet, Answer<&A::GetBuild>},
    {2014, L"Version", kGet, Answer<&A::GetVersion>},
    {2022, L"Run", kMethod, Answer<&A::Run>},
    {2023, L"Activate", kMethod, Answer<&A::Activate>},
    {2031, L"HWND", kGet, Answer<&A::GetWindowHandle>},
    {2035, L"COMAddIns", kGet, Answer<&A::GetComAddIns>},
};

constexpr Member kPresentations[] = {
    {0, L"Item", kEither, Answer<&C::Item>},
    {11, L"Count", kGet, Answer<&C::Count>},
    {2003, L"Add", kMethod, Answer<&C::Add>},
    {2005, L"Open", kMethod, Answer<&C::Open<1>>},
};

constexpr Member kPresentation[] = {
    {2001, L"Application", kGet, Answer<&D::GetApplication>},
    {2020, L"BuiltInDocumentProperties", kEither, Answer<&D::GetBuiltIn>},
    {2021, L"CustomDocumentProperties", kEither, Answer<&D::GetCustom>},
    {2023, L"ReadOnly", kGet, Answer<&D::GetReadOnlyState>},
    {2024, L"FullName", kGet, Answer<&D::GetFullName>},
    {2025, L"Name", kGet, Answer<&D::GetName>},
    {2026, L"Path", kGet, Answer<&D::GetPath>},
    {2027, L"Saved", kGetPut, Answer<&D::SavedState>},
    {2030, L"Windows", kGet, Answer<&D::GetWindows>},
    {2035, L"Save", kMethod, Answer<&D::DoSave>},
    {2036, L"SaveAs", kMethod, Answer<&D::DoSaveAs>},
    {2037, L"SaveCopyAs", kMethod, Answer<&D::DoSaveCopyAs>},
    {2039, L"Close", kMethod, Answer<&D::DoClose>},
    {2080, L"Final", kGetPut, Answer<&D::Final>},
    {2081, L"HasVBProject", kGet, Answer<&D::GetHasVBProject>},
};

constexpr Member kWindow[] = {
    {2005, L"Presentation", kGet, Answer<&W::GetDocument>},
    {2009, L"Active", kGet, Answer<&W::GetActiveState>},
    {2011, L"Caption", kGet, Answer<&W::GetCaption>},
    {2017, L"Activate", kMethod, Answer<&W::DoActivate>},
};

constexpr EventTable kEvents{kApplicationEventsId, 2009, 2018, 2004, 2031};

constexpr HostModel kModel{
    {L"Application", kApplicationId, kApplication},       {L"Presentations", kPresentationsId, kPresentations},
    {L"Presentation", kPresentationId, kPresentation, 1}, {L"DocumentWindows", kDocumentWindowsId, {}},
    {L"DocumentWindow", kDocumentWindowId, kWindow},      &kEvents};

} // namespace

const HostModel& PowerPointModel() { return kModel; }

} // namespace host
