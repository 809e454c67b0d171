#include "package/CustomProperty.h"

#include "package/Xml.h"

namespace host
{
namespace
{

constexpr std::string_view kNamespace = "http://schemas.openxmlformats.org/officeDocument/2006/custom-properties";
constexpr std::string_view kTypesNamespace = "http://schemas.openxmlformats.org/officeDocument/2006/docPropsVTypes";
constexpr std::string_view kUserDefinedSet = "{D5CDD505-2E9C-101B-9397-08002B2CF9AE}";
constexpr int kFirstPropertyId = 2;

struct TypeName
{
    std::string_view element;
    PropertyType type;
};

// The first row of a type is the element it is written as.
constexpr TypeName kTypeNames[] = {
    {"lpwstr", PropertyType::Text},   {"i4", PropertyType::Number},     {"bool", PropertyType::Boolean},
    {"r8", PropertyType::Float},      {"filetime", PropertyType::Date}, {"int", PropertyType::Number},
    {"i1", PropertyType::Number},     {"i2", PropertyType::Number},     {"i8", PropertyType::Number},
    {"uint", PropertyType::Number},   {"ui1", PropertyType::Number},    {"ui2", PropertyType::Number},
    {"ui4", PropertyType::Number},    {"ui8", PropertyType::Number},    {"r4", PropertyType::Float},
    {"decimal", PropertyType::Float}, {"date", PropertyType::Date},
};

PropertyType TypeOf(std::string_view element)
{
    for (const TypeName& row : kTypeNames)
        if (row.element == element) return row.type;
    return PropertyType::Text;
}

std::string ElementOf(PropertyType type)
{
    for (const TypeName& row : kTypeNames)
        if (row.type == type) return "vt:" + std::string{row.element};
    return "vt:lpwstr";
}

} // namespace

std::vector<CustomProperty> ReadCustomProperties(std::string_view part)
{
    std::vector<CustomProperty> properties;
    for (const XmlElement& element : ParseXml(part).children) {
        if (element.LocalName() != "property" || element.children.empty()) continue;
        const XmlElement& value = element.children.front();
        CustomProperty property{element.Attribute("name"), TypeOf(value.LocalName()), value.text};
        if (property.type == PropertyType::Boolean)
            property.value = value.text == "1" || value.text == "true" ? "true" : "false";
        properties.push_back(std::move(property));
    }
    return properties;
}

std::string WriteCustomProperties(const std::vector<CustomProperty>& properties)
{
    XmlElement root{.name = "Properties"};
    root.SetAttribute("xmlns", kNamespace);
    root.SetAttribute("xmlns:vt", kTypesNamespace);
    int id = kFirstPropertyId;
    for (const CustomProperty& property : properties) {
        XmlElement element{.name = "property"};
        element.SetAttribute("fmtid", kUserDefinedSet);
        element.SetAttribute("pid", std::to_string(id++));
        element.SetAttribute("name", property.name);
        element.children.push_back({.name = ElementOf(property.type), .text = property.value});
        root.children.push_back(std::move(element));
    }
    return WriteXml(root);
}

} // namespace host
