#include "package/PropertySet.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "package/Bytes.h"
#include "package/FileTime.h"

namespace host
{
namespace
{

const std::vector<PropertySection> kSections = {
    {kDocumentSummarySet, {}},
    {kUserDefinedSet,
     {{2, {"KRX_SYS_Server", PropertyType::Text, "http://h\xc3\xb6st"}},
      {3, {"KRX_SYS_ProjectID", PropertyType::Number, "-12"}},
      {4, {"Flag", PropertyType::Boolean, "true"}},
      {5, {"Ratio", PropertyType::Float, "1.5"}},
      {6, {"When", PropertyType::Date, "2024-02-29T23:59:59Z"}}}},
};

TEST(PropertySetTest, KeepsNamesTypesAndValuesOfEverySection)
{
    const auto read = ReadPropertySet(WritePropertySet(kSections));
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].format, kDocumentSummarySet);
    const auto& expected = kSections[1].properties;
    ASSERT_EQ(read[1].properties.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(read[1].properties[i].id, expected[i].id);
        EXPECT_EQ(read[1].properties[i].property.name, expected[i].property.name);
        EXPECT_EQ(read[1].properties[i].property.type, expected[i].property.type);
        EXPECT_EQ(read[1].properties[i].property.value, expected[i].property.value);
    }
}

TEST(PropertySetTest, RefusesCutStreams)
{
    const std::string bytes = WritePropertySet(kSections);
    for (std::size_t cut = 0; cut < bytes.size(); ++cut)
        EXPECT_THROW(static_cast<void>(ReadPropertySet(std::string_view{bytes}.substr(0, cut))), std::runtime_error);
}

// A user-defined set as a program writes it that stores Unicode: wide names and values, each name padded to four bytes.
TEST(PropertySetTest, ReadsUnicodeSections)
{
    std::string section;
    const auto number = [&](std::uint64_t value) { AppendNumber(section, value, 4); };
    const auto wide = [&](std::u16string_view text) {
        number(text.size() + 1);
        for (const char16_t unit : text)
            AppendNumber(section, unit, 2);
        AppendNumber(section, 0, 2);
        section.resize((section.size() + 3) / 4 * 4, '\0');
    };
    number(0); // the length, set below
    number(3);
    for (const std::uint64_t entry : {0, 32, 1, 60, 2, 68})
        number(entry);
    number(1);
    number(2);
    wide(u"\u20acuro\U0001F600");
    ASSERT_LE(section.size(), 60u);
    section.resize(60, '\0');
    number(2);
    number(1200);
    number(31);
    wide(u"v\u00e9");
    std::string length;
    AppendNumber(length, section.size(), 4);
    section.replace(0, 4, length);

    std::string stream = WritePropertySet({{kUserDefinedSet, {}}});
    stream.resize(48); // the header and the row of the one section
    const auto read = ReadPropertySet(stream + section);
    ASSERT_EQ(read.at(0).properties.size(), 1u);
    EXPECT_EQ(read[0].properties[0].property.name, "\xe2\x82\xacuro\xf0\x9f\x98\x80");
    EXPECT_EQ(read[0].properties[0].property.value, "v\xc3\xa9");
}

TEST(FileTimeTest, CountsFromSixteenHundredAndOne)
{
    EXPECT_EQ(ToFileTime("1601-01-01T00:00:00Z"), 0);
    EXPECT_EQ(ToFileTime("1970-01-01T00:00:01Z"), 116444736010000000);
    EXPECT_EQ(FromFileTime(116444736010000000), "1970-01-01T00:00:01Z");
}

} // namespace
} // namespace host
