#include "player/Usage.h"

#include <windows.h>

#include <cstring>
#include <psapi.h>

#include "player/Screen.h"

namespace corvane::player
{
namespace
{

std::size_t PrivateKilobytes()
{
    PROCESS_MEMORY_COUNTERS counters{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage / 1024;
}

// Asks for each possible handle: not every system tells their number.
std::size_t KernelHandles()
{
    constexpr std::size_t kLast = 0x8000;
    std::size_t count = 0;
    for (std::size_t handle = 4; handle < kLast; handle += 4) {
        DWORD flags = 0;
        if (::GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags)) ++count;
    }
    return count;
}

// The entries in use of the table that GDI shares with its processes; its address is a member of the process block.
std::size_t GdiObjects()
{
    if (const DWORD told = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS)) return told;
    constexpr std::size_t kTableOffset = sizeof(void*) == 8 ? 0xF8 : 0x94;
    constexpr std::size_t kEntrySize = 24;
    constexpr std::size_t kTypeOffset = 14;
    constexpr std::size_t kEntries = 0x4000;
    const auto processBlock = reinterpret_cast<const char*(WINAPI*)()>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlGetCurrentPeb")));
    const char* table = nullptr;
    if (processBlock != nullptr) std::memcpy(&table, processBlock() + kTableOffset, sizeof table);
    std::size_t count = 0;
    for (std::size_t at = 0; table != nullptr && at < kEntries; ++at)
        count += table[at * kEntrySize + kTypeOffset] != 0 ? 1 : 0;
    return count;
}

std::size_t Windows()
{
    std::size_t count = 0;
    for (HWND window : OwnWindows())
        count += 1 + ChildrenOf(window).size();
    for (HWND hidden = nullptr; (hidden = ::FindWindowExW(HWND_MESSAGE, hidden, nullptr, nullptr)) != nullptr;)
        count += IsOwn(hidden) ? 1 : 0;
    return count;
}

} // namespace

Usage MeasureUsage() { return {PrivateKilobytes(), KernelHandles(), GdiObjects(), Windows()}; }

std::wstring DescribeUsage(const Usage& usage)
{
    return std::to_wstring(usage.kilobytes) + L" KiB private, " + std::to_wstring(usage.handles) + L" handles, " +
           std::to_wstring(usage.gdi) + L" GDI objects, " + std::to_wstring(usage.windows) + L" windows";
}

bool IsLevel(const Usage& before, const Usage& now)
{
    constexpr std::size_t kSlack = 1024; // KiB
    constexpr std::size_t kMore = 8;
    return now.kilobytes <= before.kilobytes + kSlack && now.handles <= before.handles + kMore &&
           now.gdi <= before.gdi + kMore && now.windows <= before.windows;
}

} // namespace corvane::player
