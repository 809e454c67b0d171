#include "package/OfficePackage.h"

#include <algorithm>
#include <stdexcept>

#include "package/NewParts.h"
#include "package/Xml.h"

namespace host
{
namespace
{

constexpr std::string_view kContentTypes = "[Content_Types].xml";
constexpr std::string_view kRelations = "_rels/.rels";
constexpr std::string_view kCustomPart = "docProps/custom.xml";
constexpr std::string_view kCustomType = "application/vnd.openxmlformats-officedocument.custom-properties+xml";
constexpr std::string_view kCustomRelation =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/custom-properties";

// Relationship targets are relative to the package's root or begin with "/".
std::string PartName(std::string_view target) { return std::string{target.substr(target.starts_with("/") ? 1 : 0)}; }

// A name for a child of the root, in the root's namespace.
std::string NameBelow(const XmlElement& root, std::string_view name)
{
    return root.name.substr(0, root.name.find(':') + 1).append(name);
}

XmlElement* FindBy(XmlElement& root, std::string_view attribute, std::string_view value)
{
    const auto found =
        std::ranges::find_if(root.children, [&](const XmlElement& one) { return one.Attribute(attribute) == value; });
    return found == root.children.end() ? nullptr : &*found;
}

void CollectText(const XmlElement& element, std::string& text)
{
    if (element.LocalName() == "t") text += element.text;
    for (const XmlElement& child : element.children)
        CollectText(child, text);
}

bool HoldsTitlePlaceholder(const XmlElement& element)
{
    if (element.LocalName() == "ph") {
        const std::string type = element.Attribute("type");
        return type == "title" || type == "ctrTitle";
    }
    return std::ranges::any_of(element.children, HoldsTitlePlaceholder);
}

const XmlElement* FindTitleShape(const XmlElement& element)
{
    if (element.LocalName() == "sp" && HoldsTitlePlaceholder(element)) return &element;
    for (const XmlElement& child : element.children)
        if (const XmlElement* found = FindTitleShape(child)) return found;
    return nullptr;
}

} // namespace

OfficePackage OfficePackage::New(HostKind host, std::string_view title, std::string_view author)
{
    return OfficePackage{NewPackageParts(host, title, author)};
}

OfficePackage OfficePackage::Parse(std::string_view bytes)
{
    OfficePackage package{Zip::Parse(bytes)};
    if (package.m_zip.Find(kContentTypes) == nullptr || package.PartOfRelation("/officeDocument").empty())
        throw std::runtime_error{"the archive is not a document of Office"};
    return package;
}

std::vector<CustomProperty> OfficePackage::CustomProperties() const
{
    const std::string* part = m_zip.Find(PartOfRelation("/custom-properties"));
    return part != nullptr ? ReadCustomProperties(*part) : std::vector<CustomProperty>{};
}

void OfficePackage::SetCustomProperties(const std::vector<CustomProperty>& properties)
{
    std::string part = PartOfRelation("/custom-properties");
    if (part.empty()) {
        if (properties.empty()) return;
        part = kCustomPart;
        AddRelation(kCustomRelation, part);
    }
    SetContentType(part, kCustomType);
    m_zip.Set(part, WriteCustomProperties(properties));
}

std::string OfficePackage::CoreProperty(std::string_view element) const
{
    const std::string* part = m_zip.Find(PartOfRelation("/core-properties"));
    if (part == nullptr) return {};
    const XmlElement root = ParseXml(*part);
    const XmlElement* found = root.Child(element.substr(element.find(':') + 1));
    return found != nullptr ? found->text : std::string{};
}

void OfficePackage::SetCoreProperty(std::string_view element, std::string_view value)
{
    const std::string part = PartOfRelation("/core-properties");
    const std::string* text = m_zip.Find(part);
    if (text == nullptr) return;
    XmlElement root = ParseXml(*text);
    XmlElement* found = root.Child(element.substr(element.find(':') + 1));
    if (found == nullptr) found = &root.children.emplace_back(XmlElement{std::string{element}});
    if (found->text == value) return;
    found->text = value;
    m_zip.Set(part, WriteXml(root));
}

std::string OfficePackage::SlideTitle() const
{
    const std::string* part = m_zip.Find("ppt/slides/slide1.xml");
    if (part == nullptr) return {};
    const XmlElement slide = ParseXml(*part);
    std::string title;
    if (const XmlElement* shape = FindTitleShape(slide)) CollectText(*shape, title);
    return title;
}

std::string OfficePackage::MainType() const
{
    std::string part{'/'};
    part += PartOfRelation("/officeDocument");
    for (const XmlElement& entry : ParseXml(*m_zip.Find(kContentTypes)).children)
        if (entry.Attribute("PartName") == part) return entry.Attribute("ContentType");
    return {};
}

void OfficePackage::SetMainType(std::string_view type) { SetContentType(PartOfRelation("/officeDocument"), type); }

std::string OfficePackage::PartOfRelation(std::string_view typeEnd) const
{
    const std::string* part = m_zip.Find(kRelations);
    if (part == nullptr) return {};
    for (const XmlElement& relation : ParseXml(*part).children)
        if (relation.Attribute("Type").ends_with(typeEnd)) return PartName(relation.Attribute("Target"));
    return {};
}

void OfficePackage::AddRelation(std::string_view type, std::string_view target)
{
    XmlElement root = ParseXml(*m_zip.Find(kRelations));
    int number = 1;
    while (FindBy(root, "Id", "rId" + std::to_string(number)) != nullptr)
        ++number;
    root.children.push_back({.name = NameBelow(root, "Relationship"),
                             .attributes = {{"Id", "rId" + std::to_string(number)},
                                            {"Type", std::string{type}},
                                            {"Target", std::string{target}}}});
    m_zip.Set(kRelations, WriteXml(root));
}

void OfficePackage::SetContentType(std::string_view part, std::string_view type)
{
    std::string partName{'/'};
    partName += part;
    XmlElement root = ParseXml(*m_zip.Find(kContentTypes));
    XmlElement* entry = FindBy(root, "PartName", partName);
    if (entry != nullptr && entry->Attribute("ContentType") == type) return;
    if (entry == nullptr)
        entry = &root.children.emplace_back(XmlElement{NameBelow(root, "Override"), {{"PartName", partName}}});
    entry->attributes["ContentType"] = type;
    m_zip.Set(kContentTypes, WriteXml(root));
}

} // namespace host
