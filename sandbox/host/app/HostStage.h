// The stand-in host as a scenario's player sees it.
#pragma once

#include "app/Host.h"
#include "player/Stage.h"

namespace host
{

class HostStage final : public corvane::player::Stage
{
public:
    explicit HostStage(Host& host) : m_host{host} {}

    [[nodiscard]] const corvane::player::UiQueue& Queue() const override { return m_host.Queue(); }
    [[nodiscard]] HWND Window() const override { return m_host.Window().Handle(); }
    [[nodiscard]] std::wstring OutFolder() const override;
    [[nodiscard]] std::vector<std::wstring> TakeFaults() override { return m_host.TakeFaults(); }
    void Tell(const std::wstring& line) override;

    [[nodiscard]] bool IsReady() const override { return m_host.IsLoaded(); }
    [[nodiscard]] std::wstring AddInState() const override;
    [[nodiscard]] bool IsBusy() const override { return m_host.IsBusy(); }

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
    void CallController(const std::wstring& method) override { m_host.CallController(method); }
    void RunMacro(const std::wstring& text, const std::wstring& procedure) override
    {
        m_host.RunMacroText(text, procedure);
    }
    [[nodiscard]] std::optional<std::wstring> MenuEntries(const std::vector<std::wstring>& path) const override;
    [[nodiscard]] bool ShowPage(const std::wstring& page) override { return m_host.Window().ShowPage(page); }
    [[nodiscard]] bool HasRun(const std::wstring& macro) const override;
    [[nodiscard]] corvane::player::Mail LastMail() const override;
    void Set(const std::wstring& name, const std::wstring& value) override;

    void DisconnectAddIns() override { m_host.DisconnectAddIns(); }
    void Quit() override { m_host.Quit(); }

private:
    [[nodiscard]] DocumentObject& Active() const; // throws where no document is open

    Host& m_host;
};

} // namespace host
