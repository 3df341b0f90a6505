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

} // namespace
} // namespace vorn::edit
