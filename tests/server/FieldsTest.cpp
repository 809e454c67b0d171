#include "core/Fields.h"

#include "core/ServiceError.h"
#include "core/Text.h"

#include <gtest/gtest.h>

namespace server
{

TEST(Fields, DecodeTheTextThatWasMeant)
{
    const std::pair<std::string, std::string> cases[] = {
        {"\xE9%E2%82%AC\xFC", "\xC3\xA9\xE2\x82\xAC\xC3\xBC"},        // raw Latin-1 beside encoded UTF-8
        {"caf\xC3\xA9 %F0%9F%98%80", "caf\xC3\xA9 \xF0\x9F\x98\x80"}, // sequences of two and four bytes
        {"\xC0\xAF", "\xC3\x80\xC2\xAF"},                             // an overlong form
        {"%ED%A0%80", "\xC3\xAD\xC2\xA0\xC2\x80"},                    // a surrogate
        {"x\xE2\x82", "x\xC3\xA2\xC2\x82"},                           // a cut sequence
        {"100%&%4", "100%&%4"},
    };
    for (const auto& [encoded, expected] : cases)
        EXPECT_EQ(DecodeText(encoded), expected) << encoded;
}

TEST(Fields, SplitNamesFromValuesAndKeepTheFirstOfEqualNames)
{
    const Fields expected{{"Op", "X"}, {"P1", "v6"}, {"P2", ""}, {"P4", "a=b"}, {"flag", ""}};
    EXPECT_EQ(DecodeFields("Op=X&P1=v6&P2=&&P4=a=b&flag&P1=v7"), expected);
    EXPECT_TRUE(DecodeFields("").empty());
}

TEST(Parameters, TravelUnderEvenNumbersAndConvertStrictly)
{
    const Fields fields{{"P2", "-12"}, {"P3", "9"},   {"P4", "12 "}, {"P6", "true"},
                        {"P8", "0"},   {"P10", "-1"}, {"P12", ""}};
    const Parameters parameters{fields, "Operation"};
    EXPECT_EQ(parameters.Number(1), -12);
    EXPECT_THROW((void)parameters.Number(2), ServiceError);
    EXPECT_TRUE(parameters.Truth(3));
    EXPECT_FALSE(parameters.Truth(4));
    EXPECT_TRUE(parameters.Truth(5));
    EXPECT_THROW((void)parameters.Number(6), ServiceError);
    EXPECT_THROW((void)parameters.Text(7), ServiceError);
}

TEST(Search, IgnoresTheCaseOfLatin1Letters)
{
    EXPECT_TRUE(ContainsNoCase("\xC3\x86r\xC3\xB8 & S\xC3\xB8n", "\xC3\xA6R\xC3\x98"));
    EXPECT_FALSE(ContainsNoCase("3 \xC3\x97 4", "\xC3\xB7"));
    EXPECT_TRUE(ContainsNoCase("anything", ""));
}

} // namespace server
