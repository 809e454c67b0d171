// Entries of the forms' lists and combo boxes.
#pragma once

#include <windows.h>

#include <string>

namespace corvane
{

// Appends an entry; the list can then show all of it: a combo box drops a list as wide as its longest entry, a list box
// scrolls sideways. Returns the entry's position.
int AddListEntry(HWND list, const std::wstring& text) noexcept;

// Makes entries that the form draws (CBS_OWNERDRAWFIXED) as high as their font needs.
void FitEntryHeights(HWND form) noexcept;

// Draws such an entry, with an ellipsis at its end where it is too long. Returns whether it is.
bool DrawListEntry(const DRAWITEMSTRUCT& entry);

// The text of a combo box's entry; index must be one of its positions.
[[nodiscard]] std::wstring ComboEntry(HWND combo, int index);

} // namespace corvane
