// What a check says that does not hold.
#pragma once

#include <stdexcept>
#include <string>

namespace verify
{

class Failure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Throws a Failure with these words unless it holds.
inline void Require(bool holds, const std::string& words)
{
    if (!holds) throw Failure{words};
}

// Throws a Failure that shows both texts where they differ.
inline void RequireEqual(const std::string& what, const std::string& found, const std::string& wanted)
{
    Require(found == wanted, what + ": " + found + "\n  instead of: " + wanted);
}

} // namespace verify
