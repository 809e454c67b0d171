// A date that is read is one of the calendar, and reads the same when it is written again.
#include "shared/DateText.h"
#include "Input.h"

#include <array>
#include <cwchar>

void Fuzz(Input& input)
{
    using namespace corvane;
    const bool hasTime = input.Choice();
    const std::wstring text = input.Rest();
    const auto date = ParseDate(text, hasTime ? kVersionTimeLayout : kVersionDateLayout);
    static_cast<void>(ParseDate(L"01/02/2003", text));
    if (!date) return;
    Require(date->month >= 1 && date->month <= 12 && date->day >= 1 && date->day <= 31);
    const std::wstring shown = ShownDate(date);
    Require(shown.size() >= std::wstring_view{L"Mar 04, 2013"}.size() - 3);
    if (date->year < 1000 || date->year > 9999) return;
    std::array<wchar_t, 32> again{};
    std::swprintf(again.data(), again.size(), L"%02d/%02d/%04d", date->month, date->day, date->year);
    Require(ParseDate(again.data(), kVersionDateLayout) == date);
}
