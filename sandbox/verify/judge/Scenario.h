// A scenario's head and tail; its steps are the host's.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace verify
{

struct ScenarioLine
{
    std::string word;
    std::string rest;
};

struct Scenario
{
    std::string name;
    std::filesystem::path file;
    std::string text;
    std::vector<ScenarioLine> wishes{};  // "#!"
    std::vector<ScenarioLine> checks{};  // "#="
    std::vector<std::string> requests{}; // "#>"

    // What all wishes of this name say; what the first says, or the other text.
    [[nodiscard]] std::vector<std::string> All(std::string_view wish) const;
    [[nodiscard]] std::string One(std::string_view wish, std::string_view otherwise = {}) const;
    [[nodiscard]] bool Wants(std::string_view wish) const { return !All(wish).empty(); }
    [[nodiscard]] bool IsChecked(std::string_view check) const;
};

// A scenario of this text, named after its file.
[[nodiscard]] Scenario ReadScenario(const std::filesystem::path& file, std::string text);

} // namespace verify
