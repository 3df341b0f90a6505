// Where the dial's pointer mark stands, and its corner buttons drawn on a small canvas.
#include "controls/dial/dial_picture.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace vorn::dial {
namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

State At(std::int32_t position, std::int32_t direction = 1) {
    State state;
    state.position = position;
    state.direction = direction;
    return state;
}

// ---- Mark ----

TEST(DialMark, TurnsWithThePosition) {
    EXPECT_EQ(MarkAngle(At(0)), 225.0); // 180 + 45
    EXPECT_EQ(MarkAngle(At(50)), 90.0);
    EXPECT_EQ(MarkAngle(At(100)), 315.0); // 180 - 225 + 360
    EXPECT_EQ(MarkAngle(At(0, 0)), 315.0);
    EXPECT_EQ(MarkAngle(At(50, 0)), 90.0);
    EXPECT_EQ(MarkAngle(At(100, 0)), 225.0);
}

TEST(DialMark, TurnsWithThePositionItselfAlsoAboveAnotherMinimum) {
    State state = At(0);
    state.minimum = -100;
    EXPECT_EQ(MarkAngle(state), 225.0) << "at the start, though the position is the middle";
    state.position = 100;
    EXPECT_EQ(MarkAngle(state), 90.0); // 270 / 200 x 100 - 45 = 90
    state.position = -100;
    EXPECT_EQ(MarkAngle(state), 0.0); // -135 - 45 = -180, mirrored 360
    state.minimum = 50;
    state.maximum = 150;
    state.position = 150;
    EXPECT_NEAR(MarkAngle(state), 180.0, 1e-9); // 405 - 45 = 360, mirrored -180
}

TEST(DialMark, StandsAtTheStartWithoutARange) {
    State state = At(7);
    state.minimum = state.maximum = 7;
    EXPECT_EQ(MarkAngle(state), 225.0);
    state = At(60);
    state.turnStart = state.turnEnd = 30;
    EXPECT_EQ(MarkAngle(state), 150.0);
    state.minimum = state.maximum = 60;
    EXPECT_EQ(MarkAngle(state), 150.0);
}

TEST(DialMark, LowersAStartAboveTheEnd) {
    State state = At(0, 0);
    state.turnStart = 300;
    state.turnEnd = 120;
    EXPECT_EQ(MarkAngle(state), 300.0);
    state.position = 50;
    EXPECT_EQ(MarkAngle(state), 30.0); // half of the way from -60 to 120
    state.turnEnd = -420;              // the start goes down to -420 too: an empty turn
    EXPECT_EQ(MarkAngle(state), 300.0);
}

TEST(DialMark, HasNoFullTurn) {
    // 1 / 49 x 49 - 1 is a little below 0 in floating point, and with a turn more exactly 360.
    State state = At(49, 0);
    state.turnStart = -1;
    state.turnEnd = 0;
    state.maximum = 49;
    EXPECT_EQ(MarkAngle(state), 0.0);
}

// The mark's angle as a fraction of whole numbers: (start x range + (end - start) x position) over
// the range, brought within a turn before it is divided.
double ExactAngle(const State& state) {
    std::int64_t start = state.turnStart;
    while (start > state.turnEnd) {
        start -= 360;
    }
    const std::int64_t range = std::int64_t{state.maximum} - state.minimum;
    std::int64_t over = start * range + (state.turnEnd - start) * state.position;
    if (state.direction == 1) {
        over = 180 * range - over;
    }
    return static_cast<double>(over % (360 * range)) / static_cast<double>(range);
}

TEST(DialMark, IsWhereTheExactFractionIs) {
    const std::int32_t turns[][2] = {{-45, 225}, {0, 360},  {225, -45}, {-720, 33},
                                     {10, 11},   {-1, -90}, {999, 1000}};
    const std::int32_t ranges[][2] = {{0, 100}, {-50, 50}, {100, 0}, {7, 8}, {-3000, 70000}};
    for (const auto& turn : turns) {
        for (const auto& range : ranges) {
            for (std::int32_t position = -150; position <= 150; ++position) {
                for (std::int32_t direction = 0; direction < 2; ++direction) {
                    State state = At(position, direction);
                    state.turnStart = turn[0];
                    state.turnEnd = turn[1];
                    state.minimum = range[0];
                    state.maximum = range[1];
                    const double angle = MarkAngle(state);
                    ASSERT_TRUE(angle >= 0 && angle < 360) << angle;
                    // As remainder, so that 0 and 359.99999 are near each other.
                    ASSERT_NEAR(std::remainder(angle - ExactAngle(state), 360), 0, 1e-7)
                        << turn[0] << " to " << turn[1] << " for " << position << " in " << range[0]
                        << " to " << range[1];
                }
            }
        }
    }
}

