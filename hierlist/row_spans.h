// Where the parts of a row are, and which of them is at a point.
#pragma once

#include "hierlist/list_options.h"

#include <cstdint>

namespace vorn::hierlist {

constexpr Size kBoxPicture = {11, 11};

// What a click on an open/close box may hit, from the start of the item's slot, both included.
constexpr std::int32_t kBoxFirst = 3;
constexpr std::int32_t kBoxLast = 14;

// The middle of the box picture in its slot; the tree's lines run through it.
constexpr std::int32_t kBoxMiddle = kBoxFirst + 5;

// How far the highlight of a text reaches to both sides of it.
constexpr std::int32_t kTextMargin = 3;

// The distance of an item's picture, or of its text without one, from the row's left edge: a slot
// for each level and one for the box.
std::int32_t ContentStart(const ListOptions& options, std::int32_t level);

// Where the tree's line to an item goes down, from the row's left edge: in the slot before the
// content. Negative at the top level when there are no boxes.
std::int32_t LineX(const ListOptions& options, std::int32_t level);

// Where it turns to the item: the middle of the box picture.
std::int32_t LineY(const Rect& row);

// The box picture's place in a row of an item of this level.
Rect BoxRect(const Rect& row, const ListOptions& options, std::int32_t level);

// A picture's place when it begins at `left`, in the middle of the row's height.
Rect PictureRect(const Rect& row, const ListOptions& options, std::int32_t left);

// Where the text begins: at the content, or beside the picture with room for the margin.
std::int32_t TextStart(const Rect& row, const ListOptions& options, std::int32_t level);

// What is highlighted and what the focus frames, for a text of this width.
Rect TextRect(const Rect& row, const ListOptions& options, std::int32_t level,
              std::int32_t textWidth);

enum class RowPart : std::uint8_t { Indent, Box, Picture, Text };

// What of a row is at a client x. A box counts whether or not the item shows one; all behind the
// picture is text.
RowPart PartAt(const Rect& row, const ListOptions& options, std::int32_t level, std::int32_t x);

} // namespace vorn::hierlist
