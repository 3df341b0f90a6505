#include "hierlist/connect_lines.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

DottedLine Vertical(std::int32_t x, std::int32_t top, std::int32_t bottom) {
    return {{x, top}, std::max(bottom - top, 0), true};
}

} // namespace

OwnLines LinesOf(const OlbItem* item, const Rect& row, const ListOptions& options) {
    const std::int32_t slotX = LineX(options, item->level);
    if (slotX < 0) {
        return {};
    }
    const std::int32_t x = row.left + slotX;
    const std::int32_t y = LineY(row);
    const std::int32_t content = row.left + ContentStart(options, item->level);
    const bool above = item->parent != nullptr || item->prevSibling != nullptr;
    const bool below = item->nextSibling != nullptr;
    return {Vertical(x, above ? row.top : y, below ? row.bottom : y + 1),
            {{x, y}, std::max(content - x, 0), false}};
}

const OlbItem* PassedParent(const OlbItem* item) {
    const OlbItem* parent = item->parent;
    while (parent != nullptr && parent->nextSibling == nullptr) {
        parent = parent->parent;
    }
    return parent;
}

DottedLine PassingLine(const OlbItem* parent, const Rect& row, const ListOptions& options) {
    const std::int32_t slotX = LineX(options, parent->level);
    return slotX < 0 ? DottedLine{} : Vertical(row.left + slotX, row.top, row.bottom);
}

DottedLine FromFirstDot(const DottedLine& line) {
    DottedLine trimmed = line;
    if (((line.from.x + line.from.y) & 1) != 0 && line.length > 0) {
        (line.vertical ? trimmed.from.y : trimmed.from.x) += 1;
        --trimmed.length;
    }
    return trimmed;
}

} // namespace vorn::hierlist
