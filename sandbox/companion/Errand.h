// What the player is to play, told by the environment of the host's process: whoever starts the host sets it. Nothing
// of it outlives that process, so a player that is left registered does nothing in another one.
#pragma once

#include <optional>
#include <string>

#include "player/Script.h"

namespace corvane::companion
{

constexpr wchar_t kScenarioVariable[] = L"CORVANE_PLAYER_SCENARIO"; // the scenario's file
constexpr wchar_t kFolderVariable[] = L"CORVANE_PLAYER_FOLDER";     // for the report and all that the scenario writes
constexpr wchar_t kSettingsVariable[] = L"CORVANE_PLAYER_SETTINGS"; // NAME=VALUE, one a line

struct Errand
{
    std::wstring scenario;
    std::wstring folder;
    player::Settings settings;
};

// Nothing where this process was not started to play.
[[nodiscard]] std::optional<Errand> ReadErrand();

} // namespace corvane::companion
