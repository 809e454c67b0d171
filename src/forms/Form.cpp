#include "forms/Form.h"

#include "forms/FormWindow.h"
#include "forms/Messages.h"
#include "platform/AnswerWait.h"
#include "platform/MessageLoop.h"
#include "platform/Procedure.h"

#include <windowsx.h>

#include <algorithm>

namespace corvane
{
namespace
{

constexpr UINT kActivatedMessage = WM_APP + 1;

} // namespace

Form::~Form() { Unload(); }

void Form::CreateWindowFromTemplate(HWND owner)
{
    OpenForms().reserve(OpenForms().size() + 1);
    m_window = CreateFormWindow(m_name, m_templateId, owner, &Form::DialogProcedure, reinterpret_cast<LPARAM>(this));
    AddDialogWindow(m_window);
    AnswerWait::SetWatch(&Form::OnWait);
    OpenForms().push_back(this);
    m_caption = WindowText(m_window);
    m_tips = FormTips{m_window};
}

void Form::MakeWindow()
{
    if (m_window != nullptr) return;
    CreateWindowFromTemplate(NextOwner());
    Run(L"Form_Initialize", &Form::Form_Initialize);
}

void Form::Load()
{
    if (m_loaded) return;
    MakeWindow();
    m_loaded = true;
    Run(L"Form_Load", &Form::Form_Load);
}

void Form::ShowModal()
{
    Load();
    if (m_window == nullptr) return; // unloaded again while its loading waited
    m_focusBefore = ::GetFocus();    // disabling its window takes it away
    DisableOthers();
    FitToScreen();
    SetShown(true);
    if (PumpUntil([this] { return !m_shown; }) == WaitEnd::Quit) Hide();
}

void Form::FitToScreen() noexcept
{
    m_scroll.Undo(m_window);
    m_scroll.Cut(m_window, WorkAreaFor(m_window).Size());
    Ignoring([this] { m_tips.SetText(m_window, m_caption); });
    MoveOntoScreen(m_window, m_shown ? FormPlace::Own : FormPlace::OwnersMiddle);
}

void Form::ChangeLayout(const std::function<void()>& change)
{
    m_scroll.Undo(m_window);
    change();
    m_tips.FollowControls();
    FitToScreen();
    ::RedrawWindow(m_window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void Form::SetShown(bool shown) noexcept
{
    m_shown = shown;
    ::ShowWindow(m_window, shown ? SW_SHOW : SW_HIDE);
    if (!shown) return;
    ::SetForegroundWindow(m_window);
    // Activation went to the first control in tab order and selected its text; a long one would show its end.
    ::SendMessageW(::GetFocus(), EM_SETSEL, 0, 0);
    ::SendMessageW(::GetFocus(), EM_SCROLLCARET, 0, 0);
    const HWND first = Control(FirstControl());
    const HWND focus = ::IsWindowEnabled(first) ? first : ::GetNextDlgTabItem(m_window, nullptr, FALSE);
    if (focus != nullptr) SetFocusTo(::GetDlgCtrlID(focus));
}

void Form::GiveFocusBack() noexcept
{
    const HWND focus = std::exchange(m_focusBefore, nullptr);
    if (::IsWindowVisible(focus) && ::IsWindowEnabled(::GetAncestor(focus, GA_ROOT))) ::SetFocus(focus);
}

void Form::Hide() noexcept
{
    if (!m_shown) return;
    const bool isActive = ::GetActiveWindow() == m_window;
    // The others come back to life first, so that the owner, and not another program, gets the focus.
    EnableOthers();
    SetShown(false);
    if (isActive) GiveFocusBack();
}

// A window goes with its owner, and a host may close that at any time: the command behind the form ends.
void Form::OnWindowGone() noexcept
{
    EnableOthers();
    m_shown = false;
    m_loaded = false;
    std::erase(OpenForms(), this);
    RemoveDialogWindow(m_window);
    m_window = nullptr;
}

void Form::Unload() noexcept
{
    if (m_window == nullptr) return;
    Hide();
    if (std::exchange(m_loaded, false)) Run(L"Form_Unload", &Form::Form_Unload);
    std::erase(OpenForms(), this);
    m_tips.TakeAllBack();
    RemoveDialogWindow(m_window);
    ::DestroyWindow(std::exchange(m_window, nullptr));
    ForgetFormClass(m_name);
}

void Form::Run(const wchar_t* procedure, void (Form::*run)()) noexcept
{
    Reporting([&] {
        const std::wstring name = std::wstring{m_name} + L"." + procedure;
        AtHostBoundary(name, [&] { (this->*run)(); });
    });
}

INT_PTR CALLBACK Form::DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    if (message == WM_INITDIALOG) {
        ::SetWindowLongPtrW(window, DWLP_USER, lParam);
        return FALSE; // the focus is set when the form is shown: setting it now would activate a hidden window
    }
    auto* form = reinterpret_cast<Form*>(::GetWindowLongPtrW(window, DWLP_USER));
    return form == nullptr || form->m_window == nullptr ? FALSE : form->OnMessage(message, wParam, lParam);
}

INT_PTR Form::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    if (m_scroll.OnMessage(m_window, message, wParam)) return TRUE;
    switch (message) {
    case WM_COMMAND:
        return OnNotification(LOWORD(wParam), HIWORD(wParam)) ? TRUE : FALSE;
    case WM_NOTIFY: {
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        return OnNotification(static_cast<int>(header->idFrom), header->code) ? TRUE : FALSE;
    }
    case WM_ACTIVATE:
        if (LOWORD(wParam) != WA_INACTIVE) OnActivated();
        return FALSE;
    case kActivatedMessage:
        if (m_shown) Run(L"Form_Activate", &Form::Form_Activate);
        return TRUE;
    case WM_TIMER:
        Run(L"Timer1_Timer", &Form::Timer);
        return TRUE;
    case WM_HELP:
        return OnNotification(HelpControl(), BN_CLICKED) ? TRUE : FALSE;
    case WM_DRAWITEM:
        Ignoring([&] { m_tips.DrawEntry(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); });
        return TRUE;
    case WM_NCMOUSEMOVE:
        m_tips.OnMouseOverFrame({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        return FALSE;
    case WM_SETCURSOR:
        if (!m_hourglass) return FALSE;
        ::SetCursor(::LoadCursorW(nullptr, IDC_WAIT));
        ::SetWindowLongPtrW(m_window, DWLP_MSGRESULT, TRUE);
        return TRUE;
    case WM_NCDESTROY: // not by Unload, which is no form's window any more when this comes
        OnWindowGone();
        return FALSE;
    default:
        return FALSE;
    }
}

void Form::OnActivated() const noexcept
{
    // No other windows than those: one that has come since may be the host's question, which waits for its answer.
    DisableAgain();
    // What activation starts may last: it runs from the message loop, not inside the activation.
    ::PostMessageW(m_window, kActivatedMessage, 0, 0);
}

bool Form::OnNotification(int control, UINT notification) noexcept
{
    const auto handlers = Handlers();
    const auto handler = std::find_if(handlers.begin(), handlers.end(), [&](const FormHandler& entry) {
        return entry.control == control && entry.notification == notification;
    });
    // Esc and Enter press their buttons even while these are out of use, and where there are none.
    const auto isUsable = [this, control] {
        const HWND window = Control(control);
        return window == nullptr || (::IsWindowEnabled(window) && IsShown(control));
    };
    if (notification == BN_CLICKED && (handler == handlers.end() || !isUsable())) {
        if (control == IDCANCEL) AnswerWait::End(); // the form cannot be left
        return handler != handlers.end();
    }
    if (handler == handlers.end()) return false;
    Run(handler->procedure, handler->run);
    return true;
}

} // namespace corvane
