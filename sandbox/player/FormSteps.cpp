#include <algorithm>
#include <stdexcept>

#include "automation/Text.h"
#include "player/ControlNames.h"
#include "player/Keys.h"
#include "player/MessageBox.h"
#include "player/Player.h"
#include "player/Screen.h"
#include "player/Tree.h"

namespace host
{
namespace
{

constexpr std::size_t kTypedByHand = 2000; // longer texts are pasted; a thread's queue is limited
constexpr UINT kRepaintPatience = 3000;    // milliseconds; a form that does not serve its window takes longer

HWND EditOf(HWND control)
{
    if (::lstrcmpiW(ClassOf(control).c_str(), WC_COMBOBOXW) != 0) return control;
    const HWND edit = ::FindWindowExW(control, nullptr, WC_EDITW, nullptr);
    if (!edit) throw std::runtime_error{"this list takes no typed text"};
    return edit;
}

void Notify(HWND control, WORD code)
{
    const auto id = static_cast<WORD>(::GetDlgCtrlID(control));
    ::PostMessageW(::GetParent(control), WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
}

std::wstring Joined(const std::vector<std::wstring>& texts)
{
    std::wstring all;
    for (const std::wstring& text : texts)
        all += (all.empty() ? L"\"" : L", \"") + text + L"\"";
    return all.empty() ? L"nothing" : all;
}

} // namespace

HWND Player::Form() const
{
    if (m_onMessage) {
        const auto boxes = MessageBoxes();
        return boxes.empty() ? nullptr : boxes.front();
    }
    if (m_form.empty()) throw std::runtime_error{"no window is addressed yet"};
    return FindForm(m_form);
}

// The control, or null while its form or itself is not there.
HWND Player::Control(const std::string& name) const
{
    if (name == "form") return Form();
    const auto id = ControlIdOf(name);
    if (!id) throw std::runtime_error{"no control is named " + name};
    const HWND form = Form();
    return form ? FindControl(form, *id) : nullptr;
}

// Waits until a person could use the control: it and its window are visible and enabled.
HWND Player::UsableControl(const std::string& name)
{
    HWND control = nullptr;
    WaitFor([&] {
        control = Control(name);
        if (!control) return L"no " + Widen(name) + L" in " + m_form;
        if (!::IsWindowVisible(control)) return Widen(name) + L" is hidden";
        const bool enabled = ::IsWindowEnabled(control) && ::IsWindowEnabled(Form());
        return enabled ? Finding{} : Widen(name) + L" is disabled";
    });
    return control;
}

void Player::Focus(HWND control)
{
    m_host.Queue().Post([control] { ::SetFocus(control); });
    Settle();
}

void Player::Window(const Step& step) { Address(step.At(0)); }

void Player::Address(const std::string& window)
{
    const std::wstring name = Widen(window);
    m_onMessage = window == "message";
    if (!m_onMessage) m_form = name;
    WaitFor([&] { return Form() ? Finding{} : L"no window " + name; });
}

void Player::Closed(const Step& step) { AwaitClosed(Widen(step.At(0))); }

void Player::AwaitClosed(const std::wstring& name)
{
    WaitFor([&] { return FindForm(name) ? L"the window " + name + L" is open" : Finding{}; });
}

void Player::Type(const Step& step)
{
    const HWND edit = EditOf(UsableControl(step.At(0)));
    if (::GetWindowLongPtrW(edit, GWL_STYLE) & ES_READONLY) throw std::runtime_error{"the control is read-only"};
    std::wstring text = Widen(step.Lines(1));
    Focus(edit);
    ::PostMessageW(edit, EM_SETSEL, 0, -1);
    if (text.empty()) {
        ::PostMessageW(edit, WM_CHAR, L'\b', 1);
    } else if (text.size() > kTypedByHand) {
        m_host.Queue().Post(
            [edit, text] { ::SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str())); });
    } else {
        std::erase(text, L'\n'); // the Enter key sends the carriage return alone
        for (const wchar_t letter : text)
            ::PostMessageW(edit, WM_CHAR, letter, 1);
    }
    Settle();
}

void Player::Press(const Step& step)
{
    const bool closes = step.words.size() > 1;
    if (closes && step.At(1) != "closes") throw std::runtime_error{"a pressed control closes the form or nothing"};
    PressButton(step.At(0));
    if (closes) AwaitClosed(m_form);
}

void Player::PressButton(const std::string& name)
{
    const HWND button = UsableControl(name);
    Focus(button);
    ::PostMessageW(button, BM_CLICK, 0, 0);
    Settle();
}

void Player::Check(const Step& step)
{
    const bool wanted = step.At(1) == "on";
    if (!wanted && step.At(1) != "off") throw std::runtime_error{"a box is checked on or off"};
    const HWND box = UsableControl(step.At(0));
    const auto isChecked = [&] { return Ask(box, BM_GETCHECK).value_or(BST_INDETERMINATE) == BST_CHECKED; };
    if (isChecked() != wanted) {
        Focus(box);
        ::PostMessageW(box, BM_CLICK, 0, 0);
    }
    WaitFor([&] { return isChecked() == wanted ? Finding{} : Finding{L"the box keeps its state"}; });
}

