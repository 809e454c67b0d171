#include "selection/IconRules.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

TEST(IconRules, TakeOnlyWholeGifPicturesOfWhichNoSideIsTooLong)
{
    const std::string screen = "GIF89a\1\0\0\1\x80\0\0\1\2\3\4\5\6"s; // 1 by 256, two colors
    const std::string image = ",\0\0\0\0\1\0\0\1\0\2\2\x4C\1\0"s;
    const std::string note = "!\xF9\4\1\0\0\0\0!\xFE\3a,b\2!;\0"s;
    const std::string whole = screen + note + image;
    const auto isIcon = [](const std::string& bytes) { return corvane::IsIcon(std::as_bytes(std::span{bytes})); };
    for (const auto& bytes : {"GIF87a" + screen.substr(6) + image, screen + note + image + image + ";<html>"})
        EXPECT_TRUE(isIcon(bytes)) << testing::PrintToString(bytes);
    for (const auto& bytes : {"GIF88a" + screen.substr(6) + image, "BM" + image, screen + note + ";", whole + "x"})
        EXPECT_FALSE(isIcon(bytes)) << testing::PrintToString(bytes);
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(isIcon(whole.substr(0, size))) << size;
    for (const std::size_t side : {6U, 8U, 42U, 44U}) { // none of a side is too short, all of it too long
        for (const auto* bytes : {"\0\0", "\1\1"})
            EXPECT_FALSE(isIcon(std::string{whole}.replace(side, 2, bytes, 2))) << side;
    }
}
