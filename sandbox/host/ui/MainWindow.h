// The host's window.
#pragma once

#include <string>

#include "ui/MenuBar.h"
#include "ui/Scene.h"

namespace host
{

// The host's window: ribbon, Backstage or menu bar over the active document.
class MainWindow
{
public:
    explicit MainWindow(Desk& desk);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow();

    [[nodiscard]] HWND Handle() const { return m_window; }
    void Show();

    // Shows the present state of the documents and the ribbon.
    void Refresh();

    // Opens "File" (the Backstage or the menu), a Backstage page or a ribbon tab by its label, or the presentation
    // ("Presentation"); false when there is no such page.
    bool ShowPage(const std::wstring& page);
    void CloseBackstage();

private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void Paint();
    void Layout();
    void RebuildMenuBar();
    void Hover(POINT at);
    void Press(const SceneItem& item);
    void OpenBackstage(const std::string& page);
    void OpenRibbonMenu(const SceneItem& item);
    void OpenFileMenu();
    void TrackMenu(HMENU menu, const RECT& below);
    [[nodiscard]] const SceneItem* ItemAt(POINT at) const;
    [[nodiscard]] bool ShowByLabel(const std::wstring& label, std::vector<RibbonControl> Ribbon::*part, bool backstage);

    Desk& m_desk;
    Theme m_theme;
    HWND m_window = nullptr;
    SIZE m_size{};
    ViewState m_view;
    Scene m_scene;
    const SceneItem* m_hovered = nullptr; // in m_scene
    MenuBuilder m_menus;
};

} // namespace host
