#include "diagnose/OfficeRules.h"

#include "support/Conversions.h"

namespace diagnose
{
namespace
{

bool IsAddIn(std::wstring_view text)
{
    const std::wstring_view file = text.substr(text.find_last_of(L"\\/") + 1);
    return corvane::EqualIgnoringCase(text, kProgId) || corvane::EqualIgnoringCase(file, kLibraryName);
}

} // namespace

bool NamesAddIn(std::wstring_view value, std::span<const std::byte> data)
{
    if (IsAddIn(value)) return true;
    std::wstring text;
    for (std::size_t at = 0; at + 1 < data.size(); at += 2) {
        const auto unit = std::to_integer<unsigned>(data[at]) | std::to_integer<unsigned>(data[at + 1]) << 8U;
        if (unit != 0) {
            text += static_cast<wchar_t>(unit);
            continue;
        }
        if (IsAddIn(text)) return true;
        text.clear();
    }
    return IsAddIn(text);
}

bool IsBlockingList(std::wstring_view list)
{
    return corvane::EqualIgnoringCase(list, L"DisabledItems") || corvane::EqualIgnoringCase(list, L"CrashingAddinList");
}

std::optional<OfficeEntry> ManagedEntry(const std::wstring& whose, const std::optional<std::wstring>& listed,
                                        bool isRestricted)
{
    if (!listed && !isRestricted) return std::nullopt;
    const std::wstring said = listed ? *listed : L"(not listed), RestrictToList = 1";
    return OfficeEntry{.where = whose + L", Resiliency\\AddinList = " + said,
                       .blocks = !listed || *listed == L"0",
                       .key = {},
                       .value = {}};
}

} // namespace diagnose
