// Where a form goes on the screen and how far it is scrolled. Arithmetic only; all lengths are pixels.
#pragma once

namespace corvane
{

struct Extent
{
    int width = 0;
    int height = 0;

    bool operator==(const Extent&) const = default;
};

// The right and bottom edges are outside, as in every rectangle of the platform.
struct Box
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    [[nodiscard]] constexpr Extent Size() const noexcept { return {right - left, bottom - top}; }
    bool operator==(const Box&) const = default;
};

// The middle of around, moved as little as brings it inside the work area; a form larger than the work area is cut to
// it.
[[nodiscard]] Box PlaceInMiddle(const Extent& form, const Box& around, const Box& work) noexcept;

// Which scroll bars a client area needs to reach all of its content.
struct ScrollBars
{
    bool horizontal = false;
    bool vertical = false;

    bool operator==(const ScrollBars&) const = default;
};

// The client area is the one without scroll bars; bar is how much of it each takes (the width of the vertical one, the
// height of the horizontal one).
[[nodiscard]] ScrollBars BarsFor(const Extent& content, const Extent& client, const Extent& bar) noexcept;

// The scroll position nearest to the present one at which the stretch from start to end is inside a page of that
// length; a stretch longer than the page shows its start.
[[nodiscard]] int PositionToShow(int position, int page, int start, int end) noexcept;

} // namespace corvane
