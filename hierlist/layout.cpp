#include "hierlist/layout.h"

#include "hierlist/outline.h"

#include <algorithm>
#include <limits>

namespace vorn::hierlist {
namespace {

constexpr std::int64_t kFar = std::numeric_limits<std::int32_t>::max();

std::int32_t Clamped(std::int64_t value) {
    return static_cast<std::int32_t>(std::clamp(value, -kFar, kFar));
}

bool UsesTable(const Layout& layout) {
    return layout.multiColumn && layout.variable;
}

std::uint32_t FixedLines(const Layout& layout) {
    return static_cast<std::uint32_t>(std::max(layout.client.height / layout.rowHeight, 1));
}

std::uint32_t LastRow(const Layout& layout) {
    const std::uint32_t rows = RowCount(layout);
    return rows != 0 ? rows - 1 : 0;
}

// The first row of those that, up to this one, fit into the client area; the row itself at least.
std::uint32_t TopOfPageEndingAt(const Layout& layout, std::uint32_t row) {
    if (!layout.variable) {
        const std::uint32_t lines = FixedLines(layout);
        return row >= lines ? row - lines + 1 : 0;
    }
    const OlbItem* item = IndexToHandle(*layout.outline, row);
    if (item == nullptr) {
        return 0;
    }
    std::int64_t height = HeightOf(layout, item);
    for (item = ItemAbove(item); item != nullptr; item = ItemAbove(item)) {
        height += HeightOf(layout, item);
        if (height > layout.client.height) {
            break;
        }
        --row;
    }
    return row;
}

// The rows that from this one on are wholly in view, at least 1.
std::uint32_t RowsFrom(const Layout& layout, std::uint32_t row) {
    if (!layout.variable) {
        return FixedLines(layout);
    }
    std::uint32_t rows = 0;
    std::int64_t height = 0;
    for (const OlbItem* item = IndexToHandle(*layout.outline, row); item != nullptr;
         item = ItemBelow(item)) {
        height += HeightOf(layout, item);
        if (height > layout.client.height) {
            break;
        }
        ++rows;
    }
    return std::max(rows, 1u);
}

std::uint32_t ColumnAtRow(const Layout& layout, std::uint32_t row) {
    return UsesTable(layout) ? ColumnOf(*layout.columns, layout, row) : row / FixedLines(layout);
}

std::uint32_t FirstRowOfColumn(const Layout& layout, std::uint32_t column) {
    if (UsesTable(layout)) {
        return ColumnStart(*layout.columns, layout, column);
    }
    const std::uint64_t row = std::uint64_t{column} * FixedLines(layout);
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(row, RowCount(layout)));
}

std::int32_t ColumnLeft(const Layout& layout, std::uint32_t column) {
    return Clamped(std::int64_t{column} * layout.columnWidth - layout.offset);
}

// The column that a client x is in.
std::uint32_t ColumnAt(const Layout& layout, std::int32_t x) {
    const std::int64_t content = std::int64_t{x} + layout.offset;
    return content > 0 ? static_cast<std::uint32_t>(content / layout.columnWidth) : 0;
}

Rect RectAt(const Layout& layout, const OlbItem* item, std::int64_t left, std::int64_t top) {
    const std::int64_t right =
        layout.multiColumn
            ? left + layout.columnWidth
            : std::max<std::int64_t>(layout.client.width, std::int64_t{layout.extent} + left);
    return {Clamped(left), Clamped(top), Clamped(right), Clamped(top + HeightOf(layout, item))};
}

PlacedRow Place(const Layout& layout, std::uint32_t row, std::int64_t left, std::int64_t top) {
    OlbItem* item = IndexToHandle(*layout.outline, row);
    return item == nullptr ? PlacedRow{} : PlacedRow{item, row, RectAt(layout, item, left, top)};
}

// The distance of a row's top from that of the topIndex.
std::int64_t TopOf(const Layout& layout, std::uint32_t row) {
    const std::int64_t rows = std::int64_t{row} - layout.topIndex;
    if (!layout.variable) {
        return rows * layout.rowHeight;
    }
    std::int64_t top = 0;
    const OlbItem* item = IndexToHandle(*layout.outline, std::min(row, layout.topIndex));
    for (std::int64_t left = rows < 0 ? -rows : rows; left > 0 && item != nullptr; --left) {
        top += HeightOf(layout, item);
        item = ItemBelow(item);
    }
    return rows < 0 ? -top : top;
}

} // namespace

Layout MakeLayout(const Outline& outline, const ListOptions& options, std::uint32_t style,
                  Size client) {
    Layout layout;
    layout.outline = &outline;
    layout.client = client;
    layout.rowHeight = std::max(options.rowHeight, 1);
    layout.columnWidth = ColumnWidthOf(options);
    layout.extent = options.horizontalExtent;
    layout.variable = (style & kStyleOwnerDrawVariable) != 0;
    layout.multiColumn = (style & kStyleMultiColumn) != 0;
    return layout;
}

std::uint32_t RowCount(const Layout& layout) {
    return SeqCount(layout.outline->visibleRoot);
}

OlbItem* ItemBelow(const OlbItem* item) {
    const OlbSeqNode* next = SeqNext(item->node);
    return next != nullptr ? next->item : nullptr;
}

OlbItem* ItemAbove(const OlbItem* item) {
    const OlbSeqNode* previous = SeqPrevious(item->node);
    return previous != nullptr ? previous->item : nullptr;
}

std::int32_t HeightOf(const Layout& layout, const OlbItem* item) {
    return layout.variable && item->height != 0 ? item->height : layout.rowHeight;
}

