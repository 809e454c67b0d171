// What administrators set for everybody, by Group Policy or by hand.
#pragma once

#include "support/ServerRules.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace corvane::Policy
{

inline constexpr const wchar_t* kKey = L"Software\\Policies\\Halvex\\Corvane";

// A value of that key: the machine's if it is there, else the user's; nothing when neither is.
[[nodiscard]] std::optional<std::int32_t> Number(const std::wstring& name) noexcept;

// The texts "<name>1", "<name>2", ... up to the first that is missing, of the key "<name>s" below that one; the
// machine's if it has any, else the user's.
[[nodiscard]] std::vector<std::wstring> List(const std::wstring& name);

} // namespace corvane::Policy

namespace corvane
{

// The administrators' rules about servers, as they are set on this machine.
[[nodiscard]] ServerPolicy ReadServerPolicy();

// What becomes of an address under these rules: asked once for each way to a server, before its first request.
[[nodiscard]] ServerDecision DecideServer(std::wstring_view address);

} // namespace corvane
