// Lines for whoever started the program.
#pragma once

#include <string_view>

namespace host
{

// Writes a line in UTF-8 to the standard output or the standard error, wherever they lead; a program with windows has
// them only when its starter gave them. May be called from any thread.
void Print(std::wstring_view line);
void PrintError(std::wstring_view line);

} // namespace host
