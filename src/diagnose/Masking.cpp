#include "diagnose/Masking.h"

#include "support/ServerRules.h"

namespace diagnose
{

std::wstring Masked(std::wstring_view text)
{
    constexpr std::wstring_view kWordEnds = L" \t\r\n\"'<>/";
    std::wstring masked;
    std::size_t word = 0; // where the current one begins
    bool hasColon = false;
    for (const wchar_t letter : corvane::WithoutCredentialsInText(text)) {
        if (letter == L'@' && hasColon) masked.replace(word, std::wstring::npos, L"***");
        masked += letter;
        hasColon = hasColon || letter == L':';
        if (kWordEnds.find(letter) == std::wstring_view::npos) continue;
        word = masked.size();
        hasColon = false;
    }
    return masked;
}

std::wstring MaskedValue(std::wstring_view value)
{
    constexpr std::wstring_view kScheme = L"//";
    return Masked(corvane::WithoutCredentialsInText(std::wstring{kScheme}.append(value)).substr(kScheme.size()));
}

} // namespace diagnose
