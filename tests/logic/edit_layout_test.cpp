// Where a click puts the caret.
#include "core/edit/edit_layout.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

namespace vorn::edit {
namespace {

// Characters as wide as their digits say, in pixels: "5" is 5 wide.
std::int32_t DigitWidths(void* context, const char* text, std::uint32_t count) {
    ++*static_cast<int*>(context);
    std::int32_t width = 0;
    for (std::uint32_t index = 0; index < count; ++index) {
        width += text[index] - '0';
    }
    return width;
}

struct Click {
    TextCaret caret = {};
    ShownText shown = {};
    int measured = 0;

    int At(std::int32_t x, const char* text) {
        shown.text = text;
        shown.measure = {&measured, DigitWidths};
        return CaretFromX(caret, shown, x);
    }
};

// Boundaries at 4, 10, 18 and 22.
TEST(CaretFromX, TakesTheNearerBoundary) {
    Click click;
    const int expected[] = {0, 0, 0,             // left of the text
                            0, 0, 0, 0, 1, 1, 1, // 3 to 9, 7 half-way
                            1, 1, 1, 1, 2, 2, 2, // 10 to 16, 14 half-way
                            2, 2, 2, 3, 3, 3,    // 17 to 22, 20 half-way
                            3, 3, 3};            // right of it
    for (std::int32_t x = 0; x < 26; ++x) {
        EXPECT_EQ(click.At(x, "684"), expected[x]) << x;
    }
    EXPECT_EQ(click.At(-32768, "684"), 0);
    EXPECT_EQ(click.At(32767, "684"), 3);
    EXPECT_EQ(click.At(INT32_MIN, "684"), 0);
    EXPECT_EQ(click.At(INT32_MAX, "684"), 3);
}

TEST(CaretFromX, HalfWayIsTheLater) {
    Click click;
    EXPECT_EQ(click.At(7, "6"), 1);
    EXPECT_EQ(click.At(6, "6"), 0);
    EXPECT_EQ(click.At(6, "5"), 0);
    EXPECT_EQ(click.At(7, "5"), 1);
}

// With the first two characters scrolled out the boundaries are at 4, 8 and 13.
TEST(CaretFromX, StartsAtTheFirstVisibleCharacter) {
    Click click;
    click.caret = {1, 3, 2, 2};
    EXPECT_EQ(click.At(0, "6845"), 2);
    EXPECT_EQ(click.At(5, "6845"), 2);
    EXPECT_EQ(click.At(6, "6845"), 3);
    EXPECT_EQ(click.At(10, "6845"), 3);
    EXPECT_EQ(click.At(11, "6845"), 4);
    EXPECT_EQ(click.At(99, "6845"), 4);
    EXPECT_EQ(click.caret.selectionStart, 1) << "the record stays";
    EXPECT_EQ(click.caret.selectionEnd, 3);
    EXPECT_EQ(click.caret.index, 2);
    EXPECT_EQ(click.caret.firstVisible, 2);
}

TEST(CaretFromX, ScrolledBehindTheText) {
    Click click;
    click.caret.firstVisible = 9;
    EXPECT_EQ(click.At(0, "684"), 3);
    EXPECT_EQ(click.At(50, "684"), 3);
}

TEST(CaretFromX, AnEmptyTextHasOnePlace) {
    Click click;
    EXPECT_EQ(click.At(0, ""), 0);
    EXPECT_EQ(click.At(50, ""), 0);
}

TEST(CaretFromX, NullClearsTheRecord) {
    Click click;
    click.shown.isNull = true;
    click.caret = {1, 2, 3, 4};
    EXPECT_EQ(click.At(14, "684"), 0);
    EXPECT_EQ(click.caret.selectionStart, 0);
    EXPECT_EQ(click.caret.selectionEnd, 0);
    EXPECT_EQ(click.caret.index, 0);
    EXPECT_EQ(click.caret.firstVisible, 0);
    EXPECT_EQ(click.measured, 0);
}

// Cells of 12 pixels from 4 on: half-way at 10, 22 and 34.
TEST(CaretFromX, CellsAreNotMeasured) {
    for (const std::uint32_t style : std::initializer_list<std::uint32_t>{2, 3}) {
        Click click;
        click.shown = {"", false, style, 12, {}};
        EXPECT_EQ(click.At(9, "684"), 0);
        EXPECT_EQ(click.At(10, "684"), 1);
        EXPECT_EQ(click.At(21, "684"), 1);
        EXPECT_EQ(click.At(22, "684"), 2);
        EXPECT_EQ(click.At(33, "684"), 2);
        EXPECT_EQ(click.At(34, "684"), 3);
        click.caret.firstVisible = 1;
        EXPECT_EQ(click.At(9, "684"), 1);
        EXPECT_EQ(click.At(10, "684"), 2);
        EXPECT_EQ(click.measured, 0);
    }
}

TEST(CaretFromX, OtherStylesAreMeasured) {
    for (const std::uint32_t style : std::initializer_list<std::uint32_t>{0, 1, 4}) {
        Click click;
        click.shown = {"", false, style, 12, {}};
        EXPECT_EQ(click.At(7, "684"), 1) << style;
        EXPECT_GT(click.measured, 0);
    }
}

// A font this high; the other figures as told.
FontFigures Font(int height, int maxWidth = 10) {
    return {static_cast<std::uint16_t>(height), 0, 0, static_cast<std::uint16_t>(maxWidth)};
}

// One and a half times the font's height: below 19 small, below 22 middle-sized, from 26 tall.
TEST(EditLayout, TheFontChoosesTheDigits) {
    const struct {
        int font;
        int picture;
        Size cell;
    } cases[] = {{0, 0, {8, 13}},   {12, 0, {8, 13}}, // 18
                 {13, 1, {11, 19}},                   // 19
                 {14, 1, {11, 19}},                   // 21
                 {15, 2, {12, 22}},                   // 22
                 {16, 2, {12, 22}},                   // 24
                 {17, 2, {12, 22}},                   // 25
                 {18, 2, {12, 26}},                   // 27
                 {200, 2, {12, 26}}};
    for (const auto& [font, picture, cell] : cases) {
        EXPECT_EQ(DigitSizeOf(Font(font)).picture, picture) << font;
        EXPECT_EQ(DigitSizeOf(Font(font)).cell, cell) << font;
        EXPECT_EQ(TextHeightOf(kDigitPictures, Font(font)), cell.height);
        EXPECT_EQ(CellWidthOf(kDigitPictures, Font(font)), cell.width);
    }
}

TEST(EditLayout, OtherStylesAreAsHighAsTheFont) {
    EXPECT_EQ(TextHeightOf(kPlainText, Font(16)), 16);
    EXPECT_EQ(TextHeightOf(kCharacterCells, Font(16)), 16);
    EXPECT_EQ(CellWidthOf(kCharacterCells, Font(16, 14)), 16) << "two pixels of ruling";
    EXPECT_EQ(CellWidthOf(kPlainText, Font(16, 14)), 0);
}

TEST(EditLayout, TheTextAreaEndsAtTheRightPart) {
    EXPECT_EQ(RightPartWidth(24, 7), 21);
    EXPECT_EQ(RightPartWidth(23, 7), 20) << "161 / 8";
    EXPECT_EQ(RightPartWidth(24, 5), 15);
    EXPECT_EQ(RightPartWidth(24, 0), 0);
    EXPECT_EQ(TextArea({0, 0, 100, 24}, 21), (Rect{4, 0, 79, 24}));
    EXPECT_EQ(TextTop({4, 0, 79, 24}, 16), 4);
    EXPECT_EQ(TextTop({4, 0, 79, 25}, 16), 4);
    EXPECT_EQ(TextTop({4, 0, 79, 10}, 16), -3) << "too high by six rows";
}

TEST(EditLayout, AlignsATextThatHasRoom) {
    const Rect area = {4, 0, 104, 20};
    EXPECT_EQ(AlignedLeft(area, 40, 0), 4);
    EXPECT_EQ(AlignedLeft(area, 40, 1), 34) << "30 of 60 pixels left of it";
    EXPECT_EQ(AlignedLeft(area, 41, 1), 34) << "59 + 1, halved";
    EXPECT_EQ(AlignedLeft(area, 40, 2), 64);
    EXPECT_EQ(AlignedLeft(area, 40, 3), 4);
    EXPECT_EQ(AlignedLeft(area, 100, 2), 4);
    EXPECT_EQ(AlignedLeft(area, 120, 1), 4);
    EXPECT_EQ(AlignedLeft(area, 120, 2), 4);
}

// Characters 6, 8, 4 and 5 wide: a caret behind them is at 4, 10, 18, 22 and 27.
struct Scrolled {
    TextCaret caret;
    int measured = 0;
    ShownText shown = {"6845", false, kPlainText, 0, {&measured, DigitWidths}};

