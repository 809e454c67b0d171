#pragma once

#include <string_view>

namespace verify
{

// The report's page with {{NAME}} for what a run puts there.
[[nodiscard]] std::string_view PageText();

} // namespace verify
