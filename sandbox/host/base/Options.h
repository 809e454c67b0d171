// What the command line asks for.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/HostFacts.h"

namespace host
{

// Texts are UTF-8, as scenarios are.
using Settings = std::map<std::string, std::string, std::less<>>;

struct Options
{
    HostKind host = HostKind::PowerPoint;
    std::wstring version = L"16.0";
    long connectMode = 1;
    std::wstring playFile{};  // empty: a person uses the host
    std::wstring outFolder{}; // empty: no files are written
    Settings settings{};

    // The number before the first point of the version.
    [[nodiscard]] int MajorVersion() const;
    [[nodiscard]] host::Edition Edition() const { return EditionOf(MajorVersion()); }

    // A setting's value, or an empty text.
    [[nodiscard]] std::string Setting(std::string_view name) const;
};

// Reads the words after the program's name. Throws std::invalid_argument with what is wrong.
[[nodiscard]] Options ParseOptions(const std::vector<std::wstring>& words);

} // namespace host
