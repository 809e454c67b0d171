#include "TestSite.h"

namespace server
{

TEST(Operations, AnswerTheSameByQueryAndByForm)
{
    TestSite site{"Noor Haddad"};
    EXPECT_EQ(site.Get("/WebServices/offi.asp?Op=GetUserID&P1=v6").body, "9");
    EXPECT_EQ(site.Ask("GetUserID"), "9");
    EXPECT_EQ(site.Handle({"POST", "/WebServices/offi.asp?Op=UPDATEUSERACCESSLOG&P1=v6", {}, ""}).body, "OK");
    EXPECT_EQ(site.Get("/WebServices/offi.asp?Op=IsProjectTeamMember&P1=v6&P2=12").body, "False");
    EXPECT_EQ(site.Handle({"PUT", "/WebServices/offi.asp?Op=GetUserID&P1=v6", {}, ""}).status, 405);
}

TEST(Operations, TellWhatIsWrongWithARequest)
{
    TestSite site;
    const auto number = [&](const std::string& query) {
        return static_cast<ErrorNumber>(ErrorNumberOf(site.Get("/WebServices/offi.asp?" + query).body));
    };
    EXPECT_EQ(number("Op=GetUserID&P1=v7"), ErrorNumber::OtherProtocol);
    EXPECT_EQ(number("Op=getUserID&P1=v6"), ErrorNumber::InvalidRequest);
    EXPECT_EQ(number("Op=OFFI_API.CUser.GetMyAssignmentsAsTree&P1=v6&P2=0"), ErrorNumber::InvalidRequest);
    EXPECT_EQ(number("Op=KRXBLL.APPLICATION.GETPROJECTDELIVERABLE&P1=v6&P2=678"), ErrorNumber::NotFound);
}

TEST(Operations, GiveDatesInTheLayoutOfEachAnswer)
{
    TestSite site;
    EXPECT_EQ(site.Field("KRXBLL.APPLICATION.GETPROJECTDELIVERABLE", {"45"}, "Date"), "04/11/2024 3:05:00 PM");
    EXPECT_EQ(site.Field("KRXBLL.APPLICATION.GETPROJECTGATEDOCUMENT", {"1201", "7"}, "LatestVersionUploadedOn"),
              "03/20/2024 1:40:09 PM");
    EXPECT_EQ(site.Field("ACTIVITY_API.CACTIVITY.GETMULTIVERSIONDETAILSASXML", {"678"}, "cdate"), "02/28/2024");
    EXPECT_EQ(site.Field("KRXBLL.APPLICATION.GETPROJECTDELIVERABLE", {"46"}, "Date"), "");
}

TEST(Operations, LeaveOutTheAddressOfAMemberWhoHasNone)
{
    TestSite site;
    const auto members = site.Ask("KRXBLL.APPLICATION.GETPROJECTTEAMMEMBERS", {"23"});
    EXPECT_EQ(members.find("EMailAddress=\"\""), std::string::npos) << members;
}

TEST(Operations, RefuseAnUploadAboveTheLimitOfTheSettings)
{
    TestSite site;
    std::ofstream{site.Folder() / "settings.json"} << R"({"MaxFileUploadSize": 6})";
    site.Start("");
    EXPECT_EQ(ErrorNumberOf(site.Upload("a", "123456").body), 0);
    EXPECT_EQ(ErrorNumberOf(site.Upload("b", "1234567").body), static_cast<int>(ErrorNumber::InvalidRequest));
    EXPECT_FALSE(Archive{site.Folder()}.HasUpload("b"));
}

} // namespace server
