#include "forms/FormTips.h"

#include "forms/AccessibleName.h"
#include "forms/FormCaption.h"
#include "forms/FormLayout.h"
#include "forms/FormList.h"
#include "forms/FormWindow.h"
#include "forms/ShownBox.h"
#include "forms/ShownText.h"
#include "forms/TextRuler.h"

#include <commctrl.h>

#include <algorithm>

namespace corvane
{
namespace
{

constexpr int kTipLettersALine = 60;
constexpr int kDetailShare = 60; // percent of a status bar, at most

// What decides how a control shows a text that is too long for it.
enum class TextKind
{
    Typed,    // the user's own, or none
    Shown,    // a read-only box, which draws its ellipsis itself
    Line,     // a label that draws its ellipsis itself
    Lines,    // a label of several lines
    Button,   // with room for its edges
    CheckBox, // with room for its mark
    Frame,
    Caption // of the form itself
};

bool IsClass(HWND control, const wchar_t* name) noexcept
{
    wchar_t own[32] = L"";
    ::GetClassNameW(control, own, static_cast<int>(std::size(own)));
    return ::lstrcmpiW(own, name) == 0;
}

TextKind KindOf(HWND control) noexcept
{
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(control, GWL_STYLE));
    if ((style & WS_CHILD) == 0) return TextKind::Caption;
    if (IsClass(control, WC_STATICW)) return (style & SS_ELLIPSISMASK) != 0 ? TextKind::Line : TextKind::Lines;
    if (IsClass(control, WC_EDITW))
        return (style & (ES_READONLY | ES_MULTILINE)) == ES_READONLY ? TextKind::Shown : TextKind::Typed;
    if (!IsClass(control, WC_BUTTONW)) return TextKind::Typed;
    const DWORD type = style & BS_TYPEMASK;
    if (type == BS_GROUPBOX) return TextKind::Frame;
    return type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON ? TextKind::Button : TextKind::CheckBox;
}

// What of a control's width is not for its text.
int EdgesOf(TextKind kind, int letter) noexcept
{
    switch (kind) {
    case TextKind::Button:
        return 2 * letter;
    case TextKind::CheckBox:
        return ::GetSystemMetrics(SM_CXMENUCHECK) + 2 * letter;
    case TextKind::Frame:
        return 4 * letter;
    default:
        return 0;
    }
}

bool Fits(HWND control, TextKind kind, const std::wstring& text)
{
    if (kind == TextKind::Caption) return CaptionFits(control, text);
    RECT client{};
    ::GetClientRect(control, &client);
    const RECT room = kind == TextKind::Shown ? TextRoomOf(control) : client;
    const LONG width = room.right - room.left;
    const TextRuler ruler{control};
    if (kind == TextKind::Lines) {
        const SIZE size = ruler.Measure(text, DT_WORDBREAK | DT_EXPANDTABS, width);
        return size.cx <= width && size.cy <= room.bottom;
    }
    const UINT format = DT_SINGLELINE | (kind == TextKind::Shown ? DT_NOPREFIX : 0U);
    const int letter = ruler.Measure(L"0", format, 0).cx;
    return ruler.Measure(text, format, 0).cx + EdgesOf(kind, letter) <= width;
}

// Controls that readers know by the label before them alone; not all readers look there.
bool IsNamedByLabel(HWND control) noexcept
{
    constexpr const wchar_t* kClasses[] = {WC_COMBOBOXW, WC_LISTBOXW, WC_TREEVIEWW, PROGRESS_CLASSW};
    return std::ranges::any_of(kClasses, [control](const wchar_t* name) { return IsClass(control, name); });
}

void NameBehind(HWND label, const std::wstring& text) noexcept
{
    if (!IsClass(label, WC_STATICW)) return;
    const HWND control = ::GetWindow(label, GW_HWNDNEXT);
    if (IsNamedByLabel(control)) NameForReaders(control, text);
}

// Labels and frames let the mouse through to the form, and the title bar is the form's: there the tooltip watches a
// part of the form.
TTTOOLINFOW ToolOf(HWND form, HWND control) noexcept
{
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE; // known to every edition of the controls
    tool.hwnd = form;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    const TextKind kind = KindOf(control);
    const bool isPartOfForm =
        kind == TextKind::Line || kind == TextKind::Lines || kind == TextKind::Frame || kind == TextKind::Caption;
    tool.uFlags = TTF_SUBCLASS | (isPartOfForm ? 0U : TTF_IDISHWND);
    tool.rect = kind == TextKind::Caption ? CaptionPlace(form) : ControlPlace(control);
    if (kind == TextKind::Frame) {
        const TextRuler ruler{control};
        tool.rect.bottom = tool.rect.top + ruler.Measure(L"0", DT_SINGLELINE, 0).cy;
    }
    return tool;
}

} // namespace

FormTips::FormTips(HWND form) : m_form{form}
{
    for (const HWND control : ControlsOf(form))
        NameBehind(control, WithoutAccessKeys(WindowText(control)));
}

