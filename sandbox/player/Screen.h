// What is on the screen, read from another thread by messages that give up when a window does not answer. Each
// function returns at once with what can be known; nullopt stands for a window that does not answer.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <windows.h>

namespace corvane::player
{

// The visible top-level windows of this process, the topmost first.
[[nodiscard]] std::vector<HWND> VisibleWindows();
[[nodiscard]] std::vector<HWND> ChildrenOf(HWND window); // at any depth

// The visible window of this class, or null.
[[nodiscard]] HWND FindForm(const std::wstring& className);

// A descendant of the form by its id, or null.
[[nodiscard]] HWND FindControl(HWND form, int id);

[[nodiscard]] std::wstring ClassOf(HWND window);
[[nodiscard]] bool IsClass(HWND window, const wchar_t* name); // without regard to case
[[nodiscard]] std::optional<std::wstring> WindowText(HWND window);

// What a user reads in the control: its text, the chosen entry of a list, the path of the chosen tree node, the first
// part of a status bar, the position of a progress bar.
[[nodiscard]] std::optional<std::wstring> ControlText(HWND control);

// What a user reads in a part of a status bar, counted from 0.
[[nodiscard]] std::optional<std::wstring> PartText(HWND statusBar, int part);

[[nodiscard]] std::wstring WithoutMarks(std::wstring caption); // without any "&"

[[nodiscard]] bool IsChecked(HWND box);
[[nodiscard]] bool IsDefaultButton(HWND form, HWND button);
[[nodiscard]] HWND FocusOf(DWORD threadId);

// The visible windows with their controls, for a report.
[[nodiscard]] std::wstring DescribeScreen();

// Sends a message that gives up after a second; nullopt when it does. A pointer in it must stay valid for ever, since a
// window that wakes up later may still write through it: use AnswerBuffer.
[[nodiscard]] std::optional<LRESULT> Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

// The one buffer for texts that windows write; for the calling thread that reads the screen.
constexpr std::size_t kAnswerLength = 65536;
[[nodiscard]] wchar_t* AnswerBuffer();

} // namespace corvane::player
