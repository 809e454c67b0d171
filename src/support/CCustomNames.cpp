#include "support/CCustomNames.h"

#include "platform/Error.h"
#include "platform/Procedure.h"
#include "platform/Registry.h"

namespace corvane
{
namespace
{
constexpr const wchar_t* kCacheKey = L"Software\\Halvex\\Corvane\\CustomNames";
} // namespace

std::unique_ptr<CCustomNames> g_oCustomNames;

CCustomNames::CCustomNames(Query query) : m_query{std::move(query)}
{
    const bool cached = Registry::KeyExists(kCacheKey);
    for (const auto& [key, cachedAs] : kCustomNameKeys)
        m_names.Set(key, cached ? KeptValue(Registry::ReadText(kCacheKey, cachedAs).value_or(key)) : key);
}

void CCustomNames::Refresh(const std::wstring& server, const std::wstring& page)
{
    const ProcedureScope scope{L"CCustomNames.Refresh"};
    if (!Registry::KeyExists(kCacheKey)) Registry::CreateKey(kCacheKey);
    for (const auto& [token, value] : KeptRows(m_query(server, page))) {
        m_names.Set(token, value);
        if (Registry::ReadText(kCacheKey, token) != value) Registry::WriteText(kCacheKey, token, value);
    }
    m_refreshed = true;
}

void CCustomNames::RefreshOnce(const std::wstring& server, const std::wstring& page)
{
    if (!m_refreshed) Refresh(server, page);
}

CCustomNames& CustomNames()
{
    if (g_oCustomNames == nullptr) throw ObjectNotSet(L"CustomNames");
    return *g_oCustomNames;
}

std::wstring CustomName(std::wstring_view token) { return CustomNames().GetCustomName(token); }

} // namespace corvane
