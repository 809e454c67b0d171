// Plays scenarios.
#pragma once

#include <string>

#include "player/Script.h"

namespace corvane::player
{

class Stage;

struct Outcome
{
    std::size_t steps = 0;
    std::wstring failure; // the step that failed, why and what was on the screen instead; empty when all went well
};

// Plays the scenario in this file on the calling thread, which must not be the user interface's, as a person and an
// outside program would: it posts messages to windows and work to the user interface, and waits until what it wants to
// see is there. At its end it has made the host quit.
[[nodiscard]] Outcome Play(Stage& stage, const std::wstring& path, const Settings& settings);

} // namespace corvane::player
