#include "support/CMRUServers.h"

#include "platform/Procedure.h"
#include "platform/Registry.h"
#include "support/Policy.h"
#include "support/ServerList.h"

namespace corvane
{
namespace
{
constexpr const wchar_t* kListKey = L"Software\\Halvex\\Corvane\\ServerURLMRU";

std::wstring ValueName(std::size_t index) { return L"MRUServerURL" + std::to_wstring(index + 1); }
} // namespace

CMRUServers::CMRUServers() : m_policy{ReadServerPolicy()}
{
    const ProcedureScope scope{L"CMRUServers.Class_Initialize"};
    m_urls.resize(ServerCount(Policy::Number(L"ServerURLCount"), Registry::ReadNumber(kListKey, L"MRUServerURLCount")));
    for (std::size_t index = 0; index < m_urls.size(); ++index)
        m_urls[index] = Registry::ReadText(kListKey, ValueName(index)).value_or(L"");
    m_urls = RememberedServers(m_urls, m_policy.renames);
}

std::vector<std::wstring> CMRUServers::GetURLs() const
{
    const ProcedureScope scope{L"CMRUServers.GetURLs"};
    return WithoutRefused(WithPreset(m_urls, m_policy.offered), m_policy);
}

void CMRUServers::AddURL(const std::wstring& url)
{
    const ProcedureScope scope{L"CMRUServers.AddURL"};
    MoveToFront(m_urls, WithoutCredentials(url));
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
