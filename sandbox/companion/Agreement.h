// What the player and whoever starts its host agree on: the registration, the order to play, the report's verdict. The
// starter writes the registration and removes it afterwards; the library registers nothing by itself.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace corvane::companion
{

constexpr wchar_t kProgId[] = L"CorvanePlayer.Connect";
constexpr wchar_t kClassId[] = L"{6F4B8E52-0D3A-4C1F-9B77-5A2E9C64D1B8}";

// In the environment of the host's process, whose end nothing of it outlives: a player that is left registered does
// nothing in another one.
constexpr wchar_t kScenarioVariable[] = L"CORVANE_PLAYER_SCENARIO"; // the scenario's file
constexpr wchar_t kFolderVariable[] = L"CORVANE_PLAYER_FOLDER";     // for the report and all that the scenario writes
constexpr wchar_t kSettingsVariable[] = L"CORVANE_PLAYER_SETTINGS"; // NAME=VALUE, one a line

constexpr wchar_t kReportName[] = L"player.txt"; // in that folder
constexpr wchar_t kMisfitWords[] = L"not for this host: ";

// Whether a setting is for the player: words that a scenario leaves open are in capitals; of the other names, which
// mean something to a stand-in, two do so to the player.
[[nodiscard]] inline bool IsForPlayer(std::string_view setting)
{
    return setting == "patience" || setting == "progress" ||
           std::ranges::none_of(setting, [](char c) { return c >= 'a' && c <= 'z'; });
}

// A value below HKEY_CURRENT_USER; an empty name is the key's default value.
struct RegistryValue
{
    std::wstring key;
    std::wstring name;
    std::variant<std::wstring, std::int32_t> content;
};

// The keys that hold nothing else, for their removal.
[[nodiscard]] inline std::vector<std::wstring> RegistryKeys()
{
    return {std::wstring{L"Software\\Microsoft\\Office\\PowerPoint\\Addins\\"} + kProgId,
            std::wstring{L"Software\\Classes\\"} + kProgId, std::wstring{L"Software\\Classes\\CLSID\\"} + kClassId};
}

// What registers the library of this path for the user. The class's key is one of the library's bitness.
[[nodiscard]] inline std::vector<RegistryValue> RegistryValues(const std::wstring& library)
{
    constexpr std::int32_t kLoadAtStart = 3;
    const auto keys = RegistryKeys();
    return {{keys[2] + L"\\InprocServer32", L"", library},
            {keys[2] + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
            {keys[1] + L"\\CLSID", L"", kClassId},
            {keys[0], L"FriendlyName", L"Corvane scenario player"},
            {keys[0], L"LoadBehavior", kLoadAtStart}};
}

} // namespace corvane::companion
