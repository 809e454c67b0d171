// Base of the add-in's forms: a window from a dialog template, its loading order, its modal loop and the barrier around
// everything the system calls it with. It knows no particular form.
#pragma once

#include "forms/FormScroll.h"
#include "forms/FormTips.h"

#include <windows.h>

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace corvane
{

struct WaitProgress;

class Form;

// A control's notification (WM_COMMAND or WM_NOTIFY code) and the form's procedure that answers it. The procedure is
// named as in the trace, without the form's name.
struct FormHandler
{
    int control;
    UINT notification;
    const wchar_t* procedure;
    void (Form::*run)();
};

// Lets a table name a derived form's procedure.
template<class Derived>
FormHandler Handle(int control, UINT notification, const wchar_t* procedure, void (Derived::*run)())
{
    return {control, notification, procedure, static_cast<void (Form::*)()>(run)};
}

// A form is made, given its inputs, shown, read and unloaded by its opener. Hiding ends a modal show but keeps the
// window and what the user put in. Where Esc cannot leave a form, it ends the wait for an answer.
class Form
{
public:
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form();

    // Makes the window, hidden, in the user's message font, and runs Form_Initialize. Does nothing when that is done.
    // Throws Error when the window cannot be made.
    void MakeWindow();

    // Makes the window if need be and runs Form_Load. Does nothing when that is done. Throws what making throws; an
    // error of Form_Load is reported and the form stays.
    void Load();

    // Loads the form if need be, shows it in front of its owner and centred on it, and returns when it is hidden or
    // unloaded. The control that had the keyboard before then has it again. Throws what loading throws.
    void ShowModal();
    void Hide() noexcept;
    void Unload() noexcept;

    [[nodiscard]] HWND Window() const noexcept { return m_window; }

    // Unloads the open form of that name, the last opened where there are several.
    static void UnloadNamed(std::wstring_view name) noexcept;

    // Whether the window is a form's.
    [[nodiscard]] static bool IsForm(HWND window) noexcept;

    // The visible form in front of the others, or null.
    [[nodiscard]] static HWND TopWindow() noexcept;

    // Puts the thread's other windows out of use again for the form in front, and gives it the keyboard where one of
    // them has it. Does nothing while there is no form, or one that waits for the answer to a message.
    static void KeepOthersOut() noexcept;

protected:
    // The name is the form's class name; its window class carries it too.
    Form(const wchar_t* name, int templateId) noexcept : m_name{name}, m_templateId{templateId} {}

    // None while the form is being destroyed, when its window still tells of what goes with it.
    [[nodiscard]] virtual std::span<const FormHandler> Handlers() const { return {}; }
    virtual void Form_Initialize() {} // asks no server
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Unload() {}
    virtual void Timer() {}
    // Shows how a wait for the server goes, each second while the form is in front; an empty text when it is over.
    virtual void ShowWait(const std::wstring& /*text*/) {}
    // The control that has the keyboard first; 0 for the first that takes it.
    [[nodiscard]] virtual int FirstControl() const noexcept { return 0; }
    // The control that F1 presses; 0 for none.
    [[nodiscard]] virtual int HelpControl() const noexcept { return 0; }
    // True for a form that is unloaded while what it opened lives on, and so must not own it.
    [[nodiscard]] virtual bool IsPassing() const noexcept { return false; }

    // Shown and neither hidden by its user nor unloaded since; a window goes out of sight with its owner, too.
    [[nodiscard]] bool IsOpen() const noexcept { return m_shown; }
    [[nodiscard]] HWND Control(int control) const noexcept { return ::GetDlgItem(m_window, control); }
    [[nodiscard]] std::wstring Text(int control) const;
    // A text that its control, or the title bar, cannot show whole ends in an ellipsis and has a tooltip; more is for
    // the tooltip alone.
    void SetText(int control, const std::wstring& text, const std::wstring& more = {}) const;
    void SetCaption(const std::wstring& text);
    void Enable(int control, bool enabled) const noexcept;
    // The keyboard leaves the controls in one step, not from one to the next.
    void Enable(std::span<const int> controls, bool enabled) const noexcept;
    void SetFocusTo(int control) const noexcept;
    // The control that has the keyboard; 0 for none of the form's.
    [[nodiscard]] int FocusedControl() const noexcept;
    // Gives a control the place behind a label, and with it the label's text as its name for screen readers.
    void PutBehindLabel(int control, int label) const noexcept;
    [[nodiscard]] bool IsShown(int control) const noexcept;
    void Show(int control, bool shown) const noexcept;
    [[nodiscard]] bool IsChecked(int control) const noexcept;
    void Check(int control, bool checked) const noexcept;
    // Makes a button the one that Enter presses; 0 for none.
    void SetDefaultButton(int control) const noexcept;
    // Shows text in the status bar at once.
    void SetStatus(int statusBar, const std::wstring& text) const noexcept;
    // Shows text in a part of its own at the status bar's end; without text there is no such part.
    void SetStatusDetail(int statusBar, const std::wstring& text) const;
    // How far a progress bar has come, of the 100 that it counts to unless told otherwise.
    void SetProgress(int bar, int percent) const noexcept;
    // The font stays the caller's, who keeps it as long as the control.
    void SetFont(int control, HFONT font) const noexcept;
    // The hourglass over the form, or the usual pointer.
    void SetHourglass(bool on) noexcept;
    void StartTimer(UINT milliseconds) const noexcept;
    // Moves controls by change, which sees the form in its whole size, and fits the form to the screen again.
    void ChangeLayout(const std::function<void()>& change);

private:
    static std::vector<Form*>& OpenForms(); // the last opened at the end
    [[nodiscard]] static Form* Top() noexcept;
    [[nodiscard]] static HWND NextOwner() noexcept; // of a form that is loaded now
    static INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    void OnActivated() const noexcept;
    static void OnWait(const WaitProgress* progress) noexcept;
    bool OnNotification(int control, UINT notification) noexcept;
    void Run(const wchar_t* procedure, void (Form::*run)()) noexcept;
    void CreateWindowFromTemplate(HWND owner);
    void SetShown(bool shown) noexcept;
    void FitToScreen() noexcept;
    void DisableOthers() noexcept;
    static void DisableAgain() noexcept;
    void EnableOthers() noexcept;
    void OnWindowGone() noexcept;
    void GiveFocusBack() noexcept;

    const wchar_t* m_name;
    int m_templateId;
    HWND m_window = nullptr;
    std::vector<HWND> m_disabled; // the thread's other windows while the form is shown
    HWND m_focusBefore = nullptr; // had the keyboard when the form was shown
    std::wstring m_caption;       // the whole text
    FormTips m_tips;
    FormScroll m_scroll;
    bool m_loaded = false;
    bool m_shown = false;
    bool m_hourglass = false;
};

} // namespace corvane
