// Options, colours, styles, columns, tab stops and pictures of outline lists.
#include "tests/windows/support/outline_list.h"
#include "tests/windows/support/outline_redraw.h"
#include "tests/windows/support/outline_tree.h"

namespace {

using vorn::test::kOutlineId;
using vorn::test::kRowHeight;
using vorn::test::Message;
using vorn::test::OutlineListTest;
using vorn::test::PaintsBy;
using vorn::test::PictureOf;
using vorn::test::RedStrip;
using vorn::test::SmallTree;
using vorn::test::Spy;

constexpr COLORREF kRed = RGB(255, 0, 0);

DWORD StyleOf(HWND list) {
    return static_cast<DWORD>(GetWindowLongA(list, GWL_STYLE));
}

class HierListLooks : public OutlineListTest {
protected:
    static SmallTree Wrap(HWND list) {
        SmallTree tree;
        tree.list = list;
        return tree;
    }

    static int RedPixels(HWND list) {
        const RECT all = {0, 0, 120, 100};
        return PictureOf(Wrap(list)).Count(all, kRed);
    }

    void ExpectPaints(void (*act)(HWND list), const char* name) {
        HWND list = Create();
        AddRows(list, 3);
        EXPECT_GE(PaintsBy(list, [&] { act(list); }), 1u) << name;
        DestroyWindow(list);
        list = Create(LBS_NOREDRAW);
        AddRows(list, 3);
        EXPECT_EQ(PaintsBy(list, [&] { act(list); }), 0u) << name << " with LBS_NOREDRAW";
        DestroyWindow(list);
    }
};

TEST_F(HierListLooks, OptionsAnswerWhatWasBefore) {
    HWND list = Create();
    for (auto* set : {olbShowLines, olbEnableMicroBitmaps, olbSetFullSelectRect,
                      olbSetProportionalScrollBars}) {
        EXPECT_EQ(set(list, 5), 0);
        EXPECT_EQ(set(list, TRUE), 1);
        EXPECT_EQ(set(list, FALSE), 1);
        EXPECT_EQ(set(list, FALSE), 0);
    }
    EXPECT_EQ(olbEnableBitmaps(list, FALSE), 1) << "shown from the start";
    EXPECT_EQ(olbEnableBitmaps(list, TRUE), 0);
    EXPECT_EQ(olbGetIndent(list), 20);
    EXPECT_EQ(olbSetIndent(list, 65535), 20);
    EXPECT_EQ(olbSetIndent(list, 5), 65535) << "16 bits without a sign";
    EXPECT_EQ(olbGetIndent(list), 5);
}

TEST_F(HierListLooks, SettersRepaintAtOnce) {
    ExpectPaints([](HWND list) { olbShowLines(list, TRUE); }, "lines");
    ExpectPaints([](HWND list) { olbEnableMicroBitmaps(list, TRUE); }, "boxes");
    ExpectPaints([](HWND list) { olbEnableBitmaps(list, FALSE); }, "pictures");
    ExpectPaints([](HWND list) { olbSetFullSelectRect(list, TRUE); }, "full");
    ExpectPaints([](HWND list) { olbSetIndent(list, 3); }, "indent");
    ExpectPaints([](HWND list) { olbSetColor(list, 2, kRed, TRUE); }, "colour");
    ExpectPaints([](HWND list) { olbSetBitmapIndex(list, 1, 4); }, "index");
    ExpectPaints([](HWND list) { olbSetBitmapIndex(list, -1, 4); }, "default index");
    ExpectPaints([](HWND list) { olbSetLevelIndex(list, 0, 4); }, "level index");
    ExpectPaints([](HWND list) { olbSetLevelBitmap(list, 0, RedStrip()); }, "level strip");
    ExpectPaints([](HWND list) { olbSetBitmaps(list, -1, RedStrip()); }, "strip");
    ExpectPaints([](HWND list) { olbSetTabStops(list, 0, nullptr); }, "tab stops");
    ExpectPaints([](HWND list) { olbSetColumns(list, 2); }, "columns");
    HWND list = Create();
    AddRows(list, 3);
    EXPECT_EQ(PaintsBy(list, [&] { olbSetIndent(list, 20); }), 0u) << "the same";
    EXPECT_EQ(PaintsBy(list, [&] { olbSetColor(list, 2, kRed, FALSE); }), 0u);
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    EXPECT_EQ(PaintsBy(list, [&] { olbSetIndent(list, 21); }), 0u);
    EXPECT_EQ(PaintsBy(list, [&] { olbSetColor(list, 2, kRed, TRUE); }), 0u);
}

TEST_F(HierListLooks, ColoursAnswerWhatTheyStored) {
    HWND list = Create();
    for (const int part : {0, 1, 2, 4, 8, 16, 32, 64}) {
        EXPECT_EQ(olbSetColor(list, part, 0x123456, FALSE), 0x123456u) << part;
    }
    EXPECT_EQ(olbSetColor(list, 3, 0x123456, FALSE), 3u) << "the part when there is none";
    EXPECT_EQ(olbSetColor(list, 128, 0x123456, FALSE), 128u);
    EXPECT_NE(olbSetColor(list, 2, kRed, TRUE), 0u) << "what UpdateWindow answers";
    EXPECT_GE(PaintsBy(list, [&] { olbSetColor(list, 3, kRed, TRUE); }), 1u) << "all the same";
}

TEST_F(HierListLooks, FlagsAreMaskedAndAdded) {
    HWND list = Create();
    EXPECT_EQ(olbSetFlags(list, 0, 4 | 128), 4 | 128);
    EXPECT_EQ(olbShowLines(list, TRUE), 1);
    EXPECT_EQ(olbEnableMicroBitmaps(list, TRUE), 1);
    EXPECT_EQ(olbSetFlags(list, static_cast<WORD>(~4), 2 | 16), 2 | 16) << "what was added";
    EXPECT_EQ(olbShowLines(list, FALSE), 0) << "masked out";
    EXPECT_EQ(olbEnableMicroBitmaps(list, FALSE), 1) << "kept";
    EXPECT_EQ(olbIsAutoOpen(list), TRUE);
    EXPECT_EQ(olbSetFullSelectRect(list, FALSE), 1);
    EXPECT_EQ(olbSetFlags(list, 0, 0), 0);
    EXPECT_EQ(olbIsAutoOpen(list), FALSE);
}

TEST_F(HierListLooks, StyleReplacesTheLowSixteenBits) {
    HWND list = Create(LBS_NOTIFY | LBS_MULTIPLESEL);
    const DWORD high = StyleOf(list) & 0xFFFF0000;
    int reckoned = 0;
    {
        Spy spy(list);
        EXPECT_EQ(olbChangeStyle(list, LBS_SORT | LBS_NOTIFY), LBS_NOTIFY | LBS_MULTIPLESEL);
        reckoned = static_cast<int>(spy.Received(WM_NCCALCSIZE).size());
    }
    EXPECT_EQ(StyleOf(list), high | LBS_SORT | LBS_NOTIFY);
    EXPECT_GE(reckoned, 1);
    olbAddString(list, "b");
    EXPECT_EQ(olbAddString(list, "a"), 0) << "it sorts from now on";
    EXPECT_EQ(olbGetSelCount(list), -1) << "and selects one";
}

TEST_F(HierListLooks, BordersAreNumbers) {
    HWND list = Create();
    for (const DWORD border : {1u, 2u, 3u, 0u}) {
        EXPECT_EQ(olbSetBorderStyle(list, border), TRUE);
        EXPECT_EQ(olbGetBorderStyle(list), static_cast<LONG>(border));
    }
}

TEST_F(HierListLooks, OwnerDrawAsksTheListItselfForTheHeight) {
    HWND list = Create(LBS_OWNERDRAWVARIABLE);
    host.answer = [](const Message& received) -> std::optional<LRESULT> {
        if (received.message == WM_MEASUREITEM) {
            reinterpret_cast<MEASUREITEMSTRUCT*>(received.lParam)->itemHeight = 44;
            return TRUE;
        }
        return std::nullopt;
    };
    Spy spy(list);
    MEASUREITEMSTRUCT asked{};
    spy.before = [&](const Message& received) {
        if (received.message == WM_MEASUREITEM) {
            asked = *reinterpret_cast<MEASUREITEMSTRUCT*>(received.lParam);
        }
    };
    EXPECT_EQ(olbSetOwnerDraw(list, 1), 2) << "what was before";
    EXPECT_EQ(spy.Received(WM_MEASUREITEM).size(), 1u);
    EXPECT_EQ(asked.CtlType, static_cast<UINT>(ODT_LISTBOX));
    EXPECT_EQ(asked.CtlID, static_cast<UINT>(kOutlineId));
    EXPECT_EQ(asked.itemID, 65535u);
    EXPECT_EQ(asked.itemHeight, static_cast<UINT>(kRowHeight));
    EXPECT_EQ(StyleOf(list) & 0x30, static_cast<DWORD>(LBS_OWNERDRAWFIXED));
    EXPECT_EQ(olbGetItemHeight(list, -1), 44);
    EXPECT_EQ(olbSetOwnerDraw(list, 2), 1);
    EXPECT_EQ(StyleOf(list) & 0x30, static_cast<DWORD>(LBS_OWNERDRAWVARIABLE));
    EXPECT_EQ(olbSetOwnerDraw(list, 0), 2);
    EXPECT_EQ(StyleOf(list) & 0x30, 0u);
    EXPECT_EQ(olbSetOwnerDraw(list, 9), 0);
    EXPECT_EQ(StyleOf(list) & 0x30, 0u);
    EXPECT_EQ(spy.Received(WM_MEASUREITEM).size(), 1u);
    host.answer = nullptr;
}

TEST_F(HierListLooks, ColumnsDivideTheWidth) {
    HWND list = Create(WS_VSCROLL, 240, 90);
    const int bar = GetSystemMetrics(SM_CXVSCROLL);
    EXPECT_EQ(olbSetColumns(list, 2), TRUE);
    EXPECT_EQ(olbGetColumnWidth(list), (240 + bar) / 2) << "with the bar that was wanted";
    EXPECT_EQ(StyleOf(list) & LBS_MULTICOLUMN, static_cast<DWORD>(LBS_MULTICOLUMN));
    EXPECT_EQ(olbSetColumns(list, 3), TRUE);
    EXPECT_EQ(olbGetColumnWidth(list), 80) << "no vertical bar is wanted any more";
    EXPECT_EQ(olbGetLinesPerColumn(list), 5);
    AddRows(list, 16);
    EXPECT_NE(StyleOf(list) & WS_HSCROLL, 0u) << "four columns";
    EXPECT_EQ(StyleOf(list) & WS_VSCROLL, 0u);
    EXPECT_EQ(olbSetColumns(list, 0), TRUE);
    EXPECT_EQ(StyleOf(list) & (LBS_MULTICOLUMN | WS_HSCROLL), 0u);
    EXPECT_NE(StyleOf(list) & WS_VSCROLL, 0u);
    EXPECT_EQ(olbSetColumns(list, 0), TRUE) << "there are none to end";
}

TEST_F(HierListLooks, ColumnsThatCannotBeChangeNothing) {
    HWND list = Create(0, 23 * 20 + 19, 90); // 20 columns of 23 pixels
    const DWORD style = StyleOf(list);
    for (const LONG count : {21, -1, 100000, 20}) {
        EXPECT_EQ(olbSetColumns(list, count), FALSE) << count;
        EXPECT_EQ(StyleOf(list), style);
        EXPECT_EQ(olbGetColumnWidth(list), 0);
    }
    HWND wider = Create(0, 24 * 20, 90);
    EXPECT_EQ(olbSetColumns(wider, 21), FALSE);
    EXPECT_EQ(olbSetColumns(wider, 20), TRUE) << "24 pixels do";
    EXPECT_EQ(olbGetColumnWidth(wider), 24);
}

TEST_F(HierListLooks, ColumnsBeginAtTheLeft) {
    HWND list = Create(WS_HSCROLL | LBS_MULTICOLUMN, 120, 90);
    olbSetColumnWidth(list, 60);
    AddRows(list, 40);
    olbSetTopIndex(list, 20);
    EXPECT_GT(olbGetTopIndex(list), 0);
    EXPECT_EQ(olbSetColumns(list, 4), TRUE);
    EXPECT_EQ(olbGetTopIndex(list), 0);
    RECT rect{};
    EXPECT_EQ(olbGetItemRect(list, 0, &rect), 1);
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.right, 30);
}

