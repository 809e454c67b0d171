#pragma once

#include <string>

namespace host::test
{

struct FormAnswer
{
    bool accepted = false;
    std::wstring path; // of the chosen node
    long length = 0;   // of the notes
};

// Shows the fake add-in's one form modally. "Go" fills the tree; a node with children fills them when it expands;
// "OK" is enabled once a node without children is chosen; F1 checks the box, Ctrl+A in the notes clears the status. The
// name typed letter by letter spoils the layout: cut, shorten, overlap, outside, leave, key.
[[nodiscard]] FormAnswer ShowFakeForm();

} // namespace host::test
