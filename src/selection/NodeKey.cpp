#include "selection/NodeKey.h"

#include "support/Conversions.h"

namespace corvane
{
namespace
{

// The digits behind a marker in a key; nothing when the marker is not in it.
std::optional<std::int32_t> IdBehind(std::wstring_view key, std::wstring_view marker)
{
    const auto position = key.find(marker);
    if (position == std::wstring_view::npos) return std::nullopt;
    const auto digits = key.substr(position + marker.size());
    return ToLongSafe(digits.substr(0, digits.find_first_not_of(L"0123456789")));
}

} // namespace

std::wstring NodeKey(std::wstring_view parentKey, const TreeLevel& level, std::wstring_view id)
{
    std::wstring key;
    const std::wstring_view marker = level.marker;
    key.reserve(parentKey.size() + marker.size() + id.size()); // there are tens of thousands of them
    return key.append(parentKey).append(marker).append(id);
}

std::optional<Target> TargetOfKey(TreeMode mode, std::wstring_view key)
{
    Target target;
    bool isTarget = false;
    for (const TreeLevel& level : TreeKindOf(mode).levels) {
        const auto id = level.id == nullptr ? std::nullopt : IdBehind(key, level.marker);
        if (!id) continue;
        target.*level.id = *id;
        isTarget = isTarget || level.isTarget;
    }
    return isTarget ? std::optional{target} : std::nullopt;
}

} // namespace corvane
