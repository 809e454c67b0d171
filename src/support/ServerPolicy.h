// The administrators' rules about servers, as they are set on this machine.
#pragma once

#include "support/ServerRules.h"

namespace corvane
{

[[nodiscard]] ServerPolicy ReadServerPolicy();

// What becomes of an address under these rules: asked once for each way to a server, before its first request.
[[nodiscard]] ServerDecision DecideServer(std::wstring_view address);

} // namespace corvane
