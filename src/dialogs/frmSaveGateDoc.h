// The dialog that saves a document as a new version of a gate document.
#pragma once

#include "dialogs/SaveDialog.h"

namespace corvane
{

class frmSaveGateDoc final : public SaveDialog
{
public:
    frmSaveGateDoc() noexcept;

    // Input beside those of every save dialog.
    std::int32_t& GateDocumentID = target.gateDocumentId;

private:
    void ShowTerms() override;
    [[nodiscard]] TargetState LoadTarget() override;
    [[nodiscard]] bool MaySave() override;
    [[nodiscard]] bool HasTarget() const override { return GateDocumentID > 0; }
    [[nodiscard]] std::wstring Record(const std::wstring& uploadName) override;
    [[nodiscard]] NotificationFacts Notified() const override;
    void AddLatestVersion(NotificationFacts& facts) const override;

    void LoadRights();
    void LoadGateDocument();

    GateDocumentFacts m_facts;
    std::int32_t m_userId = 0;
    std::wstring m_statusComment;
};

} // namespace corvane
