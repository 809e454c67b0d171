#include "addin/RibbonXml.h"

#include "platform/XmlDocument.h"

namespace corvane
{
namespace
{

XmlNode Build(const XmlDocument& document, const RibbonElement& element, const std::wstring& namespaceUri)
{
    XmlNode node = document.CreateElement(element.name.c_str(), namespaceUri);
    for (const auto& [name, value] : element.attributes)
        node.SetAttribute(name.c_str(), value);
    for (const RibbonElement& child : element.children)
        node.Append(Build(document, child, namespaceUri));
    return node;
}

} // namespace

std::wstring RibbonXmlText(const RibbonElement& root, const std::wstring& namespaceUri)
{
    XmlDocument document;
    document.Append(Build(document, root, namespaceUri));
    return document.Text();
}

} // namespace corvane
