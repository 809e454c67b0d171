#include "player/Screen.h"

namespace corvane::player
{
namespace
{

std::optional<std::wstring> NodeText(HWND tree, HTREEITEM node)
{
    static TVITEMW item; // lives on: see Ask
    item = {};
    item.mask = TVIF_TEXT | TVIF_HANDLE;
    item.hItem = node;
    item.pszText = AnswerBuffer();
    item.cchTextMax = static_cast<int>(kAnswerLength);
    if (!Ask(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)).value_or(FALSE)) return std::nullopt;
    return std::wstring{item.pszText};
}

std::wstring Escaped(const std::wstring& text)
{
    std::wstring out;
    for (const wchar_t c : text)
        out += c == L'/' ? std::wstring{L"\\/"} : std::wstring{c};
    return out;
}

HTREEITEM FirstNode(HWND tree, HTREEITEM parent)
{
    return parent != nullptr ? NextNode(tree, TVGN_CHILD, parent) : NextNode(tree, TVGN_ROOT, nullptr);
}

} // namespace

bool IsExpanded(HWND tree, HTREEITEM node)
{
    static TVITEMW item; // lives on: see Ask
    item = {};
    item.mask = TVIF_STATE | TVIF_HANDLE;
    item.hItem = node;
    item.stateMask = TVIS_EXPANDED;
    if (!Ask(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)).value_or(FALSE)) return true;
    return (item.state & TVIS_EXPANDED) != 0;
}

HTREEITEM NextNode(HWND tree, UINT relation, HTREEITEM node)
{
    const auto found = Ask(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(node));
    return reinterpret_cast<HTREEITEM>(found.value_or(0));
}

std::optional<std::wstring> ChosenPath(HWND tree)
{
    const auto chosen = Ask(tree, TVM_GETNEXTITEM, TVGN_CARET);
    if (!chosen) return std::nullopt;
    std::wstring path;
    for (auto node = reinterpret_cast<HTREEITEM>(*chosen); node != nullptr; node = NextNode(tree, TVGN_PARENT, node)) {
        const auto text = NodeText(tree, node);
        if (!text) return std::nullopt;
        path.insert(0, Escaped(*text) + (path.empty() ? L"" : L"/"));
    }
    return path;
}

HTREEITEM FindNode(HWND tree, HTREEITEM parent, const std::wstring& text)
{
    for (HTREEITEM node = FirstNode(tree, parent); node != nullptr; node = NextNode(tree, TVGN_NEXT, node))
        if (NodeText(tree, node) == text) return node;
    return nullptr;
}

std::vector<std::wstring> NodeTexts(HWND tree, HTREEITEM parent)
{
    std::vector<std::wstring> texts;
    for (HTREEITEM node = FirstNode(tree, parent); node != nullptr; node = NextNode(tree, TVGN_NEXT, node))
        texts.push_back(NodeText(tree, node).value_or(L"?"));
    return texts;
}

} // namespace corvane::player
