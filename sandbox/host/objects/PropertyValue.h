// Values of properties between packages and Automation.
#pragma once

#include "package/CustomProperty.h"
#include "platform/Variant.h"

namespace host
{

using corvane::Variant;

// The property's value as Automation sees it, by its type: a number, Boolean, date, text or float.
[[nodiscard]] Variant ToValue(const CustomProperty& property);

// The property with this value converted to the type. Throws Error when the value does not convert.
[[nodiscard]] CustomProperty FromValue(std::string name, PropertyType type, const Variant& value);

} // namespace host
