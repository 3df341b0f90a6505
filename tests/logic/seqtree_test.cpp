// The sequence tree, beside a vector that does the same.
#include "hierlist/seqtree.h"
#include "tests/support/seqtree_model.h"

#include <cstring>
#include <gtest/gtest.h>
#include <iostream>
#include <memory>
#include <random>
#include <utility>

namespace vorn::hierlist::test {
namespace {

constexpr std::uint32_t kPastAll = 0xFFFFFFFE;

// Nodes at addresses of their own, filled with rubbish: inserting has to set all but the item.
class Nodes {
public:
    OlbSeqNode* New() {
        owned.push_back(std::make_unique<OlbSeqNode>());
        std::memset(static_cast<void*>(owned.back().get()), 0xA5, sizeof(OlbSeqNode));
        return owned.back().get();
    }

private:
    std::vector<std::unique_ptr<OlbSeqNode>> owned;
};

class Random {
public:
    explicit Random(std::uint32_t seed) : engine(seed) {}

    std::uint32_t Below(std::size_t bound) { return static_cast<std::uint32_t>(engine() % bound); }

private:
    std::mt19937 engine;
};

Pair Row(Nodes& nodes, std::uint32_t count) {
    Pair row;
    for (std::uint32_t i = 0; i < count; ++i) {
        row.Insert(kPastAll, nodes.New());
    }
    return row;
}

TEST(SeqTree, EmptyHasNothing) {
    EXPECT_EQ(SeqCount(nullptr), 0u);
    EXPECT_EQ(SeqAt(nullptr, 0), nullptr);
    EXPECT_EQ(SeqAt(nullptr, 0xFFFFFFFF), nullptr);
    EXPECT_EQ(SeqFirst(nullptr), nullptr);
    EXPECT_EQ(SeqLast(nullptr), nullptr);
}

TEST(SeqTree, NodeStandsAlone) {
    Nodes nodes;
    OlbSeqNode* node = nodes.New();
    OlbSeqNode* root = nullptr;
    SeqInsert(root, kSeqFront, node);
    EXPECT_EQ(root, node);
    EXPECT_EQ(SeqCount(root), 1u);
    EXPECT_EQ(SeqPosition(node), 0u);
    EXPECT_EQ(SeqRoot(node), node);
    EXPECT_EQ(SeqNext(node), nullptr);
    EXPECT_EQ(SeqPrevious(node), nullptr);
    EXPECT_EQ(node->left, nullptr);
    EXPECT_EQ(node->right, nullptr);
}

TEST(SeqTree, InsertLeavesTheItemAlone) {
    Nodes nodes;
    OlbSeqNode* node = nodes.New();
    OlbItem* item = ItemOf(nodes.New());
    node->item = item;
    OlbSeqNode* root = nullptr;
    SeqInsert(root, kSeqFront, node);
    EXPECT_EQ(node->item, item);
}

TEST(SeqTree, InsertsAfterAPosition) {
    Nodes nodes;
    OlbSeqNode* const a = nodes.New();
    OlbSeqNode* const b = nodes.New();
    OlbSeqNode* const c = nodes.New();
    OlbSeqNode* const d = nodes.New();
    OlbSeqNode* const e = nodes.New();
    for (OlbSeqNode* node : {a, b, c, d, e}) {
        node->item = ItemOf(node);
    }
    OlbSeqNode* root = nullptr;
    SeqInsert(root, 0, a);         // past the end of nothing
    SeqInsert(root, kSeqFront, b); // b a
    SeqInsert(root, 0, c);         // b c a
    SeqInsert(root, 2, d);         // b c a d
    SeqInsert(root, 9, e);         // b c a d e, past the end
    EXPECT_EQ(FaultOf(root, {b, c, a, d, e}), "");
}

TEST(SeqTree, CutsEveryRangeOfEverySmallTree) {
    for (std::uint32_t count = 0; count <= 16; ++count) {
        for (std::uint32_t first = 0; first <= count + 1; ++first) {
            for (std::uint32_t last = 0; last <= count + 1; ++last) {
                Nodes nodes;
                Pair row = Row(nodes, count);
                const Pair run = row.Cut(first, last);
                ASSERT_EQ(row.Fault(), "") << count << ": " << first << " to " << last;
                ASSERT_EQ(run.Fault(), "") << count << ": " << first << " to " << last;
            }
        }
    }
}

TEST(SeqTree, SplicesEverywhereIntoEverySmallTree) {
    for (std::uint32_t count = 0; count <= 12; ++count) {
        for (std::uint32_t length = 0; length <= 40; length += length < 5 ? 1 : 7) {
            for (std::uint32_t after = 0; after <= count + 2; ++after) {
                Nodes nodes;
                Pair row = Row(nodes, count);
                Pair run = Row(nodes, length);
                row.Splice(after - 1, run); // from the front to past the end
                ASSERT_EQ(row.Fault(), "") << length << " into " << count << " after " << after;
            }
        }
    }
}

TEST(SeqTree, CutOfAnEmptyRangeTakesNothing) {
    Nodes nodes;
    Pair row = Row(nodes, 10);
    EXPECT_EQ(SeqCut(row.root, 5, 4), nullptr);
    EXPECT_EQ(SeqCut(row.root, 10, 12), nullptr);
    EXPECT_EQ(SeqCut(row.root, kSeqFront, 3), nullptr);
    EXPECT_EQ(SeqCut(row.root, kSeqFront, kSeqFront), nullptr);
    EXPECT_EQ(row.Fault(), "");
    OlbSeqNode* nothing = nullptr;
    EXPECT_EQ(SeqCut(nothing, 0, 0), nullptr);
    EXPECT_EQ(nothing, nullptr);
}

TEST(SeqTree, CutPastTheEndStopsThere) {
    Nodes nodes;
    Pair row = Row(nodes, 10);
    const Pair run = row.Cut(7, 0xFFFFFFFF);
    EXPECT_EQ(run.order.size(), 3u);
    EXPECT_EQ(row.Fault(), "");
    EXPECT_EQ(run.Fault(), "");
}

TEST(SeqTree, CutOfAllLeavesNothing) {
    Nodes nodes;
    Pair row = Row(nodes, 1000);
    const Pair run = row.Cut(0, 999);
    EXPECT_EQ(row.root, nullptr);
    EXPECT_EQ(run.order.size(), 1000u);
    EXPECT_EQ(run.Fault(), "");
}

TEST(SeqTree, SpliceOfNothingChangesNothing) {
    Nodes nodes;
    Pair row = Row(nodes, 3);
    Pair nothing;
    row.Splice(1, nothing);
    EXPECT_EQ(row.Fault(), "");
}

TEST(SeqTree, SpliceIntoNothingIsTheRun) {
    for (const std::uint32_t after : {kSeqFront, 0u, 5u}) {
        Nodes nodes;
        Pair row;
        Pair run = Row(nodes, 20);
        row.Splice(after, run);
        EXPECT_EQ(row.order.size(), 20u);
        EXPECT_EQ(row.Fault(), "") << after;
    }
}

// Heights of 1 and of many meet at every join.
TEST(SeqTree, LongAndShortJoinBothWays) {
    for (const std::uint32_t other : {1u, 2u, 3u, 50u}) {
        for (const std::uint32_t after : {kSeqFront, 0u, 499u, 998u, 999u}) {
            Nodes nodes;
            Pair longer = Row(nodes, 1000);
            Pair shorter = Row(nodes, other);
            longer.Splice(after, shorter);
            EXPECT_EQ(longer.Fault(), "") << other << " after " << after;
            Pair few = Row(nodes, other);
            few.Splice(after == kSeqFront ? after : other / 2, longer);
            EXPECT_EQ(few.Fault(), "") << other << " around";
        }
    }
}

TEST(SeqTree, NodeIsTakenFromTheTreeItIsIn) {
    Nodes nodes;
    Pair row = Row(nodes, 100);
    Pair run = row.Cut(30, 59);
    OlbSeqNode* node = run.order[12];
    EXPECT_EQ(SeqRoot(node), run.root);
    EXPECT_NE(SeqRoot(node), row.root);
    EXPECT_EQ(SeqPosition(node), 12u);
    const Pair alone = run.Cut(SeqPosition(node), SeqPosition(node));
    EXPECT_EQ(SeqRoot(node), node);
    EXPECT_EQ(alone.Fault(), "");
    EXPECT_EQ(run.Fault(), "");
    EXPECT_EQ(row.Fault(), "");
}

TEST(SeqTree, StaysFlatAtAMillion) {
    constexpr std::uint32_t kCount = 1'000'000;
    std::vector<OlbSeqNode> pool(kCount);
    // Appended in order, the worst that an unbalanced tree could get. A balanced tree of height 29
    // has at least 1,346,268 nodes, so 28 is the bound; filling in order gives the lowest there is.
    OlbSeqNode* root = nullptr;
    Order order;
    for (OlbSeqNode& node : pool) {
        node.item = ItemOf(&node);
        SeqInsert(root, kPastAll, &node);
        order.push_back(&node);
    }
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->height, 20) << "2^19 <= 1,000,000 < 2^20";

