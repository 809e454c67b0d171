#include "platform/Registry.h"

#include "platform/HResult.h"
#include "platform/Owners.h"

#include <shlwapi.h>

#include <array>

namespace corvane::Registry
{
namespace
{

HKEY RootOf(Hive hive) noexcept
{
    if (hive == Hive::Classes) return HKEY_CLASSES_ROOT;
    return hive == Hive::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

UniqueRegistryKey OpenKey(const std::wstring& key, Place place) noexcept
{
    constexpr REGSAM kViews[] = {0, KEY_WOW64_32KEY, KEY_WOW64_64KEY};
    UniqueRegistryKey opened;
    ::RegOpenKeyExW(RootOf(place.hive), key.c_str(), 0, KEY_READ | kViews[static_cast<std::size_t>(place.view)],
                    opened.Put());
    return opened;
}

// The names that one of the registry's enumerations gives.
template<class Enumeration>
std::vector<std::wstring> Names(const UniqueRegistryKey& key, Enumeration enumerate)
{
    std::vector<std::wstring> names;
    std::array<wchar_t, 16384> name{}; // the registry's longest value name, and its closing zero
    auto length = static_cast<DWORD>(name.size());
    while (key && enumerate(key.Get(), static_cast<DWORD>(names.size()), name.data(), &length, nullptr, nullptr,
                            nullptr, nullptr) == ERROR_SUCCESS)
    {
        names.emplace_back(name.data(), length);
        length = static_cast<DWORD>(name.size());
    }
    return names;
}

UniqueRegistryKey OpenOrCreate(const std::wstring& key, Hive hive = Hive::User)
{
    UniqueRegistryKey opened;
    const LSTATUS status = ::RegCreateKeyExW(RootOf(hive), key.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr,
                                             opened.Put(), nullptr);
    Check(HRESULT_FROM_WIN32(static_cast<unsigned long>(status)), L"Registry.OpenOrCreate");
    return opened;
}

void Write(const UniqueRegistryKey& key, const std::wstring& name, DWORD type, const void* data, std::size_t size)
{
    const LSTATUS status = ::RegSetValueExW(key.Get(), name.empty() ? nullptr : name.c_str(), 0, type,
                                            static_cast<const BYTE*>(data), static_cast<DWORD>(size));
    Check(HRESULT_FROM_WIN32(static_cast<unsigned long>(status)), L"Registry.Write");
}

} // namespace

bool KeyExists(const std::wstring& key, Place place) noexcept { return static_cast<bool>(OpenKey(key, place)); }

void CreateKey(const std::wstring& key) { static_cast<void>(OpenOrCreate(key)); }

std::optional<std::wstring> ReadText(const std::wstring& key, const std::wstring& name, Place place)
{
    const UniqueRegistryKey opened = OpenKey(key, place);
    DWORD size = 0;
    constexpr DWORD kTexts = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
    if (!opened ||
        ::RegGetValueW(opened.Get(), nullptr, name.c_str(), kTexts, nullptr, nullptr, &size) != ERROR_SUCCESS)
        return std::nullopt;
    std::wstring text(size / sizeof(wchar_t) + 1, L'\0');
    size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    if (::RegGetValueW(opened.Get(), nullptr, name.c_str(), kTexts, nullptr, text.data(), &size) != ERROR_SUCCESS)
        return std::nullopt;
    text.resize(text.find(L'\0'));
    return text;
}

std::optional<std::int32_t> ReadNumber(const std::wstring& key, const std::wstring& name, Place place) noexcept
{
    const UniqueRegistryKey opened = OpenKey(key, place);
    std::int32_t number = 0;
    DWORD size = sizeof number;
    if (!opened ||
        ::RegGetValueW(opened.Get(), nullptr, name.c_str(), RRF_RT_REG_DWORD, nullptr, &number, &size) != ERROR_SUCCESS)
        return std::nullopt;
    return number;
}

std::vector<std::wstring> KeyNames(const std::wstring& key, Place place)
{
    return Names(OpenKey(key, place), ::RegEnumKeyExW);
}

std::vector<std::wstring> ValueNames(const std::wstring& key, Place place)
{
    return Names(OpenKey(key, place), ::RegEnumValueW);
}

std::vector<std::byte> ReadBytes(const std::wstring& key, const std::wstring& name, Place place)
{
    const UniqueRegistryKey opened = OpenKey(key, place);
    DWORD size = 0;
    if (!opened || ::RegQueryValueExW(opened.Get(), name.c_str(), nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS)
        return {};
    std::vector<std::byte> bytes(size);
    auto* const into = reinterpret_cast<BYTE*>(bytes.data());
    if (::RegQueryValueExW(opened.Get(), name.c_str(), nullptr, nullptr, into, &size) != ERROR_SUCCESS) return {};
    bytes.resize(size);
    return bytes;
}

void WriteText(const std::wstring& key, const std::wstring& name, const std::wstring& text, Hive hive)
{
    Write(OpenOrCreate(key, hive), name, REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}

void WriteNumber(const std::wstring& key, const std::wstring& name, std::int32_t number)
{
    Write(OpenOrCreate(key), name, REG_DWORD, &number, sizeof number);
}

void DeleteTree(const std::wstring& key, Hive hive) noexcept { ::SHDeleteKeyW(RootOf(hive), key.c_str()); }

void DeleteValue(const std::wstring& key, const std::wstring& name, Hive hive) noexcept
{
    ::RegDeleteKeyValueW(RootOf(hive), key.c_str(), name.c_str());
}

} // namespace corvane::Registry
