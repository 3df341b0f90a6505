// The font selector's sizes, layout and notifications.
#include "fontselect/fontselect.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace vorn::fontselect {
namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

std::int32_t Chosen(std::int32_t points) {
    return kPointSizes[static_cast<std::size_t>(IndexOfPoints(points))];
}

TEST(FontSelectState, HasItsDefaults) {
    const State state;
    EXPECT_EQ(state.fontCommandCode, 0);
    EXPECT_EQ(state.sizeCommandCode, 0);
    EXPECT_EQ(static_cast<std::int32_t>(state.colors.field), -6);
    EXPECT_EQ(static_cast<std::int32_t>(state.colors.text), -9);
    EXPECT_EQ(static_cast<std::int32_t>(state.colors.background), -16);
}

TEST(FontSelectState, ColorSlotsHaveTheirNumbers) {
    Colors colors;
    SetColorSlot(colors, kColorSlots, 2, 0x000001);
    SetColorSlot(colors, kColorSlots, 4, 0x000002);
    SetColorSlot(colors, kColorSlots, 8, 0x000003);
    EXPECT_EQ(colors.field, 1u);
    EXPECT_EQ(colors.text, 2u);
    EXPECT_EQ(colors.background, 3u);
    for (const std::int32_t other : {-1, 0, 1, 3, 5, 16, 64}) {
        SetColorSlot(colors, kColorSlots, other, 0xAAAAAA);
    }
    EXPECT_EQ(colors.field + colors.text + colors.background, 6u) << "others change nothing";
}

TEST(FontSelectSizes, AreTheSixteenOfTypography) {
    const std::int32_t expected[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};
    ASSERT_EQ(kPointSizes.size(), 16u);
    for (std::size_t i = 0; i < 16; ++i) {
        EXPECT_EQ(kPointSizes[i], expected[i]);
    }
    EXPECT_EQ(kPointSizes[kDefaultSizeIndex], kDefaultPoints);
}

TEST(FontSelectSizes, ListedOnesAreChosenThemselves) {
    for (std::size_t i = 0; i < kPointSizes.size(); ++i) {
        EXPECT_EQ(IndexOfPoints(kPointSizes[i]), static_cast<std::int32_t>(i));
    }
}

TEST(FontSelectSizes, TheFartherNeighbourIsChosen) {
    EXPECT_EQ(Chosen(34), 28); // 6 from 28, 2 from 36
    EXPECT_EQ(Chosen(30), 36); // 2 from 28, 6 from 36
    EXPECT_EQ(Chosen(35), 28);
    EXPECT_EQ(Chosen(33), 28);
    EXPECT_EQ(Chosen(31), 36);
    EXPECT_EQ(Chosen(29), 36);
    EXPECT_EQ(Chosen(37), 48);
    EXPECT_EQ(Chosen(47), 36);
    EXPECT_EQ(Chosen(49), 72);
    EXPECT_EQ(Chosen(71), 48);
}

TEST(FontSelectSizes, TheLargerOfTwoEquallyFarIsChosen) {
    EXPECT_EQ(Chosen(13), 14);
    EXPECT_EQ(Chosen(15), 16);
    EXPECT_EQ(Chosen(27), 28);
    EXPECT_EQ(Chosen(32), 36);
    EXPECT_EQ(Chosen(42), 48);
    EXPECT_EQ(Chosen(60), 72);
}

TEST(FontSelectSizes, EndAtEightAndSeventyTwo) {
    for (const std::int32_t small : {kMin, -34, -1, 0, 1, 7}) {
        EXPECT_EQ(Chosen(small), 8) << small;
    }
    for (const std::int32_t large : {73, 100, kMax}) {
        EXPECT_EQ(Chosen(large), 72) << large;
    }
}

