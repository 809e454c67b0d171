// The menus that a host has by itself.
#pragma once

#include <string>
#include <string_view>

namespace host
{

class CommandBarObject;

// Puts in the own menus of the host of this product name, with the control ids that Office gives them. The kind changes
// them: "leftover" adds entries of an add-in's earlier run, "bare" leaves out the entries beside which an add-in puts
// its own, "helpless" the Help menu.
void FillMenuBar(CommandBarObject& bar, const std::wstring& product, std::string_view kind);

} // namespace host
