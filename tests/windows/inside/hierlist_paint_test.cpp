// What outline lists look like in states that take more than the public functions to reach.
#include "core/memory.h"
#include "hierlist/list_record_win.h"
#include "hierlist/list_scroll_win.h"
#include "hierlist/list_view_win.h"
#include "tests/windows/support/outline_list.h"

namespace vorn::hierlist {
namespace {

using test::Difference;
using test::kOutlineHeight;
using test::kOutlineId;
using test::kOutlineWidth;
using test::kRowHeight;
using test::Message;
using test::OutlineListTest;
using test::Pixels;
using test::PixelsOf;

class HierListLook : public OutlineListTest {
protected:
    // A list without pictures and with a row of text.
    HWND CreateWith(const char* text, DWORD style = 0) {
        HWND list = Create(style);
        olbEnableBitmaps(list, FALSE);
        olbAddString(list, text);
        return list;
    }
    static Record* In(HWND list) { return RecordOf<Record>(list); }
    static OlbItem* Row(HWND list, std::uint32_t row) {
        return IndexToHandle(In(list)->outline, row);
    }
    static void Select(HWND list, std::uint32_t row) {
        SetSelected(In(list)->outline, Row(list, row), true);
        RedrawRow(list, row);
    }
    static LONG WidthOf(HDC context, const char* text) {
        RECT rect{};
        DrawTextA(context, text, -1, &rect, DT_SINGLELINE | DT_CALCRECT | DT_NOPREFIX);
        return rect.right;
    }
    static void Highlight(HDC context, const RECT& rect) {
        FillRect(context, &rect, GetSysColorBrush(COLOR_HIGHLIGHT));
        SetTextColor(context, GetSysColor(COLOR_HIGHLIGHTTEXT));
    }
};

TEST_F(HierListLook, TheHighlightIsThreePixelsWiderThanTheText) {
    HWND list = CreateWith("parent");
    olbAddChildString(list, 0, "child");
    olbOpenItem(list, 0);
    Select(list, 1);
    const Pixels expected = Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) {
        Write(context, "parent", 0, 0);
        Highlight(context, {17, 18, 23 + WidthOf(context, "child"), 36});
        Write(context, "child", 20, 1);
    });
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
}

TEST_F(HierListLook, AFullHighlightReachesToTheEdge) {
    HWND list = CreateWith("parent");
    EXPECT_EQ(olbSetFullSelectRect(list, TRUE), 0);
    olbAddChildString(list, 0, "child");
    olbOpenItem(list, 0);
    Select(list, 1);
    const Pixels expected = Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) {
        Write(context, "parent", 0, 0);
        Highlight(context, {17, 18, kOutlineWidth, 36});
        Write(context, "child", 20, 1);
    });
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
}

TEST_F(HierListLook, LockedTextIsGrayUntilSelected) {
    HWND list = CreateWith("locked");
    SetLocked(Row(list, 0), true);
    RedrawRow(list, 0);
    Pixels expected = Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) {
        SetTextColor(context, GetSysColor(COLOR_GRAYTEXT));
        Write(context, "locked", 0, 0);
    });
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
    Select(list, 0);
    expected = Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) {
        Highlight(context, {0, 0, 3 + WidthOf(context, "locked"), 18});
        Write(context, "locked", 0, 0);
    });
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
}

TEST_F(HierListLook, TheCaretIsFramed) {
    HWND list = CreateWith("caret");
    Row(list, 0)->flags |= kFlagCaret;
    RedrawRow(list, 0);
    const Pixels expected = Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) {
        Write(context, "caret", 0, 0);
        const RECT frame = {-3, 0, 3 + WidthOf(context, "caret"), 18};
        SetTextColor(context, RGB(0, 0, 0));
        DrawFocusRect(context, &frame);
    });
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
}

TEST_F(HierListLook, AnEmptyListWithTheFocusFramesItsFirstRow) {
    HWND list = Create();
    PutFocus(In(list)->state.selection, true);
    RedrawRows(list);
    const Pixels expected = Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) {
        const RECT frame = {0, 0, kOutlineWidth, kRowHeight};
        SetTextColor(context, RGB(0, 0, 0));
        DrawFocusRect(context, &frame);
    });
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
}

TEST_F(HierListLook, TheTopRowBecomesTheCaretWhenThereIsNone) {
    HWND list = CreateWith("a");
    EXPECT_EQ(In(list)->state.selection.caret, Row(list, 0));
    EXPECT_EQ(Row(list, 0)->flags & kFlagCaret, 0) << "without the focus it is not marked";
    DeleteItem(In(list)->outline, Row(list, 0));
    EXPECT_EQ(In(list)->state.selection.caret, nullptr);
    PutFocus(In(list)->state.selection, true);
    olbAddString(list, "b");
    EXPECT_EQ(In(list)->state.selection.caret, Row(list, 0));
    EXPECT_NE(Row(list, 0)->flags & kFlagCaret, 0);
}

