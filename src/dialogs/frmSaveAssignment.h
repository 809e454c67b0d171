// The dialog that saves a document as a new version of a deliverable or activity.
#pragma once

#include "dialogs/SaveDialog.h"
#include "platform/XmlDocument.h"

namespace corvane
{

class frmSaveAssignment final : public SaveDialog
{
public:
    frmSaveAssignment() noexcept;

    // Inputs beside those of every save dialog; where there is no activity, the target is the deliverable.
    std::int32_t& DeliverableID = target.deliverableId;
    std::int32_t& ActivityID = target.activityId;

private:
    void Form_Initialize() override;
    void ShowTerms() override;
    [[nodiscard]] TargetState LoadTarget() override;
    [[nodiscard]] SaveStart BeginSave() override;
    [[nodiscard]] std::wstring Record(const std::wstring& uploadName) override;
    [[nodiscard]] NotificationFacts Notified() const override;
    void AddLatestVersion(NotificationFacts& facts) const override;

    [[nodiscard]] bool IsActivity() const noexcept { return ActivityID >= 1; }
    void LoadDeliverable();
    void LoadActivity();
    void TakeSharedFacts(const XmlNode& row);
    void AllowCompletion(const XmlNode& row, std::int32_t ownWorkflowState);
    [[nodiscard]] TargetState Decide();
    [[nodiscard]] std::int32_t WorkflowPermission(std::int32_t objectKind, std::int32_t objectId) const;
    [[nodiscard]] std::int32_t ParentOwner() const;
    [[nodiscard]] bool HasManageAccess() const;
    [[nodiscard]] TargetState Allow() const;
    void ShowActivityRow(bool shown);
    void StretchNotes();

    UploadFacts m_facts;
    std::wstring m_userName;
    std::wstring m_statusNote;
    std::int32_t m_parentDeliverableId = 0;
    bool m_completionAllowed = true;
    bool m_activityRowShown = true;
    int m_stretch = 0; // pixels that the notes gave or took when the activity's row went
};

} // namespace corvane
