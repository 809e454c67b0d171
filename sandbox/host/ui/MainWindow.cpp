#include "ui/MainWindow.h"

#include <algorithm>

#include <uxtheme.h>
#include <windowsx.h>

namespace host
{
namespace
{

constexpr wchar_t kClassName[] = L"CorvaneHostWindow";
constexpr UINT kOpenFileMenu = WM_APP + 1;

std::wstring ProductName(const Desk& desk) { return std::wstring{desk.Facts().product} + L" (stand-in)"; }

} // namespace

MainWindow::MainWindow(Desk& desk) : m_desk{desk}, m_menus{desk}
{
    RegisterWindowClass(kClassName, WindowProc);
    RECT work{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const int margin = m_theme.Scale(16);
    ::CreateWindowExW(0, kClassName, ProductName(desk).c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                      work.left + margin, work.top + margin, work.right - work.left - 2 * margin,
                      work.bottom - work.top - 2 * margin, nullptr, nullptr, ::GetModuleHandleW(nullptr), this);
}

MainWindow::~MainWindow()
{
    if (m_window != nullptr) ::DestroyWindow(m_window);
}

void MainWindow::Show()
{
    Refresh();
    ::ShowWindow(m_window, SW_SHOWNORMAL);
    ::UpdateWindow(m_window);
}

void MainWindow::Refresh()
{
    DocumentObject* active = m_desk.ActiveDocument();
    const std::wstring product = ProductName(m_desk);
    const std::wstring title = active != nullptr ? active->File().Name() + L" - " + product : product;
    ::SetWindowTextW(m_window, title.c_str());
    if (m_desk.Edition() == Edition::Menus) RebuildMenuBar();
    Layout();
}

void MainWindow::Layout()
{
    m_hovered = nullptr;
    m_scene = BuildScene(m_desk, m_view, m_theme, m_size);
    ::InvalidateRect(m_window, nullptr, FALSE);
}

void MainWindow::RebuildMenuBar()
{
    const HMENU before = ::GetMenu(m_window);
    const HMENU bar = ::CreateMenu(); // the window owns it from here on
    m_menus.Clear();
    m_menus.FillFromBar(bar, m_desk.MenuBar());
    ::SetMenu(m_window, bar);
    if (before != nullptr) ::DestroyMenu(before);
}

bool MainWindow::ShowByLabel(const std::wstring& label, std::vector<RibbonControl> Ribbon::*part, bool backstage)
{
    for (const ShownRibbon* shown : m_desk.Ribbons()) {
        for (const RibbonControl& page : shown->ribbon.*part) {
            if (shown->Label(page) != label) continue;
            m_view.backstage = backstage;
            (backstage ? m_view.backstagePage : m_view.tab) = IdOf(page);
            Layout();
            return true;
        }
    }
    return false;
}

bool MainWindow::ShowPage(const std::wstring& page)
{
    if (page == L"Presentation") {
        CloseBackstage();
        return true;
    }
    if (page == L"File") {
        if (m_desk.Edition() == Edition::Backstage)
            OpenBackstage({});
        else
            ::PostMessageW(m_window, kOpenFileMenu, 0, 0); // it returns when the menu closes
        return true;
    }
    if (page == L"Home") {
        m_view = {};
        Layout();
        return true;
    }
    return ShowByLabel(page, &Ribbon::backstage, true) || ShowByLabel(page, &Ribbon::tabs, false);
}

void MainWindow::CloseBackstage()
{
    ::EndMenu();
    m_view.backstage = false;
    Layout();
}

// Without a page of its own the Backstage shows the first page of an add-in.
void MainWindow::OpenBackstage(const std::string& page)
{
    m_view.backstage = true;
    m_view.backstagePage = page;
    for (const ShownRibbon* shown : m_desk.Ribbons())
        if (m_view.backstagePage.empty() && !shown->ribbon.backstage.empty())
            m_view.backstagePage = IdOf(shown->ribbon.backstage.front());
    Layout();
}

void MainWindow::Paint()
{
    PAINTSTRUCT paint{};
    const RECT area{0, 0, m_size.cx, m_size.cy};
    HDC sheet = nullptr; // off the screen, which shows it whole
    const HPAINTBUFFER buffer =
        ::BeginBufferedPaint(::BeginPaint(m_window, &paint), &area, BPBF_COMPATIBLEBITMAP, nullptr, &sheet);
    if (!m_scene.backstage) PaintSlideArea(sheet, m_scene.content, m_theme, m_desk.ActiveDocument());
    PaintScene(sheet, m_scene, m_theme, m_size, m_hovered);
    ::EndBufferedPaint(buffer, TRUE);
    ::EndPaint(m_window, &paint);
}

const SceneItem* MainWindow::ItemAt(POINT at) const
{
    const auto found =
        std::ranges::find_if(m_scene.items, [&](const SceneItem& item) { return ::PtInRect(&item.box, at) != FALSE; });
    return found == m_scene.items.end() ? nullptr : &*found;
}

void MainWindow::Hover(POINT at)
{
    const SceneItem* item = ItemAt(at);
    if (item == m_hovered) return;
    m_hovered = item;
    ::InvalidateRect(m_window, nullptr, FALSE);
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, m_window, 0};
    ::TrackMouseEvent(&track);
}

void MainWindow::Press(const SceneItem& pressed)
{
    if (!pressed.enabled) return;
    const SceneItem item = pressed; // what follows may lay out the window anew
    switch (item.kind) {
    case ItemKind::FileTab:
        return OpenBackstage({});
    case ItemKind::OfficeButton:
        return OpenFileMenu();
    case ItemKind::Tab:
        m_view.tab = item.id;
        return Layout();
    case ItemKind::MenuButton:
        return OpenRibbonMenu(item);
    case ItemKind::BackArrow:
        return CloseBackstage();
    case ItemKind::BackstagePage:
        return OpenBackstage(item.id);
    case ItemKind::LargeButton:
    case ItemKind::BackstageCommand:
    case ItemKind::Task:
        break;
    }
    CloseBackstage();
    if (item.command)
        m_desk.Perform(*item.command);
    else
        m_desk.Press(item.id);
}

void MainWindow::OpenRibbonMenu(const SceneItem& item)
{
    for (const ShownRibbon* shown : m_desk.Ribbons()) {
        const RibbonControl* control = shown->ribbon.Find(item.id);
        if (control == nullptr) continue;
        const UniqueMenu menu{::CreatePopupMenu()};
        m_menus.Clear();
        m_menus.FillFromRibbon(menu.Get(), *shown, control->children);
        return TrackMenu(menu.Get(), item.box);
    }
}

// The Office button's menu, or the first menu of the menu bar.
void MainWindow::OpenFileMenu()
{
    const UniqueMenu menu{::CreatePopupMenu()};
    if (m_desk.Edition() != Edition::Menus) {
        m_menus.Clear();
        m_menus.FillOfficeMenu(menu.Get());
        return TrackMenu(menu.Get(), m_scene.items.front().box);
    }
    m_menus.FillFromBar(menu.Get(), *m_desk.MenuBar().Entries().front()->Menu());
    TrackMenu(menu.Get(), {});
}

void MainWindow::TrackMenu(HMENU menu, const RECT& below)
{
    POINT at{below.left, below.bottom};
    ::ClientToScreen(m_window, &at);
    const int chosen = ::TrackPopupMenu(menu, TPM_RETURNCMD | TPM_LEFTALIGN, at.x, at.y, 0, m_window, nullptr);
    m_menus.Perform(static_cast<UINT>(chosen));
}

LRESULT MainWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SIZE:
        m_size = {LOWORD(lParam), HIWORD(lParam)};
        Layout();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT:
        Paint();
        return 0;
    case WM_MOUSEMOVE:
        Hover({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        return 0;
    case WM_MOUSELEAVE:
        Hover({-1, -1});
        return 0;
    case WM_LBUTTONUP:
        if (const SceneItem* item = ItemAt({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)})) Press(*item);
        return 0;
    case WM_COMMAND:
        m_menus.Perform(LOWORD(wParam));
        return 0;
    case kOpenFileMenu:
        OpenFileMenu();
        return 0;
    case WM_CLOSE:
        m_desk.Perform(HostCommand::Exit);
        return 0;
    case WM_NCDESTROY:
        m_window = nullptr;
        return 0;
    default:
        return ::DefWindowProcW(m_window, message, wParam, lParam);
    }
}

LRESULT CALLBACK MainWindow::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        auto* self = static_cast<MainWindow*>(create->lpCreateParams);
        self->m_window = window;
        ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<MainWindow*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    return self != nullptr && self->m_window != nullptr ? self->Handle(message, wParam, lParam)
                                                        : ::DefWindowProcW(window, message, wParam, lParam);
}

} // namespace host
