// One request to a Corvane server, to see whether it can be reached.
#pragma once

#include "diagnose/Facts.h"

#include <chrono>

namespace diagnose
{

// Asks the server for the user's id, with the connection settings that the add-in also gets from Windows.
[[nodiscard]] ServerAnswer AskServer(const std::wstring& server, std::chrono::seconds limit);

} // namespace diagnose
