// Inserting at positions and rows, with all that is odd about hidden parents.
#include "tests/support/outline_host.h"

#include <gtest/gtest.h>

namespace vorn::hierlist::test {
namespace {

// p, open, with a (open, with x) and b; then q. q has no children.
struct Small : TestHost {
    OlbItem* p = Add(nullptr, "p");
    OlbItem* q = Add(nullptr, "q");
    OlbItem* a = Add(p, "a");
    OlbItem* b = Add(p, "b");
    OlbItem* x = Add(a, "x");

    Small() {
        OpenItem(p);
        OpenItem(a);
        log.clear();
    }
};

// ---- The parent is visible ----

TEST(OutlineInsert, GoesInFrontOfTheSiblingAtThePosition) {
    Small host;
    host.Insert(host.p, 0, "c");
    EXPECT_EQ(host.Rows(), "0p 1c 1a 2x 1b 0q");
    host.Insert(host.p, 2, "d");
    EXPECT_EQ(host.Rows(), "0p 1c 1a 2x 1d 1b 0q");
    EXPECT_EQ(host.Links(host.p), "c a d b");
    EXPECT_EQ(host.p->childCount, 4u);
    EXPECT_EQ(host.outline.itemCount, 7u);
    EXPECT_EQ(host.outline.visibleCount, 7u);
}

TEST(OutlineInsert, PastTheLastSiblingAppends) {
    Small host;
    host.Insert(host.p, 2, "c");
    host.Insert(host.p, 77, "d");
    host.Insert(host.p, kAppend, "e");
    EXPECT_EQ(host.Rows(), "0p 1a 2x 1b 1c 1d 1e 0q");
    EXPECT_EQ(host.Links(host.p), "a b c d e");
}

// Neither a following sibling nor a next sibling of the parent: the nearest parent that has one
// gives the row.
TEST(OutlineInsert, LastUnderAnOpenParentStaysAboveWhatFollowsItsParents) {
    Small host;
    DeleteItem(host.outline, host.b);
    host.Insert(host.a, kAppend, "y");
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 0q");
    host.Insert(host.a, 9, "z");
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 2z 0q");
}

TEST(OutlineInsert, LastOfAllIsTheLastRow) {
    Small host;
    OlbItem* c = host.Insert(host.q, 0, "c");
    host.Insert(c, 0, "d");
    host.Insert(host.q, 1, "e");
    EXPECT_EQ(host.Rows(), "0p 1a 2x 1b 0q 1c 2d 1e");
}

TEST(OutlineInsert, ChildlessParentIsOpenedByThePlacement) {
    Small host;
    ASSERT_FALSE(host.outline.autoOpen);
    host.Insert(host.q, 0, "c");
    EXPECT_EQ(host.Rows(), "0p 1a 2x 1b 0q 1c");
    EXPECT_EQ(QueryOpen(host.q), 1);
    EXPECT_EQ(host.q->childCount, 1u);
}

TEST(OutlineInsert, VisibleClosedParentIsOpenedFirst) {
    Small host;
    host.CloseItem(host.p);
    ASSERT_EQ(host.outline.visibleCount, 2u);
    host.Insert(host.p, 1, "c");
    EXPECT_EQ(host.Rows(), "0p 1a 1c 1b 0q");
    EXPECT_EQ(host.outline.visibleCount, 5u);
    EXPECT_EQ(host.p->detachedRun, nullptr);
    EXPECT_EQ(QueryOpen(host.p), 1);
}

TEST(OutlineInsert, LockedClosedParentKeepsTheChildAside) {
    Small host;
    host.CloseItem(host.p);
    SetLocked(host.p, true);
    SetLocked(host.q, true);
    OlbItem* c = host.Insert(host.p, 1, "c");
    host.Insert(host.p, kAppend, "d");
    host.Insert(host.q, 0, "e");
    EXPECT_EQ(host.Rows(), "0p 0q");
    EXPECT_EQ(host.Run(host.p), "a c b d");
    EXPECT_EQ(host.Links(host.p), "a c b d");
    EXPECT_EQ(host.Run(host.q), "e");
    EXPECT_EQ(QueryOpen(host.q), 0);
    EXPECT_EQ(host.p->childCount, 4u);
    EXPECT_EQ(c->level, 1);
    EXPECT_EQ(host.outline.visibleCount, 2u);
    EXPECT_EQ(host.outline.itemCount, 8u);
}

TEST(OutlineInsert, NeverSorts) {
    Small host;
    host.outline.style = kStyleSort;
    host.Insert(host.p, 0, "z");
    EXPECT_EQ(host.Rows(), "0p 1z 1a 2x 1b 0q");
}

// ---- The top ----

TEST(OutlineInsert, AtTheTop) {
    Small host;
    host.Insert(nullptr, 0, "c");
    host.Insert(nullptr, 2, "d");
    host.Insert(nullptr, 4, "e");
    host.Insert(nullptr, kAppend, "f");
    EXPECT_EQ(host.Rows(), "0c 0p 1a 2x 1b 0d 0q 0e 0f");
    EXPECT_EQ(host.Links(nullptr), "c p d q e f");
    EXPECT_EQ(host.outline.visibleCount, 9u);
}

TEST(OutlineInsert, IntoNothing) {
    for (const std::uint16_t position : {std::uint16_t{0}, std::uint16_t{5}, kAppend}) {
        TestHost host;
        host.Insert(nullptr, position, "a");
        EXPECT_EQ(host.Rows(), "0a");
    }
}

TEST(OutlineInsert, MinusOneIsNoParentHere) {
    Small host;
    EXPECT_EQ(host.Insert(NoItem(), 0, "c"), NoItem());
    EXPECT_EQ(host.outline.itemCount, 5u);
}

// ---- The parent is hidden ----

// p with a, hidden; a with x and y.
struct Hidden : TestHost {
    OlbItem* p = Add(nullptr, "p");
    OlbItem* a = Add(p, "a");
    OlbItem* x = Add(a, "x");
    OlbItem* y = Add(a, "y");

