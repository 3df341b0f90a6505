// The border of an edit and the sizes that it brings.
#include "core/edit/edit_border.h"
#include "core/edit/edit_colors.h"

#include <gtest/gtest.h>

namespace vorn::edit {
namespace {

constexpr BorderBits kSunkenFirst = {
    {{0x1000, kBorderSunken}, {0x2000, kBorderRaised}, {0x4000, kBorderLine}}};
constexpr BorderBits kLineFirst = {
    {{0x4000, kBorderLine}, {0x2000, kBorderRaised}, {0x1000, kBorderSunken}}};

TEST(EditBorder, TheFirstBitThatIsSetCounts) {
    EXPECT_EQ(BorderOfStyle(0x50000FFF, kSunkenFirst), kBorderNone);
    EXPECT_EQ(BorderOfStyle(0x7000, kSunkenFirst), kBorderSunken);
    EXPECT_EQ(BorderOfStyle(0x6000, kSunkenFirst), kBorderRaised);
    EXPECT_EQ(BorderOfStyle(0x4000, kSunkenFirst), kBorderLine);
    EXPECT_EQ(BorderOfStyle(0x7000, kLineFirst), kBorderLine);
    EXPECT_EQ(BorderOfStyle(0x3000, kLineFirst), kBorderRaised);
    EXPECT_EQ(BorderOfStyle(0x1000, kLineFirst), kBorderSunken);
}

TEST(EditBorder, HasOneBitWhenItIsSet) {
    EXPECT_EQ(StyleBitOfBorder(0), 0u);
    EXPECT_EQ(StyleBitOfBorder(1), 0x4000u);
    EXPECT_EQ(StyleBitOfBorder(2), 0x2000u);
    EXPECT_EQ(StyleBitOfBorder(3), 0x1000u);
    EXPECT_EQ(StyleBitOfBorder(4), 0u);
    EXPECT_EQ(StyleBitOfBorder(0xFFFFFFFF), 0u);
}

TEST(EditBorder, LeavesAClientArea) {
    EXPECT_EQ(ClientWithin({10, 20, 110, 44}, 0), (Rect{10, 20, 110, 44}));
    EXPECT_EQ(ClientWithin({10, 20, 110, 44}, 1), (Rect{11, 21, 109, 43}));
    EXPECT_EQ(ClientWithin({10, 20, 110, 44}, 2), (Rect{12, 22, 108, 42}));
    EXPECT_EQ(ClientWithin({10, 20, 110, 44}, 3), (Rect{12, 22, 108, 42}));
    EXPECT_EQ(ClientWithin({10, 20, 110, 44}, 9), (Rect{10, 20, 110, 44}));
    EXPECT_EQ(ClientWithin({10, 20, 13, 20}, 3), (Rect{12, 22, 12, 22})) << "empty, not inverted";
}

TEST(EditBorder, ANewOneGoesAroundTheClientArea) {
    EXPECT_EQ(SizeWithBorder({100, 24}, {100, 24}, 0, 2), (Size{104, 28}));
    EXPECT_EQ(SizeWithBorder({104, 28}, {100, 24}, 2, 1), (Size{102, 26}));
    EXPECT_EQ(SizeWithBorder({104, 28}, {100, 24}, 2, 0), (Size{100, 24}));
    EXPECT_EQ(SizeWithBorder({104, 28}, {100, 24}, 2, 7), (Size{100, 24}));
}

TEST(EditBorder, AskedForAgainGrowsAgain) {
    EXPECT_EQ(SizeWithBorder({104, 28}, {100, 24}, 2, 2), (Size{108, 32}));
    EXPECT_EQ(SizeWithBorder({102, 26}, {100, 24}, 1, 1), (Size{104, 28}));
    EXPECT_EQ(SizeWithBorder({100, 24}, {100, 24}, 0, 0), (Size{100, 24}));
}

constexpr FontFigures kFont = {16, 13, 3, 14};

TEST(EditSize, IsAtLeastThatOfCharactersAndRightPart) {
    EXPECT_EQ(LeastSize(kFont, {1, 7}), (Size{28, 16})) << "14 and 16 * 7 / 8";
    EXPECT_EQ(LeastSize(kFont, {1, 5}), (Size{24, 16}));
    EXPECT_EQ(LeastSize(kFont, {3, 0}), (Size{42, 16}));
    EXPECT_EQ(LeastWindowSize(kFont, {1, 7}, 0), (Size{28, 16}));
    EXPECT_EQ(LeastWindowSize(kFont, {1, 7}, 1), (Size{30, 18}));
    EXPECT_EQ(LeastWindowSize(kFont, {1, 7}, 2), (Size{32, 20}));
    EXPECT_EQ(LeastWindowSize(kFont, {1, 7}, 3), (Size{32, 20}));
}

TEST(EditSize, PlainTextFitsALargerField) {
    EXPECT_TRUE(FitToFont({28, 16}, 0, kPlainText, kFont, {1, 7}).fits);
    EXPECT_TRUE(FitToFont({500, 90}, 78, kDigitPictures, kFont, {1, 7}).fits);
    const FontFit narrow = FitToFont({27, 40}, 0, kPlainText, kFont, {1, 7});
    EXPECT_FALSE(narrow.fits);
    EXPECT_EQ(narrow.client, (Size{28, 40}));
    const FontFit low = FitToFont({100, 15}, 13, kPlainText, kFont, {1, 7});
    EXPECT_FALSE(low.fits);
    EXPECT_EQ(low.client, (Size{100, 16}));
}

// Cells of 16 pixels.
TEST(EditSize, CellsComeInWholeNumbers) {
    const FontFit cut = FitToFont({100, 20}, 0, kCharacterCells, kFont, {1, 7});
    EXPECT_FALSE(cut.fits);
    EXPECT_EQ(cut.client, (Size{111, 20})) << "seven cells but for the last one's ruling";
    EXPECT_TRUE(FitToFont({111, 20}, 0, kCharacterCells, kFont, {1, 7}).fits);
    EXPECT_EQ(FitToFont({112, 20}, 0, kCharacterCells, kFont, {1, 7}).client, (Size{112, 20}))
        << "wider than wanted: it stays";
    // 80 pixels beside a button of 20: five cells.
    EXPECT_EQ(FitToFont({100, 20}, 20, kCharacterCells, kFont, {1, 7}).client, (Size{100, 20}));
    EXPECT_TRUE(FitToFont({99, 20}, 20, kCharacterCells, kFont, {1, 7}).fits);
    // Two cells for the 28 pixels that there must be.
    EXPECT_EQ(FitToFont({5, 5}, 0, kCharacterCells, kFont, {1, 7}).client, (Size{31, 16}));
}

TEST(EditColors, OnesThatCannotBeEditedLookLikeTheSystems) {
    const EditColors usual;
    EXPECT_EQ(FieldCodesOf(usual, false, false).background, SystemColor(5));
    EXPECT_EQ(FieldCodesOf(usual, false, false).text, SystemColor(8));
    EXPECT_EQ(FieldCodesOf(usual, false, true).background, SystemColor(15));
    EXPECT_EQ(FieldCodesOf(usual, false, true).text, SystemColor(8));
    EXPECT_EQ(FieldCodesOf(usual, true, false).background, SystemColor(15));
    EXPECT_EQ(FieldCodesOf(usual, true, false).text, SystemColor(17));
    EditColors chosen;
    chosen.background = 0x00112233;
    chosen.text = 0x00445566;
    EXPECT_EQ(FieldCodesOf(chosen, true, true).background, 0x00112233u);
    EXPECT_EQ(FieldCodesOf(chosen, false, true).text, 0x00445566u);
    EXPECT_EQ(FieldCodesOf(chosen, true, true).text, SystemColor(17));
}

} // namespace
} // namespace vorn::edit
