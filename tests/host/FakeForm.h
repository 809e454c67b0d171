#pragma once

namespace host::test
{

// Shows the fake add-in's one form modally. "Go" fills the tree; a node with children fills them when it expands. The
// name typed letter by letter spoils the layout: cut, shorten, overlap, outside, leave, key.
void ShowFakeForm();

} // namespace host::test
