#include "objects/Collections.h"

namespace host
{

std::size_t ItemPosition(const Variant& index, std::size_t count)
{
    const long position = index.Number();
    if (position < 1 || static_cast<std::size_t>(position) > count)
        throw Error{E_INVALIDARG,
                    {},
                    L"Integer out of range: " + std::to_wstring(position) + L" is not in the valid range of 1 to " +
                        std::to_wstring(count) + L"."};
    return static_cast<std::size_t>(position);
}

ListObject::ListObject(const wchar_t* className, REFIID id, std::vector<ComPtr<IDispatch>> items)
    : AutomationObject{className, id}, m_items{std::move(items)}
{}

std::span<const Member> ListObject::Members() const
{
    static constexpr Member kMembers[] = {
        {0, L"Item", kEither, Answer<&ListObject::Item>},
        {11, L"Count", kGet, Answer<&ListObject::Count>},
    };
    return kMembers;
}

Variant ListObject::Item(const Arguments& arguments)
{
    return Variant{m_items[ItemPosition(arguments.At(0), m_items.size()) - 1].Get()};
}

Variant ListObject::Count(const Arguments&) { return Variant{static_cast<long>(m_items.size())}; }

} // namespace host