TEST_F(HierListLook, TabsGoToTheStops) {
    HWND list = CreateWith("a\tb\tc");
    const std::int32_t stops[] = {20, 50};
    ASSERT_TRUE(SetTabStops(In(list)->tabs, stops, 2));
    RedrawRows(list);
    const LONG base = LOWORD(GetDialogBaseUnits());
    const Pixels expected = Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) {
        Write(context, "a", 0, 0);
        Write(context, "b", static_cast<int>(20 * base / 4), 0);
        Write(context, "c", static_cast<int>(50 * base / 4), 0);
    });
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
}

TEST_F(HierListLook, TheHighlightCoversAllPieces) {
    HWND list = CreateWith("a\tb");
    const std::int32_t stop = 20;
    ASSERT_TRUE(SetTabStops(In(list)->tabs, &stop, 1));
    Select(list, 0);
    const LONG base = LOWORD(GetDialogBaseUnits());
    const Pixels expected = Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) {
        Highlight(context, {0, 0, 20 * base / 4 + WidthOf(context, "b") + 3, 18});
        Write(context, "a", 0, 0);
        Write(context, "b", static_cast<int>(20 * base / 4), 0);
    });
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
}

TEST_F(HierListLook, TheExtentScrolls) {
    HWND list = CreateWith("A long text to scroll through", WS_HSCROLL);
    In(list)->options.horizontalExtent = 300;
    UpdateBars(list);
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(list, SB_HORZ, &info);
    EXPECT_EQ(info.nMax, 299);
    EXPECT_EQ(info.nPage, UINT{kOutlineWidth});
    SendMessageA(list, WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 50), 0);
    EXPECT_EQ(In(list)->offset, 50);
    RECT client{};
    GetClientRect(list, &client);
    const Pixels expected = Expected(client.right, client.bottom, [&](HDC context) {
        Write(context, "A long text to scroll through", -50, 0);
    });
    const Pixels pixels = PixelsOf(list);
    for (int y = 0; y < client.bottom; ++y) {
        for (int x = 0; x < client.right; ++x) {
            ASSERT_EQ(pixels.At(x, y), expected.At(x, y)) << x << "," << y;
        }
    }
}

// ---- The background that the parent gives ----

TEST_F(HierListLook, TheParentsBrushIsUsedUnlessItIsNone) {
    HWND list = Create();
    In(list)->options.flags |= kOptionAskBackground;
    HBRUSH brush = CreateSolidBrush(RGB(10, 200, 30));
    LRESULT reply = 0;
    int asked = 0;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message != WM_CTLCOLORLISTBOX) {
            return std::nullopt;
        }
        ++asked;
        EXPECT_EQ(reinterpret_cast<HWND>(message.lParam), list);
        EXPECT_EQ(GetObjectType(reinterpret_cast<HDC>(message.wParam)), DWORD{OBJ_MEMDC});
        return reply;
    };
    RedrawRows(list);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(PixelsOf(list).At(50, 50), GetSysColor(COLOR_WINDOW));
    reply = reinterpret_cast<LRESULT>(brush);
    olbAddString(list, "x");
    const Pixels pixels = PixelsOf(list);
    EXPECT_EQ(pixels.At(50, 50), RGB(10, 200, 30));
    EXPECT_EQ(pixels.At(0, 1), RGB(10, 200, 30)) << "behind the picture too";
    DeleteObject(brush);
    RedrawRows(list);
    EXPECT_EQ(PixelsOf(list).At(50, 50), GetSysColor(COLOR_WINDOW)) << "no brush any more";
    host.answer = nullptr;
}

TEST_F(HierListLook, DottedLinesStayInStepWhenRowsAreOfOddHeight) {
    HWND list = Create(WS_VSCROLL);
    olbShowLines(list, TRUE);
    olbEnableMicroBitmaps(list, TRUE);
    AddRows(list, 20);
    In(list)->options.rowHeight = 19;
    UpdateBars(list);
    RedrawRows(list);
    for (int lines = 0; lines < 3; ++lines) {
        SendMessageA(list, WM_VSCROLL, SB_LINEDOWN, 0);
        const Pixels shown = PixelsOf(list);
        RedrawRows(list);
        EXPECT_EQ(Difference(PixelsOf(list), shown), "") << lines;
    }
}

