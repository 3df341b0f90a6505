#include "hierlist/list_options.h"

#include "core/frames.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

constexpr std::int32_t kDefaultColumnCharacters = 15; // as in the system's list boxes

constexpr std::uint32_t StyleOfBorder(std::uint32_t border) {
    switch (border) {
    case kBorderLine:
        return kStyleBorderLine;
    case kBorderRaised:
        return kStyleBorderRaised;
    case kBorderSunken:
        return kStyleBorderSunken;
    default:
        return 0;
    }
}

} // namespace

ListOptions OptionsFromStyle(std::uint32_t style, Size picture) {
    ListOptions options;
    options.border = BorderFromStyle(style);
    options.wantsVerticalBar = (style & kStyleVerticalBar) != 0;
    options.wantsHorizontalBar = (style & kStyleHorizontalBar) != 0;
    options.picture = picture;
    options.rowHeight = picture.height + kPictureMargin;
    options.levelPicture.fill(kNoPicture);
    return options;
}

std::uint32_t BorderFromStyle(std::uint32_t style) {
    if ((style & kStyleBorderSunken) != 0) {
        return kBorderSunken;
    }
    if ((style & kStyleBorderRaised) != 0) {
        return kBorderRaised;
    }
    return (style & kStyleBorderLine) != 0 ? kBorderLine : kBorderNone;
}

std::uint32_t StyleWithBorder(std::uint32_t style, std::uint32_t border) {
    return (style & ~kStyleBorders) | StyleOfBorder(border);
}

Size OuterSize(Size client, const ListOptions& options, Size bars) {
    const std::int32_t frame = 2 * BorderWidth(options.border);
    const std::int32_t shared = options.border == kBorderLine ? 1 : 0;
    return {client.width + frame + (options.wantsVerticalBar ? bars.width - shared : 0),
            client.height + frame + (options.wantsHorizontalBar ? bars.height - shared : 0)};
}

std::int32_t RowHeightFor(const ListOptions& options, std::int32_t fontHeight) {
    return std::max(options.picture.height + kPictureMargin, fontHeight);
}

std::int32_t ColumnWidthOf(const ListOptions& options) {
    const std::int32_t width = options.columnWidth > 0
                                   ? options.columnWidth
                                   : kDefaultColumnCharacters * options.averageWidth;
    return std::max(width, 1);
}

} // namespace vorn::hierlist
