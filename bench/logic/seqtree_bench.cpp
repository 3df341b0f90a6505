// What the sequence tree's operations cost at 10^3 to 10^6 nodes.
#include "hierlist/seqtree.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <random>
#include <vector>

namespace {

using namespace vorn::hierlist;

// A tree whose nodes lie in memory in no order, as those of a list that has lived for a while do.
class Tree {
public:
    explicit Tree(std::uint32_t count) : pool(count) {
        std::vector<OlbSeqNode*> shuffled;
        for (OlbSeqNode& node : pool) {
            shuffled.push_back(&node);
        }
        std::shuffle(shuffled.begin(), shuffled.end(), random);
        std::uint32_t position = kSeqFront;
        for (OlbSeqNode* node : shuffled) {
            SeqInsert(root, position++, node);
        }
    }

    std::uint32_t Below(std::uint32_t bound) {
        return static_cast<std::uint32_t>(random() % bound);
    }

    std::vector<OlbSeqNode> pool;
    OlbSeqNode* root = nullptr;

private:
    std::mt19937 random{1};
};

std::uint32_t CountOf(const benchmark::State& state) {
    return static_cast<std::uint32_t>(state.range(0));
}

// Each insertion is undone by a cut outside the clock, in batches, so that the size stays what it
// says.
void BM_SeqInsert(benchmark::State& state) {
    const std::uint32_t count = CountOf(state);
    const std::uint32_t batch = count / 10;
    Tree tree(count);
    std::vector<OlbSeqNode> added(batch);
    std::vector<std::uint32_t> after(batch);
    while (state.KeepRunningBatch(batch)) {
        state.PauseTiming();
        for (std::uint32_t& position : after) {
            position = tree.Below(count) - 1;
        }
        state.ResumeTiming();
        for (std::uint32_t i = 0; i < batch; ++i) {
            SeqInsert(tree.root, after[i], &added[i]);
        }
        state.PauseTiming();
        for (OlbSeqNode& node : added) {
            const std::uint32_t position = SeqPosition(&node);
            SeqCut(tree.root, position, position);
        }
        state.ResumeTiming();
    }
}

void BM_SeqAt(benchmark::State& state) {
    const std::uint32_t count = CountOf(state);
    Tree tree(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(SeqAt(tree.root, tree.Below(count)));
    }
}

void BM_SeqPosition(benchmark::State& state) {
    const std::uint32_t count = CountOf(state);
    Tree tree(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(SeqPosition(&tree.pool[tree.Below(count)]));
    }
}

// The deepest climb there is: from the last row every ancestor counts.
void BM_SeqPositionOfLast(benchmark::State& state) {
    Tree tree(CountOf(state));
    OlbSeqNode* last = SeqLast(tree.root);
    for (auto _ : state) {
        benchmark::DoNotOptimize(SeqPosition(last));
    }
}

void BM_SeqRoot(benchmark::State& state) {
    const std::uint32_t count = CountOf(state);
    Tree tree(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(SeqRoot(&tree.pool[tree.Below(count)]));
    }
}

// A run of any length, from anywhere to anywhere: one close and one open.
void BM_SeqCutAndSplice(benchmark::State& state) {
    const std::uint32_t count = CountOf(state);
    Tree tree(count);
    for (auto _ : state) {
        const std::uint32_t first = tree.Below(count);
        const std::uint32_t length = tree.Below(count - first) + 1;
        OlbSeqNode* run = SeqCut(tree.root, first, first + length - 1);
        SeqSplice(tree.root, tree.Below(count - length + 1) - 1, run);
    }
}

// One row leaves and comes back elsewhere.
void BM_SeqCutAndInsertOne(benchmark::State& state) {
    const std::uint32_t count = CountOf(state);
    Tree tree(count);
    for (auto _ : state) {
        const std::uint32_t position = tree.Below(count);
        OlbSeqNode* node = SeqCut(tree.root, position, position);
        SeqInsert(tree.root, tree.Below(count) - 1, node);
    }
}

BENCHMARK(BM_SeqInsert)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_SeqAt)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_SeqPosition)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_SeqPositionOfLast)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_SeqRoot)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_SeqCutAndSplice)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_SeqCutAndInsertOne)->RangeMultiplier(10)->Range(1'000, 1'000'000);

} // namespace
