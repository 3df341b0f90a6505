// From a point to an angle and on to a position, against oracles that know the rules in another
// form: directions as vectors, arcs as steps on a circle, the scaling as long multiplication.
#include "controls/dial/dial.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace vorn::dial {
namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr Point kCenter = {300, 200};

// The point far out in a direction; with a distance of 10000 rounding does not turn it noticeably.
Point PointAt(std::int32_t angle) {
    const double radians = angle * std::acos(-1.0) / 180;
    return {kCenter.x + static_cast<std::int32_t>(std::lround(10000 * std::cos(radians))),
            kCenter.y - static_cast<std::int32_t>(std::lround(10000 * std::sin(radians)))};
}

State Dial(std::int32_t turnStart, std::int32_t turnEnd, std::int32_t direction = 1) {
    State state;
    state.turnStart = turnStart;
    state.turnEnd = turnEnd;
    state.direction = direction;
    return state;
}

// ---- Angle of a point ----

// The degree whose sector, half a degree to either side, holds the vector. No vector of whole
// numbers lies on a sector's edge: the tangent of a half degree is irrational.
std::int32_t DegreeOfVector(double right, double up) {
    if (right == 0 && up == 0) {
        return 90;
    }
    for (std::int32_t degree = 0; degree < 360; ++degree) {
        const double low = (degree - 0.5) * std::acos(-1.0) / 180;
        const double high = (degree + 0.5) * std::acos(-1.0) / 180;
        const bool afterLow = std::cos(low) * up - std::sin(low) * right > 0;
        const bool beforeHigh = right * std::sin(high) - up * std::cos(high) > 0;
        if (afterLow && beforeHigh) {
            return degree;
        }
    }
    return -1;
}

TEST(DialAngle, IsTheNearestDegreeOfEveryNearPoint) {
    for (std::int32_t down = -25; down <= 25; ++down) {
        for (std::int32_t right = -25; right <= 25; ++right) {
            const Point point = {kCenter.x + right, kCenter.y + down};
            EXPECT_EQ(AngleOfPoint(0, kCenter, point), DegreeOfVector(right, -down))
                << right << " right, " << down << " down";
            EXPECT_EQ(AngleOfPoint(1, kCenter, point), DegreeOfVector(-right, -down))
                << right << " right, " << down << " down, in a mirror";
        }
    }
}

TEST(DialAngle, IsThatOfEveryDirection) {
    for (std::int32_t angle = 0; angle < 360; ++angle) {
        EXPECT_EQ(AngleOfPoint(0, kCenter, PointAt(angle)), angle);
        EXPECT_EQ(AngleOfPoint(1, kCenter, PointAt(angle)), (540 - angle) % 360);
    }
}

TEST(DialAngle, OfTheCentreIsStraightUp) {
    EXPECT_EQ(AngleOfPoint(0, kCenter, kCenter), 90);
    EXPECT_EQ(AngleOfPoint(1, kCenter, kCenter), 90);
}

TEST(DialAngle, JustBelowEastIsEast) {
    EXPECT_EQ(AngleOfPoint(0, {0, 0}, {1000, 1}), 0) << "360 is brought to 0";
    EXPECT_EQ(AngleOfPoint(1, {0, 0}, {1000, 1}), 180);
    EXPECT_EQ(AngleOfPoint(1, {0, 0}, {-1000, 1}), 0);
}

TEST(DialAngle, HoldsAtTheEndsOfTheRange) {
    EXPECT_EQ(AngleOfPoint(0, {kMin, kMin}, {kMax, kMax}), 315);
    EXPECT_EQ(AngleOfPoint(0, {kMax, kMax}, {kMin, kMin}), 135);
    EXPECT_EQ(AngleOfPoint(1, {kMax, kMin}, {kMin, kMax}), 315);
    EXPECT_EQ(AngleOfPoint(0, {kMax, 5}, {kMin, 5}), 180);
}

// ---- Clamping ----

std::int32_t StepsUp(std::int32_t from, std::int32_t to) {
    return ((to - from) % 360 + 360) % 360;
}

// For an end of 0 to 359 and a start less than a turn below it. On the arc: the degree between
// start and end. Off it: the end that fewer steps lead to, the upper one when they are as many.
// Between east and a start above it there is no choice: that part always belongs to the start.
std::int32_t NearestOnArc(std::int32_t start, std::int32_t end, std::int32_t angle) {
    if (StepsUp(start, angle) <= end - start) {
        return start + StepsUp(start, angle);
    }
    if (start > 0 && angle < start) {
        return start;
    }
    return StepsUp(angle, start) < StepsUp(end, angle) ? start : end;
}