TEST_F(HierListLook, ColumnsBeginElsewhereInAnotherHeight) {
    HWND list = Create(LBS_MULTICOLUMN | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS);
    AddRows(list, 12);
    EXPECT_EQ(ColumnCount(LayoutOf(*In(list))), 3u) << "5 + 5 + 2";
    SetWindowPos(list, nullptr, 0, 0, kOutlineWidth, 4 * kRowHeight, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(LinesPerColumn(LayoutOf(*In(list))), 4u);
    EXPECT_EQ(RowRect(LayoutOf(*In(list)), 9).top, kRowHeight) << "4 + 4 + the second";
    SetWindowPos(list, nullptr, 0, 0, kOutlineWidth, 12 * kRowHeight, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(ColumnCount(LayoutOf(*In(list))), 1u);
}

TEST_F(HierListLook, AListWhoseStyleTurnsToColumnsBeginsWithTheFirstRow) {
    HWND list = Create(WS_VSCROLL);
    AddRows(list, 20);
    SendMessageA(list, WM_VSCROLL, SB_BOTTOM, 0);
    EXPECT_EQ(In(list)->topIndex, 15u);
    SetWindowLongA(list, GWL_STYLE, GetWindowLongA(list, GWL_STYLE) | LBS_MULTICOLUMN);
    InvalidateRect(list, nullptr, FALSE);
    UpdateWindow(list);
    EXPECT_EQ(In(list)->topIndex, 0u);
    EXPECT_EQ(GetWindowLongA(list, GWL_STYLE) & WS_VSCROLL, 0);
}

// ---- Without ----

TEST_F(HierListLook, MissingPicturesDrawNothing) {
    HWND list = CreateWith("a");
    olbEnableMicroBitmaps(list, TRUE);
    olbAddChildString(list, 0, "b");
    Record* record = In(list);
    for (HBITMAP& box : record->boxes) {
        DeleteObject(box);
        box = nullptr;
    }
    DeleteObject(record->strips.own);
    record->strips.own = nullptr;
    olbEnableBitmaps(list, TRUE);
    const Pixels expected =
        Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) { Write(context, "a", 39, 0); });
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
}

TEST_F(HierListLook, EverythingIsFreedAtTheEnd) {
    const std::uint32_t before = BlockCount();
    HWND list = Create(LBS_MULTICOLUMN | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS | WS_HSCROLL);
    AddRows(list, 100);
    const std::int32_t stop = 20;
    ASSERT_TRUE(SetTabStops(In(list)->tabs, &stop, 1));
    const HGDIOBJ own = In(list)->strips.own;
    const auto boxes = In(list)->boxes;
    HBITMAP user = CreateBitmap(8, 8, 1, 1, nullptr);
    HBITMAP level = CreateBitmap(8, 8, 1, 1, nullptr);
    In(list)->strips.user = user;
    In(list)->strips.level[3] = level;
    EXPECT_GT(BlockCount(), before + 100);
    DestroyWindow(list);
    EXPECT_EQ(BlockCount(), before);
    for (HGDIOBJ object :
         {own, HGDIOBJ{boxes[0]}, HGDIOBJ{boxes[1]}, HGDIOBJ{user}, HGDIOBJ{level}}) {
        EXPECT_EQ(GetObjectType(object), 0u);
    }
}

TEST_F(HierListLook, WithoutMemoryNothingIsAddedAndTheParentIsTold) {
    HWND list = CreateWith("a");
    const std::uint32_t before = BlockCount();
    host.TakeNotifications();
    FailAllocationsAfter(0);
    EXPECT_EQ(olbAddString(list, "b"), -1);
    EXPECT_EQ(olbAddChildStringEx(list, nullptr, "b"), OLB_NOITEM);
    FailAllocationsAfter(-1);
    EXPECT_EQ(BlockCount(), before);
    EXPECT_EQ(host.TakeNotifications(), (std::vector<int>{0xFFFE, 0xFFFE}));
    EXPECT_EQ(olbAddString(list, "b"), 1);
}

TEST_F(HierListLook, ColumnsAreThereWithoutMemoryForTheirTable) {
    HWND list = Create(LBS_MULTICOLUMN | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS);
    AddRows(list, 100);
    Record* record = In(list);
    FreeColumns(record->columns);
    ForgetColumns(*record);
    FailAllocationsAfter(0);
    EXPECT_EQ(RowRect(LayoutOf(*record), 7).top, 2 * 18) << "five rows a column";
    FailAllocationsAfter(-1);
}

} // namespace
} // namespace vorn::hierlist
