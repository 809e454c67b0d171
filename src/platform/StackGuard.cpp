// What -fstack-protector-strong expects of the run time: the value that guards stack frames, and the end of the process
// when a frame was overwritten. The compiler's own library takes its random value from a provider that has to be
// loaded, which must not happen while a library is being initialised.
#include <windows.h>

#include <cstdint>
#include <initializer_list>

// NOLINTBEGIN(bugprone-reserved-identifier): the compiler fixes both names.
extern "C" {
// Set before any code of ours runs.
std::uintptr_t __stack_chk_guard = 0;

[[noreturn]] void __stack_chk_fail() noexcept
{
    // The platform's fast fail with the code FAST_FAIL_STACK_COOKIE_CHECK_FAILURE: no handler runs on a broken stack.
    constexpr std::uint32_t kCookieCheckFailure = 2;
    asm volatile("int $0x29" : : "c"(kCookieCheckFailure));
    __builtin_unreachable();
}
}

namespace
{

// Times, ids and addresses that differ from one load to the next, mixed until each bit depends on all. Its lowest byte,
// the first in memory, is zero: no text that is copied too far can carry it.
__attribute__((constructor(101), no_stack_protector)) void ChooseStackGuard() noexcept
{
    FILETIME time{};
    ::GetSystemTimeAsFileTime(&time);
    LARGE_INTEGER counter{};
    ::QueryPerformanceCounter(&counter);
    std::uint64_t value = (std::uint64_t{time.dwHighDateTime} << 32U) ^ time.dwLowDateTime;
    for (const std::uint64_t part : {static_cast<std::uint64_t>(counter.QuadPart),
                                     (std::uint64_t{::GetCurrentProcessId()} << 32U) ^ ::GetCurrentThreadId(),
                                     static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&time)),
                                     static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&__stack_chk_guard))})
    {
        value = (value ^ part) * 0x9E3779B97F4A7C15U; // odd, its bits spread evenly
        value ^= value >> 29U;
    }
    __stack_chk_guard = static_cast<std::uintptr_t>(value >> 8U) << 8U;
}

} // namespace
// NOLINTEND(bugprone-reserved-identifier)
