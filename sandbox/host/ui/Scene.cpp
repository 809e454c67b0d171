#include "ui/Scene.h"

#include <algorithm>
#include <cwctype>

#include "platform/Utf8.h"

namespace host
{
namespace
{

constexpr int kStripHeight = 32;
constexpr int kPanelHeight = 104;
constexpr int kGroupLabelHeight = 20;
constexpr int kNavigationWidth = 210;

struct OwnCommand
{
    const wchar_t* label;
    const char* picture;
    HostCommand command;
};

constexpr OwnCommand kOwnCommands[] = {
    {L"New", "FileNew", HostCommand::New},       {L"Open", "FileOpen", HostCommand::Open},
    {L"Save", "FileSave", HostCommand::Save},    {L"Save As", "FileSaveAs", HostCommand::SaveAs},
    {L"Close", "FileClose", HostCommand::Close},
};

std::wstring GroupLabel(const Desk& desk)
{
    std::wstring label = desk.Facts().noun;
    label.front() = static_cast<wchar_t>(std::towupper(label.front()));
    return label;
}

// Places items one after the other and counts the room they take.
class Layout
{
public:
    Layout(const Desk& desk, const ViewState& view, const Theme& theme, SIZE size)
        : m_desk{desk}, m_view{view}, m_theme{theme}, m_size{size}
    {}

    Scene Build(Edition edition)
    {
        m_scene.content = {0, 0, m_size.cx, m_size.cy};
        m_scene.ribbon = edition != Edition::Menus;
        if (!m_scene.ribbon) return std::move(m_scene);
        m_scene.backstage = m_view.backstage;
        if (m_scene.backstage) {
            BuildNavigation();
            BuildTasks();
        } else {
            BuildStrip(edition);
            BuildPanel();
        }
        return std::move(m_scene);
    }

private:
    [[nodiscard]] int Px(int length) const { return m_theme.Scale(length); }

    void Add(SceneItem item, RECT box)
    {
        item.box = box;
        m_scene.items.push_back(std::move(item));
    }

    template<class Visit>
    void ForEachControl(std::vector<RibbonControl> Ribbon::*part, Visit visit)
    {
        for (const ShownRibbon* shown : m_desk.Ribbons())
            for (const RibbonControl& control : shown->ribbon.*part)
                if (shown->IsShown(control)) visit(*shown, control);
    }

    void AddTab(ItemKind kind, const std::wstring& label, const std::string& id, bool chosen)
    {
        const int width = m_theme.Measure(label, m_theme.Normal()).cx + Px(28);
        SceneItem item{.kind = kind, .label = label, .id = id, .chosen = chosen};
        Add(std::move(item), {m_x, 0, m_x + width, Px(kStripHeight)});
        m_x += width;
    }

    void BuildStrip(Edition edition)
    {
        if (edition == Edition::Backstage) {
            AddTab(ItemKind::FileTab, L"File", {}, false);
        } else {
            SceneItem button{.kind = ItemKind::OfficeButton, .label = L"P"};
            Add(std::move(button), {Px(6), Px(2), Px(6) + Px(kStripHeight - 4), Px(kStripHeight - 2)});
            m_x = Px(kStripHeight + 12);
        }
        AddTab(ItemKind::Tab, L"Home", {}, m_view.tab.empty());
        ForEachControl(&Ribbon::tabs, [&](const ShownRibbon& shown, const RibbonControl& tab) {
            AddTab(ItemKind::Tab, shown.Label(tab), IdOf(tab), m_view.tab == IdOf(tab));
        });
        m_scene.content.top = Px(kStripHeight + kPanelHeight);
    }

    void AddButton(SceneItem item)
    {
        const int width = std::max<int>(Px(64), m_theme.Measure(item.label, m_theme.Normal()).cx + Px(20));
        const int top = Px(kStripHeight) + Px(4);
        Add(std::move(item), {m_x, top, m_x + width, Px(kStripHeight + kPanelHeight - kGroupLabelHeight - 4)});
        m_x += width + Px(2);
    }

    void CloseGroup(int left, const std::wstring& label)
    {
        const int width = m_theme.Measure(label, m_theme.Normal()).cx + Px(16);
        m_x = std::max(m_x, left + width) + Px(6);
        m_scene.groups.push_back({{left, Px(kStripHeight), m_x, Px(kStripHeight + kPanelHeight)}, label});
    }

