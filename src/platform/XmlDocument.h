// XML documents through the platform's parser: answers are read, the ribbon is built.
#pragma once

#include "platform/Owners.h"

#include <msxml2.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane
{

// One node of a document; an empty one stands for "not there".
class XmlNode
{
public:
    XmlNode() = default;
    explicit XmlNode(ComPtr<IXMLDOMNode> node) noexcept : m_node{std::move(node)} {}

    explicit operator bool() const noexcept { return m_node != nullptr; }

    // The text of an attribute, or nothing when the node does not carry it.
    [[nodiscard]] std::optional<std::wstring> Attribute(const wchar_t* name) const;
    // The text of an attribute, empty when the node does not carry it.
    [[nodiscard]] std::wstring Text(const wchar_t* attribute) const { return Attribute(attribute).value_or(L""); }

    // The node's first child element, and the next element after the node; empty at the end.
    [[nodiscard]] XmlNode FirstElement() const;
    [[nodiscard]] XmlNode NextElement() const;
    [[nodiscard]] bool IsNamed(std::wstring_view name) const;

    // Sets an attribute of an element; attributes keep the order in which they are set.
    void SetAttribute(const wchar_t* name, std::wstring_view value);
    void Append(const XmlNode& child);

private:
    ComPtr<IXMLDOMNode> m_node;
};

// A document of the parser's version 4.0, or 6.0, or 3.0 with XPath, whichever the machine has. Nothing in it is ever
// fetched from elsewhere: no document type, no external entities, no validation, no asynchronous loading.
class XmlDocument
{
public:
    // An empty document; throws Error when the machine has no parser.
    XmlDocument();

    // Parses text into the document; selectionNamespaces are the prefixes for Select ("xmlns:z='...' ...").
    // False, leaving the document empty, when the text is not well-formed or not fit for a parser (XmlScreening.h).
    bool Load(const std::wstring& text, const wchar_t* selectionNamespaces = nullptr);

    // The nodes that an XPath expression selects, in document order, or the first of them.
    [[nodiscard]] std::vector<XmlNode> Select(const wchar_t* path) const;
    [[nodiscard]] XmlNode SelectFirst(const wchar_t* path) const;

    // A new element, not yet in the tree.
    [[nodiscard]] XmlNode CreateElement(const wchar_t* name, const std::wstring& namespaceUri) const;
    void Append(const XmlNode& root);
    [[nodiscard]] std::wstring Text() const;

    [[nodiscard]] IXMLDOMDocument2* Get() const noexcept { return m_document.Get(); }

private:
    ComPtr<IXMLDOMDocument2> m_document;
};

} // namespace corvane
