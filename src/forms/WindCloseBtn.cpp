#include "forms/WindCloseBtn.h"

#include "platform/MessageLoop.h"
#include "platform/Procedure.h"

#include <array>

namespace corvane
{
namespace
{

// The command of a disabled Close entry: one that the frame's close button is not bound to.
constexpr UINT kDisabledCommand = 0xFFFFFFF6;
constexpr UINT kGrayed = MFS_GRAYED;

struct MenuItem
{
    MENUITEMINFOA info{};
    std::array<char, 80> text{};

    explicit MenuItem(UINT mask) noexcept
    {
        info.cbSize = sizeof info;
        info.fMask = mask;
        info.dwTypeData = text.data();
        info.cch = static_cast<UINT>(text.size());
    }
};

} // namespace

bool EnableCloseButton(HWND window, bool enable) noexcept
{
    const ProcedureScope scope{L"WindCloseBtn.EnableCloseButton"};
    if (!::IsWindow(window)) return true;
    const HMENU menu = ::GetSystemMenu(window, FALSE);
    const UINT from = enable ? kDisabledCommand : SC_CLOSE;
    const UINT to = enable ? SC_CLOSE : kDisabledCommand;

    MenuItem state{MIIM_STATE};
    ::GetMenuItemInfoA(menu, from, FALSE, &state.info);
    MenuItem command{MIIM_ID};
    command.info.wID = to;
    ::SetMenuItemInfoA(menu, from, FALSE, &command.info);
    if (enable)
        state.info.fState -= kGrayed; // whatever the state was: this is the interface
    else
        state.info.fState |= kGrayed;
    ::SetMenuItemInfoA(menu, to, FALSE, &state.info);

    PumpPending();
    LPARAM redraw = 0;
    ::SendMessageA(window, WM_NCACTIVATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&redraw));
    PumpPending();
    return false;
}

} // namespace corvane