void FormTips::SetText(HWND control, const std::wstring& text, const std::wstring& more) const
{
    if (control == nullptr) return;
    const TextKind kind = KindOf(control);
    const auto fits = [&](const std::wstring& part) { return Fits(control, kind, part); };
    ::SetWindowTextW(control, text.c_str());
    const bool hasRoom = kind == TextKind::Typed || fits(text);
    const bool drawsAll = hasRoom || kind == TextKind::Line || kind == TextKind::Shown;
    if (!hasRoom && kind == TextKind::Shown) EndInEllipsis(control);
    if (!drawsAll) ::SetWindowTextW(control, Shortened(text, fits).c_str());
    const bool isLiteral = kind == TextKind::Shown || kind == TextKind::Caption;
    std::wstring whole = isLiteral ? text : WithoutAccessKeys(text);
    TakeBack(control);
    NameBehind(control, whole);
    if (!drawsAll) NameForReaders(control, whole);
    const std::wstring rest = hasRoom || more.empty() ? more : L"\r\n" + more;
    if (!hasRoom || !rest.empty()) AddTip(control, (hasRoom ? L"" : whole) + rest);
}

void FormTips::SetStatusDetail(HWND statusBar, const std::wstring& text) const
{
    RECT client{};
    ::GetClientRect(statusBar, &client);
    const TextRuler ruler{statusBar};
    const auto widthOf = [&](const std::wstring& part) {
        const LONG width = ruler.Measure(part + L"00", DT_SINGLELINE | DT_NOPREFIX, 0).cx; // with its edges
        return static_cast<int>(width + width / 10); // the bar may draw letters wider than they are measured
    };
    const std::wstring shown =
        Shortened(text, [&](const std::wstring& part) { return widthOf(part) <= client.right * kDetailShare / 100; });
    const int ends[] = {text.empty() ? -1 : static_cast<int>(client.right) - widthOf(shown), -1};
    ::SendMessageW(statusBar, SB_SETPARTS, text.empty() ? 1 : 2, reinterpret_cast<LPARAM>(ends));
    if (!text.empty()) ::SendMessageW(statusBar, SB_SETTEXTW, 1, reinterpret_cast<LPARAM>(shown.c_str()));
    TakeBack(statusBar);
    if (shown != text) AddTip(statusBar, text);
}

void FormTips::DrawEntry(const DRAWITEMSTRUCT& entry) const
{
    const bool isCut = DrawListEntry(entry);
    if ((entry.itemState & ODS_COMBOBOXEDIT) == 0) return;
    TakeBack(entry.hwndItem);
    if (isCut) AddTip(entry.hwndItem, FormList{entry.hwndItem}.Text(static_cast<int>(entry.itemID)));
}

HWND FormTips::Tooltip() const noexcept
{
    if (m_tooltip != nullptr) return m_tooltip;
    m_tooltip = CreateTooltipWindow(m_form);
    const TextRuler ruler{m_form};
    const int width = kTipLettersALine * static_cast<int>(ruler.Measure(L"0", DT_SINGLELINE, 0).cx);
    ::SendMessageW(m_tooltip, TTM_SETMAXTIPWIDTH, 0, width);
    return m_tooltip;
}

void FormTips::AddTip(HWND control, std::wstring text) const noexcept
{
    TTTOOLINFOW tool = ToolOf(m_form, control);
    tool.lpszText = text.data();
    ::SendMessageW(Tooltip(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void FormTips::TakeBack(HWND control) const noexcept
{
    if (m_tooltip == nullptr) return;
    TTTOOLINFOW tool = ToolOf(m_form, control);
    const auto argument = reinterpret_cast<LPARAM>(&tool);
    if (::SendMessageW(m_tooltip, TTM_GETTOOLINFOW, 0, argument) == FALSE) return;
    ::SendMessageW(m_tooltip, TTM_DELTOOLW, 0, argument);
    if (!IsNamedByLabel(control)) NameForReaders(control, {});
}

void FormTips::OnMouseOverFrame(POINT point) const noexcept
{
    ::ScreenToClient(m_form, &point);
    MSG message{};
    message.hwnd = m_form;
    message.message = WM_MOUSEMOVE; // the one move that tooltips know
    message.lParam = MAKELPARAM(point.x, point.y);
    ::SendMessageW(m_tooltip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&message));
}

void FormTips::TakeAllBack() const noexcept
{
    TakeBack(m_form);
    for (const HWND control : ControlsOf(m_form)) {
        TakeBack(control);
        if (IsNamedByLabel(control)) NameForReaders(control, {});
    }
}

void FormTips::FollowControls() const noexcept
{
    if (m_tooltip == nullptr) return;
    for (const HWND control : ControlsOf(m_form)) {
        TTTOOLINFOW tool = ToolOf(m_form, control);
        ::SendMessageW(m_tooltip, TTM_NEWTOOLRECTW, 0, reinterpret_cast<LPARAM>(&tool));
    }
}

} // namespace corvane
