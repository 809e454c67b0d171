#include "base/Registry.h"

namespace host
{

RegistryKey RegistryKey::Open(HKEY parent, const std::wstring& path)
{
    HKEY key = nullptr;
    ::RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ, &key);
    return RegistryKey{key};
}

RegistryKey RegistryKey::Create(HKEY parent, const std::wstring& path)
{
    HKEY key = nullptr;
    ::RegCreateKeyExW(parent, path.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &key, nullptr);
    return RegistryKey{key};
}

RegistryKey::~RegistryKey()
{
    if (m_key) ::RegCloseKey(m_key);
}

std::vector<std::wstring> RegistryKey::Children() const
{
    std::vector<std::wstring> names;
    wchar_t name[256];
    DWORD length = static_cast<DWORD>(std::size(name));
    while (m_key && ::RegEnumKeyExW(m_key, static_cast<DWORD>(names.size()), name, &length, nullptr, nullptr, nullptr,
                                    nullptr) == ERROR_SUCCESS)
    {
        names.emplace_back(name, length);
        length = static_cast<DWORD>(std::size(name));
    }
    return names;
}

std::wstring RegistryKey::Text(const wchar_t* name) const
{
    DWORD size = 0;
    if (!m_key || ::RegGetValueW(m_key, nullptr, name, RRF_RT_REG_SZ, nullptr, nullptr, &size) != ERROR_SUCCESS)
        return {};
    std::wstring text(size / sizeof(wchar_t), L'\0');
    if (::RegGetValueW(m_key, nullptr, name, RRF_RT_REG_SZ, nullptr, text.data(), &size) != ERROR_SUCCESS) return {};
    return text.c_str(); // up to the closing zero
}

DWORD RegistryKey::Number(const wchar_t* name) const
{
    DWORD number = 0;
    DWORD size = sizeof number;
    if (m_key) ::RegGetValueW(m_key, nullptr, name, RRF_RT_REG_DWORD, nullptr, &number, &size);
    return number;
}

void RegistryKey::SetText(const wchar_t* name, const std::wstring& text)
{
    ::RegSetValueExW(m_key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                     static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void RegistryKey::SetNumber(const wchar_t* name, DWORD number)
{
    ::RegSetValueExW(m_key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), sizeof number);
}

} // namespace host
