// The add-in's commands, pressed as the host's ribbon presses them: by the callback that the ribbon's XML names.
#pragma once

#include <string>

#include "platform/LateBound.h"

namespace corvane::companion
{

constexpr wchar_t kAddInProgId[] = L"CorvaneMSOfficePowerPoint.Connect";

// The XML that the connected add-in hands over for the host's ribbon. Throws Error.
[[nodiscard]] std::wstring RibbonXml();

// The callback of the XML's control with this id; empty where there is no such control, or none that is pressed.
[[nodiscard]] std::wstring CallbackOf(const std::wstring& xml, const std::wstring& id);

// Calls it with a control of this id, and returns when the command's windows are closed. Throws Error.
void CallBack(const std::wstring& callback, const std::wstring& id);

// Calls a method of the class that the add-in offers to macros; returns like CallBack. Throws Error.
void CallController(const std::wstring& method);

} // namespace corvane::companion