    // Cut and spliced at random it may grow to the bound, not beyond.
    Random random(20);
    Pair row{root, std::move(order)};
    for (int step = 0; step < 40; ++step) {
        const std::uint32_t first = random.Below(kCount);
        Pair run = row.Cut(first, first + random.Below(kCount));
        const auto rest = static_cast<std::uint32_t>(row.order.size());
        row.Splice(random.Below(rest + 1) - 1, run);
        ASSERT_NE(row.root, nullptr);
        EXPECT_LE(row.root->height, 28);
    }
    EXPECT_EQ(row.Fault(), "");
}

// How many nodes differ between two states of a pool.
std::size_t Changed(const std::vector<OlbSeqNode>& before, const std::vector<OlbSeqNode>& after) {
    std::size_t changed = 0;
    for (std::size_t i = 0; i < before.size(); ++i) {
        const OlbSeqNode& was = before[i];
        const OlbSeqNode& is = after[i];
        changed += was.hasLeft != is.hasLeft || was.hasRight != is.hasRight ||
                   was.height != is.height || was.left != is.left || was.right != is.right ||
                   was.leftCount != is.leftCount;
    }
    return changed;
}

// No operation rebuilds: of 100,000 nodes an insertion writes to one way down and to what a
// rotation turns, the others to a few nodes on every level.
TEST(SeqTree, ChangesFewNodes) {
    constexpr std::uint32_t kCount = 100'000;
    constexpr std::size_t kHeight = 23; // a tree of height 24 has at least 121,392 nodes
    std::vector<OlbSeqNode> pool(kCount + 200);
    std::uint32_t used = 0;
    Pair row;
    Random random(7);
    while (used < kCount) {
        row.Insert(kPastAll, &pool[used++]);
    }
    for (int step = 0; step < 100; ++step) {
        const std::uint32_t first = random.Below(kCount);
        Pair run = row.Cut(first, first + random.Below(kCount));
        row.Splice(random.Below(row.order.size() + 1) - 1, run);
    }
    for (int step = 0; step < 50; ++step) {
        std::vector<OlbSeqNode> before = pool;
        const auto size = static_cast<std::uint32_t>(row.order.size());
        row.Insert(random.Below(size), &pool[used++]);
        EXPECT_LE(Changed(before, pool), kHeight + 4);

        before = pool;
        const std::uint32_t first = random.Below(size);
        Pair run = row.Cut(first, first + random.Below(size - first));
        EXPECT_LE(Changed(before, pool), 8 * kHeight);

        before = pool;
        const auto rest = static_cast<std::uint32_t>(row.order.size());
        row.Splice(random.Below(rest + 1) - 1, run);
        EXPECT_LE(Changed(before, pool), 8 * kHeight);
    }
    EXPECT_EQ(row.Fault(), "");
}

// A few sequences among which a careless caller moves nodes about, at most `limit` of them.
class Caller {
public:
    Caller(std::uint32_t seed, std::size_t sequences, std::size_t limit)
        : random(seed), pairs(sequences), pool(limit) {
        for (OlbSeqNode& node : pool) {
            spare.push_back(&node);
        }
    }

