// Adding, inserting, deleting, moving and copying the items of outline lists.
#include "tests/windows/support/outline_list.h"
#include "tests/windows/support/outline_redraw.h"

#include <string>

namespace {

using vorn::test::OutlineListTest;
using vorn::test::PaintsBy;

constexpr char kA[] = "a";

class HierListItems : public OutlineListTest {
protected:
    // The rows' texts, each behind as many dots as its level.
    static std::string Rows(HWND list) {
        std::string rows;
        for (LONG row = 0; row < olbGetVisibleCount(list); ++row) {
            char text[300] = "";
            olbGetText(list, row, text);
            rows += (row == 0 ? "" : " ") +
                    std::string(static_cast<std::size_t>(olbQueryLevel(list, row)), '.') + text;
        }
        return rows;
    }

    static HOLBITEM Row(HWND list, LONG row) { return olbIndexToHandle(list, row); }

    // Items a (with b and c, open) and d.
    HWND CreateTree(DWORD style = 0) {
        HWND list = Create(style);
        EXPECT_EQ(olbAddString(list, "a"), 0);
        EXPECT_NE(olbAddChildStringEx(list, Row(list, 0), "b"), OLB_NOITEM);
        EXPECT_NE(olbAddChildStringEx(list, Row(list, 0), "c"), OLB_NOITEM);
        EXPECT_EQ(olbAddString(list, "d"), 1);
        olbOpenItem(list, 0);
        EXPECT_EQ(Rows(list), "a .b .c d");
        return list;
    }
};

TEST_F(HierListItems, AreAddedBehindTheirSiblings) {
    HWND list = Create();
    EXPECT_EQ(olbAddString(list, "one"), 0);
    EXPECT_EQ(olbAddString(list, "two"), 1);
    EXPECT_EQ(olbAddChildString(list, 0, "child"), 0) << "hidden: its position among its siblings";
    EXPECT_EQ(olbAddChildString(list, 0, "second"), 1);
    EXPECT_EQ(Rows(list), "one two");
    olbOpenItem(list, 0);
    EXPECT_EQ(Rows(list), "one .child .second two");
    EXPECT_EQ(olbAddChildString(list, 0, "third"), 3) << "a row";
    EXPECT_EQ(olbAddChildString(list, -1, "top"), 5);
    EXPECT_EQ(olbAddChildString(list, 99, "also"), 6) << "no such row: at the top";
    EXPECT_EQ(Rows(list), "one .child .second .third two top also");
    EXPECT_EQ(olbHandleToIndex(olbAddChildStringEx(list, OLB_NOITEM, "x")), 7) << "at the top";
    EXPECT_EQ(olbHandleToIndex(olbAddChildStringEx(list, nullptr, "y")), 8);
}

TEST_F(HierListItems, OpenTheirParentWhenToldTo) {
    HWND list = Create();
    EXPECT_EQ(olbSetAutoOpen(list, TRUE), FALSE);
    EXPECT_EQ(olbSetAutoOpen(list, TRUE), TRUE);
    EXPECT_EQ(olbIsAutoOpen(list), TRUE);
    olbAddString(list, "one");
    EXPECT_EQ(olbAddChildString(list, 0, "child"), 1);
    EXPECT_EQ(Rows(list), "one .child");
    EXPECT_EQ(PaintsBy(list, [&] { olbSetAutoOpen(list, FALSE); }), 0u);
}

TEST_F(HierListItems, AreSortedWithPicturesThatGoFirst) {
    HWND list = Create(LBS_SORT);
    EXPECT_EQ(olbAddString(list, "b"), 0);
    EXPECT_EQ(olbAddString(list, "c"), 1);
    EXPECT_EQ(olbAddString(list, "a"), 0);
    HOLBITEM equal = olbAddChildStringEx(list, nullptr, "b");
    EXPECT_EQ(olbHandleToIndex(equal), 2) << "behind its equal";
    EXPECT_EQ(olbInsertString(list, 0, "z"), 0) << "inserting asks for no order";
    EXPECT_EQ(Rows(list), "z a b b c");
}

TEST_F(HierListItems, AreInsertedInFrontOfRows) {
    HWND list = CreateTree();
    EXPECT_EQ(olbInsertString(list, 0, "0"), 0);
    EXPECT_EQ(olbInsertString(list, 3, "3"), 3) << "a sibling of c";
    EXPECT_EQ(Rows(list), "0 a .b .3 .c d");
    EXPECT_EQ(olbInsertString(list, -1, "end"), 6);
    EXPECT_EQ(olbInsertString(list, 99, "past"), 7);
    EXPECT_EQ(Rows(list), "0 a .b .3 .c d end past");
    olbResetContent(list);
    EXPECT_EQ(olbInsertString(list, 5, "first"), 0);
    EXPECT_EQ(Rows(list), "first");
}

TEST_F(HierListItems, AreInsertedAtPositions) {
    HWND list = CreateTree();
    HOLBITEM a = Row(list, 0);
    EXPECT_EQ(olbHandleToIndex(olbInsertStringEx(list, a, 0, "0")), 1);
    EXPECT_EQ(olbHandleToIndex(olbInsertStringEx(list, a, 2, "2")), 3);
    EXPECT_EQ(olbHandleToIndex(olbInsertStringEx(list, a, OLB_APPEND, "end")), 5);
    EXPECT_EQ(olbHandleToIndex(olbInsertStringEx(list, a, 500, "past")), 6);
    EXPECT_EQ(olbHandleToIndex(olbInsertStringEx(list, nullptr, 1, "top")), 7);
    EXPECT_EQ(olbHandleToIndex(olbInsertStringEx(list, nullptr, OLB_APPEND, "last")), 9);
    EXPECT_EQ(Rows(list), "a .0 .b .2 .c .end .past top d last");
    EXPECT_EQ(olbInsertStringEx(list, OLB_NOITEM, 0, "x"), OLB_NOITEM);
    EXPECT_EQ(olbGetCount(list), 10);
}

TEST_F(HierListItems, AreDeletedWithAllBelow) {
    HWND list = CreateTree();
    EXPECT_EQ(olbDeleteString(list, 3), 3);
    EXPECT_EQ(olbDeleteString(list, 3), -1);
    EXPECT_EQ(olbDeleteString(list, -1), -1);
    EXPECT_EQ(olbDeleteStringEx(list, nullptr), -1);
    EXPECT_EQ(olbDeleteStringEx(list, OLB_NOITEM), -1);
    EXPECT_EQ(Rows(list), "a .b .c");
    EXPECT_EQ(olbGetCount(list), 3);
    HOLBITEM b = Row(list, 1);
    olbCloseItem(list, 0);
    EXPECT_EQ(olbDeleteStringEx(list, b), -1) << "hidden";
    EXPECT_EQ(olbGetCount(list), 2);
    EXPECT_EQ(olbDeleteString(list, 0), 0);
    EXPECT_EQ(olbGetCount(list), 0);
}

TEST_F(HierListItems, LoseTheirLastChild) {
    HWND list = CreateTree();
    EXPECT_EQ(olbDeleteString(list, 2), 2);
    EXPECT_EQ(olbDeleteString(list, 1), 1);
    EXPECT_EQ(olbQueryOpen(list, 0), 0) << "no child, not open";
    EXPECT_EQ(olbHasChildren(list, 0), 0);
}

TEST_F(HierListItems, LoseAllBelow) {
    HWND list = CreateTree();
    EXPECT_EQ(olbDeleteSubTree(list, 9), -1);
    EXPECT_EQ(olbDeleteSubTreeEx(list, nullptr), -1);
    EXPECT_EQ(olbDeleteSubTreeEx(list, OLB_NOITEM), -1);
    EXPECT_EQ(olbDeleteSubTree(list, 0), 2);
    EXPECT_EQ(Rows(list), "a d");
    olbAddChildString(list, 1, "e");
    EXPECT_EQ(olbDeleteSubTreeEx(list, Row(list, 1)), 2) << "closed";
    EXPECT_EQ(olbDeleteSubTree(list, 1), 2) << "nothing below";
    olbResetContent(list);
    EXPECT_EQ(olbGetCount(list), 0);
    EXPECT_EQ(olbGetVisibleCount(list), 0);
}

TEST_F(HierListItems, AreMoved) {
    HWND list = CreateTree();
    HOLBITEM b = Row(list, 1);
    EXPECT_EQ(olbMoveItem(list, 3, 0, 1), 2) << "d between b and c";
    EXPECT_EQ(Rows(list), "a .b .d .c");
    EXPECT_EQ(olbMoveItem(list, 1, 0, 2), 2) << "behind d, its own removal allowed for";
    EXPECT_EQ(Rows(list), "a .d .b .c");
    EXPECT_EQ(olbMoveItemEx(list, b, nullptr, OLB_APPEND), b);
    EXPECT_EQ(Rows(list), "a .d .c b");
    EXPECT_EQ(olbMoveItem(list, 2, -1, 0), 0) << "to the top";
    EXPECT_EQ(Rows(list), "c a .d b");
    EXPECT_EQ(olbGetCount(list), 4);
}

TEST_F(HierListItems, AreNotMovedBelowThemselves) {
    HWND list = CreateTree();
    HOLBITEM a = Row(list, 0);
    EXPECT_EQ(olbMoveItemEx(list, a, a, 0), OLB_NOITEM);
    EXPECT_EQ(olbMoveItemEx(list, a, Row(list, 1), 0), OLB_NOITEM);
    EXPECT_EQ(olbMoveItem(list, 0, 2, 0), -1);
    EXPECT_EQ(olbMoveItem(list, 9, 0, 0), -1);
    EXPECT_EQ(olbMoveItem(list, 3, 9, 0), -1) << "no such parent";
    EXPECT_EQ(olbMoveItemEx(list, nullptr, a, 0), nullptr);
    EXPECT_EQ(olbMoveItemEx(list, OLB_NOITEM, a, 0), nullptr);
    EXPECT_EQ(olbMoveItemEx(list, a, OLB_NOITEM, 0), nullptr);
    EXPECT_EQ(Rows(list), "a .b .c d");
}

TEST_F(HierListItems, AreMovedWithTheirSiblings) {
    HWND list = CreateTree();
    HOLBITEM c = Row(list, 2);
    EXPECT_EQ(olbMoveChildren(list, 0, -1, 0), 1) << "the last one's row";
    EXPECT_EQ(Rows(list), "b c a d");
    EXPECT_EQ(olbMoveChildren(list, 2, -1, 0), -1) << "it has none";
    EXPECT_EQ(olbMoveChildrenEx(list, nullptr, nullptr, 0), nullptr);
    EXPECT_EQ(olbMoveItem(list, 0, 3, 0), 3) << "d opens";
    EXPECT_EQ(olbMoveItem(list, 0, 2, 1), 3);
    EXPECT_EQ(Rows(list), "a d .b .c");
    EXPECT_EQ(olbMoveChildrenEx(list, Row(list, 1), Row(list, 0), OLB_APPEND), c);
    EXPECT_EQ(Rows(list), "a .b .c d");
    EXPECT_EQ(olbMoveChildrenEx(list, Row(list, 0), Row(list, 1), 0), OLB_NOITEM);
}

TEST_F(HierListItems, AreCopied) {
    HWND list = CreateTree();
    HOLBITEM a = Row(list, 0);
    olbSetItemDataEx(list, a, 77);
    olbLockItemEx(list, a, TRUE);
    olbSetBitmapIndexEx(list, a, 4);
    EXPECT_EQ(olbCopyItem(list, 0, -1, OLB_APPEND), 4);
    EXPECT_EQ(Rows(list), "a .b .c d a") << "closed";
    EXPECT_EQ(olbGetCount(list), 7);
    EXPECT_EQ(olbGetItemData(list, 4), 77);
    EXPECT_EQ(olbQueryLock(list, 4), 1);
    EXPECT_EQ(olbSetBitmapIndex(list, 4, 1), 4);
    olbLockItem(list, 4, FALSE);
    olbOpenItem(list, 4);
    EXPECT_EQ(Rows(list), "a .b .c d a .b .c");
    HOLBITEM inside = olbCopyItemEx(list, a, Row(list, 1), 0);
    EXPECT_EQ(olbQueryParentEx(list, inside), Row(list, 1)) << "below itself, as it was";
    EXPECT_EQ(olbGetCount(list), 10);
}

TEST_F(HierListItems, AreCopiedWithTheirSiblings) {
    HWND list = CreateTree();
    EXPECT_EQ(olbCopyChildren(list, 0, -1, 0), 1);
    EXPECT_EQ(Rows(list), "b c a .b .c d");
    HOLBITEM last = olbCopyChildrenEx(list, Row(list, 2), Row(list, 5), OLB_APPEND);
    EXPECT_EQ(olbQueryParentEx(list, last), Row(list, 5));
    EXPECT_EQ(Rows(list), "b c a .b .c d .b .c");
    EXPECT_EQ(olbHandleToIndex(last), 7);
    EXPECT_EQ(olbCopyChildren(list, 0, -1, 0), -1) << "it has none";
    EXPECT_EQ(olbCopyChildren(list, 99, -1, 0), -1);
    EXPECT_EQ(olbCopyChildren(list, 2, 99, 0), -1);
    EXPECT_EQ(olbCopyItem(list, 99, -1, 0), -1);
    EXPECT_EQ(olbCopyItem(list, 0, 99, 0), -1);
    EXPECT_EQ(olbCopyItemEx(list, nullptr, nullptr, 0), nullptr);
    EXPECT_EQ(olbCopyChildrenEx(list, OLB_NOITEM, nullptr, 0), nullptr);
    EXPECT_EQ(olbGetCount(list), 8);
}

TEST_F(HierListItems, RepaintAtOnceUnlessToldNotTo) {
    struct Act {
        const char* name;
        void (*act)(HWND list);
    };
    const Act acts[] = {
        {"add", [](HWND list) { olbAddString(list, kA); }},
        {"insert", [](HWND list) { olbInsertString(list, 0, kA); }},
        {"insert at", [](HWND list) { olbInsertStringEx(list, nullptr, 0, kA); }},
        {"delete", [](HWND list) { olbDeleteString(list, 0); }},
        {"delete below", [](HWND list) { olbDeleteSubTree(list, 0); }},
        {"copy", [](HWND list) { olbCopyItem(list, 0, -1, 0); }},
        {"copy children", [](HWND list) { olbCopyChildren(list, 0, -1, 0); }},
        {"close", [](HWND list) { olbCloseItem(list, 0); }},
        {"close all", [](HWND list) { olbCloseAll(list); }},
        {"lock", [](HWND list) { olbLockItem(list, 0, TRUE); }},
        {"text", [](HWND list) { olbSetItemText(list, 0, "new"); }},
        {"height", [](HWND list) { olbSetItemHeight(list, -1, 30); }},
        {"empty", [](HWND list) { olbResetContent(list); }},
    };
    for (const Act& act : acts) {
        SCOPED_TRACE(act.name);
        HWND list = CreateTree();
        EXPECT_GE(PaintsBy(list, [&] { act.act(list); }), 1u);
        DestroyWindow(list);
        list = CreateTree(LBS_NOREDRAW);
        EXPECT_EQ(PaintsBy(list, [&] { act.act(list); }), 0u);
        DestroyWindow(list);
        list = CreateTree();
        SendMessageA(list, WM_SETREDRAW, FALSE, 0);
        EXPECT_EQ(PaintsBy(list, [&] { act.act(list); }), 0u);
        DestroyWindow(list);
    }
}

TEST_F(HierListItems, ThatMoveAreShownWhateverTheStyle) {
    for (const DWORD style : {0ul, DWORD{LBS_NOREDRAW}}) {
        HWND list = CreateTree(style);
        EXPECT_GE(PaintsBy(list, [&] { olbMoveItem(list, 0, -1, OLB_APPEND); }), 1u) << style;
        EXPECT_EQ(Rows(list), "d a");
        DestroyWindow(list);
    }
    HWND list = CreateTree();
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    EXPECT_EQ(PaintsBy(list, [&] { olbMoveItem(list, 0, -1, OLB_APPEND); }), 0u);
}

TEST_F(HierListItems, KeepTextsOfAnyLengthAndAlphabet) {
    HWND list = Create();
    const std::string longest(60000, 'x');
    EXPECT_EQ(olbAddString(list, longest.c_str()), 0);
    EXPECT_EQ(olbGetTextLength(list, 0), 60000);
    EXPECT_EQ(olbAddString(list, std::string(70000, 'x').c_str()), -1) << "does not fit a record";
    EXPECT_EQ(olbAddString(list, "\xC4\xD6\xDC \xE4\xF6\xFC"), 1);
    char text[20];
    EXPECT_EQ(olbGetText(list, 1, text), 7);
    EXPECT_STREQ(text, "\xC4\xD6\xDC \xE4\xF6\xFC");
    EXPECT_EQ(olbAddString(list, ""), 2);
    EXPECT_EQ(olbAddString(list, nullptr), 3) << "an empty text";
    EXPECT_EQ(olbGetTextLength(list, 3), 0);
}

} // namespace
