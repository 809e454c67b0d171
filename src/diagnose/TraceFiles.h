// The trace files that the add-in has left for this user.
#pragma once

#include <optional>
#include <string>

namespace diagnose
{

struct LastTrace
{
    std::wstring file;
    std::size_t errors = 0;
    std::wstring lastNumber; // of the last error; empty without one
};

// The newest trace file; nothing when there is none. Of its text only the error numbers are taken.
[[nodiscard]] std::optional<LastTrace> FindLastTrace();

} // namespace diagnose
