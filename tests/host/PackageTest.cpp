#include "package/OfficePackage.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "package/Xml.h"

namespace host
{
namespace
{

const std::vector<CustomProperty> kProperties = {
    {"KRX_SYS_Server", PropertyType::Text, "http://host/a?b=1&c=<2>"},
    {"KRX_SYS_ProjectID", PropertyType::Number, "12"},
    {"Flag", PropertyType::Boolean, "true"},
    {"Gr\xc3\xb6\xc3\x9f"
     "e",
     PropertyType::Float, "1.5"},
    {"When", PropertyType::Date, "2024-05-01T10:00:00Z"},
};

std::size_t Count(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

OfficePackage Saved(const OfficePackage& package) { return OfficePackage::Parse(package.Write()); }

TEST(PackageTest, NewPresentationCarriesTitleAndAuthorAsText)
{
    const auto package = Saved(OfficePackage::New(HostKind::PowerPoint, "R&D <plan>", "Ann \"A\" Lee"));
    EXPECT_EQ(package.SlideTitle(), "R&D <plan>");
    EXPECT_EQ(package.CoreProperty("dc:creator"), "Ann \"A\" Lee");
    EXPECT_TRUE(package.CustomProperties().empty());
    EXPECT_EQ(package.Parts().Find("docProps/custom.xml"), nullptr) << "a part without properties";
    for (const ZipEntry& part : package.Parts().Entries()) {
        EXPECT_NO_THROW(static_cast<void>(ParseXml(part.data))) << part.name;
        EXPECT_EQ(part.data.find('@'), std::string::npos) << part.name << " has a mark left";
    }
}

TEST(PackageTest, KeepsCustomPropertiesOfEveryTypeThroughTwoSaves)
{
    auto package = OfficePackage::New(HostKind::PowerPoint, "t", "a");
    package.SetCustomProperties(kProperties);
    package = Saved(package);
    package.SetCustomProperties(package.CustomProperties());
    package = Saved(package);

    const auto read = package.CustomProperties();
    ASSERT_EQ(read.size(), kProperties.size());
    for (std::size_t i = 0; i < read.size(); ++i) {
        EXPECT_EQ(read[i].name, kProperties[i].name);
        EXPECT_EQ(read[i].type, kProperties[i].type) << read[i].name;
        EXPECT_EQ(read[i].value, kProperties[i].value) << read[i].name;
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

TEST(PackageTest, LeavesForeignPartsAsTheyWere)
{
    Zip zip = Zip::Parse(OfficePackage::New(HostKind::PowerPoint, "t", "a").Write());
    const std::string foreign = "<?xml version='1.0'?>\r\n<x  a = '1'/><!-- kept -->";
    zip.Set("customXml/item1.xml", foreign);
    auto package = OfficePackage::Parse(zip.Write());
    package.SetCustomProperties(kProperties);
    EXPECT_EQ(*Saved(package).Parts().Find("customXml/item1.xml"), foreign);
}

TEST(PackageTest, FindsTheCustomPartByItsRelationWhateverItsNameAndPrefix)
{
    Zip zip = Zip::Parse(OfficePackage::New(HostKind::PowerPoint, "t", "a").Write());
    std::string relations = *zip.Find("_rels/.rels");
    relations.insert(relations.find("</Relationships>"),
                     R"(<Relationship Id="rId9" Type="http://schemas.openxmlformats.org/officeDocument/2006/)"
                     R"(relationships/custom-properties" Target="/docProps/other.xml"/>)");
    zip.Set("_rels/.rels", relations);
    zip.Set("docProps/other.xml",
            R"(<c:Properties xmlns:c="c" xmlns:v="v"><c:property name="A"><v:int>7</v:int>)"
            R"(</c:property><c:property name="B"><v:bool>1</v:bool></c:property></c:Properties>)");
    auto package = OfficePackage::Parse(zip.Write());

    const auto read = package.CustomProperties();
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].type, PropertyType::Number);
    EXPECT_EQ(read[1].value, "true");
    package.SetCustomProperties(read);
    EXPECT_EQ(package.Parts().Find("docProps/custom.xml"), nullptr) << "a second part for the same properties";
}

TEST(PackageTest, RefusesArchivesThatAreNoPresentation)
{
    Zip zip;
    zip.Set("readme.txt", "hello");
    EXPECT_THROW(OfficePackage::Parse(zip.Write()), std::runtime_error);
    EXPECT_THROW(OfficePackage::Parse("PK"), std::runtime_error);
}

struct BadXml
{
    const char* name;
    const char* text;
};

class BadXmlTest : public testing::TestWithParam<BadXml>
{};

TEST_P(BadXmlTest, IsRefused) { EXPECT_THROW(static_cast<void>(ParseXml(GetParam().text)), std::runtime_error); }

constexpr BadXml kBadXml[] = {
    {"NotClosed", "<a><b></b>"},
    {"WrongEnd", "<a></b>"},
    {"TwoRoots", "<a/><b/>"},
    {"DoubleAttribute", "<a x='1' x='2'/>"},
    {"BareAmpersand", "<a>&</a>"},
    {"UnknownEntity", "<a>&nbsp;</a>"},
    {"DocumentType", "<!DOCTYPE a><a/>"},
    {"Nothing", ""},
};

INSTANTIATE_TEST_SUITE_P(PackageTest, BadXmlTest, testing::ValuesIn(kBadXml),
                         [](const auto& given) { return std::string{given.param.name}; });

TEST(XmlTest, WritesTextThatReadsBackTheSame)
{
    XmlElement root{.name = "a"};
    root.SetAttribute("x", "1 < 2 & \"3\"\r\n\t");
    root.text = " caf\xc3\xa9 & > \r\n ";
    const XmlElement read = ParseXml(WriteXml(root));
    EXPECT_EQ(read.Attribute("x"), root.Attribute("x"));
    EXPECT_EQ(read.text, root.text);
    EXPECT_EQ(ParseXml("<a>&#x20AC;<![CDATA[<&>]]>&#65;</a>").text, "\xe2\x82\xac<&>A");
}

} // namespace
} // namespace host
