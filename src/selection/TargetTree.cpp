#include "selection/TargetTree.h"

#include "forms/PaintingOff.h"
#include "support/Conversions.h"

#include <windowsx.h>

namespace corvane
{

TargetTree::TargetTree(HWND treeView, TreeMode mode, IconLoader loadIcons)
    : m_treeView{treeView}, m_kind{TreeKindOf(mode)}, m_loadIcons{std::move(loadIcons)}
{
    TreeView_SetImageList(m_treeView, m_images.Get(), TVSIL_NORMAL);
}

TargetTree::~TargetTree() { TreeView_SetImageList(m_treeView, nullptr, TVSIL_NORMAL); }

void TargetTree::Clear()
{
    TreeView_DeleteAllItems(m_treeView);
    m_keys.clear();
}

void TargetTree::AddProjects(const std::vector<XmlNode>& projects, const Target& preselected, const Wanted& wanted)
{
    m_preselected = preselected;
    m_pauses = WorkPauses{};
    const PaintingOff paintingOff{m_treeView};
    std::vector<Branch> branches;
    for (const XmlNode& project : projects) {
        if (!wanted()) return;
        const auto [iconSet, isNew] = m_iconSets.insert(project.Text(L"IconSet"));
        if (isNew) m_loadIcons(m_images, *iconSet);
        branches.push_back({project, {}, *iconSet});
    }
    // Level by level: a tree view may look a parent up from its first node on.
    for (std::size_t depth = 0; !branches.empty(); ++depth)
        branches = AddLevel(branches, depth, wanted);
}

std::vector<TargetTree::Branch> TargetTree::AddLevel(const std::vector<Branch>& branches, std::size_t depth,
                                                     const Wanted& wanted)
{
    const TreeLevel& level = m_kind.levels[depth];
    const bool isLast = depth + 1 == m_kind.levels.size();
    std::vector<Branch> next;
    for (const auto& [element, parent, iconSet] : branches) {
        if (!wanted()) return {};
        const Position node = Insert(parent, level, element.Text(level.idAttribute), element.Text(L"name"), iconSet);
        m_pauses.Step();
        if (isLast) continue;
        const TreeLevel& below = m_kind.levels[depth + 1];
        if (m_kind.newEntry != nullptr) Insert(node, below, L"0", m_kind.newEntry, iconSet);
        for (XmlNode child = element.FirstElement(); child; child = child.NextElement())
            if (child.IsNamed(below.element)) next.push_back({child, node, iconSet});
    }
    return next;
}

TargetTree::Position TargetTree::Insert(const Position& parent, const TreeLevel& level, const std::wstring& id,
                                        const std::wstring& text, const std::wstring& iconSet)
{
    const std::int32_t number = ToLongSafe(id);
    Position node{nullptr, m_keys.size()};
    m_keys.push_back(NodeKey(KeyOf(parent), level, std::to_wstring(number)));
    TVINSERTSTRUCTW insert{};
    insert.hParent = parent.item;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = const_cast<LPWSTR>(text.c_str());
    insert.item.lParam = static_cast<LPARAM>(node.number);
    insert.item.iImage =
        level.isTarget ? TreeImages::IndexOf(level.picture) : m_images.IndexOf(level.element + iconSet);
    insert.item.iSelectedImage = insert.item.iImage;
    node.item = TreeView_InsertItem(m_treeView, &insert);
    if (level.isTarget && number == m_preselected.*level.id && IsPreselected(m_keys.back(), level)) {
        TreeView_EnsureVisible(m_treeView, node.item);
        TreeView_SelectItem(m_treeView, node.item);
    }
    return node;
}

// Nothing for the root, and where the tree was cleared meanwhile.
std::wstring_view TargetTree::KeyOf(const Position& node) const noexcept
{
    return node.number < m_keys.size() ? std::wstring_view{m_keys[node.number]} : std::wstring_view{};
}

bool TargetTree::IsPreselected(const std::wstring& key, const TreeLevel& level) const
{
    const auto target = TargetOfKey(m_kind.mode, key);
    if (!target || *target.*level.id != m_preselected.*level.id) return false;
    // Entries for a new target have one id in all projects.
    return m_kind.newEntry == nullptr || *target.*level.id != 0 || target->projectId == m_preselected.projectId;
}

std::wstring TargetTree::SelectedKey() const
{
    TVITEMW item{};
    item.mask = TVIF_PARAM;
    item.hItem = TreeView_GetSelection(m_treeView);
    if (item.hItem == nullptr || !TreeView_GetItem(m_treeView, &item)) return {};
    return m_keys.at(static_cast<std::size_t>(item.lParam));
}

bool TargetTree::SelectedHasChildren() const noexcept
{
    const HTREEITEM selected = TreeView_GetSelection(m_treeView);
    return selected != nullptr && TreeView_GetChild(m_treeView, selected) != nullptr;
}

bool TargetTree::IsPointed() const noexcept
{
    const DWORD position = ::GetMessagePos();
    TVHITTESTINFO hit{};
    hit.pt = {GET_X_LPARAM(position), GET_Y_LPARAM(position)};
    ::ScreenToClient(m_treeView, &hit.pt);
    return TreeView_HitTest(m_treeView, &hit) != nullptr && (hit.flags & TVHT_ONITEM) != 0;
}

} // namespace corvane