    // Makes a random change. Returns the two sequences that it may have been about.
    std::pair<const Pair*, const Pair*> Step() {
        Pair& one = pairs[random.Below(pairs.size())];
        Pair& other = pairs[random.Below(pairs.size())];
        const std::uint32_t kind = random.Below(100);
        ++operations;
        if (kind < 40 && !spare.empty()) {
            one.Insert(Position(one), spare.back());
            spare.pop_back();
        } else if (kind >= 40 && kind < 65) {
            const std::uint32_t position = random.Below(one.order.size() + 1);
            Release(one.Cut(position, position));
        } else if (kind == 99) {
            Release(Range(one));
        } else {
            Pair run = Range(one);
            other.Splice(Position(other), run);
            ++operations;
        }
        return {&one, &other};
    }

    const std::vector<Pair>& Pairs() const { return pairs; }
    int Operations() const { return operations; }

private:
    // From the front to past the end.
    std::uint32_t Position(const Pair& pair) { return random.Below(pair.order.size() + 2) - 1; }

    // Cuts from anywhere to anywhere behind, past the end at times.
    Pair Range(Pair& pair) {
        const std::uint32_t first = random.Below(pair.order.size() + 1);
        const std::uint32_t length = random.Below(pair.order.size() + 1);
        return pair.Cut(first, first + length);
    }

