#include "judge/Scenario.h"

#include "judge/Text.h"

#include <algorithm>

namespace verify
{
std::vector<std::string> Scenario::All(std::string_view wish) const
{
    std::vector<std::string> said;
    for (const auto& [word, rest] : wishes)
        if (word == wish) said.push_back(rest);
    return said;
}

std::string Scenario::One(std::string_view wish, std::string_view otherwise) const
{
    const auto said = All(wish);
    return said.empty() ? std::string{otherwise} : said.front();
}

bool Scenario::IsChecked(std::string_view check) const
{
    return std::ranges::any_of(checks, [&](const ScenarioLine& line) { return line.word == check; });
}

Scenario ReadScenario(const std::filesystem::path& file, std::string text)
{
    const auto name = file.stem().u8string();
    Scenario scenario{.name = {name.begin(), name.end()}, .file = file, .text = std::move(text)};
    for (const auto& line : Lines(scenario.text)) {
        if (line.size() < 2 || line.front() != '#') continue;
        const auto said = Trimmed(std::string_view{line}.substr(2));
        auto [word, rest] = CutAt(said, " ");
        switch (line[1]) {
        case '!':
            scenario.wishes.push_back({std::move(word), std::move(rest)});
            break;
        case '=':
            scenario.checks.push_back({std::move(word), std::move(rest)});
            break;
        case '>':
            scenario.requests.emplace_back(said);
            break;
        default:
            break; // a comment
        }
    }
    return scenario;
}

} // namespace verify
