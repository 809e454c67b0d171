// Encoding of a long text against one pass by a table into a string of sufficient room.
#include "Benchmarks.h"
#include "Measure.h"
#include "webservice/RequestText.h"

#include <array>
#include <stdexcept>

namespace bench
{
namespace
{

constexpr std::size_t kUnits = std::size_t{512} * 1024; // 1 MiB
constexpr int kRounds = 31;

// Words of a document in several languages: mostly letters, some of them outside ASCII and Latin-1.
std::wstring MixedText()
{
    constexpr std::wstring_view kSample = L"Status report, 3rd quarter: budget & risks (50% done). "
                                          L"\u00DCbersicht f\u00FCr M\u00E4rz; \u20AC 12\u202F000. "
                                          L"\u041F\u043B\u0430\u043D \u8A08\u753B \U0001F4C8\r\n";
    std::wstring text;
    while (text.size() < kUnits)
        text += kSample;
    text.resize(kUnits);
    return text;
}

struct Code
{
    std::array<wchar_t, 9> text;
    std::size_t length;
};

std::vector<Code> MakeTable()
{
    std::vector<Code> table(0x10000);
    for (std::size_t unit = 0; unit < table.size(); ++unit) {
        const std::wstring code = corvane::EncodeURLParameter(std::wstring(1, static_cast<wchar_t>(unit)));
        table[unit].length = code.copy(table[unit].text.data(), code.size());
    }
    return table;
}

std::wstring ByTable(const std::vector<Code>& table, const std::wstring& text)
{
    std::wstring encoded;
    encoded.reserve(text.size() * 9);
    for (const wchar_t unit : text)
        encoded.append(table[unit].text.data(), table[unit].length);
    return encoded;
}

} // namespace

void EncodeText(const Words& /*words*/)
{
    const std::wstring text = MixedText();
    const std::vector<Code> table = MakeTable();
    if (ByTable(table, text) != corvane::EncodeURLParameter(text)) throw std::logic_error{"the encodings differ"};
    for (int round = 0; round < kRounds; ++round) {
        const Stopwatch bare;
        static_cast<void>(ByTable(table, text));
        Tell("bare", bare.Milliseconds());
        const Stopwatch own;
        static_cast<void>(corvane::EncodeURLParameter(text));
        Tell("add-in", own.Milliseconds());
    }
}

} // namespace bench
