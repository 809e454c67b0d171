// Keys as a user presses them.
#pragma once

#include <string>

#include "player/UiQueue.h"

namespace corvane::player
{

// Presses and releases a key, as "Ctrl+A", "Alt+S", "Shift+Tab", "F1", in the window that has the focus, as key
// messages that pass through the message loop and its dialog handling. The held keys show in the thread's key state
// while the messages are handled. Throws Error when the name is unknown.
void PressKey(const UiQueue& queue, const std::wstring& name);

} // namespace corvane::player
