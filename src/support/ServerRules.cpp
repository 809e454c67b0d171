#include "support/ServerRules.h"

#include "support/Conversions.h"
#include "support/ServerList.h"

#include <algorithm>
#include <cstdint>

namespace corvane
{
namespace
{

constexpr std::wstring_view kSchemes[] = {L"https://", L"http://"};
constexpr std::wstring_view kAuthorityEnds = L"/\\?#\r\n";
constexpr std::int32_t kLastPort = 65535;

struct LetterRun
{
    std::uint32_t first;
    std::uint32_t last;
};

// What a reader does not see, or sees as a blank: controls, blanks of every kind, marks of direction.
constexpr LetterRun kUnseen[] = {
    {0x0000, 0x0020}, {0x007F, 0x00A0}, {0x00AD, 0x00AD}, {0x034F, 0x034F}, {0x061C, 0x061C},
    {0x115F, 0x1160}, {0x1680, 0x1680}, {0x17B4, 0x17B5}, {0x180B, 0x180F}, {0x2000, 0x200F},
    {0x2028, 0x202F}, {0x205F, 0x206F}, {0x2800, 0x2800}, {0x3000, 0x3000}, {0x3164, 0x3164},
    {0xFE00, 0xFE0F}, {0xFEFF, 0xFEFF}, {0xFFA0, 0xFFA0}, {0xFFF0, 0xFFFF},
};

// What names of hosts are made of. Beyond ASCII that is letters, and none that the system turns into a delimiter.
constexpr LetterRun kHostLetters[] = {
    {L'-', L'.'}, {L'0', L'9'}, {L'A', L'Z'}, {L'_', L'_'}, {L'a', L'z'}, {0x00C0, 0x1FFF}, {0x3040, 0xD7FF},
};

template<std::size_t Count>
bool IsIn(const LetterRun (&runs)[Count], wchar_t letter)
{
    const auto code = static_cast<std::uint32_t>(letter);
    return std::ranges::any_of(runs, [&](const LetterRun& run) { return code >= run.first && code <= run.last; });
}

bool IsUnseen(wchar_t letter) { return IsIn(kUnseen, letter); }

bool IsHostLetter(wchar_t letter) { return IsIn(kHostLetters, letter); }

bool IsDigit(wchar_t letter) { return letter >= L'0' && letter <= L'9'; }

// An address of version 6, without its brackets.
bool IsNumericHost(std::wstring_view host)
{
    return std::ranges::count(host, L':') > 1 && std::ranges::all_of(host, [](wchar_t letter) {
               return IsDigit(letter) || letter == L':' || letter == L'.' || (letter >= L'A' && letter <= L'F') ||
                      (letter >= L'a' && letter <= L'f');
           });
}

bool IsHost(std::wstring_view host)
{
    if (host.starts_with(L'[') && host.ends_with(L']')) return IsNumericHost(host.substr(1, host.size() - 2));
    return !host.empty() && std::ranges::all_of(host, IsHostLetter);
}

bool IsPort(std::wstring_view port)
{
    constexpr std::size_t kMostDigits = 5;
    if (port.size() > kMostDigits || !std::ranges::all_of(port, IsDigit)) return false;
    const std::int32_t number = ToLongSafe(port); // 0 for no text
    return number >= 1 && number <= kLastPort;
}

// "host" or "host:port"; the colons of version 6 stand in brackets.
bool IsAuthority(std::wstring_view authority)
{
    const std::size_t colon = authority.find(L':', authority.starts_with(L'[') ? authority.find(L']') : 0);
    return IsHost(authority.substr(0, colon)) &&
           (colon == std::wstring_view::npos || IsPort(authority.substr(colon + 1)));
}

// How much of an address is its scheme with both slashes; 0 when it is none of ours.
std::size_t SchemeLength(std::wstring_view address)
{
    const auto scheme = std::ranges::find_if(
        kSchemes, [&](std::wstring_view known) { return EqualIgnoringCase(address.substr(0, known.size()), known); });
    return scheme == std::end(kSchemes) ? 0 : scheme->size();
}

bool IsEncrypted(std::wstring_view address) { return SchemeLength(address) == kSchemes[0].size(); }

// Appends all up to two slashes, and of the host and port behind them what follows an "@", with the mark in place of
// the rest. Returns what is left of the text.
std::wstring_view AppendAuthority(std::wstring& clean, std::wstring_view text, std::wstring_view mark)
{
    constexpr std::wstring_view kSlashes = L"//";
    const std::size_t slashes = text.find(kSlashes);
    const std::size_t begin = slashes == std::wstring_view::npos ? text.size() : slashes + kSlashes.size();
    clean += text.substr(0, begin);
    text.remove_prefix(begin);
    const std::wstring_view authority = text.substr(0, text.find_first_of(kAuthorityEnds));
    const std::size_t at = authority.rfind(L'@');
    if (at == std::wstring_view::npos)
        clean += authority;
    else
        clean.append(mark).append(authority.substr(at + 1));
    return text.substr(authority.size());
}

// What two addresses of one server have in common.
std::wstring Comparable(std::wstring_view address)
{
    std::wstring comparable = WithoutCredentials(VerifyServerURL(address));
    if (comparable.ends_with(L'/')) comparable.pop_back();
    return comparable;
}

bool IsOffered(std::wstring_view address, const ServerPolicy& policy)
{
    return std::ranges::any_of(policy.offered, [wanted = Comparable(address)](const std::wstring& offered) {
        return !Trim(offered).empty() && Comparable(offered) == wanted;
    });
}

ServerRefusal RefusalOf(std::wstring_view address, const ServerPolicy& policy)
{
    if (policy.requireHttps && !IsEncrypted(address)) return ServerRefusal::NotEncrypted;
    return policy.offeredOnly && !IsOffered(address, policy) ? ServerRefusal::NotOffered : ServerRefusal::None;
}

} // namespace

std::wstring DocumentServer(std::wstring_view text)
{
    constexpr std::wstring_view kForeign = L"?#\\";
    const std::size_t begin = SchemeLength(text);
    if (begin == 0 || text.find_first_of(kForeign) != std::wstring_view::npos || std::ranges::any_of(text, IsUnseen))
        return {};
    const std::wstring_view authority = text.substr(begin, text.find(L'/', begin) - begin);
    return IsAuthority(authority) ? std::wstring{text} : std::wstring{};
}

std::wstring WithoutCredentials(std::wstring_view address)
{
    std::wstring clean;
    const std::wstring_view rest = AppendAuthority(clean, address, {});
    return clean.append(rest);
}

std::wstring WithoutCredentialsInText(std::wstring_view text)
{
    std::wstring clean;
    while (!text.empty())
        text = AppendAuthority(clean, text, L"***@");
    return clean;
}

std::wstring Renamed(std::wstring_view address, const std::vector<std::wstring>& renames)
{
    if (address.empty()) return {};
    const std::wstring wanted = Comparable(address);
    for (const std::wstring_view rename : renames) {
        const std::size_t sign = rename.find(L'=');
        if (sign == std::wstring_view::npos || Trim(rename.substr(0, sign)).empty()) continue;
        std::wstring renamed = DocumentServer(VerifyServerURL(rename.substr(sign + 1)));
        if (!renamed.empty() && Comparable(rename.substr(0, sign)) == wanted) return renamed;
    }
    return std::wstring{address};
}

ServerDecision DecideServer(std::wstring_view address, const ServerPolicy& policy)
{
    if (address.empty()) return {};
    std::wstring renamed = Renamed(address, policy.renames);
    const ServerRefusal refusal = RefusalOf(renamed, policy);
    return {std::move(renamed), refusal};
}

std::wstring RefusalText(const ServerDecision& decision)
{
    const bool lacksHttps = decision.refusal == ServerRefusal::NotEncrypted;
    return L"The server " + WithoutCredentials(decision.address) + L" cannot be used because your administrator " +
           (lacksHttps ? L"allows only addresses that begin with https://.\r\n\r\nPlease change the address or ask "
                         L"your administrator."
                       : L"allows only certain servers.\r\n\r\nPlease choose one from the list or ask your "
                         L"administrator.");
}

std::vector<std::wstring> RememberedServers(const std::vector<std::wstring>& urls,
                                            const std::vector<std::wstring>& renames)
{
    std::vector<std::wstring> kept;
    for (const std::wstring& url : urls) {
        std::wstring text = Renamed(WithoutCredentials(url), renames);
        const auto same = std::ranges::find(kept, text);
        const bool isNew = same == kept.end();
        const bool wereTwo = isNew || urls[static_cast<std::size_t>(same - kept.begin())] != url;
        kept.push_back(isNew || !wereTwo ? std::move(text) : std::wstring{});
    }
    return kept;
}

std::vector<std::wstring> WithoutRefused(std::vector<std::wstring> urls, const ServerPolicy& policy)
{
    std::erase_if(urls,
                  [&](const std::wstring& url) { return DecideServer(url, policy).refusal != ServerRefusal::None; });
    return urls;
}

} // namespace corvane
