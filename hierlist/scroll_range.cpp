#include "hierlist/scroll_range.h"

#include <algorithm>
#include <limits>

namespace vorn::hierlist {
namespace {

constexpr std::int32_t kNotch = 120; // what the system counts for a notch of the wheel
constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();

// The width of all columns, or of the rows of the only one.
std::int32_t TotalWidth(const Layout& layout, std::uint32_t columns) {
    const std::int64_t width =
        layout.multiColumn ? std::int64_t{columns} * layout.columnWidth : layout.extent;
    return static_cast<std::int32_t>(std::min(width, kMost));
}

bool NeedsVertical(const Layout& layout) {
    return !layout.multiColumn && RowCount(layout) > LinesPerColumn(layout);
}

bool NeedsHorizontal(const Layout& layout) {
    const bool walk = layout.multiColumn && layout.variable;
    const std::uint32_t columns = walk ? std::max(CountColumns(layout), 1u) : ColumnCount(layout);
    return TotalWidth(layout, columns) > layout.client.width;
}

} // namespace

ShownBars ChooseBars(Layout room, const ListOptions& options, std::uint32_t style, Size bars) {
    const bool always = (style & kStyleDisableNoScroll) != 0;
    ShownBars shown;
    // What one bar takes away may call for the other, which may call for the first again.
    for (int round = 0; round < 2; ++round) {
        if (!shown.vertical && options.wantsVerticalBar &&
            (NeedsVertical(room) || (always && !room.multiColumn))) {
            shown.vertical = true;
            room.client.width = std::max(room.client.width - bars.width, 0);
        }
        if (!shown.horizontal && options.wantsHorizontalBar && (NeedsHorizontal(room) || always)) {
            shown.horizontal = true;
            room.client.height = std::max(room.client.height - bars.height, 0);
        }
    }
    shown.client = room.client;
    return shown;
}

BarRange VerticalRange(const Layout& layout) {
    if (!NeedsVertical(layout)) {
        return {};
    }
    const std::int64_t last = std::int64_t{RowCount(layout)} - 1;
    return {static_cast<std::int32_t>(std::min(last, kMost)), PageRows(layout),
            static_cast<std::int32_t>(std::min<std::int64_t>(layout.topIndex, kMost))};
}

BarRange HorizontalRange(const Layout& layout) {
    const std::int32_t total = TotalWidth(layout, ColumnCount(layout));
    if (total <= layout.client.width) {
        return {};
    }
    return {total - 1, static_cast<std::uint32_t>(std::max(layout.client.width, 0)), layout.offset};
}

std::int32_t LastOffset(const Layout& layout) {
    return std::max(TotalWidth(layout, ColumnCount(layout)) - layout.client.width, 0);
}

std::uint32_t TopAfter(const Layout& layout, ScrollStep step, std::uint32_t target) {
    const std::uint32_t top = layout.topIndex;
    const std::uint32_t last = LastTop(layout);
    switch (step) {
    case ScrollStep::LineBack:
        return std::min(last, top - (top != 0 ? 1 : 0));
    case ScrollStep::LineOn:
        return top < last ? top + 1 : last;
    case ScrollStep::PageBack:
        return std::min(last, TopPageUp(layout));
    case ScrollStep::PageOn:
        return TopPageDown(layout);
    case ScrollStep::First:
        return 0;
    case ScrollStep::Last:
        return last;
    case ScrollStep::To:
        return std::min(last, target);
    case ScrollStep::None:
        break;
    }
    return std::min(last, top);
}

std::int32_t OffsetAfter(const Layout& layout, ScrollStep step, std::int32_t target,
                         std::int32_t line) {
    const std::int32_t unit = layout.multiColumn ? layout.columnWidth : std::max(line, 1);
    const std::int32_t page = std::max(layout.client.width / unit, 1) * unit;
    const std::int32_t last = LastOffset(layout);
    std::int64_t offset = layout.offset;
    switch (step) {
    case ScrollStep::LineBack:
        offset -= unit;
        break;
    case ScrollStep::LineOn:
        offset += unit;
        break;
    case ScrollStep::PageBack:
        offset -= page;
        break;
    case ScrollStep::PageOn:
        offset += page;
        break;
    case ScrollStep::First:
        offset = 0;
        break;
    case ScrollStep::Last:
        offset = last;
        break;
    case ScrollStep::To:
        offset = target;
        break;
    case ScrollStep::None:
        break;
    }
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(offset, 0, last));
}

std::int32_t WheelLines(WheelState& state, std::int32_t turned, std::uint32_t linesPerNotch) {
    if ((state.remainder < 0) != (turned < 0)) {
        state.remainder = 0;
    }
    const auto lines = static_cast<std::int64_t>(linesPerNotch);
    const std::int64_t sum = state.remainder + turned * lines;
    state.remainder = static_cast<std::int32_t>(sum % kNotch);
    return static_cast<std::int32_t>(std::clamp(sum / kNotch, -kMost, kMost));
}

} // namespace vorn::hierlist
