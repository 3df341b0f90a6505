#include "controls/dial/dial_picture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vorn::dial {
namespace {

std::int32_t Truncated(double value) {
    return static_cast<std::int32_t>(value);
}

Point MarkCenter(double angle, Point center, std::int32_t orbit) {
    const double radians = angle * std::numbers::pi / 180.0;
    const std::int32_t x = Truncated(center.x + orbit * std::cos(radians) + 0.5);
    // Straight above and below, the orbit is exact whatever the sine's last digit is.
    if (angle == 90.0) {
        return {x, center.y - orbit};
    }
    if (angle == 270.0) {
        return {x, center.y + orbit};
    }
    return {x, Truncated(center.y - orbit * std::sin(radians) + 0.5)};
}

void Append(CornerLines& list, CornerPen pen, Point from, Point to) {
    list.lines[list.count] = {pen, from, to};
    ++list.count;
}

// A plus or minus sign with arms of one length, so that both are symmetric.
void AppendSign(CornerLines& list, const Rect& button, CornerPen pen, bool plus) {
    const std::int32_t size = Width(button);
    const std::int32_t arm = std::max((size - 1) / 2 - 2, 0);
    const Point middle = {button.left + size / 2, button.top + size / 2};
    Append(list, pen, {middle.x - arm, middle.y}, {middle.x + arm + 1, middle.y});
    if (plus) {
        Append(list, pen, {middle.x, middle.y - arm}, {middle.x, middle.y + arm + 1});
    }
}

CornerLines ButtonLines(const Rect& button, bool down, CornerPen sign, bool plus) {
    CornerLines list;
    if (Width(button) <= 0) {
        return list;
    }
    const CornerPen topLeft = down ? CornerPen::Shadow : CornerPen::Highlight;
    const CornerPen bottomRight = down ? CornerPen::Highlight : CornerPen::Shadow;
    const std::int32_t lastColumn = button.right - 1;
    const std::int32_t lastRow = button.bottom - 1;
    Append(list, topLeft, {button.left, button.top}, {button.left, lastRow});
    Append(list, topLeft, {button.left, button.top}, {lastColumn, button.top});
    Append(list, bottomRight, {button.left, lastRow}, {button.right, lastRow});
    Append(list, bottomRight, {lastColumn, button.top}, {lastColumn, button.bottom});
    AppendSign(list, button, sign, plus);
    return list;
}

CornerPen SignPen(const State& state) {
    return state.enabled != 0 ? CornerPen::Text : CornerPen::GrayText;
}

} // namespace

double MarkAngle(const State& state) {
    const double start = static_cast<double>(LoweredStart(state.turnStart, state.turnEnd));
    double angle = start;
    if (state.maximum != state.minimum) {
        const double positions = static_cast<double>(state.maximum) - state.minimum;
        angle += (state.turnEnd - start) / positions * state.position;
    }
    if (state.direction == 1) {
        angle = 180.0 - angle;
    }
    angle = std::fmod(angle, 360.0);
    if (angle < 0.0) {
        angle += 360.0;
    }
    // A tiny negative angle is rounded up to the full turn.
    return angle < 360.0 ? angle : 0.0;
}

std::int32_t MarkOrbit(std::int32_t radius) {
    const std::int32_t large = static_cast<std::int32_t>(std::int64_t{radius} * 19 / 20);
    const std::int32_t gap = radius - large;
    if (gap < 2) {
        return radius - 2;
    }
    return gap < 9 ? large : radius - 8;
}

std::int32_t MarkSize(std::int32_t orbit) {
    const std::int32_t size = orbit / 10 / 2 * 2;
    return size == 0 ? 2 : size;
}

Rect MarkRectangle(const State& state, const Geometry& geometry) {
    const std::int32_t orbit = MarkOrbit(geometry.radius);
    const Point middle = MarkCenter(MarkAngle(state), geometry.center, orbit);
    const std::int32_t half = MarkSize(orbit) / 2;
    return {middle.x - half, middle.y - half, middle.x + half, middle.y + half};
}

CornerLines LeftButtonLines(const State& state, const Geometry& geometry) {
    return ButtonLines(geometry.leftButton, state.leftDown, SignPen(state), state.direction == 0);
}

CornerLines RightButtonLines(const State& state, const Geometry& geometry) {
    return ButtonLines(geometry.rightButton, state.rightDown, SignPen(state), state.direction == 1);
}

} // namespace vorn::dial
