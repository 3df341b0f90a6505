// What the dial draws over its face: the pointer mark and the corner buttons.
#pragma once

#include "controls/dial/dial.h"

#include <array>

namespace vorn::dial {

// The angle of the pointer mark in degrees, at least 0 and below 360. It turns with the position
// itself and not with its distance from the minimum, unlike the way from the pointer to a position;
// the two agree for a minimum of 0. At the turn start when the range is a single position.
double MarkAngle(const State& state);

// How far from the centre the mark stands: further from the rim the larger the knob is.
std::int32_t MarkOrbit(std::int32_t radius);

// The mark's width and height on this orbit, an even number.
std::int32_t MarkSize(std::int32_t orbit);

// What the mark's ellipse is drawn into.
Rect MarkRectangle(const State& state, const Geometry& geometry);

enum class CornerPen : std::uint8_t { Highlight, Shadow, Text, GrayText };

// The last point is not painted.
struct CornerLine {
    CornerPen pen = CornerPen::Highlight;
    Point from;
    Point to;

    friend constexpr bool operator==(const CornerLine&, const CornerLine&) = default;
};

// In drawing order: the outline's left, top, bottom and right edge, the horizontal stroke, and the
// vertical one on the button that increases. None for a button without an area.
struct CornerLines {
    std::array<CornerLine, 6> lines;
    std::size_t count = 0;

    const CornerLine* begin() const { return lines.data(); }
    const CornerLine* end() const { return lines.data() + count; }
};

CornerLines LeftButtonLines(const State& state, const Geometry& geometry);
CornerLines RightButtonLines(const State& state, const Geometry& geometry);

} // namespace vorn::dial
