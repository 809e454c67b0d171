// What a run of scenarios tells: as text, as JSON and as a page.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace verify
{

enum class Verdict
{
    Passed,
    Failed,
    NotHere, // it was not played: this machine lacks what it needs
};

struct Picture
{
    std::string name;
    std::string png;
};

struct Result
{
    std::string name;
    std::string about; // the scenario's own first comment
    Verdict verdict = Verdict::Passed;
    double seconds = 0;
    std::string words{};                // what failed, or why it was not played
    std::vector<std::string> remarks{}; // what was measured, and what could not be checked
    std::vector<Picture> pictures{};
};

struct ReportedQuestion
{
    std::string area;
    std::string name;
    bool answered = false;
    std::string words; // what answered it, or what a person does
};

struct Report
{
    std::vector<std::pair<std::string, std::string>> facts; // what was played, where and when
    std::vector<Result> results;
    std::vector<ReportedQuestion> questions{}; // of a run in a host that is not the stand-in

    [[nodiscard]] std::size_t Count(Verdict verdict) const;

    // Whether anything was played, and all of it passed.
    [[nodiscard]] bool AllPassed() const;
};

// The lines for one result, and for them all: "N passed, M failed", and how many were not played.
[[nodiscard]] std::string ResultText(const Result& result);
[[nodiscard]] std::string SummaryText(const Report& report);

// Each question with what answered it or what is to be done, below its area.
[[nodiscard]] std::string QuestionsText(const Report& report);

[[nodiscard]] std::string ReportText(const Report& report);
[[nodiscard]] std::string ReportJson(const Report& report); // without the pictures, which it names
[[nodiscard]] std::string ReportPage(const Report& report); // with everything in it

} // namespace verify
