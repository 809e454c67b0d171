// How the window of the target tree fetches the tree: the limit of entries, the filter that it forces, the icons.
#include "selection/frmSaveTo.h"

#include "forms/Messages.h"
#include "platform/ByteArray.h"
#include "platform/Files.h"
#include "platform/Procedure.h"
#include "resources/resource.h"
#include "selection/IconRules.h"
#include "webservice/Transfer.h"
#include "webservice/WebService.h"

namespace corvane
{
namespace
{

// Fetches one picture of an icon set through a file of its own, as the system's picture loader wants it.
void LoadIcon(TreeImages& images, const std::wstring& server, const std::wstring& iconSet, const std::wstring& kind)
{
    const Variant picture =
        ExecuteASPWebserviceBinary(server, kServicePage, Operations::kSetIcon, {iconSet, kind + L"_offi.gif"})
            .ReadAll();
    const auto bytes = BytesIn(picture.Get());
    if (!IsIcon(bytes)) return;
    const TemporaryFile file{L"gif"};
    WriteFile(file.Path(), bytes);
    images.AddFile(kind + iconSet, file.Path());
}

} // namespace

XmlDocument frmSaveTo::QueryTree() const
{
    SetStatus(StatusBar1, L"Contacting the server...");
    return QueryXml(m_currentServer, Kind().operation, {FilterClassID, FilterProjectSearchName});
}

bool frmSaveTo::CheckEntryCount()
{
    const ProcedureScope scope{L"frmSaveTo.CheckEntryCount"};
    while (ForcesFilter(QueryTree().Select(L"//project").size())) {
        SetStatus(StatusBar1, L"Ready"); // the user is to answer
        if (IsWanted()) ShowFilter(true);
        if (!IsWanted() || !FilterChanged) return false;
    }
    return IsWanted();
}

void frmSaveTo::ShowFilter(bool forced)
{
    const ProcedureScope scope{L"frmSaveTo.ShowFilter"};
    FilterForced = forced;
    if (m_filter == nullptr) m_filter = std::make_unique<frmFilter>();
    m_filter->ProjectSearchName = FilterProjectSearchName;
    m_filter->ClassID = FilterClassID;
    m_filter->Server = Text(cmbServerURL);
    m_filter->Forced = forced;
    if (forced) ShowMessage(EntryLimitMessage(), kStylePlain);
    m_filter->Load(); // asks the server, and the user may leave meanwhile
    if (IsWanted() && m_filter->LoadFailure()) ReportError(*m_filter->LoadFailure());
    if (IsWanted()) m_filter->ShowModal();
    m_filter->Unload();
    const FilterOutcome outcome = m_filter->Outcome();
    FilterChanged = outcome.changed;
    m_filterPending = m_filterPending || FilterChanged;
    FilterActive = outcome.active;
    FilterCanceled = outcome.canceled;
    FilterProjectSearchName = m_filter->ProjectSearchName;
    FilterClassID = m_filter->ClassID;
    SetText(cmbServerURL, m_filter->Server);
}

void frmSaveTo::LoadIconSet(TreeImages& images, const std::wstring& iconSet) const
{
    const ProcedureScope scope{L"frmSaveTo.LoadIconSet"};
    // A missing icon is no error: its nodes show the plain picture.
    for (const wchar_t* kind : {L"project", L"stage", L"gate"}) {
        if (IsWanted()) Ignoring([&] { LoadIcon(images, m_currentServer, iconSet, kind); });
    }
}

void frmSaveTo::ShowTree(bool shown)
{
    Show(TreeView1, shown);
    Show(txtTree, !shown);
    PutBehindLabel(shown ? TreeView1 : txtTree, lblTree);
}

void frmSaveTo::LoadTree(const std::wstring& server)
{
    const ProcedureScope scope{L"frmSaveTo.LoadTree"};
    m_currentServer = server;
    m_tree->Clear();
    const auto projects = QueryTree().Select(L"//project");
    ShowTree(!projects.empty());
    SetText(txtTree, Kind().emptyText);
    m_tree->AddProjects(projects, target, [this] { return IsWanted(); });
    ShowTreeLabel();
    m_treeLoaded = true;
    m_filterPending = false;
}

} // namespace corvane