TEST_F(HierListLooks, WidthsAnswerWhatWasBefore) {
    HWND list = Create(LBS_MULTICOLUMN, 120, 90);
    EXPECT_EQ(olbGetColumnWidth(list), 0) << "15 average characters";
    EXPECT_EQ(olbSetColumnWidth(list, 50), 0);
    EXPECT_EQ(olbSetColumnWidth(list, 0), 50);
    EXPECT_EQ(olbGetLinesPerColumn(list), 5);
    EXPECT_EQ(olbGetHorizontalExtent(list), 0);
    EXPECT_EQ(olbSetHorizontalExtent(list, 500), 0);
    EXPECT_EQ(olbSetHorizontalExtent(list, -3), 500);
    EXPECT_EQ(olbGetHorizontalExtent(list), 0);
}

TEST_F(HierListLooks, ExtentBringsTheHorizontalBar) {
    HWND list = Create(WS_HSCROLL);
    olbAddString(list, "row");
    EXPECT_EQ(StyleOf(list) & WS_HSCROLL, 0u);
    olbSetHorizontalExtent(list, 500);
    EXPECT_NE(StyleOf(list) & WS_HSCROLL, 0u);
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(list, SB_HORZ, &info);
    EXPECT_EQ(info.nMax, 499);
    EXPECT_EQ(info.nPage, 120u);
    olbSetHorizontalExtent(list, 120);
    EXPECT_EQ(StyleOf(list) & WS_HSCROLL, 0u);
}

