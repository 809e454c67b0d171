#pragma once

#include <string>

#include <windows.h>

namespace host::test
{

// A new folder that is removed with the files in it.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        wchar_t base[MAX_PATH] = L"";
        wchar_t name[MAX_PATH] = L"";
        ::GetTempPathW(MAX_PATH, base);
        ::GetTempFileNameW(base, L"cvh", 0, name);
        ::DeleteFileW(name);
        ::CreateDirectoryW(name, nullptr);
        m_path = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        WIN32_FIND_DATAW data{};
        const HANDLE search = ::FindFirstFileW((m_path + L"\\*").c_str(), &data);
        do {
            ::SetFileAttributesW(File(data.cFileName).c_str(), FILE_ATTRIBUTE_NORMAL);
            ::DeleteFileW(File(data.cFileName).c_str());
        } while (::FindNextFileW(search, &data));
        ::FindClose(search);
        ::RemoveDirectoryW(m_path.c_str());
    }

    [[nodiscard]] const std::wstring& Path() const { return m_path; }
    [[nodiscard]] std::wstring File(const std::wstring& name) const { return m_path + L"\\" + name; }

private:
    std::wstring m_path;
};

} // namespace host::test
