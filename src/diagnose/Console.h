// What the program says, and to whom.
#pragma once

#include <string_view>

namespace diagnose
{

// Writes to standard output or to standard error: to a console as it is, to a file or a pipe as UTF-8.
void Print(std::wstring_view text);
void Complain(std::wstring_view text);

// Asks for a key and waits for it, so that a window of the program's own can be read; does nothing where nobody can
// press one.
void WaitForKey();

} // namespace diagnose
