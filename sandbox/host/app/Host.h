// The host as a whole.
#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "app/AddIn.h"
#include "app/OtherPrograms.h"
#include "objects/Session.h"
#include "player/UiQueue.h"
#include "ui/Annotations.h"
#include "ui/MailWindow.h"
#include "ui/MainWindow.h"

namespace host
{

// The whole host: the session, its add-ins and its window. Everything but Queue() and TakeFaults() belongs to the
// user-interface thread.
class Host final : public Desk
{
public:
    explicit Host(Options options);
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    ~Host();

    void Show();
    void LoadAddIns();

    // Runs until Quit. Returns false when the add-in still holds objects of the host afterwards.
    [[nodiscard]] bool RunMessages();
    void Quit();

    [[nodiscard]] Session& CurrentSession() { return m_session; }
    [[nodiscard]] const corvane::player::UiQueue& Queue() const { return m_queue; }
    [[nodiscard]] MainWindow& Window() { return *m_window; }
    [[nodiscard]] const std::vector<std::unique_ptr<AddIn>>& AddIns() const { return m_addIns; }
    [[nodiscard]] const MailFields* LastMail() const { return m_programs->LastMail(); }
    [[nodiscard]] bool IsLoaded() const { return m_loaded; }

    [[nodiscard]] const HostFacts& Facts() const override { return m_session.Facts(); }
    [[nodiscard]] host::Edition Edition() const override { return m_session.Settings().Edition(); }
    [[nodiscard]] DocumentObject* ActiveDocument() const override { return m_session.Active(); }
    [[nodiscard]] CommandBarObject& MenuBar() override { return m_session.CommandBars().MenuBar(); }
    [[nodiscard]] std::vector<const ShownRibbon*> Ribbons() const override;

    // The command is a ribbon control's id or, on command bars, an entry's tag.
    [[nodiscard]] bool HasCommand(const std::string& name);

    // Failures become faults.
    void Press(const std::string& name) override;
    void Perform(HostCommand command) override;

    // Creates the add-in's public controller and calls one of its methods, as a macro would.
    void CallController(const std::wstring& method);
    // Runs a procedure of a macro's text.
    void RunMacroText(const std::wstring& text, const std::wstring& procedure);
    [[nodiscard]] bool IsBusy() const { return m_running != 0; }

    void DisconnectAddIns();

    void AddFault(const std::wstring& fault);
    [[nodiscard]] std::vector<std::wstring> TakeFaults();

    // Takes back what the host wrote into the registry; for an end that runs no destructors. Any thread.
    void RemoveTraces()
    {
        if (m_programs != nullptr) m_programs->RemoveTraces();
    }

private:
    void Guarded(const std::function<void()>& action);
    void SaveWithName();
    void OpenWithDialog();

    Session m_session;
    corvane::player::UiQueue m_queue;
    std::unique_ptr<OtherPrograms> m_programs;
    ClassLoader m_classes;
    std::vector<std::unique_ptr<AddIn>> m_addIns;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<MailWindow> m_mail;
    std::optional<Annotations> m_annotations;
    bool m_loaded = false;
    int m_running = 0;
    std::mutex m_faultsMutex;
    std::vector<std::wstring> m_faults;
};

} // namespace host
