#include "forms/Messages.h"

#include "forms/Form.h"

namespace corvane
{
namespace
{

std::wstring& Title()
{
    static std::wstring title = L"Corvane for MS Office";
    return title;
}

HWND g_hostWindow = nullptr;

// The window behind all that is open on this thread, unless that is ours.
HWND ActiveHostWindow() noexcept
{
    const HWND active = ::GetActiveWindow();
    const HWND bottom = active == nullptr ? nullptr : ::GetAncestor(active, GA_ROOTOWNER);
    return Form::IsForm(bottom) ? nullptr : bottom;
}

} // namespace

void SetApplicationTitle(std::wstring title) { Title() = std::move(title); }

const std::wstring& ApplicationTitle() noexcept { return Title(); }

void SetHostWindow(HWND told) noexcept { g_hostWindow = told != nullptr ? told : ActiveHostWindow(); }

HWND HostWindow() noexcept { return ::IsWindow(g_hostWindow) ? g_hostWindow : ActiveHostWindow(); }

int ShowMessage(const std::wstring& text, UINT style, const std::wstring& title)
{
    const HWND form = Form::TopWindow();
    return ::MessageBoxW(form != nullptr ? form : HostWindow(), text.c_str(),
                         (title.empty() ? ApplicationTitle() : title).c_str(), style);
}

} // namespace corvane
