#include "support/CFastString.h"

#include "platform/Error.h"

#include <numeric>

namespace corvane
{
namespace
{
constexpr std::int32_t kBlock = 1000;
}

CFastString::CFastString() : m_chunks(kBlock + 1) {}

void CFastString::Append(std::wstring_view piece)
{
    if (m_count % kBlock == 0) m_chunks.resize(static_cast<std::size_t>((m_count / kBlock + 1) * kBlock) + 1);
    const auto index = static_cast<std::size_t>(m_count);
    if (index >= m_chunks.size())
        throw Error{kErrorSubscriptOutOfRange, L"CFastString.Append", L"Subscript out of range"};
    m_chunks[index] = piece;
    ++m_count;
}

std::optional<std::wstring> CFastString::ToString(std::wstring_view delimiter)
{
    if (m_count == 0) return std::nullopt;
    m_chunks.resize(static_cast<std::size_t>(m_count));
    std::wstring joined;
    joined.reserve(std::accumulate(m_chunks.begin(), m_chunks.end(), delimiter.size() * (m_chunks.size() - 1),
                                   [](std::size_t sum, const std::wstring& piece) { return sum + piece.size(); }));
    for (const std::wstring& piece : m_chunks) {
        if (&piece != &m_chunks.front()) joined += delimiter;
        joined += piece;
    }
    return joined;
}

} // namespace corvane
