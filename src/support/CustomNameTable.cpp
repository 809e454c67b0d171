#include "support/CustomNameTable.h"

#include "support/Conversions.h"

namespace corvane
{

void CustomNameTable::Set(std::wstring_view key, std::wstring_view value) { m_values[ToLower(key)] = value; }

const std::wstring& CustomNameTable::Item(std::wstring_view key) { return m_values[ToLower(key)]; }

std::wstring CustomNameTable::Find(std::wstring_view key) const
{
    const auto entry = m_values.find(ToLower(key));
    return entry == m_values.end() ? std::wstring{} : entry->second;
}

} // namespace corvane
