// XML in UTF-8 as trees of values. It is read here, not by the system: Wine's parser does not tell which namespaces an
// element declares, on which both ribbons and packages hang, and its reader spoils letters where its blocks meet.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace host
{

// An element of an XML document in UTF-8. Names keep their prefixes; comments and processing instructions are dropped.
struct XmlElement
{
    std::string name;
    std::map<std::string, std::string, std::less<>> attributes{}; // those that declare namespaces among them
    std::string text{};                                           // the character data directly inside, joined
    std::vector<XmlElement> children{};

    [[nodiscard]] std::string_view LocalName() const;

    // The attribute's value, or an empty text.
    [[nodiscard]] std::string Attribute(std::string_view attribute) const;

    // The first child of this local name, or null.
    [[nodiscard]] const XmlElement* Child(std::string_view localName) const;
    [[nodiscard]] XmlElement* Child(std::string_view localName);
};

// Returns the root element. Throws std::runtime_error, with the offset, when the text is not well formed.
// Document type declarations are refused: no package part and no ribbon carries one.
[[nodiscard]] XmlElement ParseXml(std::string_view text);

// Writes a document with its declaration, on one line as packages do.
[[nodiscard]] std::string WriteXml(const XmlElement& root);

// The text with the letters that XML reserves, and line ends and tabs, as references.
[[nodiscard]] std::string EscapeXml(std::string_view text);

} // namespace host
