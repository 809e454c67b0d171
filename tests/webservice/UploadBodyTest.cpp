#include "webservice/UploadBody.h"

#include <gtest/gtest.h>
#include <tuple>
#include <vector>

namespace corvane
{

TEST(UploadBody, IsReadyWhenTheFileIsCompletelyWritten)
{
    constexpr std::tuple<const char*, ReadAttempt, bool> kCases[] = {
        {"Written", {10, 10, false}, true},       {"Empty", {0, 0, true}, false},
        {"EmptyThatGrew", {0, 10, false}, false}, {"OnlyZeros", {10, 10, true}, false},
        {"Growing", {10, 11, false}, false},      {"Shrinking", {10, 9, false}, false},
    };
    for (const auto& [name, attempt, complete] : kCases)
        EXPECT_EQ(IsComplete(attempt), complete) << name;
}

TEST(UploadBody, LooksAtEveryByteForZeros)
{
    std::vector<std::byte> bytes(4096);
    EXPECT_TRUE(AllZero(bytes));
    bytes.back() = std::byte{1};
    EXPECT_FALSE(AllZero(bytes));
}

} // namespace corvane