    void BuildPanel()
    {
        m_x = Px(6);
        if (m_view.tab.empty()) {
            const int left = m_x;
            for (const OwnCommand& own : kOwnCommands)
                AddButton({.kind = ItemKind::LargeButton,
                           .label = own.label,
                           .picture = own.picture,
                           .command = own.command});
            return CloseGroup(left, GroupLabel(m_desk));
        }
        ForEachControl(&Ribbon::tabs, [&](const ShownRibbon& shown, const RibbonControl& tab) {
            if (IdOf(tab) != m_view.tab) return;
            for (const RibbonControl& group : tab.children)
                if (shown.IsShown(group)) BuildGroup(shown, group);
        });
    }

    void BuildGroup(const ShownRibbon& shown, const RibbonControl& group)
    {
        const int left = m_x;
        m_x += Px(4);
        for (const RibbonControl& control : group.children) {
            if (!shown.IsShown(control)) continue;
            const bool menu = control.LocalName() == "menu";
            AddButton({.kind = menu ? ItemKind::MenuButton : ItemKind::LargeButton,
                       .label = shown.Label(control),
                       .picture = control.Attribute("imageMso"),
                       .id = IdOf(control),
                       .enabled = shown.IsEnabled(control)});
        }
        CloseGroup(left, shown.Label(group));
    }

    void AddNavigation(SceneItem item)
    {
        Add(std::move(item), {0, m_y, Px(kNavigationWidth), m_y + Px(36)});
        m_y += Px(38);
    }

    // The host's own commands with the add-in's pages after "Save As", where Office has its print page.
    void BuildNavigation()
    {
        Add({.kind = ItemKind::BackArrow}, {Px(18), Px(14), Px(54), Px(50)});
        m_y = Px(68);
        for (const OwnCommand& own : kOwnCommands) {
            if (own.command == HostCommand::Close)
                ForEachControl(&Ribbon::backstage, [&](const ShownRibbon& shown, const RibbonControl& page) {
                    AddNavigation({.kind = ItemKind::BackstagePage,
                                   .label = shown.Label(page),
                                   .id = IdOf(page),
                                   .enabled = shown.IsEnabled(page),
                                   .chosen = IdOf(page) == m_view.backstagePage});
                });
            AddNavigation({.kind = ItemKind::BackstageCommand, .label = own.label, .command = own.command});
        }
        m_scene.content.left = Px(kNavigationWidth);
    }

    void BuildTasks()
    {
        m_y = Px(36);
        const int left = m_scene.content.left + Px(40);
        ForEachControl(&Ribbon::backstage, [&](const ShownRibbon& shown, const RibbonControl& page) {
            if (IdOf(page) != m_view.backstagePage) return;
            m_scene.groups.push_back({{left, m_y, m_size.cx, m_y + Px(44)}, shown.Label(page)});
            m_y += Px(60);
            for (const RibbonControl& child : page.children)
                AddTasksBelow(shown, child, left);
        });
    }

    void AddTasksBelow(const ShownRibbon& shown, const RibbonControl& parent, int left)
    {
        if (!shown.IsShown(parent)) return;
        if (parent.LocalName() == "category") {
            m_scene.groups.push_back({{left, m_y, m_size.cx - Px(40), m_y + Px(24)}, shown.Label(parent)});
            m_y += Px(34);
        }
        if (parent.LocalName() == "task" || parent.LocalName() == "button") {
            Add({.kind = ItemKind::Task,
                 .label = shown.Label(parent),
                 .note = corvane::FromUtf8(parent.Attribute("description")),
                 .picture = parent.Attribute("imageMso"),
                 .id = IdOf(parent),
                 .enabled = shown.IsEnabled(parent)},
                {left, m_y, left + Px(380), m_y + Px(52)});
            m_y += Px(58);
        }
        for (const RibbonControl& child : parent.children)
            AddTasksBelow(shown, child, left);
    }

    const Desk& m_desk;
    const ViewState& m_view;
    const Theme& m_theme;
    SIZE m_size;
    Scene m_scene;
    int m_x = 0;
    int m_y = 0;
};

} // namespace

Scene BuildScene(const Desk& desk, const ViewState& view, const Theme& theme, SIZE size)
{
    return Layout{desk, view, theme, size}.Build(desk.Edition());
}

} // namespace host
