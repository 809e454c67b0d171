#pragma once

#include <vector>

#include "automation/AutomationObject.h"

namespace host
{

// A position from an Item argument, 1 for the first; throws Error when it lies outside 1 to count.
[[nodiscard]] std::size_t ItemPosition(const Variant& index, std::size_t count);

// A fixed list of objects with Count and Item by position.
class ListObject final : public AutomationObject<IDispatch>
{
public:
    ListObject(const wchar_t* className, REFIID id, std::vector<ComPtr<IDispatch>> items);

    [[nodiscard]] std::span<const Member> Members() const override;

private:
    Variant Item(const Arguments& arguments);
    Variant Count(const Arguments&);

    std::vector<ComPtr<IDispatch>> m_items;
};

} // namespace host
