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

const Member ListObject::kMembers[] = {
    {0, L"Item", kEither, Answer<[](const ListObject& list, const Arguments& arguments) {
         return list.m_items[ItemPosition(arguments.At(0), list.m_items.size()) - 1];
     }>},
    {11, L"Count", kGet, Answer<[](const ListObject& list) { return static_cast<long>(list.m_items.size()); }>},
};

} // namespace host
