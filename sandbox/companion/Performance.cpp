#include "companion/Performance.h"

#include <climits>

#include "companion/Agreement.h"
#include "companion/Suitability.h"
#include "platform/MessageLoop.h"
#include "platform/Procedure.h"
#include "platform/Utf8.h"
#include "player/Player.h"
#include "player/Run.h"
#include "player/Screen.h"

namespace corvane::companion
{
namespace
{

using namespace std::chrono_literals;

constexpr auto kAnswerPatience = 5s;
constexpr auto kClosePatience = 10s;
constexpr DWORD kClosePoll = 100; // milliseconds
constexpr int kFailure = 1;

std::wstring NameOf(const std::wstring& path) { return path.substr(path.find_last_of(L"\\/") + 1); }

struct HostState
{
    bool busy = true;
    bool hasOthers = true;
};

// A form of the add-in's or a message box.
bool IsInTheWay(HWND window)
{
    const std::wstring name = player::ClassOf(window);
    return name == L"#32770" || name.starts_with(L"frm");
}

} // namespace

Performance::Performance(LateBound application, Errand errand)
    : m_errand{std::move(errand)}, m_report{m_errand.folder}, m_stage{std::move(application), m_errand.folder, m_report}
{}

Performance::~Performance()
{
    if (!m_thread.joinable()) return;
    if (!m_ended) m_stage.AddFault(L"the host has let go of the player");
    static_cast<void>(PumpUntil([this] { return m_ended; }));
    m_thread.join();
}

// A host that loads for long does not serve its windows meanwhile, which would look like one that hangs.
void Performance::AddInsLoaded()
{
    if (m_thread.joinable()) return;
    m_stage.SetReady();
    m_thread = std::thread{[this] { Play(); }};
}

void Performance::Play()
{
    const HRESULT initialized = ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    std::wstring verdict;
    if (const auto failure = Catch([&] { verdict = PlayIfSuitable(); })) verdict = failure->Description();
    m_report.Tell(verdict);
    if (SUCCEEDED(initialized)) ::CoUninitialize();
    m_stage.Queue().Post([this] { m_ended = true; });
}

std::wstring Performance::PlayIfSuitable()
{
    const auto rows = player::AllSteps();
    const auto steps = player::ParseScript(player::ReadText(m_errand.scenario), m_errand.settings, rows);
    player::Run run{m_stage};
    run.AwaitReady();
    const std::wstring misfit =
        FindMisfit(steps, m_errand.settings, run.OnUi([this] { return m_stage.HostVersion(); }));
    if (!misfit.empty()) {
        run.Quit();
        return kMisfitWords + misfit;
    }
    for (const auto& setting : m_errand.settings)
        if (IsForDocuments(setting.first))
            run.OnUi([&] { m_stage.Set(FromUtf8(setting.first), FromUtf8(setting.second)); });
    const player::Outcome outcome = player::Play(m_stage, m_errand.scenario, m_errand.settings);
    if (outcome.failure.empty())
        return L"scenario passed: " + NameOf(m_errand.scenario) + L" (" + std::to_wstring(outcome.steps) + L" steps, " +
               std::to_wstring(CHAR_BIT * sizeof(void*)) + L"-bit)";
    m_report.Tell(outcome.failure);
    Abandon();
    return Failed();
}

std::wstring Performance::Failed() const { return L"scenario failed: " + NameOf(m_errand.scenario); }

// Ends the host behind a scenario that has failed. One that cannot be asked what is open in it is left alone.
void Performance::Abandon()
{
    const auto end = std::chrono::steady_clock::now() + kClosePatience;
    const auto state = std::make_shared<HostState>(); // for a host that answers too late
    while (m_stage.Queue().Run(
        [&stage = m_stage, state] {
            *state = {stage.IsBusy(), stage.HasOthers()};
        },
        kAnswerPatience))
    {
        if (!state->busy) return m_stage.Queue().Post([&stage = m_stage] { stage.Quit(); });
        if (std::chrono::steady_clock::now() > end) return EndBusy(state->hasOthers);
        for (const HWND window : player::VisibleWindows())
            if (IsInTheWay(window)) ::PostMessageW(window, WM_CLOSE, 0, 0);
        ::Sleep(kClosePoll);
    }
    m_report.Tell(kLeftWords + std::wstring{L"it does not answer"});
}

void Performance::EndBusy(bool hasOthers)
{
    if (hasOthers) return m_report.Tell(kLeftWords + std::wstring{kOthersWords});
    m_report.Tell(Failed());
    ::TerminateProcess(::GetCurrentProcess(), kFailure);
}

} // namespace corvane::companion
