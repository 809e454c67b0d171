#include "platform/LongPath.h"

#include <algorithm>

namespace corvane
{

std::wstring AsLongPath(const std::wstring& path)
{
    // MAX_PATH less the room that the system keeps for a short name in a folder.
    constexpr std::size_t kClassicLimit = 248;
    if (path.size() < kClassicLimit || path.starts_with(L"\\\\?\\")) return path;
    std::wstring plain = path;
    std::replace(plain.begin(), plain.end(), L'/', L'\\'); // the long form knows no other separator
    if (plain.starts_with(L"\\\\")) return L"\\\\?\\UNC" + plain.substr(1);
    return plain.size() > 2 && plain[1] == L':' ? L"\\\\?\\" + plain : path;
}

} // namespace corvane
