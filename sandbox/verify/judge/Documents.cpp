#include "judge/Documents.h"

#include "judge/Failure.h"
#include "judge/Text.h"
#include "judge/Zip.h"

#include <pugixml.hpp>

namespace verify
{
namespace
{

pugi::xml_document Parsed(const std::string& name, std::string_view xml)
{
    pugi::xml_document document;
    const auto result = document.load_buffer(xml.data(), xml.size());
    Require(result, name + " is no XML: " + result.description());
    return document;
}

// A name without its prefix.
std::string Local(const char* name)
{
    const std::string_view whole = name;
    return std::string{whole.substr(whole.find(':') + 1)}; // npos + 1 is 0
}

pugi::xml_node FirstElement(const pugi::xml_node& node)
{
    return node.find_child([](const pugi::xml_node& child) { return child.type() == pugi::node_element; });
}

void AppendTexts(const pugi::xml_node& element, std::vector<std::string>& texts)
{
    for (const char* name : {"label", "screentip", "supertip"})
        if (const auto text = Trimmed(element.attribute(name).value()); !text.empty()) texts.emplace_back(text);
    for (const auto& child : element.children())
        AppendTexts(child, texts);
}

} // namespace

std::vector<CustomProperty> CustomProperties(const std::string& name, std::string_view bytes)
{
    const auto parts = UnpackZip(name, bytes);
    const auto part = parts.find("docProps/custom.xml");
    std::vector<CustomProperty> properties;
    if (part == parts.end()) return properties;
    const auto document = Parsed(part->first, part->second);
    for (const auto& property : document.document_element().children()) {
        const auto value = FirstElement(property);
        properties.push_back({property.attribute("name").value(), Local(value.name()), value.child_value()});
    }
    return properties;
}

std::vector<std::string> RibbonTexts(std::string_view xml)
{
    std::vector<std::string> texts;
    AppendTexts(Parsed("the ribbon", xml), texts);
    return texts;
}

} // namespace verify
