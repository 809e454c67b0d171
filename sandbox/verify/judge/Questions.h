// What only Windows and PowerPoint can answer: the page of it, and what of it a run has answered.
#pragma once

#include "judge/Report.h"

#include <string>
#include <string_view>
#include <vector>

namespace verify
{

struct Question
{
    std::string area; // the heading above its table
    std::string name;
    std::string check;                    // what a person does
    std::string minutes;                  // that a person needs for it
    std::vector<std::string> scenarios{}; // that answer it together, so that nobody needs to
};

// The questions in the tables of a page in Markdown, whose backquotes are left out: those whose head has "Question" in
// it, and "Check" and "Minutes", or "Scenarios".
[[nodiscard]] std::vector<Question> QuestionsIn(std::string_view page);

// The rows of a report about these questions. One is answered when all of its scenarios have passed; the others come
// with what a person is to do. Without a real host nothing is answered.
[[nodiscard]] std::vector<ReportedQuestion> Answered(const std::vector<Question>& questions,
                                                     const std::vector<Result>& results, bool inRealHost);

} // namespace verify
