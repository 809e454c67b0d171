#include "platform/Messages.h"

#include "platform/Form.h"

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

} // namespace

void SetApplicationTitle(std::wstring title) { Title() = std::move(title); }

const std::wstring& ApplicationTitle() noexcept { return Title(); }

void SetHostWindow(HWND window) noexcept { g_hostWindow = window; }

HWND HostWindow() noexcept { return ::IsWindow(g_hostWindow) ? g_hostWindow : ::GetActiveWindow(); }

int ShowMessage(const std::wstring& text, UINT style, const std::wstring& title)
{
    const HWND form = Form::TopWindow();
    return ::MessageBoxW(form != nullptr ? form : HostWindow(), text.c_str(),
                         (title.empty() ? ApplicationTitle() : title).c_str(), style);
}

} // namespace corvane
