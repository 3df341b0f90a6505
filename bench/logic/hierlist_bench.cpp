// What the outline's operations cost at 10^3 to 10^6 items. Their memory comes from the C library's
// heap here, and what the control does for them (painting, scroll bars) is left out.
#include "hierlist/outline.h"

#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace vorn::hierlist;

constexpr Callbacks kSilent = {
    .compareTexts = [](void*, const char* first,
                       const char* second) { return std::strcmp(first, second); },
    .compareValues = [](void*, std::uintptr_t, std::uintptr_t, std::uint32_t) { return 0; },
    .measure = [](void*, const OlbItem*, std::uint32_t) { return std::uint16_t{0}; },
    .deleted = [](void*, std::uint32_t, std::uintptr_t) {},
    .errorSpace = [](void*) {},
    .rowsChanged = [](void*) {},
    .redraw = [](void*, Redraw, std::uint32_t) {},
    .deselected = [](void*, OlbItem*) {},
    .retired = [](void*, OlbItem*) {},
    .cleared = [](void*) {},
    .recordItem = [](void*, OlbItem*, std::uintptr_t) { return true; },
    .forgetItem = [](void*, OlbItem*) { return std::uintptr_t{0}; },
};

// An outline and all that was put into it, in the order that it was.
class Bench {
public:
    explicit Bench(const benchmark::State& state)
        : size(static_cast<std::uint32_t>(state.range(0))) {
        outline.callbacks = &kSilent;
    }
    ~Bench() { Destroy(outline); }
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    std::uint32_t Below(std::uint32_t bound) {
        return static_cast<std::uint32_t>(random() % bound);
    }

    // Children with texts in no order; sorted, when the style says so, they end up in no order of
    // their addresses.
    void Fill(OlbItem* parent, std::uint32_t count) {
        items.reserve(items.size() + count);
        for (std::uint32_t i = 0; i < count; ++i) {
            items.push_back(AddChild(outline, parent, NextText()));
        }
    }

    // As many top-level items as give `size` items with the four children of each.
    void FillWithFamilies() {
        for (std::uint32_t i = 0; i < size / 5; ++i) {
            OlbItem* parent = AddChild(outline, nullptr, NextText());
            items.push_back(parent);
            for (int child = 0; child < 4; ++child) {
                AddChild(outline, parent, NextText());
            }
        }
    }

    const char* NextText() {
        std::snprintf(text, sizeof text, "%08x", static_cast<unsigned>(random()));
        return text;
    }

    OlbItem* AnyItem() { return items[Below(static_cast<std::uint32_t>(items.size()))]; }

    std::uint32_t size;
    Outline outline;
    std::vector<OlbItem*> items;

private:
    std::mt19937 random{1};
    char text[16] = {};
};

// Times additions; they are taken back outside the clock in batches, so that the size stays what it
// says. Texts are made outside too.
template <class Operation>
void TimeAdditions(benchmark::State& state, Bench& bench, const Operation& add) {
    const std::uint32_t batch = bench.size / 10;
    std::vector<std::string> texts(batch);
    std::vector<OlbItem*> added(batch);
    while (state.KeepRunningBatch(batch)) {
        state.PauseTiming();
        for (std::string& text : texts) {
            text = bench.NextText();
        }
        state.ResumeTiming();
        for (std::uint32_t i = 0; i < batch; ++i) {
            added[i] = add(texts[i].c_str());
        }
        state.PauseTiming();
        for (OlbItem* item : added) {
            DeleteItem(bench.outline, item);
        }
        state.ResumeTiming();
    }
}

void BM_AddAtTheTop(benchmark::State& state) {
    Bench bench(state);
    bench.Fill(nullptr, bench.size);
    TimeAdditions(state, bench,
                  [&](const char* text) { return AddChild(bench.outline, nullptr, text); });
}

void AddUnder(benchmark::State& state, bool open) {
    Bench bench(state);
    bench.Fill(nullptr, bench.size / 2);
    OlbItem* parent = bench.items[bench.items.size() / 2];
    bench.outline.autoOpen = open;
    bench.Fill(parent, bench.size / 2);
    TimeAdditions(state, bench,
                  [&](const char* text) { return AddChild(bench.outline, parent, text); });
}

void BM_AddUnderAnOpenParent(benchmark::State& state) {
    AddUnder(state, true);
}

void BM_AddUnderAClosedParent(benchmark::State& state) {
    AddUnder(state, false);
}

void BM_AddSorted(benchmark::State& state) {
    Bench bench(state);
    bench.outline.style = kStyleSort;
    bench.Fill(nullptr, bench.size);
    TimeAdditions(state, bench,
                  [&](const char* text) { return AddChild(bench.outline, nullptr, text); });
}

void BM_AddSortedUnderAClosedParent(benchmark::State& state) {
    Bench bench(state);
    bench.outline.style = kStyleSort;
    OlbItem* parent = AddChild(bench.outline, nullptr, "");
    bench.Fill(parent, bench.size);
    TimeAdditions(state, bench,
                  [&](const char* text) { return AddChild(bench.outline, parent, text); });
}

