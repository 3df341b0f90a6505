// Where the rows of an outline list are: in one column that is scrolled by rows, or in several that
// are scrolled sideways by pixels; of one height or each of its own.
//
// Nothing here looks at more rows than are in view, with two exceptions that say so.
#pragma once

#include "core/geometry.h"
#include "hierlist/column_table.h"
#include "hierlist/item.h"
#include "hierlist/list_options.h"

#include <cstdint>

namespace vorn::hierlist {

struct Layout {
    const Outline* outline = nullptr;
    const ColumnTable* columns = nullptr; // for several columns of rows of variable height
    Size client;
    std::int32_t rowHeight = 1; // of rows of fixed height, and of those never measured
    std::int32_t columnWidth = 1;
    std::int32_t extent = 0; // the width of the rows of a single column, if more than the client's
    std::int32_t offset = 0; // pixels scrolled to the right
    std::uint32_t topIndex = 0; // always 0 with several columns
    bool variable = false;
    bool multiColumn = false;
};

// The layout that style and options give; where it is scrolled to is left to the caller.
Layout MakeLayout(const Outline& outline, const ListOptions& options, std::uint32_t style,
                  Size client);

// The rows that there are, which the host may not have been told of.
std::uint32_t RowCount(const Layout& layout);

// The items of the neighbouring rows; null at the ends.
OlbItem* ItemBelow(const OlbItem* item);
OlbItem* ItemAbove(const OlbItem* item);

std::int32_t HeightOf(const Layout& layout, const OlbItem* item);

// The rows that fit into the first column, at least 1; of variable height at most all that there
// are.
std::uint32_t LinesPerColumn(const Layout& layout);

// The columns that the rows take, at least 1.
std::uint32_t ColumnCount(const Layout& layout);

// ---- Scrolling ----

// The first row when the last one is wholly in view: no topIndex is beyond that.
std::uint32_t LastTop(const Layout& layout);

// The rows that a page of the vertical scroll bar counts, so that its end is LastTop.
std::uint32_t PageRows(const Layout& layout);

// The topIndex a page further down and up, not beyond the ends.
std::uint32_t TopPageDown(const Layout& layout);
std::uint32_t TopPageUp(const Layout& layout);

// The topIndex and the offset that bring a row wholly into view by the shortest way.
std::uint32_t TopToShow(const Layout& layout, std::uint32_t row);
std::int32_t OffsetToShow(const Layout& layout, std::uint32_t row);

// The first row of the first column that is wholly in view, and the offset that makes a row's
// column the first: what the top index is when there are several columns.
std::uint32_t FirstColumnRow(const Layout& layout);
std::int32_t OffsetOfColumn(const Layout& layout, std::uint32_t row);

// ---- Places ----

// A row where it is, in client coordinates.
struct PlacedRow {
    OlbItem* item = nullptr;
    std::uint32_t row = kNoRow;
    Rect rect;
};

// The first row that may meet an area, and the row after another one. Of rows that are not there
// the item is null.
PlacedRow FirstRowIn(const Layout& layout, const Rect& area);
PlacedRow NextRow(const Layout& layout, const PlacedRow& before);

// Whether this row and all after it are beyond an area.
bool IsBeyond(const Layout& layout, const PlacedRow& placed, const Rect& area);

// Where a row is, in view or not; an empty rectangle when there is none. Of rows of variable height
// in one column it looks at all between the topIndex and the row.
Rect RowRect(const Layout& layout, std::uint32_t row);

// The row under a point; kNoRow outside the client area and where no row is.
std::uint32_t RowAt(const Layout& layout, Point point);

// The last row of which something is in view; kNoRow without rows.
std::uint32_t LastRowInView(const Layout& layout);

} // namespace vorn::hierlist
