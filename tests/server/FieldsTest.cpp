#include "core/Fields.h"

#include "CaseName.h"
#include "core/Http.h"
#include "core/ServiceError.h"

#include <gtest/gtest.h>

namespace server
{

struct DecodingCase
{
    const char* name;
    std::string encoded;
    std::string expected;
};

class Decoding : public testing::TestWithParam<DecodingCase>
{};

TEST_P(Decoding, GivesTheTextThatWasMeant) { EXPECT_EQ(DecodeText(GetParam().encoded), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(Fields, Decoding,
                         testing::ValuesIn(std::vector<DecodingCase>{
                             {"BlankAndReserved", "a+b%26c%2B", "a b&c+"},
                             {"LowerCaseHex", "%e2%82%ac", "\xE2\x82\xAC"},
                             {"RawLatin1Letter", "caf\xE9", "caf\xC3\xA9"},
                             {"RawUtf8Letter", "caf\xC3\xA9", "caf\xC3\xA9"},
                             {"RawLatin1BesideEncodedUtf8", "\xE9%E2%82%AC\xFC", "\xC3\xA9\xE2\x82\xAC\xC3\xBC"},
                             {"Latin1LetterBeforeAscii", "\xC3=", "\xC3\x83="},
                             {"OverlongFormIsLatin1", "\xC0\xAF", "\xC3\x80\xC2\xAF"},
                             {"EncodedSurrogateIsLatin1", "%ED%A0%80", "\xC3\xAD\xC2\xA0\xC2\x80"},
                             {"FourByteSequence", "%F0%9F%98%80", "\xF0\x9F\x98\x80"},
                             {"CutSequenceAtTheEnd", "x\xE2\x82", "x\xC3\xA2\xC2\x82"},
                             {"PercentWithoutDigits", "100%", "100%"},
                             {"PercentWithOneDigit", "%4", "%4"},
                             {"PercentWithOtherLetters", "%zz%+1", "%zz% 1"},
                         }),
                         CaseName{});

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
