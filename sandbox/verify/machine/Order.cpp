#include "machine/Order.h"

#include "companion/Agreement.h"
#include "judge/Text.h"
#include "machine/Files.h"
#include "platform/Utf8.h"

#include <iterator>

namespace verify
{

namespace companion = corvane::companion;
using corvane::ToUtf8;

Order OrderOf(const Machine& machine, const Play& play)
{
    const auto file = machine.HostPath(play.scenario.file);
    const auto folder = machine.HostPath(play.folder);
    Order order;
    if (!play.foreign) order.words = {"--out", folder};
    if (!play.byCompanion) order.words.insert(order.words.end(), {"--play", file});
    std::ranges::move(Words(play.scenario.One("host")), std::back_inserter(order.words));
    std::string players;
    for (const auto& setting : play.settings)
        if (const auto name = CutAt(setting, "=").first; play.byCompanion && companion::IsForPlayer(name))
            players.append(setting).append("\n");
        else if (!play.foreign)
            order.words.insert(order.words.end(), {"--set", setting});
    if (play.byCompanion)
        order.settings = {{ToUtf8(companion::kScenarioVariable), file},
                          {ToUtf8(companion::kFolderVariable), folder},
                          {ToUtf8(companion::kSettingsVariable), players}};
    return order;
}

std::string ReportedBy(const Play& play)
{
    return play.byCompanion ? ReadOrEmpty(play.folder / ToUtf8(companion::kReportName)) : std::string{};
}

std::string ReportedBehind(const std::string& report, const wchar_t* words)
{
    return CutAt(CutAt(report, ToUtf8(words)).second, "\r").first;
}

} // namespace verify
