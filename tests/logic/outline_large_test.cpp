// More children than 16 bits count, and more levels than a stack bears.
#include "tests/support/outline_host.h"

#include <gtest/gtest.h>

namespace vorn::hierlist::test {
namespace {

// Silent, so that nothing is written down.
struct Large : TestHost {
    Large() {
        outline.compatibilityMode = 0;
        outline.style = kStyleNoRedraw;
        quiet = *outline.callbacks;
        quiet.rowsChanged = [](void*) {};
        quiet.redraw = [](void*, Redraw, std::uint32_t) {};
        quiet.retired = [](void*, OlbItem*) {};
        outline.callbacks = &quiet;
    }

    Callbacks quiet{};
};

// ---- Many children ----

constexpr std::uint32_t kMany = 70'000;

struct Wide : Large {
    OlbItem* p = Add(nullptr, "p");

    Wide() {
        for (std::uint32_t i = 0; i < kMany; ++i) {
            Add(p, "x");
        }
    }
};

TEST(OutlineWide, ChildrenBeyond65535Count) {
    Wide host;
    EXPECT_EQ(host.p->childCount, kMany);
    host.OpenItem(host.p);
    EXPECT_EQ(host.outline.visibleCount, kMany + 1);
    EXPECT_EQ(HandleToIndex(host.p->lastChild), kMany);
    host.CloseItem(host.p);
    EXPECT_EQ(host.outline.visibleCount, 1u);
    EXPECT_EQ(HandleToIndex(host.p->lastChild), kMany - 1);
    EXPECT_EQ(DeleteSubtree(host.outline, host.p), 1);
}

TEST(OutlineWide, LastPositionBut65535IsAPosition) {
    for (const bool open : {false, true}) {
        Wide host;
        SetLocked(host.p, !open);
        const std::uint32_t before = open ? 1 : 0; // rows in front of the children
        OlbItem* at = host.Insert(host.p, 65534, "a");
        EXPECT_EQ(HandleToIndex(at), before + 65534);
        OlbItem* last = host.Insert(host.p, kAppend, "b");
        EXPECT_EQ(HandleToIndex(last), before + kMany + 1);
        EXPECT_EQ(last->nextSibling, nullptr);
        MoveItem(host.outline, last, host.p, 65534);
        EXPECT_EQ(HandleToIndex(last), before + 65534);
        EXPECT_EQ(HandleToIndex(at), before + 65535);
        MoveItem(host.outline, at, host.p, kAppend);
        EXPECT_EQ(HandleToIndex(at), before + kMany + 1);
    }
}

// Children that are moved or copied together stay together past the largest position.
TEST(OutlineWide, PositionsGoOnBeyond65535) {
    Wide host;
    OlbItem* q = host.Add(nullptr, "q");
    OlbItem* items[] = {host.Add(q, "a"), host.Add(q, "b"), host.Add(q, "c")};
    const OlbItem* copy = CopyChildren(host.outline, q, host.p, 65534);
    EXPECT_EQ(HandleToIndex(copy), 1 + 65536u);
    MoveChildren(host.outline, q, host.p, 65534);
    for (std::uint32_t i = 0; i < 3; ++i) {
        EXPECT_EQ(HandleToIndex(items[i]), 1 + 65534 + i);
    }
    EXPECT_EQ(HandleToIndex(copy), 1 + 65539u);
}

TEST(OutlineWide, InsertingAtARowGoesAnywhere) {
    Wide host;
    host.OpenItem(host.p);
    EXPECT_EQ(HandleToIndex(InsertAtRow(host.outline, 68'000, "a")), 68'000u);
    EXPECT_EQ(HandleToIndex(InsertAtRow(host.outline, 80'000, "b")), kMany + 2);
}

// ---- Many levels ----

constexpr std::uint32_t kDeep = 60'000;

struct Deep : Large {
    OlbItem* first = Add(nullptr, "x");
    OlbItem* last = first;

    Deep() {
        for (std::uint32_t i = 1; i < kDeep; ++i) {
            last = Add(last, "x");
        }
    }
};

TEST(OutlineDeep, OpensAndCloses) {
    Deep host;
    EXPECT_EQ(QueryVisible(host.last), 0);
    OpenAll(host.outline, nullptr);
    EXPECT_EQ(host.outline.visibleCount, kDeep);
    EXPECT_EQ(QueryVisible(host.last), 1);
    EXPECT_EQ(HandleToIndex(host.last), kDeep - 1);
    CloseAll(host.outline);
    EXPECT_EQ(host.outline.visibleCount, 1u);
    OpenAll(host.outline, host.first);
    host.CloseItem(host.first);
    EXPECT_EQ(host.outline.visibleCount, 1u);
}

TEST(OutlineDeep, MovesAndCopies) {
    Deep host;
    OpenAll(host.outline, nullptr);
    OlbItem* p = host.Add(nullptr, "p");
    EXPECT_EQ(MoveItem(host.outline, host.first, p, 0), host.first);
    EXPECT_EQ(host.last->level, 32'767);
    EXPECT_EQ(MoveItem(host.outline, host.first, host.last, 0), NoItem());
    const OlbItem* copy = CopyItem(host.outline, host.first, nullptr, 0);
    ASSERT_TRUE(IsItem(copy));
    EXPECT_EQ(host.outline.itemCount, 2 * kDeep + 1);
    std::uint32_t levels = 0;
    for (; copy != nullptr; copy = copy->firstChild) {
        ++levels;
    }
    EXPECT_EQ(levels, kDeep);
    Reset(host.outline);
    EXPECT_EQ(host.outline.itemCount, 0u);
}

TEST(OutlineDeep, SortsAboveAnOpenChain) {
    Deep host;
    OpenAll(host.outline, nullptr);
    host.outline.style |= kStyleSort;
    OlbItem* z = host.Add(nullptr, "z");
    EXPECT_EQ(HandleToIndex(z), kDeep);
    OlbItem* y = host.Add(nullptr, "y");
    EXPECT_EQ(HandleToIndex(y), kDeep);
    OlbItem* a = host.Add(nullptr, "a");
    EXPECT_EQ(HandleToIndex(a), 0u);
}

} // namespace
} // namespace vorn::hierlist::test