    Hidden() { log.clear(); }
};

TEST(OutlineInsertHidden, AppendedIsLinkedFirstButItsNodeIsLast) {
    Hidden host;
    const OlbItem* c = host.Insert(host.a, kAppend, "c");
    EXPECT_EQ(host.Links(host.a), "c x y");
    EXPECT_EQ(host.Run(host.a), "x y c");
    EXPECT_EQ(host.a->childCount, 3u);
    EXPECT_EQ(c->level, 0);
    EXPECT_EQ(host.outline.itemCount, 5u);
    EXPECT_EQ(host.outline.visibleCount, 1u);
    OpenAll(host.outline, nullptr);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 0c");
    EXPECT_EQ(host.outline.visibleCount, 5u);
}

TEST(OutlineInsertHidden, AtAPositionIsLinkedThereButDoesNotCount) {
    Hidden host;
    const OlbItem* c = host.Insert(host.a, 1, "c");
    EXPECT_EQ(host.Links(host.a), "x c y");
    EXPECT_EQ(host.Run(host.a), "x c y");
    EXPECT_EQ(host.a->childCount, 2u);
    EXPECT_EQ(c->level, 2);
    host.Insert(host.a, 0, "d");
    host.Insert(host.a, 9, "e");
    EXPECT_EQ(host.Links(host.a), "d x c y e");
    EXPECT_EQ(host.Run(host.a), "d x c y e");
    EXPECT_EQ(host.a->childCount, 2u);
    EXPECT_EQ(host.outline.itemCount, 7u);
}

TEST(OutlineInsertHidden, UncountedChildIsNoneToTheHost) {
    Hidden host;
    host.Insert(host.x, 0, "c");
    EXPECT_EQ(HasChildren(host.x), 0);
    host.OpenItem(host.p);
    host.OpenItem(host.a);
    host.OpenItem(host.x);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y");
    EXPECT_EQ(host.Run(host.x), "c");
    DeleteItem(host.outline, host.x);
    EXPECT_EQ(host.Rows(), "0p 1a 2y");
}

// Opening brings all children but counts only childCount of them; closing takes childCount rows.
TEST(OutlineInsertHidden, ClosingLeavesRowsThatDoNotCount) {
    Hidden host;
    host.Insert(host.a, 0, "c");
    host.OpenItem(host.p);
    host.OpenItem(host.a);
    EXPECT_EQ(host.Rows(), "0p 1a 2c 2x 2y");
    EXPECT_EQ(host.outline.visibleCount, 4u) << "1 + 1 + 2";
    host.CloseItem(host.a);
    EXPECT_EQ(host.Rows(), "0p 1a 2y");
    EXPECT_EQ(host.Run(host.a), "c x");
    EXPECT_EQ(host.outline.visibleCount, 2u);
    EXPECT_EQ(QueryVisible(host.y), 0) << "its parent is closed";
    host.OpenItem(host.a);
    EXPECT_EQ(host.Rows(), "0p 1a 2c 2x 2y");
    host.CloseItem(host.a);
    host.CloseItem(host.p);
    EXPECT_EQ(host.Rows(), "0p") << "a run holds no other item's children";
    EXPECT_EQ(host.Run(host.a), "c x y");
    EXPECT_EQ(host.outline.visibleCount, 1u);
}

TEST(OutlineInsertHidden, RowLeftBehindIsTakenFromWhereItIs) {
    Hidden host;
    host.Insert(host.a, 0, "c");
    host.OpenItem(host.p);
    host.OpenItem(host.a);
    host.CloseItem(host.a);
    ASSERT_EQ(host.Rows(), "0p 1a 2y");
    EXPECT_EQ(DeleteItem(host.outline, host.y), 2u);
    EXPECT_EQ(host.Rows(), "0p 1a");
    EXPECT_EQ(host.Run(host.a), "c x");
    EXPECT_EQ(host.Links(host.a), "c x");
}

TEST(OutlineInsertHidden, RowLeftBehindCanBeOpenedAndGoesWithItsParents) {
    Hidden host;
    OlbItem* z = host.Add(host.y, "z");
    host.Insert(host.a, 0, "c");
    host.OpenItem(host.p);
    host.OpenItem(host.a);
    host.CloseItem(host.a);
    host.OpenItem(host.y);
    EXPECT_EQ(host.Rows(), "0p 1a 2y 3z");
    host.Add(host.y, "w");
    EXPECT_EQ(host.Rows(), "0p 1a 2y 3z 3w");
    host.CloseItem(host.p);
    EXPECT_EQ(host.Rows(), "0p");
    EXPECT_EQ(host.Run(host.a), "c x y");
    EXPECT_EQ(host.Run(host.y), "z w");
    EXPECT_EQ(ParentOf(z), host.y);
}

// Links and rows then differ in order: d comes after y among the links.
TEST(OutlineInsertHidden, AppendingBesideARowLeftBehind) {
    Hidden host;
    host.Insert(host.a, 0, "c");
    host.OpenItem(host.p);
    host.OpenItem(host.a);
    host.CloseItem(host.a);
    SetLocked(host.a, true);
    host.Insert(host.a, kAppend, "d");
    EXPECT_EQ(host.Rows(), "0p 1a 2y");
    EXPECT_EQ(host.Run(host.a), "c x d");
    EXPECT_EQ(host.Links(host.a), "c x y d");
    SetLocked(host.a, false);
    host.OpenItem(host.a);
    EXPECT_EQ(host.Rows(), "0p 1a 2c 2x 2d 2y");
    host.Add(host.a, "e");
    EXPECT_EQ(host.Rows(), "0p 1a 2c 2x 2d 2y 2e");
    host.Add(host.p, "f");
    EXPECT_EQ(host.Rows(), "0p 1a 2c 2x 2d 2y 2e 1f");
}

// In front of it, the item goes to the end of the run.
TEST(OutlineInsertHidden, InFrontOfARowLeftBehind) {
    Hidden host;
    host.Insert(host.a, 0, "c");
    host.OpenItem(host.p);
    host.OpenItem(host.a);
    host.CloseItem(host.a);
    SetLocked(host.a, true);
    host.Insert(host.a, 2, "d");
    EXPECT_EQ(host.Rows(), "0p 1a 2y");
    EXPECT_EQ(host.Run(host.a), "c x d");
    EXPECT_EQ(host.Links(host.a), "c x d y");
}

TEST(OutlineInsertHidden, CountsNeverFallBelowNothing) {
    Hidden host;
    for (const char* text : {"c", "d", "e"}) {
        host.Insert(host.a, 0, text);
    }
    host.OpenItem(host.p);
    host.OpenItem(host.a);
    EXPECT_EQ(host.Rows(), "0p 1a 2e 2d 2c 2x 2y");
    EXPECT_EQ(host.outline.visibleCount, 4u);
    while (host.a->firstChild != nullptr) {
        DeleteItem(host.outline, host.a->firstChild);
    }
    EXPECT_EQ(host.Rows(), "0p 1a");
    EXPECT_EQ(host.a->childCount, 0u);
    EXPECT_EQ(host.outline.visibleCount, 0u) << "4 less 5";
    EXPECT_EQ(QueryOpen(host.a), 0);
    host.CloseItem(host.p);
    EXPECT_EQ(host.outline.visibleCount, 0u);
    EXPECT_EQ(host.Rows(), "0p");
}

// A child of level 0 ends what adding sees of the siblings.
TEST(OutlineInsertHidden, AddingStopsAtTheChildOfLevelZero) {
    Hidden host;
    host.Insert(host.a, kAppend, "c");
    OpenAll(host.outline, nullptr);
    host.Add(host.a, "d");
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 2d 0c");
    EXPECT_EQ(host.Links(host.a), "c x y d");
    host.outline.style = kStyleSort;
    host.Add(host.a, "b");
    EXPECT_EQ(host.Rows(), "0p 1a 2b 2x 2y 2d 0c");
    host.Add(host.a, "z");
    EXPECT_EQ(host.Rows(), "0p 1a 2b 2x 2y 2d 2z 0c") << "c is not among those compared";
}

TEST(OutlineInsertHidden, AddingGoesToTheFrontWhenTheFirstRowHasLevelZero) {
    TestHost host;
    OlbItem* p = host.Add(nullptr, "p");
    OlbItem* a = host.Add(p, "a");
    host.Insert(a, kAppend, "x");
    host.Insert(a, kAppend, "y");
    EXPECT_EQ(host.Links(a), "y x");
    EXPECT_EQ(host.Run(a), "x y");
    OpenAll(host.outline, nullptr);
    host.Add(a, "z");
    EXPECT_EQ(host.Rows(), "0p 1a 2z 0x 0y");
    EXPECT_EQ(host.Links(a), "z y x");
}

TEST(OutlineInsertHidden, NothingIsRedrawn) {
    Hidden host;
    host.outline.compatibilityMode = 0;
    host.Insert(host.a, 0, "c");
    host.Insert(host.a, kAppend, "d");
    EXPECT_EQ(host.TakeLog(), Lines{});
}

// ---- By row ----

TEST(OutlineInsertAtRow, GoesInFrontOfTheRowAsItsSibling) {
    Small host;
    const OlbItem* c = InsertAtRow(host.outline, 1, "c");
    EXPECT_EQ(host.Rows(), "0p 1c 1a 2x 1b 0q");
    EXPECT_EQ(ParentOf(c), host.p);
    EXPECT_EQ(HandleToIndex(c), 1u);
    InsertAtRow(host.outline, 0, "d");
    InsertAtRow(host.outline, 4, "e");
    EXPECT_EQ(host.Rows(), "0d 0p 1c 1a 2e 2x 1b 0q");
}

TEST(OutlineInsertAtRow, PastTheEndGoesBehindTheLastRowAsItsSibling) {
    Small host;
    InsertAtRow(host.outline, kNoRow, "c");
    EXPECT_EQ(host.Rows(), "0p 1a 2x 1b 0q 0c");
    DeleteItem(host.outline, host.q);
    DeleteItem(host.outline, IndexToHandle(host.outline, 4));
    InsertAtRow(host.outline, 4, "d");
    EXPECT_EQ(host.Rows(), "0p 1a 2x 1b 1d");
    InsertAtRow(host.outline, 99, "e");
    EXPECT_EQ(host.Rows(), "0p 1a 2x 1b 1d 1e");
}

TEST(OutlineInsertAtRow, IntoNothing) {
    TestHost host;
    EXPECT_EQ(HandleToIndex(InsertAtRow(host.outline, kNoRow, "a")), 0u);
    EXPECT_EQ(host.Rows(), "0a");
}

TEST(OutlineInsert, TellsInOrder) {
    Small host;
    host.outline.style = kStyleOwnerDrawVariable | kStyleHasStrings;
    host.answerToMeasure = 20;
    EXPECT_EQ(host.Insert(host.p, 1, "c")->height, 20);
    EXPECT_EQ(host.TakeLog(), (Lines{"measure c 3", "record c 0", "rows", "redraw all"}));
    InsertAtRow(host.outline, 0, "d");
    EXPECT_EQ(host.TakeLog(), (Lines{"measure d 0", "record d 0", "rows", "redraw all"}));
}

} // namespace
} // namespace vorn::hierlist::test
