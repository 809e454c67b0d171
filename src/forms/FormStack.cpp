// The open forms together: which of them is in front, what it belongs to, and what they keep out of use.
#include "forms/Form.h"

#include "forms/Messages.h"
#include "forms/ShownText.h"
#include "platform/Procedure.h"

#include <algorithm>

namespace corvane
{
namespace
{

// The last opened of those that the test holds for, or null.
template<class Test>
Form* Last(const std::vector<Form*>& forms, const Test& test) noexcept
{
    const auto found = std::find_if(forms.rbegin(), forms.rend(), test);
    return found == forms.rend() ? nullptr : *found;
}

BOOL CALLBACK AddUsable(HWND window, LPARAM windows) noexcept
{
    if (::IsWindowVisible(window) && ::IsWindowEnabled(window))
        Ignoring([&] { reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window); });
    return TRUE;
}

void SetInUse(const std::vector<HWND>& windows, BOOL inUse) noexcept
{
    for (const HWND window : windows)
        ::EnableWindow(window, inUse);
}

} // namespace

std::vector<Form*>& Form::OpenForms()
{
    static std::vector<Form*> forms;
    return forms;
}

bool Form::IsForm(HWND window) noexcept
{
    return Last(OpenForms(), [&](const Form* form) { return form->m_window == window; }) != nullptr;
}

Form* Form::Top() noexcept
{
    return Last(OpenForms(), [](const Form* form) { return form->m_shown; });
}

HWND Form::TopWindow() noexcept
{
    const Form* const top = Top();
    return top == nullptr ? nullptr : top->m_window;
}

HWND Form::NextOwner() noexcept
{
    const Form* const owner = Last(OpenForms(), [](const Form* form) { return form->m_shown && !form->IsPassing(); });
    return owner == nullptr ? HostWindow() : owner->m_window;
}

void Form::UnloadNamed(std::wstring_view name) noexcept
{
    Form* const named = Last(OpenForms(), [&](const Form* form) { return form->m_name == name; });
    if (named != nullptr) named->Unload();
}

// A host may have a window for each document, and every document but the active one has to wait as well. Those that are
// out of use for a form below come first: they are not this one's to bring back.
void Form::DisableOthers() noexcept
{
    DisableAgain();
    ::EnumThreadWindows(::GetCurrentThreadId(), &AddUsable, reinterpret_cast<LPARAM>(&m_disabled));
    std::erase(m_disabled, m_window);
    SetInUse(m_disabled, FALSE);
}

void Form::DisableAgain() noexcept
{
    for (const Form* form : OpenForms())
        SetInUse(form->m_disabled, FALSE);
}

void Form::EnableOthers() noexcept
{
    SetInUse(m_disabled, TRUE);
    m_disabled.clear();
}

void Form::KeepOthersOut() noexcept
{
    Form* const top = Top();
    if (top == nullptr || !::IsWindowEnabled(top->m_window)) return;
    top->DisableOthers();
    const HWND active = ::GetActiveWindow();
    if (active != nullptr && !::IsWindowEnabled(active)) ::SetActiveWindow(top->m_window);
}

void Form::OnWait(const WaitProgress* progress) noexcept
{
    Ignoring([&] {
        const std::wstring text = progress != nullptr ? WaitText(*progress) : std::wstring{};
        const Form* const top = Top();
        for (Form* form : OpenForms())
            if (progress == nullptr || form == top) form->ShowWait(text);
    });
}

} // namespace corvane
