#include "player/Script.h"

#include <algorithm>
#include <cwchar>

#include "platform/Files.h"
#include "platform/Utf8.h"

namespace corvane::player
{
namespace
{

constexpr std::string_view kBlanks = " \t\r\n";

constexpr StepRow kRepeat{"repeat", 1, 1, nullptr};
constexpr StepRow kEnd{"end", 0, 0, nullptr};

std::string_view Trim(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Splits one line into words, puts the settings into them and finds out which step it is.
class LineReader
{
public:
    LineReader(int line, std::string_view source, const Settings& settings, std::span<const StepRow> rows)
        : m_line{line}, m_source{source}, m_settings{settings}, m_rows{rows}
    {}

    Step Read()
    {
        while (SkipBlanks())
            ReadWord();
        return {m_line, FromUtf8(m_source), FindRow(), std::move(m_words)}; // in this order
    }

private:
    [[noreturn]] void Fail(const std::string& what) const
    {
        throw ScriptError{m_line, FromUtf8(m_source), FromUtf8(what)};
    }

    bool SkipBlanks()
    {
        m_at = std::min(m_source.find_first_not_of(kBlanks, m_at), m_source.size());
        return m_at < m_source.size() && m_source[m_at] != '#';
    }

    void ReadWord()
    {
        const bool quoted = m_source[m_at] == '"';
        m_words.push_back({FromUtf8(Replace(quoted ? Quoted() : Bare())), quoted});
    }

    std::string Bare()
    {
        const std::size_t start = std::exchange(m_at, std::min(m_source.find_first_of(kBlanks, m_at), m_source.size()));
        return std::string{m_source.substr(start, m_at - start)};
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
            out.append(text.substr(0, at)).append(setting->second);
            text.remove_prefix(end + 1);
        }
        return out.append(text);
    }

    [[nodiscard]] const StepRow* RowNamed(std::string_view name) const
    {
        for (const StepRow* own : {&kRepeat, &kEnd})
            if (own->name == name) return own;
        const auto found = std::ranges::find(m_rows, name, &StepRow::name);
        return found == m_rows.end() ? nullptr : &*found;
    }

    // Takes the step's name off the words.
    const StepRow* FindRow()
    {
        const std::string verb = ToUtf8(m_words.front().text);
        const bool hasSecond = m_words.size() > 1 && !m_words[1].quoted;
        const StepRow* row = hasSecond ? RowNamed(verb + " " + ToUtf8(m_words[1].text)) : nullptr;
        m_words.erase(m_words.begin(), m_words.begin() + (row == nullptr ? 1 : 2));
        if (row == nullptr) row = RowNamed(verb);
        if (row == nullptr) Fail("no step is named " + verb);
        if (m_words.size() < row->least) Fail("the step " + std::string{row->name} + " lacks a word");
        if (m_words.size() > row->most) Fail("the step " + std::string{row->name} + " has a word too many");
        return row;
    }

    int m_line;
    std::string_view m_source;
    const Settings& m_settings;
    std::span<const StepRow> m_rows;
    std::vector<Word> m_words;
    std::size_t m_at = 0;
};

// Puts the steps between "repeat N" and "end" in place of these lines, N times.
std::vector<Step> Unrolled(const std::vector<Step>& steps)
{
    std::vector<Step> all;
    std::size_t begin = 0;
    int times = 0;
    for (const Step& step : steps) {
        if (step.row == &kRepeat) {
            if (times != 0) throw ScriptError{step.line, step.source, L"a repeat within another"};
            begin = all.size();
            times = static_cast<int>(std::wcstol(step.At(0).c_str(), nullptr, 10));
            if (times < 1) throw ScriptError{step.line, step.source, L"a repeat needs a number"};
        } else if (step.row == &kEnd) {
            if (times == 0) throw ScriptError{step.line, step.source, L"an end without a repeat"};
            const std::vector<Step> block{all.begin() + static_cast<std::ptrdiff_t>(begin), all.end()};
            for (; times > 1; --times)
                all.insert(all.end(), block.begin(), block.end());
            times = 0;
        } else {
            all.push_back(step);
        }
    }
    if (times != 0) throw ScriptError{steps.back().line, steps.back().source, L"a repeat without an end"};
    return all;
}

} // namespace

std::wstring Step::At(std::size_t index) const { return index < words.size() ? words[index].text : std::wstring{}; }

std::wstring Step::Lines(std::size_t first, std::size_t end) const
{
    std::wstring text;
    for (std::size_t i = first; i < std::min(end, words.size()); ++i)
        text += (i == first ? L"" : L"\r\n") + words[i].text;
    return text;
}

std::string ReadText(const std::wstring& path)
{
    std::string text(static_cast<std::size_t>(FileLength(path).value_or(0)), '\0');
    const std::size_t length = ReadFile(path, std::as_writable_bytes(std::span{text}));
    if (text.empty() || length != text.size()) throw Error{0, {}, path + L" cannot be read"};
    return text;
}

std::vector<Step> ParseScript(std::string_view text, const Settings& settings, std::span<const StepRow> rows)
{
    if (text.starts_with("\xef\xbb\xbf")) text.remove_prefix(3);
    std::vector<Step> steps;
    for (int line = 1; !text.empty(); ++line) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view source = Trim(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (!source.empty() && source.front() != '#') steps.push_back(LineReader{line, source, settings, rows}.Read());
    }
    return Unrolled(steps);
}

std::vector<std::wstring> SplitTreePath(std::wstring_view path)
{
    std::vector<std::wstring> names(1);
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (path[i] == L'\\' && path.substr(i + 1).starts_with(L'/'))
            names.back() += path[++i];
        else if (path[i] == L'/')
            names.emplace_back();
        else
            names.back() += path[i];
    }
    return names;
}

} // namespace corvane::player
