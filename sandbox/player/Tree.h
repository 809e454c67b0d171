#pragma once

#include <optional>
#include <string>
#include <vector>

#include <windows.h>

#include <commctrl.h>

namespace host
{

// The texts of the chosen node and its parents, joined by "/" from the top; empty when none is chosen.
[[nodiscard]] std::optional<std::wstring> ChosenPath(HWND tree);

// The child of this text, or null; the parent null stands for the top level.
[[nodiscard]] HTREEITEM FindNode(HWND tree, HTREEITEM parent, const std::wstring& text);

// The texts of a node's children, for a report.
[[nodiscard]] std::vector<std::wstring> NodeTexts(HWND tree, HTREEITEM parent);

[[nodiscard]] HTREEITEM NextNode(HWND tree, UINT relation, HTREEITEM node);

} // namespace host
