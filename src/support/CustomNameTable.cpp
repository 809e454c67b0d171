#include "support/CustomNameTable.h"

#include "forms/ShownText.h"
#include "support/Conversions.h"

namespace corvane
{

std::wstring KeptValue(const std::wstring& value)
{
    constexpr std::size_t kLongestValue = 1024;
    return ShortenedTo(kLongestValue, value);
}

std::vector<CustomNameRow> KeptRows(const std::vector<CustomNameRow>& rows)
{
    constexpr std::size_t kMostRows = 300;
    constexpr std::size_t kLongestName = 255;
    std::vector<CustomNameRow> kept;
    for (const auto& [token, value] : rows) {
        if (kept.size() == kMostRows) break;
        if (token.size() <= kLongestName) kept.push_back({token, KeptValue(value)});
    }
    return kept;
}

void CustomNameTable::Set(std::wstring_view key, std::wstring_view value) { m_values[ToLower(key)] = value; }

const std::wstring& CustomNameTable::Item(std::wstring_view key) { return m_values[ToLower(key)]; }

std::wstring CustomNameTable::Find(std::wstring_view key) const
{
    const auto entry = m_values.find(ToLower(key));
    return entry == m_values.end() ? std::wstring{} : entry->second;
}

} // namespace corvane
