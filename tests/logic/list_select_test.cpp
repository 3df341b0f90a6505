// Selecting a row, by the rules of single, multiple and extended selection.
#include "tests/support/list_host.h"

#include <gtest/gtest.h>

namespace vorn::hierlist::test {
namespace {

constexpr std::uint32_t kSingle = 0;

// Rows a to h, 0 to 7.
struct Letters : ListHost {
    explicit Letters(std::uint32_t style) : ListHost(style) { AddAll("abcdefgh"); }
};

// ---- Single selection ----

TEST(ListSingle, RowIsAllThatIsSelected) {
    Letters list(kSingle);
    EXPECT_EQ(list.Marks(), "- - -");
    EXPECT_EQ(list.Click(2), "show 2, paint 2, update, notify 1");
    EXPECT_EQ(list.Selected(), "c");
    EXPECT_EQ(list.Marks(), "c c -");
    EXPECT_EQ(list.Click(5), "show 5, paint 2, paint 5, update, notify 1");
    EXPECT_EQ(list.Selected(), "f");
    EXPECT_EQ(list.Marks(), "f f -");
}

TEST(ListSingle, SelectedRowClickedTellsAgain) {
    Letters list(kSingle);
    list.Click(2);
    EXPECT_EQ(list.Click(2), "show 2, paint 2, update, notify 1");
    EXPECT_EQ(list.Selected(), "c");
}

TEST(ListSingle, ModifiersDoNotCount) {
    Letters list(kSingle);
    list.Click(2);
    list.Click(4, kShift);
    EXPECT_EQ(list.Selected(), "e");
    list.Click(4, kControl);
    EXPECT_EQ(list.Selected(), "e");
    EXPECT_EQ(list.Marks(), "e e -");
}

TEST(ListSingle, CaretAwayFromTheSelectionLosesItsMark) {
    Letters list(kSingle);
    list.Focus(true);
    list.Click(2);
    EXPECT_EQ(list.Caret(6), "show 6, paint 2, paint 6, update");
    EXPECT_EQ(list.Selected(), "c") << "the caret alone selects nothing";
    EXPECT_EQ(list.At(2)->flags, kFlagSelected);
    EXPECT_EQ(list.At(6)->flags, kFlagCaret);
    EXPECT_EQ(list.Click(4), "show 4, paint 2, paint 4, paint 6, update, notify 1");
    EXPECT_EQ(list.At(6)->flags, 0);
    EXPECT_EQ(list.At(4)->flags, kFlagCaret | kFlagSelected);
}

TEST(ListSingle, WhatAnotherStyleLeftSelectedGoes) {
    Letters list(kStyleMultipleSel);
    list.Click(1);
    list.Click(3);
    list.outline.style = kStyleNotify;
    EXPECT_EQ(list.Click(5), "show 5, paint all, update, notify 1");
    EXPECT_EQ(list.Selected(), "f");
}

// ---- Multiple selection ----

TEST(ListMultiple, EachClickChangesSides) {
    Letters list(kStyleMultipleSel);
    EXPECT_EQ(list.Click(2), "show 2, paint 2, update, notify 1");
    EXPECT_EQ(list.Click(5), "show 5, paint 5, update, notify 1");
    EXPECT_EQ(list.Click(0), "show 0, paint 0, update, notify 1");
    EXPECT_EQ(list.Selected(), "c f a") << "in the order of selecting";
    EXPECT_EQ(list.Marks(), "a a -");
    EXPECT_EQ(list.Click(5), "show 5, paint 5, update") << "a mere deselection is not told";
    EXPECT_EQ(list.Selected(), "c a");
    EXPECT_EQ(list.Marks(), "a f -") << "the anchor is where a row was selected last";
    list.Click(5);
    EXPECT_EQ(list.Selected(), "c a f");
}

TEST(ListMultiple, ModifiersDoNotCount) {
    Letters list(kStyleMultipleSel);
    list.Click(2);
    list.Click(4, kShift);
    list.Click(2, kControl);
    EXPECT_EQ(list.Selected(), "e");
}

// ---- Extended selection ----

TEST(ListExtended, PlainClickSelectsTheRowAlone) {
    Letters list(kStyleExtendedSel);
    EXPECT_EQ(list.Click(2), "show 2, paint 2, update, notify 1");
    EXPECT_EQ(list.Marks(), "c c -");
    EXPECT_EQ(list.Click(5), "show 5, paint 2, paint 5, update, notify 1");
    EXPECT_EQ(list.Selected(), "f");
    EXPECT_EQ(list.Marks(), "f f -");
}

TEST(ListExtended, OnlySelectedRowStaysAndIsNotToldAgain) {
    Letters list(kStyleExtendedSel);
    list.Click(2);
    EXPECT_EQ(list.Click(2), "show 2");
    EXPECT_EQ(list.Selected(), "c");
}

TEST(ListExtended, AnchorOfManyBecomesTheOnlyOne) {
    Letters list(kStyleExtendedSel);
    list.Click(2, kControl);
    list.Click(4, kControl);
    EXPECT_EQ(list.Click(4), "show 4, paint all, update, notify 1");
    EXPECT_EQ(list.Selected(), "e");
}

TEST(ListExtended, ControlChangesSides) {
    Letters list(kStyleExtendedSel);
    list.Click(2);
    EXPECT_EQ(list.Click(5, kControl), "show 5, paint 5, update, notify 1");
    EXPECT_EQ(list.Selected(), "c f");
    EXPECT_EQ(list.Marks(), "f f -");
    EXPECT_EQ(list.Click(2, kControl), "show 2, paint 2, update");
    EXPECT_EQ(list.Selected(), "f");
    EXPECT_EQ(list.Marks(), "- c -");
}

TEST(ListExtended, ControlOnTheOnlyOneLeavesNoAnchor) {
    Letters list(kStyleExtendedSel);
    list.Click(2);
    list.Click(2, kControl);
    EXPECT_EQ(list.Selected(), "");
    EXPECT_EQ(list.Marks(), "- c -");
    EXPECT_EQ(list.Click(2), "show 2, paint 2, update, notify 1");
}

TEST(ListExtended, FirstShiftSelectsJustTheRow) {
    Letters list(kStyleExtendedSel);
    list.Click(2);
    EXPECT_EQ(list.Click(5, kShift), "show 5, paint 5, update, notify 1");
    EXPECT_EQ(list.Selected(), "c f");
    EXPECT_EQ(list.Marks(), "c f f");
}

TEST(ListExtended, NextShiftReplacesTheRange) {
    Letters list(kStyleExtendedSel);
    list.Click(2);
    list.Click(4, kShift);
    EXPECT_EQ(list.Click(6, kShift), "show 6, paint 2-6, update, notify 1");
    EXPECT_EQ(list.Selected(), "c e d f g") << "d, f and g were not selected yet";
    EXPECT_EQ(list.Marks(), "c g g");
    EXPECT_EQ(list.Click(3, kShift), "show 3, paint 2-6, update") << "rows only lost";
    EXPECT_EQ(list.Selected(), "c d");
    EXPECT_EQ(list.Click(0, kShift), "show 0, paint 0-3, update, notify 1");
    EXPECT_EQ(list.Selected(), "c a b") << "across the anchor";
    EXPECT_EQ(list.Marks(), "c a a");
}

TEST(ListExtended, ShiftOnTheRangeEndChangesNothing) {
    Letters list(kStyleExtendedSel);
    list.Click(2);
    list.Click(3, kShift);
    list.Click(4, kShift);
    EXPECT_EQ(list.Click(4, kShift), "show 4");
    EXPECT_EQ(list.Selected(), "c d e");
}

TEST(ListExtended, ShiftLeavesWhatIsOutsideBothRanges) {
    Letters list(kStyleExtendedSel);
    list.Click(2);
    list.Click(3, kShift);
    list.Click(6, kControl); // the anchor; the range is now from d to g
    EXPECT_EQ(list.Marks(), "g g d");
    list.Click(7, kShift);
    EXPECT_EQ(list.Selected(), "c g h") << "d was in the range, c was not";
    EXPECT_EQ(list.Marks(), "g h h");
}

TEST(ListExtended, ShiftCountsBeforeControl) {
    Letters list(kStyleExtendedSel);
    list.Click(1);
    list.Click(2, kShift);
    list.Click(4, kShift | kControl);
    EXPECT_EQ(list.Selected(), "b c d e");
    EXPECT_EQ(list.Marks(), "b e e");
}

TEST(ListExtended, ShiftAfterAPlainClickUsesTheOldRangeEnd) {
    Letters list(kStyleExtendedSel);
    list.Click(1);
    list.Click(2, kShift);
    list.Click(4);
    EXPECT_EQ(list.Marks(), "e e c");
    list.Click(6, kShift);
    EXPECT_EQ(list.Selected(), "e f g");
}

TEST(ListExtended, WithoutAnAnchorTheRangeEndTakesItsPlace) {
    Letters list(kStyleExtendedSel);
    list.Click(2, kShift);
    EXPECT_EQ(list.Marks(), "- c c") << "the anchor stays none";
    list.Click(4, kShift);
    EXPECT_EQ(list.Selected(), "c d e");
    EXPECT_EQ(list.Marks(), "c e e");
    list.Click(3, kShift);
    EXPECT_EQ(list.Selected(), "c d");
}

TEST(ListExtended, RangeIsSelectedWholeAgain) {
    Letters list(kStyleExtendedSel);
    list.Click(1);
    list.Click(5, kShift);
    list.Click(5, kShift);
    EXPECT_EQ(list.Selected(), "b f c d e");
    SelectRow(list.outline, list.input, 3, false, Tell::Nobody);
    list.Click(6, kShift);
    EXPECT_EQ(list.Selected(), "b f c e d g");
}

// ---- In every mode ----

class ListEveryMode : public testing::TestWithParam<std::uint32_t> {};

TEST_P(ListEveryMode, RowsThatThereAreNotDoNothing) {
    Letters list(GetParam());
    list.Click(1);
    for (const std::uint32_t row : {8u, 9u, 65535u, kNoRow}) {
        for (const std::uint32_t modifiers : {0u, kShift, kControl}) {
            EXPECT_EQ(list.Click(row, modifiers), "");
        }
        EXPECT_EQ(list.Caret(row), "");
    }
    EXPECT_EQ(list.Selected(), "b");
    EXPECT_EQ(list.Marks(), "b b -");
}

TEST_P(ListEveryMode, EmptyListDoesNothing) {
    ListHost list(GetParam());
    EXPECT_EQ(list.Click(0), "");
    EXPECT_EQ(list.Caret(0), "");
    EXPECT_EQ(list.Marks(), "- - -");
}

TEST_P(ListEveryMode, NotificationNeedsItsStyle) {
    Letters list(GetParam());
    list.outline.style = GetParam();
    EXPECT_EQ(list.Click(2), "show 2, paint 2, update");
    EXPECT_EQ(list.Selected(), "c");
}

TEST_P(ListEveryMode, NothingIsPaintedUnderNoRedraw) {
    Letters list(GetParam());
    list.outline.style |= kStyleNoRedraw;
    list.Focus(true);
    EXPECT_EQ(list.Click(2), "show 2, notify 1");
    EXPECT_EQ(list.Caret(3), "show 3");
}

TEST_P(ListEveryMode, CaretIsMarkedWithTheFocusAlone) {
    Letters list(GetParam());
    list.Click(2);
    EXPECT_EQ(list.At(2)->flags, kFlagSelected);
    list.Focus(true);
    EXPECT_EQ(list.At(2)->flags, kFlagSelected | kFlagCaret);
    list.Caret(4);
    EXPECT_EQ(list.At(2)->flags, kFlagSelected);
    EXPECT_EQ(list.At(4)->flags, kFlagCaret);
    list.Focus(false);
    EXPECT_EQ(list.At(4)->flags, 0);
    EXPECT_EQ(list.Caret(5), "show 5") << "there is no mark to paint";
}

INSTANTIATE_TEST_SUITE_P(Modes, ListEveryMode,
                         testing::Values(kSingle, kStyleMultipleSel, kStyleExtendedSel));

TEST(ListBothModes, ClicksAreExtendedAndArrowsMoveTheCaret) {
    Letters list(kStyleMultipleSel | kStyleExtendedSel);
    list.Click(1);
    list.Click(2);
    EXPECT_EQ(list.Selected(), "c");
    EXPECT_EQ(list.Key(kKeyDown), "show 3");
    EXPECT_EQ(list.Selected(), "c");
    EXPECT_EQ(list.Marks(), "c d -");
}

// ---- One row, for the host ----

TEST(ListSelectRow, SelectsAndDeselectsWithoutTheMarks) {
    Letters list(kStyleMultipleSel);
    EXPECT_EQ(list.Do(SelectRow(list.outline, list.input, 3, true, Tell::Nobody)),
              "paint 3, update");
    EXPECT_EQ(list.Do(SelectRow(list.outline, list.input, 5, true, Tell::Parent)),
              "paint 5, update, notify 1");
    EXPECT_EQ(list.Do(SelectRow(list.outline, list.input, 5, true, Tell::Parent)), "")
        << "is selected already";
    EXPECT_EQ(list.Do(SelectRow(list.outline, list.input, 3, false, Tell::Parent)),
              "paint 3, update");
    EXPECT_EQ(list.Do(SelectRow(list.outline, list.input, 3, false, Tell::Parent)), "");
    EXPECT_EQ(list.Do(SelectRow(list.outline, list.input, 8, true, Tell::Parent)), "");
    EXPECT_EQ(list.Selected(), "f");
    EXPECT_EQ(list.Marks(), "- - -");
}

} // namespace
} // namespace vorn::hierlist::test
