// Numbers survive as text, and no text breaks a conversion.
#include "support/Conversions.h"
#include "Input.h"

void Fuzz(Input& input)
{
    using namespace corvane;
    const std::int32_t number = input.Number();
    Require(ToLongSafe(L"  " + std::to_wstring(number) + L" ") == number);
    const std::wstring with = input.Text();
    const std::wstring what = input.Text();
    const std::wstring text = input.Rest();
    const auto value = NumberIn(text);
    if (!value) Require(ToLongSafe(text) == 0);
    if (value) Require(ToBooleanSafe(text) == (*value != 0));
    const std::wstring trimmed = Trim(text);
    Require(Trim(trimmed) == trimmed && (trimmed.empty() || trimmed.front() != L' '));
    Require(EqualIgnoringCase(text, ToLower(text)) && ToLower(ToLower(text)) == ToLower(text));
    if (!what.empty()) Require(ReplaceAll(ReplaceAll(text, what, {}), what, what).size() <= text.size());
    static_cast<void>(ReplaceAll(text, what, with));
    Require(ReplaceAll(EscapeAmpersands(text), L"&&", L"&") == text);
}
