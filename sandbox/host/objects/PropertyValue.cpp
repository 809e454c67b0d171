#include "objects/PropertyValue.h"

#include "automation/Errors.h"
#include "base/Text.h"
#include "package/FileTime.h"
#include "platform/Procedure.h"

namespace host
{
namespace
{

Variant DateOf(const SYSTEMTIME& time)
{
    DATE date = 0;
    return ::SystemTimeToVariantTime(const_cast<SYSTEMTIME*>(&time), &date) ? Variant::OfDate(date) : Variant{};
}

std::string TextOfDate(DATE date)
{
    SYSTEMTIME time{};
    if (!::VariantTimeToSystemTime(date, &time)) throw Error{DISP_E_TYPEMISMATCH, {}, L"Type mismatch."};
    return FromSystemTime(time);
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
    Variant text{Widen(property.value)};
    Variant value;
    corvane::Ignoring([&] {
        switch (property.type) {
        case PropertyType::Number:
            value = text.As(VT_I4);
            break;
        case PropertyType::Boolean:
            value = property.value == "true";
            break;
        case PropertyType::Date:
            if (const auto time = ToSystemTime(property.value)) value = DateOf(*time);
            break;
        case PropertyType::Float:
            value = text.As(VT_R8);
            break;
        case PropertyType::Text:
            break;
        }
    });
    // A file may hold a value that its type does not allow: its text is all there is to show.
    return value.IsMissing() ? std::move(text) : std::move(value);
}

CustomProperty FromValue(std::string name, PropertyType type, const Variant& value)
{
    return {std::move(name), type, PackageText(type, value)};
}

} // namespace host
