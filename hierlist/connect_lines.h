// The dotted lines that connect the items of a tree: down from each item to its children, with a
// branch to each, ended at the last.
#pragma once

#include "hierlist/item.h"
#include "hierlist/row_spans.h"

#include <cstdint>

namespace vorn::hierlist {

// Pixels in a row of each other. Every other one is painted: those whose client coordinates add up
// to an even number, so that lines meet in step.
struct DottedLine {
    Point from;
    std::int32_t length = 0;
    bool vertical = false;

    friend constexpr bool operator==(const DottedLine&, const DottedLine&) = default;
};

// The lines of an item's own: one that comes from above, goes on below or both, and the branch. At
// the top level there are none unless there are boxes to draw them through. Lines that it does not
// have are of length 0.
struct OwnLines {
    DottedLine down;
    DottedLine branch;
};
OwnLines LinesOf(const OlbItem* item, const Rect& row, const ListOptions& options);

// The nearest of an item's parents with a sibling below, to which the parent's line goes on beside
// the item; null when there is none.
const OlbItem* PassedParent(const OlbItem* item);

// A parent's line beside a row below it; of length 0 when it has none.
DottedLine PassingLine(const OlbItem* parent, const Rect& row, const ListOptions& options);

// The line without the pixels that are not painted at its ends: the first is painted.
DottedLine FromFirstDot(const DottedLine& line);

} // namespace vorn::hierlist
