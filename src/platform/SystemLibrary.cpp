#include "platform/SystemLibrary.h"

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

} // namespace corvane
