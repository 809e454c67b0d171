#include <algorithm>

#include "ui/Scene.h"

namespace host
{
namespace
{

constexpr UINT kLeft = DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;

// Draws one scene; every item is drawn by its kind.
class Painter
{
public:
    Painter(HDC dc, const Theme& theme, const SceneItem* hovered) : m_dc{dc}, m_theme{theme}, m_hovered{hovered} {}

    void Ribbon(const Scene& scene, SIZE size)
    {
        const int panel = scene.content.top;
        Fill(m_dc, {0, 0, size.cx, panel}, kStrip);
        Fill(m_dc, {0, Px(32), size.cx, panel - 1}, kPanel);
        Fill(m_dc, {0, panel - 1, size.cx, panel}, kLine);
        for (const SceneGroup& group : scene.groups) {
            const RECT& box = group.box;
            const RECT label{box.left, box.bottom - Px(22), box.right, box.bottom - Px(2)};
            Write(m_dc, label, group.label, m_theme.Normal(), kSoftText, kCentered);
            Fill(m_dc, {box.right - 1, box.top + Px(8), box.right, box.bottom - Px(8)}, kLine);
        }
        Items(scene);
    }

    void Backstage(const Scene& scene, SIZE size)
    {
        Fill(m_dc, {0, 0, size.cx, size.cy}, kPanel);
        Fill(m_dc, {0, 0, scene.content.left, size.cy}, kAccent);
        bool heading = true;
        for (const SceneGroup& group : scene.groups) {
            Write(m_dc, group.box, group.label, heading ? m_theme.Heading() : m_theme.Bold(), kText, kLeft);
            if (!heading) Fill(m_dc, {group.box.left, group.box.bottom, group.box.right, group.box.bottom + 1}, kLine);
            heading = false;
        }
        Items(scene);
    }

private:
    [[nodiscard]] int Px(int length) const { return m_theme.Scale(length); }

    void Items(const Scene& scene)
    {
        struct Row
        {
            ItemKind kind;
            void (Painter::*draw)(const SceneItem&);
        };
        static constexpr Row kRows[] = {
            {ItemKind::FileTab, &Painter::FileTab},
            {ItemKind::OfficeButton, &Painter::OfficeButton},
            {ItemKind::Tab, &Painter::Tab},
            {ItemKind::LargeButton, &Painter::Button},
            {ItemKind::MenuButton, &Painter::Button},
            {ItemKind::BackArrow, &Painter::BackArrow},
            {ItemKind::BackstageCommand, &Painter::Navigation},
            {ItemKind::BackstagePage, &Painter::Navigation},
            {ItemKind::Task, &Painter::Task},
        };
        for (const SceneItem& item : scene.items)
            (this->*std::ranges::find(kRows, item.kind, &Row::kind)->draw)(item);
    }

    [[nodiscard]] bool IsHot(const SceneItem& item) const { return &item == m_hovered && item.enabled; }
    [[nodiscard]] static COLORREF TextColor(const SceneItem& item) { return item.enabled ? kText : kDisabledText; }

    void FileTab(const SceneItem& item)
    {
        Fill(m_dc, item.box, IsHot(item) ? kAccentDark : kAccent);
        Write(m_dc, item.box, item.label, m_theme.Normal(), kLight, kCentered);
    }

    void OfficeButton(const SceneItem& item)
    {
        const UniqueBrush brush{::CreateSolidBrush(IsHot(item) ? kAccentDark : kAccent)};
        const Selected withBrush{m_dc, brush.Get()};
        const Selected withPen{m_dc, ::GetStockObject(NULL_PEN)};
        ::Ellipse(m_dc, item.box.left, item.box.top, item.box.right, item.box.bottom);
        Write(m_dc, item.box, item.label, m_theme.Bold(), kLight, kCentered);
    }

