// What the player is to play.
#pragma once

#include <optional>
#include <string>

#include "player/Script.h"

namespace corvane::companion
{

struct Errand
{
    std::wstring scenario;
    std::wstring folder;
    player::Settings settings;
};

// What the environment of this process asks for; nothing where it was not started to play.
[[nodiscard]] std::optional<Errand> ReadErrand();

} // namespace corvane::companion
