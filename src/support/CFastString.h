// Builds a long string from many small pieces without copying the growing result at each step.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane
{

// Collects pieces and joins them once. It is filled once and read once: after ToString an Append throws Error number 9
// (subscript out of range), unless the number of pieces is a multiple of 1000 and the next block begins anyway.
class CFastString
{
public:
    CFastString();

    // The number of pieces appended.
    [[nodiscard]] std::int32_t Chunks() const noexcept { return m_count; }

    // The pieces joined with delimiter between them; nothing when no piece was appended.
    [[nodiscard]] std::optional<std::wstring> ToString(std::wstring_view delimiter = {});

    void Append(std::wstring_view piece);

private:
    std::vector<std::wstring> m_chunks;
    std::int32_t m_count = 0;
};

} // namespace corvane