std::uint32_t LinesPerColumn(const Layout& layout) {
    return RowsFrom(layout, 0);
}

std::uint32_t ColumnCount(const Layout& layout) {
    if (!layout.multiColumn) {
        return 1;
    }
    if (layout.variable) {
        return std::max(layout.columns->columns, 1u);
    }
    return LastRow(layout) / FixedLines(layout) + 1;
}

std::uint32_t LastTop(const Layout& layout) {
    return layout.multiColumn ? 0 : TopOfPageEndingAt(layout, LastRow(layout));
}

std::uint32_t PageRows(const Layout& layout) {
    return layout.variable ? std::max(RowCount(layout) - LastTop(layout), 1u) : FixedLines(layout);
}

std::uint32_t TopPageDown(const Layout& layout) {
    const std::uint32_t rows = RowsFrom(layout, layout.topIndex);
    const std::uint32_t last = LastTop(layout);
    return layout.topIndex < last ? std::min(last, layout.topIndex + rows) : last;
}

std::uint32_t TopPageUp(const Layout& layout) {
    return layout.topIndex == 0 ? 0 : TopOfPageEndingAt(layout, layout.topIndex - 1);
}

std::uint32_t TopToShow(const Layout& layout, std::uint32_t row) {
    if (layout.multiColumn) {
        return 0;
    }
    const std::uint32_t lowest = TopOfPageEndingAt(layout, row);
    return std::clamp(layout.topIndex, lowest, std::max(lowest, row));
}

std::int32_t OffsetToShow(const Layout& layout, std::uint32_t row) {
    if (!layout.multiColumn) {
        return layout.offset;
    }
    const std::int32_t left = OffsetOfColumn(layout, row);
    const std::int64_t right = std::int64_t{left} + layout.columnWidth - layout.client.width;
    return layout.offset > left || right > left
               ? left
               : static_cast<std::int32_t>(std::max<std::int64_t>(layout.offset, right));
}

std::uint32_t FirstColumnRow(const Layout& layout) {
    const std::int64_t columns =
        (std::int64_t{layout.offset} + layout.columnWidth - 1) / layout.columnWidth;
    const auto column = static_cast<std::uint32_t>(
        std::clamp<std::int64_t>(columns, 0, std::int64_t{ColumnCount(layout)} - 1));
    return FirstRowOfColumn(layout, column);
}

std::int32_t OffsetOfColumn(const Layout& layout, std::uint32_t row) {
    return Clamped(std::int64_t{ColumnAtRow(layout, row)} * layout.columnWidth);
}

PlacedRow FirstRowIn(const Layout& layout, const Rect& area) {
    const std::int64_t left = -std::int64_t{layout.offset};
    if (layout.multiColumn) {
        const std::uint32_t column = ColumnAt(layout, area.left);
        return Place(layout, FirstRowOfColumn(layout, column), ColumnLeft(layout, column), 0);
    }
    if (!layout.variable) {
        const std::int32_t skipped = std::max(area.top, 0) / layout.rowHeight;
        const std::uint64_t row = std::uint64_t{layout.topIndex} + static_cast<unsigned>(skipped);
        return Place(layout, static_cast<std::uint32_t>(std::min<std::uint64_t>(row, kNoRow)), left,
                     std::int64_t{skipped} * layout.rowHeight);
    }
    PlacedRow placed = Place(layout, layout.topIndex, left, 0);
    while (placed.item != nullptr && placed.rect.bottom <= area.top) {
        placed = NextRow(layout, placed);
    }
    return placed;
}

PlacedRow NextRow(const Layout& layout, const PlacedRow& before) {
    const PlacedRow below = Place(layout, before.row + 1, before.rect.left, before.rect.bottom);
    if (!layout.multiColumn || below.item == nullptr || below.rect.bottom <= layout.client.height) {
        return below;
    }
    return Place(layout, below.row, before.rect.right, 0);
}

bool IsBeyond(const Layout& layout, const PlacedRow& placed, const Rect& area) {
    return layout.multiColumn ? placed.rect.left >= area.right : placed.rect.top >= area.bottom;
}

Rect RowRect(const Layout& layout, std::uint32_t row) {
    if (!layout.multiColumn) {
        return Place(layout, row, -std::int64_t{layout.offset}, TopOf(layout, row)).rect;
    }
    if (row >= RowCount(layout)) {
        return {};
    }
    const std::uint32_t column = ColumnAtRow(layout, row);
    PlacedRow placed =
        Place(layout, FirstRowOfColumn(layout, column), ColumnLeft(layout, column), 0);
    while (placed.item != nullptr && placed.row < row) {
        placed = NextRow(layout, placed);
    }
    return placed.rect;
}

std::uint32_t RowAt(const Layout& layout, Point point) {
    if (!Contains({0, 0, layout.client.width, layout.client.height}, point)) {
        return kNoRow;
    }
    const Rect spot = {point.x, point.y, point.x + 1, point.y + 1};
    PlacedRow placed = FirstRowIn(layout, spot);
    while (placed.item != nullptr && !IsBeyond(layout, placed, spot)) {
        if (Contains(placed.rect, point)) {
            return placed.row;
        }
        placed = NextRow(layout, placed);
    }
    return kNoRow;
}

std::uint32_t LastRowInView(const Layout& layout) {
    const Rect client = {0, 0, layout.client.width, layout.client.height};
    std::uint32_t last = kNoRow;
    for (PlacedRow placed = FirstRowIn(layout, client);
         placed.item != nullptr && !IsBeyond(layout, placed, client);
         placed = NextRow(layout, placed)) {
        last = placed.row;
    }
    return last;
}

} // namespace vorn::hierlist