TEST(DialMark, HoldsAtTheEndsOfTheRange) {
    const std::int32_t extremes[] = {kMin, kMin + 1, -1, 0, 1, kMax - 1, kMax};
    const Geometry geometry = LayOut({100, 100});
    State state;
    for (const std::int32_t start : extremes) {
        for (const std::int32_t end : extremes) {
            for (const std::int32_t minimum : extremes) {
                for (const std::int32_t maximum : extremes) {
                    for (const std::int32_t position : extremes) {
                        state.turnStart = start;
                        state.turnEnd = end;
                        state.minimum = minimum;
                        state.maximum = maximum;
                        state.position = position;
                        const double angle = MarkAngle(state);
                        ASSERT_TRUE(angle >= 0 && angle < 360) << angle;
                        const Rect mark = MarkRectangle(state, geometry);
                        ASSERT_TRUE(mark.left >= 10 && mark.right <= 90 && mark.top >= 6 &&
                                    mark.bottom <= 87);
                    }
                }
            }
        }
    }
}

TEST(DialMark, KeepsItsDistanceFromTheRim) {
    EXPECT_EQ(MarkOrbit(12), 10);   // 11.4: a gap of 1
    EXPECT_EQ(MarkOrbit(20), 18);   // 19: a gap of 1
    EXPECT_EQ(MarkOrbit(21), 19);   // 19.95: a gap of 2
    EXPECT_EQ(MarkOrbit(42), 39);   // 39.9
    EXPECT_EQ(MarkOrbit(160), 152); // a gap of 8
    EXPECT_EQ(MarkOrbit(161), 153); // 152.95: a gap of 9
    EXPECT_EQ(MarkOrbit(400), 392);
    EXPECT_EQ(MarkOrbit(0), -2);
    EXPECT_EQ(MarkOrbit(kMax), kMax - 8);
}

TEST(DialMark, HasAnEvenSize) {
    EXPECT_EQ(MarkSize(10), 2) << "1 would be rounded down to nothing";
    EXPECT_EQ(MarkSize(20), 2);
    EXPECT_EQ(MarkSize(39), 2);
    EXPECT_EQ(MarkSize(40), 4);
    EXPECT_EQ(MarkSize(59), 4);
    EXPECT_EQ(MarkSize(87), 8);
    EXPECT_EQ(MarkSize(392), 38);
    EXPECT_EQ(MarkSize(-2), 2);
}

TEST(DialMark, IsAnEllipseOnTheOrbit) {
    // Centre (50, 46), radius 42, orbit 39, size 2; 39 x cos 45 = 27.58.
    const Geometry geometry = LayOut({100, 100});
    EXPECT_EQ(MarkRectangle(At(50), geometry), (Rect{49, 6, 51, 8}));
    EXPECT_EQ(MarkRectangle(At(0), geometry), (Rect{21, 73, 23, 75}));   // 22.92, 74.08
    EXPECT_EQ(MarkRectangle(At(100), geometry), (Rect{77, 73, 79, 75})); // 78.08, 74.08
    State east = At(0, 0);
    east.turnStart = 0;
    EXPECT_EQ(MarkRectangle(east, geometry), (Rect{88, 45, 90, 47}));
    east.direction = 1;
    EXPECT_EQ(MarkRectangle(east, geometry), (Rect{10, 45, 12, 47})) << "mirrored: west, 11";
    State south = At(0, 0);
    south.turnStart = -90;
    EXPECT_EQ(MarkRectangle(south, geometry), (Rect{49, 84, 51, 86}));
    // Centre (200, 196), radius 192, orbit 184, size 18.
    EXPECT_EQ(MarkRectangle(At(50), LayOut({400, 400})), (Rect{191, 3, 209, 21}));
}

TEST(DialMark, IsExactBelowTheCentreOfATinyClientToo) {
    // Centre (0, -4), radius -8, orbit -10: truncation alone would put the row -13.5 to -13.
    State south = At(0, 0);
    south.turnStart = -90;
    EXPECT_EQ(MarkRectangle(south, LayOut({0, 0})), (Rect{-1, -15, 1, -13}));
}

TEST(DialMark, LiesOnTheCircleForEveryPosition) {
    const Geometry geometry = LayOut({400, 400});
    for (std::int32_t position = 0; position <= 100; ++position) {
        const Rect mark = MarkRectangle(At(position), geometry);
        const double right = (mark.left + mark.right) / 2 - 200;
        const double up = 196 - (mark.top + mark.bottom) / 2;
        EXPECT_NEAR(std::hypot(right, up), 184, 1);
        const double turned = 225 - 2.7 * position; // clockwise from the lower left
        const double seen = std::atan2(up, right) * 180 / std::acos(-1.0);
        EXPECT_NEAR(std::remainder(turned - seen, 360), 0, 0.4) << position;
    }
}

