#include "CaseName.h"
#include "TestSite.h"

namespace server
{

struct BadRequestCase
{
    const char* name;
    const char* query;
    ErrorNumber expected;
};

class BadRequest : public testing::TestWithParam<BadRequestCase>
{};

TEST_P(BadRequest, IsAnsweredByAnErrorDocument)
{
    TestSite site;
    const auto answer = site.Get(std::string{"/WebServices/offi.asp?"} + GetParam().query);
    EXPECT_EQ(answer.status, 200);
    EXPECT_EQ(answer.contentType, "text/xml; charset=utf-8");
    EXPECT_EQ(ErrorNumberOf(answer.body), static_cast<int>(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Operations, BadRequest,
    testing::Values(
        BadRequestCase{"NoProtocol", "Op=GetUserID", ErrorNumber::OtherProtocol},
        BadRequestCase{"OtherProtocol", "Op=GetUserID&P1=v7", ErrorNumber::OtherProtocol},
        BadRequestCase{"OtherCase", "Op=getUserID&P1=v6", ErrorNumber::InvalidRequest},
        BadRequestCase{"OtherCaseInTheClass",
                       "Op=OFFI_API.CUser.GetMyGateDocumentsAsTree&P1=v6&P2=0&P4=", ErrorNumber::InvalidRequest},
        BadRequestCase{"NoOperation", "P1=v6", ErrorNumber::InvalidRequest},
        BadRequestCase{"MissingParameter", "Op=IsProjectTeamMember&P1=v6&P3=12", ErrorNumber::InvalidRequest},
        BadRequestCase{"MissingLastParameter", "Op=OFFI_API.CUser.GetMyAssignmentsAsTree&P1=v6&P2=0",
                       ErrorNumber::InvalidRequest},
        BadRequestCase{"NotANumber", "Op=KRXBLL.APPLICATION.GetProject&P1=v6&P2=12x", ErrorNumber::InvalidRequest},
        BadRequestCase{"UnknownProject", "Op=KRXBLL.APPLICATION.GetProject&P1=v6&P2=999", ErrorNumber::NotFound},
        BadRequestCase{"ActivityIdAsDeliverable", "Op=KRXBLL.APPLICATION.GETPROJECTDELIVERABLE&P1=v6&P2=678",
                       ErrorNumber::NotFound}),
    CaseName{});

TEST(Operations, AnswerTheSameByQueryAndByForm)
{
    TestSite site{"Noor Haddad"};
    EXPECT_EQ(site.Get("/WebServices/offi.asp?Op=GetUserID&P1=v6").body, "9");
    EXPECT_EQ(site.Ask("GetUserID"), "9");
    EXPECT_EQ(site.Handle({"POST", "/WebServices/offi.asp?Op=UPDATEUSERACCESSLOG&P1=v6", {}, ""}).body, "OK");
    EXPECT_EQ(site.Get("/WebServices/offi.asp?Op=IsProjectTeamMember&P1=v6&P2=12").body, "False");
    EXPECT_EQ(site.Handle({"PUT", "/WebServices/offi.asp?Op=GetUserID&P1=v6", {}, ""}).status, 405);
}

struct ScalarCase
{
    const char* user;
    const char* operation;
    std::vector<std::string> parameters;
    const char* expected;
};

TEST(Operations, AnswerForTheUserThatTheServerRunsAs)
{
    const ScalarCase cases[] = {
        {"Dana Reyes", "IsProjectTeamMember", {"12"}, "True"},
        {"Dana Reyes", "IsProjectTeamMember", {"17"}, "False"},
        {"Maria Kowalski", "KRXBLL.APPLICATION.CHECKUSERMANAGEACCESS", {"19"}, "True"},
        {"Igor Petrov", "KRXBLL.APPLICATION.CHECKUSERMANAGEACCESS", {"19"}, "False"},
        {"Ülle Tamm", "KRXBLL.APPLICATION.USERCANUPDATE", {"1204", "3"}, "True"},
        {"Ülle Tamm", "KRXBLL.APPLICATION.USERCANUPDATE", {"1204", "1"}, "False"},
        {"Tomas Lind", "KRXBLL.APPLICATION.USERCANUPDATE", {"1204", "3"}, "False"},
        {"Dana Reyes", "KRXBLL.APPLICATION.CHECKACTIVEWORKFLOWACTIONOWNERPERMISSIONS", {"1", "1605"}, "2"},
        {"Tomas Lind", "KRXBLL.APPLICATION.CHECKACTIVEWORKFLOWACTIONOWNERPERMISSIONS", {"1", "1605"}, "0"},
        {"Dana Reyes", "KRXBLL.APPLICATION.CHECKACTIVEWORKFLOWACTIONOWNERPERMISSIONS", {"2", "1613"}, "2"},
        {"Dana Reyes", "MaxFileUploadSize", {"MaxFileUploadSize"}, "20971520"},
        {"Dana Reyes", "IsAutoSetPublishCheckbox", {"AutomaticallySetPublishCheckbox"}, "True"},
    };
    for (const auto& item : cases) {
        TestSite site{item.user};
        EXPECT_EQ(site.Ask(item.operation, item.parameters), item.expected) << item.user << ' ' << item.operation;
    }
}

TEST(Operations, LeaveOutTheNameOfAnOwnerWhoDoesNotExist)
{
    TestSite site;
    EXPECT_EQ(site.Field("KRXBLL.APPLICATION.GETPROJECTDELIVERABLE", {"1803"}, "OwnerID"), "0");
    EXPECT_EQ(site.Field("KRXBLL.APPLICATION.GETPROJECTDELIVERABLE", {"1803"}, "OwnerName"), "");
    EXPECT_EQ(site.Field("KRXBLL.APPLICATION.GETPROJECTGATEDOCUMENT", {"1202", "7"}, "OwnerName"), "Tomas Lind");
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

TEST(Operations, GiveTeamMembersWithoutAnAddressNoAttributeForIt)
{
    TestSite site;
    const auto answer = site.Ask("KRXBLL.APPLICATION.GETPROJECTTEAMMEMBERS", {"23"});
    pugi::xml_document document;
    ASSERT_TRUE(document.load_string(answer.c_str()));
    EXPECT_EQ(document.select_nodes("//z:row").size(), 2U);
    EXPECT_EQ(document.select_nodes("//z:row[@EMailAddress]").size(), 1U);
}

TEST(Operations, TakeSettingsFromTheDataFolder)
{
    TestSite site;
    std::ofstream{site.Folder() / "settings.json"}
        << R"({"MaxFileUploadSize": 6, "EnableOFFIClientEvents": "0", "customNames": {"Deliverable": "Work & Item"}})";
    site.Start("");
    EXPECT_EQ(site.Ask("MaxFileUploadSize", {"MaxFileUploadSize"}), "6");
    EXPECT_NE(site.Ask("OFFI_API.CConfig.GetValues").find(R"(TokenName="Deliverable" Value="Work &amp; Item")"),
              std::string::npos);
    EXPECT_NE(site.Ask("OFFI_API.CConfig.GetValues").find(R"(TokenName="EnableOFFIClientEvents" Value="0")"),
              std::string::npos);
    EXPECT_EQ(ErrorNumberOf(site.Upload("a", "123456").body), 0);
    EXPECT_EQ(ErrorNumberOf(site.Upload("b", "1234567").body), static_cast<int>(ErrorNumber::InvalidRequest));
    EXPECT_FALSE(Archive{site.Folder()}.HasUpload("b"));
}

} // namespace server
