#include "machine/Process.h"

#include "platform/Owners.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <atomic>
#include <stdexcept>

namespace verify
{
namespace
{

using corvane::UniqueFile;

constexpr DWORD kEndedByUs = 137;
constexpr DWORD kPatienceOfSystem = 10000; // ms; it ends a program that takes longer to close

std::atomic<bool> g_stopping = false;

// It lives as long as the program.
HANDLE StoppedEvent()
{
    static const UniqueFile event{::CreateEventW(nullptr, TRUE, FALSE, nullptr)};
    return event.Get();
}

BOOL WINAPI OnConsole(DWORD what)
{
    g_stopping = true;
    if (what != CTRL_C_EVENT && what != CTRL_BREAK_EVENT) ::WaitForSingleObject(StoppedEvent(), kPatienceOfSystem);
    return TRUE;
}

// A word as the C run time reads it back.
std::wstring Quoted(const std::wstring& word)
{
    std::wstring quoted = L"\"";
    std::size_t slashes = 0;
    for (const wchar_t letter : word) {
        if (letter == L'"') quoted.append(slashes + 1, L'\\');
        slashes = letter == L'\\' ? slashes + 1 : 0;
        quoted += letter;
    }
    return quoted.append(slashes, L'\\') + L"\"";
}

std::wstring CommandLine(const std::vector<std::string>& words)
{
    std::wstring line;
    for (const auto& word : words)
        line.append(line.empty() ? L"" : L" ").append(Quoted(corvane::FromUtf8(word)));
    return line;
}

// Names and values, each with a closing zero, and one at the end.
std::wstring EnvironmentWith(const std::map<std::string, std::string>& settings)
{
    std::wstring block;
    wchar_t* const own = ::GetEnvironmentStringsW();
    for (const wchar_t* one = own; *one != L'\0'; one += std::wstring_view{one}.size() + 1) {
        const std::wstring_view text = one;
        const auto name = corvane::ToUtf8(text.substr(0, text.find(L'=', 1)));
        if (!settings.contains(name)) block.append(text).push_back(L'\0');
    }
    ::FreeEnvironmentStringsW(own);
    for (const auto& [name, value] : settings)
        block.append(corvane::FromUtf8(name) + L"=" + corvane::FromUtf8(value)).push_back(L'\0');
    return block + L'\0';
}

UniqueFile Inheritable(const std::wstring& file, DWORD access, DWORD creation)
{
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE handle = ::CreateFileW(file.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                  &inherited, creation, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) throw std::runtime_error{corvane::ToUtf8(file) + " cannot be opened"};
    return UniqueFile{handle};
}

// Ends what is in it as soon as nobody holds it, so that nothing outlives this program.
UniqueFile EndingJob()
{
    UniqueFile job{::CreateJobObjectW(nullptr, nullptr)};
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    ::SetInformationJobObject(job.Get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
    return job;
}

} // namespace

struct Process::State
{
    UniqueFile process;
    UniqueFile job;
    UniqueFile answer;
    DWORD id = 0;
    bool stays = false;
    std::optional<int> status;
};

Process::Process(const Command& command) : m_state{std::make_unique<State>()}
{
    // A program that stays would keep open what this one prints to.
    for (const DWORD own : {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE})
        ::SetHandleInformation(::GetStdHandle(own), HANDLE_FLAG_INHERIT, 0);
    const auto input = Inheritable(L"NUL", GENERIC_READ, OPEN_EXISTING);
    const auto output = command.output.empty() ? Inheritable(L"NUL", GENERIC_WRITE, OPEN_EXISTING)
                                               : Inheritable(command.output.wstring(), GENERIC_WRITE, CREATE_ALWAYS);
    UniqueFile writing;
    if (command.answers) {
        if (!::CreatePipe(m_state->answer.Put(), writing.Put(), nullptr, 0))
            throw std::runtime_error{"no pipe is left"};
        ::SetHandleInformation(writing.Get(), HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    }
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = input.Get();
    start.hStdOutput = writing ? writing.Get() : output.Get();
    start.hStdError = output.Get();
    PROCESS_INFORMATION made{};
    auto line = CommandLine(command.words);
    auto environment = EnvironmentWith(command.settings);
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE,
                          CREATE_SUSPENDED | CREATE_UNICODE_ENVIRONMENT | CREATE_NEW_PROCESS_GROUP, environment.data(),
                          nullptr, &start, &made))
        throw std::runtime_error{command.words.front() + " cannot be started, error " +
                                 std::to_string(::GetLastError())};
    const UniqueFile thread{made.hThread};
    m_state->process = UniqueFile{made.hProcess};
    m_state->id = made.dwProcessId;
    m_state->stays = command.stays;
    if (!command.stays) {
        m_state->job = EndingJob();
        ::AssignProcessToJobObject(m_state->job.Get(), made.hProcess);
    }
    ::ResumeThread(thread.Get());
}

Process::Process(Process&& other) noexcept = default;

Process::~Process()
{
    if (m_state && !m_state->stays) End();
}

std::string Process::FirstLine()
{
    std::string line;
    char letter = '\0';
    DWORD read = 0;
    while (::ReadFile(m_state->answer.Get(), &letter, 1, &read, nullptr) && read == 1 && letter != '\n')
        line += letter;
    return line;
}

std::optional<int> Process::Wait(std::chrono::milliseconds limit)
{
    const auto time = static_cast<DWORD>(std::clamp<long long>(limit.count(), 0, INFINITE - 1));
    if (!m_state->status && ::WaitForSingleObject(m_state->process.Get(), time) == WAIT_OBJECT_0) {
        DWORD status = 0;
        ::GetExitCodeProcess(m_state->process.Get(), &status);
        m_state->status = static_cast<int>(status);
    }
    return m_state->status;
}

void Process::AskToEnd() noexcept
{
    // Without a console of its own a program cannot ask; what has been written by then is in the files.
    if (!m_state->status && !::GenerateConsoleCtrlEvent(CTRL_BREAK_EVENT, m_state->id)) End();
}

void Process::End() noexcept
{
    if (m_state->status) return;
    ::TerminateJobObject(m_state->job.Get(), kEndedByUs);
    ::TerminateProcess(m_state->process.Get(), kEndedByUs);
    ::WaitForSingleObject(m_state->process.Get(), INFINITE);
    m_state->status = kEndedByUs;
}

long Process::Id() const { return static_cast<long>(m_state->id); }

void WatchForStop()
{
    (void)StoppedEvent();
    ::SetConsoleCtrlHandler(&OnConsole, TRUE);
}

bool Stopping() noexcept { return g_stopping; }

void TellStopped() noexcept { ::SetEvent(StoppedEvent()); }

} // namespace verify
