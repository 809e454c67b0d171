// The steps that a scenario may be made of, by what they are about.
#pragma once

#include <vector>

#include "player/Script.h"

namespace corvane::player
{

[[nodiscard]] std::span<const StepRow> HostSteps();       // documents and commands of the host
[[nodiscard]] std::span<const StepRow> OutputSteps();     // files, mails, pictures, figures
[[nodiscard]] std::span<const StepRow> FormSteps();       // what a user does in a form
[[nodiscard]] std::span<const StepRow> MessageSteps();    // message boxes
[[nodiscard]] std::span<const StepRow> InspectionSteps(); // a form's looks
[[nodiscard]] std::span<const StepRow> Expectations();    // what is to be seen

// All of them.
[[nodiscard]] std::vector<StepRow> AllSteps();

} // namespace corvane::player
