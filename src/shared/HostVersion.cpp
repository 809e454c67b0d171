#include "shared/HostVersion.h"

#include <algorithm>

namespace corvane
{

int MajorVersion(std::wstring_view version) noexcept
{
    constexpr int kLargest = 10000;
    version.remove_prefix(std::min(version.find_first_not_of(L" \t"), version.size()));
    int number = 0;
    for (const wchar_t letter : version) {
        if (letter < L'0' || letter > L'9' || number > kLargest) break;
        number = number * 10 + (letter - L'0');
    }
    return number;
}

} // namespace corvane
