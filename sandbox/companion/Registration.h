// Under which names a host finds the player. Whoever wants a scenario played writes these values and removes them
// afterwards; the library registers nothing by itself.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace corvane::companion
{

constexpr wchar_t kProgId[] = L"CorvanePlayer.Connect";
constexpr wchar_t kClassId[] = L"{6F4B8E52-0D3A-4C1F-9B77-5A2E9C64D1B8}";

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
