// A scenario's text, read into steps, and the steps that it may be made of.
#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Error.h"

namespace corvane::player
{

class Run;
class Stage;
struct Step;

// One kind of step: its name, which is a verb or a verb with its first word; how many words follow; what it does.
struct StepRow
{
    std::string_view name;
    std::size_t least;
    std::size_t most;
    void (*perform)(Stage& stage, Run& run, const Step& step);
};

constexpr std::size_t kAny = 1000; // words

struct Word
{
    std::wstring text;
    bool quoted = false;
};

// One line of a scenario: which step it is and the words behind the step's name, with the settings put in.
struct Step
{
    int line = 0;        // 1 for the first
    std::wstring source; // as written, without blanks around it
    const StepRow* row = nullptr;
    std::vector<Word> words;

    // The word at this position, or an empty text.
    [[nodiscard]] std::wstring At(std::size_t index) const;

    // The words from this position on, up to the other, as the lines of one text.
    [[nodiscard]] std::wstring Lines(std::size_t first, std::size_t end = kAny) const;
};

// A line that is no step.
class ScriptError : public Error
{
public:
    ScriptError(int line, std::wstring source, std::wstring what)
        : Error{0, std::move(source), std::move(what)}, m_line{line}
    {}

    [[nodiscard]] int Line() const { return m_line; }

private:
    int m_line;
};

using Settings = std::map<std::string, std::string, std::less<>>; // in UTF-8, as scenarios are

// What a file of text holds; throws Error where there is none or nothing in it.
[[nodiscard]] std::string ReadText(const std::wstring& path);

// Reads a scenario that is made of these steps; the rows must live on. Every line is checked for its number of words,
// so that a slip in the last line shows before the first one runs. Throws ScriptError, whose source is the line.
[[nodiscard]] std::vector<Step> ParseScript(std::string_view text, const Settings& settings,
                                            std::span<const StepRow> rows);

// The names of a tree path: "A/B" is A, B; "\/" is a slash inside a name.
[[nodiscard]] std::vector<std::wstring> SplitTreePath(std::wstring_view path);

// By what they are about.
[[nodiscard]] std::span<const StepRow> HostSteps();       // documents and commands of the host
[[nodiscard]] std::span<const StepRow> OutputSteps();     // files, mails, pictures, figures
[[nodiscard]] std::span<const StepRow> FormSteps();       // what a user does in a form
[[nodiscard]] std::span<const StepRow> MessageSteps();    // message boxes
[[nodiscard]] std::span<const StepRow> InspectionSteps(); // a form's looks
[[nodiscard]] std::span<const StepRow> Expectations();    // what is to be seen

// All of them.
[[nodiscard]] std::vector<StepRow> AllSteps();

} // namespace corvane::player
