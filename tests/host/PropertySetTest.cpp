#include "package/PropertySet.h"

#include <gtest/gtest.h>

namespace host
{
namespace
{

const std::vector<PropertySection> kSections = {
    {FMTID_DocSummaryInformation, {}},
    {FMTID_UserDefinedProperties,
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
    EXPECT_EQ(read[0].format, FMTID_DocSummaryInformation);
    EXPECT_EQ(read[1].properties, kSections[1].properties);
}

TEST(FileTimeTest, CountsFromSixteenHundredAndOne)
{
    EXPECT_EQ(ToFileTime("1601-01-01T00:00:00Z"), 0);
    EXPECT_EQ(ToFileTime("1970-01-01T00:00:01Z"), 116444736010000000);
    EXPECT_EQ(FromFileTime(116444736010000000), "1970-01-01T00:00:01Z");
}

} // namespace
} // namespace host
