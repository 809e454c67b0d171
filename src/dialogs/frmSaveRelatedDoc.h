// The dialog that saves a document as a new or existing related document of a project.
#pragma once

#include "dialogs/SaveDialog.h"
#include "forms/FormList.h"
#include "platform/XmlDocument.h"

namespace corvane
{

class frmSaveRelatedDoc final : public SaveDialog
{
public:
    frmSaveRelatedDoc() noexcept;

    // Input beside those of every save dialog, below 1 for a new document. After the first save of a new document it is
    // the id that the server gave it.
    std::int32_t& RelatedDocID = target.relatedFileId;

private:
    void ShowTerms() override {}
    [[nodiscard]] TargetState LoadTarget() override;
    [[nodiscard]] SaveStart BeginSave() override;
    [[nodiscard]] bool MaySave() override;
    [[nodiscard]] std::wstring Record(const std::wstring& uploadName) override;
    void AfterRecord(const std::wstring& reply) override;
    [[nodiscard]] NotificationFacts Notified() const override;
    void AddLatestVersion(NotificationFacts& facts) const override;

    [[nodiscard]] bool IsNew() const noexcept { return RelatedDocID < 1; }
    // Fill the dialog from the server; false when the project is closed.
    [[nodiscard]] bool LoadNewDocument();
    [[nodiscard]] bool LoadExistingDocument();
    [[nodiscard]] FormList Groups() const noexcept;
    void FillGroups();
    void SelectGroup(const std::wstring& group);
    [[nodiscard]] std::wstring AuthorOfDocument() const;
    [[nodiscard]] std::wstring Description() const;

    std::wstring m_description; // of an existing document, as the server told it
};

} // namespace corvane