// Each sibling is open and has four children, so that four rows of five are no siblings.
void BM_AddSortedAmongOpenSiblings(benchmark::State& state) {
    Bench bench(state);
    bench.outline.style = kStyleSort;
    bench.outline.autoOpen = true;
    bench.FillWithFamilies();
    TimeAdditions(state, bench,
                  [&](const char* text) { return AddChild(bench.outline, nullptr, text); });
}

// The C++ library's own sorted tree with as many texts, to tell what the machine's memory adds to
// any tree that grows.
void BM_AddToAMultiset(benchmark::State& state) {
    Bench bench(state);
    std::multiset<std::string> set;
    while (set.size() < bench.size) {
        set.insert(bench.NextText());
    }
    const std::uint32_t batch = bench.size / 10;
    std::vector<std::string> texts(batch);
    std::vector<std::multiset<std::string>::iterator> added(batch);
    while (state.KeepRunningBatch(batch)) {
        state.PauseTiming();
        for (std::string& text : texts) {
            text = bench.NextText();
        }
        state.ResumeTiming();
        for (std::uint32_t i = 0; i < batch; ++i) {
            added[i] = set.insert(texts[i]);
        }
        state.PauseTiming();
        for (const auto& at : added) {
            set.erase(at);
        }
        state.ResumeTiming();
    }
}

void BM_RowToHandle(benchmark::State& state) {
    Bench bench(state);
    bench.outline.style = kStyleSort;
    bench.Fill(nullptr, bench.size);
    for (auto _ : state) {
        benchmark::DoNotOptimize(IndexToHandle(bench.outline, bench.Below(bench.size)));
    }
}

void BM_HandleToRow(benchmark::State& state) {
    Bench bench(state);
    bench.outline.style = kStyleSort;
    bench.Fill(nullptr, bench.size);
    for (auto _ : state) {
        benchmark::DoNotOptimize(HandleToIndex(bench.AnyItem()));
    }
}

// All items but one are its children, which all become rows and are rows no more.
void BM_OpenAndClose(benchmark::State& state) {
    Bench bench(state);
    OlbItem* parent = AddChild(bench.outline, nullptr, "");
    bench.Fill(parent, bench.size);
    for (auto _ : state) {
        Open(bench.outline, 0);
        Close(bench.outline, 0);
    }
}

// The same with a child in ten open, with a child of its own, when its parent closes. The cost is
// that of one child that was open; its own opening is outside the clock.
void BM_CloseWithOpenChildren(benchmark::State& state) {
    Bench bench(state);
    OlbItem* parent = AddChild(bench.outline, nullptr, "");
    bench.Fill(parent, bench.size);
    std::uint32_t openChildren = 0;
    for (std::uint32_t i = 0; i < bench.size; i += 10, ++openChildren) {
        AddChild(bench.outline, bench.items[i], "");
    }
    while (state.KeepRunningBatch(openChildren)) {
        state.PauseTiming();
        OpenAll(bench.outline, parent);
        state.ResumeTiming();
        Close(bench.outline, 0);
    }
}

// From anywhere to anywhere among plain rows, by position.
void BM_Move(benchmark::State& state) {
    Bench bench(state);
    bench.Fill(nullptr, bench.size);
    const std::uint32_t positions = bench.size < kAppend ? bench.size : kAppend;
    for (auto _ : state) {
        const auto position = static_cast<std::uint16_t>(bench.Below(positions));
        MoveItem(bench.outline, bench.AnyItem(), nullptr, position);
    }
}

// A random row goes; the batch comes back outside the clock.
void BM_DeleteRow(benchmark::State& state) {
    Bench bench(state);
    bench.outline.style = kStyleSort;
    bench.Fill(nullptr, bench.size);
    const std::uint32_t batch = bench.size / 10;
    while (state.KeepRunningBatch(batch)) {
        state.PauseTiming();
        bench.Fill(nullptr, batch);
        std::vector<OlbItem*> doomed;
        for (std::uint32_t i = 0; i < batch; ++i) {
            std::swap(bench.items[bench.Below(static_cast<std::uint32_t>(bench.items.size()))],
                      bench.items.back());
            doomed.push_back(bench.items.back());
            bench.items.pop_back();
        }
        state.ResumeTiming();
        for (OlbItem* item : doomed) {
            DeleteItem(bench.outline, item);
        }
    }
}

// All items but one go, and come back outside the clock. The cost is that of one.
void BM_DeleteSubtree(benchmark::State& state) {
    Bench bench(state);
    OlbItem* parent = AddChild(bench.outline, nullptr, "");
    while (state.KeepRunningBatch(bench.size)) {
        state.PauseTiming();
        bench.Fill(parent, bench.size);
        Open(bench.outline, 0);
        bench.items.clear();
        state.ResumeTiming();
        DeleteSubtree(bench.outline, parent);
    }
}

BENCHMARK(BM_AddAtTheTop)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_AddUnderAnOpenParent)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_AddUnderAClosedParent)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_AddSorted)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_AddSortedUnderAClosedParent)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_AddSortedAmongOpenSiblings)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_AddToAMultiset)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_RowToHandle)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_HandleToRow)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_OpenAndClose)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_CloseWithOpenChildren)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_Move)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_DeleteRow)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(BM_DeleteSubtree)->RangeMultiplier(10)->Range(1'000, 1'000'000);

} // namespace
