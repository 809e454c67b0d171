#include "windows/PowerPoint.h"

#include "companion/AddInCommands.h"
#include "machine/Files.h"
#include "platform/Owners.h"
#include "platform/Registry.h"

#include <algorithm>
#include <climits>
#include <optional>
#include <stdexcept>

#include <tlhelp32.h>

namespace verify
{
namespace
{

namespace fs = std::filesystem;
namespace Registry = corvane::Registry;
using Registry::Hive;
using Registry::View;

constexpr int kOwnBits = CHAR_BIT * sizeof(void*);
constexpr const wchar_t* kProgram = L"powerpnt.exe";
constexpr const wchar_t* kWindowClass = L"PPTFrameClass";
constexpr Registry::Place kPlaces[] = {
    {Hive::User, View::Own}, {Hive::Machine, View::Bits64}, {Hive::Machine, View::Bits32}};

bool SameName(const std::wstring& one, const std::wstring& other)
{
    return ::CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

// A default value of the user's or the machine's registry in either view.
std::wstring FirstText(const std::wstring& key)
{
    for (const auto place : kPlaces)
        if (auto text = Registry::ReadText(key, L"", place)) return *text;
    return {};
}

// The program of a command line, whose path may be in quotes.
std::wstring ProgramOf(const std::wstring& command)
{
    if (command.starts_with(L'"')) return command.substr(1, command.find(L'"', 1) - 1);
    constexpr std::wstring_view kEnding = L".exe";
    for (std::size_t at = 0; at + kEnding.size() <= command.size(); ++at)
        if (SameName(command.substr(at, kEnding.size()), std::wstring{kEnding}))
            return command.substr(0, at + kEnding.size());
    return command;
}

fs::path InstalledPowerPoint()
{
    const auto named = ProgramOf(FirstText(L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\powerpnt.exe"));
    if (fs::exists(named)) return named;
    const auto classId = FirstText(L"Software\\Classes\\PowerPoint.Application\\CLSID");
    return ProgramOf(FirstText(L"Software\\Classes\\CLSID\\" + classId + L"\\LocalServer32"));
}

int BitsOf(const fs::path& program)
{
    DWORD kind = 0;
    if (!::GetBinaryTypeW(program.c_str(), &kind)) return 0;
    return kind == SCS_64BIT_BINARY ? 64 : kind == SCS_32BIT_BINARY ? 32 : 0;
}

bool HasProcess(const std::wstring& name)
{
    const corvane::UniqueFile list{::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0)};
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = ::Process32FirstW(list.Get(), &entry); more; more = ::Process32NextW(list.Get(), &entry))
        if (SameName(entry.szExeFile, name)) return true;
    return false;
}

} // namespace

HostProgram FindHostProgram(const fs::path& named)
{
    const auto file = named.empty() ? InstalledPowerPoint() : fs::absolute(named);
    if (file.empty()) throw std::runtime_error{"PowerPoint is not installed on this PC"};
    if (!fs::exists(file)) throw std::runtime_error{Utf8Of(file) + " is not there"};
    const int bits = BitsOf(file);
    if (bits == 0) throw std::runtime_error{Utf8Of(file) + " is no program that could be played in"};
    if (bits != kOwnBits)
        throw std::runtime_error{Utf8Of(file) + " is a " + std::to_string(bits) +
                                 "-bit program and needs the zip for " + (bits == 64 ? "x64" : "x86") +
                                 "; this one is for " + (bits == 64 ? "x86" : "x64")};
    return {file, bits, SameName(file.filename().wstring(), kProgram)};
}

void RequireNotRunning(const HostProgram& program)
{
    const auto name = program.file.filename();
    if (HasProcess(name.wstring()) || HasProcess(kProgram) || ::FindWindowW(kWindowClass, nullptr) != nullptr)
        throw std::runtime_error{(program.isPowerPoint ? "PowerPoint" : Utf8Of(name)) +
                                 " is open; save your work, close it and start again"};
}

fs::path InstalledAddIn()
{
    const std::wstring id = corvane::companion::kAddInProgId;
    const auto listed = L"Software\\Microsoft\\Office\\PowerPoint\\Addins\\" + id;
    if (std::ranges::none_of(kPlaces, [&](const auto place) { return Registry::KeyExists(listed, place); })) return {};
    const auto classId = FirstText(L"Software\\Classes\\" + id + L"\\CLSID");
    const auto server = L"Software\\Classes\\CLSID\\" + classId + L"\\InprocServer32";
    for (const auto hive : {Hive::User, Hive::Machine})
        if (const auto library = Registry::ReadText(server, L"", {hive, View::Own}); library && fs::exists(*library))
            return *library;
    return {};
}

} // namespace verify
