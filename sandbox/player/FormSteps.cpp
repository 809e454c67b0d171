#include <algorithm>

#include <windows.h>

#include <commctrl.h>

#include "player/Keys.h"
#include "player/Run.h"
#include "player/Screen.h"
#include "player/Script.h"

namespace corvane::player
{
namespace
{

constexpr std::size_t kTypedByHand = 2000; // longer texts are pasted; a thread's queue is limited
constexpr UINT kRepaintPatience = 3000;    // milliseconds; a form that does not serve its window takes longer

HWND EditOf(HWND control)
{
    if (!IsClass(control, WC_COMBOBOXW)) return control;
    const HWND edit = ::FindWindowExW(control, nullptr, WC_EDITW, nullptr);
    if (edit == nullptr) Fail(L"this list takes no typed text");
    return edit;
}

std::wstring Joined(const std::vector<std::wstring>& texts)
{
    std::wstring all;
    for (const std::wstring& text : texts)
        all += (all.empty() ? L"\"" : L", \"") + text + L"\"";
    return all.empty() ? L"nothing" : all;
}

void Window(Stage&, Run& run, const Step& step) { run.Address(step.At(0)); }

void Closed(Stage&, Run& run, const Step& step) { run.AwaitClosed(step.At(0)); }

void Type(Stage& stage, Run& run, const Step& step)
{
    const HWND edit = EditOf(run.UsableControl(step.At(0)));
    if (::GetWindowLongPtrW(edit, GWL_STYLE) & ES_READONLY) Fail(L"the control is read-only");
    std::wstring text = step.Lines(1);
    run.Focus(edit);
    ::PostMessageW(edit, EM_SETSEL, 0, -1);
    if (text.empty()) {
        ::PostMessageW(edit, WM_CHAR, L'\b', 1);
    } else if (text.size() > kTypedByHand) {
        stage.Queue().Post(
            [edit, text] { ::SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str())); });
    } else {
        std::erase(text, L'\n'); // the Enter key sends the carriage return alone
        for (const wchar_t letter : text)
            ::PostMessageW(edit, WM_CHAR, letter, 1);
    }
    run.Settle();
}

void Click(Run& run, HWND button)
{
    run.Focus(button);
    ::PostMessageW(button, BM_CLICK, 0, 0);
    run.Settle();
}

void Press(Stage&, Run& run, const Step& step)
{
    const std::wstring then = step.At(1);
    Click(run, run.UsableControl(step.At(0)));
    if (then == L"closes") return run.AwaitClosed(run.FormName());
    if (!then.empty()) run.Address(then);
}

void Check(Stage&, Run& run, const Step& step)
{
    const bool wanted = step.At(1) == L"on";
    if (!wanted && step.At(1) != L"off") Fail(L"a box is checked on or off");
    const HWND box = run.UsableControl(step.At(0));
    if (IsChecked(box) != wanted) Click(run, box);
    run.WaitFor([&] { return Unless(IsChecked(box) == wanted, L"the box keeps its state"); });
}

void ExpandNode(Run& run, HWND tree, HTREEITEM node)
{
    if (!IsExpanded(tree, node)) ::PostMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(node));
    run.Settle();
}

void SelectNode(Run& run, HWND tree, const std::wstring& path)
{
    HTREEITEM node = nullptr;
    for (const std::wstring& name : SplitTreePath(path)) {
        const HTREEITEM parent = node;
        if (parent != nullptr) ExpandNode(run, tree, parent);
        run.WaitFor([&] {
            node = FindNode(tree, parent, name);
            return node != nullptr ? Finding{}
                                   : L"no node \"" + name + L"\"; there is " + Joined(NodeTexts(tree, parent));
        });
    }
    run.Focus(tree);
    ::PostMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(node));
    run.WaitFor([&] { return Unless(NextNode(tree, TVGN_CARET, nullptr) == node, L"the node is not selected"); });
    run.Settle();
}

void Select(Stage&, Run& run, const Step& step) { SelectNode(run, run.UsableControl(step.At(0)), step.At(1)); }

// In the add-in's tree of targets, as soon as it offers one.
void Pick(Stage&, Run& run, const Step& step)
{
    run.Address(L"frmSaveTo");
    static_cast<void>(run.UsableControl(L"cmdOK"));
    SelectNode(run, run.UsableControl(L"TreeView1"), step.At(0));
    Click(run, run.UsableControl(L"cmdOK"));
    if (step.words.size() > 1) run.Address(step.At(1));
}

