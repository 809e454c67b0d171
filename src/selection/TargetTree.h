// The tree control filled with the user's targets.
#pragma once

#include "platform/MessageLoop.h"
#include "platform/XmlDocument.h"
#include "selection/NodeKey.h"
#include "selection/TreeImages.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace corvane
{

// Fills a tree view from the server's answer and tells the key of what is selected in it.
class TargetTree
{
public:
    // Fetches a picture of an icon set from the server into the images: kind ("project", "stage", "gate") and set.
    using IconLoader = std::function<void(TreeImages& images, const std::wstring& iconSet)>;

    // Whether the tree is still wanted.
    using Wanted = std::function<bool()>;

    // The tree view stays owned by its form.
    TargetTree(HWND treeView, TreeMode mode, IconLoader loadIcons);
    TargetTree(const TargetTree&) = delete;
    TargetTree& operator=(const TargetTree&) = delete;
    ~TargetTree();

    void Clear();
    // Adds projects with all below them; nodes whose ids equal those of preselected become visible and selected.
    // Messages are handled meanwhile; once wanted() no longer holds, the rest is left out.
    void AddProjects(const std::vector<XmlNode>& projects, const Target& preselected, const Wanted& wanted);

    // The key of the selected node, empty when none is selected; whether it has children; and whether the message being
    // handled came from the mouse over a node.
    [[nodiscard]] std::wstring SelectedKey() const;
    [[nodiscard]] bool SelectedHasChildren() const noexcept;
    [[nodiscard]] bool IsPointed() const noexcept;

private:
    static constexpr auto kNone = static_cast<std::size_t>(-1);
    struct Position
    {
        HTREEITEM item = TVI_ROOT;
        std::size_t number = kNone; // of its key
    };

    // An element that is to become a node.
    struct Branch
    {
        XmlNode element;
        Position parent;
        const std::wstring& iconSet;
    };

    // Adds nodes of one level; what there is below them.
    [[nodiscard]] std::vector<Branch> AddLevel(const std::vector<Branch>& branches, std::size_t depth,
                                               const Wanted& wanted);
    Position Insert(const Position& parent, const TreeLevel& level, const std::wstring& id, const std::wstring& text,
                    const std::wstring& iconSet);
    [[nodiscard]] std::wstring_view KeyOf(const Position& node) const noexcept;
    [[nodiscard]] bool IsPreselected(const std::wstring& key, const TreeLevel& level) const;

    HWND m_treeView;
    const TreeKind& m_kind;
    IconLoader m_loadIcons;
    TreeImages m_images;
    std::set<std::wstring> m_iconSets;
    std::vector<std::wstring> m_keys; // by the number that a node carries
    Target m_preselected;
    WorkPauses m_pauses;
};

} // namespace corvane
