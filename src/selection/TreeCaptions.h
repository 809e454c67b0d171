// What the target-selection window says in each mode.
#pragma once

#include "selection/TreeMode.h"

#include <functional>
#include <string>
#include <string_view>

namespace corvane
{

// Gives the customer's word for a term.
using NameLookup = std::function<std::wstring(std::wstring_view term)>;

// Those texts that hold words of the customer's.
struct TreeCaptions
{
    std::wstring serverLabel;
    std::wstring caption;
    std::wstring treeLabel;
    std::wstring nothingSelected;
};

// The texts of a mode in the customer's words, which name looks up.
[[nodiscard]] TreeCaptions TreeCaptionsFor(TreeMode mode, const NameLookup& name);

// A tree label that tells of an active filter, once.
[[nodiscard]] std::wstring WithFilterMark(std::wstring label);

// The message that a tree with too many projects shows before the forced filter.
[[nodiscard]] std::wstring EntryLimitMessage();

} // namespace corvane
