#include "shell/Faults.h"

#include "shell/DataFolder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace server
{

namespace
{

class FaultsFile : public testing::Test
{
protected:
    void Write(const std::string& content) { std::ofstream{m_path} << content; }
    bool Applies(std::string_view target, std::string_view body = "")
    {
        return m_faults.Next(target, body).has_value();
    }

    DataFolder m_folder{""};
    std::filesystem::path m_path = m_folder.Path() / "faults.json";
    Faults m_faults{m_path};
};

} // namespace

TEST_F(FaultsFile, AppliesTheFirstMatchingRuleThatIsNotUsedUp)
{
    Write(R"([{"match": "Op=A", "times": 1, "status": 500}, {"match": "Op=A", "status": 503}, {"match": "needle"}])");
    const auto status = [&] { return m_faults.Next("/?Op=A", "").value_or(Fault{}).status.value_or(0); };
    EXPECT_FALSE(Applies("/?Op=B", "hay"));
    EXPECT_TRUE(Applies("/?Op=B", "a needle in the body"));
    EXPECT_EQ(status(), 500);
    EXPECT_EQ(status(), 503);
}

TEST_F(FaultsFile, CountsAnewOnlyWhenTheContentChanges)
{
    EXPECT_FALSE(Applies("/any")) << "there is no file yet";
    const std::string once = R"([{"times": 1, "status": 500}])";
    Write(once);
    EXPECT_TRUE(Applies("/any"));
    Write(once);
    EXPECT_FALSE(Applies("/any"));
    Write(once + " ");
    EXPECT_TRUE(Applies("/any"));
}

TEST_F(FaultsFile, ThrowsForWhatItCannotUnderstand)
{
    for (const char* content : {"[{", R"([{"drop": "everything"}])", R"([{"status": "many"}])"}) {
        Write(content);
        EXPECT_ANY_THROW((void)Applies("/x")) << content;
    }
}

} // namespace server
