#include "player/Run.h"

#include <algorithm>

#include "platform/Error.h"
#include "player/Screen.h"

namespace corvane::player
{
namespace
{

using namespace std::chrono_literals;

constexpr auto kPatience = 30s;
// A long wait is polled ever more rarely: looking costs the user interface time that is not the add-in's.
constexpr auto kFirstPoll = 20ms;
constexpr auto kSlowestPoll = 200ms;

} // namespace

void Fail(std::wstring why) { throw Error{0, L"", std::move(why)}; }

void Run::SetPatience(const std::wstring& seconds)
{
    m_patience = seconds.empty() ? kPatience : std::chrono::seconds{std::stoi(seconds)};
}

void Run::WaitFor(const std::function<Finding()>& check)
{
    const auto end = std::chrono::steady_clock::now() + m_patience;
    auto poll = kFirstPoll;
    for (Finding finding = check(); !finding.empty(); finding = check()) {
        CheckFaults();
        if (std::chrono::steady_clock::now() > end) Fail(finding);
        ::Sleep(static_cast<DWORD>(poll.count()));
        poll = std::min(poll * 5 / 4, kSlowestPoll);
    }
}

void Run::RunOnUi(const std::function<void()>& work)
{
    if (!m_stage.Queue().Run(work, kPatience)) Fail(L"the user interface does not answer");
}

void Run::BeginOnUi(std::function<void()> work)
{
    m_stage.Queue().Post(std::move(work));
    Settle();
}

void Run::Settle()
{
    OnUi([] {});
}

void Run::AwaitReady()
{
    WaitFor([this] {
        return Unless(OnUi([this] { return m_stage.IsReady(); }), L"the host is still loading its add-ins");
    });
}

void Run::CheckFaults()
{
    if (faultsExpected) return;
    const auto faults = m_stage.TakeFaults();
    if (!faults.empty()) Fail(L"the add-in failed: " + faults.front());
}

void Run::Address(const std::wstring& window)
{
    m_onMessage = window == L"message";
    if (!m_onMessage) m_form = window;
    WaitFor([&] { return Unless(Form() != nullptr, L"no window " + window); });
}

HWND Run::Form() const
{
    if (m_onMessage) return NamedWindow(L"message");
    if (m_form.empty()) Fail(L"no window is addressed yet");
    return FindForm(m_form);
}

HWND Run::Control(const std::wstring& name) const
{
    if (name == L"form") return Form();
    const auto id = ControlIdOf(name);
    if (!id) Fail(L"no control is named " + name);
    const HWND form = Form();
    return form == nullptr ? nullptr : FindControl(form, *id);
}

void Run::WaitOn(const std::wstring& control, const std::function<Finding(HWND)>& check)
{
    WaitFor([&] {
        const HWND window = Control(control);
        return window == nullptr ? L"no " + control + L" in " + m_form : check(window);
    });
}

HWND Run::UsableControl(const std::wstring& name)
{
    HWND control = nullptr;
    WaitOn(name, [&](HWND found) {
        control = found;
        if (!::IsWindowVisible(found)) return name + L" is hidden";
        return Unless(::IsWindowEnabled(found) && ::IsWindowEnabled(Form()), name + L" is disabled");
    });
    return control;
}

void Run::Focus(HWND control)
{
    BeginOnUi([control] { ::SetFocus(control); });
}

HWND Run::FocusedWindow() const { return FocusOf(m_stage.Queue().ThreadId()); }

bool Run::HasFocus(HWND control) const
{
    const HWND focus = FocusedWindow();
    return control != nullptr && focus != nullptr && (focus == control || ::IsChild(control, focus));
}

void Run::AwaitClosed(const std::wstring& form)
{
    WaitFor([&] { return Unless(FindForm(form) == nullptr, L"the window " + form + L" is open"); });
}

HWND Run::NamedWindow(const std::wstring& name) const
{
    if (name == L"host") return m_stage.Window();
    if (name != L"message") return FindForm(name);
    const auto boxes = MessageBoxes();
    return boxes.empty() ? nullptr : boxes.front();
}

void Run::Quit()
{
    WaitFor([this] { return Unless(!OnUi([this] { return m_stage.IsBusy(); }), L"a command is still running"); });
    m_hasQuit = true;
    m_stage.Queue().Post([&stage = m_stage] { stage.Quit(); });
}

std::wstring Run::OutFile(const std::wstring& name) const
{
    const std::wstring folder = m_stage.OutFolder();
    if (folder.empty()) Fail(L"this step needs --out");
    return folder + L"\\" + name;
}

} // namespace corvane::player
