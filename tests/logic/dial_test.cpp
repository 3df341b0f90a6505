// The dial's values, and where its parts are.
#include "controls/dial/dial.h"

#include <gtest/gtest.h>
#include <limits>

namespace vorn::dial {
namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

TEST(DialState, HasItsDefaults) {
    const State state;
    EXPECT_EQ(state.turnStart, -45);
    EXPECT_EQ(state.turnEnd, 225);
    EXPECT_EQ(state.minimum, 0);
    EXPECT_EQ(state.maximum, 100);
    EXPECT_EQ(state.position, 0);
    EXPECT_EQ(static_cast<std::uint32_t>(state.mode), 0u);
    EXPECT_EQ(state.direction, 1);
    EXPECT_FALSE(state.rightDown);
    EXPECT_FALSE(state.leftDown);
    EXPECT_FALSE(state.captured);
    EXPECT_EQ(state.enabled, 1u);
}

TEST(DialState, ModesHaveTheirNumbers) {
    EXPECT_EQ(static_cast<std::uint32_t>(MouseMode::LeftButton), 1u);
    EXPECT_EQ(static_cast<std::uint32_t>(MouseMode::RightButton), 2u);
    EXPECT_EQ(static_cast<std::uint32_t>(MouseMode::Turn), 3u);
}

TEST(DialPosition, IsKeptWithinTheRange) {
    State state;
    EXPECT_EQ(SetPosition(state, 42), 0);
    EXPECT_EQ(SetPosition(state, 150), 42);
    EXPECT_EQ(state.position, 100);
    EXPECT_EQ(SetPosition(state, -1), 100);
    EXPECT_EQ(state.position, 0) << "compared signed";
    state.minimum = kMin;
    state.maximum = kMax;
    SetPosition(state, kMin);
    EXPECT_EQ(state.position, kMin);
    SetPosition(state, kMax);
    EXPECT_EQ(state.position, kMax);
}

TEST(DialPosition, OfASwappedRangeIsItsMinimum) {
    State state;
    state.minimum = 10;
    state.maximum = -10;
    for (const std::int32_t position : {kMin, -11, 0, 11, kMax}) {
        SetPosition(state, position);
        EXPECT_EQ(state.position, 10) << position;
    }
}

TEST(DialDirection, IsTheLowestBit) {
    State state;
    EXPECT_EQ(SetDirection(state, 2), 1);
    EXPECT_EQ(state.direction, 0);
    EXPECT_EQ(SetDirection(state, -1), 0);
    EXPECT_EQ(state.direction, 1);
    EXPECT_EQ(SetDirection(state, kMin), 1);
    EXPECT_EQ(state.direction, 0);
}

void ExpectGeometry(Size client, const Rect& knob, Point center, std::int32_t radius,
                    const Rect& left, const Rect& right) {
    const Geometry geometry = LayOut(client);
    EXPECT_EQ(geometry.knob, knob) << client.width << " by " << client.height;
    EXPECT_EQ(geometry.center, center) << client.width << " by " << client.height;
    EXPECT_EQ(geometry.radius, radius) << client.width << " by " << client.height;
    EXPECT_EQ(geometry.leftButton, left) << client.width << " by " << client.height;
    EXPECT_EQ(geometry.rightButton, right) << client.width << " by " << client.height;
}

TEST(DialGeometry, PutsTheKnobToTheTop) {
    ExpectGeometry({100, 100}, {8, 4, 92, 88}, {50, 46}, 42, {2, 86, 14, 98}, {86, 86, 98, 98});
    ExpectGeometry({100, 160}, {8, 4, 92, 88}, {50, 46}, 42, {2, 146, 14, 158}, {86, 146, 98, 158});
}

TEST(DialGeometry, CentresTheKnobInAWideClient) {
    // (201 - 100) / 2 = 50, truncated.
    ExpectGeometry({201, 100}, {58, 4, 142, 88}, {100, 46}, 42, {2, 86, 14, 98},
                   {187, 86, 199, 98});
}

TEST(DialGeometry, HalvesAnOddKnobDownwards) {
    ExpectGeometry({41, 41}, {8, 4, 33, 29}, {20, 16}, 12, {2, 32, 9, 39}, {32, 32, 39, 39});
}

TEST(DialGeometry, MakesCornerButtonsSmallerOnASmallDial) {
    ExpectGeometry({40, 40}, {8, 4, 32, 28}, {20, 16}, 12, {2, 31, 9, 38}, {31, 31, 38, 38});
    EXPECT_EQ(Width(LayOut({56, 56}).leftButton), 11); // 20 x 7 / 12 = 11.67
    EXPECT_EQ(Width(LayOut({58, 58}).leftButton), 12); // 21 x 7 / 12 = 12.25
    EXPECT_EQ(Width(LayOut({900, 900}).rightButton), 12);
}

TEST(DialGeometry, HasNothingToHitInATinyClient) {
    for (std::int32_t side = 0; side <= 19; ++side) { // a radius below 2 gives no button
        const Geometry geometry = LayOut({side, side});
        for (std::int32_t y = -10; y < 30; ++y) {
            for (std::int32_t x = -10; x < 30; ++x) {
                EXPECT_FALSE(Contains(geometry.leftButton, {x, y})) << side;
                EXPECT_FALSE(Contains(geometry.rightButton, {x, y})) << side;
            }
        }
    }
}

TEST(DialGeometry, HoldsAtTheEndsOfTheRange) {
    const Geometry geometry = LayOut({kMax, kMax});
    EXPECT_EQ(geometry.radius, (kMax - 16) / 2);
    EXPECT_EQ(Width(geometry.leftButton), 12);
    EXPECT_EQ(LayOut({kMax, 0}).center.x, kMax / 2); // kMax / 2 + 8, and a radius of -8
    EXPECT_EQ(LayOut({0, kMax}).rightButton, (Rect{-2, kMax - 2, -2, kMax - 2}));
}

TEST(DialLoweredStart, IsNotAboveTheEnd) {
    EXPECT_EQ(LoweredStart(-45, 225), -45);
    EXPECT_EQ(LoweredStart(225, 225), 225);
    EXPECT_EQ(LoweredStart(226, 225), -134);
    EXPECT_EQ(LoweredStart(585, 225), 225);
    EXPECT_EQ(LoweredStart(586, 225), -134);
    EXPECT_EQ(LoweredStart(-1000, 225), -1000) << "a start below the end stays";
    EXPECT_EQ(LoweredStart(0, -720), -720);
}

TEST(DialLoweredStart, HoldsAtTheEndsOfTheRange) {
    EXPECT_EQ(LoweredStart(kMin, kMax), kMin);
    // 2^32 - 1 = 360 x 11930464 + 255: 11930465 turns, to 105 below the end.
    EXPECT_EQ(LoweredStart(kMax, kMin), std::int64_t{kMin} - 105);
}

} // namespace
} // namespace vorn::dial
