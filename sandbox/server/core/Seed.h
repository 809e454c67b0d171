// The data that the server starts with.
#pragma once

#include "core/Catalogue.h"

#include <nlohmann/json.hpp>
#include <string_view>

namespace server
{

// The seed's text as it was built in.
[[nodiscard]] std::string_view SeedText();

// Reads users, classes and projects; the projects of "crowd" are generated. With `changes` every object takes over its
// member "atRecording", so that a recording meets another state than the one shown before. Throws std::runtime_error
// for a user name that is not defined and nlohmann::json::exception for a missing or mistyped member.
[[nodiscard]] Catalogue ReadSeed(nlohmann::json seed, bool changes);

} // namespace server
