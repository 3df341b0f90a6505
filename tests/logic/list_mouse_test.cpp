// Presses, double clicks, clicks on boxes, drags and the timers.
#include "tests/support/list_host.h"

#include <gtest/gtest.h>

namespace vorn::hierlist::test {
namespace {

constexpr std::uint32_t kSingle = 0;

// Rows a to h, 0 to 7; the client area, of 100 by 200 pixels, shows 2 to 5.
struct Letters : ListHost {
    explicit Letters(std::uint32_t style) : ListHost(style) {
        AddAll("abcdefgh");
        view = {2, 5, 4};
    }
};

// Rows p, a, q: p is open, a has x; q has none.
struct Nested : ListHost {
    OlbItem* p = Add(nullptr, "p");
    OlbItem* q = Add(nullptr, "q");
    OlbItem* a = Add(p, "a");
    OlbItem* x = Add(a, "x");

    explicit Nested(std::uint32_t style = 0) : ListHost(style) { OpenRow(0); }
};

// ---- Press and release ----

TEST(ListPress, CapturesSelectsAndStartsTheTimer) {
    Letters list(kSingle);
    EXPECT_EQ(list.Press(3), "capture, show 3, paint 3, update, notify 1, start 101");
    EXPECT_TRUE(list.input.captured);
    EXPECT_EQ(list.Selected(), "d");
    EXPECT_EQ(list.Release(), "release, kill 101");
    EXPECT_FALSE(list.input.captured);
    EXPECT_EQ(list.Release(), "") << "only once";
}

TEST(ListPress, TakesTheKeysOfTheMessage) {
    Letters list(kStyleExtendedSel);
    list.Press(2);
    list.Press(4, kControl);
    list.Press(6, kControl);
    list.Press(3, kShift);
    EXPECT_EQ(list.Selected(), "c e g d");
}

TEST(ListPress, BelowTheRowsOnlyCaptures) {
    Letters list(kSingle);
    list.Press(3);
    EXPECT_EQ(list.Press(kNoRow), "capture, start 101");
    EXPECT_EQ(list.Selected(), "d");
}

TEST(ListPress, EmptyListDoesNothing) {
    ListHost list;
    EXPECT_EQ(list.Press(kNoRow), "");
    EXPECT_EQ(list.DoubleClick(0), "");
    EXPECT_FALSE(list.input.captured);
}

TEST(ListPress, NotificationThatEndsThePressLeavesNoTimer) {
    Letters list(kSingle);
    list.meanwhile = [&](const std::string& action) {
        if (action == "notify 1") {
            list.meanwhile = nullptr;
            list.Release();
        }
    };
    EXPECT_EQ(list.Press(3), "capture, show 3, paint 3, update, notify 1");
}

TEST(ListCapture, GoneToAnotherEndsTheDrag) {
    Letters list(kSingle);
    EXPECT_EQ(list.Do(CaptureChanged(list.input, CaptureOwner::Other)), "") << "no press";
    list.Press(3);
    EXPECT_EQ(list.Do(CaptureChanged(list.input, CaptureOwner::Self)), "");
    EXPECT_TRUE(list.input.captured);
    EXPECT_EQ(list.Do(CaptureChanged(list.input, CaptureOwner::Other)), "kill 101");
    EXPECT_EQ(list.Drag(4), "");
    EXPECT_EQ(list.Release(), "");
    list.Press(3);
    EXPECT_EQ(list.Do(CaptureChanged(list.input, CaptureOwner::Nobody)), "kill 101");
    EXPECT_EQ(list.Release(), "");
}

// ---- Double click ----

TEST(ListDoubleClick, TogglesThenTells) {
    Nested list;
    EXPECT_EQ(list.DoubleClick(1),
              "capture, show 1, paint 1, update, notify 1, start 101, toggle, notify 2");
    EXPECT_EQ(QueryOpen(list.a), 1);
    list.DoubleClick(1);
    EXPECT_EQ(QueryOpen(list.a), 0);
    EXPECT_EQ(list.Selected(), "a");
}

TEST(ListDoubleClick, ChildlessItemIsOnlyTold) {
    Nested list;
    EXPECT_EQ(list.DoubleClick(2),
              "capture, show 2, paint 2, update, notify 1, start 101, toggle, notify 2");
    EXPECT_EQ(QueryOpen(list.q), 0);
}

TEST(ListDoubleClick, LockedItemStaysAsItIs) {
    Nested list;
    SetLocked(list.a, true);
    list.DoubleClick(1);
    EXPECT_EQ(QueryOpen(list.a), 0);
    SetLocked(list.p, true);
    list.DoubleClick(0);
    EXPECT_EQ(QueryOpen(list.p), 1) << "open and locked, it is not closed";
    list.CloseRow(0);
    EXPECT_EQ(QueryOpen(list.p), 0) << "as the host may";
}

TEST(ListDoubleClick, NotificationNeedsItsStyle) {
    Nested list;
    list.outline.style = 0;
    EXPECT_EQ(list.DoubleClick(1), "capture, show 1, paint 1, update, start 101, toggle");
}

TEST(ListDoubleClick, BelowTheRowsIsAPress) {
    Nested list;
    EXPECT_EQ(list.DoubleClick(kNoRow), "capture, start 101");
}

TEST(ListDoubleClick, ItemDeletedMeanwhileIsNoMoreSpokenOf) {
    for (const bool all : {false, true}) {
        Nested list;
        list.meanwhile = [&](const std::string& action) {
            if (action == "notify 1") {
                all ? Reset(list.outline) : list.Drop(1);
            }
        };
        EXPECT_EQ(list.DoubleClick(1), "capture, show 1, paint 1, update, notify 1, start 101");
    }
}

TEST(ListDoubleClick, AnotherPressMeanwhileTakesItsPlace) {
    Nested list;
    list.meanwhile = [&](const std::string& action) {
        if (action == "notify 1") {
            list.meanwhile = nullptr;
            list.Press(0);
        }
    };
    EXPECT_EQ(list.DoubleClick(1), "capture, show 1, paint 1, update, notify 1, start 101");
    EXPECT_EQ(QueryOpen(list.p), 1) << "the item pressed last is not toggled";
}

// ---- Open/close boxes ----

TEST(ListBox, ClickTogglesAfterSelecting) {
    Nested list;
    EXPECT_EQ(list.PressBox(1), "capture, show 1, paint 1, update, notify 1, start 101, toggle");
    EXPECT_EQ(QueryOpen(list.a), 1);
    EXPECT_EQ(list.Selected(), "a");
    list.PressBox(1);
    EXPECT_EQ(QueryOpen(list.a), 0);
}

TEST(ListBox, ClickBesideItOnlySelects) {
    Nested list;
    EXPECT_EQ(list.Press(1), "capture, show 1, paint 1, update, notify 1, start 101");
    EXPECT_EQ(QueryOpen(list.a), 0);
}

TEST(ListBox, LockedItemIsSelectedButNotOpened) {
    Nested list;
    SetLocked(list.a, true);
    list.PressBox(1);
    EXPECT_EQ(QueryOpen(list.a), 0);
    EXPECT_EQ(list.Selected(), "a");
    SetLocked(list.p, true);
    list.PressBox(0);
    EXPECT_EQ(QueryOpen(list.p), 1);
}

TEST(ListBox, DoubleClickOnItTogglesOnce) {
    Nested list;
    list.PressBox(1);
    EXPECT_EQ(list.PressBox(1, true),
              "capture, show 1, paint 1, update, notify 1, start 101, toggle, notify 2");
    EXPECT_EQ(QueryOpen(list.a), 0) << "opened by the click, closed by the double click";
}

// ---- Drags ----

TEST(ListDrag, SelectsTheRowUnderThePointer) {
    Letters list(kSingle);
    list.Press(3);
    EXPECT_EQ(list.Drag(3), "") << "still there";
    EXPECT_EQ(list.Drag(4), "show 4, paint 3, paint 4, update, notify 1");
    EXPECT_EQ(list.Drag(4), "");
    EXPECT_EQ(list.Drag(kNoRow), "") << "beside the rows";
    EXPECT_EQ(list.Drag(3), "show 3, paint 4, paint 3, update, notify 1");
    EXPECT_EQ(list.Selected(), "d");
}

TEST(ListDrag, NeedsAPressAndAMove) {
    Letters list(kSingle);
    EXPECT_EQ(list.Drag(3), "");
    list.Press(3);
    EXPECT_EQ(list.Do(Move(list.outline, list.input, list.input.pointer, 4)), "")
        << "scrolling has put another row under the same point";
    list.Release();
    EXPECT_EQ(list.Drag(5), "");
    EXPECT_EQ(list.Selected(), "d");
}

TEST(ListDrag, MovesTheCaretAloneInMultipleSelection) {
    Letters list(kStyleMultipleSel);
    list.Press(3);
    EXPECT_EQ(list.Drag(5), "show 5");
    EXPECT_EQ(list.Selected(), "d");
    EXPECT_EQ(list.Marks(), "d f -");
}

TEST(ListDrag, ExtendsFromTheAnchor) {
    Letters list(kStyleExtendedSel);
    list.Press(3);
    EXPECT_EQ(list.Drag(6), "show 6, paint 3-6, update, notify 1") << "rows that it jumped too";
    EXPECT_EQ(list.Selected(), "d e f g");
    EXPECT_EQ(list.Drag(4), "show 4, paint 3-6, update");
    EXPECT_EQ(list.Selected(), "d e");
    list.Drag(1);
    EXPECT_EQ(list.Selected(), "d b c");
    list.Drag(3);
    EXPECT_EQ(list.Selected(), "d");
    EXPECT_EQ(list.Marks(), "d d d");
}

TEST(ListDrag, WithControlAddsARangeOfItsOwn) {
    Letters list(kStyleExtendedSel);
    list.Click(0);
    list.Click(2, kShift);
    list.Press(5, kControl);
    list.Drag(6);
    EXPECT_EQ(list.Selected(), "a c f g") << "the range to c is another one";
}

TEST(ListDrag, WithShiftGoesOnWithTheRange) {
    Letters list(kStyleExtendedSel);
    list.Click(1);
    list.Click(2, kShift);
    list.Press(5, kShift);
    EXPECT_EQ(list.Selected(), "b c d e f");
    list.Drag(3);
    EXPECT_EQ(list.Selected(), "b c d");
}

TEST(ListDrag, WithShiftAndNoAnchorExtendsFromThePressedRow) {
    for (const std::uint32_t modifiers : {kShift, kShift | kControl}) {
        Letters list(kStyleExtendedSel);
        list.Press(2, modifiers);
        EXPECT_EQ(list.Selected(), "c");
        list.Drag(4);
        EXPECT_EQ(list.Selected(), "c d e") << modifiers;
        list.Drag(1);
        EXPECT_EQ(list.Selected(), "c b") << "and back beyond it";
    }
}

TEST(ListDrag, WithShiftFromBelowTheRowsStartsWhereItReachesThem) {
    Letters list(kStyleExtendedSel);
    list.Press(kNoRow, kShift);
    list.Drag(5);
    EXPECT_EQ(list.Selected(), "f");
    list.Drag(3);
    EXPECT_EQ(list.Selected(), "f d e");
}

TEST(ListDrag, FromARowDeselectedWithControlMovesTheCaret) {
    Letters list(kStyleExtendedSel);
    list.Click(1);
    list.Click(2, kControl);
    list.Press(2, kControl);
    list.Drag(4);
    EXPECT_EQ(list.Selected(), "b");
    EXPECT_EQ(list.Marks(), "- e -");
}

TEST(ListDrag, FromBelowTheRowsStartsWhereItReachesThem) {
    Letters list(kStyleExtendedSel);
    list.Press(kNoRow);
    list.Drag(6);
    EXPECT_EQ(list.Selected(), "g");
    list.Drag(4);
    EXPECT_EQ(list.Selected(), "g e f");
}

// ---- Timers ----

constexpr Point kAbove = {50, -1};
constexpr Point kInside = {50, 0};
constexpr Point kBelow = {50, 200};

TEST(ListTimer, AbovePullsTheRowAboveTheTopRow) {
    Letters list(kSingle);
    list.Press(3);
    EXPECT_EQ(list.Tick(kInside), "");
    EXPECT_EQ(list.Tick({50, 199}), "") << "the last row of pixels";
    EXPECT_EQ(list.Tick(kAbove), "show 1, paint 3, paint 1, update, notify 1");
    list.view = {1, 4, 4};
    list.Tick(kAbove);
    EXPECT_EQ(list.Selected(), "a");
    list.view = {0, 3, 4};
    EXPECT_EQ(list.Tick(kAbove), "") << "nothing is above row 0";
}

TEST(ListTimer, AboveTheFirstRowIsReachedToo) {
    Letters list(kSingle);
    list.view = {0, 3, 4};
    list.Press(3);
    list.Tick(kAbove);
    EXPECT_EQ(list.Selected(), "a");
}

TEST(ListTimer, BelowPullsTheBottomRowAndThenTheNext) {
    Letters list(kSingle);
    list.Press(3);
    EXPECT_EQ(list.Tick(kBelow), "show 5, paint 3, paint 5, update, notify 1");
    EXPECT_EQ(list.Tick(kBelow), "show 6, paint 5, paint 6, update, notify 1");
    list.view = {3, 6, 4};
    list.Tick(kBelow);
    EXPECT_EQ(list.Selected(), "h");
    list.view = {4, 7, 4};
    EXPECT_EQ(list.Tick(kBelow), "") << "the last row";
}

TEST(ListTimer, ExtendsInExtendedSelection) {
    Letters list(kStyleExtendedSel);
    list.Press(3);
    list.Tick(kBelow);
    EXPECT_EQ(list.Selected(), "d e f");
    list.Tick(kAbove);
    EXPECT_EQ(list.Selected(), "d b c");
}

TEST(ListTimer, MovesTheCaretAloneInMultipleSelection) {
    Letters list(kStyleMultipleSel);
    list.Press(3);
    EXPECT_EQ(list.Tick(kAbove), "show 1");
    EXPECT_EQ(list.Tick(kBelow), "show 5");
    EXPECT_EQ(list.Selected(), "d");
}

TEST(ListTimer, SidesCountInColumnsAlone) {
    Letters plain(kSingle);
    plain.Press(3);
    EXPECT_EQ(plain.Tick({-1, 50}), "");
    EXPECT_EQ(plain.Tick({100, 50}), "");
    Letters columns(kStyleMultiColumn);
    columns.Press(3);
    EXPECT_EQ(columns.Tick({99, 50}), "");
    columns.Tick({100, 50});
    EXPECT_EQ(columns.Selected(), "f");
    columns.Tick({-1, 50});
    EXPECT_EQ(columns.Selected(), "b");
}

TEST(ListTimer, OutlivingThePressItStops) {
    Letters list(kSingle);
    EXPECT_EQ(list.Tick(kAbove), "kill 101");
    EXPECT_EQ(list.Selected(), "");
}

TEST(ListTimer, TheOtherOneStartsAgain) {
    Letters list(kSingle);
    EXPECT_EQ(list.Tick(kAbove, 100), "start 100");
    EXPECT_EQ(list.Tick(kAbove, 7), "");
    EXPECT_EQ(list.input.autoScrollInterval, 50);
    EXPECT_EQ(list.input.repeatDelay, 300);
}

TEST(ListTimer, ListEmptiedMeanwhileDoesNothing) {
    Letters list(kSingle);
    list.Press(3);
    Reset(list.outline);
    list.view = {0, 0, 4};
    EXPECT_EQ(list.Tick(kAbove), "");
    EXPECT_EQ(list.Tick(kBelow), "");
    EXPECT_EQ(list.Drag(0), "");
    EXPECT_EQ(list.Release(), "release, kill 101");
}

} // namespace
} // namespace vorn::hierlist::test
