#include "player/Script.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace host
{
namespace
{

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::size_t kAny = 1000;

struct VerbRule
{
    std::string_view verb;
    std::size_t least;
    std::size_t most;
};

constexpr VerbRule kVerbs[] = {
    {"new", 0, 0},        {"open", 1, 1},     {"saveas", 1, 2},    {"save", 0, 0},        {"activate", 1, 1},
    {"close", 0, 0},      {"quit", 0, 0},     {"command", 1, 1},   {"controller", 1, 1},  {"window", 1, 1},
    {"closed", 1, 1},     {"type", 2, kAny},  {"press", 1, 2},     {"select", 2, 2},      {"choose", 2, 2},
    {"check", 2, 2},      {"key", 1, kAny},   {"expect", 2, kAny}, {"message", 1, kAny},  {"no", 1, 2},
    {"property", 2, 2},   {"shot", 1, 2},     {"show", 1, 1},      {"ran", 1, 1},         {"repainted", 1, 1},
    {"disconnect", 0, 0}, {"file", 2, 2},     {"fits", 1, 1},      {"letter", 1, 1},      {"mail", 2, kAny},
    {"over", 2, 2},       {"readable", 1, 1}, {"set", 2, 2},       {"spoken", 2, 2},      {"exit", 0, 0},
    {"usage", 0, 1},      {"repeat", 1, 1},   {"end", 0, 0},       {"doubleclick", 1, 2}, {"registry", 3, 3},
    {"faults", 1, 1},     {"hover", 2, 2},    {"pick", 1, 2},      {"tab", 1, kAny},
};

std::string_view Trim(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Splits one line into words and puts the settings into them.
class LineReader
{
public:
    LineReader(int line, std::string_view source, const Settings& settings)
        : m_line{line}, m_source{source}, m_settings{settings}
    {}

    Step Read()
    {
        Step step{m_line, std::string{m_source}, {}, {}};
        while (SkipBlanks())
            step.words.push_back(ReadWord());
        step.verb = step.words.front().text;
        step.words.erase(step.words.begin());
        CheckVerb(step);
        return step;
    }

private:
    [[noreturn]] void Fail(const std::string& what) const { throw ScriptError{m_line, std::string{m_source}, what}; }

    bool SkipBlanks()
    {
        m_at = std::min(m_source.find_first_not_of(kBlanks, m_at), m_source.size());
        return m_at < m_source.size() && m_source[m_at] != '#';
    }

    Word ReadWord()
    {
        if (m_source[m_at] == '"') return {Replace(Quoted()), true};
        const std::size_t end = std::min(m_source.find_first_of(kBlanks, m_at), m_source.size());
        const std::string_view word = m_source.substr(m_at, end - m_at);
        m_at = end;
        return {Replace(std::string{word}), false};
    }

    // A quoted text; two quotes in it stand for one.
    std::string Quoted()
    {
        std::string text;
        for (++m_at; m_at < m_source.size(); ++m_at) {
            if (m_source[m_at] != '"') {
                text += m_source[m_at];
            } else if (m_source.substr(m_at + 1).starts_with('"')) {
                text += m_source[++m_at];
            } else {
                ++m_at;
                return text;
            }
        }
        Fail("the text is not closed by a quote");
    }

    [[nodiscard]] std::string Replace(std::string_view text) const
    {
        std::string out;
        for (std::size_t at = text.find("${"); at != std::string_view::npos; at = text.find("${")) {
            const std::size_t end = text.find('}', at);
            if (end == std::string_view::npos) Fail("\"${\" without \"}\"");
            const std::string_view name = text.substr(at + 2, end - at - 2);
            const auto setting = m_settings.find(name);
            if (setting == m_settings.end()) Fail("no setting is named " + std::string{name});
            out += std::string{text.substr(0, at)} + setting->second;
            text.remove_prefix(end + 1);
        }
        return out + std::string{text};
    }

    void CheckVerb(const Step& step) const
    {
        const auto rule = std::ranges::find(kVerbs, step.verb, &VerbRule::verb);
        if (rule == std::end(kVerbs)) Fail("no step is named " + step.verb);
        if (step.words.size() < rule->least) Fail("the step " + step.verb + " lacks a word");
        if (step.words.size() > rule->most) Fail("the step " + step.verb + " has a word too many");
    }

    int m_line;
    std::string_view m_source;
    const Settings& m_settings;
    std::size_t m_at = 0;
};

char Lower(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

// Puts the steps between "repeat N" and "end" in place of these lines, N times.
std::vector<Step> Unrolled(const std::vector<Step>& steps)
{
    std::vector<Step> all;
    std::size_t begin = 0;
    int times = 0;
    for (const Step& step : steps) {
        if (step.verb == "repeat") {
            if (times != 0) throw ScriptError{step.line, step.source, "a repeat within another"};
            begin = all.size();
            times = std::atoi(step.At(0).c_str());
            if (times < 1) throw ScriptError{step.line, step.source, "a repeat needs a number"};
        } else if (step.verb == "end") {
            if (times == 0) throw ScriptError{step.line, step.source, "an end without a repeat"};
            const std::vector<Step> block{all.begin() + static_cast<std::ptrdiff_t>(begin), all.end()};
            for (; times > 1; --times)
                all.insert(all.end(), block.begin(), block.end());
            times = 0;
        } else {
            all.push_back(step);
        }
    }
    if (times != 0) throw ScriptError{steps.back().line, steps.back().source, "a repeat without an end"};
    return all;
}

} // namespace

std::string Step::At(std::size_t index) const { return index < words.size() ? words[index].text : std::string{}; }

std::string Step::Lines(std::size_t first) const
{
    std::string text;
    for (std::size_t i = first; i < words.size(); ++i)
        text += (i == first ? "" : "\r\n") + words[i].text;
    return text;
}

std::vector<Step> ParseScript(std::string_view text, const Settings& settings)
{
    if (text.starts_with("\xef\xbb\xbf")) text.remove_prefix(3);
    std::vector<Step> steps;
    for (int line = 1; !text.empty(); ++line) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view source = Trim(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (!source.empty() && source.front() != '#') steps.push_back(LineReader{line, source, settings}.Read());
    }
    return Unrolled(steps);
}

std::vector<std::string> SplitTreePath(std::string_view path)
{
    std::vector<std::string> names(1);
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (path[i] == '\\' && path.substr(i + 1).starts_with('/'))
            names.back() += path[++i];
        else if (path[i] == '/')
            names.emplace_back();
        else
            names.back() += path[i];
    }
    return names;
}

std::string LineBreaksAsBlanks(std::string_view text)
{
    constexpr std::string_view kBreaks = "\r\n";
    std::string out;
    bool inBreak = false;
    for (const char c : text) {
        const bool isBreak = kBreaks.find(c) != std::string_view::npos;
        if (!isBreak || !inBreak) out += isBreak ? ' ' : c;
        inBreak = isBreak;
    }
    return out;
}

bool MatchesPattern(std::string_view text, std::string_view pattern)
{
    if (pattern.empty()) return text.empty();
    if (pattern.front() == '*') {
        for (std::size_t skipped = 0; skipped <= text.size(); ++skipped)
            if (MatchesPattern(text.substr(skipped), pattern.substr(1))) return true;
        return false;
    }
    if (text.empty() || (pattern.front() != '?' && Lower(pattern.front()) != Lower(text.front()))) return false;
    return MatchesPattern(text.substr(1), pattern.substr(1));
}

} // namespace host
