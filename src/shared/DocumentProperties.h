// Custom properties of the host's active document.
#pragma once

#include "platform/LateBound.h"
#include "shared/DocumentBinding.h"

#include <string>

namespace corvane
{

// Property types as the host's object model numbers them.
inline constexpr std::int32_t kPropertyNumber = 1;
inline constexpr std::int32_t kPropertyText = 4;

// The value of a custom property of the active document as text; empty when the property, the document or the host's
// support is missing. Never throws for any of these.
[[nodiscard]] std::wstring GetCustomProperty(const LateBound& oApplication, const std::wstring& sName);

// Whether the active document has a custom property of that name.
[[nodiscard]] bool CustomPropertyExists(const LateBound& oApplication, const std::wstring& sName);

// Writes one property into a collection: the value of every property of exactly that name, or a new one of type lType.
// Excel from 2007 on then counts the workbook as changed. Throws the host's error.
void SetCustomProperty(const LateBound& oProperties, const std::wstring& sName, const Variant& vValue,
                       std::int32_t lType, const LateBound& oApplication);

// Writes the whole binding into the active document, or leaves the document's as it was and throws the host's error, in
// Excel number 91 when there is no document.
void SetBindingProperties(const LateBound& oApplication, const DocumentBinding& binding);

// The binding of the active document.
[[nodiscard]] DocumentBinding ReadBinding(const LateBound& oApplication);

} // namespace corvane
