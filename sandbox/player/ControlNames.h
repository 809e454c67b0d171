// The names of the forms' controls.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane::player
{

// The id of a control by the name that the forms' resource header gives it; "IDOK" and the like stand for themselves.
[[nodiscard]] std::optional<int> ControlIdOf(std::wstring_view name);

// The name of a control id, or the number as text.
[[nodiscard]] std::wstring ControlNameOf(int id);

} // namespace corvane::player
