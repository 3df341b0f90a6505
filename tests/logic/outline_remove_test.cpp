// Deleting items, what is below them, and everything.
#include "tests/support/outline_host.h"

#include <gtest/gtest.h>
#include <memory>

namespace vorn::hierlist::test {
namespace {

// p with a (with x and y) and b, then q; p and a are open. The items' data are their rows + 1.
struct Small : TestHost {
    OlbItem* p = Add(nullptr, "p");
    OlbItem* q = Add(nullptr, "q");
    OlbItem* a = Add(p, "a");
    OlbItem* b = Add(p, "b");
    OlbItem* x = Add(a, "x");
    OlbItem* y = Add(a, "y");

    Small() {
        outline.compatibilityMode = 0;
        sideTable.clear();
        OpenItem(p);
        OpenItem(a);
        std::uintptr_t data = 0;
        for (OlbItem* item : {p, a, x, y, b, q}) {
            SetData(item, ++data);
        }
        log.clear();
    }
};

// ---- Delete item ----

TEST(OutlineDelete, AnswersTheRowThatItHad) {
    Small host;
    EXPECT_EQ(DeleteItem(host.outline, host.x), 2u);
    EXPECT_EQ(host.Rows(), "0p 1a 2y 1b 0q");
    EXPECT_EQ(DeleteItem(host.outline, host.q), 4u);
    EXPECT_EQ(host.Rows(), "0p 1a 2y 1b");
    EXPECT_EQ(host.outline.itemCount, 4u);
    EXPECT_EQ(host.outline.visibleCount, 4u);
}

TEST(OutlineDelete, HiddenItemLeavesItsParentsRun) {
    Small host;
    host.CloseItem(host.p);
    EXPECT_EQ(DeleteItem(host.outline, host.x), kNoRow);
    EXPECT_EQ(host.Run(host.a), "y");
    EXPECT_EQ(host.Links(host.a), "y");
    EXPECT_EQ(host.a->childCount, 1u);
    EXPECT_EQ(host.outline.itemCount, 5u);
    EXPECT_EQ(host.outline.visibleCount, 2u);
    host.OpenItem(host.p);
    host.OpenItem(host.a);
    EXPECT_EQ(host.Rows(), "0p 1a 2y 1b 0q");
}

TEST(OutlineDelete, GoesWithAllBelowIt) {
    Small host;
    const std::uint32_t blocks = BlockCount();
    EXPECT_EQ(DeleteItem(host.outline, host.p), 0u);
    EXPECT_EQ(host.Rows(), "0q");
    EXPECT_EQ(host.outline.itemCount, 1u);
    EXPECT_EQ(host.outline.visibleCount, 1u);
    EXPECT_EQ(BlockCount(), blocks - 5) << "one each";
}

// The five joins: first, middle and last of several, the only one of a parent, the only one at all.
TEST(OutlineDelete, JoinsTheSiblings) {
    TestHost host;
    OlbItem* items[5];
    for (int i = 0; i < 5; ++i) {
        const char text[] = {static_cast<char>('a' + i), '\0'};
        items[i] = host.Add(nullptr, text);
    }
    DeleteItem(host.outline, items[0]);
    EXPECT_EQ(host.Links(nullptr), "b c d e");
    EXPECT_EQ(items[1]->prevSibling, nullptr);
    DeleteItem(host.outline, items[2]);
    EXPECT_EQ(host.Links(nullptr), "b d e");
    EXPECT_EQ(items[3]->prevSibling, items[1]);
    DeleteItem(host.outline, items[4]);
    EXPECT_EQ(host.Links(nullptr), "b d");
    EXPECT_EQ(items[3]->nextSibling, nullptr);
    host.Add(nullptr, "f");
    EXPECT_EQ(host.Links(nullptr), "b d f");
}

TEST(OutlineDelete, FirstChildMovesOn) {
    Small host;
    DeleteItem(host.outline, host.a);
    EXPECT_EQ(host.p->firstChild, host.b);
    EXPECT_EQ(host.p->childCount, 1u);
    EXPECT_EQ(QueryOpen(host.p), 1);
}

TEST(OutlineDelete, LastChildOfAnOpenItemClosesItAndRedrawsItsRow) {
    Small host;
    DeleteItem(host.outline, host.x);
    host.TakeLog();
    DeleteItem(host.outline, host.y);
    EXPECT_EQ(QueryOpen(host.a), 0);
    EXPECT_EQ(host.a->firstChild, nullptr);
    EXPECT_EQ(host.a->detachedRun, nullptr);
    EXPECT_EQ(host.a->childCount, 0u);
    EXPECT_EQ(host.Rows(), "0p 1a 1b 0q");
    EXPECT_EQ(host.TakeLog(), (Lines{"retired y", "redraw row 1", "rows", "redraw all"}));
}

TEST(OutlineDelete, LastOfAllLeavesNothing) {
    TestHost host;
    DeleteItem(host.outline, host.Add(nullptr, "a"));
    EXPECT_EQ(host.outline.visibleRoot, nullptr);
    EXPECT_EQ(host.outline.itemCount, 0u);
    host.Add(nullptr, "b");
    EXPECT_EQ(host.Rows(), "0b");
}

TEST(OutlineDelete, DeselectsFirst) {
    Small host;
    SetSelected(host.outline, host.a, true);
    SetSelected(host.outline, host.y, true);
    DeleteItem(host.outline, host.a);
    EXPECT_EQ(host.TakeLog(), (Lines{"deselected a", "deselected y", "retired x", "retired y",
                                     "retired a", "rows", "redraw all"}));
}

TEST(OutlineDelete, NoItemIsRefused) {
    Small host;
    EXPECT_EQ(DeleteItem(host.outline, nullptr), kNoRow);
    EXPECT_EQ(DeleteItem(host.outline, NoItem()), kNoRow);
    EXPECT_EQ(host.outline.itemCount, 6u);
    EXPECT_EQ(host.TakeLog(), Lines{});
}

TEST(OutlineDelete, TellsTheParentOfEachValueThatGoes) {
    Small host;
    host.outline.style = kStyleOwnerDrawFixed;
    DeleteItem(host.outline, host.p);
    EXPECT_EQ(host.TakeLog(),
              (Lines{"retired a", "retired x", "retired y", "retired b", "retired p",
                     "deleted 3 at -", "deleted 4 at -", "deleted 2 at -", "deleted 5 at -",
                     "deleted 1 at 0", "rows", "redraw all"}));
    host.outline.style = kStyleOwnerDrawFixed | kStyleHasStrings;
    DeleteItem(host.outline, host.q);
    EXPECT_EQ(host.TakeLog(), (Lines{"retired q", "rows", "redraw all"}));
}

TEST(OutlineDelete, HiddenItemIsToldWithoutARow) {
    Small host;
    host.CloseItem(host.p);
    host.outline.style = kStyleOwnerDrawVariable | kStyleNoRedraw;
    host.TakeLog();
    DeleteItem(host.outline, host.b);
    EXPECT_EQ(host.TakeLog(), (Lines{"retired b", "deleted 5 at -", "rows"}));
}

TEST(OutlineDelete, LeavesTheSideTable) {
    TestHost host;
    OlbItem* a = host.Add(nullptr, "a");
    host.Add(a, "b");
    OlbItem* c = host.Add(nullptr, "c");
    host.TakeLog();
    DeleteItem(host.outline, a);
    EXPECT_EQ(host.TakeLog(),
              (Lines{"forget b", "retired b", "forget a", "retired a", "rows", "redraw all"}));
    ASSERT_EQ(host.sideTable.size(), 1u);
    EXPECT_EQ(host.sideTable[0].first, c);
}

// ---- Delete subtree ----

TEST(OutlineDeleteSubtree, KeepsTheItem) {
    Small host;
    EXPECT_EQ(DeleteSubtree(host.outline, host.p), 2);
    EXPECT_EQ(host.Rows(), "0p 0q");
    EXPECT_EQ(host.outline.itemCount, 2u);
    EXPECT_EQ(host.outline.visibleCount, 2u);
    EXPECT_EQ(host.p->firstChild, nullptr);
    EXPECT_EQ(host.p->detachedRun, nullptr);
    EXPECT_EQ(host.p->childCount, 0u);
    EXPECT_EQ(QueryOpen(host.p), 0);
    EXPECT_EQ(host.TakeLog(),
              (Lines{"retired a", "retired x", "retired y", "retired b", "rows", "redraw from 0"}));
    host.Add(host.p, "c");
    EXPECT_EQ(host.Run(host.p), "c");
}

TEST(OutlineDeleteSubtree, OfAClosedItemRedrawsItsRowOnly) {
    Small host;
    host.CloseItem(host.a);
    host.TakeLog();
    EXPECT_EQ(DeleteSubtree(host.outline, host.a), 4);
    EXPECT_EQ(host.TakeLog(), (Lines{"retired x", "retired y", "redraw row 1"}));
    EXPECT_EQ(host.Rows(), "0p 1a 1b 0q");
}

TEST(OutlineDeleteSubtree, OfAHiddenItemRedrawsNothing) {
    Small host;
    host.CloseItem(host.p);
    host.TakeLog();
    EXPECT_EQ(DeleteSubtree(host.outline, host.a), 4);
    EXPECT_EQ(host.TakeLog(), (Lines{"retired x", "retired y"}));
}

TEST(OutlineDeleteSubtree, OfAChildlessItemIsNothing) {
    Small host;
    EXPECT_EQ(DeleteSubtree(host.outline, host.b), 6);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1b 0q");
}

TEST(OutlineDeleteSubtree, NoItemIsRefused) {
    Small host;
    EXPECT_EQ(DeleteSubtree(host.outline, nullptr), -1);
    EXPECT_EQ(DeleteSubtree(host.outline, NoItem()), -1);
}

TEST(OutlineDeleteSubtree, TellsTheParentOfEachValueThatGoes) {
    Small host;
    host.outline.style = kStyleOwnerDrawFixed | kStyleNoRedraw;
    DeleteSubtree(host.outline, host.p);
    EXPECT_EQ(host.TakeLog(),
              (Lines{"retired a", "retired x", "retired y", "retired b", "deleted 3 at -",
                     "deleted 4 at -", "deleted 2 at -", "deleted 5 at -", "rows"}));
}

TEST(OutlineDeleteSubtree, OfADeepTreeNeedsNoStack) {
    TestHost host;
    host.outline.compatibilityMode = 0;
    host.outline.style = kStyleNoRedraw | kStyleOwnerDrawFixed;
    OlbItem* first = host.Add(nullptr, "x");
    OlbItem* parent = first;
    for (int level = 0; level < 100'000; ++level) {
        parent = host.Add(parent, "x");
        host.log.clear();
    }
    EXPECT_EQ(DeleteSubtree(host.outline, first), 1);
}

// ---- Uncounted children ----

// What itemCount loses is what the parents count.
TEST(OutlineDeleteSubtree, LowersTheItemCountByWhatParentsCount) {
    TestHost host;
    OlbItem* p = host.Add(nullptr, "p");
    OlbItem* a = host.Add(p, "a");
    host.Insert(a, 0, "b");
    EXPECT_EQ(host.outline.itemCount, 3u);
    const std::uint32_t blocks = BlockCount();
    EXPECT_EQ(DeleteSubtree(host.outline, p), 2);
    EXPECT_EQ(BlockCount(), blocks - 2) << "both are gone all the same";
}

TEST(OutlineDelete, OnlyCountedChildOfTwoLeavesTheOther) {
    TestHost host;
    OlbItem* p = host.Add(nullptr, "p");
    OlbItem* a = host.Add(p, "a");
    OlbItem* counted = host.Add(a, "b");
    host.Insert(a, 1, "c");
    ASSERT_EQ(a->childCount, 1u);
    DeleteItem(host.outline, counted);
    EXPECT_EQ(a->childCount, 0u);
    EXPECT_EQ(host.Links(a), "c");
    EXPECT_EQ(host.Run(a), "c");
}

// ---- Reset ----

TEST(OutlineReset, RemovesEverything) {
    const std::uint32_t blocks = BlockCount();
    Small host;
    SetSelected(host.outline, host.q, true);
    host.TakeLog();
    Reset(host.outline);
    EXPECT_EQ(host.Rows(), "");
    EXPECT_EQ(host.Links(nullptr), "");
    EXPECT_EQ(host.outline.itemCount, 0u);
    EXPECT_EQ(host.outline.visibleCount, 0u);
    EXPECT_EQ(host.outline.visibleRoot, nullptr);
    EXPECT_EQ(BlockCount(), blocks);
    EXPECT_EQ(host.TakeLog(), (Lines{"cleared", "rows", "redraw all"}));
    host.Add(nullptr, "a");
    EXPECT_EQ(host.Rows(), "0a");
    EXPECT_EQ(IndexToHandle(host.outline, 0)->level, 0);
}

TEST(OutlineReset, TellsTheParentOfEachValueThatGoes) {
    Small host;
    host.outline.style = kStyleOwnerDrawFixed;
    Reset(host.outline);
    EXPECT_EQ(host.TakeLog(),
              (Lines{"cleared", "deleted 3 at -", "deleted 4 at -", "deleted 2 at -",
                     "deleted 5 at -", "deleted 1 at -", "deleted 6 at -", "rows", "redraw all"}));
}

TEST(OutlineDestroy, FreesEverythingWithoutAWord) {
    const std::uint32_t blocks = BlockCount();
    Small host;
    SetText(host.outline, host.a, "a text that is kept outside of its record");
    host.outline.style = kStyleOwnerDrawFixed;
    host.TakeLog();
    Destroy(host.outline);
    EXPECT_EQ(BlockCount(), blocks);
    EXPECT_EQ(host.TakeLog(), Lines{});
}

} // namespace
} // namespace vorn::hierlist::test
