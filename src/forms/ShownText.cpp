#include "forms/ShownText.h"

#include <algorithm>
#include <vector>

namespace corvane
{
namespace
{

constexpr wchar_t kEllipsis = L'\x2026';
constexpr std::size_t kMostInMessage = 2000;

constexpr bool IsFirstSurrogate(wchar_t letter) noexcept { return letter >= 0xD800 && letter < 0xDC00; }
constexpr bool IsSecondSurrogate(wchar_t letter) noexcept { return letter >= 0xDC00 && letter < 0xE000; }

// Where a text may be cut: before and after each of its letters.
std::vector<std::size_t> Cuts(const std::wstring& text)
{
    std::vector<std::size_t> cuts{0};
    for (std::size_t at = 0; at < text.size();) {
        const bool isPair = at + 1 < text.size() && (text[at] == L'&' || IsFirstSurrogate(text[at]));
        at += isPair ? 2 : 1;
        cuts.push_back(at);
    }
    return cuts;
}

std::wstring CutAt(const std::wstring& text, std::size_t length)
{
    while (length > 0 && text[length - 1] == L' ')
        --length;
    return text.substr(0, length) + kEllipsis;
}

// How many of a text's letters are in its first rows, with the beginning of the break behind the last of them.
std::size_t LettersIn(std::wstring_view text, const MessageRoom& room)
{
    constexpr std::size_t kUsual = 80;
    const std::size_t inRow = std::min(room.letters, kUsual);
    std::size_t rows = room.rows;
    for (std::size_t line = 0;;) {
        const std::size_t end = std::min(text.find_first_of(L"\r\n", line), text.size());
        const std::size_t needed = std::max<std::size_t>((end - line + inRow - 1) / inRow, 1);
        if (needed > rows) return line + rows * inRow;
        rows -= needed;
        if (end == text.size()) return end;
        if (rows == 0) return end + 1;
        line = end + (text.substr(end).starts_with(L"\r\n") ? 2 : 1);
    }
}

std::wstring WithLongWordsBroken(const std::wstring& text, std::size_t longest)
{
    std::wstring broken;
    std::size_t word = 0;
    for (const wchar_t letter : text) {
        word = std::wstring_view{L" \t\r\n"}.find(letter) == std::wstring_view::npos ? word + 1 : 0;
        if (word > longest && !IsSecondSurrogate(letter)) {
            broken += L"\r\n";
            word = 1;
        }
        broken += letter;
    }
    return broken;
}

} // namespace

std::wstring WithoutAccessKeys(const std::wstring& text)
{
    std::wstring shown;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == L'&' && ++at == text.size()) break;
        shown += text[at];
    }
    return shown;
}

std::wstring Shortened(const std::wstring& text, const std::function<bool(const std::wstring&)>& fits)
{
    if (fits(text)) return text;
    const auto cuts = Cuts(text);
    const auto tooLong = std::partition_point(cuts.begin() + 1, cuts.end(),
                                              [&](std::size_t length) { return fits(CutAt(text, length)); });
    return CutAt(text, *(tooLong - 1));
}

std::wstring ShortenedTo(std::size_t letters, const std::wstring& text)
{
    return Shortened(text.substr(0, letters + 1), [&](const std::wstring& part) { return part.size() <= letters; });
}

std::wstring WaitText(const WaitProgress& progress)
{
    constexpr std::size_t kKilobyte = 1024;
    constexpr std::size_t kTenthOfMegabyte = kKilobyte * kKilobyte / 10;
    std::wstring size;
    if (progress.sent >= kKilobyte * kKilobyte) {
        const std::size_t tenths = (progress.sent + kTenthOfMegabyte / 2) / kTenthOfMegabyte;
        size = std::to_wstring(tenths / 10) + L"." + std::to_wstring(tenths % 10) + L" MB, ";
    } else if (progress.sent >= 10 * kKilobyte) {
        size = std::to_wstring(progress.sent / kKilobyte) + L" KB, ";
    }
    const auto seconds = progress.gone.count();
    const std::wstring rest = std::to_wstring(seconds % 60);
    // Dots and blanks are equally wide, so the text stays in its place.
    const wchar_t* const marks[] = {L" .  ", L" .. ", L" ..."};
    return size + std::to_wstring(seconds / 60) + (rest.size() == 1 ? L":0" : L":") + rest + marks[seconds % 3];
}

std::wstring MessageText(const std::wstring& text, const MessageRoom& room)
{
    const std::wstring beginning = WithLongWordsBroken(text.substr(0, kMostInMessage + 1), room.letters);
    return ShortenedTo(std::min(LettersIn(beginning, room), kMostInMessage), beginning);
}

} // namespace corvane
