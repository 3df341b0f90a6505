// While drawing is off an outline list neither paints nor touches its scroll bars, however many
// items come; both are right when it is on again.
#include "tests/windows/support/outline_list.h"

namespace {

using vorn::test::kRowHeight;
using vorn::test::OutlineListTest;
using vorn::test::PumpMessages;

constexpr int kMany = 100'000;
constexpr int kRowsInView = 5; // and 10 pixels

WNDPROC listProcedure = nullptr;
int paints = 0;
int frameChanges = 0; // which a scroll bar that comes or goes makes

LRESULT CALLBACK Count(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    paints += message == WM_PAINT || message == WM_NCPAINT;
    frameChanges += message == WM_NCCALCSIZE || message == WM_SIZE || message == WM_STYLECHANGED;
    return CallWindowProcA(listProcedure, window, message, wParam, lParam);
}

class HierListRedraw : public OutlineListTest {
protected:
    HWND CreateCounted(DWORD style) {
        HWND list = Create(style | WS_VSCROLL);
        listProcedure = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Count)));
        paints = 0;
        frameChanges = 0;
        return list;
    }

    static void AddMany(HWND list) {
        for (int i = 0; i < kMany; ++i) {
            SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("text"));
        }
    }

    static bool HasBar(HWND list) { return (GetWindowLongA(list, GWL_STYLE) & WS_VSCROLL) != 0; }

    static SCROLLINFO BarOf(HWND list) {
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_ALL;
        GetScrollInfo(list, SB_VERT, &info);
        return info;
    }

    static void ExpectBar(HWND list, int rows, int top) {
        ASSERT_TRUE(HasBar(list));
        const SCROLLINFO bar = BarOf(list);
        EXPECT_EQ(bar.nMin, 0);
        EXPECT_EQ(bar.nMax, rows - 1);
        EXPECT_EQ(bar.nPage, UINT{kRowsInView});
        EXPECT_EQ(bar.nPos, top);
        EXPECT_EQ(olbGetTopIndex(list), top);
    }
};

// What the other tests count is there to be counted.
TEST_F(HierListRedraw, PaintsEachTimeWhileItIsOn) {
    HWND list = CreateCounted(0);
    for (int i = 0; i < 10; ++i) {
        const int before = paints;
        olbAddString(list, "text");
        EXPECT_GT(paints, before) << i;
    }
    EXPECT_GT(frameChanges, 0);
    ExpectBar(list, 10, 0);
}

TEST_F(HierListRedraw, NothingHappensWhileItIsOff) {
    HWND list = CreateCounted(0);
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    AddMany(list);
    PumpMessages();
    EXPECT_EQ(paints, 0);
    EXPECT_EQ(frameChanges, 0);
    EXPECT_FALSE(HasBar(list));
    EXPECT_EQ(olbGetCount(list), kMany);

    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    UpdateWindow(list);
    ExpectBar(list, kMany, 0);
    EXPECT_GT(paints, 0);
    EXPECT_LT(paints, 10);
    EXPECT_LT(frameChanges, 10);
}

TEST_F(HierListRedraw, NothingHappensWithTheStyle) {
    HWND list = CreateCounted(LBS_NOREDRAW);
    AddMany(list);
    PumpMessages();
    EXPECT_EQ(paints, 0);
    EXPECT_EQ(frameChanges, 0);
    EXPECT_FALSE(HasBar(list));

    olbChangeStyle(list, 0);
    UpdateWindow(list);
    ExpectBar(list, kMany, 0);
    EXPECT_GT(paints, 0);
    EXPECT_LT(paints, 10);
}

TEST_F(HierListRedraw, RowsThatWentTakeTheBarWithThem) {
    HWND list = CreateCounted(0);
    AddRows(list, 50);
    olbSetTopIndex(list, 40);
    ExpectBar(list, 50, 40);
    paints = 0;
    frameChanges = 0;

    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    for (int row = 49; row >= 20; --row) {
        olbDeleteString(list, row);
    }
    PumpMessages();
    EXPECT_EQ(paints + frameChanges, 0);
    EXPECT_EQ(BarOf(list).nMax, 49);
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    ExpectBar(list, 20, 15); // pulled back to the last page

    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    olbResetContent(list);
    EXPECT_TRUE(HasBar(list));
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    EXPECT_FALSE(HasBar(list));
    EXPECT_EQ(olbGetTopIndex(list), 0);
}

// Opening, closing, scrolling and selecting too.
TEST_F(HierListRedraw, NothingElseHappensEither) {
    HWND list = CreateCounted(0);
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    for (int i = 0; i < 3; ++i) {
        HOLBITEM parent = olbAddChildStringEx(list, nullptr, "parent");
        for (int child = 0; child < 10; ++child) {
            olbAddChildStringEx(list, parent, "child");
        }
    }
    olbOpenAll(list, -1);
    olbSetCurSel(list, 20);
    olbSetTopIndex(list, 25);
    olbCloseItem(list, 0);
    olbSetItemHeight(list, 0, 2 * kRowHeight);
    olbSetItemHeight(list, 0, kRowHeight);
    PumpMessages();
    EXPECT_EQ(paints + frameChanges, 0);
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    UpdateWindow(list);
    // Three parents and twenty children; the top was pulled back when ten rows went.
    ExpectBar(list, 23, 18);
}

// What is painted for another reason is right, and so is what is asked.
TEST_F(HierListRedraw, OpeningAndClosingUnderNoRedrawKeepTheView) {
    HWND list = Create(LBS_NOREDRAW | WS_VSCROLL);
    olbAddString(list, "parent");
    for (int i = 0; i < 100; ++i) {
        olbAddChildString(list, 0, "child");
    }
    olbOpenItem(list, 0);
    InvalidateRect(list, nullptr, FALSE);
    UpdateWindow(list);
    ExpectBar(list, 101, 0);
    olbSetTopIndex(list, 50);
    olbCloseItem(list, 0);
    InvalidateRect(list, nullptr, FALSE);
    UpdateWindow(list);
    EXPECT_EQ(olbGetTopIndex(list), 0);
    EXPECT_EQ(olbGetBottomIndex(list), 0);
}

} // namespace
