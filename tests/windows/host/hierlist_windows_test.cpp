// What the outline list's functions answer for windows that are no outline lists.
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/outline_list.h"

#include <cstring>

namespace {

using vorn::test::CreateForeignWindow;
using vorn::test::DestroyedWindow;
using vorn::test::OutlineListTest;

struct Call {
    const char* name;
    LONG_PTR expected;
    LONG_PTR (*call)(HWND window);
};

char g_buffer[300];
int g_stops[] = {10, 20};
RECT g_rect;
constexpr char kText[] = "text";

LONG_PTR Number(HOLBITEM handle) {
    return reinterpret_cast<LONG_PTR>(handle);
}
LONG_PTR Number(HBITMAP bitmap) {
    return reinterpret_cast<LONG_PTR>(bitmap);
}
LONG_PTR Number(LONG_PTR number) {
    return number;
}

#define CALL(expected, function, ...)                                                              \
    {                                                                                              \
#function, expected,                                                                       \
            [](HWND window)                                                                        \
                 -> LONG_PTR { return Number(function(window __VA_OPT__(, ) __VA_ARGS__)); }       \
    }
#define PERFORM(function, ...)                                                                     \
    {                                                                                              \
#function, 0, [](HWND window) -> LONG_PTR {                                                   \
         function(window __VA_OPT__(, ) __VA_ARGS__);                                              \
         return 0;                                                                                 \
     }    \
    }

const Call kCalls[] = {
    CALL(-1, olbAddString, kText),
    CALL(-1, olbAddChildString, -1, kText),
    CALL(-1, olbAddChildStringEx, nullptr, kText),
    CALL(-1, olbInsertString, 0, kText),
    CALL(-1, olbInsertStringEx, nullptr, 0, kText),
    CALL(-1, olbDir, DDL_DRIVES, kText),
    CALL(-1, olbDir, 0, "*.*"),
    CALL(-1, olbDirEx, DDL_DRIVES, 0),
    CALL(-1, olbDirEx, 0, 3),
    CALL(-1, olbAddFile, kText),
    CALL(-1, olbDeleteString, 0),
    CALL(-1, olbDeleteStringEx, nullptr),
    CALL(-1, olbDeleteSubTree, 0),
    CALL(-1, olbDeleteSubTreeEx, nullptr),
    PERFORM(olbResetContent),
    CALL(-1, olbMoveItem, 0, -1, 0),
    CALL(-1, olbMoveItemEx, nullptr, nullptr, 0),
    CALL(-1, olbMoveChildren, 0, -1, 0),
    CALL(-1, olbMoveChildrenEx, nullptr, nullptr, 0),
    CALL(-1, olbCopyItem, 0, -1, 0),
    CALL(-1, olbCopyItemEx, nullptr, nullptr, 0),
    CALL(-1, olbCopyChildren, 0, -1, 0),
    CALL(-1, olbCopyChildrenEx, nullptr, nullptr, 0),
    PERFORM(olbOpenItem, 0),
    PERFORM(olbCloseItem, 0),
    PERFORM(olbOpenAll, -1),
    PERFORM(olbCloseAll),
    CALL(-1, olbLockItem, 0, TRUE),
    CALL(-1, olbLockItemEx, nullptr, TRUE),
    CALL(0, olbSetAutoOpen, TRUE),
    CALL(0, olbIsAutoOpen),
    CALL(-1, olbQueryOpen, 0),
    CALL(-1, olbQueryOpenEx, nullptr),
    CALL(-1, olbQueryLock, 0),
    CALL(-1, olbQueryLockEx, nullptr),
    CALL(-1, olbHasChildren, 0),
    CALL(-1, olbHasChildrenEx, nullptr),
    CALL(-1, olbQueryVisible, nullptr),
    CALL(-1, olbQueryLevel, 0),
    CALL(-1, olbQueryLevelEx, nullptr),
    CALL(-1, olbQueryParent, 0),
    CALL(-1, olbQueryParentEx, nullptr),
    CALL(-1, olbGetChildHandle, 0, 0),
    CALL(-1, olbIndexToHandle, 0),
    CALL(-1, olbGetCount),
    CALL(-1, olbGetVisibleCount),
    CALL(-1, olbFindString, -1, -1, kText, FALSE),
    CALL(-1, olbFindStringEx, nullptr, -1, kText, TRUE),
    CALL(-1, olbGetText, 0, g_buffer),
    CALL(-1, olbGetTextEx, nullptr, g_buffer),
    CALL(-1, olbGetTextLength, 0),
    CALL(-1, olbGetTextLengthEx, nullptr),
    CALL(-1, olbSetItemText, 0, kText),
    CALL(-1, olbSetItemTextEx, nullptr, kText),
    CALL(-1, olbGetItemData, 0),
    CALL(-1, olbGetItemDataEx, nullptr),
    CALL(-1, olbSetItemData, 0, 5),
    CALL(-1, olbSetItemDataEx, nullptr, 5),
    CALL(-1, olbGetItemHeight, -1),
    CALL(-1, olbGetItemHeightEx, nullptr),
    CALL(-1, olbSetItemHeight, -1, 20),
    CALL(-1, olbSetItemHeightEx, nullptr, 20),
    PERFORM(olbGetFullPath, 0, g_buffer),
    PERFORM(olbGetFullPathEx, nullptr, g_buffer),
    CALL(-1, olbSetPathSeparator, '/'),
    PERFORM(olbGetPathSeparator, g_buffer),
    CALL(0, olbSetBitmaps, -1, nullptr),
    CALL(0, olbSetBitmapsEx, nullptr, nullptr),
    CALL(-1, olbSetBitmapIndex, -1, 2),
    CALL(-1, olbSetBitmapIndexEx, nullptr, 2),
    PERFORM(olbSetLevelBitmap, 0, nullptr),
    CALL(-1, olbSetLevelIndex, 0, 2),
    CALL(-1, olbPaintBitmap, nullptr, 0, nullptr),
    PERFORM(olbPaintLines, nullptr, 0, &g_rect),
    CALL(-1, olbShowLines, TRUE),
    CALL(-1, olbEnableMicroBitmaps, TRUE),
    CALL(-1, olbEnableBitmaps, TRUE),
    CALL(-1, olbSetFullSelectRect, TRUE),
    CALL(-1, olbSetProportionalScrollBars, TRUE),
    CALL(0, olbSetFlags, 0xFFFF, 4),
    CALL(-1, olbChangeStyle, LBS_SORT),
    CALL(-1, olbSetOwnerDraw, 1),
    CALL(-1, olbSetCompatibilityMode, TRUE),
    CALL(-1, olbSetIndent, 7),
    CALL(-1, olbGetIndent),
    CALL(0, olbSetColor, 2, RGB(1, 2, 3), TRUE),
    CALL(0, olbSetBorderStyle, 1),
    CALL(-1, olbGetBorderStyle),
    CALL(0, olbSetColumns, 1),
    CALL(-1, olbSetColumnWidth, 50),
    CALL(-1, olbGetColumnWidth),
    CALL(-1, olbGetLinesPerColumn),
    CALL(0, olbSetTabStops, 2, g_stops),
    CALL(-1, olbSetHorizontalExtent, 500),
    CALL(-1, olbGetHorizontalExtent),
    CALL(-1, olbSetCurSel, 0),
    CALL(-1, olbGetCurSel),
    CALL(-1, olbGetCurSelEx),
    CALL(-1, olbSetSel, 0, TRUE),
    CALL(-1, olbSelItemRange, 0, 1, TRUE),
    CALL(-1, olbGetSelCount),
    CALL(-1, olbGetSelItems, 2, g_stops),
    CALL(-1, olbGetSel, 0),
    CALL(-1, olbSelectString, -1, kText),
    CALL(-1, olbSetAnchorIndex, 0),
    CALL(-1, olbGetAnchorIndex),
    CALL(-1, olbSetCaretIndex, 0),
    CALL(-1, olbGetCaretIndex),
    CALL(-1, olbSetTopIndex, 0),
    CALL(-1, olbGetTopIndex),
    CALL(-1, olbGetBottomIndex),
    CALL(-1, olbGetItemAtPoint, 1, 1),
    CALL(-1, olbGetItemRect, 0, &g_rect),
};

