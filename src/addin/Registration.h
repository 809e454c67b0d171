// The registry values by which hosts and scripts find the add-in.
#pragma once

#include <windows.h>

namespace corvane
{

// A class of the library that clients may create by its programmatic id "CorvaneMSOfficePowerPoint.<name>".
struct PublicClass
{
    const wchar_t* name;
    const CLSID& id;
    HRESULT (*create)(REFIID id, void** object) noexcept;
};

// Finds a class by its id; null when the library has none.
[[nodiscard]] const PublicClass* FindClass(REFCLSID id) noexcept;

// Writes, or removes, every value of the library under HKEY_CURRENT_USER: its classes, its type library and its entry
// among PowerPoint's add-ins. What both bitnesses share stays until the last of them is removed. Register throws Error.
void Register();
void Unregister() noexcept;

} // namespace corvane
