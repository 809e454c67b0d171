// Pages that are part of the program.
#pragma once

#include <string_view>

namespace verify
{

// The report's page with {{NAME}} for what a run puts there.
[[nodiscard]] std::string_view PageText();

// The page of what only Windows and PowerPoint can answer, in Markdown.
[[nodiscard]] std::string_view QuestionsText();

} // namespace verify
