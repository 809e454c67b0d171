#include "FakeForm.h"

#include <string>
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

void OnTreeNotice(const NMTREEVIEWW& notice)
{
    const HWND tree = notice.hdr.hwndFrom;
    if (notice.hdr.code == TVN_ITEMEXPANDINGW && !TreeView_GetChild(tree, notice.itemNew.hItem)) {
        AddNode(tree, notice.itemNew.hItem, L"Business case", 0);
        AddNode(tree, notice.itemNew.hItem, L"Risk/Reward", 0);
    }
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
    if (way == std::wstring_view{L"caption"}) ::SetWindowTextW(form, std::wstring(90, L'W').c_str());
    if (way == std::wstring_view{L"title"}) ::SetWindowTextW(form, L"Fake\x2026");
    if (way == std::wstring_view{L"overlap"}) move(cmdGo, 20, 60);
    if (way == std::wstring_view{L"outside"}) move(cmdCancel, -5, 260);
    if (way == std::wstring_view{L"leave"}) ::SetWindowPos(form, nullptr, -40, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    if (way == std::wstring_view{L"key"}) ::SetDlgItemTextW(form, lblNotes, L"&Pad");
}

void OnCommand(HWND form, WORD id, WORD code)
{
    if (id == cmdGo && code == BN_CLICKED) AddNode(::GetDlgItem(form, TreeView1), TVI_ROOT, L"Apollo", 1);
    if (id == txtName && code == EN_CHANGE) Spoil(form);
    if (id == cmdCancel) ::EndDialog(form, FALSE);
}

INT_PTR CALLBACK FormProc(HWND form, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_INITDIALOG:
        ::SendDlgItemMessageW(form, ClassList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Low"));
        ::SendDlgItemMessageW(form, ClassList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"[High]"));
        ::SetDlgItemTextW(form, txtName, L"old name");
        return TRUE;
    case WM_NOTIFY:
        if (wParam == TreeView1) OnTreeNotice(*reinterpret_cast<const NMTREEVIEWW*>(lParam));
        return FALSE;
    case WM_COMMAND:
        OnCommand(form, LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

void ShowFakeForm()
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = ::DefDlgProcW;
    windowClass.cbWndExtra = DLGWINDOWEXTRA;
    windowClass.hInstance = ThisLibrary();
    windowClass.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszClassName = L"frmSaveTo";
    ::RegisterClassW(&windowClass);
    ::DialogBoxParamW(ThisLibrary(), MAKEINTRESOURCEW(IDD_frmSaveTo), ::GetActiveWindow(), FormProc, 0);
}

} // namespace host::test