TEST(FontSelectHeights, AreTruncatedBeforeTheSign) {
    EXPECT_EQ(LogicalHeight(10, 96), -13); // 13.33
    EXPECT_EQ(LogicalHeight(8, 96), -10);  // 10.67
    EXPECT_EQ(LogicalHeight(9, 96), -12);
    EXPECT_EQ(LogicalHeight(72, 96), -96);
    EXPECT_EQ(LogicalHeight(10, 120), -16); // 16.67
    EXPECT_EQ(LogicalHeight(11, 72), -11);
    EXPECT_EQ(LogicalHeight(0, 96), 0);
    EXPECT_EQ(LogicalHeight(-10, 96), 13);
}

TEST(FontSelectHeights, HoldAtTheEndsOfTheRange) {
    EXPECT_EQ(LogicalHeight(kMax, 96), kMin) << "beyond 32 bits: the nearest";
    EXPECT_EQ(LogicalHeight(kMin, 96), kMax);
    EXPECT_EQ(LogicalHeight(kMax, 72), -kMax);
}

TEST(FontSelectHeights, BecomePointsRounded) {
    EXPECT_EQ(PointsOfCharacterHeight(13, 96), 10); // (936 + 48) / 96 = 10.25
    EXPECT_EQ(PointsOfCharacterHeight(14, 96), 11); // 10.5 is rounded up
    EXPECT_EQ(PointsOfCharacterHeight(15, 96), 11); // 11.25
    EXPECT_EQ(PointsOfCharacterHeight(96, 96), 72);
    EXPECT_EQ(PointsOfCharacterHeight(0, 96), 0);
    EXPECT_EQ(PointsOfCharacterHeight(16, 120), 10); // 9.6
    EXPECT_EQ(PointsOfCharacterHeight(1, 97), 1);    // (72 + 48) / 97
    EXPECT_EQ(PointsOfCharacterHeight(-3, 96), -1);  // (-216 + 48) / 96 = -1.75
}

TEST(FontSelectHeights, BecomePointsAtTheEndsOfTheRange) {
    EXPECT_EQ(PointsOfCharacterHeight(std::int64_t{kMax} + 1, 96), 1610612736);
    EXPECT_EQ(PointsOfCharacterHeight(std::int64_t{kMax} + 1, 1), kMax);
    EXPECT_EQ(PointsOfCharacterHeight(std::int64_t{2} * kMin, 1), kMin);
}

// The listed sizes survive the way to a logical height and back at common resolutions.
TEST(FontSelectHeights, ComeBackToTheSameSize) {
    for (const std::int32_t pixelsPerInch : {72, 96, 120, 144, 192}) {
        for (const std::int32_t points : kPointSizes) {
            const std::int32_t back =
                PointsOfCharacterHeight(-LogicalHeight(points, pixelsPerInch), pixelsPerInch);
            EXPECT_EQ(Chosen(back), points) << pixelsPerInch;
        }
    }
}

// A drop-down height of (16 + 3) x 10 and sizes 7 x 4 + 24 wide.
constexpr FontMetrics kFont = {16, 3, 7};
constexpr std::int32_t kDropped = 190;
constexpr std::int32_t kSizes = 52;

TEST(FontSelectLayout, PutsTheSizesBesideTheFamilies) {
    const ListPlaces places = PlaceLists(200, kFont);
    EXPECT_EQ(places.families, (Rect{2, 2, 2 + 138, 2 + kDropped})); // 200 - 52 - 10
    EXPECT_EQ(places.sizes, (Rect{146, 2, 146 + kSizes, 2 + kDropped}));
}

