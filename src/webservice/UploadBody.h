// The body of an upload, and the decision when a file on disk is ready for it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace corvane
{

// The same boundary for every upload; it is not checked against the file.
inline constexpr std::wstring_view kUploadBoundary = L"---------------------------998284F0-10C0-4D3B-8D1C-22EAA672A15D";

// What stands before and after the file's bytes, as UTF-8. The upload name goes in as it is.
[[nodiscard]] std::string UploadHeader(std::wstring_view uploadName);
[[nodiscard]] std::string UploadTrailer();

// One attempt to read a file that its writer may not have finished.
struct ReadAttempt
{
    std::uint64_t length = 0;      // when the attempt began
    std::uint64_t lengthAfter = 0; // when the bytes were read
    bool allZero = true;           // every byte read was 0
};

// A file still being written shows as empty, as zeros, or by growing.
[[nodiscard]] constexpr bool IsComplete(const ReadAttempt& attempt) noexcept
{
    return attempt.length != 0 && !attempt.allZero && attempt.length == attempt.lengthAfter;
}

inline constexpr int kReadAttempts = 6;

// True when every byte is 0, also when there is none.
[[nodiscard]] bool AllZero(std::span<const std::byte> bytes) noexcept;

} // namespace corvane
