// What becomes of anchor, caret, range end and selected items when items go or are hidden.
#include "hierlist/structure.h"
#include "tests/support/list_host.h"

#include <chrono>
#include <gtest/gtest.h>

namespace vorn::hierlist::test {
namespace {

struct Letters : ListHost {
    explicit Letters(std::uint32_t style) : ListHost(style) { AddAll("abcdefgh"); }
};

// Rows p, a, x, y, b, q: p and a are open.
struct Nested : ListHost {
    OlbItem* p = Add(nullptr, "p");
    OlbItem* q = Add(nullptr, "q");
    OlbItem* a = Add(p, "a");
    OlbItem* b = Add(p, "b");
    OlbItem* x = Add(a, "x");
    OlbItem* y = Add(a, "y");

    explicit Nested(std::uint32_t style) : ListHost(style) {
        OpenRow(0);
        OpenRow(1);
    }
};

TEST(ListItems, MarksStayWithTheirItems) {
    Letters list(kStyleExtendedSel);
    list.Click(3);
    list.Click(4, kShift);
    list.Caret(6);
    list.Drop(0);
    InsertAtRow(list.outline, 1, "new");
    InsertAtRow(list.outline, 0, "first");
    EXPECT_EQ(list.Marks(), "d g e");
    EXPECT_EQ(list.Selected(), "d e");
    EXPECT_EQ(RowOf(list.outline, list.input.selection.anchor), 4u);
    EXPECT_EQ(CaretRow(list.outline, list.input.selection), 7u);
}

TEST(ListItems, DeletedAnchorCaretAndRangeEndAreNone) {
    Letters list(kStyleExtendedSel);
    list.Click(1);
    list.Click(3, kShift);
    list.Caret(5);
    list.Drop(5);
    EXPECT_EQ(list.Marks(), "b - d");
    list.Drop(3);
    EXPECT_EQ(list.Marks(), "b - -");
    EXPECT_EQ(list.Selected(), "b");
    list.Drop(1);
    EXPECT_EQ(list.Marks(), "- - -");
    EXPECT_EQ(list.Selected(), "");
    EXPECT_EQ(list.input.selection.count, 0u);
}

TEST(ListItems, DeletedPressedItemIsForgotten) {
    Letters list(0);
    list.Press(2);
    EXPECT_EQ(list.input.pressed, list.At(2));
    EXPECT_EQ(list.input.dragAt, list.At(2));
    list.Drop(2);
    EXPECT_EQ(list.input.pressed, nullptr);
    EXPECT_EQ(list.input.dragAt, nullptr);
}

TEST(ListItems, ParentTakesItsChildrenAlong) {
    Nested list(kStyleExtendedSel);
    list.Click(2);
    list.Click(3, kShift);
    list.Click(5, kControl);
    list.Caret(3);
    EXPECT_EQ(list.Selected(), "x y q");
    DeleteItem(list.outline, list.p);
    EXPECT_EQ(list.Selected(), "q");
    EXPECT_EQ(list.Marks(), "q - -");
}

TEST(ListItems, SubtreeLeavesItsParentSelected) {
    Nested list(kStyleMultipleSel);
    for (std::uint32_t row = 0; row < 6; ++row) {
        list.Click(row);
    }
    EXPECT_EQ(list.Selected(), "p a x y b q");
    DeleteSubtree(list.outline, list.a);
    EXPECT_EQ(list.Selected(), "p a b q");
    DeleteSubtree(list.outline, list.p);
    EXPECT_EQ(list.Selected(), "p q");
    EXPECT_EQ(list.Marks(), "q q -");
}

TEST(ListItems, ResetLeavesNothing) {
    Nested list(kStyleExtendedSel);
    list.Focus(true);
    list.Press(2);
    list.Drag(4);
    Reset(list.outline);
    EXPECT_EQ(list.Selected(), "");
    EXPECT_EQ(list.Marks(), "- - -");
    EXPECT_EQ(list.input.pressed, nullptr);
    EXPECT_EQ(list.input.dragAt, nullptr);
    EXPECT_TRUE(list.input.selection.hasFocus) << "the list keeps the focus";
    list.Add(nullptr, "new");
    EXPECT_EQ(list.Drag(0), "show 0, paint 0, update, notify 1") << "the button is still down";
    EXPECT_EQ(list.Selected(), "new");
    EXPECT_EQ(list.At(0)->flags, kFlagSelected | kFlagCaret);
}

TEST(ListItems, ClosingDeselectsWhatItHides) {
    Nested list(kStyleExtendedSel);
    list.Click(5);
    list.Click(2, kControl);
    EXPECT_EQ(list.Marks(), "x x -");
    list.CloseRow(1);
    EXPECT_EQ(list.Selected(), "q");
    EXPECT_EQ(list.Marks(), "- x -") << "a range cannot start at what is hidden";
    list.OpenRow(1);
    EXPECT_EQ(list.Selected(), "q") << "and stays deselected";
    EXPECT_EQ(CaretRow(list.outline, list.input.selection), 2u);
}

TEST(ListItems, KeysStartFromWhatHidesTheCaret) {
    Nested list(0);
    list.Click(3);
    list.CloseRow(1);
    EXPECT_EQ(CaretRow(list.outline, list.input.selection), 1u) << "a";
    list.CloseRow(0);
    EXPECT_EQ(CaretRow(list.outline, list.input.selection), 0u) << "p";
    EXPECT_EQ(list.Key(kKeyDown), "show 1, paint 1, update, notify 1");
    EXPECT_EQ(list.Selected(), "q");
}

TEST(ListItems, HiddenRangeEndIsNone) {
    Nested list(kStyleExtendedSel);
    list.Click(0);
    list.Click(2, kShift);
    list.CloseRow(1); // p, a, b, q
    EXPECT_EQ(list.Marks(), "p x x");
    list.Click(3, kShift);
    EXPECT_EQ(list.Selected(), "p q") << "as the first one with Shift";
}

TEST(ListItems, MovedItemIsDeselected) {
    Nested list(kStyleExtendedSel);
    list.Click(5);
    list.Click(4, kControl);
    MoveItem(list.outline, list.b, list.q, 0);
    EXPECT_EQ(list.Selected(), "q");
    EXPECT_EQ(list.Marks(), "- b -");
}

TEST(ListItems, FocusMarkComesBackWithAHiddenCaret) {
    Nested list(0);
    list.Click(2);
    list.CloseRow(0);
    EXPECT_EQ(list.Focus(true), "notify 4") << "no row to paint";
    EXPECT_EQ(list.Focus(false), "notify 5");
    EXPECT_EQ(list.x->flags, 0);
}

TEST(ListItems, SelectedRowsComeFromTheTopDown) {
    Letters list(kStyleMultipleSel);
    for (const std::uint32_t row : {5u, 0u, 7u, 2u}) {
        list.Click(row);
    }
    std::int32_t rows[4] = {-1, -1, -1, -1};
    EXPECT_EQ(SelectedRows(list.outline, list.input.selection, rows, 4), 4u);
    EXPECT_EQ(std::vector<std::int32_t>(rows, rows + 4), (std::vector<std::int32_t>{0, 2, 5, 7}));
    std::int32_t few[3] = {-1, -1, -1};
    EXPECT_EQ(SelectedRows(list.outline, list.input.selection, few, 2), 2u);
    EXPECT_EQ(std::vector<std::int32_t>(few, few + 3), (std::vector<std::int32_t>{0, 2, -1}));
    EXPECT_EQ(SelectedRows(list.outline, list.input.selection, few, 0), 0u);
}

TEST(ListItems, RangesAreCutToTheRows) {
    Letters list(kStyleMultipleSel);
    Selection& selection = list.input.selection;
    EXPECT_EQ(SelectRows(list.outline, selection, 6, 1000, true), 2u);
    EXPECT_EQ(SelectRows(list.outline, selection, 8, 1000, true), 0u);
    EXPECT_EQ(SelectRows(list.outline, selection, 5, 4, true), 0u);
    EXPECT_EQ(SelectRows(list.outline, selection, kNoRow, kNoRow, true), 0u);
    EXPECT_EQ(list.Selected(), "g h");
    EXPECT_EQ(SelectRows(list.outline, selection, 0, kNoRow, true), 6u) << "two were already";
    EXPECT_EQ(list.Selected(), "g h a b c d e f");
    EXPECT_EQ(SelectRows(list.outline, selection, 1, 6, false), 6u);
    EXPECT_EQ(list.Selected(), "h a");
    ListHost empty;
    EXPECT_EQ(SelectRows(empty.outline, empty.input.selection, 0, kNoRow, true), 0u);
}

// Steps of a quadratic selection would be a hundred times as many for ten times the items.
TEST(ListItems, SelectingManyTakesTimeByTheirNumber) {
    const auto secondsFor = [](int items) {
        ListHost list(kStyleMultipleSel | kStyleNoRedraw);
        for (int i = 0; i < items; ++i) {
            list.Add(nullptr, "x");
        }
        const auto start = std::chrono::steady_clock::now();
        for (int row = 0; row < items; ++row) {
            Actions actions;
            SelectAt(actions, list.outline, list.input, static_cast<std::uint32_t>(row), 0,
                     Tell::Nobody);
        }
        EXPECT_EQ(list.input.selection.count, static_cast<std::uint32_t>(items));
        for (int left = items; left > 0; --left) { // from the front, the middle and the end
            const auto row = static_cast<std::uint32_t>(left % 3 == 0   ? 0
                                                        : left % 3 == 1 ? left / 2
                                                                        : left - 1);
            list.Drop(row);
        }
        EXPECT_EQ(list.input.selection.count, 0u);
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        return taken.count();
    };
    secondsFor(1000);
    const double few = secondsFor(5000);
    EXPECT_LT(secondsFor(50'000), 40 * few);
}

} // namespace
} // namespace vorn::hierlist::test
