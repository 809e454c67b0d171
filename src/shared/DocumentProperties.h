// Custom properties of the host's active document, and the binding that they hold.
#pragma once

#include "platform/LateBound.h"
#include "shared/DocumentBinding.h"

#include <string>

namespace corvane
{

class HostDocument;

// Property types as the host's object model numbers them.
inline constexpr std::int32_t kPropertyNumber = 1;
inline constexpr std::int32_t kPropertyText = 4;

// The value of a custom property of the active document as text; empty when the property, the document or the host's
// support is missing. Never throws for any of these.
[[nodiscard]] std::wstring GetCustomProperty(const HostDocument& document, const std::wstring& sName);

// Whether the active document has a custom property of that name.
[[nodiscard]] bool CustomPropertyExists(const HostDocument& document, const std::wstring& sName);

// Writes one property into a collection: the value of every property of exactly that name, or a new one of type lType.
// Excel from 2007 on then counts the workbook as changed. Throws the host's error.
void SetCustomProperty(const LateBound& oProperties, const std::wstring& sName, const Variant& vValue,
                       std::int32_t lType, const HostDocument& document);

// Writes the whole binding into the active document, its server without user name and password, or leaves the
// document's as it was and throws the host's error, in Excel number 91 when there is no document.
void SetBindingProperties(const HostDocument& document, const DocumentBinding& binding);

// The same where the document can carry properties, made sure to be written by the next save. Throws also when the
// document is marked as final.
void BindDocument(const HostDocument& document, const DocumentBinding& binding);

// The binding of the active document. Its server is empty where the document names none that it may.
[[nodiscard]] DocumentBinding ReadBinding(const HostDocument& document);

} // namespace corvane