class HierListWindows : public OutlineListTest {
protected:
    static void ExpectRefused(HWND window) {
        for (const Call& call : kCalls) {
            std::strcpy(g_buffer, "before");
            EXPECT_EQ(call.call(window), call.expected) << call.name;
            const bool isPath = std::strncmp(call.name, "olbGetFullPath", 14) == 0;
            EXPECT_STREQ(g_buffer, isPath ? "" : "before") << call.name;
        }
    }
};

TEST_F(HierListWindows, NoWindowIsRefused) {
    ExpectRefused(nullptr);
}

TEST_F(HierListWindows, ForeignWindowsAreRefused) {
    HWND window = CreateForeignWindow();
    ExpectRefused(window);
    DestroyWindow(window);
}

TEST_F(HierListWindows, OtherControlsAreRefused) {
    ExpectRefused(host.Create(VORN_BUTTON_CLASS, 0, 0, 0, 40, 40, 5));
    ExpectRefused(host.Create("LISTBOX", 0, 0, 50, 40, 40, 6));
}

TEST_F(HierListWindows, DestroyedWindowsAreRefused) {
    ExpectRefused(DestroyedWindow());
    HWND list = Create();
    AddRows(list, 2);
    DestroyWindow(list);
    ExpectRefused(list);
}

// Of these handles alone can be told that they are none; the others' number is that of a record.
TEST_F(HierListWindows, FunctionsWithoutWindowRefuseNoItem) {
    for (HOLBITEM handle : {HOLBITEM{nullptr}, OLB_NOITEM}) {
        EXPECT_EQ(olbHandleToIndex(handle), -1);
        EXPECT_EQ(olbGetChildHandleEx(handle, 0), OLB_NOITEM);
    }
    EXPECT_EQ(olbGetChildHandleEx(reinterpret_cast<HOLBITEM>(65535), 0), OLB_NOITEM);
}

} // namespace
