#include "TestSite.h"

namespace server
{

namespace
{

constexpr const char* kCreate = "KRXBLL.Application.CreateProjectRelatedFile2";
constexpr const char* kUpload = "KRXBLL.Application.UploadProjectRelatedFile2";
constexpr const char* kRelated = "KRXBLL.APPLICATION.GetProjectRelatedFile";

std::string SaveRelated(TestSite& site, const char* operation, int id, const std::string& name)
{
    (void)site.Upload("notes.pptx", "some notes");
    return site.Ask(operation, {std::to_string(id), "notes.pptx", name, "Writer", "Reports", "About\r\nit", "0"});
}

} // namespace

TEST(Recording, CountsVersionsPerTargetAndGoesOnAfterARestart)
{
    TestSite site;
    EXPECT_EQ(site.Save("CDeliverable", 12, 45, "1", "first\r\nsecond"), "");
    EXPECT_EQ(site.Save("CActivity", 12, 678), "");
    site.Start("");
    EXPECT_EQ(site.Field("KRXBLL.APPLICATION.GETPROJECTDELIVERABLE", {"45"}, "StatusCode"), "1");
    EXPECT_EQ(site.Field("KRXBLL.APPLICATION.GETPROJECTDELIVERABLE", {"45"}, "StatusComment"), "first\nsecond");
    EXPECT_EQ(site.Save("CDeliverable", 12, 45), "");
    EXPECT_EQ(site.Field("KRXBLL.APPLICATION.GETPROJECTDELIVERABLE", {"45"}, "Version"), "4");
    EXPECT_EQ(site.Field("ACTIVITY_API.CACTIVITY.GETMULTIVERSIONDETAILSASXML", {"678"}, "vnum"), "2");

    const auto versions = site.Recorded();
    ASSERT_EQ(versions.size(), 3U);
    EXPECT_EQ(versions[2].number, 4);
    EXPECT_NE(versions[0].storedAs, versions[2].storedAs);
    EXPECT_EQ(versions[0].user, "Dana Reyes");
    EXPECT_EQ(versions[0].date, "2025-06-07T13:08:09");
    EXPECT_EQ(versions[0].crc32, "b8c02091");
}

TEST(Recording, TakesACancelPrefixWithoutAMessageForNone)
{
    TestSite site;
    EXPECT_EQ(site.Save("CDeliverable", 22, 2205), "CancelMessage:");
    EXPECT_EQ(site.Recorded().size(), 1U);
}

TEST(Recording, NeedsAnUploadThatItThenUsesUp)
{
    TestSite site;
    EXPECT_EQ(site.Save("CGateDocument", 12, 1201, "0"), "");
    const auto again = site.Ask("OFFI_API.CGateDocument.UploadAndUpdate",
                                {"Microsoft PowerPoint", "12", "1201", "plan.pptx", "", "", "0", "0", ""});
    EXPECT_EQ(ErrorNumberOf(again), static_cast<int>(ErrorNumber::NotFound));
    EXPECT_EQ(site.Recorded().size(), 1U);
    EXPECT_EQ(site.Field("KRXBLL.APPLICATION.GETPROJECTGATEDOCUMENT", {"1201", "7"}, "LatestVersion"), "2");
}

TEST(RelatedDocuments, KeepTheirIdsAfterARestart)
{
    TestSite site;
    const auto id = SaveRelated(site, kCreate, 14, "Ränder & Maße");
    EXPECT_NE(SaveRelated(site, kCreate, 14, "Another"), id);
    EXPECT_EQ(SaveRelated(site, kUpload, std::stoi(id), "New name"), "");
    site.Start("Tomas Lind");
    EXPECT_EQ(site.Field(kRelated, {id}, "Name"), "New name");
    EXPECT_NE(SaveRelated(site, kCreate, 14, "Third"), id);
}

TEST(RelatedDocuments, AreRefusedInClosedProjectsAndWithoutTheRight)
{
    TestSite site;
    constexpr int kProjectClosed = -2147219652;
    EXPECT_EQ(ErrorNumberOf(SaveRelated(site, kCreate, 13, "New")), kProjectClosed);
    EXPECT_EQ(ErrorNumberOf(SaveRelated(site, kUpload, 1305, "Old plan")), kProjectClosed);
    EXPECT_EQ(ErrorNumberOf(SaveRelated(site, kCreate, 21, "New")), kProjectClosed);
    EXPECT_EQ(ErrorNumberOf(SaveRelated(site, kUpload, 2104, "Meanwhile")), kProjectClosed);
    site.Start("Sam Okafor");
    EXPECT_EQ(ErrorNumberOf(SaveRelated(site, kCreate, 12, "New")), static_cast<int>(ErrorNumber::AccessDenied));
    EXPECT_TRUE(site.Recorded().empty());
}

} // namespace server
