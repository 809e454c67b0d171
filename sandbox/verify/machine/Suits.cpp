#include "machine/Suits.h"

#include "companion/Agreement.h"
#include "judge/Text.h"
#include "platform/Utf8.h"

namespace verify
{

std::string WhyNotInForeignHost(const Scenario& scenario, bool addInIsInstalled)
{
    const auto words = corvane::ToUtf8(corvane::companion::kMisfitWords);
    if (scenario.Wants("host")) return words + ("its host is another: " + scenario.One("host"));
    for (const auto& set : scenario.All("set"))
        if (!corvane::companion::IsForPlayer(CutAt(set, "=").first))
            return std::string{words}.append("set ").append(set).append(
                ": only a stand-in is told what to offer and how to fail");
    if (addInIsInstalled && scenario.Wants("run"))
        return words + ("the installed add-in keeps its settings: " + scenario.One("run"));
    return {};
}

} // namespace verify
