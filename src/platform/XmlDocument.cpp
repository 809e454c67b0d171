#include "platform/XmlDocument.h"

#include "platform/Error.h"
#include "platform/HResult.h"
#include "platform/Variant.h"
#include "platform/XmlScreening.h"

namespace corvane
{
namespace
{

// IXMLDOMDocument2 and the parser classes 4.0, 6.0 and 3.0, as registered by the platform.
constexpr IID kDocument2 = {0x2933BF95, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};
constexpr CLSID kParserClasses[] = {
    {0x88D969C0, 0xF192, 0x11D4, {0xA6, 0x5F, 0x00, 0x40, 0x96, 0x32, 0x51, 0xE5}},
    {0x88D96A05, 0xF192, 0x11D4, {0xA6, 0x5F, 0x00, 0x40, 0x96, 0x32, 0x51, 0xE5}},
    {0xF5078F32, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}},
};

ComPtr<IXMLDOMDocument2> CreateParser()
{
    HRESULT result = REGDB_E_CLASSNOTREG;
    for (const CLSID& classId : kParserClasses) {
        ComPtr<IXMLDOMDocument2> document;
        result = ::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, kDocument2,
                                    reinterpret_cast<void**>(document.GetAddressOf()));
        if (SUCCEEDED(result)) return document;
    }
    throw Error{ErrorNumberOf(result), L"CreateParser", L"The XML parser of the system cannot be created."};
}

// Sets a property that not every parser version knows.
void SetIfKnown(IXMLDOMDocument2& document, const wchar_t* name, const Variant& value)
{
    document.setProperty(Bstr{name}.Get(), value.Get());
}

// Steps from a node to the first element at or after it.
XmlNode ElementFrom(ComPtr<IXMLDOMNode> node)
{
    while (node != nullptr) {
        DOMNodeType type = NODE_INVALID;
        node->get_nodeType(&type);
        if (type == NODE_ELEMENT) break;
        ComPtr<IXMLDOMNode> next;
        node->get_nextSibling(next.GetAddressOf());
        node = next;
    }
    return XmlNode{node};
}

} // namespace

std::optional<std::wstring> XmlNode::Attribute(const wchar_t* name) const
{
    ComPtr<IXMLDOMElement> element;
    if (m_node == nullptr || FAILED(m_node->QueryInterface(IID_IXMLDOMElement, &element))) return std::nullopt;
    Variant value;
    if (element->getAttribute(Bstr{name}.Get(), value.Put()) != S_OK) return std::nullopt;
    return value.Text();
}

XmlNode XmlNode::FirstElement() const
{
    ComPtr<IXMLDOMNode> child;
    if (m_node != nullptr) m_node->get_firstChild(child.GetAddressOf());
    return ElementFrom(child);
}

XmlNode XmlNode::NextElement() const
{
    ComPtr<IXMLDOMNode> next;
    if (m_node != nullptr) m_node->get_nextSibling(next.GetAddressOf());
    return ElementFrom(next);
}

bool XmlNode::IsNamed(std::wstring_view name) const
{
    Bstr own;
    if (m_node != nullptr) m_node->get_nodeName(own.Put());
    return ViewOf(own.Get()) == name;
}

void XmlNode::SetAttribute(const wchar_t* name, std::wstring_view value)
{
    ComPtr<IXMLDOMElement> element;
    constexpr const wchar_t* kSource = L"XmlNode.SetAttribute";
    Check(m_node->QueryInterface(IID_IXMLDOMElement, &element), kSource);
    Check(element->setAttribute(Bstr{name}.Get(), Variant{value}.Get()), kSource);
}

void XmlNode::Append(const XmlNode& child)
{
    Check(m_node->appendChild(child.m_node.Get(), nullptr), L"XmlNode.Append");
}

XmlDocument::XmlDocument() : m_document{CreateParser()}
{
    m_document->put_async(VARIANT_FALSE);
    m_document->put_validateOnParse(VARIANT_FALSE);
    m_document->put_resolveExternals(VARIANT_FALSE);
    SetIfKnown(*m_document.Get(), L"ProhibitDTD", true);
    SetIfKnown(*m_document.Get(), L"SelectionLanguage", L"XPath");
}

bool XmlDocument::Load(const std::wstring& text, const wchar_t* selectionNamespaces)
{
    if (selectionNamespaces != nullptr)
        Check(m_document->setProperty(Bstr{L"SelectionNamespaces"}.Get(), Variant{selectionNamespaces}.Get()),
              L"XmlDocument.Load");
    if (!IsFitToParse(text)) return false;
    VARIANT_BOOL loaded = VARIANT_FALSE;
    return SUCCEEDED(m_document->loadXML(Bstr{text}.Get(), &loaded)) && loaded == VARIANT_TRUE;
}

std::vector<XmlNode> XmlDocument::Select(const wchar_t* path) const
{
    ComPtr<IXMLDOMNodeList> list;
    Check(m_document->selectNodes(Bstr{path}.Get(), list.GetAddressOf()), L"XmlDocument.Select");
    std::vector<XmlNode> nodes;
    for (;;) {
        ComPtr<IXMLDOMNode> node;
        if (list->nextNode(node.GetAddressOf()) != S_OK) return nodes;
        nodes.emplace_back(std::move(node));
    }
}

XmlNode XmlDocument::SelectFirst(const wchar_t* path) const
{
    ComPtr<IXMLDOMNode> node;
    if (FAILED(m_document->selectSingleNode(Bstr{path}.Get(), node.GetAddressOf()))) return XmlNode{};
    return XmlNode{std::move(node)};
}

XmlNode XmlDocument::CreateElement(const wchar_t* name, const std::wstring& namespaceUri) const
{
    ComPtr<IXMLDOMNode> node;
    Variant kind{static_cast<std::int32_t>(NODE_ELEMENT)};
    Check(m_document->createNode(kind.Get(), Bstr{name}.Get(), Bstr{namespaceUri}.Get(), node.GetAddressOf()),
          L"XmlDocument.CreateElement");
    return XmlNode{std::move(node)};
}

void XmlDocument::Append(const XmlNode& root) { XmlNode{ComPtr<IXMLDOMNode>{m_document.Get()}}.Append(root); }

std::wstring XmlDocument::Text() const
{
    Bstr text;
    Check(m_document->get_xml(text.Put()), L"XmlDocument.Text");
    return text.Text();
}

} // namespace corvane
