#include "windows/WindowsMachine.h"

#include "companion/Agreement.h"
#include "judge/Failure.h"
#include "judge/Text.h"
#include "machine/Files.h"
#include "machine/Order.h"
#include "machine/Process.h"
#include "platform/Files.h"
#include "platform/Owners.h"
#include "platform/Registry.h"
#include "platform/Utf8.h"
#include "windows/Lacks.h"

#include <algorithm>

namespace verify
{
namespace
{

namespace fs = std::filesystem;
namespace Registry = corvane::Registry;
using corvane::FromUtf8;
using Clock = std::chrono::steady_clock;

constexpr auto kMeasured = std::chrono::milliseconds{50};
constexpr auto kFarewell = std::chrono::seconds{8}; // the system gives 10 to a program whose window is closed
constexpr wchar_t kTrial[] = L"Software\\Corvane Verify";
constexpr wchar_t kPolicies[] = L"Software\\Policies\\Halvex";
constexpr wchar_t kOwn[] = L"Software\\Halvex";
constexpr wchar_t kUserShellFolders[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";
constexpr wchar_t kShellFolders[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr wchar_t kMailLinks[] = L"Software\\Classes\\mailto\\shell\\open\\command";
constexpr const char* kLibrary = "CorvaneMSOfficePowerPoint.dll";
constexpr const char* kHelp = "CorvaneMSOfficeAddin.chm";

// What a host writes while it stands in for other programs, and takes back unless it is killed.
constexpr const wchar_t* kOfHosts[] = {L"Software\\Classes\\mailto", L"Software\\Classes\\Outlook.Application",
                                       L"Software\\Classes\\CorvaneMSOfficeExcel.CLogin"};

std::string WhyLeft(const Play& play) { return ReportedBehind(ReportedBy(play), corvane::companion::kLeftWords); }

class Library
{
public:
    explicit Library(const fs::path& file) : m_module{::LoadLibraryW(file.c_str())}
    {
        if (m_module == nullptr) throw std::runtime_error{Utf8Of(file) + " cannot be loaded"};
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() { ::FreeLibrary(m_module); }

    void Register() const
    {
        using Entry = HRESULT(STDAPICALLTYPE*)();
        const auto entry =
            reinterpret_cast<Entry>(reinterpret_cast<void*>(::GetProcAddress(m_module, "DllRegisterServer")));
        if (entry == nullptr || FAILED(entry())) throw std::runtime_error{"the add-in cannot be registered"};
    }

private:
    HMODULE m_module;
};

// The user's part of the registry is a key of it for as long as this lives.
class RedirectedUser
{
public:
    explicit RedirectedUser(const wchar_t* key)
    {
        corvane::UniqueRegistryKey opened;
        ::RegCreateKeyExW(HKEY_CURRENT_USER, key, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, opened.Put(), nullptr);
        if (::RegOverridePredefKey(HKEY_CURRENT_USER, opened.Get()) != ERROR_SUCCESS)
            throw std::runtime_error{"the registry cannot be redirected"};
    }
    RedirectedUser(const RedirectedUser&) = delete;
    RedirectedUser& operator=(const RedirectedUser&) = delete;
    ~RedirectedUser() { ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr); }
};

// Which keys the library writes when it is registered.
std::vector<std::wstring> KeysOf(const Library& library)
{
    {
        const RedirectedUser trial{kTrial};
        library.Register();
    }
    auto keys = KeysWithValues(kTrial);
    Registry::DeleteTree(kTrial);
    return keys;
}

double SecondsOf(const FILETIME& time) { return static_cast<double>(corvane::FileTimeOf(time)) / 1e7; }

ProcessorNote NoteOf(long process)
{
    const corvane::UniqueFile opened{
        ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, static_cast<DWORD>(process))};
    FILETIME begun{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    ::GetProcessTimes(opened.Get(), &begun, &ended, &kernel, &user);
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return {std::chrono::duration<double>(now).count(), SecondsOf(kernel) + SecondsOf(user)};
}

void WriteWish(const std::string& wish)
{
    const auto [key, value] = CutAt(wish, " ");
    const auto [name, text] = CutAt(value, "=");
    if (text.starts_with("dword:"))
        Registry::WriteNumber(FromUtf8(key), FromUtf8(name),
                              static_cast<std::int32_t>(std::stoul(text.substr(6), nullptr, 16)));
    else
        Registry::WriteText(FromUtf8(key), FromUtf8(name), FromUtf8(text));
}

void Empty(const fs::path& folder)
{
    fs::remove_all(folder);
    fs::create_directories(folder);
}

} // namespace

WindowsMachine::WindowsMachine(fs::path home, Subject subject)
    : m_home{std::move(home)}, m_work{m_home / "work"}, m_subject{std::move(subject)}, m_note{m_work / "registry.json"}
{
    CleanUp(m_home);
    fs::create_directories(m_work / "addin");
    fs::copy_file(m_home / kLibrary, m_work / "addin" / kLibrary);
    try {
        Register();
    } catch (const std::exception&) {
        CleanUp(m_home);
        throw;
    }
}

WindowsMachine::~WindowsMachine()
{
    try {
        m_note.PutBackAll();
        if (!m_isLeft) fs::remove_all(m_work); // a program that was left running works with it
    } catch (const std::exception&) {
        return; // the note is there for the next start
    }
}

void WindowsMachine::CleanUp(const fs::path& home)
{
    RegistryNote{home / "work/registry.json"}.PutBackAll();
    fs::remove_all(home / "work");
}

void WindowsMachine::Register()
{
    std::vector<std::wstring> keys{std::begin(kOfHosts), std::end(kOfHosts)};
    keys.insert(keys.end(), {kTrial, kOwn, kPolicies});
    std::ranges::move(corvane::companion::RegistryKeys(), std::back_inserter(keys));
    m_note.Add(keys, {{kUserShellFolders, L"Personal"}, {kShellFolders, L"Personal"}});
    if (m_subject.hasAddIn) return;
    const Library library{m_work / "addin" / kLibrary};
    m_note.Add(KeysOf(library), {});
    library.Register();
}

std::string WindowsMachine::Refuses(const Scenario& scenario) const { return LackFor(scenario); }

std::string WindowsMachine::HostPath(const fs::path& path) const { return Utf8Of(path); }

void WindowsMachine::Reset(const fs::path& folder, const std::vector<std::string>& values)
{
    for (const wchar_t* key : kOfHosts)
        m_note.PutBack(key);
    for (const auto& key : corvane::companion::RegistryKeys())
        m_note.PutBack(key);
    Empty(m_work / "temp");
    Empty(m_work / "appdata");
    Registry::DeleteTree(kOwn);
    Registry::DeleteTree(kPolicies);
    if (!m_subject.hasAddIn) Library{m_work / "addin" / kLibrary}.Register(); // a scenario may have switched it off
    Registry::WriteText(kMailLinks, L"", L"mail.exe \"%1\"");                 // no mail client that is known
    Registry::WriteText(kUserShellFolders, L"Personal", (folder / "documents").wstring());
    for (const auto& value : values)
        WriteWish(value);
}

bool WindowsMachine::ShowsUsersClasses() const
{
    const std::wstring mark = L"corvane-verify";
    Registry::WriteText(kMailLinks, L"", mark);
    const auto shown = Registry::ReadText(L"mailto\\shell\\open\\command", L"", {Registry::Hive::Classes});
    m_note.PutBack(kOfHosts[0]);
    return shown == mark;
}

void WindowsMachine::WriteSettings(const std::vector<std::string>& options) const
{
    const auto has = [&](const char* option) { return std::ranges::find(options, option) != options.end(); };
    const auto timeout = std::ranges::find(options, "--timeout");
    WriteBytes(m_work / "addin/settings.config",
               std::string{"<settings>\n  <setting name=\"EnableTraceLogs\" value=\""} +
                   (has("--trace") ? "true" : "false") + "\"/>\n  <setting name=\"RequestTimeoutSeconds\" value=\"" +
                   (timeout == options.end() ? "20" : *(timeout + 1)) + "\"/>\n</settings>\n");
    fs::remove(m_work / "addin" / kHelp);
    if (!has("--no-help")) fs::copy_file(m_home / kHelp, m_work / "addin" / kHelp);
}

std::map<std::string, std::string> WindowsMachine::Environment() const
{
    const auto temporary = Utf8Of(m_work / "temp");
    return {{"APPDATA", Utf8Of(m_work / "appdata")}, {"TEMP", temporary}, {"TMP", temporary}};
}

// The player decides whether the program ends: it knows whose presentations are open in it.
std::string WindowsMachine::LeaveOrAwait(Process& host, const Play& play, std::optional<int>& status)
{
    WriteBytes(play.folder / corvane::ToUtf8(corvane::companion::kStopName), "");
    const auto end = Clock::now() + kFarewell;
    while (!status && Clock::now() < end && WhyLeft(play).empty())
        status = host.Wait(std::chrono::milliseconds{100});
    if (status) return {};
    const auto why = WhyLeft(play);
    return why.empty() ? "it does not end" : why;
}

Played WindowsMachine::Run(const Play& play)
{
    const auto& scenario = play.scenario;
    auto wanted = Words(scenario.One("run"));
    // A host that prints nothing tells by the add-in's trace how long it loaded it.
    if (play.foreign && !scenario.IsChecked("trace")) wanted.emplace_back("--trace");
    WriteSettings(wanted);
    auto order = OrderOf(*this, play);
    order.words.insert(order.words.begin(),
                       Utf8Of(m_subject.program.empty() ? m_home / "corvane-host.exe" : m_subject.program));
    order.settings.merge(Environment());
    const Command command{
        .words = order.words, .settings = order.settings, .output = play.folder / "host.txt", .stays = play.foreign};
    Played played;
    {
        Process host{command};
        const bool measured = scenario.IsChecked("cpu-below");
        const auto end = Clock::now() + play.patience.value_or(std::chrono::hours{24 * 365});
        while (!played.status && Clock::now() < end && !Stopping()) {
            if (measured) played.processor.push_back(NoteOf(host.Id()));
            played.status = host.Wait(measured ? kMeasured : std::chrono::milliseconds{1000});
            if (play.foreign && !WhyLeft(play).empty()) break;
        }
        if (play.foreign && !played.status) played.left = LeaveOrAwait(host, play, played.status);
    }
    m_isLeft = !played.left.empty();
    played.printed = ReadableUtf8(ReadOrEmpty(command.output)) + ReportedBy(play);
    return played;
}

void WindowsMachine::RunForPerson()
{
    WriteSettings({"--trace"});
    Process host{{.words = {Utf8Of(m_home / "corvane-host.exe"), "--set", "open=new"}, .settings = Environment()}};
    while (!host.Wait(std::chrono::milliseconds{500}) && !Stopping()) {
    }
}

std::vector<fs::path> WindowsMachine::TemporaryFiles() const
{
    auto files = FilesIn(m_work / "temp", "");
    std::erase_if(files, [](const fs::path& file) { return !HasGuidName(file); });
    return files;
}

std::vector<fs::path> WindowsMachine::Traces() const { return FilesBelow(m_work / "appdata/Halvex", ".log"); }

} // namespace verify