    // The first visible character once a caret at this index fits left of `right`.
    int FirstVisible(std::uint16_t index, std::int32_t right) {
        caret.index = index;
        ScrollToCaret(caret, shown, right);
        return caret.firstVisible;
    }
};

TEST(EditScrolling, TheCaretStandsWhereTheNextCharacterGoes) {
    Scrolled edit;
    const int expected[] = {4, 10, 18, 22, 27};
    for (std::uint16_t index = 0; index < 5; ++index) {
        edit.caret.index = index;
        EXPECT_EQ(CaretX(edit.caret, edit.shown), expected[index]);
    }
    edit.caret.index = 9;
    EXPECT_EQ(CaretX(edit.caret, edit.shown), 27) << "the end of the text";
    edit.caret = {0, 0, 3, 2};
    EXPECT_EQ(CaretX(edit.caret, edit.shown), 8);
    edit.shown.displayStyle = kCharacterCells;
    edit.shown.cellWidth = 12;
    EXPECT_EQ(CaretX(edit.caret, edit.shown), 16);
}

TEST(EditScrolling, MovesTheFewestCharacters) {
    Scrolled edit;
    EXPECT_EQ(edit.FirstVisible(4, 29), 0) << "two pixels of caret from 27 on";
    EXPECT_EQ(edit.FirstVisible(4, 28), 1) << "without the first it is at 21";
    EXPECT_EQ(edit.FirstVisible(4, 60), 1) << "room alone moves nothing back";
    EXPECT_EQ(edit.FirstVisible(1, 28), 1);
    EXPECT_EQ(edit.FirstVisible(0, 28), 0);
    EXPECT_EQ(edit.FirstVisible(4, 11), 3) << "with the fourth alone it is at 9";
    EXPECT_EQ(edit.FirstVisible(4, 10), 4);
    EXPECT_EQ(edit.FirstVisible(4, 4), 4) << "no room at all";
    EXPECT_EQ(edit.FirstVisible(3, 4), 3);
}

TEST(EditScrolling, TellsWhetherTheTextMoved) {
    Scrolled edit;
    edit.caret.index = 4;
    EXPECT_TRUE(ScrollToCaret(edit.caret, edit.shown, 28));
    EXPECT_FALSE(ScrollToCaret(edit.caret, edit.shown, 28));
    edit.caret = {0, 0, 2, 9};
    EXPECT_TRUE(ScrollToCaret(edit.caret, edit.shown, 100)) << "the text became shorter";
    EXPECT_EQ(edit.caret.firstVisible, 2);
}

TEST(EditScrolling, BeyondIsTheUnscrolledPlace) {
    Scrolled edit;
    edit.caret = {0, 0, 4, 3};
    EXPECT_FALSE(IsCaretBeyond(edit.caret, edit.shown, 27));
    EXPECT_TRUE(IsCaretBeyond(edit.caret, edit.shown, 26));
    edit.caret.index = 0;
    EXPECT_FALSE(IsCaretBeyond(edit.caret, edit.shown, 4));
}

} // namespace
} // namespace vorn::edit
