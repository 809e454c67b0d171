// The add-in's library is found behind any numbers and before any text; without one of its names, nothing is its own.
#include "diagnose/OfficeRules.h"
#include "Input.h"
#include "support/Conversions.h"

namespace
{

void Append(std::string& data, std::wstring_view text)
{
    for (const wchar_t letter : text)
        data += {static_cast<char>(letter), '\0'};
    data += std::string(2, '\0');
}

} // namespace

void Fuzz(Input& input)
{
    using diagnose::NamesAddIn;
    const std::wstring value = input.Text();
    std::string data = input.RestAsBytes();
    data.resize(data.size() / 2 * 2);
    const bool isNamed = NamesAddIn(value, std::as_bytes(std::span{data}));
    if (data.find('C') == std::string::npos && data.find('c') == std::string::npos && isNamed)
        Require(corvane::ToLower(value).find(L"corvane") != std::wstring::npos);
    data += std::string(2, '\0');
    Append(data, LR"(C:\x\corvanemsofficepowerpoint.DLL)");
    Append(data, value);
    Require(NamesAddIn(L"", std::as_bytes(std::span{data})));
}
