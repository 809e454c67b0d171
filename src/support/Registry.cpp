#include "support/Registry.h"

#include "platform/HResult.h"
#include "platform/Owners.h"

#include <shlwapi.h>

namespace corvane::Registry
{
namespace
{

UniqueRegistryKey OpenKey(const std::wstring& key) noexcept
{
    UniqueRegistryKey opened;
    ::RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, opened.Put());
    return opened;
}

UniqueRegistryKey OpenOrCreate(const std::wstring& key)
{
    UniqueRegistryKey opened;
    const LSTATUS status = ::RegCreateKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE,
                                             nullptr, opened.Put(), nullptr);
    Check(HRESULT_FROM_WIN32(static_cast<unsigned long>(status)), L"Registry");
    return opened;
}

void Write(const std::wstring& key, const std::wstring& name, DWORD type, const void* data, std::size_t size)
{
    const LSTATUS status = ::RegSetValueExW(OpenOrCreate(key).Get(), name.empty() ? nullptr : name.c_str(), 0, type,
                                            static_cast<const BYTE*>(data), static_cast<DWORD>(size));
    Check(HRESULT_FROM_WIN32(static_cast<unsigned long>(status)), L"Registry");
}

} // namespace

bool KeyExists(const std::wstring& key) noexcept { return static_cast<bool>(OpenKey(key)); }

void CreateKey(const std::wstring& key) { static_cast<void>(OpenOrCreate(key)); }

std::optional<std::wstring> ReadText(const std::wstring& key, const std::wstring& name)
{
    const UniqueRegistryKey opened = OpenKey(key);
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

std::optional<std::int32_t> ReadNumber(const std::wstring& key, const std::wstring& name) noexcept
{
    const UniqueRegistryKey opened = OpenKey(key);
    std::int32_t number = 0;
    DWORD size = sizeof number;
    if (!opened ||
        ::RegGetValueW(opened.Get(), nullptr, name.c_str(), RRF_RT_REG_DWORD, nullptr, &number, &size) != ERROR_SUCCESS)
        return std::nullopt;
    return number;
}

void WriteText(const std::wstring& key, const std::wstring& name, const std::wstring& text)
{
    Write(key, name, REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}

void WriteNumber(const std::wstring& key, const std::wstring& name, std::int32_t number)
{
    Write(key, name, REG_DWORD, &number, sizeof number);
}

void DeleteTree(const std::wstring& key) noexcept { ::SHDeleteKeyW(HKEY_CURRENT_USER, key.c_str()); }

} // namespace corvane::Registry
