// Moving and copying.
#include "tests/support/outline_host.h"

#include <gtest/gtest.h>

namespace vorn::hierlist::test {
namespace {

// p with a (with x and y), b and c, then q; p and a are open.
struct Small : TestHost {
    OlbItem* p = Add(nullptr, "p");
    OlbItem* q = Add(nullptr, "q");
    OlbItem* a = Add(p, "a");
    OlbItem* b = Add(p, "b");
    OlbItem* c = Add(p, "c");
    OlbItem* x = Add(a, "x");
    OlbItem* y = Add(a, "y");

    Small() {
        OpenItem(p);
        OpenItem(a);
        log.clear();
    }

    OlbItem* Move(OlbItem* item, OlbItem* parent, std::uint16_t position) {
        return MoveItem(outline, item, parent, position);
    }
    OlbItem* Copy(OlbItem* item, OlbItem* parent, std::uint16_t position) {
        return CopyItem(outline, item, parent, position);
    }
};

// ---- Moving ----

TEST(OutlineMove, ToAnotherParent) {
    Small host;
    EXPECT_EQ(host.Move(host.b, host.a, 1), host.b);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2b 2y 1c 0q");
    EXPECT_EQ(host.Links(host.a), "x b y");
    EXPECT_EQ(host.Links(host.p), "a c");
    EXPECT_EQ(host.p->childCount, 2u);
    EXPECT_EQ(host.a->childCount, 3u);
    EXPECT_EQ(host.outline.itemCount, 7u);
    EXPECT_EQ(host.outline.visibleCount, 7u);
    host.Move(host.b, nullptr, 1);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1c 0b 0q");
    EXPECT_EQ(ParentOf(host.b), nullptr);
}

TEST(OutlineMove, AppendsAtTheLargestPosition) {
    Small host;
    host.Move(host.b, nullptr, kAppend);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1c 0q 0b");
    host.Move(host.x, host.p, kAppend);
    EXPECT_EQ(host.Rows(), "0p 1a 2y 1c 1x 0q 0b");
}

TEST(OutlineMove, TakesItsChildrenAlongClosed) {
    Small host;
    host.Move(host.a, nullptr, 0);
    EXPECT_EQ(host.Rows(), "0a 0p 1b 1c 0q");
    EXPECT_EQ(host.Run(host.a), "x y");
    EXPECT_EQ(host.x->level, 1);
    EXPECT_EQ(host.outline.visibleCount, 5u);
    EXPECT_EQ(host.outline.itemCount, 7u);
    host.OpenItem(host.a);
    EXPECT_EQ(host.Rows(), "0a 1x 1y 0p 1b 1c 0q");
}

TEST(OutlineMove, GivesAllBelowTheirLevel) {
    Small host;
    OlbItem* z = host.Add(host.y, "z");
    host.Move(host.p, host.q, 0);
    EXPECT_EQ(host.Rows(), "0q 1p");
    EXPECT_EQ(host.a->level, 2);
    EXPECT_EQ(host.y->level, 3);
    EXPECT_EQ(z->level, 4);
}

// The position counts as the items stand before the move.
TEST(OutlineMove, PositionAllowsForTheItemsOwnRemoval) {
    const std::string expected[] = {
        // a, b and c to the positions 0 to 4
        "a b c", "a b c", "b a c", "b c a", "b c a", //
        "b a c", "a b c", "a b c", "a c b", "a c b", //
        "c a b", "a c b", "a b c", "a b c", "a b c",
    };
    for (std::size_t item = 0; item < 3; ++item) {
        for (std::uint16_t position = 0; position < 5; ++position) {
            for (const bool top : {false, true}) {
                TestHost host;
                OlbItem* parent = top ? nullptr : host.Add(nullptr, "p");
                OlbItem* items[] = {host.Add(parent, "a"), host.Add(parent, "b"),
                                    host.Add(parent, "c")};
                if (!top) {
                    host.OpenItem(parent);
                }
                MoveItem(host.outline, items[item], parent, position);
                EXPECT_EQ(host.Links(parent), expected[item * 5 + position])
                    << item << " to " << position;
            }
        }
    }
}

// The same past rows that belong to children: a is open.
TEST(OutlineMove, PositionsCountSiblingsNotRows) {
    Small host;
    host.Move(host.c, host.p, 1);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1c 1b 0q");
    host.Move(host.c, host.p, 3);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1b 1c 0q");
    host.Move(host.a, host.p, 2);
    EXPECT_EQ(host.Rows(), "0p 1b 1a 1c 0q");
}

TEST(OutlineMove, UnderItselfOrItsDescendantIsRefused) {
    Small host;
    const std::string rows = host.Rows();
    EXPECT_EQ(host.Move(host.p, host.p, 0), NoItem());
    EXPECT_EQ(host.Move(host.p, host.a, 0), NoItem());
    EXPECT_EQ(host.Move(host.p, host.y, 0), NoItem());
    EXPECT_EQ(host.Rows(), rows);
    EXPECT_EQ(host.TakeLog(), Lines{});
}

TEST(OutlineMove, NoItemIsZero) {
    Small host;
    EXPECT_EQ(host.Move(nullptr, host.p, 0), nullptr);
    EXPECT_EQ(host.Move(NoItem(), host.p, 0), nullptr);
    EXPECT_EQ(host.Move(host.b, NoItem(), 0), nullptr);
    EXPECT_EQ(host.TakeLog(), Lines{});
}

TEST(OutlineMove, OnlyChildLeavesItsParentClosed) {
    Small host;
    host.Move(host.x, host.q, 0);
    host.Move(host.y, host.q, kAppend);
    EXPECT_EQ(host.Rows(), "0p 1a 1b 1c 0q 1x 1y");
    EXPECT_EQ(QueryOpen(host.a), 0);
    host.Move(host.x, host.q, 2);
    EXPECT_EQ(host.Rows(), "0p 1a 1b 1c 0q 1y 1x");
}

TEST(OutlineMove, OnlyChildToItsOwnParent) {
    Small host;
    DeleteItem(host.outline, host.x);
    host.Move(host.y, host.a, 0);
    EXPECT_EQ(host.Rows(), "0p 1a 2y 1b 1c 0q");
}

TEST(OutlineMove, ToAHiddenParentIsAsOddAsInserting) {
    Small host;
    host.CloseItem(host.p);
    host.Move(host.q, host.a, kAppend);
    EXPECT_EQ(host.Links(host.a), "q x y");
    EXPECT_EQ(host.Run(host.a), "x y q");
    EXPECT_EQ(host.q->level, 0);
    EXPECT_EQ(host.a->childCount, 3u);
    host.Move(host.b, host.a, 0);
    EXPECT_EQ(host.Run(host.a), "b x y q");
    EXPECT_EQ(host.b->level, 2);
    EXPECT_EQ(host.a->childCount, 3u);
    EXPECT_EQ(host.outline.itemCount, 7u);
    EXPECT_EQ(host.Rows(), "0p");
    EXPECT_EQ(host.outline.visibleCount, 1u);
}

TEST(OutlineMove, FromHiddenToARow) {
    Small host;
    host.CloseItem(host.p);
    host.Move(host.x, nullptr, 1);
    EXPECT_EQ(host.Rows(), "0p 0x 0q");
    EXPECT_EQ(host.outline.visibleCount, 3u);
    EXPECT_EQ(host.Run(host.a), "y");
}

TEST(OutlineMove, DeselectsAndKeepsTheRest) {
    Small host;
    SetSelected(host.outline, host.a, true);
    SetLocked(host.a, true);
    host.a->itemData = 5;
    host.a->height = 6;
    host.a->bitmapIndex = 7;
    host.Move(host.a, host.q, 0);
    EXPECT_EQ(host.a->flags, kFlagLocked);
    EXPECT_EQ(host.a->itemData, 5u);
    EXPECT_EQ(host.a->height, 6);
    EXPECT_EQ(host.a->bitmapIndex, 7);
    EXPECT_STREQ(TextOf(host.a), "a");
}

TEST(OutlineMove, KeepsTheSideTablesValue) {
    Small host;
    for (auto& [item, value] : host.sideTable) {
        value = item == host.b ? 42 : 0;
    }
    host.outline.style = kStyleOwnerDrawVariable | kStyleHasStrings;
    host.Move(host.b, nullptr, 0);
    EXPECT_EQ(host.TakeLog(), (Lines{"forget b", "record b 42", "rows", "redraw all"}));
}

TEST(OutlineMove, RowIsRedrawnEvenUnderNoRedraw) {
    Small host;
    host.outline.style = kStyleNoRedraw;
    host.outline.compatibilityMode = 0;
    host.Move(host.b, nullptr, 0);
    EXPECT_EQ(host.TakeLog(), (Lines{"rows", "redraw all"}));
    MoveChildren(host.outline, host.a, nullptr, 0);
    EXPECT_EQ(host.TakeLog(), (Lines{"rows", "redraw all"}));
    OlbItem* hidden = host.Add(host.q, "h");
    host.TakeLog();
    host.Move(hidden, nullptr, 0);
    EXPECT_EQ(host.TakeLog(), (Lines{"rows"})) << "it was no row";
}

TEST(OutlineMove, FullSideTableIsTold) {
    Small host;
    host.sideTableFull = true;
    EXPECT_EQ(host.Move(host.b, nullptr, 0), host.b);
    EXPECT_EQ(host.TakeLog(),
              (Lines{"forget b", "record b 0", "errorSpace", "rows", "redraw all"}));
}

TEST(OutlineMove, LosesTheOrderOfTheNewSiblings) {
    TestHost host;
    host.outline.style = kStyleSort;
    host.Add(nullptr, "a");
    OlbItem* b = host.Add(nullptr, "b");
    host.Add(nullptr, "c");
    MoveItem(host.outline, b, nullptr, 0);
    host.Add(nullptr, "aa");
    EXPECT_EQ(host.Rows(), "0aa 0b 0a 0c");
}

TEST(OutlineMoveChildren, KeepTheirOrder) {
    Small host;
    EXPECT_EQ(MoveChildren(host.outline, host.p, host.q, 0), host.c);
    EXPECT_EQ(host.Rows(), "0p 0q 1a 1b 1c");
    EXPECT_EQ(QueryOpen(host.p), 0);
    MoveChildren(host.outline, host.a, host.q, 1);
    EXPECT_EQ(host.Rows(), "0p 0q 1a 1x 1y 1b 1c");
    MoveChildren(host.outline, host.q, nullptr, kAppend);
    EXPECT_EQ(host.Rows(), "0p 0q 0a 0x 0y 0b 0c");
    EXPECT_EQ(host.outline.itemCount, 7u);
}

TEST(OutlineMoveChildren, RefusesWhatCannotBe) {
    Small host;
    const std::string rows = host.Rows();
    EXPECT_EQ(MoveChildren(host.outline, host.p, host.a, 0), NoItem());
    EXPECT_EQ(MoveChildren(host.outline, host.p, host.y, 0), NoItem());
    EXPECT_EQ(MoveChildren(host.outline, host.p, host.p, 0), host.c) << "they are there";
    EXPECT_EQ(MoveChildren(host.outline, host.q, host.a, 0), nullptr) << "it has none";
    EXPECT_EQ(MoveChildren(host.outline, nullptr, host.a, 0), nullptr);
    EXPECT_EQ(MoveChildren(host.outline, host.p, NoItem(), 0), nullptr);
    EXPECT_EQ(host.Rows(), rows);
}

// ---- Copying ----

TEST(OutlineCopy, CopiesAllBelowInOrder) {
    Small host;
    const OlbItem* copy = host.Copy(host.p, nullptr, kAppend);
    ASSERT_TRUE(IsItem(copy));
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1b 1c 0q 0p");
    EXPECT_EQ(host.outline.itemCount, 13u);
    EXPECT_EQ(host.outline.visibleCount, 8u);
    OpenAll(host.outline, nullptr);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1b 1c 0q 0p 1a 2x 2y 1b 1c");
    EXPECT_EQ(copy->childCount, 3u);
    EXPECT_EQ(host.Links(copy), "a b c");
}

TEST(OutlineCopy, ToAPosition) {
    Small host;
    host.Copy(host.a, host.p, 2);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1b 1a 1c 0q");
    host.Copy(host.b, host.q, 0);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1b 1a 1c 0q 1b");
}

TEST(OutlineCopy, CarriesEverythingButSelectionAndOpenness) {
    Small host;
    int strip = 0;
    for (OlbItem* item : {host.a, host.x}) {
        item->itemData = 5;
        item->height = 6;
        item->bitmapIndex = 7;
        item->bitmaps = &strip;
        SetLocked(item, true);
        SetSelected(host.outline, item, true);
        item->flags |= kFlagCaret;
    }
    const OlbItem* copy = host.Copy(host.a, nullptr, 0);
    for (const OlbItem* item : {copy, static_cast<const OlbItem*>(copy->firstChild)}) {
        EXPECT_EQ(item->itemData, 5u);
        EXPECT_EQ(item->height, 6);
        EXPECT_EQ(item->bitmapIndex, 7);
        EXPECT_EQ(item->bitmaps, &strip);
        EXPECT_EQ(item->flags, kFlagLocked);
    }
    EXPECT_STREQ(TextOf(copy->firstChild), "x");
}

TEST(OutlineCopy, CarriesValuesAndLongTexts) {
    Small host;
    const std::string longer(200, 't');
    SetText(host.outline, host.b, longer.c_str());
    EXPECT_EQ(TextOf(host.Copy(host.b, nullptr, 0)), longer);
    host.outline.style = kStyleOwnerDrawFixed;
    OlbItem* value = host.AddValue(nullptr, 99);
    EXPECT_EQ(ValueOf(host.Copy(value, nullptr, 0)), 99u);
}

TEST(OutlineCopy, IntoItsOwnSubtreeCopiesWhatWasThere) {
    Small host;
    const OlbItem* copy = host.Copy(host.a, host.a, 0);
    EXPECT_EQ(host.Rows(), "0p 1a 2a 2x 2y 1b 1c 0q");
    EXPECT_EQ(host.Run(copy), "x y");
    const OlbItem* inner = host.Copy(host.p, host.y, kAppend);
    EXPECT_EQ(host.Rows(), "0p 1a 2a 2x 2y 3p 1b 1c 0q");
    EXPECT_EQ(host.Links(inner), "a b c");
    EXPECT_EQ(host.Links(inner->firstChild), "a x y");
    EXPECT_EQ(inner->firstChild->lastChild->firstChild, nullptr) << "y had none when it began";
}

TEST(OutlineCopy, NoItemIsZero) {
    Small host;
    EXPECT_EQ(host.Copy(nullptr, nullptr, 0), nullptr);
    EXPECT_EQ(host.Copy(NoItem(), nullptr, 0), nullptr);
    EXPECT_EQ(host.Copy(host.a, NoItem(), 0), nullptr);
}

TEST(OutlineCopy, RecordsEveryCopy) {
    Small host;
    host.Copy(host.a, nullptr, 0);
    EXPECT_EQ(host.TakeLog(),
              (Lines{"record a 0", "record x 0", "record y 0", "rows", "redraw all"}));
}

TEST(OutlineCopy, OrderIsKnownOfTheCopiesToo) {
    TestHost host;
    host.outline.style = kStyleSort;
    OlbItem* p = host.Add(nullptr, "p");
    host.Add(p, "a");
    host.Add(p, "c");
    OlbItem* copy = CopyItem(host.outline, p, nullptr, 0);
    host.Add(copy, "b");
    EXPECT_EQ(host.Run(copy), "a b c");
    host.Insert(p, 0, "z");
    OlbItem* other = CopyItem(host.outline, p, nullptr, 0);
    host.Add(other, "b");
    EXPECT_EQ(host.Run(other), "b z a c");
}

TEST(OutlineCopyChildren, KeepTheirOrder) {
    Small host;
    OlbItem* last = CopyChildren(host.outline, host.p, host.q, 0);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2y 1b 1c 0q 1a 1b 1c");
    EXPECT_EQ(HandleToIndex(last), 9u);
    CopyChildren(host.outline, host.a, host.a, 1);
    EXPECT_EQ(host.Rows(), "0p 1a 2x 2x 2y 2y 1b 1c 0q 1a 1b 1c");
    CopyChildren(host.outline, host.a, nullptr, kAppend);
    EXPECT_EQ(host.Links(nullptr), "p q x x y y");
    EXPECT_EQ(host.outline.itemCount, 18u) << "7 + 5 (with x and y below a) + 2 + 4";
}

TEST(OutlineCopyChildren, NothingToCopyIsZero) {
    Small host;
    EXPECT_EQ(CopyChildren(host.outline, host.b, nullptr, 0), nullptr);
    EXPECT_EQ(CopyChildren(host.outline, nullptr, nullptr, 0), nullptr);
    EXPECT_EQ(CopyChildren(host.outline, host.p, NoItem(), 0), nullptr);
}

} // namespace
} // namespace vorn::hierlist::test
