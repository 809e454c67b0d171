#include "support/ServerList.h"

#include "support/Conversions.h"

#include <algorithm>

namespace corvane
{
namespace
{

constexpr std::int32_t kLongestList = 1000;

using Urls = std::vector<std::wstring>;

bool Contains(const Urls& urls, const std::wstring& url) { return std::ranges::find(urls, url) != urls.end(); }

// Appends those entries that are not yet there and that the condition lets in.
template<class Condition>
void AppendNew(Urls& urls, const Urls& more, Condition&& condition)
{
    for (const std::wstring& url : more)
        if (!Contains(urls, url) && condition(url)) urls.push_back(url);
}

Urls Verified(const Urls& given)
{
    Urls verified;
    for (const std::wstring& url : given)
        if (!Trim(url).empty()) verified.push_back(VerifyServerURL(url));
    return verified;
}

} // namespace

std::size_t ServerCount(std::optional<std::int32_t> policy, std::optional<std::int32_t> user)
{
    return static_cast<std::size_t>(std::clamp(policy.value_or(user.value_or(kDefaultServerCount)), 0, kLongestList));
}

Urls WithPreset(const Urls& urls, const Urls& preset)
{
    const Urls given = Verified(preset);
    if (given.empty()) return urls;
    Urls list;
    AppendNew(list, urls, [&](const std::wstring& url) { return Contains(given, url); });
    AppendNew(list, given, [](const std::wstring&) { return true; });
    const std::size_t length = std::max(list.size(), urls.size());
    AppendNew(list, urls, [&](const std::wstring& url) { return !url.empty() && list.size() < length; });
    list.resize(length);
    return list;
}

void MoveToFront(std::vector<std::wstring>& urls, std::wstring_view url)
{
    if (urls.empty()) return;
    auto last = std::find(urls.begin(), urls.end(), url);
    if (last == urls.end()) last = urls.end() - 1;
    std::move_backward(urls.begin(), last, last + 1);
    urls.front() = url;
}

std::wstring VerifyServerURL(std::wstring_view url)
{
    std::wstring address = ToLower(Trim(url));
    if (address.starts_with(L"https://") || address.starts_with(L"http://")) return address;
    if (address.starts_with(L"//")) return L"http:" + address;
    return L"http://" + address;
}

} // namespace corvane