// The middle of the tree's chosen node, or of what lies beside all nodes.
POINT PointIn(HWND tree, bool onNode)
{
    RECT place{};
    ::GetClientRect(tree, &place);
    if (onNode && TreeView_GetItemRect(tree, TreeView_GetSelection(tree), &place, TRUE))
        return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    return {place.right - 2, place.bottom - 2};
}

void DoubleClick(Stage&, Run& run, const Step& step)
{
    const HWND tree = run.UsableControl(step.At(0));
    const bool onNode = step.words.size() == 1;
    if (!onNode && step.At(1) != L"empty") Fail(L"the chosen node or \"empty\" is clicked");
    const POINT point = run.OnUi([=] { return PointIn(tree, onNode); });
    POINT onScreen = point;
    ::ClientToScreen(tree, &onScreen);
    int stays = 0;
    run.WaitFor([&] { // the display tells of the pointer's moves when it likes, and of an earlier one after a later one
        POINT pointer{};
        ::GetCursorPos(&pointer);
        stays = pointer.x == onScreen.x && pointer.y == onScreen.y ? stays + 1 : 0;
        if (stays == 0) ::SetCursorPos(onScreen.x, onScreen.y);
        run.Settle();
        return Unless(stays == 5, L"the pointer does not come");
    });
    ::PostMessageW(tree, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    run.Settle();
}

void Choose(Stage&, Run& run, const Step& step)
{
    const HWND list = run.UsableControl(step.At(0));
    const bool combo = IsClass(list, WC_COMBOBOXW);
    static std::wstring text; // lives on: see Ask
    text = step.At(1);
    LRESULT index = -1;
    run.WaitFor([&] {
        const UINT find = combo ? CB_FINDSTRINGEXACT : LB_FINDSTRINGEXACT;
        index = Ask(list, find, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str())).value_or(-1);
        return Unless(index >= 0, L"the list has no entry \"" + text + L"\"");
    });
    run.Focus(list);
    ::PostMessageW(list, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    static_assert(CBN_SELCHANGE == LBN_SELCHANGE);
    ::PostMessageW(::GetParent(list), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(list), LBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(list));
    run.Settle();
}

void PressKeys(Stage& stage, Run& run, const std::wstring& keys)
{
    run.WaitFor([&] { return Unless(run.FocusedWindow() != nullptr, L"no window has the focus"); });
    PressKey(stage.Queue(), keys);
    for (int work = 0; work < 3; ++work) // the press, the release, the end of the held keys: each is posted by the last
        run.Settle();
}

void Key(Stage& stage, Run& run, const Step& step)
{
    for (const Word& key : step.words)
        PressKeys(stage, run, key.text);
}

void Tab(Stage& stage, Run& run, const Step& step)
{
    for (const Word& control : step.words) {
        PressKeys(stage, run, L"Tab");
        run.WaitFor([&] { return Unless(run.HasFocus(run.Control(control.text)), control.text + L" is not focused"); });
    }
}

void Repainted(Stage&, Run&, const Step& step)
{
    const HWND form = FindForm(step.At(0));
    if (form == nullptr) Fail(L"the window is not open");
    ::InvalidateRect(form, nullptr, TRUE);
    DWORD_PTR result = 0;
    const LRESULT answered = ::SendMessageTimeoutW(form, WM_PAINT, 0, 0, SMTO_NORMAL, kRepaintPatience, &result);
    if (!answered || ::GetUpdateRect(form, nullptr, FALSE)) Fail(L"the window was not painted within three seconds");
}

constexpr StepRow kSteps[] = {
    {"window", 1, 1, &Window}, {"closed", 1, 1, &Closed}, {"type", 2, kAny, &Type}, {"press", 1, 2, &Press},
    {"check", 2, 2, &Check},   {"select", 2, 2, &Select}, {"pick", 1, 2, &Pick},    {"doubleclick", 1, 2, &DoubleClick},
    {"choose", 2, 2, &Choose}, {"key", 1, kAny, &Key},    {"tab", 1, kAny, &Tab},   {"repainted", 1, 1, &Repainted},
};

} // namespace

std::span<const StepRow> FormSteps() { return kSteps; }

} // namespace corvane::player
