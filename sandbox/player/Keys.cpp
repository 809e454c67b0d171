#include "player/Keys.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace host
{
namespace
{

constexpr UINT kKeyF1 = 0x004D; // WM_KEYF1, which no header names

struct NamedKey
{
    std::string_view name;
    WORD key;
};

constexpr NamedKey kNamedKeys[] = {
    {"Enter", VK_RETURN},  {"Esc", VK_ESCAPE}, {"Tab", VK_TAB},   {"Space", VK_SPACE}, {"Backspace", VK_BACK},
    {"Delete", VK_DELETE}, {"Up", VK_UP},      {"Down", VK_DOWN}, {"Left", VK_LEFT},   {"Right", VK_RIGHT},
    {"Home", VK_HOME},     {"End", VK_END},    {"F1", VK_F1},     {"F4", VK_F4},       {"F5", VK_F5},
};

WORD KeyNamed(const std::string& name)
{
    const auto found = std::ranges::find(kNamedKeys, name, &NamedKey::name);
    if (found != std::end(kNamedKeys)) return found->key;
    if (name.size() == 1 && std::isalnum(static_cast<unsigned char>(name[0])))
        return static_cast<WORD>(std::toupper(static_cast<unsigned char>(name[0])));
    throw std::runtime_error{"no key is named " + name};
}

void HoldKeys(const KeyStroke& stroke, bool down)
{
    BYTE state[256] = {};
    ::GetKeyboardState(state);
    const auto set = [&](int key, bool held) {
        if (held) state[key] = down ? 0x80 : 0;
    };
    set(VK_CONTROL, stroke.control);
    set(VK_LCONTROL, stroke.control);
    set(VK_MENU, stroke.alt);
    set(VK_LMENU, stroke.alt);
    set(VK_SHIFT, stroke.shift);
    set(VK_LSHIFT, stroke.shift);
    set(stroke.key, true);
    ::SetKeyboardState(state);
}

LPARAM KeyBits(WORD key, bool alt, bool up)
{
    const UINT scan = ::MapVirtualKeyW(key, MAPVK_VK_TO_VSC);
    LPARAM bits = 1 | static_cast<LPARAM>(scan) << 16;
    if (alt) bits |= LPARAM{1} << 29;
    if (up) bits |= LPARAM{3} << 30;
    return bits;
}

} // namespace

KeyStroke ParseKey(const std::string& name)
{
    KeyStroke stroke;
    std::string rest = name;
    for (std::size_t plus = rest.find('+'); plus != std::string::npos && plus + 1 < rest.size(); plus = rest.find('+'))
    {
        const std::string held = rest.substr(0, plus);
        if (held == "Ctrl")
            stroke.control = true;
        else if (held == "Alt")
            stroke.alt = true;
        else if (held == "Shift")
            stroke.shift = true;
        else
            throw std::runtime_error{"no key to hold is named " + held};
        rest.erase(0, plus + 1);
    }
    stroke.key = KeyNamed(rest);
    return stroke;
}

void PressKey(const UiQueue& queue, const KeyStroke& stroke)
{
    // The focus is asked for where it is set: another thread would see it while a form is on its way to the front.
    queue.Post([=, &queue] {
        const HWND target = ::GetFocus();
        const bool system = stroke.alt && !stroke.control;
        HoldKeys(stroke, true);
        ::PostMessageW(target, system ? WM_SYSKEYDOWN : WM_KEYDOWN, stroke.key, KeyBits(stroke.key, stroke.alt, false));
        // The system adds this to a real F1; the default window procedure makes WM_HELP of it.
        if (stroke.key == VK_F1) ::PostMessageW(target, kKeyF1, 0, 0);
        // TranslateMessage posts the character behind the key, so the release must not overtake it.
        queue.Post([=, &queue] {
            ::PostMessageW(target, system ? WM_SYSKEYUP : WM_KEYUP, stroke.key, KeyBits(stroke.key, stroke.alt, true));
            queue.Post([stroke] { HoldKeys(stroke, false); });
        });
    });
}

} // namespace host
