// The add-in as it is installed: its registration, its libraries, its settings.
#pragma once

#include "diagnose/Facts.h"

namespace diagnose
{

// The views of the registry that name a library for the add-in's class, and PowerPoint's entries for the add-in.
[[nodiscard]] std::vector<Registration> FindRegistrations();
[[nodiscard]] std::vector<AddInEntry> FindAddIns();

// The bitness of a Windows program or library: 32 or 64, or 0 when it cannot be told.
[[nodiscard]] int BitsOf(const std::wstring& file);

// The version that a file carries, as in "1.2.3"; empty when it carries none.
[[nodiscard]] std::wstring VersionOf(const std::wstring& file);

// The components of the platform that the add-in needs and this machine cannot create, each with the error.
[[nodiscard]] std::vector<std::wstring> MissingComponents();

// The versions of the platform's XML parser that this machine has.
[[nodiscard]] std::vector<std::wstring> ParserVersions();

} // namespace diagnose