// ---- Corner buttons ----

using Picture = std::vector<std::string>;

// Draws as the platform does: every point of a line but its last one.
Picture Drawn(const CornerLines& lines, const Rect& button) {
    Picture rows(static_cast<std::size_t>(Height(button)),
                 std::string(static_cast<std::size_t>(Width(button)), '.'));
    for (const CornerLine& line : lines) {
        const std::int32_t right = line.to.x > line.from.x ? 1 : 0;
        const std::int32_t down = line.to.y > line.from.y ? 1 : 0;
        EXPECT_EQ(right + down, 1) << "lines go right or down";
        for (Point at = line.from; at != line.to; at = {at.x + right, at.y + down}) {
            if (!Contains(button, at)) {
                ADD_FAILURE() << "outside of the button: " << at.x << ", " << at.y;
                return rows;
            }
            rows[static_cast<std::size_t>(at.y - button.top)]
                [static_cast<std::size_t>(at.x - button.left)] =
                    "HSTG"[static_cast<std::size_t>(line.pen)];
        }
    }
    return rows;
}

const Picture kMinusUp = {"HHHHHHS", "H.....S", "H.....S", "H.TTT.S",
                          "H.....S", "H.....S", "SSSSSSS"};
const Picture kPlusUp = {"HHHHHHS", "H.....S", "H..T..S", "H.TTT.S",
                         "H..T..S", "H.....S", "SSSSSSS"};
const Picture kMinusDown = {"SSSSSSH", "S.....H", "S.....H", "S.TTT.H",
                            "S.....H", "S.....H", "HHHHHHH"};
const Picture kPlusDown = {"SSSSSSH", "S.....H", "S..T..H", "S.TTT.H",
                           "S..T..H", "S.....H", "HHHHHHH"};

TEST(DialCorners, ShowMinusAndPlusByTheDirection) {
    const Geometry geometry = LayOut({40, 40});
    State state;
    EXPECT_EQ(Drawn(LeftButtonLines(state, geometry), geometry.leftButton), kMinusUp);
    EXPECT_EQ(Drawn(RightButtonLines(state, geometry), geometry.rightButton), kPlusUp);
    state.direction = 0;
    EXPECT_EQ(Drawn(LeftButtonLines(state, geometry), geometry.leftButton), kPlusUp);
    EXPECT_EQ(Drawn(RightButtonLines(state, geometry), geometry.rightButton), kMinusUp);
}

TEST(DialCorners, SwapTheirEdgesWhenDown) {
    const Geometry geometry = LayOut({40, 40});
    State state;
    state.leftDown = true;
    EXPECT_EQ(Drawn(LeftButtonLines(state, geometry), geometry.leftButton), kMinusDown);
    EXPECT_EQ(Drawn(RightButtonLines(state, geometry), geometry.rightButton), kPlusUp);
    state.leftDown = false;
    state.rightDown = true;
    EXPECT_EQ(Drawn(LeftButtonLines(state, geometry), geometry.leftButton), kMinusUp);
    EXPECT_EQ(Drawn(RightButtonLines(state, geometry), geometry.rightButton), kPlusDown);
}

TEST(DialCorners, GrayTheirSignsWhenDisabled) {
    const Geometry geometry = LayOut({40, 40});
    State state;
    state.enabled = 0;
    Picture gray = kPlusUp;
    for (std::string& row : gray) {
        for (char& pixel : row) {
            pixel = pixel == 'T' ? 'G' : pixel;
        }
    }
    EXPECT_EQ(Drawn(RightButtonLines(state, geometry), geometry.rightButton), gray);
}

TEST(DialCorners, StayInsideAtEverySize) {
    for (std::int32_t side = 0; side < 80; ++side) {
        const Geometry geometry = LayOut({side, side});
        const CornerLines left = LeftButtonLines(State{}, geometry);
        const CornerLines right = RightButtonLines(State{}, geometry);
        if (Width(geometry.leftButton) == 0) {
            EXPECT_EQ(left.count, 0u) << side;
            EXPECT_EQ(right.count, 0u) << side;
        } else if (Width(geometry.leftButton) >= 2) {
            EXPECT_EQ(left.count, 5u) << side;
            EXPECT_EQ(right.count, 6u) << side;
            Drawn(left, geometry.leftButton);
            Drawn(right, geometry.rightButton);
        }
    }
}

} // namespace
} // namespace vorn::dial
