#include "player/Screen.h"

#include <algorithm>

#include <commctrl.h>

namespace corvane::player
{
namespace
{

constexpr wchar_t kMessageBoxClass[] = L"#32770";

struct IconName
{
    LPCWSTR resource;
    const wchar_t* name;
};

const IconName kIcons[] = {
    {IDI_HAND, L"critical"},
    {IDI_QUESTION, L"question"},
    {IDI_EXCLAMATION, L"exclamation"},
    {IDI_ASTERISK, L"information"},
};

bool IsIconControl(HWND control)
{
    return IsClass(control, WC_STATICW) && (::GetWindowLongPtrW(control, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
}

// An icon of the system is loaded once: its handle tells it.
std::optional<std::wstring> NameOf(HICON icon)
{
    for (const IconName& row : kIcons)
        if (::LoadIconW(nullptr, row.resource) == icon) return row.name;
    return std::nullopt;
}

} // namespace

std::vector<HWND> MessageBoxes()
{
    std::vector<HWND> boxes = VisibleWindows();
    std::erase_if(boxes, [](HWND window) { return ClassOf(window) != kMessageBoxClass; });
    return boxes;
}

std::wstring MessageText(HWND box)
{
    std::wstring text;
    for (HWND child : ChildrenOf(box))
        if (IsClass(child, WC_STATICW) && !IsIconControl(child)) text += WindowText(child).value_or(L"");
    return text;
}

HWND ButtonWithCaption(HWND box, const std::wstring& caption)
{
    for (HWND child : ChildrenOf(box))
        if (IsClass(child, WC_BUTTONW) &&
            ::lstrcmpiW(WithoutMarks(WindowText(child).value_or(L"")).c_str(), caption.c_str()) == 0)
            return child;
    return nullptr;
}

std::optional<std::wstring> MessageIcon(HWND box)
{
    const auto children = ChildrenOf(box);
    const auto control = std::ranges::find_if(children, IsIconControl);
    const auto icon = control == children.end() ? std::optional<LRESULT>{0} : Ask(*control, STM_GETICON);
    if (!icon) return std::nullopt;
    return *icon == 0 ? L"none" : NameOf(reinterpret_cast<HICON>(*icon));
}

} // namespace corvane::player