TEST_F(HierListLooks, TabStopsAreTakenOrRefused) {
    HWND list = Create();
    const int stops[] = {20, 60, 200};
    EXPECT_EQ(olbSetTabStops(list, 3, stops), TRUE);
    EXPECT_EQ(olbSetTabStops(list, 1, stops), TRUE);
    EXPECT_EQ(olbSetTabStops(list, 0, nullptr), TRUE);
    EXPECT_EQ(olbSetTabStops(list, 2, nullptr), FALSE);
    EXPECT_EQ(olbSetTabStops(list, -1, stops), FALSE);
}

// ---- Pictures ----

TEST_F(HierListLooks, StripsAnswerTheOneBefore) {
    HWND list = Create();
    AddRows(list, 2);
    HBITMAP first = RedStrip();
    HBITMAP second = RedStrip();
    EXPECT_EQ(olbSetBitmaps(list, 1, first), nullptr);
    EXPECT_EQ(olbSetBitmaps(list, 1, second), first);
    EXPECT_EQ(olbSetBitmapsEx(list, olbIndexToHandle(list, 1), nullptr), second);
    EXPECT_EQ(olbSetBitmaps(list, -1, first), nullptr);
    EXPECT_EQ(olbSetBitmapsEx(list, nullptr, second), first) << "the control's";
    EXPECT_EQ(olbSetBitmapsEx(list, OLB_NOITEM, first), second);
    EXPECT_EQ(olbSetBitmaps(list, 2, second), nullptr) << "no such row";
    EXPECT_EQ(olbSetBitmaps(list, -1, nullptr), first) << "and nothing is set";
    EXPECT_NE(DeleteObject(first), FALSE) << "the host's";
    EXPECT_NE(DeleteObject(second), FALSE);
}

