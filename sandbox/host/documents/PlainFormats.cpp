#include "documents/PlainFormats.h"

#include "automation/Text.h"

namespace host
{
namespace
{

std::string RichText(const std::string& text)
{
    std::string out;
    for (const wchar_t unit : Widen(text)) {
        if (unit == L'\\' || unit == L'{' || unit == L'}') out += '\\';
        if (unit >= 0x20 && unit < 0x80)
            out += static_cast<char>(unit);
        else
            out += "\\u" + std::to_string(static_cast<short>(unit)) + "?";
    }
    return out;
}

// The numbers of \proptype.
int RichTextType(PropertyType type)
{
    switch (type) {
    case PropertyType::Number:
        return 3;
    case PropertyType::Boolean:
        return 11;
    case PropertyType::Date:
        return 64;
    case PropertyType::Float:
        return 5;
    case PropertyType::Text:
        break;
    }
    return 30;
}

} // namespace

std::string WriteRichText(const DocumentContents& contents)
{
    const std::string title = RichText(contents.BuiltIn("Title"));
    std::string out = "{\\rtf1\\ansi\\uc1{\\info{\\title " + title + "}{\\author " +
                      RichText(contents.BuiltIn("Author")) + "}}\r\n{\\*\\userprops ";
    for (const CustomProperty& property : contents.custom)
        out += "{\\propname " + RichText(property.name) + "}\\proptype" + std::to_string(RichTextType(property.type)) +
               "{\\staticval " + RichText(property.value) + "}";
    return out + "}\r\n" + title + "\\par}\r\n";
}

std::string WriteValues(const DocumentContents& contents)
{
    std::wstring value = L"\"";
    for (const wchar_t unit : Widen(contents.BuiltIn("Title")))
        value += unit == L'"' ? std::wstring(2, unit) : std::wstring(1, unit);
    return ToCodePage(value + L"\"\r\n");
}

} // namespace host
