// The window in which the user picks a server and the target of a save.
#pragma once

#include "forms/Form.h"
#include "selection/FilterState.h"
#include "selection/TargetTree.h"
#include "selection/TreeCaptions.h"
#include "selection/frmFilter.h"
#include "support/CMRUServers.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace corvane
{

// Shown modally. The public members are set before showing and read after it is hidden; Cancel leaves them as they
// were, so an unchanged record means that nothing new was chosen.
class frmSaveTo final : public Form
{
public:
    frmSaveTo() noexcept;
    ~frmSaveTo() override;

    std::wstring ServerURL;
    std::int32_t DialogType = 0; // 0 deliverable or activity, 1 related document, 2 gate document
    Target target;
    std::int32_t& ProjectID = target.projectId;
    std::int32_t& DeliverableID = target.deliverableId;
    std::int32_t& ActivityID = target.activityId;
    std::int32_t& RelatedDocID = target.relatedFileId;
    std::int32_t& GateDocumentID = target.gateDocumentId;
    std::int32_t FilterClassID = 0; // 0 all classes
    std::wstring FilterProjectSearchName;
    bool FilterActive = false;
    bool FilterChanged = false;
    bool FilterCanceled = false;
    bool FilterForced = false;

private:
    [[nodiscard]] std::span<const FormHandler> Handlers() const override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void ShowWait(const std::wstring& text) override;
    [[nodiscard]] int HelpControl() const noexcept override;

    void cmbServerURL_Click();
    void cmbServerURL_GotFocus();
    void cmbServerURL_LostFocus();
    void cmdGo_Click();
    void cmdFilter_Click();
    void cmdOK_Click();
    void cmdHelp_Click();
    void TreeView1_DblClick();

    [[nodiscard]] TreeMode Mode() const noexcept { return static_cast<TreeMode>(DialogType); }
    [[nodiscard]] const TreeKind& Kind() const noexcept { return TreeKindOf(Mode()); }
    void FillServers();
    // Writes the list of servers, once.
    void KeepServers() noexcept;
    void ShowTreeLabel();
    // False once the user has left the window, which may be in the middle of a wait for the server.
    [[nodiscard]] bool IsWanted() const noexcept { return IsOpen(); }
    // Does what waits for the server, with the controls out of use; tells of an error. True when it was done and the
    // window is still wanted.
    bool Work(const std::function<void()>& work);
    // Fetches the tree of the server in the box. False when the administrators refuse that server: then it is not
    // asked.
    bool Go();
    void SetWorking(bool working);
    void FocusTree();
    [[nodiscard]] XmlDocument QueryTree() const;
    [[nodiscard]] bool CheckEntryCount();
    void LoadTree(const std::wstring& server);
    void LoadIconSet(TreeImages& images, const std::wstring& iconSet) const;
    void ShowFilter(bool forced);
    // The tree, or in its place the text that says that there is nothing.
    void ShowTree(bool shown);

    std::optional<CMRUServers> m_servers;
    std::optional<TargetTree> m_tree;
    std::unique_ptr<frmFilter> m_filter; // made at its first use and kept with its choices
    TreeCaptions m_captions;
    std::wstring m_currentServer; // whose tree is loaded
    bool m_filterPending = false; // the filter has changed since the tree was loaded
    bool m_treeLoaded = false;
    bool m_activated = false;
};

} // namespace corvane
