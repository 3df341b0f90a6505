// Opening and closing.
#include "tests/support/outline_host.h"

#include <gtest/gtest.h>

namespace vorn::hierlist::test {
namespace {

// p with a (which has x and y) and b, then q. All closed.
struct Small : TestHost {
    OlbItem* p = Add(nullptr, "p");
    OlbItem* q = Add(nullptr, "q");
    OlbItem* a = Add(p, "a");
    OlbItem* b = Add(p, "b");
    OlbItem* x = Add(a, "x");
    OlbItem* y = Add(a, "y");

    Small() { log.clear(); }
};

TEST(OutlineOpen, MakesRowsOfTheChildren) {
    Small host;
    host.OpenItem(host.p);
    EXPECT_EQ(host.Rows(), "0p 1a 1b 0q");
    EXPECT_EQ(host.p->detachedRun, nullptr);
    EXPECT_EQ(QueryOpen(host.p), 1);
    EXPECT_EQ(host.outline.visibleCount, 4u);
    EXPECT_EQ(host.outline.itemCount, 6u);
    EXPECT_EQ(host.TakeLog(), (Lines{"rows", "redraw from 0"}));
    host.OpenItem(host.a);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1b 0q");
    EXPECT_EQ(host.TakeLog(), (Lines{"rows", "redraw from 1"}));
}

TEST(OutlineOpen, DoesNothingToOthers) {
    Small host;
    host.OpenItem(host.p);
    host.TakeLog();
    host.OpenItem(host.p);
    host.OpenItem(host.q);
    Open(host.outline, 4);
    Open(host.outline, kNoRow);
    EXPECT_EQ(host.Rows(), "0p 1a 1b 0q");
    EXPECT_EQ(QueryOpen(host.q), 0) << "a childless item is always closed";
    EXPECT_EQ(host.TakeLog(), Lines{});
}

TEST(OutlineOpen, LockedItemCannotBeOpenedButClosed) {
    Small host;
    SetLocked(host.p, true);
    host.OpenItem(host.p);
    EXPECT_EQ(host.Rows(), "0p 0q");
    SetLocked(host.p, false);
    host.OpenItem(host.p);
    SetLocked(host.p, true);
    host.CloseItem(host.p);
    EXPECT_EQ(host.Rows(), "0p 0q");
}

TEST(OutlineOpen, SilentUnderNoRedraw) {
    Small host;
    host.outline.style = kStyleNoRedraw;
    host.OpenItem(host.p);
    host.CloseItem(host.p);
    OpenAll(host.outline, nullptr);
    CloseAll(host.outline);
    // The control hears of the rows, puts its scroll bars off and draws nothing.
    EXPECT_EQ(host.TakeLog(), (Lines{"rows", "rows", "rows", "rows"}));
}

TEST(OutlineClose, ClosesOpenGrandchildrenToo) {
    Small host;
    host.OpenItem(host.p);
    host.OpenItem(host.a);
    EXPECT_EQ(host.outline.visibleCount, 6u);
    host.TakeLog();
    host.CloseItem(host.p);
    EXPECT_EQ(host.Rows(), "0p 0q");
    EXPECT_EQ(host.outline.visibleCount, 2u);
    EXPECT_EQ(host.Run(host.p), "a b");
    EXPECT_EQ(host.Run(host.a), "x y");
    EXPECT_EQ(QueryOpen(host.a), 0);
    EXPECT_EQ(host.TakeLog(), (Lines{"rows", "redraw from 0"}));
    host.OpenItem(host.p);
    EXPECT_EQ(host.Rows(), "0p 1a 1b 0q") << "only the direct children, all closed";
}

TEST(OutlineClose, DeselectsWhatItHides) {
    Small host;
    host.OpenItem(host.p);
    host.OpenItem(host.a);
    for (OlbItem* item : {host.p, host.a, host.y, host.q}) {
        SetSelected(host.outline, item, true);
    }
    host.TakeLog();
    host.CloseItem(host.p);
    EXPECT_EQ(host.TakeLog(), (Lines{"deselected a", "deselected y", "rows", "redraw from 0"}));
    EXPECT_EQ(host.p->flags, kFlagSelected) << "it is still there";
    EXPECT_EQ(host.a->flags, 0);
    EXPECT_EQ(host.y->flags, 0);
    EXPECT_EQ(host.q->flags, kFlagSelected);
}

TEST(OutlineClose, DoesNothingToOthers) {
    Small host;
    host.CloseItem(host.p);
    host.CloseItem(host.q);
    Close(host.outline, 2);
    Close(host.outline, kNoRow);
    EXPECT_EQ(host.Rows(), "0p 0q");
    EXPECT_EQ(host.TakeLog(), Lines{});
}

TEST(OutlineClose, LeavesTheCaretMarkAlone) {
    Small host;
    host.OpenItem(host.p);
    host.a->flags |= kFlagCaret;
    host.CloseItem(host.p);
    EXPECT_EQ(host.a->flags, kFlagCaret);
}

TEST(OutlineOpenAll, OpensAllButLockedItemsAndWhatIsBelowThem) {
    Small host;
    OlbItem* deep = host.Add(host.q, "d");
    host.Add(deep, "e");
    SetLocked(host.q, true);
    host.TakeLog();
    OpenAll(host.outline, nullptr);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1b 0q");
    EXPECT_EQ(host.outline.visibleCount, 6u);
    EXPECT_EQ(QueryOpen(deep), 0);
    EXPECT_EQ(host.TakeLog(), (Lines{"rows", "redraw all"}));
}

TEST(OutlineOpenAll, GoesBelowALockedItemThatIsOpen) {
    Small host;
    host.OpenItem(host.p);
    SetLocked(host.p, true);
    OpenAll(host.outline, nullptr);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1b 0q");
}

TEST(OutlineOpenAll, OfAnItemStaysBelowIt) {
    Small host;
    OlbItem* c = host.Add(host.q, "c");
    host.OpenItem(host.p);
    OpenAll(host.outline, host.a);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1b 0q");
    OpenAll(host.outline, host.q);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1b 0q 1c");
    host.CloseItem(host.q);
    OpenAll(host.outline, c);
    OpenAll(host.outline, NoItem());
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1b 0q") << "nothing opens what is hidden";
}

TEST(OutlineCloseAll, ClosesEverythingAtTheTop) {
    Small host;
    host.Add(host.q, "c");
    OpenAll(host.outline, nullptr);
    SetSelected(host.outline, host.q, true);
    host.TakeLog();
    CloseAll(host.outline);
    EXPECT_EQ(host.Rows(), "0p 0q");
    EXPECT_EQ(QueryOpen(host.a), 0);
    EXPECT_EQ(host.outline.visibleCount, 2u);
    EXPECT_EQ(SetSelected(host.outline, host.q, true), 1) << "its row is still there";
    EXPECT_EQ(host.TakeLog(), (Lines{"rows", "redraw all"}));
}

// Only a count is looked at when no child is open or selected.
TEST(OutlineClose, OfVeryManyPlainChildrenTouchesFew) {
    TestHost host;
    host.outline.compatibilityMode = 0;
    host.outline.style = kStyleNoRedraw;
    OlbItem* p = host.Add(nullptr, "p");
    for (int i = 0; i < 20'000; ++i) {
        host.Add(p, "x");
    }
    // A walk over the links would meet this and not end.
    OlbItem* first = p->firstChild;
    OlbItem* second = first->nextSibling;
    first->nextSibling = first;
    for (int i = 0; i < 10; ++i) {
        Open(host.outline, 0);
        ASSERT_EQ(host.outline.visibleCount, 20'001u);
        Close(host.outline, 0);
        ASSERT_EQ(host.outline.visibleCount, 1u);
    }
    first->nextSibling = second;
}

} // namespace
} // namespace vorn::hierlist::test
