#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "app/AddIn.h"
#include "app/Companions.h"
#include "app/UiQueue.h"
#include "objects/Session.h"
#include "ui/Annotations.h"

namespace host
{

class MailWindow;
class MainWindow;

// What the host's own menus and buttons do.
enum class HostCommand
{
    New,
    Open,
    Save,
    SaveAs,
    Close,
    Exit,
};

// The whole host: the session, its add-ins and its window. Everything but Queue() and TakeFaults() belongs to the
// user-interface thread.
class Host
{
public:
    explicit Host(Options options);
    ~Host();

    void Show();
    void LoadAddIns();

    // Runs until Quit. Returns false when the add-in still holds objects of the host afterwards.
    [[nodiscard]] bool RunMessages();
    void Quit();

    [[nodiscard]] Session& Documents() { return m_session; }
    [[nodiscard]] UiQueue& Queue() { return m_queue; }
    [[nodiscard]] MainWindow& Window() { return *m_window; }
    [[nodiscard]] const std::vector<std::unique_ptr<AddIn>>& AddIns() const { return m_addIns; }
    [[nodiscard]] const MailFields* LastMail() const { return m_companions->LastMail(); }
    [[nodiscard]] bool IsLoaded() const { return m_loaded; }
    [[nodiscard]] const HostFacts& Facts() const { return m_session.Facts(); }
    [[nodiscard]] host::Edition Edition() const { return m_session.Settings().Edition(); }

    // The command is a ribbon control's id or, on command bars, an entry's tag.
    [[nodiscard]] bool HasCommand(const std::string& name) const;

    // Presses it as a user does; returns when its modal windows are closed. Failures become faults.
    void Press(const std::string& name);
    void Perform(HostCommand command);

    // Creates the add-in's public controller and calls one of its methods, as a macro would.
    void CallController(const std::wstring& method);
    [[nodiscard]] bool IsBusy() const { return m_running != 0; }

    void DisconnectAddIns();

    void AddFault(const std::wstring& fault);
    [[nodiscard]] std::vector<std::wstring> TakeFaults();

    // Takes back what the host wrote into the registry; for an end that runs no destructors. Any thread.
    void RemoveTraces()
    {
        if (m_companions) m_companions->RemoveTraces();
    }

private:
    void Guarded(const std::function<void()>& action);
    void SaveWithName();
    void OpenWithDialog();

    Session m_session;
    UiQueue m_queue;
    std::unique_ptr<Companions> m_companions;
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
