#include "TestSite.h"

namespace server
{

namespace
{

constexpr const char* kAssignments = "OFFI_API.CUser.GetMyAssignmentsAsTree";
constexpr const char* kRelatedFiles = "OFFI_API.CUser.GetMyProjectsRelatedFiles";
constexpr const char* kGateDocuments = "OFFI_API.Cuser.GetMyGateDocumentsAsTree";

pugi::xml_document Tree(TestSite& site, const char* operation, const std::string& classId = "0",
                        const std::string& search = "")
{
    pugi::xml_document document;
    EXPECT_TRUE(document.load_string(site.Ask(operation, {classId, search}).c_str()));
    return document;
}

std::string Ids(const pugi::xml_document& tree, const char* path)
{
    std::string ids;
    for (const auto& node : tree.select_nodes(path))
        ids += std::string{node.attribute().value()} + ' ';
    return ids;
}

} // namespace

TEST(Trees, OfferOnlyWhatIsTheUsers)
{
    TestSite site{"Noor Haddad"};
    EXPECT_EQ(Ids(Tree(site, kAssignments), "//project/@pid"), "17 ");
    EXPECT_EQ(Ids(Tree(site, kAssignments), "//deliverable/@deliverableid"), "1703 ");
    EXPECT_EQ(Ids(Tree(site, kGateDocuments), "//gateDocument/@gateDocumentID"), "1705 1706 ");
    EXPECT_EQ(Ids(Tree(site, kRelatedFiles), "//project/@pid"), "");
    site.Start("Tomas Lind");
    EXPECT_EQ(Ids(Tree(site, kAssignments), "//activity/@activityid"), "1802 1804 1806 ")
        << "a deliverable that only holds an offered activity stays as its parent";
    EXPECT_EQ(Ids(Tree(site, kAssignments), "//deliverable/@deliverableid"), "49 1801 1803 1805 ");
}

TEST(Trees, AreNarrowedByClassAndNameWhichTheCrowdNeedsInEachOfThem)
{
    TestSite site;
    EXPECT_EQ(Ids(Tree(site, kAssignments, "1"), "//project/@pid"), "12 15 16 22 ");
    EXPECT_EQ(Ids(Tree(site, kAssignments, "0", "WHILE you"), "//project/@pid"), "20 21 ");
    site.Start("Crowd Control");
    for (const char* operation : {kAssignments, kRelatedFiles, kGateDocuments}) {
        EXPECT_EQ(Tree(site, operation).select_nodes("//project").size(), 501U);
        EXPECT_EQ(Tree(site, operation, "2").select_nodes("//project").size(), 167U);
    }
}

} // namespace server
