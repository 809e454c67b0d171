#include "player/Keys.h"

#include <algorithm>
#include <cwctype>
#include <vector>

#include "player/Run.h"

namespace corvane::player
{
namespace
{

constexpr UINT kKeyF1 = 0x004D; // WM_KEYF1, which no header names

struct NamedKey
{
    std::wstring_view name;
    WORD key;
};

constexpr NamedKey kNamedKeys[] = {
    {L"Enter", VK_RETURN},  {L"Esc", VK_ESCAPE}, {L"Tab", VK_TAB},   {L"Space", VK_SPACE}, {L"Backspace", VK_BACK},
    {L"Delete", VK_DELETE}, {L"Up", VK_UP},      {L"Down", VK_DOWN}, {L"Left", VK_LEFT},   {L"Right", VK_RIGHT},
    {L"Home", VK_HOME},     {L"End", VK_END},    {L"F1", VK_F1},     {L"F4", VK_F4},       {L"F5", VK_F5},
};

struct HeldKey
{
    std::wstring_view name;
    WORD key;
    WORD left;
};

constexpr HeldKey kHeldKeys[] = {
    {L"Ctrl", VK_CONTROL, VK_LCONTROL}, {L"Alt", VK_MENU, VK_LMENU}, {L"Shift", VK_SHIFT, VK_LSHIFT}};

// A key with the keys held down meanwhile, as "Ctrl+A", "Alt+S", "Shift+Tab", "F1".
struct KeyStroke
{
    WORD key = 0;
    std::vector<WORD> held; // each with the one of its two that is pressed
};

WORD KeyNamed(const std::wstring& name)
{
    const auto found = std::ranges::find(kNamedKeys, name, &NamedKey::name);
    if (found != std::end(kNamedKeys)) return found->key;
    if (name.size() == 1 && name[0] < 0x80 && std::iswalnum(name[0])) return static_cast<WORD>(std::towupper(name[0]));
    Fail(L"no key is named " + name);
}

void HoldKeys(const KeyStroke& stroke, bool down)
{
    BYTE state[256] = {};
    ::GetKeyboardState(state);
    for (const WORD key : stroke.held)
        state[key] = down ? 0x80 : 0;
    state[stroke.key] = down ? 0x80 : 0;
    ::SetKeyboardState(state);
}

bool IsHeld(const KeyStroke& stroke, WORD key) { return std::ranges::count(stroke.held, key) > 0; }

LPARAM KeyBits(WORD key, bool alt, bool up)
{
    const UINT scan = ::MapVirtualKeyW(key, MAPVK_VK_TO_VSC);
    LPARAM bits = 1 | static_cast<LPARAM>(scan) << 16;
    if (alt) bits |= LPARAM{1} << 29;
    if (up) bits |= LPARAM{3} << 30;
    return bits;
}

KeyStroke ParseKey(const std::wstring& name)
{
    KeyStroke stroke;
    std::wstring rest = name;
    for (std::size_t plus = rest.find(L'+'); plus != std::wstring::npos && plus + 1 < rest.size();
         plus = rest.find(L'+')) {
        const std::wstring held = rest.substr(0, plus);
        const auto row = std::ranges::find(kHeldKeys, held, &HeldKey::name);
        if (row == std::end(kHeldKeys)) Fail(L"no key to hold is named " + held);
        stroke.held.insert(stroke.held.end(), {row->key, row->left});
        rest.erase(0, plus + 1);
    }
    stroke.key = KeyNamed(rest);
    return stroke;
}

} // namespace

void PressKey(const UiQueue& queue, const std::wstring& name)
{
    const KeyStroke stroke = ParseKey(name);
    // The focus is asked for where it is set: another thread would see it while a form is on its way to the front.
    queue.Post([=, &queue] {
        const HWND target = ::GetFocus();
        const bool alt = IsHeld(stroke, VK_MENU);
        const bool system = alt && !IsHeld(stroke, VK_CONTROL);
        HoldKeys(stroke, true);
        ::PostMessageW(target, system ? WM_SYSKEYDOWN : WM_KEYDOWN, stroke.key, KeyBits(stroke.key, alt, false));
        // The system adds this to a real F1; the default window procedure makes WM_HELP of it.
        if (stroke.key == VK_F1) ::PostMessageW(target, kKeyF1, 0, 0);
        // TranslateMessage posts the character behind the key, so the release must not overtake it.
        queue.Post([=, &queue] {
            ::PostMessageW(target, system ? WM_SYSKEYUP : WM_KEYUP, stroke.key, KeyBits(stroke.key, alt, true));
            queue.Post([stroke] { HoldKeys(stroke, false); });
        });
    });
}

} // namespace corvane::player
