// What the save dialogs share: their inputs, their loading order, and the one flow by which a document is saved.
#pragma once

#include "platform/Error.h"
#include "platform/Form.h"
#include "platform/LateBound.h"
#include "shared/DocumentBinding.h"

#include <span>
#include <string>

namespace corvane
{

// A form that saves the host's active document as a new version of a target on the server. The derived dialog knows
// its target: how it is loaded, what is recorded, and what the server's refusals mean.
class SaveDialog : public Form
{
public:
    // Inputs, set before the dialog is loaded.
    std::wstring ServerURL;
    std::int32_t ProjectID = 0;
    bool AutomaticallySetPublishCheckbox = false;
    LateBound oApplication;
    LateBound OutlookInspector; // where the host is Outlook

protected:
    SaveDialog(const wchar_t* name, int templateId) noexcept : Form{name, templateId} {}

    void Form_Load() override;
    [[nodiscard]] int FirstControl() const noexcept override;
    [[nodiscard]] int HelpControl() const noexcept override;

    // Fills captions from the customer's words; fetches what is known of the user before the target is; fetches the
    // target and decides whether it may be uploaded. The last two run only where a server is given.
    virtual void LoadCaptions() = 0;
    virtual void LoadUser() {}
    virtual void LoadTarget() = 0;
    // The controls that are out of use while a save runs, beside the save buttons.
    [[nodiscard]] virtual std::span<const int> SaveControls() const noexcept = 0;
    // A question before anything happens; false hides the dialog and ends the save.
    [[nodiscard]] virtual bool ConfirmSave() { return true; }
    // What the document will remember.
    [[nodiscard]] virtual DocumentBinding Binding() const = 0;
    // Records the uploaded file as a new version; returns the server's reply.
    [[nodiscard]] virtual std::wstring Record(const std::wstring& uploadName) = 0;
    // Tells the user of an error of the save by its number; false leaves it to the error report.
    [[nodiscard]] virtual bool ShowSaveError(const Error& error) = 0;

    void SetControlsEnabled(bool enabled);
    // The save buttons after a decision: both out of use, or in use (Save & Send only where the mail client is Outlook).
    void SetSaveAllowed(bool allowed) const noexcept;
    // Runs the save from its question to the hidden dialog. True when the version was recorded and not cancelled.
    bool Save();

    void cmdSave_Click();
    void cmdSaveAndSend_Click();
    void cmdCancel_Click();
    // Enter starts a new line in a box of several lines instead of saving.
    void MultiLine_GotFocus();
    void MultiLine_LostFocus();

private:
    void LoadInputs();
    bool UploadAndRecord();

    bool m_clientEvents = false;
    bool m_mailClientIsOutlook = false;
};

} // namespace corvane
