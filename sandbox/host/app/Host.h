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
#include "player/Stage.h"
#include "ui/Annotations.h"
#include "ui/MailWindow.h"
#include "ui/MainWindow.h"

namespace host
{

// The whole host: the session, its add-ins and its window, as that window and a scenario's player see it. Everything
// but what a Stage names and RemoveTraces belongs to the user-interface thread.
class Host final : public Desk, public corvane::player::Stage
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

    [[nodiscard]] const Options& Settings() const { return m_session.Settings(); }

    [[nodiscard]] const HostFacts& Facts() const override { return m_session.Facts(); }
    [[nodiscard]] host::Edition Edition() const override { return Settings().Edition(); }
    [[nodiscard]] DocumentObject* ActiveDocument() const override { return m_session.Active(); }
    [[nodiscard]] CommandBarObject& MenuBar() override { return m_session.CommandBars().MenuBar(); }
    [[nodiscard]] std::vector<const ShownRibbon*> Ribbons() const override;

    // Failures become faults.
    void Press(const std::string& name) override;
    void Perform(HostCommand command) override;

    [[nodiscard]] const corvane::player::UiQueue& Queue() const override { return m_queue; }
    [[nodiscard]] HWND Window() const override { return m_session.window; }
    [[nodiscard]] std::wstring OutFolder() const override { return Settings().outFolder; }
    [[nodiscard]] std::vector<std::wstring> TakeFaults() override;
    void Tell(const std::wstring& line) override;
    [[nodiscard]] bool IsReady() const override { return m_loaded; }
    [[nodiscard]] std::wstring AddInState() const override;
    [[nodiscard]] bool IsBusy() const override { return m_running != 0; }
    void New() override { m_session.New(); }
    void Open(const std::wstring& path) override { m_session.Open(path, false); }
    void Save() override { Active().Save(); }
    void SaveAs(const std::wstring& path, std::optional<long> format) override { Active().SaveAs(path, format); }
    void Close() override { m_session.Close(Active()); }
    void Activate(const std::wstring& name) override;
    [[nodiscard]] std::optional<std::wstring> ActiveName() const override;
    [[nodiscard]] std::optional<std::wstring> Property(const std::wstring& name) const override;
    void SetProperty(const std::wstring& name, const std::wstring& text) override;
    [[nodiscard]] bool HasCommand(const std::wstring& name) const override;
    void Press(const std::wstring& name) override { Press(Narrow(name)); }
    void CallController(const std::wstring& method) override;
    void RunMacro(const std::wstring& text, const std::wstring& procedure) override;
    [[nodiscard]] std::optional<std::wstring> MenuEntries(const std::vector<std::wstring>& path) const override;
    [[nodiscard]] bool ShowPage(const std::wstring& page) override { return m_window->ShowPage(page); }
    [[nodiscard]] bool HasRun(const std::wstring& macro) const override;
    [[nodiscard]] corvane::player::Mail LastMail() const override;
    void Set(const std::wstring& name, const std::wstring& value) override;
    void DisconnectAddIns() override;
    void Quit() override;

    // Takes back what the host wrote into the registry; for an end that runs no destructors. Any thread.
    void RemoveTraces()
    {
        if (m_programs != nullptr) m_programs->RemoveTraces();
    }

private:
    void Guarded(const std::function<void()>& action);
    void SaveWithName();
    void OpenWithDialog();
    void AddFault(const std::wstring& fault);
    [[nodiscard]] DocumentObject& Active() const; // throws where no document is open

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
