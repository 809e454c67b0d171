#include "wine/WineMachine.h"

#include "companion/Agreement.h"
#include "judge/Failure.h"
#include "judge/Text.h"
#include "machine/Files.h"
#include "machine/Order.h"
#include "platform/Utf8.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace verify
{
namespace
{

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr auto kForEver = std::chrono::hours{24}; // a first use may fetch a Wine
constexpr auto kMeasured = std::chrono::milliseconds{50};
constexpr const char* kShellFolders = R"(Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders)";

// A line of a .reg file for NAME=TEXT or NAME=dword:HEX.
std::string ValueLine(const std::string& value)
{
    const auto [name, text] = CutAt(value, "=");
    const bool number = text.starts_with("dword:");
    return (name.empty() ? "@=" : "\"" + name + "\"=") +
           (number ? text : "\"" + Replaced(Replaced(text, "\\", "\\\\"), "\"", "\\\"") + "\"");
}

// As .reg files are written: UTF-16 with a mark in front.
std::string Utf16Of(const std::string& text)
{
    const auto units = fs::path{std::u8string{text.begin(), text.end()}}.u16string();
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : units) {
        bytes += static_cast<char>(unit & 0xFFU);
        bytes += static_cast<char>(unit >> 8U);
    }
    return bytes;
}

int StatusOf(const Command& command) { return Process{command}.Wait(kForEver).value_or(-1); }

double Now() { return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count(); }

// What a host of the session has used of the processor, in seconds; nothing where the process is none.
std::optional<double> HostUse(const fs::path& process, long session)
{
    const auto [head, fields] = CutAt(ReadOrEmpty(process / "stat"), ") ");
    if (CutAt(head, "(").second.find("corvane-host") != 0) return std::nullopt;
    const auto words = Words(fields);
    if (words.size() < 13 || std::stol(words[3]) != session) return std::nullopt;
    return (std::stod(words[11]) + std::stod(words[12])) / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

std::vector<ProcessorNote> NotesOf(long session)
{
    std::vector<ProcessorNote> notes;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator{"/proc", none})
        if (std::isdigit(static_cast<unsigned char>(entry.path().filename().string().front())) != 0)
            if (const auto used = HostUse(entry.path(), session)) notes.push_back({Now(), *used});
    return notes;
}

} // namespace

FileLock::FileLock(const fs::path& file, Kind kind) : m_file{::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666)}
{
    if (m_file < 0 || ::flock(m_file, kind == Kind::Shared ? LOCK_SH : LOCK_EX) != 0)
        throw std::runtime_error{Utf8Of(file) + " cannot be locked"};
}

FileLock::~FileLock() { ::close(m_file); }

WineMachine::WineMachine(fs::path top, std::string arch, int number)
    : m_top{std::move(top)}, m_arch{std::move(arch)},
      m_wine{m_top / "build/wine" / ("scenarios-" + m_arch + "-" + std::to_string(number))}, m_playing{m_wine /
                                                                                                       "playing"}
{
    fs::create_directories(m_wine);
    m_lock = std::make_unique<FileLock>(m_wine / "desk.lock", FileLock::Kind::Alone);
    m_screen = std::make_unique<Process>(Command{
        .words = {"Xvfb", "-displayfd", "1", "-screen", "0", "1400x1050x24", "-nolisten", "tcp"}, .answers = true});
    m_display = ":" + m_screen->FirstLine();
    Require(m_display != ":", "no display could be started");
    Prepare();
}

WineMachine::~WineMachine()
{
    Stop();
    m_screen->AskToEnd();
    (void)m_screen->Wait(std::chrono::seconds{5});
}

Command WineMachine::Inside(std::vector<std::string> words) const
{
    return {
        .words = std::move(words),
        .settings = {{"CORVANE_WINEPREFIX", m_wine.string()}, {"WINEPREFIX", m_wine.string()}, {"DISPLAY", m_display}}};
}

int WineMachine::InShell(const std::string& script) const
{
    return StatusOf(Inside({"bash", "-euc", script, m_top.string(), m_arch}));
}

void WineMachine::Prepare() const
{
    const int status = InShell(R"(top=$0 arch=$1 dpi=96; . "$top/sandbox/wine-session.sh")");
    Require(status == 0, Utf8Of(m_wine) + " cannot be made ready");
}

void WineMachine::Stop() const
{
    InShell(R"(PATH=$("$0/tools/wine-path" "$1"); wineserver -k || true; wineserver -w)");
}

