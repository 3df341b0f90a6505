// How an outline list looks: its style bits, options, colours and sizes, with their defaults.
#pragma once

#include "core/color.h"
#include "core/geometry.h"
#include "hierlist/item.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace vorn::hierlist {

// Window style bits, beside those that the outline itself reads.
constexpr std::uint32_t kStyleMultiColumn = 0x200;
constexpr std::uint32_t kStyleDisableNoScroll = 0x1000;
constexpr std::uint32_t kStyleBorderSunken = 0x4000;
constexpr std::uint32_t kStyleBorderRaised = 0x8000;
constexpr std::uint32_t kStyleBorderLine = 0x800000;
constexpr std::uint32_t kStyleBorders = kStyleBorderSunken | kStyleBorderRaised | kStyleBorderLine;
constexpr std::uint32_t kStyleHorizontalBar = 0x100000;
constexpr std::uint32_t kStyleVerticalBar = 0x200000;

// The option flags. Opening by itself, 2, is the outline's own.
constexpr std::uint8_t kOptionProportionalBars = 1;
constexpr std::uint8_t kOptionLines = 4;
constexpr std::uint8_t kOptionAskBackground = 8;
constexpr std::uint8_t kOptionFullRow = 16;
constexpr std::uint8_t kOptionBoxes = 128;

// Levels from this one on have no pictures of their own.
constexpr std::size_t kPictureLevels = 20;

constexpr std::int32_t kNoPicture = -1;     // a level without an index of its own
constexpr std::int32_t kDefaultIndent = 20; // pixels
constexpr std::int32_t kFirstDefaultPicture = 1;
constexpr std::int32_t kPictureMargin = 2; // what a row is higher than its picture

struct ListColors {
    ColorCode lightEdge = kButtonHighlightColor;
    ColorCode darkEdge = kButtonShadowColor;
    ColorCode background = kWindowColor;
    ColorCode text = kWindowTextColor;
    ColorCode face = kButtonFaceColor;
    ColorCode lines = kWindowFrameColor;
    ColorCode lockedText = kGrayTextColor;
    ColorCode selectedText = kSelectionTextColor;
    ColorCode selection = kSelectionColor; // in no slot
};

inline constexpr ColorSlot<ListColors> kListColorSlots[] = {
    {0, &ListColors::lightEdge},   {1, &ListColors::darkEdge},     {2, &ListColors::background},
    {4, &ListColors::text},        {8, &ListColors::face},         {16, &ListColors::lines},
    {32, &ListColors::lockedText}, {64, &ListColors::selectedText}};

// The colours that an item's text and what is behind it have. A selected item looks selected,
// locked or not.
constexpr ColorCode TextColorOf(const ListColors& colors, std::uint16_t itemFlags) {
    if ((itemFlags & kFlagSelected) != 0) {
        return colors.selectedText;
    }
    return (itemFlags & kFlagLocked) != 0 ? colors.lockedText : colors.text;
}

// What a host sets, and what the control works out from fonts and pictures.
struct ListOptions {
    std::uint8_t flags = 0;
    std::uint32_t border = 0;
    std::uint16_t pictures = 1; // the low 15 bits: whether pictures are drawn
    bool wantsVerticalBar = false;
    bool wantsHorizontalBar = false;
    ListColors colors;
    std::int32_t indent = kDefaultIndent;
    std::int32_t rowHeight = 0;        // of every row of fixed height
    bool hasOwnRowHeight = false;      // set by the host: fonts leave it alone
    std::int32_t horizontalExtent = 0; // the width that can be scrolled through
    std::int32_t columnWidth = 0;      // 0: as wide as 15 average characters
    std::int32_t averageWidth = 0;     // of the font's characters
    Size picture;                      // of one picture in any strip
    std::int32_t defaultPicture = kFirstDefaultPicture;
    std::array<std::int32_t, kPictureLevels> levelPicture{};
};

// The options of a new control. The row height is the picture's with its margin until a font or a
// host asks for another.
ListOptions OptionsFromStyle(std::uint32_t style, Size picture);

constexpr bool HasOption(const ListOptions& options, std::uint8_t flag) {
    return (options.flags & flag) != 0;
}

constexpr bool ShowsPictures(const ListOptions& options) {
    return (options.pictures & 0x7FFF) != 0;
}

// The border that a style asks for, and the style that tells of a border.
std::uint32_t BorderFromStyle(std::uint32_t style);
std::uint32_t StyleWithBorder(std::uint32_t style, std::uint32_t border);

// How wide the border is on each side, in pixels.
constexpr std::int32_t BorderWidth(std::uint32_t border) {
    return border == 0 ? 0 : border == 1 ? 1 : 2;
}

// The window's size for a client area of this size. Scroll bars that are wanted count, shown or
// not; beside a line border they are one pixel narrower, as if they shared it.
Size OuterSize(Size client, const ListOptions& options, Size bars);

// The height that rows get with a font: pictures and text both find room.
std::int32_t RowHeightFor(const ListOptions& options, std::int32_t fontHeight);

// How wide a column is, always at least a pixel.
std::int32_t ColumnWidthOf(const ListOptions& options);

} // namespace vorn::hierlist
