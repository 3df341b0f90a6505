// The functions of selection, anchor, caret and view of outline lists.
#include "tests/windows/support/outline_list.h"
#include "tests/windows/support/outline_redraw.h"

#include <string>

namespace {

using vorn::test::kRowHeight;
using vorn::test::OutlineListTest;
using vorn::test::PaintsBy;

class HierListSelecting : public OutlineListTest {
protected:
    HWND CreateRows(DWORD style, int count = 10) {
        HWND list = Create(style | LBS_NOTIFY);
        AddRows(list, count);
        host.TakeNotifications();
        return list;
    }

    // The selected rows, as the list tells of each.
    static std::string Selected(HWND list) {
        std::string rows;
        for (LONG row = 0; row < olbGetVisibleCount(list); ++row) {
            rows += olbGetSel(list, row) == 1 ? std::to_string(row) + " " : "";
        }
        return rows;
    }
};

TEST_F(HierListSelecting, OneOfAll) {
    HWND list = CreateRows(0);
    EXPECT_EQ(olbGetCurSel(list), -1);
    EXPECT_EQ(olbGetCurSelEx(list), OLB_NOITEM);
    EXPECT_EQ(olbSetCurSel(list, 3), 0);
    EXPECT_EQ(olbSetCurSel(list, 3), 0) << "again";
    EXPECT_EQ(olbGetCurSel(list), 3);
    EXPECT_EQ(olbGetCurSelEx(list), olbIndexToHandle(list, 3));
    EXPECT_EQ(olbSetCurSel(list, 2), 0);
    EXPECT_EQ(Selected(list), "2 ");
    EXPECT_EQ(olbSetCurSel(list, 10), -1) << "past the end";
    EXPECT_EQ(olbSetCurSel(list, -2), -1);
    EXPECT_EQ(Selected(list), "2 ");
    EXPECT_EQ(olbSetCurSel(list, -1), -1) << "none";
    EXPECT_EQ(Selected(list), "");
    EXPECT_EQ(olbGetCurSel(list), -1);
    EXPECT_EQ(olbGetAnchorIndex(list), -1);
    EXPECT_TRUE(host.TakeNotifications().empty()) << "nothing is notified";
}

TEST_F(HierListSelecting, OneOfAllRepaints) {
    HWND list = CreateRows(0);
    EXPECT_GE(PaintsBy(list, [&] { olbSetCurSel(list, 3); }), 1u);
    EXPECT_EQ(PaintsBy(list, [&] { olbSetCurSel(list, 3); }), 0u);
    EXPECT_GE(PaintsBy(list, [&] { olbSetCurSel(list, -1); }), 1u);
    HWND quiet = CreateRows(LBS_NOREDRAW);
    EXPECT_EQ(PaintsBy(quiet, [&] { olbSetCurSel(quiet, 3); }), 0u);
    EXPECT_EQ(PaintsBy(quiet, [&] { olbSetCurSel(quiet, -1); }), 0u);
}

TEST_F(HierListSelecting, IsOfOneKindOrTheOther) {
    for (const DWORD style : {DWORD{LBS_MULTIPLESEL}, DWORD{LBS_EXTENDEDSEL}}) {
        HWND list = CreateRows(style);
        olbSetSel(list, 1, TRUE);
        EXPECT_EQ(olbSetCurSel(list, 3), -1);
        EXPECT_EQ(olbGetCurSel(list), -1);
        EXPECT_EQ(olbGetCurSelEx(list), OLB_NOITEM);
        EXPECT_EQ(Selected(list), "1 ");
        EXPECT_EQ(olbGetSelCount(list), 1);
    }
    HWND list = CreateRows(0);
    int rows[3] = {7, 7, 7};
    EXPECT_EQ(olbSetSel(list, 1, TRUE), -1);
    EXPECT_EQ(olbSelItemRange(list, 1, 2, TRUE), -1);
    EXPECT_EQ(olbGetSelCount(list), -1);
    EXPECT_EQ(olbGetSelItems(list, 3, rows), -1);
    EXPECT_EQ(rows[0], 7);
    EXPECT_EQ(Selected(list), "");
}

TEST_F(HierListSelecting, OfSeveral) {
    for (const DWORD style : {DWORD{LBS_MULTIPLESEL}, DWORD{LBS_EXTENDEDSEL}}) {
        HWND list = CreateRows(style);
        EXPECT_EQ(olbSetSel(list, 4, TRUE), 0);
        EXPECT_EQ(olbSetSel(list, 1, TRUE), 0);
        EXPECT_EQ(olbSetSel(list, 1, TRUE), 0) << "again";
        EXPECT_EQ(Selected(list), "1 4 ");
        EXPECT_EQ(olbGetAnchorIndex(list), 1) << "the row selected last";
        EXPECT_EQ(olbGetCaretIndex(list), 1);
        int rows[4] = {-5, -5, -5, -5};
        EXPECT_EQ(olbGetSelItems(list, 4, rows), 2);
        EXPECT_EQ(rows[0], 1) << "from the top down";
        EXPECT_EQ(rows[1], 4);
        EXPECT_EQ(rows[2], -5);
        EXPECT_EQ(olbGetSelItems(list, 1, rows), 1);
        EXPECT_EQ(olbGetSelItems(list, 0, rows), 0);
        EXPECT_EQ(olbGetSelItems(list, -1, rows), 0);
        EXPECT_EQ(olbGetSelItems(list, 1, nullptr), -1);
        EXPECT_EQ(olbSetSel(list, 4, FALSE), 0);
        EXPECT_EQ(olbSetSel(list, 10, TRUE), -1);
        EXPECT_EQ(Selected(list), "1 ");
        EXPECT_EQ(olbSetSel(list, -1, TRUE), 0) << "all";
        EXPECT_EQ(olbGetSelCount(list), 10);
        EXPECT_EQ(olbSetSel(list, -1, FALSE), 0);
        EXPECT_EQ(olbGetSelCount(list), 0);
        EXPECT_EQ(olbGetSel(list, 10), -1);
        EXPECT_EQ(olbGetSel(list, -1), -1);
        EXPECT_TRUE(host.TakeNotifications().empty());
    }
}

TEST_F(HierListSelecting, OfRanges) {
    HWND list = CreateRows(LBS_MULTIPLESEL);
    EXPECT_EQ(olbSelItemRange(list, 2, 4, TRUE), 0);
    EXPECT_EQ(Selected(list), "2 3 4 ");
    EXPECT_EQ(olbSelItemRange(list, 3, 3, FALSE), 0);
    EXPECT_EQ(olbSelItemRange(list, 8, 99, TRUE), 0) << "cut to the rows there are";
    EXPECT_EQ(Selected(list), "2 4 8 9 ");
    EXPECT_EQ(olbSelItemRange(list, 4, 2, FALSE), 0) << "whichever comes first";
    EXPECT_EQ(Selected(list), "8 9 ");
    EXPECT_EQ(olbSelItemRange(list, 9, -3, FALSE), 0);
    EXPECT_EQ(Selected(list), "");
    EXPECT_GE(PaintsBy(list, [&] { olbSelItemRange(list, 0, 1, TRUE); }), 1u);
    EXPECT_EQ(PaintsBy(list, [&] { olbSelItemRange(list, 0, 1, TRUE); }), 0u) << "nothing changed";
}

TEST_F(HierListSelecting, ByText) {
    HWND list = Create(LBS_NOTIFY);
    for (const char* text : {"ant", "bee", "ape", "Ant"}) {
        olbAddString(list, text);
    }
    EXPECT_EQ(olbSelectString(list, -1, "a"), 0);
    EXPECT_EQ(olbSelectString(list, 0, "a"), 2);
    EXPECT_EQ(olbSelectString(list, 2, "a"), 0) << "round";
    EXPECT_EQ(olbSelectString(list, 0, "an"), 0) << "the start itself, last of all";
    EXPECT_EQ(olbSelectString(list, -1, "A"), 3);
    EXPECT_EQ(olbGetCurSel(list), 3);
    EXPECT_EQ(olbSelectString(list, -1, "x"), -1);
    EXPECT_EQ(olbSelectString(list, -1, nullptr), -1);
    EXPECT_EQ(olbGetCurSel(list), 3) << "nothing found, nothing changed";
    EXPECT_TRUE(host.TakeNotifications().empty());
}

TEST_F(HierListSelecting, HasAnAnchorAndACaret) {
    HWND list = CreateRows(LBS_EXTENDEDSEL);
    EXPECT_EQ(olbSetAnchorIndex(list, 4), 0);
    EXPECT_EQ(olbGetAnchorIndex(list), 4);
    EXPECT_EQ(olbSetAnchorIndex(list, 10), -1);
    EXPECT_EQ(olbSetAnchorIndex(list, -2), -1);
    EXPECT_EQ(olbGetAnchorIndex(list), 4);
    EXPECT_EQ(olbSetAnchorIndex(list, -1), 0) << "none";
    EXPECT_EQ(olbGetAnchorIndex(list), -1);
    EXPECT_EQ(olbSetCaretIndex(list, 9), 0);
    EXPECT_EQ(olbGetCaretIndex(list), 9);
    EXPECT_EQ(olbGetTopIndex(list), 5) << "scrolled into view";
    EXPECT_EQ(olbSetCaretIndex(list, 10), -1);
    EXPECT_EQ(olbSetCaretIndex(list, -1), -1);
    EXPECT_EQ(olbGetCaretIndex(list), 9);
    EXPECT_EQ(Selected(list), "");
    olbDeleteString(list, 9);
    EXPECT_NE(olbGetCaretIndex(list), 9);
}

TEST_F(HierListSelecting, ViewBeginsAndEndsAtRows) {
    HWND list = CreateRows(WS_VSCROLL, 20);
    EXPECT_EQ(olbGetTopIndex(list), 0);
    EXPECT_EQ(olbGetBottomIndex(list), 5) << "five rows and 10 pixels";
    EXPECT_EQ(olbSetTopIndex(list, 7), 0);
    EXPECT_EQ(olbGetTopIndex(list), 7);
    EXPECT_EQ(olbGetBottomIndex(list), 12);
    EXPECT_EQ(olbSetTopIndex(list, 19), 0);
    EXPECT_EQ(olbGetTopIndex(list), 15) << "no row behind the last page";
    EXPECT_EQ(olbSetTopIndex(list, 20), -1);
    EXPECT_EQ(olbSetTopIndex(list, -1), -1);
    olbResetContent(list);
    EXPECT_EQ(olbGetTopIndex(list), 0);
    EXPECT_EQ(olbGetBottomIndex(list), -1) << "there are no rows";
    EXPECT_EQ(olbSetTopIndex(list, 0), 0) << "as a list box's";
}

TEST_F(HierListSelecting, ViewKnowsItsPoints) {
    HWND list = CreateRows(0);
    EXPECT_EQ(olbGetItemAtPoint(list, 0, 0), 0);
    EXPECT_EQ(olbGetItemAtPoint(list, 119, kRowHeight), 1);
    EXPECT_EQ(olbGetItemAtPoint(list, 120, 0), -1);
    EXPECT_EQ(olbGetItemAtPoint(list, -1, 0), -1);
    EXPECT_EQ(olbGetItemAtPoint(list, 0, 100), -1);
    RECT rect{};
    EXPECT_EQ(olbGetItemRect(list, 1, &rect), 1);
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.top, kRowHeight);
    EXPECT_EQ(rect.right, 120);
    EXPECT_EQ(rect.bottom, 2 * kRowHeight);
    EXPECT_EQ(olbGetItemRect(list, 10, &rect), -1);
    EXPECT_EQ(olbGetItemRect(list, -1, &rect), -1);
    EXPECT_EQ(olbGetItemRect(list, 1, nullptr), -1);
    HWND empty = Create();
    EXPECT_EQ(olbGetItemAtPoint(empty, 5, 5), -1);
}

} // namespace
