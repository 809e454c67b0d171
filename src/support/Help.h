// The add-in's compiled help file and the system's viewer for it.
#pragma once

#include "support/HelpTopic.h"

#include <windows.h>

#include <string>

namespace corvane
{

// The full path of the help file, which need not be there.
void SetHelpFile(std::wstring path);

// Show the table of contents, or a topic over the window that asks. A missing help file is told to the user. Throw
// Error when the system has no viewer.
void ShowHelpContents();
void ShowHelpTopic(HWND owner, HelpTopic topic);

// Closes the viewer's windows, which would outlive the add-in.
void CloseHelp() noexcept;

} // namespace corvane
