// The parts that new packages of every kind need.
#pragma once

#include <span>
#include <string_view>

#include "base/HostFacts.h"
#include "package/Zip.h"

namespace host
{

// A part of a new package; marks between at signs in its text are replaced.
struct NewPart
{
    std::string_view name;
    std::string_view text;
};

// What one host puts into its smallest package besides what every package holds.
struct NewPackage
{
    std::string_view mainPart;
    std::string_view types; // the content types of the others
    std::span<const NewPart> parts;
};

[[nodiscard]] const NewPackage& NewPresentation(); // one title slide with its layout, master and theme

// The parts of the smallest package of this host, with the title as its text.
[[nodiscard]] Zip NewPackageParts(HostKind host, std::string_view title, std::string_view author);

} // namespace host
