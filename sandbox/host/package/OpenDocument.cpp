#include "package/OpenDocument.h"

#include "package/Xml.h"
#include "package/Zip.h"

namespace host
{
namespace
{

constexpr std::string_view kNames = "urn:oasis:names:tc:opendocument:xmlns:";

std::string_view ValueType(PropertyType type)
{
    switch (type) {
    case PropertyType::Number:
    case PropertyType::Float:
        return "float";
    case PropertyType::Boolean:
        return "boolean";
    case PropertyType::Date:
        return "date";
    case PropertyType::Text:
        break;
    }
    return "string";
}

XmlElement Root(std::string_view name)
{
    XmlElement root{.name = std::string{name}};
    for (const std::string_view prefix : {"office", "meta", "text", "table"})
        root.SetAttribute("xmlns:" + std::string{prefix}, std::string{kNames} + std::string{prefix} + ":1.0");
    root.SetAttribute("xmlns:draw", std::string{kNames} + "drawing:1.0");
    root.SetAttribute("xmlns:dc", "http://purl.org/dc/elements/1.1/");
    root.SetAttribute("office:version", "1.2");
    return root;
}

std::string Meta(const DocumentContents& contents)
{
    XmlElement meta{.name = "office:meta"};
    meta.children.push_back({.name = "dc:title", .text = contents.BuiltIn("Title")});
    meta.children.push_back({.name = "meta:initial-creator", .text = contents.BuiltIn("Author")});
    for (const CustomProperty& property : contents.custom) {
        XmlElement element{.name = "meta:user-defined", .text = property.value};
        element.SetAttribute("meta:name", property.name);
        element.SetAttribute("meta:value-type", ValueType(property.type));
        meta.children.push_back(std::move(element));
    }
    XmlElement root = Root("office:document-meta");
    root.children.push_back(std::move(meta));
    return WriteXml(root);
}

// The body's elements from the outside in, by the media type's last word.
std::vector<std::string_view> BodyOf(std::string_view mediaType)
{
    if (mediaType.ends_with("spreadsheet"))
        return {"office:body", "office:spreadsheet", "table:table", "table:table-row", "table:table-cell", "text:p"};
    if (mediaType.ends_with("presentation"))
        return {"office:body", "office:presentation", "draw:page", "draw:frame", "draw:text-box", "text:p"};
    return {"office:body", "office:text", "text:p"};
}

std::string Content(std::string_view mediaType, const std::string& title)
{
    XmlElement root = Root("office:document-content");
    XmlElement* inner = &root;
    for (const std::string_view name : BodyOf(mediaType)) {
        inner->children.push_back({.name = std::string{name}});
        inner = &inner->children.back();
    }
    inner->text = title;
    return WriteXml(root);
}

std::string Manifest(std::string_view mediaType)
{
    XmlElement root{.name = "manifest:manifest"};
    root.SetAttribute("xmlns:manifest", std::string{kNames} + "manifest:1.0");
    root.SetAttribute("manifest:version", "1.2");
    for (const std::string_view path : {"/", "content.xml", "meta.xml"}) {
        XmlElement entry{.name = "manifest:file-entry"};
        entry.SetAttribute("manifest:full-path", path);
        entry.SetAttribute("manifest:media-type", path == "/" ? mediaType : "text/xml");
        root.children.push_back(std::move(entry));
    }
    return WriteXml(root);
}

} // namespace

std::string WriteOpenDocument(std::string_view mediaType, const DocumentContents& contents)
{
    Zip zip;
    zip.Set("mimetype", std::string{mediaType});
    zip.Set("META-INF/manifest.xml", Manifest(mediaType));
    zip.Set("content.xml", Content(mediaType, contents.BuiltIn("Title")));
    zip.Set("meta.xml", Meta(contents));
    return zip.Write();
}

} // namespace host
