// The percent bar's values and arithmetic.
#include "controls/percentbar/percentbar.h"

#include <gtest/gtest.h>
#include <limits>

namespace vorn::percentbar {
namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

TEST(PercentBarState, HasItsDefaults) {
    const State state;
    EXPECT_EQ(state.progress, 0);
    EXPECT_EQ(state.limit, 100);
    EXPECT_EQ(static_cast<std::int32_t>(state.colors.bar), -6);
    EXPECT_EQ(static_cast<std::int32_t>(state.colors.text), -9);
    EXPECT_EQ(static_cast<std::int32_t>(state.colors.highlight), -21);
    EXPECT_EQ(static_cast<std::int32_t>(state.colors.shadow), -17);
    EXPECT_EQ(static_cast<std::int32_t>(state.colors.background), -16);
    EXPECT_EQ(static_cast<std::int32_t>(state.colors.fill), -14);
}

TEST(PercentBarState, LowestBorderBitOfTheStyleWins) {
    const std::uint32_t borders[] = {0, 3, 2, 3, 1, 3, 2, 3};
    for (std::uint32_t style = 0; style < 8; ++style) {
        EXPECT_EQ(StateFromStyle(style).borderStyle, borders[style]) << style;
        EXPECT_EQ(StateFromStyle(style | 0x50000038).borderStyle, borders[style]) << style;
    }
}

TEST(PercentBarState, FlagsComeFromTheirOwnStyleBits) {
    for (std::uint32_t style = 0; style < 0x40; ++style) {
        const State state = StateFromStyle(style);
        EXPECT_EQ(state.tickMarks, (style & 0x08) / 0x08);
        EXPECT_EQ(state.scaleText, static_cast<std::int32_t>((style & 0x10) / 0x10));
        EXPECT_EQ(state.percent, static_cast<std::int32_t>((style & 0x20) / 0x20));
    }
}

TEST(PercentBarState, BorderStylesHaveStyleBits) {
    EXPECT_EQ(StyleBitsOfBorder(0), 0u);
    EXPECT_EQ(StyleBitsOfBorder(1), 4u);
    EXPECT_EQ(StyleBitsOfBorder(2), 2u);
    EXPECT_EQ(StyleBitsOfBorder(3), 1u);
    EXPECT_EQ(StyleBitsOfBorder(7), 0u);
    EXPECT_EQ(StyleBitsOfBorder(0xFFFFFFFF), 0u);
}

TEST(PercentBarState, ColorSlotsHaveTheirNumbers) {
    const struct {
        std::int32_t slot;
        ColorCode Colors::*field;
    } slots[] = {{0, &Colors::highlight}, {1, &Colors::shadow},     {2, &Colors::bar},
                 {4, &Colors::text},      {8, &Colors::background}, {16, &Colors::fill}};
    for (const auto& [slot, field] : slots) {
        Colors colors;
        SetColorSlot(colors, kColorSlots, slot, 0x00123456);
        for (const auto& other : slots) {
            EXPECT_EQ(colors.*other.field,
                      other.slot == slot ? ColorCode{0x00123456} : Colors{}.*other.field);
        }
    }
}

TEST(PercentBarProgress, IsCutToTheLimitByBothSetters) {
    State state;
    SetProgress(state, 101);
    EXPECT_EQ(state.progress, 100);
    SetLimit(state, 30);
    EXPECT_EQ(state.progress, 30);
    SetLimit(state, 200);
    EXPECT_EQ(state.progress, 30) << "a higher limit leaves it";
    SetLimit(state, -4);
    EXPECT_EQ(state.progress, -4) << "compared signed";
}

TEST(PercentBarProgress, BelowZeroIsKept) {
    State state;
    SetProgress(state, -5);
    EXPECT_EQ(state.progress, -5);
    EXPECT_EQ(Percentage(state.progress, state.limit), -5);
}

TEST(PercentBarPercentage, IsTruncated) {
    EXPECT_EQ(Percentage(45, 100), 45);
    EXPECT_EQ(Percentage(1, 3), 33);
    EXPECT_EQ(Percentage(2, 3), 66);
    EXPECT_EQ(Percentage(-1, 3), -33) << "towards zero";
    EXPECT_EQ(Percentage(199, 200), 99);
    EXPECT_EQ(Percentage(200, 200), 100);
    EXPECT_EQ(Percentage(-20, -10), 200);
}

TEST(PercentBarPercentage, OfANullLimitIsNull) {
    EXPECT_EQ(Percentage(0, 0), 0);
    EXPECT_EQ(Percentage(-7, 0), 0);
    EXPECT_EQ(FillWidth(300, -7, 0), 0);
}

TEST(PercentBarPercentage, HoldsAtTheEndsOfTheRange) {
    EXPECT_EQ(Percentage(kMax, kMax), 100);
    EXPECT_EQ(Percentage(kMin, kMin), 100);
    EXPECT_EQ(Percentage(kMax - 1, kMax), 99);
    EXPECT_EQ(Percentage(kMin, kMax), -100); // -100.00000005 truncated
    EXPECT_EQ(Percentage(kMin, 1), kMin) << "beyond 32 bits: the nearest";
    EXPECT_EQ(Percentage(kMin, -1), kMax);
}

TEST(PercentBarFill, IsTheTruncatedShareOfTheWidth) {
    EXPECT_EQ(FillWidth(200, 45, 100), 90);
    EXPECT_EQ(FillWidth(10, 1, 3), 3);
    EXPECT_EQ(FillWidth(200, 0, 100), 0);
    EXPECT_EQ(FillWidth(200, 100, 100), 200);
    EXPECT_EQ(FillWidth(200, -1, 100), -2);
    EXPECT_EQ(FillWidth(200, -1, 1000), 0) << "-0.2 truncated";
}

TEST(PercentBarFill, HoldsAtTheEndsOfTheRange) {
    EXPECT_EQ(FillWidth(32767, kMax, kMax), 32767);
    EXPECT_EQ(FillWidth(32767, kMax / 2, kMax), 16383);
    EXPECT_EQ(FillWidth(kMax, kMax, kMax), kMax);
    EXPECT_EQ(FillWidth(32767, kMin, 1), kMin);
    EXPECT_EQ(FillWidth(32767, kMin, -1), kMax);
}

constexpr Rect kClient = {0, 0, 200, 60};
constexpr ScaleFontMetrics kFont = {16, 13, 3, 14};

TEST(PercentBarLayout, IsTheWholeClientWithoutScaleAndBorder) {
    EXPECT_EQ(BarRectangle(kClient, State{}, kFont), kClient);
}

TEST(PercentBarLayout, LeavesRoomForTheScale) {
    State state;
    state.scaleText = 1;
    EXPECT_EQ(BarRectangle(kClient, state, kFont), (Rect{14, 0, 186, 28})); // 60 - 16 - 13 - 3
}

TEST(PercentBarLayout, ShrinksByTheBorder) {
    State state;
    const struct {
        std::uint32_t style;
        Rect bar;
    } cases[] = {{0, {0, 0, 200, 60}}, {1, {1, 1, 199, 59}}, {2, {2, 2, 198, 58}},
                 {3, {2, 2, 198, 58}}, {7, {0, 0, 200, 60}}, {4, {0, 0, 200, 60}}};
    for (const auto& [style, bar] : cases) {
        state.borderStyle = style;
        EXPECT_EQ(BarRectangle(kClient, state, kFont), bar) << style;
    }
}

TEST(PercentBarLayout, KeepsTenByTenBeforeTheBorder) {
    State state;
    state.scaleText = 1;
    state.borderStyle = kBorderSunken;
    // 14 + 10 to the right, 0 + 10 down, then 2 off every side.
    EXPECT_EQ(BarRectangle({0, 0, 5, 5}, state, kFont), (Rect{16, 2, 22, 8}));
    // Exactly ten remain: 38 - 28 wide, 42 - 32 high.
    state.borderStyle = kBorderNone;
    EXPECT_EQ(BarRectangle({0, 0, 38, 42}, state, kFont), (Rect{14, 0, 24, 10}));
}

TEST(PercentBarLayout, SmallWithoutScaleIsNotEnlarged) {
    State state;
    state.borderStyle = kBorderRaised;
    EXPECT_EQ(BarRectangle({0, 0, 3, 3}, state, kFont), (Rect{2, 2, 1, 1}));
}

TEST(PercentBarTicks, StandAtTheirShareOfTheWidth) {
    EXPECT_EQ(LongTicks(200),
              (std::array<std::int32_t, 9>{20, 40, 60, 80, 100, 120, 140, 160, 180}));
    EXPECT_EQ(ShortTicks(200),
              (std::array<std::int32_t, 10>{10, 30, 50, 70, 90, 110, 130, 150, 170, 190}));
    EXPECT_EQ(LongTicks(37), (std::array<std::int32_t, 9>{3, 7, 11, 14, 18, 22, 25, 29, 33}));
    EXPECT_EQ(ShortTicks(37), (std::array<std::int32_t, 10>{1, 5, 9, 12, 16, 20, 24, 27, 31, 35}));
}

TEST(PercentBarScale, CentresLabelsOnTheirValue) {
    EXPECT_EQ(ScaleLabelOffset(0, 200, 8), -4);
    EXPECT_EQ(ScaleLabelOffset(50, 200, 16), 92);
    EXPECT_EQ(ScaleLabelOffset(100, 200, 25), 188);
    EXPECT_EQ(ScaleLabelOffset(30, 37, 16), 3); // trunc(11.1) - 8
}

TEST(PercentBarScale, CountsIn16Bits) {
    EXPECT_EQ(ScaleLabelOffset(100, 32767, 0), 32767);
    EXPECT_EQ(ScaleLabelOffset(100, 32768, 0), -32768);
    EXPECT_EQ(ScaleLabelOffset(100, 65537, 0), 1);
}

} // namespace
} // namespace vorn::percentbar
