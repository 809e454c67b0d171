#include "forms/Messages.h"

#include "forms/Form.h"
#include "forms/FormWindow.h"
#include "forms/ShownText.h"

#include <algorithm>
#include <cstdlib>

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

// The room that the screen has for a message beside the frame, the margins, the icon and the buttons of its box.
MessageRoom RoomFor(HWND owner) noexcept
{
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const int letter = std::max(std::abs(static_cast<int>(metrics.lfMessageFont.lfHeight)), 1); // no narrower than wide
    const Extent screen = WorkAreaFor(owner).Size();
    const int rows = screen.height / (letter * 3 / 2) - 12;
    const int letters = screen.width / letter - 10;
    return {.rows = static_cast<std::size_t>(std::clamp(rows, 5, 40)),
            .letters = static_cast<std::size_t>(std::clamp(letters, 20, 200))};
}

} // namespace

void SetApplicationTitle(std::wstring title) { Title() = std::move(title); }

const std::wstring& ApplicationTitle() noexcept { return Title(); }

void SetHostWindow(HWND told) noexcept { g_hostWindow = told != nullptr ? told : ActiveHostWindow(); }

HWND HostWindow() noexcept { return ::IsWindow(g_hostWindow) ? g_hostWindow : ActiveHostWindow(); }

int ShowMessage(const std::wstring& text, UINT style, const std::wstring& title)
{
    const HWND form = Form::TopWindow();
    const HWND owner = form != nullptr ? form : HostWindow();
    return ::MessageBoxW(owner, MessageText(text, RoomFor(owner)).c_str(),
                         (title.empty() ? ApplicationTitle() : title).c_str(), style);
}

} // namespace corvane
