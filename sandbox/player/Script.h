#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace host
{

struct Word
{
    std::string text;
    bool quoted = false;
};

// One step of a scenario: its verb and what follows, with the settings put in.
struct Step
{
    int line = 0;
    std::string source; // the line as written, without blanks around it
    std::string verb;
    std::vector<Word> words;

    // The word at this position, or an empty text.
    [[nodiscard]] std::string At(std::size_t index) const;

    // The words from this position on, as the lines of one text.
    [[nodiscard]] std::string Lines(std::size_t first) const;
};

// A line that is no step. The line number is 1 for the first line.
class ScriptError : public std::runtime_error
{
public:
    ScriptError(int line, std::string source, const std::string& what)
        : std::runtime_error{what}, m_line{line}, m_source{std::move(source)}
    {}

    [[nodiscard]] int Line() const { return m_line; }
    [[nodiscard]] const std::string& Source() const { return m_source; }

private:
    int m_line;
    std::string m_source;
};

using Settings = std::map<std::string, std::string, std::less<>>;

// Reads a scenario in UTF-8. Every line is checked for a known verb and its number of words, so that a slip in the last
// line shows before the first one runs. Throws ScriptError.
[[nodiscard]] std::vector<Step> ParseScript(std::string_view text, const Settings& settings);

// The names of a tree path: "A/B" is A, B; "\/" is a slash inside a name.
[[nodiscard]] std::vector<std::string> SplitTreePath(std::string_view path);

// The text with every run of line breaks as one blank; its own blanks stay as they are.
[[nodiscard]] std::string LineBreaksAsBlanks(std::string_view text);

// Whether the text matches a pattern of "*" and "?", without regard to the case of ASCII letters.
[[nodiscard]] bool MatchesPattern(std::string_view text, std::string_view pattern);

} // namespace host
