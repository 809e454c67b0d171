// The state of the project filter: what is applied, and what that means against the last applied one.
#pragma once

#include <cstdint>
#include <string>

namespace corvane
{

// A filter as it was applied: search text, class id (0 for all) and the class's position in the list.
struct AppliedFilter
{
    std::wstring searchName;
    std::int32_t classId = 0;
    std::int16_t listPosition = 0;
};

// What an applied or cancelled filter window tells its opener.
struct FilterOutcome
{
    bool active = false;
    bool changed = false;
    bool canceled = false;
};

// The outcome of applying or clearing, or (canceled) of leaving the window: a filter is active when it narrows
// anything, and changed when text or class differ from the last applied ones.
[[nodiscard]] inline FilterOutcome OutcomeOf(const AppliedFilter& filter, const AppliedFilter& lastApplied,
                                             bool canceled)
{
    const bool differs = filter.searchName != lastApplied.searchName || filter.classId != lastApplied.classId;
    return {!filter.searchName.empty() || filter.classId != 0, differs && !canceled, canceled};
}

// More projects than this force the filter.
inline constexpr int kEntryLimit = 500;
[[nodiscard]] constexpr bool ForcesFilter(std::size_t projects) noexcept { return projects > kEntryLimit; }

} // namespace corvane
