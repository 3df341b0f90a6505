// The dial's values, its geometry and the way from a point to an angle and a position: everything
// that needs neither a window nor a history of events.
//
// Angles are whole degrees, counter-clockwise from the positive x axis (east).
#pragma once

#include "core/geometry.h"

#include <cstdint>

namespace vorn::dial {

// What the mouse does, and after its release what it did last.
enum class MouseMode : std::uint32_t { None, LeftButton, RightButton, Turn };

struct State {
    std::int32_t turnStart = -45; // angle of the minimum
    std::int32_t turnEnd = 225;   // angle of the maximum
    std::int32_t minimum = 0;
    std::int32_t maximum = 100;
    std::int32_t position = 0;
    MouseMode mode = MouseMode::None;
    std::int32_t direction = 1; // 1: angles are mirrored, the value grows clockwise; 0: it does not
    bool rightDown = false;     // the corner buttons, as they are drawn and repeat
    bool leftDown = false;
    bool captured = false;
    std::uint32_t enabled = 1; // as WM_ENABLE gave it
};

// Keeps the position within the range; of a range with its ends swapped only the minimum remains.
// Answers the previous position. (A new range leaves the position as it is, so that nothing but
// this moves it.)
std::int32_t SetPosition(State& state, std::int32_t position);

// Takes the lowest bit of the value. Answers the previous direction.
std::int32_t SetDirection(State& state, std::int32_t direction);

// A smaller window is made this large.
constexpr Size kSmallestWindow = {40, 40};

struct Geometry {
    Rect knob; // what the face covers; empty or turned inside out in a client below 17 pixels
    Point center;
    std::int32_t radius;
    Rect leftButton; // the corner buttons; empty in a client below 20 pixels
    Rect rightButton;
};

// Of a client area with no negative side.
Geometry LayOut(Size client);

// Where the point lies as seen from the centre, 0 to 359, mirrored when the direction is 1. The
// centre itself counts as straight above.
std::int32_t AngleOfPoint(std::int32_t direction, Point center, Point point);

// An angle of 0 to 359, moved to an end of the turn range when it lies in the dead zone, and
// lowered by 360 when it lies above the end. Made for an end of 0 to 359 and a start less than a
// full turn below it; with any other turn range the rules run as they are, and the answer may lie
// outside of it.
std::int32_t ClampToTurnRange(const State& state, std::int32_t angle);

// The position that a clamped angle means, truncated towards the minimum; the minimum itself when
// the turn range is empty. Beyond 32 bits: the nearest 32-bit value.
std::int32_t PositionOfAngle(const State& state, std::int32_t angle);

// The three steps together.
std::int32_t PositionUnderPointer(const State& state, const Geometry& geometry, Point point);

// The start of a turn range, lowered by whole turns until it is not above the end.
std::int64_t LoweredStart(std::int32_t start, std::int32_t end);

} // namespace vorn::dial