TEST(DialClamp, FindsTheNearerEndOfEveryArc) {
    for (std::int32_t end = 0; end < 360; end += 5) {
        for (std::int32_t start = end - 359; start < end; start += 7) {
            const State state = Dial(start, end);
            for (std::int32_t angle = 0; angle < 360; ++angle) {
                ASSERT_EQ(ClampToTurnRange(state, angle), NearestOnArc(start, end, angle))
                    << angle << " in " << start << " to " << end;
            }
        }
    }
}

// Any turn range, step by step as the rules say it, on ranges small enough to walk.
std::int32_t Walked(std::int32_t start, std::int32_t end, std::int32_t angle) {
    int e = end;
    while (e >= 360) {
        e -= 360;
    }
    while (e < 0) {
        e += 360;
    }
    int s = start;
    while (s > e) {
        s -= 360;
    }
    const int middle = s + (e - s) / 2 + 180;
    s = s < 0 ? s + 360 : s;
    int a = angle;
    if (s < e) {
        a = a > e ? (a > middle ? s : e) : a;
        a = a < s ? s : a;
    } else if (e < a && a < s) {
        a = a > middle ? s : e;
    }
    return a > e ? a - 360 : a;
}

TEST(DialClamp, FollowsTheRulesForUnusualRanges) {
    for (std::int32_t end = -1100; end <= 1100; end += 55) {
        for (std::int32_t start = -1100; start <= 1100; start += 44) {
            const State state = Dial(start, end);
            for (std::int32_t angle = 0; angle < 360; ++angle) {
                ASSERT_EQ(ClampToTurnRange(state, angle), Walked(start, end, angle))
                    << angle << " in " << start << " to " << end;
            }
        }
    }
}

TEST(DialClamp, SnapsFromTheDeadZoneOfTheDefaultRange) {
    const State state;
    EXPECT_EQ(ClampToTurnRange(state, 225), 225);
    EXPECT_EQ(ClampToTurnRange(state, 226), 225);
    EXPECT_EQ(ClampToTurnRange(state, 270), 225) << "its middle belongs to the end";
    EXPECT_EQ(ClampToTurnRange(state, 271), -45);
    EXPECT_EQ(ClampToTurnRange(state, 314), -45);
    EXPECT_EQ(ClampToTurnRange(state, 315), -45);
    EXPECT_EQ(ClampToTurnRange(state, 316), -44);
    EXPECT_EQ(ClampToTurnRange(state, 0), 0);
}

TEST(DialClamp, HoldsAtTheEndsOfTheRange) {
    // 2^31 = 360 x 5965232 + 128: brought into 0..359, kMin is 232 and kMax 127.
    EXPECT_EQ(ClampToTurnRange(Dial(kMax, kMin), 127), 127);
    EXPECT_EQ(ClampToTurnRange(Dial(kMax, kMin), 126), 127);
    EXPECT_EQ(ClampToTurnRange(Dial(kMax, kMin), 233), 232);
    EXPECT_EQ(ClampToTurnRange(Dial(kMax, kMin), 359), 232);
    EXPECT_EQ(ClampToTurnRange(Dial(kMax, kMax), 127), 127);
    EXPECT_EQ(ClampToTurnRange(Dial(kMax, kMax), 128), 128 - 360);
    // A start far below the end has the middle of its dead zone far below every angle.
    EXPECT_EQ(ClampToTurnRange(Dial(kMin, kMin), 232), 232);
    EXPECT_EQ(ClampToTurnRange(Dial(kMin, kMin), 233), kMin + 360);
    EXPECT_EQ(ClampToTurnRange(Dial(kMin, kMax), 127), 127);
    EXPECT_EQ(ClampToTurnRange(Dial(kMin, kMax), 128), kMin + 360);
}

// ---- Position ----

// base + value x factor / divisor, bit by bit: no step needs more than 35 bits.
std::int32_t LongScaled(std::int64_t base, std::int64_t value, std::int64_t factor,
                        std::int64_t divisor) {
    const bool negative = ((value < 0) != (factor < 0)) != (divisor < 0);
    const std::int64_t size = value < 0 ? -value : value;
    const std::int64_t times = factor < 0 ? -factor : factor;
    const std::int64_t by = divisor < 0 ? -divisor : divisor;
    constexpr std::int64_t kEnough = std::int64_t{1} << 34;
    std::int64_t quotient = 0;
    std::int64_t rest = 0;
    for (int bit = 32; bit >= 0; --bit) {
        const std::int64_t add = (times >> bit & 1) != 0 ? size : 0;
        rest = 2 * rest + add;
        quotient = std::min(2 * quotient + rest / by, kEnough);
        rest %= by;
    }
    const std::int64_t result = negative ? base - quotient : base + quotient;
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(result, std::int64_t{kMin}, std::int64_t{kMax}));
}

