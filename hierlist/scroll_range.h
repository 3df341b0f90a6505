// Which scroll bars an outline list shows, what they range over, and where their steps lead.
#pragma once

#include "hierlist/layout.h"

#include <cstdint>

namespace vorn::hierlist {

// Which scroll bars take room, and the client area that they leave.
struct ShownBars {
    bool vertical = false;
    bool horizontal = false;
    Size client;

    friend constexpr bool operator==(const ShownBars&, const ShownBars&) = default;
};

// The scroll bars that a layout needs whose client area is all the room inside the border. Either
// may take the room that makes the other one necessary. With kStyleDisableNoScroll wanted bars
// are always there, except a vertical one beside several columns. Looks at all rows when there are
// several columns of variable height.
ShownBars ChooseBars(Layout room, const ListOptions& options, std::uint32_t style, Size bars);

// What a scroll bar is set to: everything 0 when there is nothing to scroll.
struct BarRange {
    std::int32_t last = 0; // the end of the range, which begins at 0
    std::uint32_t page = 0;
    std::int32_t position = 0;

    friend constexpr bool operator==(const BarRange&, const BarRange&) = default;
};

BarRange VerticalRange(const Layout& layout);
BarRange HorizontalRange(const Layout& layout);

// The largest offset.
std::int32_t LastOffset(const Layout& layout);

enum class ScrollStep : std::uint8_t { LineBack, LineOn, PageBack, PageOn, First, Last, To, None };

// The topIndex, or the offset in pixels, after a step; `target` is for To. A line to the side is a
// column or, in a single one, `line` pixels.
std::uint32_t TopAfter(const Layout& layout, ScrollStep step, std::uint32_t target);
std::int32_t OffsetAfter(const Layout& layout, ScrollStep step, std::int32_t target,
                         std::int32_t line);

// What a mouse wheel that was turned adds up to. `unit` is what one notch counts; what does not
// make a whole line yet is kept for the next time, unless the direction changes.
struct WheelState {
    std::int32_t remainder = 0;
};

// The lines to scroll, positive when the wheel is turned away from the user.
std::int32_t WheelLines(WheelState& state, std::int32_t turned, std::uint32_t linesPerNotch);

} // namespace vorn::hierlist
