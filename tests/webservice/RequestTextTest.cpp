#include "webservice/RequestText.h"

#include <gtest/gtest.h>
#include <tuple>

namespace corvane
{

TEST(RequestText, EncodesAParameterUnitByUnit)
{
    const std::tuple<const char*, std::wstring, const wchar_t*> kCases[] = {
        {"Nothing", L"", L""},
        {"LettersAndDigits", L"azAZ09", L"azAZ09"},
        {"NeighboursOfLettersAndDigits", L"/:@[`{", L"%2F%3A%40%5B%60%7B"},
        {"BlankAndAmpersand", L"a b&c", L"a+b%26c"},
        {"PunctuationOfOtherEncoders", L"-_.~*+%", L"%2D%5F%2E%7E%2A%2B%25"},
        {"ControlUnitsHaveTwoDigits", L"\t\r\n\x7F", L"%09%0D%0A%7F"},
        {"ZeroUnit", {L'a', L'\0', L'b'}, L"a%00b"},
        {"Latin1StaysRaw", L"\x80\xE9\xFF", L"\x80\xE9\xFF"},
        {"TwoBytes", L"\x100\x7FF", L"%C4%80%DF%BF"},
        {"ThreeBytes", L"\x800\x20AC\xFFFD", L"%E0%A0%80%E2%82%AC%EF%BF%BD"},
        {"EachHalfOfAPairOnItsOwn", L"\xD83D\xDE00", L"%EF%BF%BD%EF%BF%BD"},
        {"LoneHalf", L"a\xDFFF", L"a%EF%BF%BD"},
    };
    for (const auto& [name, text, expected] : kCases)
        EXPECT_EQ(EncodeURLParameter(text), expected) << name;
    EXPECT_EQ(EncodeURLParameter(std::wstring(2500, L'&')).size(), 7500U) << "longer than two blocks of the builder";
}

TEST(RequestText, NumbersTheParametersByTwo)
{
    const std::tuple<const char*, Parameters, const wchar_t*> kCases[] = {
        {"None", {}, L"Op=CUser.Do&P1=v6"},
        {"Three", {std::wstring{L"a"}, 2, std::wstring{L"c d"}}, L"Op=CUser.Do&P1=v6&P2=a&P4=2&P6=c+d"},
        {"EmptyFirst", {std::wstring{}, 7}, L"Op=CUser.Do&P1=v6&P2=&P4=7"},
        {"Nothing", {std::monostate{}}, L"Op=CUser.Do&P1=v6&P2="},
        {"TruthValues", {false, true}, L"Op=CUser.Do&P1=v6&P2=False&P4=True"},
        {"Negative", {-2147483647 - 1}, L"Op=CUser.Do&P1=v6&P2=%2D2147483648"},
        {"PastTen", Parameters(6, 1), L"Op=CUser.Do&P1=v6&P2=1&P4=1&P6=1&P8=1&P10=1&P12=1"},
    };
    for (const auto& [name, parameters, expected] : kCases)
        EXPECT_EQ(RequestQuery(L"CUser.Do", parameters), expected) << name;
}

TEST(RequestText, LeavesTheServersAddressAsItIs)
{
    EXPECT_EQ(Endpoint(L"http://host/sub", L"offi.asp"), L"http://host/sub/WebServices/offi.asp");
    EXPECT_EQ(Endpoint(L"http://host/", L"offi.asp"), L"http://host//WebServices/offi.asp");
}

} // namespace corvane
