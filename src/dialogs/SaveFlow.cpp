// The one flow by which every save dialog saves a document, and the notification behind it.
#include "dialogs/SaveDialog.h"

#include "forms/Messages.h"
#include "platform/MessageLoop.h"
#include "platform/Procedure.h"
#include "resources/resource.h"
#include "shared/ClientEvents.h"
#include "shared/DocumentUpload.h"
#include "shared/NotificationMail.h"
#include "shared/SaveResult.h"

namespace corvane
{
namespace
{
// How long "Save Complete" stays before the dialog goes.
constexpr std::chrono::milliseconds kCompletePause{1000};

// Sets a flag for as long as it lives.
class Flagged
{
public:
    explicit Flagged(bool& flag) noexcept : m_flag{flag} { flag = true; }
    Flagged(const Flagged&) = delete;
    Flagged& operator=(const Flagged&) = delete;
    ~Flagged() { m_flag = false; }

private:
    bool& m_flag;
};
} // namespace

bool SaveDialog::Save()
{
    if (m_inMacro) return false;
    if (!RequireDocument()) return false;
    if (m_targetState == TargetState::Unread && !ServerURL.empty()) { // the user is to see first what is to be saved
        ReloadTarget();
        return false;
    }
    m_entered = ReadEntries();
    const SaveStart start = BeginSave();
    if (start == SaveStart::Hide) Hide();
    if (start != SaveStart::Go) return false;
    bool saved = false;
    const int focused = FocusedControl();
    const auto failure = Catch([&] { saved = UploadAndRecord(); });
    if (failure) ShowError(*failure);
    if (saved) Hide(); // first, since a control in use again could start another save
    SetStatus(StatusBar1, L"Ready");
    SetControlsEnabled(true);
    SetHourglass(false);
    if (!saved) SetFocusTo(focused);
    return saved;
}

bool SaveDialog::RequireDocument() const
{
    if (Document.IsActive()) return true;
    const wchar_t* const why = L"Another document is active now. Please activate the one that you want to save.";
    LastSave().Refuse(why);
    ShowMessage(why, kStyleExclamation);
    return false;
}

bool SaveDialog::UploadAndRecord()
{
    const ProcedureScope scope{L"SaveDialog.UploadAndRecord"};
    if (m_clientEvents) {
        const Flagged inMacro{m_inMacro};
        RunBeforeSaveEvent(Document);
        if (!Document.IsStillOpen()) Document.FollowActive(); // saved under another name
    }
    SetStatus(StatusBar1, L"Contacting the server...");
    SetControlsEnabled(false);
    SetHourglass(true);
    // What the user has put in meanwhile counts; from here on nothing changes, and the window may go while the save
    // waits.
    if (Window() != nullptr) m_entered = ReadEntries();
    if (!MaySave() || !RequireDocument()) return false;
    const UploadedDocument uploaded = UploadDocument(Document, {target, ServerURL}, HasTarget());
    const std::wstring reply = HasTarget() ? Record(uploaded.name) : std::wstring{};
    if (ProcessSaveResult(reply) == L"CANCEL") return false;
    AfterRecord(reply);
    LastSave().Save({ServerURL, target, NotificationLink(Notified()), uploaded.name});
    if (m_clientEvents && Document.IsActive()) RunAfterSaveEvent(Document);
    SetStatus(StatusBar1, L"Save Complete");
    PumpFor(kCompletePause);
    return true;
}

void SaveDialog::cmdSave_Click() { Save(); }

void SaveDialog::cmdSaveAndSend_Click()
{
    if (!Save()) return;
    // The version stands whatever becomes of the mail: an error's number refuses nothing any more.
    const auto failure = Catch(
        [this] { DisplayNotification(Notified(), [this](NotificationFacts& facts) { AddLatestVersion(facts); }); });
    if (failure && failure->Number() != kAutomationDeclined) ReportError(*failure);
}

NotificationFacts SaveDialog::NotificationOf(NotifiedKind kind, std::int32_t targetId, std::wstring targetName) const
{
    NotificationFacts facts;
    facts.kind = kind;
    facts.targetId = targetId;
    facts.targetName = std::move(targetName);
    facts.projectId = ProjectID;
    facts.projectName = Text(txtProject);
    facts.server = ServerURL;
    return facts;
}

} // namespace corvane
