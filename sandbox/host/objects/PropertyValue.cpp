#include "objects/PropertyValue.h"

#include <cstdio>
#include <iterator>

#include "automation/Errors.h"
#include "automation/Text.h"

namespace host
{
namespace
{

Variant DateOf(const std::string& text)
{
    SYSTEMTIME time{};
    DATE date = 0;
    const int fields = std::sscanf(text.c_str(), "%hu-%hu-%huT%hu:%hu:%hu", &time.wYear, &time.wMonth, &time.wDay,
                                   &time.wHour, &time.wMinute, &time.wSecond);
    if (fields < 3 || !::SystemTimeToVariantTime(&time, &date)) return Variant{Widen(text)};
    return Variant::OfDate(date);
}

std::string TextOfDate(DATE date)
{
    SYSTEMTIME time{};
    if (!::VariantTimeToSystemTime(date, &time)) throw Error{DISP_E_TYPEMISMATCH, {}, L"Type mismatch."};
    char text[64];
    std::snprintf(text, std::size(text), "%04hu-%02hu-%02huT%02hu:%02hu:%02huZ", time.wYear, time.wMonth, time.wDay,
                  time.wHour, time.wMinute, time.wSecond);
    return text;
}

std::string PackageText(PropertyType type, const Variant& value)
{
    switch (type) {
    case PropertyType::Number:
        return std::to_string(value.Number());
    case PropertyType::Boolean:
        return value.Boolean() ? "true" : "false";
    case PropertyType::Date:
        return TextOfDate(value.As(VT_DATE).Get().date);
    case PropertyType::Float:
        return Narrow(value.As(VT_R8).As(VT_BSTR).Text());
    case PropertyType::Text:
        return Narrow(value.Text());
    }
    throw Error{E_INVALIDARG, {}, L"Unknown property type."};
}

} // namespace

Variant ToValue(const CustomProperty& property)
{
    const Variant text{Widen(property.value)};
    try {
        switch (property.type) {
        case PropertyType::Number:
            return text.As(VT_I4);
        case PropertyType::Boolean:
            return Variant{property.value == "true"};
        case PropertyType::Date:
            return DateOf(property.value);
        case PropertyType::Float:
            return text.As(VT_R8);
        case PropertyType::Text:
            break;
        }
    } catch (const Error&) {
        // A file may hold a value that its type does not allow: its text is all there is to show.
    }
    return Widen(property.value);
}

CustomProperty FromValue(std::string name, PropertyType type, const Variant& value)
{
    return {std::move(name), type, PackageText(type, value)};
}

} // namespace host
