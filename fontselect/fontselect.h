// The font selector's values and arithmetic: everything about it that needs no window.
#pragma once

#include "core/color.h"
#include "core/geometry.h"

#include <array>
#include <cstdint>
#include <span>

namespace vorn::fontselect {

// The lists, by their identifiers in the dialog.
constexpr std::int32_t kFamilyList = 228;
constexpr std::int32_t kSizeList = 229;

struct Colors {
    ColorCode field = kWindowColor;
    ColorCode text = kWindowTextColor;
    ColorCode background = kButtonFaceColor; // around the lists
};

inline constexpr ColorSlot<Colors> kColorSlots[] = {
    {2, &Colors::field}, {4, &Colors::text}, {8, &Colors::background}};

struct State {
    std::uint16_t fontCommandCode = 0; // what a family's change is reported as; 0: the control's id
    std::uint16_t sizeCommandCode = 0;
    Colors colors;
};

// The sizes that can be chosen, in points, in the order of the size list.
inline constexpr std::array<std::int32_t, 16> kPointSizes = {8,  9,  10, 11, 12, 14, 16, 18,
                                                             20, 22, 24, 26, 28, 36, 48, 72};
constexpr std::int32_t kDefaultPoints = 10;
constexpr std::int32_t kDefaultSizeIndex = 2;

// The index of the size that stands for a number of points: itself when it is listed, the first or
// last for what is smaller or larger, and between two sizes the one farther away, the larger of
// two equally far.
std::int32_t IndexOfPoints(std::int32_t points);

// The logical height of a font of this size: minus its character height, truncated. Beyond 32 bits:
// the nearest 32-bit value.
std::int32_t LogicalHeight(std::int32_t points, std::int32_t pixelsPerInch);

// Points of a character height in pixels, rounded to the nearest; pixelsPerInch is above 0.
std::int32_t PointsOfCharacterHeight(std::int64_t height, std::int32_t pixelsPerInch);

// What layout and item heights need to know of the control's font.
struct FontMetrics {
    std::int32_t height;
    std::int32_t internalLeading;
    std::int32_t averageCharWidth;
};

// The lists of a control `width` pixels wide, as tall as when they are dropped down.
struct ListPlaces {
    Rect families;
    Rect sizes;
};
ListPlaces PlaceLists(std::int32_t width, const FontMetrics& metrics);

struct ItemHeights {
    std::int32_t item;
    std::int32_t selection; // of the field that shows the selected item
};
ItemHeights HeightsOfItems(const FontMetrics& metrics);

// What a list's notification makes the control do.
enum class Reaction : std::uint8_t {
    None,
    NotifyParent,
    SelectAgain, // what is selected already
};
Reaction ReactionTo(std::int32_t listNotification);

// The command that tells the parent of a change in one of the lists.
struct ParentCommand {
    std::uint16_t identifier;
    std::uint16_t code;

    friend constexpr bool operator==(const ParentCommand&, const ParentCommand&) = default;
};
ParentCommand CommandOfChange(const State& state, std::int32_t list, std::uint16_t controlId);

// Copies a family's name, or the text that stands for none when it is null, cut to the buffer. A
// buffer of no size takes nothing, and nothing behind the terminator is written.
void CopyFamilyName(std::span<char> buffer, const char* name);

} // namespace vorn::fontselect
