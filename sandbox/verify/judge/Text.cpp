#include "judge/Text.h"

#include "judge/Failure.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace verify
{
namespace
{

constexpr std::string_view kBlanks = " \t\r\n\f\v";
constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

bool IsBlank(char c) { return kBlanks.find(c) != std::string_view::npos; }

// Takes words off a text, letter by letter.
class WordReader
{
public:
    explicit WordReader(std::string_view text) : m_rest{text} {}

    std::vector<std::string> Read()
    {
        while (!m_rest.empty())
            TakeOne();
        if (m_quote != '\0') throw Failure{"a quote stays open"};
        Finish();
        return std::move(m_words);
    }

private:
    void TakeOne()
    {
        const char c = Take();
        if (c == '\\' && m_quote != '\'' && !m_rest.empty() && Escapes(m_rest.front()))
            Append(Take());
        else if (m_quote != '\0')
            c == m_quote ? void(m_quote = '\0') : Append(c);
        else if (c == '"' || c == '\'')
            Open(c);
        else if (IsBlank(c))
            Finish();
        else
            Append(c);
    }

    [[nodiscard]] bool Escapes(char next) const { return m_quote == '\0' || next == '"' || next == '\\'; }

    char Take()
    {
        const char c = m_rest.front();
        m_rest.remove_prefix(1);
        return c;
    }

    void Open(char quote)
    {
        m_quote = quote;
        if (!m_word) m_word.emplace(); // "" is a word
    }

    void Append(char c)
    {
        if (!m_word) m_word.emplace();
        *m_word += c;
    }

    void Finish()
    {
        if (m_word) m_words.push_back(std::move(*m_word));
        m_word.reset();
    }

    std::string_view m_rest;
    std::vector<std::string> m_words;
    std::optional<std::string> m_word;
    char m_quote = '\0';
};

} // namespace

std::vector<std::string> Lines(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const auto end = text.find('\n');
        auto line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.emplace_back(line);
    }
    return lines;
}

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::pair<std::string, std::string> CutAt(std::string_view text, std::string_view separator)
{
    const auto at = text.find(separator);
    if (at == std::string_view::npos) return {std::string{text}, {}};
    return {std::string{text.substr(0, at)}, std::string{text.substr(at + separator.size())}};
}

std::string Replaced(std::string text, std::string_view what, std::string_view by)
{
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
    return text;
}

std::string Joined(const std::vector<std::string>& texts, std::string_view between)
{
    std::string all;
    for (const auto& text : texts)
        all.append(&text == texts.data() ? "" : between).append(text);
    return all;
}

std::vector<std::string> Words(std::string_view text) { return WordReader{text}.Read(); }

std::string ReadableUtf8(std::string_view bytes) { return corvane::ToUtf8(corvane::FromUtf8(bytes)); }

std::string FromWindows1252(std::string_view bytes)
{
    // The letters from 0x80 to 0x9F; those that are none keep their number.
    constexpr std::uint16_t kLetters[] = {0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021,
                                          0x2C6,  0x2030, 0x160,  0x2039, 0x152,  0x8D,   0x17D,  0x8F,
                                          0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                          0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        corvane::AppendUtf8(text, byte >= 0x80 && byte < 0xA0 ? kLetters[byte - 0x80] : byte);
    }
    return text;
}

std::string FromBase64(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t collected = 0;
    unsigned bits = 0;
    for (const char c : text.substr(0, text.find('='))) {
        const auto digit = kDigits.find(c);
        Require(digit != std::string_view::npos, "a body is not in base64");
        collected = (collected << 6U) | static_cast<std::uint32_t>(digit);
        bits += 6;
        if (bits < 8) continue;
        bits -= 8;
        bytes += static_cast<char>((collected >> bits) & 0xFFU);
    }
    return bytes;
}

std::string ToBase64(std::string_view bytes)
{
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const auto part = bytes.substr(at, 3);
        std::uint32_t three = 0;
        for (std::size_t n = 0; n < 3; ++n)
            three = (three << 8U) | (n < part.size() ? static_cast<unsigned char>(part[n]) : 0U);
        for (unsigned n = 0; n < 4; ++n)
            text += n <= part.size() ? kDigits[(three >> (18 - 6 * n)) & 0x3FU] : '=';
    }
    return text;
}

} // namespace verify