TEST_F(HierListLooks, IndexesAnswerTheOneBefore) {
    HWND list = Create();
    AddRows(list, 2);
    HOLBITEM item = olbIndexToHandle(list, 1);
    EXPECT_EQ(olbSetBitmapIndex(list, 1, 7), -1);
    EXPECT_EQ(olbSetBitmapIndexEx(list, item, OLB_SORTFIRST), 7);
    EXPECT_EQ(olbSetBitmapIndexEx(list, item, -1), -32768);
    EXPECT_EQ(olbSetBitmapIndex(list, -1, 3), 1) << "the control's, 1 at first";
    EXPECT_EQ(olbSetBitmapIndexEx(list, nullptr, 4), 3);
    EXPECT_EQ(olbSetBitmapIndexEx(list, OLB_NOITEM, 5), 4);
    EXPECT_EQ(olbSetBitmapIndex(list, 2, 9), -1) << "no such row";
    EXPECT_EQ(olbSetBitmapIndex(list, -1, 1), 5);
}

TEST_F(HierListLooks, LevelsHaveStripsAndIndexes) {
    HWND list = Create();
    AddRows(list, 1);
    EXPECT_EQ(olbSetLevelIndex(list, 0, 3), -1);
    EXPECT_EQ(olbSetLevelIndex(list, 0, 4), 3);
    EXPECT_EQ(olbSetLevelIndex(list, 19, 4), -1);
    EXPECT_EQ(olbSetLevelIndex(list, 20, 4), -1) << "ignored";
    EXPECT_EQ(olbSetLevelIndex(list, -1, 4), -1);
    EXPECT_EQ(RedPixels(list), 0);
    HBITMAP strip = RedStrip();
    olbSetLevelBitmap(list, 0, strip);
    EXPECT_GT(RedPixels(list), 100);
    EXPECT_EQ(olbSetLevelIndex(list, 0, 5), -1) << "a new strip resets the index";
    olbSetLevelBitmap(list, 0, strip);
    EXPECT_GT(RedPixels(list), 100) << "the same again stays";
    olbSetLevelBitmap(list, 0, nullptr);
    EXPECT_EQ(RedPixels(list), 0);
    EXPECT_EQ(DeleteObject(strip), FALSE) << "the list has deleted it";
    HBITMAP kept = RedStrip();
    olbSetLevelBitmap(list, 20, kept);
    olbSetLevelBitmap(list, -1, kept);
    EXPECT_NE(DeleteObject(kept), FALSE) << "not taken";
}

