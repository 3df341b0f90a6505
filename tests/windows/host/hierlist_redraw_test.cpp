// While drawing is off an outline list neither paints nor touches its scroll bars, however many
// items come; both are right when it is on again.
#include "tests/windows/support/outline_list.h"
#include "tests/windows/support/spy.h"

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

// ---- Where the list is scrolled to meanwhile ----

// The two ways to turn drawing off, in a list of 200 rows that are scrolled to the end.
class HierListUndrawn : public HierListRedraw, public testing::WithParamInterface<bool> {
protected:
    HWND CreateScrolled(DWORD style = WS_VSCROLL) {
        HWND list = Create(style | LBS_NOTIFY);
        AddRows(list, 200);
        if (GetParam()) {
            olbChangeStyle(list, static_cast<WORD>(style | LBS_NOTIFY | LBS_NOREDRAW));
        } else {
            SendMessageA(list, WM_SETREDRAW, FALSE, 0);
        }
        return list;
    }
};
INSTANTIATE_TEST_SUITE_P(Ways, HierListUndrawn, testing::Bool(), [](const auto& way) {
    return std::string(way.param ? "ByStyle" : "ByMessage");
});

TEST_P(HierListUndrawn, RefilledItBeginsWithItsFirstRow) {
    HWND list = CreateScrolled();
    olbSetTopIndex(list, 100);
    ASSERT_EQ(olbGetTopIndex(list), 100);
    olbResetContent(list);
    EXPECT_EQ(olbGetTopIndex(list), 0);
    for (const char* text : {"a", "b", "c", "d", "e"}) {
        olbAddString(list, text);
    }
    EXPECT_EQ(olbGetTopIndex(list), 0);
    EXPECT_EQ(olbGetBottomIndex(list), 4);
    EXPECT_EQ(olbGetItemAtPoint(list, 5, kRowHeight + 5), 1);
    SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, kRowHeight + 5));
    SendMessageA(list, WM_LBUTTONUP, 0, MAKELPARAM(60, kRowHeight + 5));
    EXPECT_EQ(olbGetCurSel(list), 1);
}

TEST_P(HierListUndrawn, ItStaysOnTheLastPageOfTheRowsThatAreLeft) {
    HWND list = CreateScrolled();
    olbSetTopIndex(list, 195);
    for (int row = 199; row >= 190; --row) {
        olbDeleteString(list, row);
        EXPECT_EQ(olbGetTopIndex(list), row - kRowsInView);
    }
    olbAddString(list, "more");
    EXPECT_EQ(olbGetTopIndex(list), 185) << "what is pulled back stays there";
}

TEST_P(HierListUndrawn, MoreRoomPullsItBackAtOnce) {
    HWND list = CreateScrolled();
    olbSetTopIndex(list, 195);
    SetWindowPos(list, nullptr, 0, 0, 120, 20 * kRowHeight, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(olbGetTopIndex(list), 180);
    olbSetItemHeight(list, -1, kRowHeight / 2);
    EXPECT_EQ(olbGetTopIndex(list), 160);
}

TEST_P(HierListUndrawn, RowsOfTheirOwnHeightPullItBackToo) {
    host.answer = [](const vorn::test::Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_MEASUREITEM) {
            reinterpret_cast<MEASUREITEMSTRUCT*>(message.lParam)->itemHeight = 20;
            return TRUE;
        }
        return std::nullopt;
    };
    HWND list = CreateScrolled(WS_VSCROLL | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS);
    olbSetTopIndex(list, 195);
    for (int row = 195; row < 200; ++row) {
        olbSetItemHeight(list, row, 10);
    }
    EXPECT_EQ(olbGetTopIndex(list), 193) << "five of 10 pixels and two of 20 fit into 100";
    olbDeleteString(list, 0);
    EXPECT_EQ(olbGetTopIndex(list), 192);
    host.answer = nullptr;
}

TEST_P(HierListUndrawn, ANarrowerExtentPullsItBackSideways) {
    HWND list = CreateScrolled(WS_HSCROLL);
    olbSetHorizontalExtent(list, 1000);
    SendMessageA(list, WM_HSCROLL, SB_RIGHT, 0);
    RECT row{};
    olbGetItemRect(list, 0, &row);
    EXPECT_EQ(row.left, 120 - 1000);
    olbSetHorizontalExtent(list, 200);
    olbGetItemRect(list, 0, &row);
    EXPECT_EQ(row.left, 120 - 200);
}

TEST_P(HierListUndrawn, FewerColumnsPullItBackSideways) {
    HWND list = CreateScrolled(WS_HSCROLL | LBS_MULTICOLUMN);
    olbSetColumnWidth(list, 40);
    SendMessageA(list, WM_HSCROLL, SB_RIGHT, 0);
    EXPECT_GT(olbGetTopIndex(list), 100);
    for (int row = 199; row >= 7; --row) {
        olbDeleteString(list, row);
    }
    EXPECT_EQ(olbGetTopIndex(list), 0);
    EXPECT_EQ(olbGetItemAtPoint(list, 5, 5), 0);
}

TEST_P(HierListUndrawn, TheViewIsPulledBackByAScrollMessage) {
    HWND list = CreateScrolled();
    olbSetTopIndex(list, 195);
    const vorn::test::Spy spy(list);
    for (int i = 0; i < 100; ++i) {
        olbAddString(list, "more");
    }
    EXPECT_EQ(spy.messages.size(), 0u);
    olbResetContent(list);
    const std::vector<vorn::test::Message> scrolled = spy.Received(WM_VSCROLL);
    ASSERT_EQ(scrolled.size(), 1u);
    EXPECT_EQ(scrolled[0].wParam, static_cast<WPARAM>(MAKELONG(SB_THUMBTRACK, 0)));
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
