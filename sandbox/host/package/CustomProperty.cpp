#include "package/CustomProperty.h"

#include <algorithm>
#include <cstdio>

#include "package/Xml.h"

namespace host
{
namespace
{

constexpr char kNamespace[] = "http://schemas.openxmlformats.org/officeDocument/2006/custom-properties";
constexpr char kTypesNamespace[] = "http://schemas.openxmlformats.org/officeDocument/2006/docPropsVTypes";
constexpr char kUserDefinedSet[] = "{D5CDD505-2E9C-101B-9397-08002B2CF9AE}";
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

std::string ElementOf(PropertyType type)
{
    return "vt:" + std::string{std::ranges::find(kTypeNames, type, &TypeName::type)->element};
}

PropertyType TypeOf(std::string_view element)
{
    const auto row = std::ranges::find(kTypeNames, element, &TypeName::element);
    return row == std::end(kTypeNames) ? PropertyType::Text : row->type;
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
    XmlElement root{.name = "Properties", .attributes = {{"xmlns", kNamespace}, {"xmlns:vt", kTypesNamespace}}};
    int id = kFirstPropertyId;
    for (const CustomProperty& property : properties)
        root.children.push_back(
            {.name = "property",
             .attributes = {{"fmtid", kUserDefinedSet}, {"pid", std::to_string(id++)}, {"name", property.name}},
             .children = {{.name = ElementOf(property.type), .text = property.value}}});
    return WriteXml(root);
}

std::optional<SYSTEMTIME> ToSystemTime(const std::string& text)
{
    SYSTEMTIME time{};
    const int fields = std::sscanf(text.c_str(), "%hu-%hu-%huT%hu:%hu:%hu", &time.wYear, &time.wMonth, &time.wDay,
                                   &time.wHour, &time.wMinute, &time.wSecond);
    return fields < 3 ? std::nullopt : std::optional{time};
}

std::string FromSystemTime(const SYSTEMTIME& time)
{
    char text[64];
    std::snprintf(text, sizeof text, "%04hu-%02hu-%02huT%02hu:%02hu:%02huZ", time.wYear, time.wMonth, time.wDay,
                  time.wHour, time.wMinute, time.wSecond);
    return text;
}

std::int64_t ToFileTime(const std::string& text)
{
    FILETIME steps{};
    if (const auto time = ToSystemTime(text)) ::SystemTimeToFileTime(&*time, &steps);
    return static_cast<std::int64_t>(std::uint64_t{steps.dwHighDateTime} << 32 | steps.dwLowDateTime);
}

std::string FromFileTime(std::int64_t steps)
{
    const auto bits = static_cast<std::uint64_t>(steps);
    const FILETIME file{static_cast<DWORD>(bits), static_cast<DWORD>(bits >> 32)};
    SYSTEMTIME time{};
    ::FileTimeToSystemTime(&file, &time);
    return FromSystemTime(time);
}

} // namespace host
