#include "hierlist/row_spans.h"

#include <algorithm>
#include <limits>

namespace vorn::hierlist {
namespace {

// Hosts set any indent, and trees are of any depth.
std::int32_t Slots(const ListOptions& options, std::int64_t count) {
    constexpr std::int64_t kFar = std::numeric_limits<std::int32_t>::max() / 4;
    return static_cast<std::int32_t>(std::clamp(count * options.indent, -kFar, kFar));
}

std::int32_t Centered(const Rect& row, std::int32_t height) {
    const std::int32_t room = Height(row) - height;
    return row.top + (room >= 0 ? room / 2 : (room - 1) / 2);
}

} // namespace

std::int32_t ContentStart(const ListOptions& options, std::int32_t level) {
    return Slots(options, std::int64_t{level} + (HasOption(options, kOptionBoxes) ? 1 : 0));
}

std::int32_t LineX(const ListOptions& options, std::int32_t level) {
    const std::int32_t slot = level - (HasOption(options, kOptionBoxes) ? 0 : 1);
    return slot < 0 ? -1 : Slots(options, slot) + kBoxMiddle;
}

std::int32_t LineY(const Rect& row) {
    return Centered(row, kBoxPicture.height) + kBoxPicture.height / 2;
}

Rect BoxRect(const Rect& row, const ListOptions& options, std::int32_t level) {
    const std::int32_t left = row.left + Slots(options, level) + kBoxFirst;
    const std::int32_t top = Centered(row, kBoxPicture.height);
    return {left, top, left + kBoxPicture.width, top + kBoxPicture.height};
}

Rect PictureRect(const Rect& row, const ListOptions& options, std::int32_t left) {
    const std::int32_t top = Centered(row, options.picture.height);
    return {left, top, left + options.picture.width, top + options.picture.height};
}

std::int32_t TextStart(const Rect& row, const ListOptions& options, std::int32_t level) {
    const std::int32_t content = row.left + ContentStart(options, level);
    return ShowsPictures(options) ? content + options.picture.width + kTextMargin : content;
}

Rect TextRect(const Rect& row, const ListOptions& options, std::int32_t level,
              std::int32_t textWidth) {
    const std::int32_t start = TextStart(row, options, level);
    const std::int32_t right = HasOption(options, kOptionFullRow) ? std::max(row.right, start)
                                                                  : start + textWidth + kTextMargin;
    return {start - kTextMargin, row.top, right, row.bottom};
}

RowPart PartAt(const Rect& row, const ListOptions& options, std::int32_t level, std::int32_t x) {
    const std::int32_t slot = x - row.left - Slots(options, level);
    if (HasOption(options, kOptionBoxes) && slot >= kBoxFirst && slot <= kBoxLast) {
        return RowPart::Box;
    }
    const std::int32_t content = x - row.left - ContentStart(options, level);
    if (content < 0) {
        return RowPart::Indent;
    }
    return ShowsPictures(options) && content < options.picture.width ? RowPart::Picture
                                                                     : RowPart::Text;
}

} // namespace vorn::hierlist
