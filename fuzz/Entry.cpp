// The entry that the fuzzer calls, the same for every target.
#include "Input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Input input{bytes, size};
    Fuzz(input);
    return 0;
}
