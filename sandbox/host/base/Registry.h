#pragma once

#include <string>
#include <utility>
#include <vector>

#include <windows.h>

namespace host
{

// Owns an open registry key.
class RegistryKey
{
public:
    // Opens the key to read, or to write and create it; a key that cannot be opened answers as an empty one.
    static RegistryKey Open(HKEY parent, const std::wstring& path);
    static RegistryKey Create(HKEY parent, const std::wstring& path);

    RegistryKey(RegistryKey&& other) noexcept : m_key{std::exchange(other.m_key, nullptr)} {}
    RegistryKey& operator=(RegistryKey other) noexcept
    {
        std::swap(m_key, other.m_key);
        return *this;
    }
    ~RegistryKey();

    [[nodiscard]] HKEY Get() const { return m_key; }
    [[nodiscard]] std::vector<std::wstring> Children() const;
    [[nodiscard]] std::wstring Text(const wchar_t* name) const;
    [[nodiscard]] DWORD Number(const wchar_t* name) const;
    void SetText(const wchar_t* name, const std::wstring& text);
    void SetNumber(const wchar_t* name, DWORD number);

private:
    explicit RegistryKey(HKEY key) : m_key{key} {}

    HKEY m_key;
};

} // namespace host
