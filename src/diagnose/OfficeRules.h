// What Office's own entries and policies mean for the add-in.
#pragma once

#include "diagnose/Facts.h"

#include <cstddef>
#include <span>

namespace diagnose
{

// Whether an entry of one of Office's lists is about the add-in: one of the texts in its name or in its data (UTF-16,
// each ended by a zero, behind numbers) is the add-in's programmatic id, or a path to its library.
[[nodiscard]] bool NamesAddIn(std::wstring_view value, std::span<const std::byte> data);

// Whether the user's list keeps what it names from loading.
[[nodiscard]] bool IsBlockingList(std::wstring_view list);

// A policy's list of managed add-ins as it concerns this one: what it says of it, and whether it keeps out others.
[[nodiscard]] std::optional<OfficeEntry> ManagedEntry(const std::wstring& whose,
                                                      const std::optional<std::wstring>& listed, bool isRestricted);

} // namespace diagnose
