#include "shared/SaveReply.h"

#include "shared/HostTraits.h"
#include "support/Conversions.h"

namespace corvane
{
namespace
{

struct Prefix
{
    std::wstring_view text;
    ReplyKind kind;
};
constexpr Prefix kPrefixes[] = {{L"CancelMessage:", ReplyKind::Cancelled}, {L"BrokenLinks:", ReplyKind::BrokenLinks}};

} // namespace

SaveReply ReadSaveReply(std::wstring_view answer)
{
    for (const auto& [prefix, kind] : kPrefixes) {
        if (answer.starts_with(prefix) && answer.size() > prefix.size())
            return {kind, std::wstring{answer.substr(prefix.size())}};
    }
    return {};
}

bool WantsClientEvents(const ClientEventFacts& facts)
{
    if (facts.doEvents) return ToBooleanSafe(*facts.doEvents);
    return facts.host == nullptr || facts.hostVersion != facts.host->versionWithoutMacros;
}

} // namespace corvane
