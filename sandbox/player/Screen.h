// What is on the screen, read from another thread by messages that give up when a window does not answer. Each
// function returns at once with what can be known; nullopt stands for a window that does not answer.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <windows.h>

#include <commctrl.h>

namespace corvane::player
{

// The top-level windows of this process, and those of them that show, the topmost first.
[[nodiscard]] bool IsOwn(HWND window);
[[nodiscard]] std::vector<HWND> OwnWindows();
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

[[nodiscard]] std::vector<HWND> MessageBoxes(); // the topmost first

// The box's text as it was given to it, blanks and line breaks included.
[[nodiscard]] std::wstring MessageText(HWND box);
[[nodiscard]] HWND ButtonWithCaption(HWND box, const std::wstring& caption);

// The box's icon: critical, question, exclamation, information or none; nullopt for a picture that is none of these.
[[nodiscard]] std::optional<std::wstring> MessageIcon(HWND box);

// The texts of the chosen node and its parents, joined by "/" from the top; empty when none is chosen.
[[nodiscard]] std::optional<std::wstring> ChosenPath(HWND tree);

// The child of this text, or null; the parent null stands for the top level.
[[nodiscard]] HTREEITEM FindNode(HWND tree, HTREEITEM parent, const std::wstring& text);

// The texts of a node's children, for a report.
[[nodiscard]] std::vector<std::wstring> NodeTexts(HWND tree, HTREEITEM parent);

[[nodiscard]] bool IsExpanded(HWND tree, HTREEITEM node); // or does not answer
[[nodiscard]] HTREEITEM NextNode(HWND tree, UINT relation, HTREEITEM node);

// A form's tooltip for a control, or for its title bar where the control is the form itself; empty without one.
[[nodiscard]] std::wstring TipOf(HWND form, HWND control);

// The form's tooltip that is on the screen; empty when there is none.
[[nodiscard]] std::wstring ShownTip(HWND form);

// Puts the mouse over the middle of a control, or of the form's title bar.
void PointAt(HWND form, HWND control);

// Writes a window as it shows on the screen, or the whole screen for null, as a PNG. Throws Error when the
// screen cannot be read or the file not written.
void SaveScreenshot(const std::wstring& path, HWND window);

// The id of a control by the name that the forms' resource header gives it; "IDOK" and the like stand for themselves.
[[nodiscard]] std::optional<int> ControlIdOf(std::wstring_view name);

// The name of a control id, or the number as text.
[[nodiscard]] std::wstring ControlNameOf(int id);

// What a user would see wrong in a form's layout: a text cut off (an ellipsis counts only where a tooltip carries the
// whole text), controls over each other, a control outside the form, the form outside the screen's work area. Empty
// when all is well. What is scrolled out of view counts as inside. Of a message box, only the places are looked at.
[[nodiscard]] std::wstring FitProblem(HWND form);

} // namespace corvane::player
