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
constexpr wchar_t kLeftWords[] = L"left running: "; // and why
constexpr wchar_t kOthersWords[] = L"a presentation is open that somebody else has opened";
constexpr wchar_t kNewNameWords[] = L"a new presentation is called: "; // without its number
constexpr wchar_t kStopName[] =
    L"stop"; // a file that is put into the folder to have the scenario fail and the host quit

// What scenarios call a new presentation, with a number behind. Each language has another word.
constexpr wchar_t kNewName[] = L"Presentation";

// The text with another word for a new presentation.
template<class Text>
[[nodiscard]] Text Renamed(Text text, const Text& from, const Text& to)
{
    for (auto at = text.find(from); at != Text::npos; at = text.find(from, at + 1))
        if (const auto end = at + from.size(); end < text.size() && text[end] >= '0' && text[end] <= '9')
            text.replace(at, from.size(), to);
    return text;
}

// Of the names that mean something to a stand-in, those of documents that the object model makes alike, and those that
// the player knows itself.
[[nodiscard]] inline bool IsForDocuments(std::string_view setting)
{
    return setting == "author" || setting == "document.readonly";
}

// Whether a setting is for the player; words that a scenario leaves open are in capitals.
[[nodiscard]] inline bool IsForPlayer(std::string_view setting)
{
    return setting == "patience" || setting == "progress" || IsForDocuments(setting) ||
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
