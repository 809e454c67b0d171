#include "base/Text.h"

#include <windows.h>

namespace host
{

bool SameText(std::wstring_view a, std::wstring_view b)
{
    return ::CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(), static_cast<int>(b.size()), TRUE) ==
           CSTR_EQUAL;
}

std::wstring WithoutMark(std::wstring caption)
{
    for (std::size_t at = caption.find(L'&'); at != std::wstring::npos; at = caption.find(L'&', at + 1))
        caption.erase(at, 1); // the letter behind it stays, also where it is a second mark
    return caption;
}

} // namespace host
