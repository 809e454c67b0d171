#pragma once

#include <string>

#include <windows.h>

namespace host::test
{

// A new folder that is removed with all that is in it, paths of any length too.
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
    ~TemporaryFolder() { Remove(L"\\\\?\\" + m_path); }

    [[nodiscard]] const std::wstring& Path() const { return m_path; }
    [[nodiscard]] std::wstring File(const std::wstring& name) const { return m_path + L"\\" + name; }

private:
    static void Remove(const std::wstring& folder)
    {
        WIN32_FIND_DATAW data{};
        const HANDLE search = ::FindFirstFileW((folder + L"\\*").c_str(), &data);
        do {
            const std::wstring name = data.cFileName;
            const std::wstring path = folder + L"\\" + name;
            if (name == L"." || name == L"..") continue;
            if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
                Remove(path);
            } else {
                ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
                ::DeleteFileW(path.c_str());
            }
        } while (::FindNextFileW(search, &data));
        ::FindClose(search);
        ::RemoveDirectoryW(folder.c_str());
    }

    std::wstring m_path;
};

} // namespace host::test
