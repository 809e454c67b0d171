// The dialog that saves a document as a new version of a deliverable or activity.
#pragma once

#include "dialogs/SaveDialog.h"
#include "dialogs/UploadMessages.h"
#include "platform/XmlDocument.h"

namespace corvane
{

class frmSaveAssignment final : public SaveDialog
{
public:
    frmSaveAssignment() noexcept;

    // Inputs beside those of every save dialog: the target; one of the two is 0.
    std::int32_t DeliverableID = 0;
    std::int32_t ActivityID = 0;

private:
    [[nodiscard]] std::span<const FormHandler> Handlers() const override;
    void LoadCaptions() override;
    void LoadUser() override;
    void LoadTarget() override;
    [[nodiscard]] std::span<const int> SaveControls() const noexcept override;
    [[nodiscard]] bool ConfirmSave() override;
    [[nodiscard]] DocumentBinding Binding() const override;
    [[nodiscard]] std::wstring Record(const std::wstring& uploadName) override;
    [[nodiscard]] bool ShowSaveError(const Error& error) override;

    void cmdChange_Click();
    void cmdHelp_Click();

    void LoadAssignment();
    void ShowTypeCaptions() const;
    void LoadDeliverable();
    void LoadActivity();
    void TakeSharedFacts(const XmlNode& row);
    void AllowCompletion(const XmlNode& row, std::int32_t ownWorkflowState);
    void Decide();
    [[nodiscard]] std::int32_t WorkflowPermission(std::int32_t objectKind, std::int32_t objectId) const;
    [[nodiscard]] std::int32_t ParentOwner() const;
    [[nodiscard]] bool HasManageAccess() const;
    void Refuse(Refusal refusal);
    void Allow();
    void ShowActivityRow(bool shown);

    UploadTerms m_terms;
    std::wstring m_completed; // the customer's word for the completed status
    UploadFacts m_facts;
    std::wstring m_userName;
    std::wstring m_statusNote;
    std::int32_t m_parentDeliverableId = 0;
    bool m_completionAllowed = true;
    bool m_activityRowShown = true;
    int m_stretch = 0; // pixels that the notes gave or took when the activity's row went
};

} // namespace corvane