void Player::ExpandNode(HWND tree, HTREEITEM node)
{
    static TVITEMW item; // lives on: see Ask
    item = {};
    item.mask = TVIF_STATE | TVIF_HANDLE;
    item.hItem = node;
    item.stateMask = TVIS_EXPANDED;
    if (!Ask(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)).value_or(FALSE)) return;
    if (!(item.state & TVIS_EXPANDED)) ::PostMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(node));
    Settle();
}

void Player::Select(const Step& step) { SelectNode(step.At(0), step.At(1)); }

void Player::SelectNode(const std::string& treeName, const std::string& path)
{
    HWND tree = UsableControl(treeName);
    HTREEITEM node = nullptr;
    bool first = true;
    for (const std::string& name : SplitTreePath(path)) {
        const HTREEITEM parent = node;
        if (!first) ExpandNode(tree, parent);
        first = false;
        WaitFor([&] {
            node = FindNode(tree, parent, Widen(name));
            if (node) return Finding{};
            return L"no node \"" + Widen(name) + L"\"; there is " + Joined(NodeTexts(tree, parent));
        });
    }
    Focus(tree);
    ::PostMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(node));
    WaitFor(
        [&] { return NextNode(tree, TVGN_CARET, nullptr) == node ? Finding{} : Finding{L"the node is not selected"}; });
    Settle();
}

// In the add-in's tree of targets, as soon as it offers one.
void Player::Pick(const Step& step)
{
    m_onMessage = false;
    m_form = L"frmSaveTo";
    static_cast<void>(UsableControl("cmdOK"));
    SelectNode("TreeView1", step.At(0));
    PressButton("cmdOK");
    if (step.words.size() > 1) Address(step.At(1));
}

void Player::DoubleClick(const Step& step)
{
    const HWND tree = UsableControl(step.At(0));
    const bool onNode = step.words.size() == 1;
    if (!onNode && step.At(1) != "empty") throw std::runtime_error{"the chosen node or \"empty\" is clicked"};
    POINT point{};
    OnUi([&, tree, onNode] {
        RECT place{};
        ::GetClientRect(tree, &place);
        point = {place.right - 2, place.bottom - 2};
        if (onNode && TreeView_GetItemRect(tree, TreeView_GetSelection(tree), &place, TRUE))
            point = {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    });
    POINT onScreen = point;
    ::ClientToScreen(tree, &onScreen);
    int stays = 0;
    WaitFor([&] { // the display tells of the pointer's moves when it likes, and of an earlier one after a later one
        POINT pointer{};
        ::GetCursorPos(&pointer);
        stays = pointer.x == onScreen.x && pointer.y == onScreen.y ? stays + 1 : 0;
        if (stays == 0) ::SetCursorPos(onScreen.x, onScreen.y);
        Settle();
        return stays == 5 ? Finding{} : Finding{L"the pointer does not come"};
    });
    ::PostMessageW(tree, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    Settle();
}

void Player::Choose(const Step& step)
{
    const HWND list = UsableControl(step.At(0));
    const bool combo = ::lstrcmpiW(ClassOf(list).c_str(), WC_COMBOBOXW) == 0;
    static std::wstring text; // lives on: see Ask
    text = Widen(step.At(1));
    LRESULT index = -1;
    WaitFor([&] {
        const UINT find = combo ? CB_FINDSTRINGEXACT : LB_FINDSTRINGEXACT;
        index = Ask(list, find, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str())).value_or(-1);
        return index >= 0 ? Finding{} : L"the list has no entry \"" + text + L"\"";
    });
    Focus(list);
    ::PostMessageW(list, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    Notify(list, combo ? CBN_SELCHANGE : LBN_SELCHANGE);
    Settle();
}

void Player::Key(const Step& step)
{
    for (const Word& key : step.words)
        PressKeys(key.text);
}

void Player::Tab(const Step& step)
{
    for (const Word& control : step.words) {
        PressKeys("Tab");
        WaitFor([&] { return StateFinding(control.text, "focused"); });
    }
}

void Player::PressKeys(const std::string& keys)
{
    const KeyStroke stroke = ParseKey(keys);
    WaitFor([&] { return FocusOf(m_host.Queue().ThreadId()) ? Finding{} : L"no window has the focus"; });
    PressKey(m_host.Queue(), stroke);
    for (int work = 0; work < 3; ++work) // the press, the release, the end of the held keys: each is posted by the last
        Settle();
}

void Player::Repainted(const Step& step)
{
    const HWND form = FindForm(Widen(step.At(0)));
    if (!form) throw std::runtime_error{"the window is not open"};
    ::InvalidateRect(form, nullptr, TRUE);
    DWORD_PTR result = 0;
    const LRESULT answered = ::SendMessageTimeoutW(form, WM_PAINT, 0, 0, SMTO_NORMAL, kRepaintPatience, &result);
    if (!answered || ::GetUpdateRect(form, nullptr, FALSE))
        throw std::runtime_error{"the window was not painted within three seconds"};
}

} // namespace host
