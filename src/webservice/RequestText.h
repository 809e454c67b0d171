// The texts of a request: its parameters, their encoding, and the query that carries them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace corvane
{

// One parameter of an operation: nothing, a truth value, an integer or a text.
using Parameter = std::variant<std::monostate, bool, std::int32_t, std::wstring>;
using Parameters = std::vector<Parameter>;

// The classic Automation text of a parameter: nothing, "True" or "False", decimal digits, the text itself.
[[nodiscard]] std::wstring ParameterText(const Parameter& parameter);

// A parameter's text as the server reads it in a query. Each UTF-16 code unit is encoded on its own; the letters of
// Latin-1 from 128 up go through as they are.
[[nodiscard]] std::wstring EncodeURLParameter(std::wstring_view text);

// Operation, protocol version and parameters as they stand in a query or in a form body:
// "Op=<operation>&P1=v6&P2=<first>&P4=<second>...".
[[nodiscard]] std::wstring RequestQuery(std::wstring_view operation, const Parameters& parameters);

// The address of a server's web-service page.
[[nodiscard]] std::wstring Endpoint(std::wstring_view server, std::wstring_view page);

} // namespace corvane
