#include "selection/ServerList.h"

#include "support/Conversions.h"

#include <algorithm>

namespace corvane
{

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
