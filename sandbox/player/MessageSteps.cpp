#include <algorithm>
#include <regex>
#include <span>

#include "player/Run.h"
#include "player/Screen.h"
#include "player/Script.h"

namespace corvane::player
{
namespace
{

// The text that a message step wants, or a part of it, the button that it presses and the form addressed then.
struct WantedMessage
{
    std::wstring text;
    std::wstring button;
    std::wstring form;
    bool isWhole = false;
    bool isOneLine = true;
};

WantedMessage WantedBy(const Step& step)
{
    const std::size_t first = step.At(0) == L"exactly" && !step.words[0].quoted ? 1 : 0;
    const auto texts = std::span{step.words}.subspan(first);
    const auto button =
        first + static_cast<std::size_t>(std::ranges::find(texts, false, &Word::quoted) - texts.begin());
    if (button == first || step.words.size() > button + 2)
        Fail(L"a message step takes quoted texts, one button and one form");
    return {step.Lines(first, button), step.At(button), step.At(button + 1), first == 1, button == first + 1};
}

bool IsWanted(const WantedMessage& wanted, const std::wstring& found)
{
    static const std::wregex lineBreaks{L"[\\r\\n]+"};
    const std::wstring shown = wanted.isOneLine ? std::regex_replace(found, lineBreaks, L" ") : found;
    return wanted.isWhole ? shown == wanted.text : shown.find(wanted.text) != std::wstring::npos;
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

void Message(Stage&, Run& run, const Step& step)
{
    const WantedMessage wanted = WantedBy(step);
    HWND button = nullptr;
    HWND found = nullptr;
    run.WaitFor([&] {
        Finding instead = L"no message is open";
        for (HWND box : MessageBoxes()) {
            instead = ReportOf(box);
            if (!IsWanted(wanted, MessageText(box))) continue;
            button = ButtonWithCaption(box, wanted.button);
            found = box;
            return Unless(wanted.button.empty() || button != nullptr, L"the message has no button " + wanted.button);
        }
        return instead;
    });
    if (wanted.button.empty()) return;
    ::PostMessageW(button, BM_CLICK, 0, 0);
    run.WaitFor([&] { return Unless(!::IsWindow(found) || !::IsWindowVisible(found), L"the message stays"); });
    run.LeaveMessage();
    if (!wanted.form.empty()) run.Address(wanted.form);
}

void NoMessage(Stage&, Run& run, const Step&)
{
    run.Settle();
    const auto boxes = MessageBoxes();
    if (!boxes.empty()) Fail(ReportOf(boxes.front()));
}

void ExpectIcon(Stage&, Run& run, const Step& step)
{
    if (!run.IsOnMessage()) Fail(L"no message is addressed");
    run.WaitFor([&] {
        const HWND box = run.Form();
        if (box == nullptr) return Finding{L"no message is open"};
        const std::wstring icon = MessageIcon(box).value_or(L"another");
        return Unless(icon == step.At(0), L"it is " + icon);
    });
}

constexpr StepRow kSteps[] = {
    {"message", 1, kAny, &Message},
    {"no message", 0, 0, &NoMessage},
    {"expect icon", 1, 1, &ExpectIcon},
};

} // namespace

std::span<const StepRow> MessageSteps() { return kSteps; }

} // namespace corvane::player
