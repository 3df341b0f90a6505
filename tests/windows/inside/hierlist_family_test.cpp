// Outline lists whose parent does its worst inside what their functions send, and whose memory runs
// out.
#include "core/memory.h"
#include "tests/windows/support/objects.h"
#include "tests/windows/support/outline_list.h"

#include <vector>

namespace vorn::hierlist {
namespace {

using test::Message;
using test::ObjectsLeftBy;
using test::OutlineListTest;

struct Deed {
    const char* name;
    void (*act)(HWND list);
};

constexpr Deed kDeeds[] = {
    {"deletes the first item", [](HWND list) { olbDeleteString(list, 0); }},
    {"deletes what is below it", [](HWND list) { olbDeleteSubTree(list, 0); }},
    {"deletes the last row",
     [](HWND list) { olbDeleteString(list, olbGetVisibleCount(list) - 1); }},
    {"empties it", [](HWND list) { olbResetContent(list); }},
    {"changes its style", [](HWND list) { olbChangeStyle(list, LBS_OWNERDRAWVARIABLE); }},
    {"lets it keep texts", [](HWND list) { olbChangeStyle(list, LBS_HASSTRINGS | LBS_SORT); }},
    {"ends the table", [](HWND list) { olbSetCompatibilityMode(list, FALSE); }},
    {"moves the first item", [](HWND list) { olbMoveItem(list, 0, -1, OLB_APPEND); }},
    {"closes all", [](HWND list) { olbCloseAll(list); }},
    {"makes columns", [](HWND list) { olbSetColumns(list, 2); }},
    {"destroys it", [](HWND list) { DestroyWindow(list); }},
};

// Those that are done when memory runs out, too.
constexpr Deed kMemoryDeeds[] = {kDeeds[0], kDeeds[3], kDeeds[10]};

// Handles are used while the list has them as rows: what a host deletes it must not use any more.
HOLBITEM RowAt(HWND list, LONG row) {
    HOLBITEM item = olbIndexToHandle(list, row);
    return item != nullptr ? item : OLB_NOITEM;
}

struct Step {
    const char* name;
    void (*take)(HWND list);
};

constexpr Step kSteps[] = {
    {"add", [](HWND list) { olbAddString(list, "x"); }},
    {"add a child", [](HWND list) { olbAddChildString(list, 0, "x"); }},
    {"insert", [](HWND list) { olbInsertString(list, 1, "x"); }},
    {"insert at", [](HWND list) { olbInsertStringEx(list, RowAt(list, 0), 0, "x"); }},
    {"delete", [](HWND list) { olbDeleteString(list, 0); }},
    {"delete below", [](HWND list) { olbDeleteSubTree(list, 0); }},
    {"empty", [](HWND list) { olbResetContent(list); }},
    {"move", [](HWND list) { olbMoveItem(list, 1, -1, 0); }},
    {"move children", [](HWND list) { olbMoveChildren(list, 0, -1, 0); }},
    {"copy", [](HWND list) { olbCopyItem(list, 0, -1, 0); }},
    {"copy children", [](HWND list) { olbCopyChildren(list, 0, -1, 0); }},
    {"text", [](HWND list) { olbSetItemText(list, 1, "longer than what was there before"); }},
    {"height", [](HWND list) { olbSetItemHeight(list, 0, 40); }},
    {"owner draw", [](HWND list) { olbSetOwnerDraw(list, 1); }},
    {"style", [](HWND list) { olbChangeStyle(list, LBS_OWNERDRAWFIXED | LBS_SORT); }},
    {"mode", [](HWND list) { olbSetCompatibilityMode(list, TRUE); }},
    {"select", [](HWND list) { olbSetCurSel(list, 1); }},
    {"select some", [](HWND list) { olbSelItemRange(list, 0, 3, TRUE); }},
    {"caret", [](HWND list) { olbSetCaretIndex(list, 2); }},
    {"open", [](HWND list) { olbOpenAll(list, -1); }},
    {"close", [](HWND list) { olbCloseItem(list, 0); }},
    {"columns", [](HWND list) { olbSetColumns(list, 3); }},
    {"file", [](HWND list) { olbAddFile(list, "a.txt"); }},
    {"look", [](HWND list) { olbSetIndent(list, 11); }},
};

constexpr DWORD kStyles[] = {
    LBS_OWNERDRAWFIXED | LBS_SORT,
    LBS_OWNERDRAWVARIABLE | LBS_EXTENDEDSEL,
    LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS | LBS_SORT,
};

class HierListFamily : public OutlineListTest {
protected:
    // Rows a (open) with b and c, d and e.
    HWND Fill(DWORD style) {
        HWND list = Create(style | WS_VSCROLL);
        HOLBITEM a = olbAddChildStringEx(list, nullptr, "a");
        olbAddChildStringEx(list, a, "b");
        olbAddChildStringEx(list, a, "c");
        olbAddString(list, "d");
        olbAddString(list, "e");
        olbOpenAll(list, -1);
        olbSetCurSel(list, 0);
        olbSetSel(list, 1, TRUE);
        return list;
    }

    static bool IsNews(const Message& received) {
        return received.message == WM_COMPAREITEM || received.message == WM_DELETEITEM ||
               received.message == WM_MEASUREITEM ||
               (received.message == WM_COMMAND &&
                static_cast<SHORT>(HIWORD(received.wParam)) == LBN_ERRSPACE);
    }

    // Does the deed once, at the count-th message that a function sends.
    void Arm(HWND list, int count, const Deed& deed) {
        left_ = count;
        host.answer = [this, list, &deed](const Message& received) -> std::optional<LRESULT> {
            if (IsNews(received) && --left_ == 0) {
                deed.act(list);
            }
            return std::nullopt;
        };
    }
    bool Happened() const { return left_ <= 0; }

