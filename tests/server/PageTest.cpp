#include "TestSite.h"

#include "core/Page.h"

#include <map>
#include <regex>

namespace server
{

TEST(Pages, ShowWhatALinkNamesAndNothingElse)
{
    TestSite site;
    for (const auto& [link, name] : std::map<std::string, std::string>{
             {"/?P=DD&PID=12&DID=45", "Business case"}, {"/?P=AD&PID=12&DID=678", "Draft the business case"}})
    {
        EXPECT_NE(site.Get(link).body.find("<h1>" + name + "</h1>"), std::string::npos) << link;
        const auto escaped = std::regex_replace(link, std::regex{"&"}, "&amp;");
        EXPECT_NE(site.Get("/").body.find('"' + escaped + '"'), std::string::npos) << "the index links to it";
    }
    for (const char* link : {"/?P=DD&PID=12&DID=999", "/?P=DD&PID=13&DID=45", "/?P=XX&PID=12&DID=45", "/?PID=12",
                             "/other", "/?P=DD&PID=12&DID=45&Version=9", "/?P=DD&PID=12&DID=45&Version=1"})
        EXPECT_EQ(site.Get(link).status, 404) << link;
}

TEST(Pages, EscapeWhatUsersTyped)
{
    TestSite site;
    (void)site.Upload("<b>&.pptx", "slides");
    EXPECT_EQ(site.Ask("OFFI_API.CDeliverable.UploadAndUpdate",
                       {"Microsoft PowerPoint", "12", "45", "<b>&.pptx", "<script>x</script>", "\"quoted\" & 'more'",
                        "0", "2", "<i>"}),
              "");
    const auto page = site.Get("/?P=DD&PID=12&DID=45").body;
    EXPECT_EQ(page.find("<script"), std::string::npos);
    EXPECT_EQ(page.find("<i>"), std::string::npos);
    EXPECT_EQ(page.find("<b>"), std::string::npos);
    EXPECT_NE(page.find("<td>\"quoted\" &amp; 'more'</td>"), std::string::npos);
    EXPECT_NE(site.Get("/?P=DD&PID=23&DID=2301").body.find("Entwurf &lt;1&gt;"), std::string::npos);
}

TEST(Pages, HandOutTheFileOfARecordedVersion)
{
    TestSite site;
    EXPECT_EQ(site.Save("CDeliverable", 12, 45), "");
    const auto answer = site.Get("/?P=DD&PID=12&DID=45&Version=3");
    EXPECT_EQ(answer.body, "slides");
    EXPECT_EQ(answer.headers.at(0).second, "attachment; filename*=UTF-8''" + Encoded("plan.pptx"));
}

} // namespace server
