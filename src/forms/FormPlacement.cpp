#include "forms/FormPlacement.h"

#include <algorithm>

namespace corvane
{
namespace
{

struct Stretch
{
    int start;
    int length;
};

Stretch MiddleOf(int length, int from, int to, int least, int most) noexcept
{
    const int cut = std::min(length, most - least);
    return {std::clamp((from + to - cut) / 2, least, most - cut), cut};
}

} // namespace

Box PlaceInMiddle(const Extent& form, const Box& around, const Box& work) noexcept
{
    const Stretch across = MiddleOf(form.width, around.left, around.right, work.left, work.right);
    const Stretch down = MiddleOf(form.height, around.top, around.bottom, work.top, work.bottom);
    return {across.start, down.start, across.start + across.length, down.start + down.length};
}

ScrollBars BarsFor(const Extent& content, const Extent& client, const Extent& bar) noexcept
{
    ScrollBars bars{content.width > client.width, content.height > client.height};
    // A bar takes room and may so make the other one needed.
    if (bars.vertical) bars.horizontal = content.width > client.width - bar.width;
    if (bars.horizontal) bars.vertical = content.height > client.height - bar.height;
    return bars;
}

int PositionToShow(int position, int page, int start, int end) noexcept
{
    if (start < position || end - start > page) return start;
    return std::max(position, end - page);
}

} // namespace corvane
