// What lies in the window: the ribbon or the Backstage, and the active document.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ui/Desk.h"
#include "ui/Theme.h"

namespace host
{

enum class ItemKind
{
    FileTab,
    OfficeButton,
    Tab,
    LargeButton,
    MenuButton,
    BackArrow,
    BackstageCommand,
    BackstagePage,
    Task,
};

// Something that can be pressed, with its place in the window.
struct SceneItem
{
    ItemKind kind;
    RECT box{};
    std::wstring label{};
    std::wstring note{};
    std::string picture{};
    std::string id{};                     // of an add-in's control
    std::optional<HostCommand> command{}; // of the host's own
    bool enabled = true;
    bool chosen = false;
};

// A titled area of the ribbon, or a heading of the Backstage.
struct SceneGroup
{
    RECT box{};
    std::wstring label;
};

struct Scene
{
    bool backstage = false;
    bool ribbon = true;
    RECT content{}; // what is left for the presentation, or for the Backstage's page
    std::vector<SceneItem> items;
    std::vector<SceneGroup> groups;
};

// What the user has opened in the window.
struct ViewState
{
    std::string tab; // empty: the host's own tab
    bool backstage = false;
    std::string backstagePage;
};

// Lays out the window's ribbon or Backstage for a client area of this size.
[[nodiscard]] Scene BuildScene(const Desk& desk, const ViewState& view, const Theme& theme, SIZE size);

void PaintScene(HDC dc, const Scene& scene, const Theme& theme, SIZE size, const SceneItem* hovered);

// Draws the active document into the area: a thumbnail, its title slide and a line on its state. Null: none is
// open.
void PaintSlideArea(HDC dc, const RECT& area, const Theme& theme, DocumentObject* document);

} // namespace host
