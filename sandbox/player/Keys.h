// Keys as a user presses them.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

#include "player/UiQueue.h"

namespace corvane::player
{

// A key with the keys held down meanwhile, as "Ctrl+A", "Alt+S", "Shift+Tab", "F1".
struct KeyStroke
{
    WORD key = 0;
    std::vector<WORD> held; // each with the one of its two that is pressed
};

// Throws Error when the name is unknown.
[[nodiscard]] KeyStroke ParseKey(const std::wstring& name);

// Presses and releases the key in the window that has the focus, as key messages that pass through the message loop and
// its dialog handling. The held keys show in the thread's key state while the messages are handled.
void PressKey(const UiQueue& queue, const KeyStroke& stroke);

} // namespace corvane::player
