#include "package/OfficePackage.h"

#include <gtest/gtest.h>

#include "package/Xml.h"

namespace host
{
namespace
{

const std::vector<CustomProperty> kProperties = {{"KRX_SYS_Server", PropertyType::Text, "http://host/a?b=1&c=<2>"},
                                                 {"KRX_SYS_ProjectID", PropertyType::Number, "12"}};

std::size_t Count(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

TEST(PackageTest, NewPresentationCarriesTitleAndAuthorAsText)
{
    const auto package =
        OfficePackage::Parse(OfficePackage::New(HostKind::PowerPoint, "R&D <plan>", "Ann \"A\" Lee").Write());
    EXPECT_EQ(package.SlideTitle(), "R&D <plan>");
    EXPECT_EQ(package.CoreProperty("dc:creator"), "Ann \"A\" Lee");
    EXPECT_TRUE(package.CustomProperties().empty());
    EXPECT_EQ(package.Parts().Find("docProps/custom.xml"), nullptr) << "a part without properties";
    for (const ZipEntry& part : package.Parts().Entries()) {
        EXPECT_NO_THROW(static_cast<void>(ParseXml(part.data))) << part.name;
        EXPECT_EQ(part.data.find('@'), std::string::npos) << part.name << " has a mark left";
    }
}

TEST(PackageTest, DeclaresTheCustomPartOnceAndNumbersPropertiesFromTwo)
{
    auto package = OfficePackage::New(HostKind::PowerPoint, "t", "a");
    package.SetCustomProperties(kProperties);
    package.SetCustomProperties(kProperties);

    EXPECT_EQ(Count(*package.Parts().Find("[Content_Types].xml"), "/docProps/custom.xml"), 1u);
    EXPECT_EQ(Count(*package.Parts().Find("_rels/.rels"), "relationships/custom-properties"), 1u);
    const XmlElement root = ParseXml(*package.Parts().Find("docProps/custom.xml"));
    for (std::size_t i = 0; i < root.children.size(); ++i) {
        EXPECT_EQ(root.children[i].Attribute("pid"), std::to_string(i + 2));
        EXPECT_EQ(root.children[i].Attribute("fmtid"), "{D5CDD505-2E9C-101B-9397-08002B2CF9AE}");
    }
}

} // namespace
} // namespace host
