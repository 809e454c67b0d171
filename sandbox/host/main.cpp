#include <algorithm>
#include <climits>
#include <future>
#include <stdexcept>

#include <windows.h>

#include <commctrl.h>
#include <ole2.h>
#include <shellapi.h>

#include "app/Host.h"
#include "base/Console.h"
#include "base/Text.h"
#include "documents/Files.h"
#include "player/Player.h"

namespace
{

using namespace host;
using namespace std::chrono_literals;

constexpr int kSuccess = 0;
constexpr int kFailure = 1;
constexpr int kUsage = 2;
constexpr auto kEndPatience = 30s;
constexpr wchar_t kUsageText[] = L"usage: corvane-host.exe [--host powerpoint] [--version 16.0] [--connect-mode 1] "
                                 L"[--play FILE] [--set NAME=VALUE]... [--out FOLDER]";

std::vector<std::wstring> CommandLineWords()
{
    // What the environment says is for a host that is started in another's place, without words of its own.
    const wchar_t* const more = ::_wgetenv(L"CORVANE_HOST_OPTIONS");
    const std::wstring line = std::wstring{::GetCommandLineW()} + L" " + (more == nullptr ? L"" : more);
    int count = 0;
    LPWSTR* words = ::CommandLineToArgvW(line.c_str(), &count);
    std::vector<std::wstring> list(words + 1, words + count);
    ::LocalFree(words);
    return list;
}

// A failed scenario leaves modal windows open in the add-in, which no orderly end can pass.
[[noreturn]] void EndAtOnce(Host& host)
{
    host.RemoveTraces();
    ::TerminateProcess(::GetCurrentProcess(), kFailure);
    std::abort();
}

std::size_t PlayToTheEnd(Host& host, std::future<void> ended)
{
    ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const Options& options = host.Settings();
    const corvane::player::Outcome outcome = corvane::player::Play(host, options.playFile, options.settings);
    ::CoUninitialize();
    if (!outcome.failure.empty()) {
        PrintError(outcome.failure);
        EndAtOnce(host);
    }
    if (ended.wait_for(kEndPatience) == std::future_status::ready) return outcome.steps;
    PrintError(L"the host did not end in 30 s after the last step");
    EndAtOnce(host);
}

int RunScenario(Host& host, const std::wstring& path)
{
    std::promise<void> ended;
    auto steps = std::async(std::launch::async, [&] { return PlayToTheEnd(host, ended.get_future()); });
    const bool clean = host.RunMessages();
    ended.set_value();
    steps.wait();
    for (const std::wstring& fault : host.TakeFaults()) {
        PrintError(L"the add-in failed at the end: " + fault);
        return kFailure;
    }
    if (!clean) return kFailure;
    Print(L"scenario passed: " + FileName(path) + L" (" + std::to_wstring(steps.get()) + L" steps, " +
          std::to_wstring(CHAR_BIT * sizeof(void*)) + L"-bit)");
    return kSuccess;
}

int Run(Options options)
{
    const std::wstring script = options.playFile;
    if (!options.outFolder.empty()) ::CreateDirectoryW(options.outFolder.c_str(), nullptr);
    Host host{std::move(options)};
    host.Show();
    host.Queue().Post([&host] {
        host.LoadAddIns();
        if (host.Settings().Setting("open") == "new") host.New();
    });
    if (!script.empty()) return RunScenario(host, script);
    return host.RunMessages() ? kSuccess : kFailure;
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int)
{
    try {
        const auto words = CommandLineWords();
        if (std::ranges::find(words, L"--help") != words.end()) {
            Print(kUsageText);
            return kSuccess;
        }
        Options options = ParseOptions(words);
        const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
        ::InitCommonControlsEx(&controls);
        if (FAILED(::OleInitialize(nullptr))) {
            PrintError(L"OLE cannot be initialised");
            return kFailure;
        }
        const int status = Run(std::move(options));
        ::OleUninitialize();
        return status;
    } catch (const std::exception& error) {
        PrintError(Widen(error.what()) + L"\n" + kUsageText);
        return kUsage;
    }
}