    // How many messages a function sends when the host does nothing, at most two.
    int SentBy(DWORD style, const Step& step, int allocations) {
        static constexpr Deed kNothing = {"does nothing", [](HWND) {}};
        HWND list = Fill(style);
        Arm(list, 2, kNothing);
        FailAllocationsAfter(allocations);
        step.take(list);
        FailAllocationsAfter(-1);
        host.answer = nullptr;
        DestroyWindow(list);
        return 2 - (left_ > 0 ? left_ : 0);
    }

private:
    int left_ = 0;
};

// Ends a list. Nothing of it may be left, whatever has happened to it.
void End(HWND list, std::uint32_t blocksBefore) {
    if (IsWindow(list)) {
        RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        for (LONG row = 0; row < olbGetVisibleCount(list); ++row) {
            EXPECT_EQ(olbHandleToIndex(olbIndexToHandle(list, row)), row);
        }
        DestroyWindow(list);
    }
    ASSERT_EQ(BlockCount(), blocksBefore);
}

TEST_F(HierListFamily, BearsHostsInAllThatItsFunctionsSend) {
    const std::uint32_t before = BlockCount();
    int happened = 0;
    for (const DWORD style : kStyles) {
        for (const Step& step : kSteps) {
            const int sent = SentBy(style, step, -1);
            for (const Deed& deed : kDeeds) {
                for (int count = 1; count <= sent; ++count) {
                    SCOPED_TRACE(std::string(step.name) + ", host " + deed.name);
                    HWND list = Fill(style);
                    Arm(list, count, deed);
                    step.take(list);
                    happened += Happened();
                    host.answer = nullptr;
                    End(list, before);
                }
            }
        }
    }
    EXPECT_GT(happened, 200);
}

// Each allocation of each function fails in turn, and the host may do something about it.
TEST_F(HierListFamily, BearsMemoryThatRunsOut) {
    const std::uint32_t before = BlockCount();
    int told = 0;
    for (const DWORD style : {0ul, DWORD{LBS_OWNERDRAWVARIABLE}}) {
        for (const Step& step : kSteps) {
            for (const int allowed : {0, 1, 2}) {
                if (SentBy(style, step, allowed) == 0) {
                    continue;
                }
                for (const Deed& deed : kMemoryDeeds) {
                    SCOPED_TRACE(std::string(step.name) + ", host " + deed.name);
                    HWND list = Fill(style);
                    Arm(list, 1, deed);
                    FailAllocationsAfter(allowed);
                    step.take(list);
                    FailAllocationsAfter(-1);
                    told += Happened();
                    host.answer = nullptr;
                    End(list, before);
                }
            }
        }
    }
    EXPECT_GT(told, 50);
}

TEST_F(HierListFamily, ChangesNothingWithoutMemory) {
    HWND list = Fill(0);
    host.TakeNotifications();
    const auto refused = [&](LONG answer, int line = __builtin_LINE()) {
        SCOPED_TRACE(line);
        EXPECT_EQ(answer, -1);
        EXPECT_EQ(host.TakeNotifications(), (std::vector<int>{static_cast<WORD>(LBN_ERRSPACE)}));
        EXPECT_EQ(olbGetCount(list), 5);
    };
    HOLBITEM d = olbIndexToHandle(list, 3);
    FailAllocationsAfter(0);
    refused(olbAddString(list, "x"));
    refused(olbAddChildString(list, 0, "x"));
    refused(static_cast<LONG>(reinterpret_cast<LONG_PTR>(olbAddChildStringEx(list, d, "x"))));
    refused(olbInsertString(list, 1, "x"));
    refused(static_cast<LONG>(reinterpret_cast<LONG_PTR>(olbInsertStringEx(list, d, 0, "x"))));
    refused(olbCopyItem(list, 0, -1, 0));
    refused(olbCopyChildren(list, 0, -1, 0));
    refused(olbAddFile(list, "x"));
    refused(olbDir(list, DDL_DRIVES, ""));
    refused(olbSetItemText(list, 1, "longer than what was there before"));
    FailAllocationsAfter(2);
    refused(olbCopyItem(list, 0, -1, 0)); // the third of its copies
    FailAllocationsAfter(-1);
    char text[64];
    EXPECT_EQ(olbGetText(list, 1, text), 1) << "the text it had";
}

TEST_F(HierListFamily, LeavesNothingBehind) {
    const std::uint32_t before = BlockCount();
    EXPECT_EQ(ObjectsLeftBy([&] {
                  HWND list = Fill(LBS_SORT);
                  SendMessageA(list, WM_SETREDRAW, FALSE, 0);
                  olbSetLevelBitmap(list, 0, CreateBitmap(32, 16, 1, 1, nullptr));
                  olbSetLevelBitmap(list, 0, CreateBitmap(32, 16, 1, 1, nullptr));
                  olbSetBitmaps(list, -1, CreateBitmap(32, 16, 1, 1, nullptr));
                  olbSetItemText(list, 1, "longer than what was there before");
                  olbCopyItem(list, 0, -1, 0);
                  olbMoveItem(list, 0, -1, OLB_APPEND);
                  olbSetColumns(list, 2);
                  const int stops[] = {10, 30};
                  olbSetTabStops(list, 2, stops);
                  olbDeleteString(list, 0);
                  SendMessageA(list, WM_SETREDRAW, TRUE, 0);
                  UpdateWindow(list);
                  DestroyWindow(list);
              }),
              "");
    EXPECT_EQ(BlockCount(), before);
}

} // namespace
} // namespace vorn::hierlist