TEST_F(HierListLooks, StripOfTheControlGoesWithIt) {
    HWND list = Create();
    AddRows(list, 1);
    HBITMAP strip = RedStrip();
    HBITMAP ofItem = RedStrip();
    olbSetBitmaps(list, -1, strip);
    EXPECT_GT(RedPixels(list), 100);
    olbSetBitmaps(list, 0, ofItem);
    DestroyWindow(list);
    EXPECT_EQ(DeleteObject(strip), FALSE);
    EXPECT_NE(DeleteObject(ofItem), FALSE) << "an item's is the host's";
}

TEST_F(HierListLooks, PicturesAreDrawnForParents) {
    HWND list = Create();
    AddRows(list, 1);
    olbSetBitmaps(list, -1, RedStrip());
    olbSetBitmapIndex(list, 0, 0); // that with the strip's transparent corner
    olbAddChildString(list, 0, "child");
    olbShowLines(list, TRUE);
    int right = 0;
    const vorn::test::Pixels picture = Expected(60, kRowHeight, [&](HDC context) {
        const RECT rect = {10, 0, 60, kRowHeight};
        right = olbPaintBitmap(list, context, 0, &rect);
        EXPECT_EQ(olbPaintBitmap(list, context, 5, &rect), -1) << "no row, nothing drawn";
        EXPECT_EQ(olbPaintBitmap(list, context, 0, nullptr), -1);
    });
    EXPECT_EQ(right, 26);
    EXPECT_EQ(picture.Count({10, 0, 26, kRowHeight}, kRed), 255) << "all but the corner";
    EXPECT_EQ(picture.Count({0, 0, 60, kRowHeight}, kRed), 255);

    const vorn::test::Pixels lines = Expected(60, kRowHeight, [&](HDC context) {
        const RECT rect = {0, 0, 60, kRowHeight};
        olbEnableMicroBitmaps(list, TRUE);
        olbPaintLines(list, context, 0, &rect);
        olbPaintLines(list, context, 9, &rect);
        olbPaintLines(list, context, 0, nullptr);
    });
    const RECT slot = {0, 0, 20, kRowHeight};
    EXPECT_LT(lines.Count(slot, GetSysColor(COLOR_WINDOW)), 20 * kRowHeight - 20)
        << "a box, and lines";
    EXPECT_EQ(lines.Count({20, 0, 60, kRowHeight}, GetSysColor(COLOR_WINDOW)), 40 * kRowHeight);
}

} // namespace
