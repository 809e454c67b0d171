#include "selection/frmFilter.h"

#include "forms/FormList.h"
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
        Handle(btnApplyFilter, BN_CLICKED, L"btnApplyFilter_Click", &frmFilter::Apply),
        Handle(btnClearFilter, BN_CLICKED, L"btnClearFilter_Click", &frmFilter::btnClearFilter_Click),
        Handle(btnCancel, BN_CLICKED, L"btnCancel_Click", &frmFilter::btnCancel_Click),
    };
    return kHandlers;
}

FormList frmFilter::Classes() const noexcept { return FormList{Control(ClassList)}; }

void frmFilter::FillClassList()
{
    Classes().Add(L"[All]", 0);
    m_loadFailure = Catch([this] {
        const XmlDocument classes = QueryXml(Server, Operations::kGetClasses, {false, true});
        for (const XmlNode& row : classes.Select(L"//z:row"))
            Classes().Add(row.Text(L"DisplayName"), ToLongSafe(row.Text(L"ClassID")));
    });
}

void frmFilter::Form_Load()
{
    FillClassList();
    SetText(SearchString, ProjectSearchName);
    // By position, not by id: a list in another order shows another class, a shorter one shows all.
    if (!Classes().Select(m_lastApplied.listPosition)) Classes().Select(0);
}

void frmFilter::Apply()
{
    const auto position = static_cast<std::int16_t>(Classes().Selected().value_or(0));
    ProjectSearchName = Text(SearchString);
    ClassID = Classes().Number(position);
    const AppliedFilter filter{ProjectSearchName, ClassID, position};
    m_outcome = OutcomeOf(filter, m_lastApplied, false);
    m_lastApplied = filter;
    Hide();
}

void frmFilter::btnClearFilter_Click()
{
    SetText(SearchString, L"");
    Classes().Select(0);
    Apply();
}

void frmFilter::btnCancel_Click()
{
    m_outcome = OutcomeOf({ProjectSearchName, ClassID, m_lastApplied.listPosition}, m_lastApplied, true);
    Hide();
}

} // namespace corvane
