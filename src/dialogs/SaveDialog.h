// What the save dialogs share: their inputs, their loading order, and the one flow by which a document is saved.
#pragma once

#include "dialogs/UploadMessages.h"
#include "forms/Form.h"
#include "platform/Error.h"
#include "selection/TreeMode.h"
#include "shared/HostDocument.h"
#include "shared/NotificationTexts.h"
#include "support/Help.h"

#include <span>
#include <string>

namespace corvane
{

// Texts of a form that name its kind of target.
struct TypeCaptions
{
    const wchar_t* caption = L"";
    const wchar_t* advisory = L"";
    const wchar_t* type = L""; // in both texts; becomes the customer's word
};

// What sets one save dialog apart from the others before it is opened.
struct SaveDialogKind
{
    const wchar_t* name; // of the form
    int templateId;
    TreeMode tree; // for Change
    HelpTopic helpTopic;
    SaveErrors errors;             // the server's refusals
    TypeCaptions captions;         // empty where the template's texts stay
    std::span<const int> controls; // out of use while a save runs, beside the buttons
    bool asksForUser;              // whether the server is asked who the user is before the target is fetched
};

// A form that saves the host's active document as a new version of a target on the server. The derived dialog knows
// its target: how it is loaded, what is recorded, and what the server's refusals mean.
class SaveDialog : public Form
{
public:
    // Inputs, set before the dialog is loaded.
    std::wstring ServerURL;
    Target target;
    std::int32_t& ProjectID = target.projectId;
    bool AutomaticallySetPublishCheckbox = false;
    HostDocument Document; // the one to be saved

protected:
    // What the user had entered when the save began; texts are trimmed, and empty where the dialog has no such control.
    struct Entries
    {
        std::wstring name;
        std::wstring author;
        std::wstring comments;
        std::wstring notes;
        std::wstring description;
        std::wstring category;
        bool publish = false;
        bool complete = false;
    };
    // What is known of the target, which the save buttons follow.
    enum class TargetState
    {
        Unread,    // the buttons stay as they were, and Save loads the target first
        Refused,   // out of use
        Undecided, // as they were; the save itself decides
        Allowed    // in use, Save & Send only where the mail client is Outlook
    };
    // What a press on a save button comes to before anything happens.
    enum class SaveStart
    {
        Go,
        StayOpen,
        Hide
    };

    explicit SaveDialog(const SaveDialogKind& kind) noexcept : Form{kind.name, kind.templateId}, m_kind{kind} {}

    // Puts the customer's words into the captions; fetches the target, decides whether it may be uploaded and tells of
    // a refusal. The latter runs only where a server is given.
    virtual void ShowTerms() = 0;
    [[nodiscard]] virtual TargetState LoadTarget() = 0;

    // Asks or checks before the save; then, with the controls out of use, whether the user may save at all.
    [[nodiscard]] virtual SaveStart BeginSave() { return SaveStart::Go; }
    [[nodiscard]] virtual bool MaySave() { return true; }
    // Whether there is a target to save to disk and to record for.
    [[nodiscard]] virtual bool HasTarget() const { return true; }
    // Records the uploaded file as a new version; returns the server's reply.
    [[nodiscard]] virtual std::wstring Record(const std::wstring& uploadName) = 0;
    // After a recorded version that was not cancelled.
    virtual void AfterRecord(const std::wstring& /*reply*/) {}
    // What the notification mail tells of the target, and what the server knows of its latest version.
    [[nodiscard]] virtual NotificationFacts Notified() const = 0;
    virtual void AddLatestVersion(NotificationFacts& facts) const = 0;

    // Tells the user, and macros that ask, why the target is refused, unless the user has left the dialog meanwhile.
    void Tell(const std::wstring& text, UINT style) const;

    // Shows the target's project; the tooltip tells the server that it is on.
    void ShowProject(const std::wstring& name) const;
    // Tells why the rules refuse the target.
    [[nodiscard]] TargetState Refuse(Refusal refusal) const;
    // Puts the customer's word for the target's type into the caption and the line above the buttons.
    void ShowTypeCaptions();
    // The user's id on the server.
    [[nodiscard]] std::int32_t UserId() const;
    // The facts that every notification of this dialog shares.
    [[nodiscard]] NotificationFacts NotificationOf(NotifiedKind kind, std::int32_t targetId,
                                                   std::wstring targetName) const;

    [[nodiscard]] const Entries& Entered() const noexcept { return m_entered; }
    [[nodiscard]] UploadTerms& Terms() noexcept { return m_terms; }
    [[nodiscard]] const UploadTerms& Terms() const noexcept { return m_terms; }

    void Form_Initialize() override;
    void Form_Load() override;

private:
    [[nodiscard]] std::span<const FormHandler> Handlers() const final;
    [[nodiscard]] int FirstControl() const noexcept override;
    [[nodiscard]] int HelpControl() const noexcept override;

    void cmdSave_Click();
    void cmdSaveAndSend_Click();
    void cmdChange_Click();
    void cmdCancel_Click();
    void cmdHelp_Click();
    // Enter starts a new line in a box of several lines instead of saving.
    void MultiLine_GotFocus();
    void MultiLine_LostFocus();

    [[nodiscard]] Entries ReadEntries() const;
    void LoadInputs();
    // What stands beside the status: the server that is saved to.
    void ShowStatusDetail() const;
    void ShowWait(const std::wstring& text) override;
    void ReloadTarget();
    void SetControlsEnabled(bool enabled);
    void EnableSave(bool enabled) const noexcept;
    // Runs the save from its question to the hidden dialog. True when the version was recorded and not cancelled.
    bool Save();
    bool UploadAndRecord();
    // Tells the user when another document is active; then false.
    [[nodiscard]] bool RequireDocument() const;
    // Tells the user why the save ended.
    void ShowError(const Error& error) const;

    SaveDialogKind m_kind;
    UploadTerms m_terms;
    Entries m_entered;
    TargetState m_targetState = TargetState::Unread;
    bool m_inMacro = false; // the document's before a save; it may serve the dialog, whose controls are still in use
    bool m_left = false;    // by Cancel, perhaps in the middle of a wait for the server
    bool m_clientEvents = false;
    bool m_mailClientIsOutlook = false;
};

} // namespace corvane
