// The keys, each where it does something, where it does not and at the edges.
#include "tests/support/list_host.h"

#include <gtest/gtest.h>

namespace vorn::hierlist::test {
namespace {

constexpr std::uint32_t kSingle = 0;

// Rows a to h, 0 to 7; three fit.
struct Letters : ListHost {
    explicit Letters(std::uint32_t style) : ListHost(style) {
        AddAll("abcdefgh");
        view = {0, 2, 3};
    }
};

TEST(ListKeys, OnlyCodesFrom9To187AreTheLists) {
    EXPECT_FALSE(IsListKey(8));
    EXPECT_TRUE(IsListKey(9));
    EXPECT_TRUE(IsListKey(187));
    EXPECT_FALSE(IsListKey(188));
    EXPECT_FALSE(IsListKey(0));
}

TEST(ListKeys, OthersOfThemDoNothing) {
    Letters list(kStyleMultipleSel);
    list.Caret(2);
    for (std::uint32_t key = 9; key <= 187; ++key) {
        if (key != kKeyTab && (key < kKeySpace || key > kKeyDown)) {
            EXPECT_EQ(list.Key(key), "") << key;
            EXPECT_EQ(list.Key(key, kShift), "") << key;
        }
    }
}

TEST(ListKeys, TabGoesOnToTheNextControl) {
    Letters list(kSingle);
    EXPECT_EQ(list.Key(kKeyTab), "next");
    EXPECT_EQ(list.Key(kKeyTab, kShift), "previous");
    ListHost empty;
    EXPECT_EQ(empty.Key(kKeyTab), "next") << "also out of an empty list";
}

TEST(ListKeys, SpaceChangesSidesInMultipleSelectionAlone) {
    Letters multiple(kStyleMultipleSel);
    multiple.Caret(2);
    EXPECT_EQ(multiple.Key(kKeySpace), "show 2, paint 2, update, notify 1");
    EXPECT_EQ(multiple.Key(kKeySpace), "show 2, paint 2, update");
    EXPECT_EQ(multiple.Selected(), "");
    for (const std::uint32_t style : {kSingle, kStyleExtendedSel}) {
        Letters list(style);
        list.Click(2);
        list.Caret(4);
        EXPECT_EQ(list.Key(kKeySpace), "");
        EXPECT_EQ(list.Selected(), "c");
    }
}

TEST(ListKeys, SpaceWithoutACaretStartsAtTheTopRow) {
    Letters list(kStyleMultipleSel);
    list.view.topRow = 4;
    EXPECT_EQ(list.Key(kKeySpace), "show 4, paint 4, update, notify 1");
    EXPECT_EQ(list.Marks(), "e e -");
}

TEST(ListKeys, UpAndDownGoToTheNextRow) {
    Letters list(kSingle);
    list.Click(1);
    EXPECT_EQ(list.Key(kKeyUp), "show 0, paint 1, paint 0, update, notify 1");
    EXPECT_EQ(list.Key(kKeyUp), "") << "no row above";
    EXPECT_EQ(list.Selected(), "a");
    EXPECT_EQ(list.Key(kKeyDown), "show 1, paint 0, paint 1, update, notify 1");
    list.Click(7);
    EXPECT_EQ(list.Key(kKeyDown), "") << "no row below";
    EXPECT_EQ(list.Selected(), "h");
}

TEST(ListKeys, UpAndDownWithoutACaretCountFromTheTopRow) {
    for (const std::uint32_t key : {kKeyUp, kKeyDown}) {
        Letters list(kSingle);
        list.view.topRow = 4;
        list.Key(key);
        EXPECT_EQ(list.Selected(), key == kKeyUp ? "d" : "f");
    }
    Letters list(kSingle);
    EXPECT_EQ(list.Key(kKeyUp), "") << "nothing is above row 0";
}

TEST(ListKeys, HomeAndEnd) {
    Letters list(kSingle);
    list.Click(3);
    list.Key(kKeyEnd);
    EXPECT_EQ(list.Selected(), "h");
    list.Key(kKeyHome);
    EXPECT_EQ(list.Selected(), "a");
}

TEST(ListKeys, ArrowsMoveTheCaretAloneInMultipleSelection) {
    Letters list(kStyleMultipleSel);
    list.Focus(true);
    list.Click(3);
    EXPECT_EQ(list.Key(kKeyDown), "show 4, paint 3, paint 4, update");
    EXPECT_EQ(list.Key(kKeyEnd, kShift), "show 7, paint 4, paint 7, update");
    EXPECT_EQ(list.Key(kKeyHome), "show 0, paint 7, paint 0, update");
    EXPECT_EQ(list.Selected(), "d");
    EXPECT_EQ(list.Marks(), "d a -");
}

TEST(ListKeys, ShiftExtendsInExtendedSelection) {
    Letters list(kStyleExtendedSel);
    list.Click(2);
    list.Key(kKeyDown, kShift);
    list.Key(kKeyDown, kShift);
    EXPECT_EQ(list.Selected(), "c d e");
    list.Key(kKeyUp, kShift);
    EXPECT_EQ(list.Selected(), "c d");
    list.Key(kKeyHome, kShift);
    EXPECT_EQ(list.Selected(), "c a b");
    list.Key(kKeyEnd, kShift);
    EXPECT_EQ(list.Selected(), "c d e f g h");
    list.Key(kKeyUp);
    EXPECT_EQ(list.Selected(), "g") << "without Shift the row alone";
}

TEST(ListKeys, ControlDoesNotToggle) {
    Letters list(kStyleExtendedSel);
    list.Click(2);
    list.Key(kKeyDown, kControl);
    EXPECT_EQ(list.Selected(), "d");
    list.Key(kKeyDown, kControl | kShift);
    EXPECT_EQ(list.Selected(), "d e");
}

// ---- Pages ----

TEST(ListPages, ScrollFirstWhenThereIsMoreThanFits) {
    Letters list(kSingle);
    list.Click(0);
    EXPECT_EQ(list.Key(kKeyPageDown), "page down");
    EXPECT_EQ(list.AfterPage(kKeyPageDown, 2), "show 2, paint 0, paint 2, update, notify 1");
    EXPECT_EQ(list.Selected(), "c") << "the new top row, not the bottom one";
    list.view.topRow = 2;
    EXPECT_EQ(list.Key(kKeyPageUp), "page up");
    list.AfterPage(kKeyPageUp, 0);
    EXPECT_EQ(list.Selected(), "a");
}

TEST(ListPages, DownAtTheEndGoesToTheLastRow) {
    Letters list(kSingle);
    list.view.topRow = 5;
    list.Click(5);
    EXPECT_EQ(list.Key(kKeyPageDown), "page down");
    list.AfterPage(kKeyPageDown, 5);
    EXPECT_EQ(list.Selected(), "h");
}

TEST(ListPages, UpAtTheTopGoesToTheTopRow) {
    Letters list(kSingle);
    list.Click(2);
    EXPECT_EQ(list.Key(kKeyPageUp), "page up");
    list.AfterPage(kKeyPageUp, 0);
    EXPECT_EQ(list.Selected(), "a");
}

TEST(ListPages, GoToTheEndsWhenEverythingFits) {
    Letters list(kSingle);
    list.view.rowsPerColumn = 8;
    list.Click(3);
    EXPECT_EQ(list.Key(kKeyPageDown), "show 7, paint 3, paint 7, update, notify 1");
    EXPECT_EQ(list.Key(kKeyPageUp), "show 0, paint 7, paint 0, update, notify 1");
    list.view.rowsPerColumn = 7;
    EXPECT_EQ(list.Key(kKeyPageUp), "page up");
}

TEST(ListPages, ShiftExtends) {
    Letters list(kStyleExtendedSel);
    list.Click(1);
    list.Click(1, kShift);
    list.AfterPage(kKeyPageDown, 4, kShift);
    EXPECT_EQ(list.Selected(), "b c d e");
}

TEST(ListPages, MoveTheCaretAloneInMultipleSelection) {
    Letters list(kStyleMultipleSel);
    list.Click(0);
    list.AfterPage(kKeyPageDown, 4);
    EXPECT_EQ(list.Selected(), "a");
    EXPECT_EQ(list.Marks(), "a e -");
}

TEST(ListPages, DoNothingInColumns) {
    Letters list(kStyleMultiColumn);
    list.Click(3);
    EXPECT_EQ(list.Key(kKeyPageUp), "");
    EXPECT_EQ(list.Key(kKeyPageDown), "");
    list.view.rowsPerColumn = 8;
    EXPECT_EQ(list.Key(kKeyPageUp), "");
    EXPECT_EQ(list.Key(kKeyPageDown), "");
}

// ---- Columns: a to c, d to f, g and h ----

TEST(ListColumns, LeftAndRightGoByAColumn) {
    Letters list(kStyleMultiColumn);
    list.Click(1);
    EXPECT_EQ(list.Key(kKeyLeft), "") << "before row 0";
    list.Key(kKeyRight);
    EXPECT_EQ(list.Selected(), "e");
    list.Key(kKeyRight);
    EXPECT_EQ(list.Selected(), "h");
    list.Key(kKeyRight);
    EXPECT_EQ(list.Selected(), "h") << "stays on the last row";
    list.Key(kKeyLeft);
    EXPECT_EQ(list.Selected(), "e");
    list.Key(kKeyLeft);
    EXPECT_EQ(list.Selected(), "b");
}

TEST(ListColumns, RightGoesToTheLastRowWhereTheColumnIsShort) {
    Letters list(kStyleMultiColumn);
    list.Click(5);
    list.Key(kKeyRight); // f; there is no row 8
    EXPECT_EQ(list.Selected(), "h");
    list.Click(6);
    list.Key(kKeyRight); // g, in the last column
    EXPECT_EQ(list.Selected(), "h");
    list.Click(4);
    list.Key(kKeyRight); // e, to exactly the last row
    EXPECT_EQ(list.Selected(), "h");
    list.Click(3);
    list.Key(kKeyLeft); // d, to exactly the first
    EXPECT_EQ(list.Selected(), "a");
    list.Click(2);
    EXPECT_EQ(list.Key(kKeyLeft), "");
}

TEST(ListColumns, DoNothingOtherwise) {
    for (const std::uint32_t style :
         {kSingle, kStyleMultiColumn | kStyleOwnerDrawVariable | kStyleHasStrings}) {
        Letters list(style);
        list.Click(4);
        EXPECT_EQ(list.Key(kKeyLeft), "");
        EXPECT_EQ(list.Key(kKeyRight), "");
        EXPECT_EQ(list.Selected(), "e");
    }
}

TEST(ListColumns, NoRowsPerColumnCountAsOne) {
    Letters list(kStyleMultiColumn);
    list.view.rowsPerColumn = 0;
    list.Click(4);
    list.Key(kKeyLeft);
    EXPECT_EQ(list.Selected(), "d");
    list.Key(kKeyRight);
    EXPECT_EQ(list.Selected(), "e");
}

TEST(ListColumns, ShiftExtends) {
    Letters list(kStyleMultiColumn | kStyleExtendedSel);
    list.Click(0);
    list.Click(0, kShift);
    list.Key(kKeyRight, kShift);
    EXPECT_EQ(list.Selected(), "a b c d");
}

// ---- Opening everything below ----

// Rows p, q: p has a, which has x; q has b.
struct Closed : ListHost {
    OlbItem* p = Add(nullptr, "p");
    OlbItem* q = Add(nullptr, "q");
    OlbItem* a = Add(p, "a");
    OlbItem* b = Add(q, "b");
    OlbItem* x = Add(a, "x");
};

TEST(ListOpenAll, OpensTheCaretItemAndAllBelow) {
    Closed list;
    list.Click(0);
    EXPECT_EQ(list.Key(kKeyAdd, kControl), "open all 0");
    EXPECT_EQ(RowCount(list.outline), 4u) << "p, a, x, q";
    EXPECT_EQ(QueryOpen(list.q), 0);
    list.Click(3);
    EXPECT_EQ(list.Key(kKeyPlus, kControl | kShift), "open all 3");
    EXPECT_EQ(QueryOpen(list.q), 1);
}

TEST(ListOpenAll, NeedsItsModifiers) {
    Closed list;
    list.Click(0);
    for (const std::uint32_t modifiers : {0u, kShift}) {
        EXPECT_EQ(list.Key(kKeyAdd, modifiers), "");
    }
    for (const std::uint32_t modifiers : {0u, kShift, kControl}) {
        EXPECT_EQ(list.Key(kKeyPlus, modifiers), "");
    }
    EXPECT_EQ(list.Key(kKeyAdd, kControl | kShift), "open all 0");
}

TEST(ListOpenAll, WithoutACaretItIsPutOnTheTopRow) {
    Closed list;
    list.view.topRow = 1;
    list.Focus(true);
    EXPECT_EQ(list.Key(kKeyAdd, kControl), "show 1, paint 1, update, open all 1");
    EXPECT_EQ(list.Marks(), "- q -");
    EXPECT_EQ(QueryOpen(list.q), 1);
}

TEST(ListKeys, EmptyListDoesNothing) {
    for (const std::uint32_t style :
         {kSingle, kStyleMultipleSel, kStyleExtendedSel, kStyleMultiColumn}) {
        ListHost list(style);
        for (std::uint32_t key = kKeySpace; key <= kKeyPlus; ++key) {
            for (const std::uint32_t modifiers : {0u, kShift, kControl, kShift | kControl}) {
                EXPECT_EQ(list.Key(key, modifiers), "");
            }
        }
        EXPECT_EQ(list.AfterPage(kKeyPageDown, 0), "");
        EXPECT_EQ(list.AfterPage(kKeyPageUp, 0), "");
    }
}

// ---- The parent's answers ----

TEST(ListAnswers, RowBecomesTheCarets) {
    for (const std::uint32_t style : {kSingle, kStyleMultipleSel, kStyleExtendedSel}) {
        Letters list(style);
        list.Focus(true);
        list.Click(1);
        EXPECT_EQ(list.Answer(4), "show 4, paint 1, paint 4, update");
        EXPECT_EQ(list.Selected(), "b") << "and nothing else changes";
        EXPECT_EQ(list.Marks(), "b e -");
    }
}

TEST(ListAnswers, OthersChangeNothing) {
    Letters list(kSingle);
    list.Click(1);
    for (const std::int32_t answer : {-1, -2, -3, INT32_MIN, 8, INT32_MAX}) {
        EXPECT_EQ(list.Answer(answer), "");
    }
    EXPECT_EQ(list.Marks(), "b b -");
}

// ---- Focus ----

TEST(ListFocus, MarksTheCaretThenTells) {
    Letters list(kSingle);
    list.Click(3);
    EXPECT_EQ(list.Focus(true), "paint 3, update, notify 4");
    EXPECT_TRUE(list.input.selection.hasFocus);
    EXPECT_EQ(list.Focus(false), "paint 3, update, notify 5");
    EXPECT_FALSE(list.input.selection.hasFocus);
}

TEST(ListFocus, TellsWithoutTheNotifyStyleToo) {
    Letters list(kSingle);
    list.outline.style = kStyleNoRedraw;
    list.Click(3);
    EXPECT_EQ(list.Focus(true), "paint 3, update, notify 4") << "no change of the selection";
}

TEST(ListFocus, WithoutACaretTheTopStripIsPainted) {
    ListHost list;
    EXPECT_EQ(list.Focus(true), "paint top, update, notify 4");
    EXPECT_EQ(list.Focus(false), "paint top, update, notify 5");
}

} // namespace
} // namespace vorn::hierlist::test