std::int32_t ExpectedPosition(const State& state, std::int32_t clamped) {
    const std::int64_t turn = std::int64_t{state.turnEnd} - state.turnStart;
    return turn == 0 ? state.minimum
                     : LongScaled(state.minimum, std::int64_t{clamped} - state.turnStart,
                                  std::int64_t{state.maximum} - state.minimum, turn);
}

Geometry CenteredGeometry() {
    Geometry geometry = LayOut({600, 500});
    geometry.center = kCenter;
    return geometry;
}

constexpr struct {
    std::int32_t start;
    std::int32_t end;
} kTurnRanges[] = {{-45, 225},  {0, 270},    {0, 359},   {-359, 0},  {-180, 0},   {-90, 90},
                   {-200, 100}, {10, 200},   {100, 350}, {-350, 5},  {-1, 0},     {0, 1},
                   {0, 360},    {-45, 315},  {90, 450},  {405, 585}, {300, 420},  {-405, -1},
                   {-300, -60}, {225, 45},   {225, -45}, {350, 10},  {720, -720}, {0, 0},
                   {-45, -45},  {-1000, 225}};

constexpr struct {
    std::int32_t minimum;
    std::int32_t maximum;
} kRanges[] = {{0, 100}, {0, 1},      {-50, 50},    {-7, 5000},   {100, 0},
               {5, 5},   {-100, -50}, {kMin, kMax}, {kMax, kMin}, {0, kMax}};

TEST(DialPointer, MeansThePositionForEveryAngleAndRange) {
    const Geometry geometry = CenteredGeometry();
    for (const auto& turn : kTurnRanges) {
        for (const auto& range : kRanges) {
            for (std::int32_t direction = 0; direction < 2; ++direction) {
                State state = Dial(turn.start, turn.end, direction);
                state.minimum = range.minimum;
                state.maximum = range.maximum;
                for (std::int32_t angle = 0; angle < 360; ++angle) {
                    const std::int32_t seen = direction == 1 ? (540 - angle) % 360 : angle;
                    ASSERT_EQ(PositionUnderPointer(state, geometry, PointAt(angle)),
                              ExpectedPosition(state, Walked(turn.start, turn.end, seen)))
                        << angle << " in " << turn.start << " to " << turn.end << " for "
                        << range.minimum << " to " << range.maximum << ", " << direction;
                }
            }
        }
    }
}

TEST(DialPointer, MeansThePositionsOfTheDefaultDial) {
    const Geometry geometry = LayOut({100, 100});
    const State state;
    EXPECT_EQ(PositionUnderPointer(state, geometry, {10, 46}), 16) << "left: 45 x 100 / 270";
    EXPECT_EQ(PositionUnderPointer(state, geometry, {50, 4}), 50) << "above";
    EXPECT_EQ(PositionUnderPointer(state, geometry, {90, 46}), 83) << "right: 225 x 100 / 270";
    EXPECT_EQ(PositionUnderPointer(state, geometry, {50, 90}), 100) << "below: the dead zone";
    EXPECT_EQ(PositionUnderPointer(state, geometry, {50, 46}), 50) << "the centre";
    EXPECT_EQ(PositionUnderPointer(state, geometry, {30, 66}), 0) << "lower left";
    EXPECT_EQ(PositionUnderPointer(state, geometry, {70, 66}), 100) << "lower right";
}

TEST(DialPointer, GrowsTheOtherWayWithoutMirroring) {
    const Geometry geometry = LayOut({100, 100});
    const State state = Dial(-45, 225, 0);
    EXPECT_EQ(PositionUnderPointer(state, geometry, {90, 46}), 16);
    EXPECT_EQ(PositionUnderPointer(state, geometry, {10, 46}), 83);
    EXPECT_EQ(PositionUnderPointer(state, geometry, {50, 90}), 100) << "below: 270, to the end";
    EXPECT_EQ(PositionUnderPointer(state, geometry, {30, 66}), 100);
    EXPECT_EQ(PositionUnderPointer(state, geometry, {70, 66}), 0);
}

