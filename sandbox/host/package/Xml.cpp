#include "package/Xml.h"

#include "platform/Utf8.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <stdexcept>
#include <utility>

namespace host
{
namespace
{

constexpr std::pair<char, std::string_view> kReferences[] = {
    {'&', "&amp;"},   {'<', "&lt;"},  {'>', "&gt;"},   {'"', "&quot;"},
    {'\'', "&apos;"}, {'\t', "&#9;"}, {'\n', "&#10;"}, {'\r', "&#13;"},
};

class Reader
{
public:
    explicit Reader(std::string_view text) : m_text{text}
    {
        if (m_text.starts_with("\xef\xbb\xbf")) m_at = 3;
    }

    XmlElement Document()
    {
        SkipMisc();
        XmlElement root = Element(0);
        SkipMisc();
        if (m_at != m_text.size()) Fail("text after the root element");
        return root;
    }

private:
    static constexpr int kDeepest = 200;

    [[noreturn]] void Fail(const std::string& what) const
    {
        throw std::runtime_error{what + " at offset " + std::to_string(m_at)};
    }

    [[nodiscard]] bool At(std::string_view token) const { return m_text.substr(m_at).starts_with(token); }

    bool Take(std::string_view token)
    {
        if (!At(token)) return false;
        m_at += token.size();
        return true;
    }

    void Expect(std::string_view token)
    {
        if (!Take(token)) Fail(std::string{token} + " expected");
    }

    void SkipBlanks() { m_at = std::min(m_text.find_first_not_of(" \t\r\n", m_at), m_text.size()); }

    std::string_view Until(std::string_view token)
    {
        const std::size_t end = m_text.find(token, m_at);
        if (end == std::string_view::npos) Fail(std::string{token} + " missing");
        const std::string_view part = m_text.substr(m_at, end - m_at);
        m_at = end + token.size();
        return part;
    }

    void SkipMisc()
    {
        for (SkipBlanks(); At("<?") || At("<!--"); SkipBlanks())
            Until(At("<?") ? "?>" : "-->");
    }

    std::string Name()
    {
        const std::size_t end = std::min(m_text.find_first_of(" \t\r\n=/><\"'&", m_at), m_text.size());
        if (end == m_at) Fail("a name expected");
        std::string name{m_text.substr(m_at, end - m_at)};
        m_at = end;
        return name;
    }

    void AppendReference(std::string& out)
    {
        for (const auto& [letter, reference] : kReferences)
            if (Take(reference)) {
                out += letter;
                return;
            }
        Expect("&#");
        const int base = Take("x") ? 16 : 10;
        const std::string_view digits = Until(";");
        std::uint32_t code = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, base);
        if (error != std::errc{} || end != digits.data() + digits.size() || code > 0x10ffff) Fail("a bad reference");
        corvane::AppendUtf8(out, code);
    }

    // Character data up to, not including, one of the stop letters.
    std::string Characters(std::string_view stops)
    {
        std::string out;
        while (m_at < m_text.size() && stops.find(m_text[m_at]) == std::string_view::npos) {
            if (m_text[m_at] == '&')
                AppendReference(out);
            else
                out += m_text[m_at++];
        }
        return out;
    }

    void Attributes(XmlElement& element)
    {
        for (SkipBlanks(); !At(">") && !At("/>"); SkipBlanks()) {
            const std::string name = Name();
            SkipBlanks();
            Expect("=");
            SkipBlanks();
            const std::string_view quote = At("'") ? "'" : "\"";
            Expect(quote);
            const bool isNew = element.attributes.try_emplace(name, Characters(quote == "'" ? "'<" : "\"<")).second;
            if (!isNew) Fail(name + " is given twice");
            Expect(quote);
        }
    }

    void Content(XmlElement& element, int depth)
    {
        while (!At("</")) {
            if (m_at >= m_text.size()) Fail(element.name + " is not closed");
            if (Take("<![CDATA["))
                element.text += Until("]]>");
            else if (At("<!--") || At("<?"))
                Until(At("<?") ? "?>" : "-->");
            else if (At("<"))
                element.children.push_back(Element(depth + 1));
            else
                element.text += Characters("<");
        }
    }

    XmlElement Element(int depth)
    {
        if (depth > kDeepest) Fail("elements nested too deep");
        Expect("<");
        XmlElement element;
        element.name = Name();
        Attributes(element);
        if (Take("/>")) return element;
        Expect(">");
        Content(element, depth);
        Expect("</");
        if (Name() != element.name) Fail("the end of " + element.name + " expected");
        SkipBlanks();
        Expect(">");
        return element;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
};

void AppendElement(std::string& out, const XmlElement& element)
{
    out.append("<").append(element.name);
    for (const auto& [name, value] : element.attributes)
        out.append(" ").append(name).append("=\"").append(EscapeXml(value)).append("\"");
    if (element.text.empty() && element.children.empty()) {
        out += "/>";
        return;
    }
    out.append(">").append(EscapeXml(element.text));
    for (const XmlElement& child : element.children)
        AppendElement(out, child);
    out.append("</").append(element.name).append(">");
}

} // namespace

std::string_view XmlElement::LocalName() const
{
    return std::string_view{name}.substr(name.find(':') + 1); // from the start where there is no colon
}

std::string XmlElement::Attribute(std::string_view attribute) const
{
    const auto found = attributes.find(attribute);
    return found == attributes.end() ? std::string{} : found->second;
}

const XmlElement* XmlElement::Child(std::string_view localName) const
{
    const auto found = std::ranges::find(children, localName, &XmlElement::LocalName);
    return found == children.end() ? nullptr : &*found;
}

XmlElement* XmlElement::Child(std::string_view localName)
{
    return const_cast<XmlElement*>(std::as_const(*this).Child(localName));
}

std::string EscapeXml(std::string_view text)
{
    std::string out;
    for (const char letter : text) {
        const auto* reference = std::ranges::find(kReferences, letter, &std::pair<char, std::string_view>::first);
        reference == std::end(kReferences) ? out += letter : out += reference->second;
    }
    return out;
}

XmlElement ParseXml(std::string_view text) { return Reader{text}.Document(); }

std::string WriteXml(const XmlElement& root)
{
    std::string out = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)";
    AppendElement(out, root);
    return out;
}

} // namespace host
