// Customers' words of any kind leave no placeholder and no access key behind.
#include "selection/TreeCaptions.h"
#include "Input.h"

#include <algorithm>

void Fuzz(Input& input)
{
    const auto mode = static_cast<corvane::TreeMode>(input.Number(0, 2));
    const std::wstring word = input.Rest();
    const auto captions = corvane::TreeCaptionsFor(mode, [&](std::wstring_view) { return word; });
    if (word.find(L"<PEN") == std::wstring::npos && word.find(L'<') == std::wstring::npos)
        Require(captions.caption.find(L"<PEN") == std::wstring::npos);
    Require(std::count(captions.treeLabel.begin(), captions.treeLabel.end(), L'&') % 2 == 0);
    const std::wstring marked = corvane::WithFilterMark(word);
    Require(corvane::WithFilterMark(marked) == marked && marked.starts_with(word));
}