TEST(DialPointer, StaysInTheRangeOfOrdinaryTurns) {
    const Geometry geometry = CenteredGeometry();
    for (std::int32_t end = 0; end < 360; end += 15) {
        for (std::int32_t start = end - 359; start < end; start += 31) {
            const State state = Dial(start, end);
            for (std::int32_t angle = 0; angle < 360; ++angle) {
                const std::int32_t position = PositionUnderPointer(state, geometry, PointAt(angle));
                ASSERT_TRUE(position >= 0 && position <= 100)
                    << angle << " in " << start << " to " << end << ": " << position;
            }
        }
    }
}

TEST(DialPositionOfAngle, LeavesTheRangeForUnusualTurns) {
    const auto position = [](const State& state, std::int32_t angle) {
        return PositionOfAngle(state, ClampToTurnRange(state, angle));
    };
    const State fullTurn = Dial(0, 360);
    EXPECT_EQ(position(fullTurn, 0), 0);
    EXPECT_EQ(position(fullTurn, 90), -75); // (90 - 360) x 100 / 360
    EXPECT_EQ(position(fullTurn, 359), 0);  // -0.28 truncated
    const State pastTheTurn = Dial(90, 450);
    EXPECT_EQ(position(pastTheTurn, 90), 0);
    EXPECT_EQ(position(pastTheTurn, 91), -99); // (91 - 360 - 90) x 100 / 360 = -99.7
    EXPECT_EQ(position(pastTheTurn, 0), -25);
    const State backwards = Dial(225, -45); // the end counts as 315
    EXPECT_EQ(position(backwards, 225), 0);
    EXPECT_EQ(position(backwards, 315), -33); // 90 x 100 / -270
    EXPECT_EQ(position(backwards, 270), -16);
    EXPECT_EQ(position(backwards, 0), 0);
    const State farBelow = Dial(-1000, 225);
    EXPECT_EQ(position(farBelow, 226), 29); // the start one turn up, -640: 360 x 100 / 1225
    EXPECT_EQ(position(farBelow, 0), 81);   // 1000 x 100 / 1225
}

TEST(DialPositionOfAngle, OfAnEmptyTurnIsTheMinimum) {
    for (const std::int32_t end : {kMin, -45, 0, 90, 720, kMax}) {
        State state = Dial(end, end);
        state.minimum = -3;
        for (std::int32_t angle = 0; angle < 360; ++angle) {
            ASSERT_EQ(PositionOfAngle(state, ClampToTurnRange(state, angle)), -3);
        }
    }
}

TEST(DialPositionOfAngle, OfASinglePositionIsThatPosition) {
    State state;
    state.minimum = state.maximum = 7;
    for (std::int32_t angle = 0; angle < 360; ++angle) {
        ASSERT_EQ(PositionOfAngle(state, ClampToTurnRange(state, angle)), 7);
    }
}

TEST(DialPositionOfAngle, SpansTheWholeRangeOf32Bits) {
    State state;
    state.minimum = kMin;
    state.maximum = kMax;
    EXPECT_EQ(PositionOfAngle(state, -45), kMin);
    EXPECT_EQ(PositionOfAngle(state, 90), -1); // half of 2^32 - 1 is 2^31 - 1, truncated
    EXPECT_EQ(PositionOfAngle(state, 225), kMax);
    state.turnStart = kMin;
    state.turnEnd = kMax;
    EXPECT_EQ(PositionOfAngle(state, 0), 0); // 2^31 above the minimum
    state.turnEnd = kMin + 1;
    EXPECT_EQ(PositionOfAngle(state, 0), kMax) << "beyond 32 bits: the nearest";
    state.turnStart = kMin + 1;
    state.turnEnd = kMin;
    EXPECT_EQ(PositionOfAngle(state, 0), kMin);
}

TEST(DialPositionOfAngle, HoldsForEveryExtreme) {
    const std::int32_t extremes[] = {kMin, kMin + 1, -360, -1, 0, 1, 359, 65536, kMax - 1, kMax};
    for (const std::int32_t start : extremes) {
        for (const std::int32_t end : extremes) {
            State state = Dial(start, end);
            for (const std::int32_t minimum : extremes) {
                for (const std::int32_t maximum : extremes) {
                    state.minimum = minimum;
                    state.maximum = maximum;
                    for (const std::int32_t angle : extremes) {
                        ASSERT_EQ(PositionOfAngle(state, angle), ExpectedPosition(state, angle));
                    }
                }
            }
        }
    }
}

} // namespace
} // namespace vorn::dial