    void Tab(const SceneItem& item)
    {
        if (item.chosen || IsHot(item)) Fill(m_dc, item.box, kPanel);
        Write(m_dc, item.box, item.label, m_theme.Normal(), item.chosen ? kAccent : kText, kCentered);
        if (!item.chosen) return;
        const RECT mark{item.box.left + Px(10), item.box.bottom - Px(3), item.box.right - Px(10), item.box.bottom};
        Fill(m_dc, mark, kAccent);
    }

    void Button(const SceneItem& item)
    {
        if (IsHot(item)) Fill(m_dc, item.box, kHover);
        const int middle = (item.box.left + item.box.right) / 2;
        const RECT picture{middle - Px(15), item.box.top + Px(6), middle + Px(15), item.box.top + Px(36)};
        DrawPicture(m_dc, picture, item.picture, item.enabled ? kAccent : kDisabledText);
        const RECT label{item.box.left, item.box.top + Px(40), item.box.right, item.box.top + Px(60)};
        Write(m_dc, label, item.label, m_theme.Normal(), TextColor(item), kCentered);
        if (item.kind == ItemKind::MenuButton) DropArrow(middle, item.box.top + Px(63), TextColor(item));
    }

    void DropArrow(int middle, int top, COLORREF color)
    {
        const UniqueBrush brush{::CreateSolidBrush(color)};
        const Selected withBrush{m_dc, brush.Get()};
        const Selected withPen{m_dc, ::GetStockObject(NULL_PEN)};
        const POINT arrow[] = {{middle - Px(5), top}, {middle + Px(5), top}, {middle, top + Px(5)}};
        ::Polygon(m_dc, arrow, 3);
    }

    void BackArrow(const SceneItem& item)
    {
        const UniquePen pen{::CreatePen(PS_SOLID, Px(2), kLight)};
        const Selected withPen{m_dc, pen.Get()};
        const Selected withBrush{m_dc, ::GetStockObject(NULL_BRUSH)};
        const RECT& box = item.box;
        const int middle = (box.top + box.bottom) / 2;
        ::Ellipse(m_dc, box.left, box.top, box.right, box.bottom);
        ::MoveToEx(m_dc, box.right - Px(9), middle, nullptr);
        ::LineTo(m_dc, box.left + Px(10), middle);
        ::LineTo(m_dc, box.left + Px(18), middle - Px(8));
        ::MoveToEx(m_dc, box.left + Px(10), middle, nullptr);
        ::LineTo(m_dc, box.left + Px(18), middle + Px(8));
    }

    void Navigation(const SceneItem& item)
    {
        if (item.chosen || IsHot(item)) Fill(m_dc, item.box, kAccentDark);
        RECT label = item.box;
        label.left += Px(24);
        Write(m_dc, label, item.label, m_theme.Normal(), kLight, kLeft);
    }

    void Task(const SceneItem& item)
    {
        Fill(m_dc, item.box, IsHot(item) ? kHover : kStrip);
        Frame(m_dc, item.box, kLine);
        const int top = item.box.top + Px(11);
        const RECT picture{item.box.left + Px(14), top, item.box.left + Px(44), top + Px(30)};
        DrawPicture(m_dc, picture, item.picture, item.enabled ? kAccent : kDisabledText);
        RECT label{item.box.left + Px(60), item.box.top, item.box.right - Px(8), item.box.bottom};
        if (!item.note.empty()) {
            label.bottom = item.box.top + Px(30);
            const RECT note{label.left, item.box.top + Px(26), label.right, item.box.bottom - Px(4)};
            Write(m_dc, note, item.note, m_theme.Normal(), kSoftText, kLeft);
        }
        Write(m_dc, label, item.label, m_theme.Normal(), TextColor(item), kLeft);
    }

    HDC m_dc;
    const Theme& m_theme;
    const SceneItem* m_hovered;
};

} // namespace

void PaintScene(HDC dc, const Scene& scene, const Theme& theme, SIZE size, const SceneItem* hovered)
{
    Painter painter{dc, theme, hovered};
    if (scene.backstage)
        painter.Backstage(scene, size);
    else if (scene.ribbon)
        painter.Ribbon(scene, size);
}

} // namespace host
