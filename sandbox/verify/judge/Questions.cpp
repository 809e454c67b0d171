#include "judge/Questions.h"

#include "judge/Text.h"

#include <algorithm>
#include <map>

namespace verify
{
namespace
{

constexpr std::string_view kTableRow = "| ";
constexpr std::string_view kHeading = "## ";

using Row = std::map<std::string, std::string>; // by the words of the table's head

std::vector<std::string> CellsOf(std::string_view line)
{
    std::vector<std::string> cells;
    auto rest = Replaced(std::string{line.substr(kTableRow.size())}, "`", "");
    while (!rest.empty()) {
        auto [cell, behind] = CutAt(rest, "|");
        cells.emplace_back(Trimmed(cell));
        rest = std::string{Trimmed(behind)};
    }
    return cells;
}

Question QuestionOf(const std::string& area, Row row)
{
    Question question{area, row["Question"], row["Check"], row["Minutes"]};
    for (std::string rest = row["Scenarios"]; !rest.empty();) {
        auto [name, behind] = CutAt(rest, ",");
        question.scenarios.emplace_back(Trimmed(name));
        rest = std::move(behind);
    }
    return question;
}

Row RowOf(const std::vector<std::string>& head, const std::vector<std::string>& cells)
{
    Row row;
    for (std::size_t at = 0; at < std::min(head.size(), cells.size()); ++at)
        row[head[at]] = cells[at];
    return row;
}

bool HasPassed(const std::vector<Result>& results, const std::string& name)
{
    return std::ranges::any_of(results,
                               [&](const Result& one) { return one.name == name && one.verdict == Verdict::Passed; });
}

bool IsAnswered(const Question& question, const std::vector<Result>& results)
{
    return !question.scenarios.empty() &&
           std::ranges::all_of(question.scenarios, [&](const auto& name) { return HasPassed(results, name); });
}

} // namespace

std::vector<Question> QuestionsIn(std::string_view page)
{
    std::vector<Question> questions;
    std::vector<std::string> head;
    std::string area;
    for (const auto& line : Lines(page)) {
        if (line.starts_with(kHeading)) area = line.substr(kHeading.size());
        if (!line.starts_with("|")) head.clear();
        if (!line.starts_with(kTableRow)) continue;
        if (head.empty())
            head = CellsOf(line);
        else if (head.front() == "Question")
            questions.push_back(QuestionOf(area, RowOf(head, CellsOf(line))));
    }
    return questions;
}

std::vector<ReportedQuestion> Answered(const std::vector<Question>& questions, const std::vector<Result>& results,
                                       bool inRealHost)
{
    std::vector<ReportedQuestion> rows;
    for (const auto& one : questions) {
        const auto scenarios = Joined(one.scenarios, ", ");
        if (inRealHost && IsAnswered(one, results))
            rows.push_back({one.area, one.name, true, "answered by " + scenarios});
        else if (one.scenarios.empty())
            rows.push_back({one.area, one.name, false, one.check + " (" + one.minutes + " min)"});
        else
            rows.push_back(
                {one.area, one.name, false, "not answered: needs PowerPoint in which these pass: " + scenarios});
    }
    return rows;
}

} // namespace verify
