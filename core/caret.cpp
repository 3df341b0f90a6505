#include "core/caret.h"

#include <algorithm>
#include <cstring>

namespace vorn {
namespace {

constexpr std::int32_t kTextLeft = 4; // from the client area's left edge

constexpr std::uint16_t kFirstStyleInCells = 2;
constexpr std::uint16_t kLastStyleInCells = 3;

// How far the end of the first `count` visible characters is from the client area's left edge.
std::int32_t BoundaryAfter(const char* visible, std::uint32_t count, const ShownText& shown,
                           const TextMeasure& measure) {
    const bool inCells =
        shown.displayStyle >= kFirstStyleInCells && shown.displayStyle <= kLastStyleInCells;
    return kTextLeft + (inCells ? static_cast<std::int32_t>(count) * shown.cellWidth
                                : measure.width(measure.context, visible, count));
}

} // namespace

std::uint16_t CaretFromX(EditCaret& caret, const ShownText& shown, const char* text, std::int32_t x,
                         const TextMeasure& measure) {
    if (shown.isNull != 0) {
        caret = {};
        return 0;
    }
    const auto length = static_cast<std::uint32_t>(std::strlen(text));
    const std::uint32_t first = std::min<std::uint32_t>(caret.scrollIndex, length);
    const char* visible = text + first;
    std::int32_t before = kTextLeft;
    if (x < before) {
        return static_cast<std::uint16_t>(first);
    }
    for (std::uint32_t index = first; index < length; ++index) {
        const std::int32_t after = BoundaryAfter(visible, index + 1 - first, shown, measure);
        if (x <= after) {
            return static_cast<std::uint16_t>(after - x > x - before ? index : index + 1);
        }
        before = after;
    }
    return static_cast<std::uint16_t>(length);
}

} // namespace vorn
