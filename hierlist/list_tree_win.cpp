// The exported functions that open and close the items of an outline list, and answer where they
// are in the tree and among the rows.
#include "hierlist/list_handles_win.h"
#include "hierlist/list_view_win.h"

namespace vorn::hierlist {
namespace {

// A handle as it is when a host has stored 16 bits of -1.
constexpr std::uintptr_t kShortNoItem = 65535;

// Whether a handle may be one, for functions that no window tells of its list.
bool IsHandle(HOLBITEM handle) {
    return reinterpret_cast<std::uintptr_t>(handle) != kShortNoItem && IsItem(ToItem(handle));
}

} // namespace
} // namespace vorn::hierlist

using namespace vorn;
using namespace vorn::hierlist;

// ---- Opening and closing ----

extern "C" void WINAPI olbOpenItem(HWND window, LONG row) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        Open(record->outline, static_cast<std::uint32_t>(row));
    }
}

extern "C" void WINAPI olbCloseItem(HWND window, LONG row) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        Close(record->outline, static_cast<std::uint32_t>(row));
    }
}

extern "C" void WINAPI olbOpenAll(HWND window, LONG row) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    OlbItem* item = ItemAt(*record, row);
    if (item != nullptr || row == -1) {
        OpenAll(record->outline, item);
    }
}

extern "C" void WINAPI olbCloseAll(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        CloseAll(record->outline);
    }
}

extern "C" LONG WINAPI olbLockItem(HWND window, LONG row, BOOL on) {
    return olbLockItemEx(window, HandleAt(window, row), on);
}

extern "C" LONG WINAPI olbLockItemEx(HWND window, HOLBITEM item, BOOL on) {
    if (RecordOf<Record>(window) == nullptr) {
        return LB_ERR;
    }
    const LONG before = SetLocked(ToItem(item), on != 0);
    if (QueryVisible(ToItem(item)) == 1) {
        RedrawRow(window, HandleToIndex(ToItem(item))); // its colour tells
    }
    return before;
}

// ---- Questions ----

extern "C" LONG WINAPI olbQueryOpen(HWND window, LONG row) {
    return olbQueryOpenEx(window, HandleAt(window, row));
}

extern "C" LONG WINAPI olbQueryOpenEx(HWND window, HOLBITEM item) {
    return RecordOf<Record>(window) == nullptr ? LB_ERR : QueryOpen(ToItem(item));
}

extern "C" LONG WINAPI olbQueryLock(HWND window, LONG row) {
    return olbQueryLockEx(window, HandleAt(window, row));
}

extern "C" LONG WINAPI olbQueryLockEx(HWND window, HOLBITEM item) {
    return RecordOf<Record>(window) == nullptr ? LB_ERR : QueryLocked(ToItem(item));
}

extern "C" LONG WINAPI olbHasChildren(HWND window, LONG row) {
    return olbHasChildrenEx(window, HandleAt(window, row));
}

extern "C" LONG WINAPI olbHasChildrenEx(HWND window, HOLBITEM item) {
    return RecordOf<Record>(window) == nullptr ? LB_ERR : HasChildren(ToItem(item));
}

extern "C" LONG WINAPI olbQueryLevel(HWND window, LONG row) {
    return olbQueryLevelEx(window, HandleAt(window, row));
}

extern "C" LONG WINAPI olbQueryLevelEx(HWND window, HOLBITEM item) {
    return RecordOf<Record>(window) == nullptr ? LB_ERR : LevelOf(ToItem(item));
}

extern "C" LONG WINAPI olbQueryParent(HWND window, LONG row) {
    return RowOfHandle(olbQueryParentEx(window, HandleAt(window, row)));
}

extern "C" HOLBITEM WINAPI olbQueryParentEx(HWND window, HOLBITEM item) {
    if (RecordOf<Record>(window) == nullptr || !IsItem(ToItem(item))) {
        return OLB_NOITEM;
    }
    return ToHandle(ParentOf(ToItem(item)));
}

extern "C" LONG WINAPI olbQueryVisible(HWND window, HOLBITEM item) {
    return RecordOf<Record>(window) == nullptr ? LB_ERR : QueryVisible(ToItem(item));
}

extern "C" HOLBITEM WINAPI olbGetChildHandle(HWND window, LONG row, LONG child) {
    return olbGetChildHandleEx(HandleAt(window, row), child);
}

extern "C" HOLBITEM WINAPI olbGetChildHandleEx(HOLBITEM parent, LONG child) {
    if (!IsHandle(parent)) {
        return OLB_NOITEM;
    }
    return ToHandle(DetachedChild(ToItem(parent), static_cast<std::uint32_t>(child)));
}

// ---- Rows ----

extern "C" LONG WINAPI olbHandleToIndex(HOLBITEM item) {
    return IsHandle(item) ? RowOfHandle(item) : LB_ERR;
}

extern "C" HOLBITEM WINAPI olbIndexToHandle(HWND window, LONG row) {
    return RecordOf<Record>(window) == nullptr ? OLB_NOITEM : HandleAt(window, row);
}

extern "C" LONG WINAPI olbGetCount(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : static_cast<LONG>(record->outline.itemCount);
}

extern "C" LONG WINAPI olbGetVisibleCount(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : static_cast<LONG>(record->outline.visibleCount);
}
