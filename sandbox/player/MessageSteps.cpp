#include <algorithm>
#include <span>
#include <stdexcept>

#include "automation/Text.h"
#include "player/MessageBox.h"
#include "player/Player.h"

namespace host
{
namespace
{

// The text that a message step wants, or a part of it, and the button that it presses.
struct WantedMessage
{
    std::string text;
    std::wstring button;
    bool isWhole = false;
    bool isOneLine = true;
};

WantedMessage WantedBy(const Step& step)
{
    auto words = std::span{step.words};
    WantedMessage wanted;
    wanted.isWhole = words.front().text == "exactly" && !words.front().quoted;
    if (wanted.isWhole) words = words.subspan(1);
    if (!words.empty() && !words.back().quoted) {
        wanted.button = Widen(words.back().text);
        words = words.first(words.size() - 1);
    }
    if (words.empty() || !std::ranges::all_of(words, &Word::quoted))
        throw std::runtime_error{"a message step takes quoted texts and one button"};
    for (const Word& line : words)
        wanted.text += (&line == &words.front() ? "" : "\r\n") + line.text;
    wanted.isOneLine = words.size() == 1;
    return wanted;
}

bool IsWanted(const WantedMessage& wanted, const std::wstring& found)
{
    const std::string shown = wanted.isOneLine ? LineBreaksAsBlanks(Narrow(found)) : Narrow(found);
    return wanted.isWhole ? shown == wanted.text : shown.find(wanted.text) != std::string::npos;
}

// The box's text as a step would write it.
std::wstring ReportOf(HWND box)
{
    std::wstring written = L"the message is \"";
    for (const wchar_t c : MessageText(box)) {
        if (c == L'\n') written += L"\" \"";
        if (c != L'\n' && c != L'\r') written += c;
        if (c == L'"') written += c;
    }
    return written + L"\"";
}

} // namespace

void Player::Message(const Step& step)
{
    const WantedMessage wanted = WantedBy(step);
    HWND button = nullptr;
    HWND found = nullptr;
    WaitFor([&] {
        Finding instead = L"no message is open";
        for (HWND box : MessageBoxes()) {
            instead = ReportOf(box);
            if (!IsWanted(wanted, MessageText(box))) continue;
            button = ButtonWithCaption(box, wanted.button);
            found = box;
            return wanted.button.empty() || button ? Finding{} : L"the message has no button " + wanted.button;
        }
        return instead;
    });
    if (wanted.button.empty()) return;
    ::PostMessageW(button, BM_CLICK, 0, 0);
    WaitFor([&] { return ::IsWindow(found) && ::IsWindowVisible(found) ? Finding{L"the message stays"} : Finding{}; });
    m_onMessage = false;
}

void Player::No(const Step& step)
{
    Settle();
    if (step.At(0) == "macro") {
        if (HasRun(step.At(1))) throw std::runtime_error{"the macro was run"};
        return;
    }
    if (step.At(0) != "message") throw std::runtime_error{"only \"no message\" and \"no macro\" are offered"};
    const auto boxes = MessageBoxes();
    if (!boxes.empty()) throw Error{E_FAIL, {}, ReportOf(boxes.front())};
}

void Player::ExpectIcon(const Step& step)
{
    if (!m_onMessage) throw std::runtime_error{"no message is addressed"};
    WaitFor([&] {
        const HWND box = Form();
        if (!box) return Finding{L"no message is open"};
        const std::string icon = MessageIcon(box).value_or("another");
        return icon == step.At(1) ? Finding{} : L"it is " + Widen(icon);
    });
}

} // namespace host
