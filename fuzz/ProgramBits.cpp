// A file's head is read within its bounds, and a bitness is told of what looks like a program only.
#include "diagnose/ProgramBits.h"
#include "Input.h"

#include <string_view>

void Fuzz(Input& input)
{
    const bool isProgram = input.Choice();
    const std::string head = (isProgram ? "MZ" : "") + input.RestAsBytes();
    const int bits = diagnose::ProgramBits(std::as_bytes(std::span{head}));
    Require(bits == 0 || bits == 32 || bits == 64);
    if (bits != 0) Require(head.starts_with("MZ") && head.find(std::string_view{"PE\0", 3}) != std::string::npos);
}
