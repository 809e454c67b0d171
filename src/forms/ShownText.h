// Texts as the user sees them: access-key marks, and what a narrow control or a message box shows of a long text.
#pragma once

#include "platform/AnswerWait.h"

#include <functional>
#include <string>

namespace corvane
{

// The text without its access-key marks: "&&" is an ampersand, any other "&" marks a key.
[[nodiscard]] std::wstring WithoutAccessKeys(const std::wstring& text);

// The text itself if it fits, otherwise its longest beginning that fits with an ellipsis behind it (the ellipsis alone
// if none does). A doubled "&" and a pair of surrogates stay together.
[[nodiscard]] std::wstring Shortened(const std::wstring& text, const std::function<bool(const std::wstring&)>& fits);

// The same by the number of letters (UTF-16 code units, the ellipsis included).
[[nodiscard]] std::wstring ShortenedTo(std::size_t letters, const std::wstring& text);

// How long a wait has lasted and what is sent meanwhile: "12.4 MB, 0:07 ..", with a mark that moves by the second.
// Bodies below 10 KB are not worth telling.
[[nodiscard]] std::wstring WaitText(const WaitProgress& progress);

// How much of a text a message box has room for that is to be inside of the screen.
struct MessageRoom
{
    std::size_t rows = 0;
    std::size_t letters = 0; // in one row, whatever letters they are; the system breaks rows between words only
};

// What a message box shows of a text: no more than 2,000 letters, no more rows than there is room for, and longer words
// than that in pieces.
[[nodiscard]] std::wstring MessageText(const std::wstring& text, const MessageRoom& room);

} // namespace corvane
