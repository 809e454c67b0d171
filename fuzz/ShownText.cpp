// A message has no more lines than there is room for, no longer words, and no end within a pair of surrogates.
#include "forms/ShownText.h"
#include "Input.h"

#include <algorithm>

void Fuzz(Input& input)
{
    const corvane::MessageRoom room{static_cast<std::size_t>(input.Number(1, 50)),
                                    static_cast<std::size_t>(input.Number(2, 300))};
    const std::wstring text = input.Rest();
    const std::wstring shown = corvane::MessageText(text, room);
    Require(shown.size() <= std::min<std::size_t>(2000, text.size() * 2));
    std::size_t lines = 1;
    std::size_t word = 0;
    for (std::size_t at = 0; at < shown.size(); ++at) {
        const bool isBreak = shown[at] == L'\n' || (shown[at] == L'\r' && !shown.substr(at + 1).starts_with(L'\n'));
        if (isBreak && at + 1 < shown.size()) ++lines;
        const bool isSecond = shown[at] >= 0xDC00 && shown[at] < 0xE000;
        const bool ends = std::wstring{L" \t\r\n"}.find(shown[at]) != std::wstring::npos;
        word = ends ? 0 : word + (isSecond ? 0 : 1);
        Require(word <= room.letters + 1); // the ellipsis may be one more
    }
    Require(lines <= room.rows);
    const std::wstring cut = corvane::ShortenedTo(room.letters, text);
    Require(cut == text || (cut.size() <= room.letters && cut.back() == L'\x2026'));
}
