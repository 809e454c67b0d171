#include "package/Zip.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace host
{
namespace
{

TEST(ZipTest, RefusesDamageWithoutReadingOutsideTheBytes)
{
    Zip zip;
    zip.Set("folder/large.xml", std::string(100000, 'x'));
    zip.Set("small.bin", std::string("\0\x01\xff", 3));
    zip.Set("empty", "");
    const std::string bytes = zip.Write();
    EXPECT_THROW(Zip::Parse(""), std::runtime_error);
    EXPECT_THROW(Zip::Parse(std::string(22, '\0')), std::runtime_error);
    for (std::size_t cut = 1; cut < bytes.size(); ++cut)
        EXPECT_THROW(Zip::Parse(bytes.substr(0, cut)), std::runtime_error) << cut;
    // The front is gone, the directory points outside.
    EXPECT_THROW(Zip::Parse(std::string_view{bytes}.substr(40)), std::runtime_error);

    std::string changed = bytes;
    changed[31 + std::string{"folder/large.xml"}.size()] ^= 0x55; // in the packed bytes
    EXPECT_THROW(Zip::Parse(changed), std::runtime_error);
}

} // namespace
} // namespace host
