#include "FakeForm.h"

#include <string_view>

#include <windows.h>

#include <commctrl.h>

#include "resources/resource.h"

namespace host::test
{
namespace
{

HINSTANCE ThisLibrary()
{
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCWSTR>(&ThisLibrary), &module);
    return module;
}

HTREEITEM AddNode(HWND tree, HTREEITEM parent, const wchar_t* text, int children)
{
    TVINSERTSTRUCTW insert{};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_CHILDREN;
    insert.item.pszText = const_cast<wchar_t*>(text);
    insert.item.cChildren = children;
    return TreeView_InsertItem(tree, &insert);
}

void SetStatus(HWND form, const wchar_t* text)
{
    ::SendDlgItemMessageW(form, StatusBar1, SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(text));
}

void OnTreeNotice(HWND form, const NMTREEVIEWW& notice)
{
    const HWND tree = notice.hdr.hwndFrom;
    if (notice.hdr.code == TVN_ITEMEXPANDINGW && !TreeView_GetChild(tree, notice.itemNew.hItem)) {
        AddNode(tree, notice.itemNew.hItem, L"Business case", 0);
        AddNode(tree, notice.itemNew.hItem, L"Risk/Reward", 0);
    }
    if (notice.hdr.code == TVN_SELCHANGEDW)
        ::EnableWindow(::GetDlgItem(form, cmdOK), TreeView_GetParent(tree, notice.itemNew.hItem) != nullptr);
}

// Spoils the layout in the way that is asked for.
void Spoil(HWND form)
{
    wchar_t way[16] = L"";
    ::GetDlgItemTextW(form, txtName, way, 16);
    const auto move = [form](int control, int x, int y) {
        ::SetWindowPos(::GetDlgItem(form, control), nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    };
    if (way == std::wstring_view{L"cut"}) ::SetDlgItemTextW(form, chkPublish, L"Publish this at once to everybody");
    if (way == std::wstring_view{L"shorten"}) ::SetDlgItemTextW(form, chkPublish, L"Publ\x2026");
    if (way == std::wstring_view{L"overlap"}) move(cmdGo, 20, 60);
    if (way == std::wstring_view{L"outside"}) move(cmdCancel, -5, 260);
    if (way == std::wstring_view{L"leave"}) ::SetWindowPos(form, nullptr, -40, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    if (way == std::wstring_view{L"key"}) ::SetDlgItemTextW(form, lblNotes, L"&Pad");
}

void OnCommand(HWND form, WORD id, WORD code, FormAnswer& answer)
{
    if (id == cmdGo && code == BN_CLICKED) {
        AddNode(::GetDlgItem(form, TreeView1), TVI_ROOT, L"Apollo", 1);
        SetStatus(form, L"Filled");
    }
    if (id == txtName && code == EN_CHANGE) Spoil(form);
    if (id == txtNotes && code == EN_CHANGE) SetStatus(form, L"Noted");
    if (id == ClassList && code == LBN_SELCHANGE) SetStatus(form, L"Classed");
    if (id == cmdCancel) ::EndDialog(form, FALSE);
    if (id != cmdOK) return;
    wchar_t text[256] = L"";
    const HWND tree = ::GetDlgItem(form, TreeView1);
    TVITEMW item{TVIF_TEXT, TreeView_GetSelection(tree), 0, 0, text, 256, 0, 0, 0, 0};
    TreeView_GetItem(tree, &item);
    answer = {true, text, ::GetWindowTextLengthW(::GetDlgItem(form, txtNotes))};
    ::EndDialog(form, TRUE);
}

// The edit control's own procedure comes after this one.
LRESULT CALLBACK NotesProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR)
{
    if (message == WM_KEYDOWN && wParam == 'A' && ::GetKeyState(VK_CONTROL) < 0)
        ::SetDlgItemTextW(::GetParent(edit), lblNotes, L"All");
    return ::DefSubclassProc(edit, message, wParam, lParam);
}

INT_PTR CALLBACK FormProc(HWND form, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_INITDIALOG:
        ::SetWindowLongPtrW(form, DWLP_USER, lParam);
        ::SetWindowSubclass(::GetDlgItem(form, txtNotes), NotesProc, 1, 0);
        ::SendDlgItemMessageW(form, ClassList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Low"));
        ::SendDlgItemMessageW(form, ClassList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"[High]"));
        ::SetDlgItemTextW(form, txtName, L"old name");
        SetStatus(form, L"Ready");
        return TRUE;
    case WM_HELP:
        ::CheckDlgButton(form, chkPublish, BST_CHECKED);
        return TRUE;
    case WM_NOTIFY:
        if (wParam == TreeView1) OnTreeNotice(form, *reinterpret_cast<const NMTREEVIEWW*>(lParam));
        return FALSE;
    case WM_COMMAND:
        OnCommand(form, LOWORD(wParam), HIWORD(wParam),
                  *reinterpret_cast<FormAnswer*>(::GetWindowLongPtrW(form, DWLP_USER)));
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

FormAnswer ShowFakeForm()
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = ::DefDlgProcW;
    windowClass.cbWndExtra = DLGWINDOWEXTRA;
    windowClass.hInstance = ThisLibrary();
    windowClass.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszClassName = L"frmSaveTo";
    ::RegisterClassW(&windowClass);
    FormAnswer answer;
    ::DialogBoxParamW(ThisLibrary(), MAKEINTRESOURCEW(IDD_frmSaveTo), ::GetActiveWindow(), FormProc,
                      reinterpret_cast<LPARAM>(&answer));
    return answer;
}

} // namespace host::test
