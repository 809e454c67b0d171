#include "platform/SystemLibrary.h"

#include "platform/HResult.h"

#include <string>
#include <string_view>

namespace corvane
{

HMODULE LoadSystemLibrary(const wchar_t* name) noexcept
{
    wchar_t path[MAX_PATH] = L"";
    const UINT length = ::GetSystemDirectoryW(path, MAX_PATH);
    if (length == 0 || length + 1 + static_cast<UINT>(::lstrlenW(name)) >= MAX_PATH) return nullptr;
    ::lstrcatW(path, L"\\");
    ::lstrcatW(path, name);
    // What it needs itself is looked for beside it first.
    return ::LoadLibraryExW(path, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

void SearchSystemFolderOnly() noexcept
{
    using Set = BOOL(WINAPI*)(DWORD folders);
    const FARPROC found = ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories");
    const auto set = reinterpret_cast<Set>(reinterpret_cast<void*>(found));
    if (set == nullptr || set(LOAD_LIBRARY_SEARCH_SYSTEM32) == FALSE) ::SetDllDirectoryW(L"");
}

SystemFunction::SystemFunction(const wchar_t* library, const char* name)
{
    const std::string_view source{name};
    const HMODULE module = LoadSystemLibrary(library);
    if (module != nullptr) m_address = ::GetProcAddress(module, name);
    CheckWin32(m_address != nullptr, std::wstring{source.begin(), source.end()});
}

} // namespace corvane
