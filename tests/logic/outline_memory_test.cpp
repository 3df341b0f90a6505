// Memory runs out at every allocation in turn.
#include "tests/support/outline_host.h"

#include <gtest/gtest.h>

namespace vorn::hierlist::test {
namespace {

// Everything that the host can see, and what is below hidden items too.
std::string Picture(TestHost& host) {
    std::string picture = host.Rows() + " / " + std::to_string(host.outline.itemCount) + " / " +
                          std::to_string(host.outline.visibleCount);
    std::vector<OlbItem*> parents = {&host.outline.top};
    while (!parents.empty()) {
        const OlbItem* parent = parents.back();
        parents.pop_back();
        picture += " (";
        for (OlbItem* child = parent->firstChild; child != nullptr; child = child->nextSibling) {
            picture += TestHost::NameOf(child) + std::to_string(child->flags) + " ";
            parents.push_back(child);
        }
        picture += "| " + host.Run(parent) + ")";
    }
    return picture;
}

// Runs a few dozen operations. When one fails it must have changed nothing; then there is memory
// again, and the same operation succeeds.
class Script {
public:
    explicit Script(std::int32_t allocations) { FailAllocationsAfter(allocations); }
    ~Script() { FailAllocationsAfter(-1); }

    std::string Run() {
        OlbItem* p = Do([&] { return host.Add(nullptr, "p"); });
        OlbItem* q = Do([&] { return host.Add(nullptr, "q"); });
        OlbItem* a = Do([&] { return host.Add(p, "a"); });
        Do([&] { return host.Insert(a, kAppend, "x"); });
        Do([&] { return host.Insert(a, 0, "y"); });
        host.outline.autoOpen = true;
        Do([&] { return host.Add(p, "b"); });
        host.CloseItem(p);
        Do([&] { return host.Insert(p, 1, "c"); });
        host.outline.style = kStyleSort;
        Do([&] { return host.Add(p, "aa"); });
        Do([&] { return InsertAtRow(host.outline, 1, "d"); });
        Do([&] { return InsertAtRow(host.outline, 99, "e"); });
        Do([&] { return CopyItem(host.outline, p, nullptr, 0); });
        Do([&] { return CopyItem(host.outline, a, q, kAppend); });
        Do([&] { return CopyItem(host.outline, p, a, kAppend); });
        Do([&] { return CopyChildren(host.outline, p, q, 0); });
        Do([&] {
            return SetText(host.outline, a, "a text that goes outside of the record") ? a
                                                                                      : NoItem();
        });
        Do([&] { return CopyItem(host.outline, a, nullptr, 1); });
        host.outline.style = kStyleOwnerDrawFixed;
        Do([&] { return host.AddValue(q, 7); });
        return Picture(host);
    }

    // All that were made; none is deleted.
    int Items() const { return static_cast<int>(host.outline.itemCount); }

    int failures = 0;

private:
    template <class Operation>
    OlbItem* Do(const Operation& operation) {
        const std::string before = Picture(host);
        const std::uint32_t blocks = BlockCount();
        host.TakeLog();
        OlbItem* item = operation();
        if (item != NoItem()) {
            return item;
        }
        ++failures;
        EXPECT_EQ(Picture(host), before);
        EXPECT_EQ(BlockCount(), blocks);
        EXPECT_EQ(host.TakeLog(), (Lines{"errorSpace"}));
        FailAllocationsAfter(-1);
        item = operation();
        EXPECT_TRUE(IsItem(item));
        return item;
    }

    TestHost host;
};

TEST(OutlineMemory, RunsOutAtEveryAllocation) {
    Script undisturbed(-1);
    const std::string whole = undisturbed.Run();
    const std::uint32_t blocks = BlockCount();
    int allocations = 0;
    for (;; ++allocations) {
        int failures = 0;
        {
            Script script(allocations);
            EXPECT_EQ(script.Run(), whole) << allocations;
            failures = script.failures;
        }
        EXPECT_EQ(BlockCount(), blocks) << allocations;
        if (failures == 0) {
            break;
        }
        EXPECT_EQ(failures, 1) << allocations;
    }
    EXPECT_EQ(allocations, undisturbed.Items() + 1) << "a block for each, and a text";
}

} // namespace
} // namespace vorn::hierlist::test