    void Release(const Pair& run) { spare.insert(spare.end(), run.order.begin(), run.order.end()); }

    Random random;
    std::vector<Pair> pairs;
    std::vector<OlbSeqNode> pool;
    Order spare;
    int operations = 0;
};

// Each operation on a few short sequences is followed by a look at all that it touched.
TEST(SeqTreeRandom, ShortSequencesStayWhole) {
    for (const std::uint32_t seed : {1u, 2u, 3u, 4u}) {
        Caller caller(seed, 3, 24);
        while (caller.Operations() < 60'000) {
            const auto [one, other] = caller.Step();
            ASSERT_EQ(one->Fault(), "") << "seed " << seed << ", " << caller.Operations();
            ASSERT_EQ(other->Fault(), "") << "seed " << seed << ", " << caller.Operations();
        }
        std::cout << "seed " << seed << ": " << caller.Operations() << " operations\n";
    }
}

TEST(SeqTreeRandom, LongSequencesStayWhole) {
    for (const std::uint32_t seed : {11u, 12u, 13u, 14u}) {
        Caller caller(seed, 3, 8'000);
        while (caller.Operations() < 200'000) {
            const auto [one, other] = caller.Step();
            ASSERT_EQ(SeqCount(one->root), one->order.size()) << caller.Operations();
            ASSERT_EQ(SeqCount(other->root), other->order.size()) << caller.Operations();
            if (caller.Operations() % 5'000 == 0) {
                for (const Pair& pair : caller.Pairs()) {
                    ASSERT_EQ(pair.Fault(), "") << "seed " << seed << ", " << caller.Operations();
                }
            }
        }
        for (const Pair& pair : caller.Pairs()) {
            ASSERT_EQ(pair.Fault(), "") << "seed " << seed;
        }
        std::cout << "seed " << seed << ": " << caller.Operations() << " operations\n";
    }
}

} // namespace
} // namespace vorn::hierlist::test
