#include "companion/Suitability.h"

#include "companion/Agreement.h"
#include "platform/Utf8.h"

namespace corvane::companion
{
namespace
{

constexpr int kFirstRibbonVersion = 12;

struct Misfit
{
    std::string_view step;
    const wchar_t* why;
};

constexpr Misfit kMisfits[] = {
    {"exit", L"a host that is closed like that asks whether to save"},
    {"macro", L"the host runs the macros of presentations, not those of a text"},
    {"show", L"no program turns the pages of the host's window"},
    {"expect menu", L"the menus of version 11 are a matter of that version"},
    {"ran", L"the host does not tell which macros it has run"},
    {"no macro", L"the host does not tell which macros it has run"},
    {"mail", L"the mail is shown by another program"},
    {"letter", L"the mail is shown by another program"},
};

constexpr Misfit kMenuMisfits[] = {
    // of a version without a ribbon
    {"command", L"its version has no ribbon whose callbacks could be called"},
    {"expect command", L"its version has no ribbon whose callbacks could be called"},
};

constexpr wchar_t kNotChanged[] = L"what the host offers and how its documents are is not the player's to change";

const wchar_t* WhyNot(const player::Step& step, int hostVersion)
{
    if (step.row->name == "set") return IsForPlayer(ToUtf8(step.At(0))) ? nullptr : kNotChanged;
    for (const Misfit& row : kMisfits)
        if (row.step == step.row->name) return row.why;
    for (const Misfit& row : kMenuMisfits)
        if (hostVersion < kFirstRibbonVersion && row.step == step.row->name) return row.why;
    return nullptr;
}

} // namespace

std::wstring FindMisfit(const std::vector<player::Step>& steps, const player::Settings& settings, int hostVersion)
{
    for (const auto& [name, value] : settings)
        if (!IsForPlayer(name)) return L"set " + FromUtf8(name) + L" \"" + FromUtf8(value) + L"\": " + kNotChanged;
    for (const player::Step& step : steps)
        if (const wchar_t* why = WhyNot(step, hostVersion)) return step.source + L": " + why;
    return {};
}

} // namespace corvane::companion
