// The dialog that saves a document as a new version of a gate document.
#pragma once

#include "dialogs/SaveDialog.h"

namespace corvane
{

class frmSaveGateDoc final : public SaveDialog
{
public:
    frmSaveGateDoc() noexcept;

    // Input beside those of every save dialog: the target.
    std::int32_t GateDocumentID = 0;

private:
    void ShowTerms() override;
    void LoadUser() override;
    [[nodiscard]] TargetState LoadTarget() override;
    [[nodiscard]] std::vector<TargetId> TargetIds() override;
    [[nodiscard]] bool MaySave() override;
    [[nodiscard]] bool HasTarget() const override { return GateDocumentID > 0; }
    [[nodiscard]] DocumentBinding Binding() const override;
    [[nodiscard]] std::wstring Record(const std::wstring& uploadName) override;
    [[nodiscard]] NotificationFacts Notified() const override;
    void AddLatestVersion(NotificationFacts& facts) const override { GetLatestGateVersionInfo(facts); }

    void LoadRights();
    void LoadGateDocument();
    void GetLatestGateVersionInfo(NotificationFacts& facts) const;

    GateDocumentFacts m_facts;
    std::int32_t m_userId = 0;
    std::wstring m_statusComment;
};

} // namespace corvane
