#include "app/Options.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace host
{
namespace
{

TEST(OptionsTest, ReadsEveryOptionAndKeepsEqualsSignsInValues)
{
    const Options options = ParseOptions({L"--host", L"excel", L"--version", L"12.0", L"--connect-mode", L"0",
                                          L"--play", L"a b.txt", L"--out", L"C:\\out", L"--set",
                                          L"SERVER=http://h/?a=b", L"--set", L"macro.M=ok", L"--set", L"EMPTY="});
    EXPECT_EQ(options.host, HostKind::Excel);
    EXPECT_EQ(options.MajorVersion(), 12);
    EXPECT_EQ(options.connectMode, 0);
    EXPECT_EQ(options.playFile, L"a b.txt");
    EXPECT_EQ(options.outFolder, L"C:\\out");
    EXPECT_EQ(options.Setting("SERVER"), "http://h/?a=b");
    EXPECT_EQ(options.Setting("macro.M"), "ok");
    EXPECT_TRUE(options.settings.contains("EMPTY"));
    EXPECT_EQ(options.Setting("missing"), "");
}

TEST(OptionsTest, RefusesWhatItDoesNotUnderstand)
{
    const std::vector<std::wstring> refused[] = {
        {L"--host", L"access"}, {L"--version"}, {L"--verison", L"16.0"},   {L"--set", L"NAME"}, {L"--set", L"=value"},
        {L"--version", L"new"}, {L"--play"},    {L"--connect-mode", L"1x"}};
    for (const auto& words : refused)
        EXPECT_THROW(static_cast<void>(ParseOptions(words)), std::invalid_argument);
    EXPECT_EQ(ParseOptions({}).version, L"16.0");
    EXPECT_EQ(ParseOptions({}).host, HostKind::PowerPoint);
}

} // namespace
} // namespace host
