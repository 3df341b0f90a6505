#include "controls/dial/dial.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace vorn::dial {
namespace {

constexpr std::int32_t kTurn = 360;

// Between the knob's square and the edges of the square it is laid out in.
constexpr std::int32_t kKnobLeft = 8;
constexpr std::int32_t kKnobTop = 4;
constexpr std::int32_t kKnobLoss = 16;

constexpr std::int32_t kLargestButton = 12;
constexpr std::int32_t kButtonMargin = 2;

std::int32_t WithinOneTurn(std::int64_t angle) {
    const std::int64_t rest = angle % kTurn;
    return static_cast<std::int32_t>(rest < 0 ? rest + kTurn : rest);
}

std::uint64_t Magnitude(std::int64_t value) {
    return static_cast<std::uint64_t>(value < 0 ? -value : value);
}

// base + value x factor / divisor, the quotient truncated towards zero, brought to the nearest
// 32-bit value. All three are differences of 32-bit numbers, so that the product of two fits into
// 64 bits without a sign.
std::int32_t Scaled(std::int32_t base, std::int64_t value, std::int64_t factor,
                    std::int64_t divisor) {
    constexpr std::uint64_t kBeyond = std::uint64_t{1} << 33;
    constexpr std::int64_t kMin = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t kMax = std::numeric_limits<std::int32_t>::max();
    const std::uint64_t quotient = Magnitude(value) * Magnitude(factor) / Magnitude(divisor);
    const std::int64_t distance = static_cast<std::int64_t>(std::min(quotient, kBeyond));
    const bool negative = ((value < 0) != (factor < 0)) != (divisor < 0);
    const std::int64_t result = negative ? base - distance : base + distance;
    return static_cast<std::int32_t>(std::clamp(result, kMin, kMax));
}

} // namespace

std::int32_t SetPosition(State& state, std::int32_t position) {
    const std::int32_t previous = state.position;
    state.position = std::max(state.minimum, std::min(state.maximum, position));
    return previous;
}

std::int32_t SetDirection(State& state, std::int32_t direction) {
    const std::int32_t previous = state.direction;
    state.direction = direction & 1;
    return previous;
}

Geometry LayOut(Size client) {
    const std::int32_t side = std::min(client.width, client.height);
    const std::int32_t knobSide = side - kKnobLoss;
    const std::int32_t left = (client.width - side) / 2 + kKnobLeft;
    const std::int32_t radius = knobSide / 2;
    const std::int64_t share = std::int64_t{radius} * 7 / 12;
    const std::int32_t button =
        static_cast<std::int32_t>(std::clamp<std::int64_t>(share, 0, kLargestButton));
    const std::int32_t bottom = client.height - kButtonMargin;
    const std::int32_t right = client.width - kButtonMargin;
    return {
        .knob = {left, kKnobTop, left + knobSide, kKnobTop + knobSide},
        .center = {left + radius, kKnobTop + radius},
        .radius = radius,
        .leftButton = {kButtonMargin, bottom - button, kButtonMargin + button, bottom},
        .rightButton = {right - button, bottom - button, right, bottom},
    };
}

std::int32_t AngleOfPoint(std::int32_t direction, Point center, Point point) {
    const std::int64_t toRight = std::int64_t{point.x} - center.x;
    const std::int64_t down = std::int64_t{point.y} - center.y;
    const double steepness =
        std::atan2(static_cast<double>(Magnitude(down)), static_cast<double>(Magnitude(toRight)));
    const auto tilt = static_cast<std::int32_t>(std::lround(steepness * 180.0 / std::numbers::pi));
    std::int32_t angle = 0;
    if (toRight == 0) {
        angle = down > 0 ? 270 : 90;
    } else if (down > 0) {
        angle = toRight > 0 ? kTurn - tilt : 180 + tilt;
    } else {
        angle = toRight > 0 ? tilt : 180 - tilt;
    }
    return WithinOneTurn(direction == 1 ? 180 - angle : angle);
}

std::int32_t ClampToTurnRange(const State& state, std::int32_t angle) {
    const std::int32_t end = WithinOneTurn(state.turnEnd);
    std::int64_t start = LoweredStart(state.turnStart, end);
    const std::int64_t deadMiddle = start + (end - start) / 2 + 180;
    if (start < 0) {
        start += kTurn;
    }
    const std::int64_t nearerEnd = angle > deadMiddle ? start : end;
    std::int64_t clamped = angle;
    if (start < end) {
        if (angle > end) {
            clamped = nearerEnd;
        } else if (angle < start) {
            clamped = start;
        }
    } else if (angle > end && angle < start) {
        clamped = nearerEnd;
    }
    return static_cast<std::int32_t>(clamped > end ? clamped - kTurn : clamped);
}

std::int32_t PositionOfAngle(const State& state, std::int32_t angle) {
    if (state.turnStart == state.turnEnd) {
        return state.minimum;
    }
    return Scaled(state.minimum, std::int64_t{angle} - state.turnStart,
                  std::int64_t{state.maximum} - state.minimum,
                  std::int64_t{state.turnEnd} - state.turnStart);
}

std::int32_t PositionUnderPointer(const State& state, const Geometry& geometry, Point point) {
    const std::int32_t angle = AngleOfPoint(state.direction, geometry.center, point);
    return PositionOfAngle(state, ClampToTurnRange(state, angle));
}

std::int64_t LoweredStart(std::int32_t start, std::int32_t end) {
    const std::int64_t excess = std::int64_t{start} - end;
    return excess <= 0 ? start : start - (excess + kTurn - 1) / kTurn * kTurn;
}

} // namespace vorn::dial