void WineMachine::Renew() const
{
    Stop();
    fs::remove(m_wine / "prepared");
    Prepare();
}

std::string WineMachine::HostPath(const fs::path& path) const { return "Z:" + Replaced(path.string(), "/", "\\"); }

void WineMachine::Reset(const fs::path& folder, const std::vector<std::string>& values)
{
    if (fs::exists(m_playing)) Renew(); // what a host that does not end itself has put into the registry stays there
    for (const auto& user : fs::directory_iterator{m_wine / "drive_c/users"})
        fs::remove_all(user.path() / "AppData/Roaming/Halvex");
    for (const auto& file : TemporaryFiles())
        fs::remove(file);
    std::vector<std::string> lines{"Windows Registry Editor Version 5.00", R"([-HKEY_CURRENT_USER\Software\Halvex])",
                                   R"([-HKEY_CURRENT_USER\Software\Policies\Halvex])",
                                   std::string{R"([HKEY_CURRENT_USER\)"} + kShellFolders + "]",
                                   ValueLine("Personal=" + HostPath(folder / "documents"))};
    // A scenario may have switched it off.
    lines.insert(lines.end(), {R"([HKEY_CURRENT_USER\Software\Microsoft\Office\PowerPoint\Addins\)"
                               R"(CorvaneMSOfficePowerPoint.Connect])",
                               R"("LoadBehavior"=dword:3)"});
    for (const auto& key : corvane::companion::RegistryKeys())
        lines.push_back("[-HKEY_CURRENT_USER\\" + corvane::ToUtf8(key) + "]");
    for (const auto& line : values) {
        const auto [key, value] = CutAt(line, " ");
        lines.push_back("[HKEY_CURRENT_USER\\" + key + "]");
        lines.push_back(ValueLine(value));
    }
    WriteBytes(folder / "profile.reg", Utf16Of(Joined(lines, "\r\n") + "\r\n"));
    (void)StatusOf(Inside({m_top / "sandbox/wine", m_arch, "regedit", "/S", HostPath(folder / "profile.reg")}));
    const auto share = m_wine / "dosdevices/unc/corvane/documents";
    fs::create_directories(share.parent_path());
    fs::remove(share);
    fs::create_symlink(folder / "documents", share);
}

Played WineMachine::Run(const Play& play)
{
    const auto& scenario = play.scenario;
    auto command = Inside({m_top / "sandbox/run", "--arch", m_arch});
    const auto add = [&](const std::vector<std::string>& words) {
        command.words.insert(command.words.end(), words.begin(), words.end());
    };
    add(Words(scenario.One("run")));
    add({"--"});
    const auto order = OrderOf(*this, play);
    add(order.words);
    command.settings.insert(order.settings.begin(), order.settings.end());
    command.output = play.folder / "host.txt";
    WriteBytes(m_playing, "");
    Played played;
    {
        Process host{command};
        const bool measured = scenario.IsChecked("cpu-below");
        const auto end = Clock::now() + play.patience.value_or(std::chrono::hours{24 * 365});
        while (!played.status && Clock::now() < end && !Stopping()) {
            if (measured) std::ranges::move(NotesOf(host.Id()), std::back_inserter(played.processor));
            played.status = host.Wait(measured ? kMeasured : std::chrono::milliseconds{1000});
        }
    }
    if (played.status) fs::remove(m_playing);
    played.printed = ReadableUtf8(ReadOrEmpty(command.output)) + ReportedBy(play);
    return played;
}

std::vector<fs::path> WineMachine::TemporaryFiles() const
{
    std::vector<fs::path> left;
    for (auto& file : FilesBelow(m_wine / "drive_c/users", ""))
        if (file.parent_path().filename() == "Temp" && HasGuidName(file)) left.push_back(std::move(file));
    return left;
}

std::vector<fs::path> WineMachine::Traces() const
{
    std::vector<fs::path> traces;
    for (const auto& user : fs::directory_iterator{m_wine / "drive_c/users"})
        for (auto& file : FilesBelow(user.path() / "AppData/Roaming/Halvex", ".log"))
            traces.push_back(std::move(file));
    return traces;
}

std::optional<std::string> WineMachine::RibbonFaults(const fs::path& folder, const std::string& edition) const
{
    const auto said = folder / "ribbon.txt";
    const int status =
        StatusOf({.words = {m_top / "tests/ribbon/check", edition, folder / "customUI.xml"}, .output = said});
    return status == 0 ? "" : ReadOrEmpty(said);
}

} // namespace verify
