// A tree control, read as Screen.h says.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <windows.h>

#include <commctrl.h>

namespace corvane::player
{

// The texts of the chosen node and its parents, joined by "/" from the top; empty when none is chosen.
[[nodiscard]] std::optional<std::wstring> ChosenPath(HWND tree);

// The child of this text, or null; the parent null stands for the top level.
[[nodiscard]] HTREEITEM FindNode(HWND tree, HTREEITEM parent, const std::wstring& text);

// The texts of a node's children, for a report.
[[nodiscard]] std::vector<std::wstring> NodeTexts(HWND tree, HTREEITEM parent);

[[nodiscard]] bool IsExpanded(HWND tree, HTREEITEM node); // or does not answer
[[nodiscard]] HTREEITEM NextNode(HWND tree, UINT relation, HTREEITEM node);

} // namespace corvane::player
