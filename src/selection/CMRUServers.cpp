#include "selection/CMRUServers.h"

#include "platform/Procedure.h"
#include "selection/ServerList.h"
#include "support/Registry.h"

#include <algorithm>

namespace corvane
{
namespace
{
constexpr const wchar_t* kListKey = L"Software\\Halvex\\Corvane\\ServerURLMRU";

// A list of any length that somebody wrote into the registry stays one that a person could scroll.
constexpr std::int32_t kLongestList = 1000;

std::wstring ValueName(std::size_t index) { return L"MRUServerURL" + std::to_wstring(index + 1); }
} // namespace

CMRUServers::CMRUServers() : m_urls(kDefaultServerCount)
{
    const ProcedureScope scope{L"CMRUServers.Class_Initialize"};
    if (!Registry::KeyExists(kListKey)) return;
    if (const auto count = Registry::ReadNumber(kListKey, L"MRUServerURLCount"))
        m_urls.resize(static_cast<std::size_t>(std::clamp(*count, 0, kLongestList)));
    for (std::size_t index = 0; index < m_urls.size(); ++index)
        m_urls[index] = Registry::ReadText(kListKey, ValueName(index)).value_or(L"");
}

void CMRUServers::AddURL(const std::wstring& url)
{
    const ProcedureScope scope{L"CMRUServers.AddURL"};
    MoveToFront(m_urls, url);
}

void CMRUServers::SaveURLs() const
{
    const ProcedureScope scope{L"CMRUServers.SaveURLs"};
    if (!Registry::KeyExists(kListKey)) Registry::CreateKey(kListKey);
    for (std::size_t index = 0; index < m_urls.size(); ++index)
        Registry::WriteText(kListKey, ValueName(index), m_urls[index]);
}

std::wstring CMRUServers::VerifyURL(const std::wstring& url) const
{
    const ProcedureScope scope{L"CMRUServers.VerifyURL"};
    return VerifyServerURL(url);
}

} // namespace corvane
