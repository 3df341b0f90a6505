// Adding children, and rows and handles.
#include "tests/support/outline_host.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>

namespace vorn::hierlist::test {
namespace {

// ---- Records ----

TEST(OutlineItem, StartsPlain) {
    TestHost host;
    const OlbItem* item = host.Add(nullptr, "a");
    EXPECT_EQ(item->flags, 0);
    EXPECT_EQ(item->level, 0);
    EXPECT_EQ(item->parent, nullptr);
    EXPECT_EQ(item->firstChild, nullptr);
    EXPECT_EQ(item->nextSibling, nullptr);
    EXPECT_EQ(item->prevSibling, nullptr);
    EXPECT_EQ(item->node->item, item);
    EXPECT_EQ(item->detachedRun, nullptr);
    EXPECT_EQ(item->bitmaps, nullptr);
    EXPECT_EQ(item->bitmapIndex, -1);
    EXPECT_EQ(item->height, 0);
    EXPECT_EQ(item->itemData, 0u);
    EXPECT_EQ(item->childCount, 0u);
    EXPECT_STREQ(TextOf(item), "a");
}

TEST(OutlineItem, KeepsACopyOfTheText) {
    TestHost host;
    char text[] = "before";
    const OlbItem* item = host.Add(nullptr, text);
    text[0] = 'X';
    EXPECT_STREQ(TextOf(item), "before");
}

TEST(OutlineItem, NullTextIsEmpty) {
    TestHost host;
    EXPECT_STREQ(TextOf(host.Add(nullptr, nullptr)), "");
    EXPECT_STREQ(TextOf(host.Insert(nullptr, 0, nullptr)), "");
}

TEST(OutlineItem, TextFitsTheLargestBlock) {
    TestHost host;
    const std::size_t longest = 65535 - sizeof(OlbItem) - sizeof(OlbSeqNode) - 4;
    const std::string fits(longest, 'x');
    EXPECT_EQ(TextOf(host.Add(nullptr, fits.c_str())), fits);
    host.TakeLog();
    const std::string tooLong(longest + 1, 'x');
    EXPECT_EQ(host.Add(nullptr, tooLong.c_str()), NoItem());
    EXPECT_EQ(host.Insert(nullptr, 0, tooLong.c_str()), NoItem());
    EXPECT_EQ(host.outline.itemCount, 1u);
    EXPECT_EQ(host.TakeLog(), Lines{}) << "memory has not run out";
}

TEST(OutlineItem, OwnerDrawnWithoutStringsHoldsTheValue) {
    for (const std::uint32_t style : {kStyleOwnerDrawFixed, kStyleOwnerDrawVariable}) {
        TestHost host;
        host.outline.style = style;
        const OlbItem* value = host.AddValue(nullptr, 0x12345678);
        EXPECT_EQ(ValueOf(value), 0x12345678u);
        EXPECT_STREQ(TextOf(value), "");
        host.outline.style = style | kStyleHasStrings;
        const OlbItem* text = host.Add(nullptr, "text");
        EXPECT_STREQ(TextOf(text), "text");
        EXPECT_EQ(ValueOf(text), 0u);
        EXPECT_EQ(ValueOf(value), 0x12345678u) << "an item stays what it is";
    }
}

TEST(OutlineItem, FlagsAreTheDocumentedBits) {
    EXPECT_EQ(kFlagOpen, 1);
    EXPECT_EQ(kFlagSelected, 2);
    EXPECT_EQ(kFlagLocked, 8);
}

// ---- Rows and handles ----

TEST(OutlineRows, HandleAndRow) {
    TestHost host;
    OlbItem* a = host.Add(nullptr, "a");
    OlbItem* b = host.Add(nullptr, "b");
    EXPECT_EQ(IndexToHandle(host.outline, 0), a);
    EXPECT_EQ(IndexToHandle(host.outline, 1), b);
    EXPECT_EQ(HandleToIndex(b), 1u);
}

TEST(OutlineRows, PastTheEndIsNoItem) {
    TestHost host;
    EXPECT_EQ(IndexToHandle(host.outline, 0), nullptr);
    host.Add(nullptr, "a");
    EXPECT_EQ(IndexToHandle(host.outline, 1), nullptr);
    EXPECT_EQ(IndexToHandle(host.outline, kNoRow), nullptr);
}

TEST(OutlineRows, HiddenItemAnswersItsPositionAmongItsSiblings) {
    TestHost host;
    OlbItem* parent = host.Add(nullptr, "p");
    host.Add(nullptr, "q");
    host.Add(parent, "x");
    OlbItem* second = host.Add(parent, "y");
    EXPECT_EQ(HandleToIndex(second), 1u) << "row 1 is q";
    EXPECT_EQ(DetachedChild(parent, 1), second);
}

TEST(OutlineRows, NoItemIsRefused) {
    for (OlbItem* none : {static_cast<OlbItem*>(nullptr), NoItem()}) {
        EXPECT_EQ(HandleToIndex(none), kNoRow);
        EXPECT_EQ(QueryVisible(none), -1);
        EXPECT_EQ(QueryOpen(none), -1);
        EXPECT_EQ(QueryLocked(none), -1);
        EXPECT_EQ(HasChildren(none), -1);
        EXPECT_EQ(LevelOf(none), -1);
        EXPECT_EQ(ParentOf(none), NoItem());
        EXPECT_EQ(SetLocked(none, true), -1);
        EXPECT_EQ(DetachedChild(none, 0), nullptr);
    }
    TestHost host;
    EXPECT_EQ(SetSelected(host.outline, nullptr, true), -1);
    EXPECT_FALSE(SetText(host.outline, NoItem(), "x"));
    EXPECT_FALSE(SetBitmapIndex(host.outline, NoItem(), 1));
}

TEST(OutlineRows, VisibleIsWhatHasOnlyOpenParents) {
    TestHost host;
    OlbItem* a = host.Add(nullptr, "a");
    OlbItem* b = host.Add(a, "b");
    OlbItem* c = host.Add(b, "c");
    EXPECT_EQ(QueryVisible(a), 1) << "its own flag does not count";
    EXPECT_EQ(QueryVisible(b), 0);
    host.OpenItem(a);
    EXPECT_EQ(QueryVisible(b), 1);
    EXPECT_EQ(QueryVisible(c), 0);
    host.OpenItem(b);
    EXPECT_EQ(QueryVisible(c), 1);
    host.CloseItem(a);
    EXPECT_EQ(QueryVisible(c), 0);
}

TEST(OutlineRows, Questions) {
    TestHost host;
    OlbItem* a = host.Add(nullptr, "a");
    OlbItem* b = host.Add(a, "b");
    EXPECT_EQ(HasChildren(a), 1);
    EXPECT_EQ(HasChildren(b), 0);
    EXPECT_EQ(LevelOf(a), 0);
    EXPECT_EQ(LevelOf(b), 1);
    EXPECT_EQ(ParentOf(a), nullptr);
    EXPECT_EQ(ParentOf(b), a);
    EXPECT_EQ(QueryOpen(a), 0);
    host.OpenItem(a);
    EXPECT_EQ(QueryOpen(a), 1);
    EXPECT_EQ(SetLocked(a, true), 0);
    EXPECT_EQ(SetLocked(a, true), 1);
    EXPECT_EQ(QueryLocked(a), 1);
    EXPECT_EQ(SetLocked(a, false), 1);
    EXPECT_EQ(QueryLocked(a), 0);
}

// ---- Adding ----

TEST(OutlineAdd, NullAndMinusOneAreTheTop) {
    TestHost host;
    host.Add(nullptr, "a");
    host.Add(NoItem(), "b");
    EXPECT_EQ(host.Rows(), "0a 0b");
    EXPECT_EQ(host.Links(nullptr), "a b");
    EXPECT_EQ(host.outline.itemCount, 2u);
    EXPECT_EQ(host.outline.visibleCount, 2u);
}

TEST(OutlineAdd, UnderAnOpenParentComesAfterTheLastSiblingsSubtree) {
    TestHost host;
    host.outline.autoOpen = true;
    OlbItem* p = host.Add(nullptr, "p");
    host.Add(nullptr, "q");
    OlbItem* a = host.Add(p, "a");
    OlbItem* b = host.Add(a, "b");
    host.Add(b, "c");
    EXPECT_EQ(host.Rows(), "0p 1a 2b 3c 0q");
    host.Add(p, "d");
    EXPECT_EQ(host.Rows(), "0p 1a 2b 3c 1d 0q");
    EXPECT_EQ(host.Links(p), "a d");
    EXPECT_EQ(p->childCount, 2u);
    EXPECT_EQ(host.outline.visibleCount, 6u);
}

TEST(OutlineAdd, FirstChildStaysAsideWithoutAutoOpen) {
    TestHost host;
    OlbItem* p = host.Add(nullptr, "p");
    OlbItem* a = host.Add(p, "a");
    EXPECT_EQ(host.Rows(), "0p");
    EXPECT_EQ(host.Run(p), "a");
    EXPECT_EQ(QueryOpen(p), 0);
    EXPECT_EQ(a->level, 1);
    EXPECT_EQ(host.outline.itemCount, 2u);
    EXPECT_EQ(host.outline.visibleCount, 1u);
}

TEST(OutlineAdd, AutoOpenOpensAChildlessParent) {
    TestHost host;
    host.outline.autoOpen = true;
    OlbItem* p = host.Add(nullptr, "p");
    host.Add(p, "a");
    EXPECT_EQ(host.Rows(), "0p 1a");
    EXPECT_EQ(QueryOpen(p), 1);
}

TEST(OutlineAdd, ClosedParentWithChildrenKeepsThemAside) {
    TestHost host;
    OlbItem* p = host.Add(nullptr, "p");
    host.Add(p, "a");
    host.Add(p, "b");
    EXPECT_EQ(host.Run(p), "a b");
    EXPECT_EQ(host.Links(p), "a b");
    EXPECT_EQ(p->childCount, 2u);
}

TEST(OutlineAdd, AutoOpenFirstOpensAClosedParent) {
    TestHost host;
    OlbItem* p = host.Add(nullptr, "p");
    host.Add(nullptr, "q");
    host.Add(p, "a");
    host.Add(p, "b");
    host.outline.autoOpen = true;
    host.Add(p, "c");
    EXPECT_EQ(host.Rows(), "0p 1a 1b 1c 0q");
    EXPECT_EQ(host.outline.visibleCount, 5u);
    EXPECT_EQ(p->detachedRun, nullptr);
}

TEST(OutlineAdd, AutoOpenNeverOpensALockedParent) {
    TestHost host;
    host.outline.autoOpen = true;
    OlbItem* p = host.Add(nullptr, "p");
    SetLocked(p, true);
    host.Add(p, "a");
    host.Add(p, "b");
    EXPECT_EQ(host.Rows(), "0p");
    EXPECT_EQ(host.Run(p), "a b");
    EXPECT_EQ(QueryOpen(p), 0);
}

TEST(OutlineAdd, OpenLockedParentTakesRows) {
    TestHost host;
    host.outline.autoOpen = true;
    OlbItem* p = host.Add(nullptr, "p");
    host.Add(p, "a");
    SetLocked(p, true);
    host.Add(p, "b");
    EXPECT_EQ(host.Rows(), "0p 1a 1b");
}

TEST(OutlineAdd, HiddenParentKeepsTheChildAside) {
    TestHost host;
    OlbItem* p = host.Add(nullptr, "p");
    OlbItem* a = host.Add(p, "a");
    host.outline.autoOpen = true;
    OlbItem* b = host.Add(a, "b");
    host.Add(a, "c");
    EXPECT_EQ(host.Rows(), "0p");
    EXPECT_EQ(host.Run(a), "b c");
    EXPECT_EQ(host.Links(a), "b c");
    EXPECT_EQ(b->level, 2);
    EXPECT_EQ(a->childCount, 2u);
    EXPECT_EQ(QueryOpen(a), 0);
}

TEST(OutlineAdd, ToADeepParent) {
    TestHost host;
    host.outline.autoOpen = true;
    OlbItem* parent = nullptr;
    for (int level = 0; level < 40'000; ++level) {
        parent = host.Add(parent, "x");
        ASSERT_EQ(parent->level, level < 32'767 ? level : 32'767);
    }
    EXPECT_EQ(host.outline.visibleCount, 40'000u);
    EXPECT_EQ(HandleToIndex(parent), 39'999u);
    Close(host.outline, 0);
    EXPECT_EQ(host.Rows(), "0x");
    EXPECT_EQ(host.outline.visibleCount, 1u);
}

// ---- Sorted ----

TEST(OutlineSort, ByText) {
    TestHost host;
    host.outline.style = kStyleSort;
    for (const char* text : {"m", "c", "x", "a", "n"}) {
        host.Add(nullptr, text);
    }
    EXPECT_EQ(host.Rows(), "0a 0c 0m 0n 0x");
    EXPECT_EQ(host.Links(nullptr), "a c m n x");
}

TEST(OutlineSort, EqualTextsStayInTheOrderTheyCame) {
    TestHost host;
    host.outline.style = kStyleSort;
    OlbItem* first = host.Add(nullptr, "b");
    host.Add(nullptr, "c");
    OlbItem* second = host.Add(nullptr, "b");
    host.Add(nullptr, "a");
    OlbItem* third = host.Add(nullptr, "b");
    EXPECT_EQ(host.Rows(), "0a 0b 0b 0b 0c");
    EXPECT_EQ(HandleToIndex(first), 1u);
    EXPECT_EQ(HandleToIndex(second), 2u);
    EXPECT_EQ(HandleToIndex(third), 3u);
}

TEST(OutlineSort, SortFirstGoesAheadWhateverItsText) {
    TestHost host;
    host.outline.style = kStyleSort;
    host.Add(nullptr, "a");
    host.Add(nullptr, "z", kSortFirst);
    host.Add(nullptr, "b");
    host.Add(nullptr, "y", kSortFirst);
    EXPECT_EQ(host.Rows(), "0y 0z 0a 0b");
}

TEST(OutlineSort, SkipsWhatIsDeeper) {
    TestHost host;
    host.outline.style = kStyleSort;
    host.outline.autoOpen = true;
    OlbItem* b = host.Add(nullptr, "b");
    host.Add(b, "x");
    host.Add(b, "a");
    host.Add(nullptr, "d");
    host.Add(nullptr, "c");
    host.Add(nullptr, "a");
    EXPECT_EQ(host.Rows(), "0a 0b 1a 1x 0c 0d");
}

TEST(OutlineSort, InDetachedRunsToo) {
    TestHost host;
    host.outline.style = kStyleSort;
    OlbItem* p = host.Add(nullptr, "p");
    for (const char* text : {"m", "c", "x"}) {
        host.Add(p, text);
    }
    EXPECT_EQ(host.Run(p), "c m x");
    EXPECT_EQ(host.Links(p), "c m x");
}

TEST(OutlineSort, BySortingNothingElse) {
    TestHost host;
    host.Add(nullptr, "m");
    host.Add(nullptr, "c");
    host.outline.style = kStyleSort;
    host.Add(nullptr, "d");
    EXPECT_EQ(host.Rows(), "0d 0m 0c") << "before the first that is greater, from the front";
    host.outline.style = 0;
    host.Add(nullptr, "a");
    EXPECT_EQ(host.Rows(), "0d 0m 0c 0a");
}

// What may break the order makes the search go from the front again.
TEST(OutlineSort, ChangedItemsAreSearchedFromTheFront) {
    TestHost host;
    host.outline.style = kStyleSort;
    OlbItem* a = host.Add(nullptr, "a");
    OlbItem* b = host.Add(nullptr, "b");
    OlbItem* c = host.Add(nullptr, "c");
    SetText(host.outline, a, "z");
    host.Add(nullptr, "d");
    EXPECT_EQ(host.Rows(), "0d 0z 0b 0c");
    SetText(host.outline, a, "a");
    SetBitmapIndex(host.outline, c, kSortFirst);
    SetText(host.outline, b, "m");
    // d a m c, of which c is the first of all.
    host.Add(nullptr, "e");
    EXPECT_EQ(host.Rows(), "0d 0a 0e 0m 0c");
    host.Insert(nullptr, 0, "x");
    host.Add(nullptr, "b");
    EXPECT_EQ(host.Rows(), "0b 0x 0d 0a 0e 0m 0c");
}

int comparisons = 0;

int CountAndCompare(void* /*context*/, const char* first, const char* second) {
    ++comparisons;
    return std::strcmp(first, second);
}

// A balanced tree of n nodes is at most 1.4405 log2(n + 2) deep, and one way down it is all that an
// addition asks about: 20 for 20,000 rows, where a walk would ask about 5,000.
TEST(OutlineSort, AmongSiblingsInOrderTakesOneWayDown) {
    constexpr int kSiblings = 5'000;
    constexpr int kDeepest = 20;
    for (const bool open : {false, true}) {
        TestHost host;
        Callbacks counting = *host.outline.callbacks;
        counting.compareTexts = CountAndCompare;
        host.outline.callbacks = &counting;
        host.outline.compatibilityMode = 0;
        host.outline.style = kStyleSort | kStyleNoRedraw;
        host.outline.autoOpen = open;
        OlbItem* p = host.Add(nullptr, "p");
        host.Add(nullptr, "q");
        for (int i = 0; i < kSiblings; ++i) {
            char text[8];
            std::snprintf(text, sizeof text, "%05d", i * 7919 % kSiblings); // in no order
            comparisons = 0;
            OlbItem* sibling = host.Add(p, text);
            ASSERT_LE(comparisons, kDeepest) << i << (open ? ", rows" : ", detached");
            host.Add(host.Add(sibling, "x"), "y");
            host.Add(sibling, "z");
        }
        EXPECT_EQ(host.outline.visibleCount, open ? 4u * kSiblings + 2 : 2u);
        const OlbItem* sibling = p->firstChild;
        for (int i = 0; i < kSiblings; ++i, sibling = sibling->nextSibling) {
            ASSERT_EQ(std::atoi(TextOf(sibling)), i);
            ASSERT_EQ(HandleToIndex(sibling), static_cast<std::uint32_t>(open ? 4 * i + 1 : i));
        }
    }
}

TEST(OutlineSort, ParentComparesValuesInOrder) {
    TestHost host;
    host.outline.compatibilityMode = 0;
    host.outline.style = kStyleSort | kStyleOwnerDrawFixed;
    host.AddValue(nullptr, 20);
    host.AddValue(nullptr, 10);
    host.AddValue(nullptr, 40);
    EXPECT_EQ(host.Rows(), "010 020 040");
    host.TakeLog();
    host.AddValue(nullptr, 30);
    EXPECT_EQ(host.Rows(), "010 020 030 040");
    EXPECT_EQ(host.TakeLog(), (Lines{"compare 30 10 at 0", "compare 30 20 at 1",
                                     "compare 30 40 at 2", "rows", "redraw all"}));
    EXPECT_EQ(host.Add(nullptr, reinterpret_cast<const char*>(5), kSortFirst)->node->leftCount, 0u);
    EXPECT_EQ(host.Rows(), "05 010 020 030 040") << "the parent decides";
}

TEST(OutlineSort, OwnerDrawnWithStringsSortsByText) {
    TestHost host;
    host.outline.style = kStyleSort | kStyleOwnerDrawFixed | kStyleHasStrings;
    host.Add(nullptr, "b");
    host.Add(nullptr, "a");
    EXPECT_EQ(host.Rows(), "0a 0b");
}

// ---- What the control is told ----

TEST(OutlineAdd, TellsInOrder) {
    TestHost host;
    host.outline.style = kStyleOwnerDrawVariable | kStyleHasStrings;
    host.answerToMeasure = 33;
    const OlbItem* a = host.Add(nullptr, "a");
    EXPECT_EQ(a->height, 33);
    EXPECT_EQ(host.TakeLog(), (Lines{"measure a 0", "record a 0", "rows", "redraw all"}));
    host.Add(nullptr, "b");
    EXPECT_EQ(host.TakeLog(), (Lines{"measure b 1", "record b 0", "rows", "redraw all"}));
}

TEST(OutlineAdd, MeasuresHiddenItemsWithoutARow) {
    TestHost host;
    host.outline.compatibilityMode = 0;
    host.outline.style = kStyleOwnerDrawVariable;
    host.answerToMeasure = 33;
    OlbItem* p = host.AddValue(nullptr, 1);
    host.TakeLog();
    EXPECT_EQ(host.AddValue(p, 2)->height, 33);
    EXPECT_EQ(host.TakeLog(), (Lines{"measure 2 -", "redraw row 0"}));
    EXPECT_EQ(InsertChild(host.outline, p->firstChild, 0, reinterpret_cast<const char*>(3))->height,
              33);
    EXPECT_EQ(host.TakeLog(), (Lines{"measure 3 -"}));
}

TEST(OutlineAdd, MeasuresOnlyVariableHeights) {
    TestHost host;
    host.answerToMeasure = 33;
    host.outline.style = kStyleOwnerDrawFixed | kStyleHasStrings;
    EXPECT_EQ(host.Add(nullptr, "a")->height, 0);
    EXPECT_EQ(host.TakeLog(), (Lines{"record a 0", "rows", "redraw all"}));
}

TEST(OutlineAdd, HiddenFirstChildChangesItsParentsRow) {
    TestHost host;
    host.outline.compatibilityMode = 0;
    host.Add(nullptr, "a");
    OlbItem* p = host.Add(nullptr, "p");
    host.TakeLog();
    OlbItem* c = host.Add(p, "c");
    EXPECT_EQ(host.TakeLog(), (Lines{"redraw row 1"})) << "it now shows a mark";
    host.Add(p, "d");
    EXPECT_EQ(host.TakeLog(), Lines{});
    host.Add(c, "e");
    EXPECT_EQ(host.TakeLog(), Lines{});
}

TEST(OutlineAdd, NothingIsRedrawnUnderNoRedraw) {
    TestHost host;
    host.outline.style = kStyleNoRedraw;
    OlbItem* p = host.Add(nullptr, "p");
    EXPECT_EQ(host.TakeLog(), (Lines{"record p 0", "rows"}));
    host.Add(p, "c");
    EXPECT_EQ(host.TakeLog(), (Lines{"record c 0"}));
}

TEST(OutlineAdd, FullSideTableIsToldOnce) {
    TestHost host;
    host.sideTableFull = true;
    EXPECT_TRUE(IsItem(host.Add(nullptr, "a")));
    EXPECT_EQ(host.TakeLog(), (Lines{"record a 0", "errorSpace", "rows", "redraw all"}));
    EXPECT_EQ(host.Rows(), "0a");
}

// ---- Texts ----

TEST(OutlineText, GrowsAndShrinks) {
    TestHost host;
    OlbItem* item = host.Add(nullptr, "abc");
    const std::uint32_t blocks = BlockCount();
    EXPECT_TRUE(SetText(host.outline, item, "ab"));
    EXPECT_STREQ(TextOf(item), "ab");
    EXPECT_EQ(BlockCount(), blocks) << "in the record";
    const std::string longer(300, 'x');
    EXPECT_TRUE(SetText(host.outline, item, longer.c_str()));
    EXPECT_EQ(TextOf(item), longer);
    EXPECT_EQ(IndexToHandle(host.outline, 0), item) << "the record stays in its place";
    EXPECT_EQ(BlockCount(), blocks + 1);
    EXPECT_TRUE(SetText(host.outline, item, TextOf(item) + 1)) << "a part of itself";
    EXPECT_EQ(TextOf(item), longer.substr(1));
    EXPECT_TRUE(SetText(host.outline, item, TextOf(item) + 298));
    EXPECT_STREQ(TextOf(item), "x");
    EXPECT_EQ(BlockCount(), blocks);
    EXPECT_TRUE(SetText(host.outline, item, nullptr));
    EXPECT_STREQ(TextOf(item), "");
}

TEST(OutlineText, TakesTurnsWithAValue) {
    TestHost host;
    OlbItem* item = host.Add(nullptr, "a text that is not short");
    const std::uint32_t blocks = BlockCount();
    SetText(host.outline, item, "another one, longer by far than the first");
    host.outline.style = kStyleOwnerDrawFixed;
    SetText(host.outline, item, reinterpret_cast<const char*>(77));
    EXPECT_EQ(ValueOf(item), 77u);
    EXPECT_EQ(BlockCount(), blocks);
    host.outline.style = 0;
    SetText(host.outline, item, "text again");
    EXPECT_STREQ(TextOf(item), "text again");
    EXPECT_EQ(ValueOf(item), 0u);
}

TEST(OutlineText, StaysWithoutMemory) {
    TestHost host;
    OlbItem* item = host.Add(nullptr, "a");
    host.TakeLog();
    FailAllocationsAfter(0);
    EXPECT_FALSE(SetText(host.outline, item, "much longer than before"));
    FailAllocationsAfter(-1);
    EXPECT_STREQ(TextOf(item), "a");
    EXPECT_EQ(host.TakeLog(), (Lines{"errorSpace"}));
}

} // namespace
} // namespace vorn::hierlist::test
