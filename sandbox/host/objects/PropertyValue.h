#pragma once

#include "automation/Value.h"
#include "package/CustomProperty.h"

namespace host
{

// The property's value as Automation sees it, by its type: a number, Boolean, date, text or float.
[[nodiscard]] Value ToValue(const CustomProperty& property);

// The property with this value converted to the type. Throws AutomationError when the value does not convert.
[[nodiscard]] CustomProperty FromValue(std::string name, PropertyType type, const Value& value);

} // namespace host
