// Linked into every program of tests for Windows: its output says which bitness really ran.
#include <climits>
#include <cstdio>

#include <gtest/gtest.h>

namespace
{

class Bitness : public testing::Environment
{
public:
    void SetUp() override { std::printf("This is a %zu-bit process.\n", CHAR_BIT * sizeof(void*)); }
};

[[maybe_unused]] const testing::Environment* const registered = testing::AddGlobalTestEnvironment(new Bitness);

} // namespace
