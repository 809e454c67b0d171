// A host as its object model shows it.
#pragma once

#include <atomic>
#include <mutex>

#include "companion/Agreement.h"
#include "companion/Report.h"
#include "platform/LateBound.h"
#include "player/Stage.h"

namespace corvane::companion
{

// Any host of presentations that this library is loaded into. It is asked for nothing but what
// docs/verify-on-windows.md lists; what only a stand-in can do is thrown as Error.
class ObjectModelStage final : public player::Stage
{
public:
    // On the user-interface thread.
    ObjectModelStage(LateBound application, std::wstring folder, Report& report);

    // The host has loaded its add-ins.
    void SetReady();

    [[nodiscard]] int HostVersion() const; // the number before the first point

    // What ends a playing, whatever its next step is.
    void AddFault(const std::wstring& fault);

    // Whether presentations are open that the player has not opened. It never touches them: a step that would is
    // thrown as Error, and Quit leaves the host running.
    [[nodiscard]] bool HasOthers() const;

    [[nodiscard]] const player::UiQueue& Queue() const override { return m_queue; }
    [[nodiscard]] HWND Window() const override { return m_window; }
    [[nodiscard]] std::wstring OutFolder() const override { return m_folder; }
    [[nodiscard]] std::vector<std::wstring> TakeFaults() override;
    void Tell(const std::wstring& line) override { m_report.Tell(line); }
    [[nodiscard]] bool IsReady() const override { return m_ready; }
    [[nodiscard]] std::wstring AddInState() const override;
    [[nodiscard]] bool IsBusy() const override { return m_running != 0; }
    void New() override;
    void Open(const std::wstring& path) override;
    void Save() override;
    void SaveAs(const std::wstring& path, std::optional<long> format) override;
    void Close() override;
    void Activate(const std::wstring& name) override;
    [[nodiscard]] std::optional<std::wstring> ActiveName() const override;
    [[nodiscard]] std::optional<std::wstring> Property(const std::wstring& name) const override;
    void SetProperty(const std::wstring& name, const std::wstring& text) override;
    [[nodiscard]] bool HasCommand(const std::wstring& name) const override;
    void Press(const std::wstring& name) override;
    void CallController(const std::wstring& method) override;
    void RunMacro(const std::wstring& text, const std::wstring& procedure) override;
    [[nodiscard]] std::optional<std::wstring> MenuEntries(const std::vector<std::wstring>& path) const override;
    [[nodiscard]] bool ShowPage(const std::wstring& page) override;
    [[nodiscard]] bool HasRun(const std::wstring& macro) const override;
    [[nodiscard]] player::Mail LastMail() const override;
    void Set(const std::wstring& name, const std::wstring& value) override;
    void DisconnectAddIns() override;
    void Quit() override; // closes the player's presentations without saving them
    [[nodiscard]] std::wstring InItsWords(const std::wstring& text) const override;

private:
    void Keep(LateBound presentation);
    void RequireOwn() const;
    [[nodiscard]] bool IsOwn(const LateBound& presentation) const;
    void CloseOwn();
    [[nodiscard]] LateBound Active() const;
    [[nodiscard]] LateBound AddIn() const;
    [[nodiscard]] std::wstring Ribbon() const; // empty where the add-in has no commands
    void LookForWindow();
    void Guarded(const std::function<void()>& action); // what the add-in is asked for

    player::UiQueue m_queue;
    LateBound m_application;
    std::wstring m_folder;
    Report& m_report;
    std::atomic<HWND> m_window{nullptr};
    bool m_ready = false;
    int m_running = 0;
    std::vector<LateBound> m_own; // the presentations that the player has opened; a closed one has no name
    std::optional<std::wstring> m_author;
    bool m_readOnly = false;
    std::wstring m_newName = kNewName;
    std::mutex m_faultsMutex;
    std::vector<std::wstring> m_faults;
};

} // namespace corvane::companion
