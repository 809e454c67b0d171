// What the collections of the host have in common.
#pragma once

#include "automation/AutomationObject.h"

#include <algorithm>
#include <vector>

namespace host
{

// A position from an Item argument, 1 for the first; throws Error when it lies outside 1 to count.
[[nodiscard]] std::size_t ItemPosition(const Variant& index, std::size_t count);

// The item of this position or name, without regard to case; throws Error when there is none.
template<class Items, class NameOf>
[[nodiscard]] auto ItemOf(const Items& items, const Variant& index, NameOf&& nameOf)
{
    if (index.Type() != VT_BSTR) return items[ItemPosition(index, items.size()) - 1];
    const std::wstring name = index.Text();
    const auto found = std::ranges::find_if(items, [&](const auto& item) { return SameText(nameOf(item), name); });
    if (found == items.end()) throw Error{E_INVALIDARG, {}, L"There is no " + name + L" here."};
    return *found;
}

// A fixed list of objects with Count and Item by position.
class ListObject final : public AutomationObject<IDispatch>
{
public:
    ListObject(const wchar_t* className, REFIID id, std::vector<ComPtr<IDispatch>> items)
        : AutomationObject{className, kMembers, id}, m_items{std::move(items)}
    {}

private:
    static const Member kMembers[2];

    std::vector<ComPtr<IDispatch>> m_items;
};

} // namespace host
