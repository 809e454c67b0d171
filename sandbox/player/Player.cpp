#include "player/Player.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>

#include "automation/Text.h"
#include "base/Console.h"
#include "documents/Files.h"
#include "player/Screen.h"

namespace host
{
namespace
{

using namespace std::chrono_literals;

constexpr auto kPatience = 30s; // of a step, unless the setting "patience" gives other seconds
// A long wait is polled ever more rarely: looking costs the user interface time that is not the add-in's.
constexpr auto kFirstPoll = 20ms;
constexpr auto kSlowestPoll = 200ms;

} // namespace

Player::Player(Host& host, std::wstring scriptPath) : m_host{host}, m_path{std::move(scriptPath)} {}

bool Player::Play()
{
    const Step* current = nullptr;
    try {
        m_steps = ParseScript(ReadWholeFile(m_path), m_host.Documents().Settings().settings);
        for (const Step& step : m_steps) {
            current = &step;
            Perform(step);
            if (step.verb != "expect" || step.At(0) != "addin") CheckFaults();
        }
        if (!m_quit) Quit({});
        return true;
    } catch (const ScriptError& error) {
        PrintError(m_path + L":" + std::to_wstring(error.Line()) + L": " + Widen(error.Source()) + L"\n  " +
                   Widen(error.what()));
    } catch (const Error& error) {
        const std::wstring where =
            current ? m_path + L":" + std::to_wstring(current->line) + L": " + Widen(current->source) : m_path;
        PrintError(where + L"\n  " + error.Description() + L"\n" + DescribeScreen());
    } catch (const std::runtime_error& error) {
        PrintError(m_path + L":" + std::to_wstring(current ? current->line : 0) + L": " +
                   Widen(current ? current->source : "") + L"\n  " + Widen(error.what()) + L"\n" + DescribeScreen());
    }
    return false;
}

void Player::Perform(const Step& step)
{
    struct Verb
    {
        std::string_view name;
        void (Player::*perform)(const Step&);
    };
    static constexpr Verb kVerbs[] = {
        {"set", &Player::Set},         {"new", &Player::New},
        {"open", &Player::Open},       {"save", &Player::Save},
        {"saveas", &Player::SaveAs},   {"activate", &Player::Activate},
        {"close", &Player::Close},     {"quit", &Player::Quit},
        {"exit", &Player::Exit},       {"disconnect", &Player::Disconnect},
        {"command", &Player::Command}, {"controller", &Player::Controller},
        {"show", &Player::Show},       {"property", &Player::Property},
        {"ran", &Player::Ran},         {"registry", &Player::Registry},
        {"faults", &Player::Faults},   {"file", &Player::File},
        {"mail", &Player::Mail},       {"letter", &Player::Letter},
        {"shot", &Player::Shot},       {"usage", &Player::MeasuredUsage},
        {"window", &Player::Window},   {"closed", &Player::Closed},
        {"type", &Player::Type},       {"press", &Player::Press},
        {"select", &Player::Select},   {"doubleclick", &Player::DoubleClick},
        {"choose", &Player::Choose},   {"check", &Player::Check},
        {"key", &Player::Key},         {"message", &Player::Message},
        {"no", &Player::No},           {"repainted", &Player::Repainted},
        {"fits", &Player::LayoutFits}, {"readable", &Player::Readable},
        {"spoken", &Player::Spoken},   {"over", &Player::Over},
        {"hover", &Player::Hover},     {"expect", &Player::Expect},
        {"pick", &Player::Pick},       {"tab", &Player::Tab},
    };
    if (m_quit) throw std::runtime_error{"the host has quit"};
    for (const Verb& verb : kVerbs)
        if (verb.name == step.verb) return (this->*verb.perform)(step);
    throw std::runtime_error{"this step is not offered"};
}

void Player::WaitFor(const std::function<Finding()>& check)
{
    const std::string setting = m_host.Documents().Settings().Setting("patience");
    const auto end =
        std::chrono::steady_clock::now() + (setting.empty() ? kPatience : std::chrono::seconds{std::stoi(setting)});
    auto poll = kFirstPoll;
    for (Finding finding = check(); !finding.empty(); finding = check()) {
        CheckFaults();
        if (std::chrono::steady_clock::now() > end) throw Error{E_FAIL, {}, finding};
        ::Sleep(static_cast<DWORD>(poll.count()));
        poll = std::min(poll * 5 / 4, kSlowestPoll);
    }
}

void Player::OnUi(std::function<void()> work)
{
    if (!m_host.Queue().Run(std::move(work), kPatience)) throw std::runtime_error{"the user interface does not answer"};
}

// Waits until the messages posted so far are handled.
void Player::Settle()
{
    OnUi([] {});
}

void Player::CheckFaults()
{
    if (m_faultsExpected) return;
    const auto faults = m_host.TakeFaults();
    if (!faults.empty()) throw Error{E_FAIL, {}, L"the add-in failed: " + faults.front()};
}

} // namespace host
