// What the host does in the middle of an operation. Nothing that is gone is touched, which the
// address sanitizer sees, and the outline is whole afterwards.
#include "tests/support/outline_host.h"

#include <gtest/gtest.h>
#include <memory>

namespace vorn::hierlist::test {
namespace {

constexpr std::uint32_t kSortedValues = kStyleSort | kStyleOwnerDrawFixed;

bool Begins(const std::string& line, const char* with) {
    return line.rfind(with, 0) == 0;
}

// p, open, with the values 10, 20 and 30 in order.
struct Values : TestHost {
    OlbItem* p;
    OlbItem* items[3];
    int calls = 0;

    Values() {
        outline.style = kSortedValues;
        p = AddValue(nullptr, 1);
        for (std::uintptr_t i = 0; i < 3; ++i) {
            items[i] = AddValue(p, 10 * (i + 1));
        }
        OpenItem(p);
        log.clear();
    }

    // Runs code the first time that a line begins so.
    void Once(const char* with, const std::function<void()>& code) {
        meanwhile = [this, with, code](const std::string& line) {
            if (Begins(line, with) && calls++ == 0) {
                code();
            }
        };
    }
};

TEST(OutlineHost, DeletesTheParentWhileAskedToCompare) {
    Values host;
    const std::uint32_t blocks = BlockCount();
    host.Once("compare 25 20", [&] { DeleteItem(host.outline, host.p); });
    EXPECT_EQ(host.AddValue(host.p, 25), NoItem());
    EXPECT_EQ(host.Rows(), "");
    EXPECT_EQ(BlockCount(), blocks - 4);
}

TEST(OutlineHost, DeletesTheSiblingWhileAskedToCompare) {
    Values host;
    host.Once("compare 25 20", [&] { DeleteItem(host.outline, host.items[1]); });
    EXPECT_TRUE(IsItem(host.AddValue(host.p, 25)));
    EXPECT_EQ(host.Rows(), "01 110 130 125") << "behind all, for want of an answer";
}

TEST(OutlineHost, MovesTheSiblingAwayWhileAskedToCompare) {
    Values host;
    host.Once("compare 25 30", [&] { MoveItem(host.outline, host.items[2], nullptr, 0); });
    EXPECT_TRUE(IsItem(host.AddValue(host.p, 25)));
    EXPECT_EQ(host.Rows(), "030 01 110 120 125");
}

TEST(OutlineHost, ClosesTheParentWhileAskedToCompare) {
    Values host;
    host.Once("compare 15 10", [&] { host.CloseItem(host.p); });
    EXPECT_TRUE(IsItem(host.AddValue(host.p, 15)));
    EXPECT_EQ(host.Rows(), "01");
    EXPECT_EQ(host.Run(host.p), "10 20 30 15");
    host.outline.autoOpen = true;
    host.OpenItem(host.p);
    host.calls = 0;
    host.Once("compare 5 10", [&] { host.CloseItem(host.p); });
    EXPECT_TRUE(IsItem(host.AddValue(host.p, 5)));
    EXPECT_EQ(host.Rows(), "01 110 120 130 115 15") << "opened again, once closed";
}

TEST(OutlineHost, AddsSiblingsWithoutEndWhileAskedToCompare) {
    Values host;
    int depth = 0;
    host.meanwhile = [&](const std::string& line) {
        if (Begins(line, "compare 99") && depth == 0) {
            ++depth;
            host.Insert(host.p, kAppend, reinterpret_cast<const char*>(50));
            --depth;
        }
    };
    EXPECT_TRUE(IsItem(host.AddValue(host.p, 99)));
    EXPECT_EQ(host.Rows(), "01 110 120 130 150 150 150 199") << "three siblings, three questions";
}

TEST(OutlineHost, DestroysTheOutlineWhileAskedToCompare) {
    Values host;
    const std::uint32_t blocks = BlockCount();
    host.Once("compare", [&] { Destroy(host.outline); });
    EXPECT_EQ(host.AddValue(host.p, 25), NoItem());
    EXPECT_EQ(BlockCount(), blocks - 4);
}

// The outline's memory itself goes with the control's record.
TEST(OutlineHost, FreesTheRecordInEveryCallback) {
    for (const char* callback : {"compare", "measure", "deleted", "errorSpace", "rows", "redraw"}) {
        const std::uint32_t blocks = BlockCount();
        int hits = 0;
        for (int operation = 0; operation < 8; ++operation) {
            auto host = std::make_unique<Values>();
            host->outline.style |= kStyleOwnerDrawVariable;
            host->outline.autoOpen = true;
            host->sideTableFull = true;
            auto* outline = new Outline(host->outline); // one whose life ends before the host's
            host->outline = Outline{};
            host->outline.callbacks = outline->callbacks;
            bool gone = false;
            host->meanwhile = [&](const std::string& line) {
                if (Begins(line, callback) && !gone) {
                    gone = true;
                    ++hits;
                    Destroy(*outline);
                    delete outline;
                }
            };
            OlbItem* p = host->p;
            const auto* value = reinterpret_cast<const char*>(25);
            switch (operation) {
            case 0:
                AddChild(*outline, p, value);
                break;
            case 1:
                InsertChild(*outline, p, 1, value);
                break;
            case 2:
                DeleteItem(*outline, p);
                break;
            case 3:
                DeleteSubtree(*outline, p);
                break;
            case 4:
                MoveItem(*outline, host->items[1], nullptr, 0);
                break;
            case 5:
                CopyItem(*outline, p, p, kAppend);
                break;
            case 6:
                Close(*outline, 0);
                break;
            default:
                Reset(*outline);
                break;
            }
            if (!gone) {
                Destroy(*outline);
                delete outline;
            }
            EXPECT_EQ(BlockCount(), blocks) << callback << ", operation " << operation;
        }
        EXPECT_GT(hits, 0) << callback;
    }
}

TEST(OutlineHost, DeletesTheNewItemWhileAskedToMeasure) {
    TestHost host;
    host.outline.style = kStyleOwnerDrawVariable | kStyleHasStrings;
    const std::uint32_t blocks = BlockCount();
    host.meanwhile = [&](const std::string& line) {
        if (Begins(line, "measure")) {
            DeleteItem(host.outline, IndexToHandle(host.outline, 0));
        }
    };
    EXPECT_EQ(host.Add(nullptr, "a"), NoItem());
    EXPECT_EQ(host.Insert(nullptr, 0, "a"), NoItem());
    EXPECT_EQ(InsertAtRow(host.outline, 0, "a"), NoItem());
    EXPECT_EQ(BlockCount(), blocks);
    EXPECT_EQ(host.outline.itemCount, 0u);
    EXPECT_EQ(host.outline.visibleCount, 0u);
}

TEST(OutlineHost, DeletesTheItemWhileToldOfTheEnd) {
    for (const char* callback : {"errorSpace", "rows", "redraw"}) {
        TestHost host;
        host.sideTableFull = true;
        host.meanwhile = [&](const std::string& line) {
            if (Begins(line, callback) && IndexToHandle(host.outline, 0) != nullptr) {
                DeleteItem(host.outline, IndexToHandle(host.outline, 0));
            }
        };
        EXPECT_EQ(host.Add(nullptr, "a"), NoItem()) << callback;
        EXPECT_EQ(host.Insert(nullptr, 0, "a"), NoItem()) << callback;
        host.meanwhile = nullptr;
        OlbItem* a = host.Add(nullptr, "a");
        host.meanwhile = [&](const std::string& line) {
            if (Begins(line, callback)) {
                host.meanwhile = nullptr;
                Reset(host.outline);
            }
        };
        EXPECT_EQ(MoveItem(host.outline, a, nullptr, 0), NoItem()) << callback;
        EXPECT_EQ(host.outline.itemCount, 0u);
    }
}

TEST(OutlineHost, DeletesWhatIsBeingDeleted) {
    Values host;
    SetData(host.items[1], 7);
    std::uint32_t answer = 0;
    std::int32_t left = 0;
    host.Once("deleted 0", [&] {
        answer = DeleteItem(host.outline, host.items[1]);
        left = DeleteSubtree(host.outline, host.p);
        EXPECT_EQ(HandleToIndex(host.items[1]), kNoRow);
        EXPECT_EQ(host.AddValue(host.p, 5), NoItem());
        EXPECT_EQ(MoveItem(host.outline, host.items[2], nullptr, 0), nullptr);
        EXPECT_EQ(host.AddValue(nullptr, 77)->parent, nullptr);
    });
    EXPECT_EQ(DeleteItem(host.outline, host.p), 0u);
    EXPECT_EQ(answer, kNoRow);
    EXPECT_EQ(left, -1);
    EXPECT_EQ(host.Rows(), "077");
}

TEST(OutlineHost, DeletesTheItemWhoseSubtreeIsBeingDeleted) {
    Values host;
    host.Once("deleted", [&] { DeleteItem(host.outline, host.p); });
    EXPECT_EQ(DeleteSubtree(host.outline, host.p), 0);
    EXPECT_EQ(host.Rows(), "");
}

TEST(OutlineHost, ResetsWhileToldOfADeletion) {
    Values host;
    host.Once("deleted", [&] { Reset(host.outline); });
    DeleteItem(host.outline, host.items[0]);
    EXPECT_EQ(host.Rows(), "");
    EXPECT_EQ(host.outline.itemCount, 0u);
}

TEST(OutlineHost, AddsWhileToldOfAReset) {
    Values host;
    host.Once("deleted", [&] { host.AddValue(nullptr, 8); });
    Reset(host.outline);
    EXPECT_EQ(host.Rows(), "08");
    EXPECT_EQ(host.outline.itemCount, 1u);
}

TEST(OutlineHost, DeletesTheParentWhileToldThatItsLastChildIsGone) {
    Values host;
    DeleteItem(host.outline, host.items[0]);
    DeleteItem(host.outline, host.items[1]);
    host.Once("deleted", [&] { DeleteItem(host.outline, host.p); });
    EXPECT_EQ(DeleteItem(host.outline, host.items[2]), 1u);
    EXPECT_EQ(host.Rows(), "");
}

} // namespace
} // namespace vorn::hierlist::test