TEST(FontSelectLayout, HasThreeRulesForTheFamilies) {
    const struct {
        std::int32_t control;
        std::int32_t families;
    } cases[] = {{1000, 938}, {63, 1},  {62, 0}, {61, 0}, // 61 - 52 - 10 is below 0
                 {60, 60},    {59, 59},                   // no room for both: the whole width
                 {41, 41},    {40, 60},                   // and 60 in a very narrow control
                 {1, 60},     {0, 60},  {-5, 60}};
    for (const auto& given : cases) {
        const ListPlaces places = PlaceLists(given.control, kFont);
        EXPECT_EQ(places.families, (Rect{2, 2, 2 + given.families, 2 + kDropped})) << given.control;
        EXPECT_EQ(places.sizes.left, given.families + 8) << given.control;
        EXPECT_EQ(Width(places.sizes), kSizes) << given.control;
    }
}

TEST(FontSelectLayout, BearsAnyMetrics) {
    const FontMetrics huge = {kMax, kMax, kMax};
    for (const FontMetrics& metrics : {huge, FontMetrics{kMin, kMin, kMin}, FontMetrics{}}) {
        for (const std::int32_t width : {kMin, 0, 65535, kMax}) {
            const ListPlaces places = PlaceLists(width, metrics);
            EXPECT_GE(Width(places.families), 0);
            EXPECT_GE(Width(places.sizes), 0);
            EXPECT_GE(Height(places.sizes), 0);
        }
        EXPECT_GE(HeightsOfItems(metrics).item, 0);
    }
}

TEST(FontSelectLayout, ItemsAreALineHigh) {
    EXPECT_EQ(HeightsOfItems(kFont).item, 19);
    EXPECT_EQ(HeightsOfItems(kFont).selection, 23);
}

TEST(FontSelectNotifications, OnlyTwoMakeTheControlDoSomething) {
    for (std::int32_t code = -2; code <= 20; ++code) {
        const Reaction expected = code == 1   ? Reaction::NotifyParent
                                  : code == 8 ? Reaction::SelectAgain
                                              : Reaction::None;
        EXPECT_EQ(ReactionTo(code), expected) << code;
    }
}

TEST(FontSelectNotifications, CarryTheControlsIdentifierUnlessACodeIsSet) {
    State state;
    EXPECT_EQ(CommandOfChange(state, kFamilyList, 77), (ParentCommand{77, 1}));
    EXPECT_EQ(CommandOfChange(state, kSizeList, 77), (ParentCommand{77, 2}));
    state.fontCommandCode = 500;
    EXPECT_EQ(CommandOfChange(state, kFamilyList, 77), (ParentCommand{500, 1}));
    EXPECT_EQ(CommandOfChange(state, kSizeList, 77), (ParentCommand{77, 2}));
    state.sizeCommandCode = 0xFFFF;
    EXPECT_EQ(CommandOfChange(state, kSizeList, 77), (ParentCommand{0xFFFF, 2}));
}

// What the copy leaves of a buffer of ten dots.
std::string Copied(std::size_t size, const char* name) {
    std::string buffer(10, '.');
    CopyFamilyName(std::span<char>(buffer.data(), size), name);
    return buffer;
}

TEST(FontSelectName, IsCutToTheBuffer) {
    using namespace std::string_literals;
    EXPECT_EQ(Copied(10, "Arial"), "Arial\0...."s) << "nothing is written behind the terminator";
    EXPECT_EQ(Copied(6, "Arial"), "Arial\0...."s) << "an exact fit";
    EXPECT_EQ(Copied(5, "Arial"), "Aria\0....."s);
    EXPECT_EQ(Copied(2, "Arial"), "A\0........"s);
    EXPECT_EQ(Copied(1, "Arial"), "\0........."s);
    EXPECT_EQ(Copied(0, "Arial"), "..........");
}

TEST(FontSelectName, IsASpaceWhenThereIsNone) {
    using namespace std::string_literals;
    EXPECT_EQ(Copied(10, nullptr), " \0........"s);
    EXPECT_EQ(Copied(2, nullptr), " \0........"s);
    EXPECT_EQ(Copied(1, nullptr), "\0........."s);
    EXPECT_EQ(Copied(0, nullptr), "..........");
}

} // namespace
} // namespace vorn::fontselect
