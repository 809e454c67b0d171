#include "selection/frmFilter.h"

#include "forms/FormLists.h"
#include "platform/Procedure.h"
#include "resources/resource.h"
#include "support/Conversions.h"
#include "webservice/WebService.h"

namespace corvane
{

frmFilter::frmFilter() noexcept : Form{L"frmFilter", IDD_frmFilter} {}

std::span<const FormHandler> frmFilter::Handlers() const
{
    static const FormHandler kHandlers[] = {
        Handle(btnApplyFilter, BN_CLICKED, L"btnApplyFilter_Click", &frmFilter::btnApplyFilter_Click),
        Handle(btnClearFilter, BN_CLICKED, L"btnClearFilter_Click", &frmFilter::btnClearFilter_Click),
        Handle(btnCancel, BN_CLICKED, L"btnCancel_Click", &frmFilter::btnCancel_Click),
    };
    return kHandlers;
}

void frmFilter::AddClass(const std::wstring& name, std::int32_t classId)
{
    const int position = AddListEntry(Control(ClassList), name);
    ::SendMessageW(Control(ClassList), LB_SETITEMDATA, static_cast<WPARAM>(position), classId);
}

void frmFilter::FillClassList()
{
    AddClass(L"[All]", 0);
    m_loadFailure = Catch([this] {
        const XmlDocument classes = QueryXml(Server, Operations::kGetClasses, {false, true});
        for (const XmlNode& row : classes.Select(L"//z:row"))
            AddClass(row.Text(L"DisplayName"), ToLongSafe(row.Text(L"ClassID")));
    });
}

void frmFilter::Form_Load()
{
    FillClassList();
    SetText(SearchString, ProjectSearchName);
    // By position, not by id: a list in another order shows another class, a shorter one shows all.
    const HWND list = Control(ClassList);
    if (::SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(m_lastApplied.listPosition), 0) == LB_ERR)
        ::SendMessageW(list, LB_SETCURSEL, 0, 0);
}

std::int16_t frmFilter::SelectedPosition() const noexcept
{
    const LRESULT position = ::SendMessageW(Control(ClassList), LB_GETCURSEL, 0, 0);
    return static_cast<std::int16_t>(position == LB_ERR ? 0 : position);
}

void frmFilter::Apply()
{
    const std::int16_t position = SelectedPosition();
    ProjectSearchName = Text(SearchString);
    ClassID =
        static_cast<std::int32_t>(::SendMessageW(Control(ClassList), LB_GETITEMDATA, static_cast<WPARAM>(position), 0));
    const AppliedFilter filter{ProjectSearchName, ClassID, position};
    m_outcome = OutcomeOf(filter, m_lastApplied, false);
    m_lastApplied = filter;
    Hide();
}

void frmFilter::btnApplyFilter_Click() { Apply(); }

void frmFilter::btnClearFilter_Click()
{
    SetText(SearchString, L"");
    ::SendMessageW(Control(ClassList), LB_SETCURSEL, 0, 0);
    Apply();
}

void frmFilter::btnCancel_Click()
{
    m_outcome = OutcomeOf({ProjectSearchName, ClassID, m_lastApplied.listPosition}, m_lastApplied, true);
    Hide();
}

} // namespace corvane
