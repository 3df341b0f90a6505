// Opening, closing and locking the items of outline lists, and asking where they are.
#include "tests/windows/support/outline_list.h"
#include "tests/windows/support/outline_redraw.h"

namespace {

using vorn::test::OutlineListTest;
using vorn::test::PaintsBy;

class HierListTree : public OutlineListTest {
protected:
    HWND list = nullptr;
    HOLBITEM a = nullptr, b = nullptr, c = nullptr, d = nullptr;

    // a with b, which has c; and d. All are closed.
    void SetUp() override {
        list = Create();
        a = olbAddChildStringEx(list, nullptr, "a");
        b = olbAddChildStringEx(list, a, "b");
        c = olbAddChildStringEx(list, b, "c");
        d = olbAddChildStringEx(list, nullptr, "d");
        ASSERT_EQ(olbGetVisibleCount(list), 2);
    }
};

TEST_F(HierListTree, OpensAndCloses) {
    olbOpenItem(list, 0);
    EXPECT_EQ(olbGetVisibleCount(list), 3);
    olbOpenItem(list, 1);
    EXPECT_EQ(olbGetVisibleCount(list), 4);
    olbOpenItem(list, 0); // again: nothing
    olbOpenItem(list, 3); // no children
    olbOpenItem(list, 4); // no such rows
    olbOpenItem(list, -1);
    olbCloseItem(list, 3);
    olbCloseItem(list, 4);
    olbCloseItem(list, -1);
    EXPECT_EQ(olbGetVisibleCount(list), 4);
    olbCloseItem(list, 0);
    EXPECT_EQ(olbGetVisibleCount(list), 2);
    olbOpenItem(list, 0);
    EXPECT_EQ(olbGetVisibleCount(list), 3) << "b was closed with it";
}

TEST_F(HierListTree, OpensAndClosesAll) {
    olbOpenAll(list, -1);
    EXPECT_EQ(olbGetVisibleCount(list), 4);
    olbCloseAll(list);
    EXPECT_EQ(olbGetVisibleCount(list), 2);
    olbOpenAll(list, 9);
    olbOpenAll(list, -2);
    olbOpenAll(list, 1);
    EXPECT_EQ(olbGetVisibleCount(list), 2);
    olbLockItemEx(list, b, TRUE);
    olbOpenAll(list, 0);
    EXPECT_EQ(olbGetVisibleCount(list), 3) << "not what is locked";
}

TEST_F(HierListTree, LocksItems) {
    EXPECT_EQ(olbLockItem(list, 0, 5), 0);
    EXPECT_EQ(olbLockItem(list, 0, TRUE), 1);
    EXPECT_EQ(olbQueryLock(list, 0), 1);
    olbOpenItem(list, 0);
    EXPECT_EQ(olbGetVisibleCount(list), 2);
    EXPECT_EQ(olbLockItemEx(list, a, FALSE), 1);
    EXPECT_EQ(olbQueryLockEx(list, a), 0);
    olbOpenItem(list, 0);
    olbLockItem(list, 0, TRUE);
    olbCloseItem(list, 0);
    EXPECT_EQ(olbGetVisibleCount(list), 2) << "a locked item closes";
    EXPECT_EQ(olbLockItemEx(list, c, TRUE), 0) << "a hidden one locks";
    for (HOLBITEM none : {HOLBITEM{nullptr}, OLB_NOITEM}) {
        EXPECT_EQ(olbLockItemEx(list, none, TRUE), -1);
        EXPECT_EQ(olbQueryLockEx(list, none), -1);
    }
    EXPECT_EQ(olbLockItem(list, 7, TRUE), -1);
    EXPECT_EQ(olbQueryLock(list, -1), -1);
}

TEST_F(HierListTree, AnswersWhatItemsAre) {
    olbOpenItem(list, 0);
    EXPECT_EQ(olbQueryOpen(list, 0), 1);
    EXPECT_EQ(olbQueryOpen(list, 1), 0);
    EXPECT_EQ(olbQueryOpenEx(list, a), 1);
    EXPECT_EQ(olbHasChildren(list, 1), 1);
    EXPECT_EQ(olbHasChildren(list, 2), 0);
    EXPECT_EQ(olbHasChildrenEx(list, c), 0);
    EXPECT_EQ(olbQueryVisible(list, b), 1);
    EXPECT_EQ(olbQueryVisible(list, c), 0);
    EXPECT_EQ(olbQueryLevel(list, 1), 1);
    EXPECT_EQ(olbQueryLevel(list, 2), 0);
    EXPECT_EQ(olbQueryLevelEx(list, c), 2);
    EXPECT_EQ(olbQueryParent(list, 1), 0);
    EXPECT_EQ(olbQueryParent(list, 0), -1);
    EXPECT_EQ(olbQueryParentEx(list, c), b);
    EXPECT_EQ(olbQueryParentEx(list, a), nullptr);
    EXPECT_EQ(olbGetCount(list), 4);
    EXPECT_EQ(olbGetVisibleCount(list), 3);
}

TEST_F(HierListTree, AnswersErrorsForNoItem) {
    for (const LONG row : {-1, -2, 2, 65535}) {
        EXPECT_EQ(olbQueryOpen(list, row), -1) << row;
        EXPECT_EQ(olbHasChildren(list, row), -1) << row;
        EXPECT_EQ(olbQueryLevel(list, row), -1) << row;
        EXPECT_EQ(olbQueryParent(list, row), -1) << row;
        EXPECT_EQ(olbGetChildHandle(list, row, 0), OLB_NOITEM) << row;
        EXPECT_EQ(olbIndexToHandle(list, row), nullptr) << row;
    }
    for (HOLBITEM none : {HOLBITEM{nullptr}, OLB_NOITEM}) {
        EXPECT_EQ(olbQueryOpenEx(list, none), -1);
        EXPECT_EQ(olbHasChildrenEx(list, none), -1);
        EXPECT_EQ(olbQueryVisible(list, none), -1);
        EXPECT_EQ(olbQueryLevelEx(list, none), -1);
        EXPECT_EQ(olbQueryParentEx(list, none), OLB_NOITEM);
        EXPECT_EQ(olbHandleToIndex(none), -1);
    }
}

TEST_F(HierListTree, TellsRowsAndHandles) {
    EXPECT_EQ(olbIndexToHandle(list, 0), a);
    EXPECT_EQ(olbIndexToHandle(list, 1), d);
    EXPECT_EQ(olbHandleToIndex(d), 1);
    EXPECT_EQ(olbHandleToIndex(c), 0) << "hidden: its position among its siblings";
    olbOpenItem(list, 0);
    EXPECT_EQ(olbHandleToIndex(d), 2);
}

TEST_F(HierListTree, KnowsTheChildrenOfClosedItemsOnly) {
    HOLBITEM second = olbAddChildStringEx(list, a, "second");
    EXPECT_EQ(olbGetChildHandle(list, 0, 0), b);
    EXPECT_EQ(olbGetChildHandle(list, 0, 1), second);
    EXPECT_EQ(olbGetChildHandleEx(a, 1), second);
    EXPECT_EQ(olbGetChildHandleEx(b, 0), c) << "a hidden parent";
    EXPECT_EQ(olbGetChildHandleEx(a, 2), nullptr);
    EXPECT_EQ(olbGetChildHandleEx(a, -1), nullptr);
    EXPECT_EQ(olbGetChildHandleEx(d, 0), nullptr);
    olbOpenItem(list, 0);
    EXPECT_EQ(olbGetChildHandleEx(a, 0), nullptr) << "an open parent";
    EXPECT_EQ(olbGetChildHandle(list, 0, 0), nullptr);
}

TEST_F(HierListTree, RepaintsWhatItOpens) {
    EXPECT_GE(PaintsBy(list, [&] { olbOpenItem(list, 0); }), 1u);
    EXPECT_EQ(PaintsBy(list, [&] { olbOpenItem(list, 0); }), 0u) << "it is open";
    EXPECT_GE(PaintsBy(list, [&] { olbOpenAll(list, -1); }), 1u);
    olbCloseAll(list);
    SetWindowLongA(list, GWL_STYLE, GetWindowLongA(list, GWL_STYLE) | LBS_NOREDRAW);
    EXPECT_EQ(PaintsBy(list, [&] { olbOpenItem(list, 0); }), 0u);
    EXPECT_EQ(PaintsBy(list, [&] { olbOpenAll(list, -1); }), 0u);
    EXPECT_EQ(olbGetVisibleCount(list), 4);
}

TEST_F(HierListTree, EmptiesForEveryChoiceOfCompatibility) {
    EXPECT_EQ(olbSetCompatibilityMode(list, TRUE), 1) << "from the start";
    EXPECT_EQ(olbGetCount(list), 0) << "emptied though the mode is the same";
    olbAddString(list, "a");
    EXPECT_EQ(olbSetCompatibilityMode(list, FALSE), 1);
    EXPECT_EQ(olbGetCount(list), 0);
    olbAddString(list, "a");
    olbAddChildString(list, 0, "b");
    EXPECT_EQ(olbDeleteString(list, 0), 0) << "there is no table to keep";
    EXPECT_EQ(olbSetCompatibilityMode(list, 7), 0);
    EXPECT_EQ(olbSetCompatibilityMode(list, TRUE), 1);
}

} // namespace
