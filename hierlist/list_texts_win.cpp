// The exported functions of what the items of an outline list hold: text, data, height, path.
#include "hierlist/list_handles_win.h"
#include "hierlist/list_host_win.h"
#include "hierlist/list_scroll_win.h"
#include "hierlist/list_view_win.h"

#include <algorithm>
#include <cstring>

namespace vorn::hierlist {
namespace {

bool HoldsValue(const OlbItem* item) {
    return (item->marks & kMarkValue) != 0;
}

// The item that a call is about; null when the window or the item is none.
OlbItem* ItemOfCall(HWND window, HOLBITEM handle) {
    OlbItem* item = ToItem(handle);
    return RecordOf<Record>(window) != nullptr && IsItem(item) ? item : nullptr;
}

bool IsVariable(const Record& record) {
    return (record.outline.style & kStyleOwnerDrawVariable) != 0;
}

// Whether a height is that of all rows: the list has no other, or the call is about no item.
bool IsOfAllRows(const Record& record, HOLBITEM handle) {
    return handle == nullptr || handle == OLB_NOITEM || !IsVariable(record);
}

// Whether a row may be asked for its height: one that there is, -1 for all rows, or any when all
// have the same.
bool HasHeight(HWND window, LONG row) {
    const Record* record = RecordOf<Record>(window);
    return record != nullptr &&
           (row == -1 || !IsVariable(*record) || ItemAt(*record, row) != nullptr);
}

std::int32_t ToPixels(LONG height) {
    return std::clamp<LONG>(height, 1, 65535);
}

void ShowNewHeights(HWND window) {
    ForgetColumns(*RecordOf<Record>(window));
    UpdateBars(window);
    RedrawRows(window);
}

} // namespace
} // namespace vorn::hierlist

using namespace vorn;
using namespace vorn::hierlist;

// ---- Text ----

extern "C" LONG WINAPI olbGetText(HWND window, LONG row, LPSTR buffer) {
    return olbGetTextEx(window, HandleAt(window, row), buffer);
}

// An item without a text gives its value, as a list box does.
extern "C" LONG WINAPI olbGetTextEx(HWND window, HOLBITEM handle, LPSTR buffer) {
    const OlbItem* item = ItemOfCall(window, handle);
    if (item == nullptr || buffer == nullptr) {
        return LB_ERR;
    }
    if (HoldsValue(item)) {
        const ULONG_PTR value = OwnerDrawData(item);
        std::memcpy(buffer, &value, sizeof value);
        return sizeof value;
    }
    const std::size_t length = std::strlen(TextOf(item));
    std::memcpy(buffer, TextOf(item), length + 1);
    return static_cast<LONG>(length);
}

extern "C" LONG WINAPI olbGetTextLength(HWND window, LONG row) {
    return olbGetTextLengthEx(window, HandleAt(window, row));
}

extern "C" LONG WINAPI olbGetTextLengthEx(HWND window, HOLBITEM handle) {
    const OlbItem* item = ItemOfCall(window, handle);
    if (item == nullptr) {
        return LB_ERR;
    }
    return static_cast<LONG>(HoldsValue(item) ? sizeof(ULONG_PTR) : std::strlen(TextOf(item)));
}

extern "C" LONG WINAPI olbSetItemText(HWND window, LONG row, LPCSTR text) {
    return olbSetItemTextEx(window, HandleAt(window, row), text);
}

extern "C" LONG WINAPI olbSetItemTextEx(HWND window, HOLBITEM handle, LPCSTR text) {
    OlbItem* item = ItemOfCall(window, handle);
    if (item == nullptr) {
        return LB_ERR;
    }
    if (!SetText(RecordOf<Record>(window)->outline, item, text)) {
        return LB_ERR;
    }
    if (QueryVisible(item) == 1) {
        RedrawRow(window, HandleToIndex(item));
    }
    return 0;
}

// ---- Data ----

extern "C" LONG_PTR WINAPI olbGetItemData(HWND window, LONG row) {
    return olbGetItemDataEx(window, HandleAt(window, row));
}

extern "C" LONG_PTR WINAPI olbGetItemDataEx(HWND window, HOLBITEM handle) {
    const OlbItem* item = ItemOfCall(window, handle);
    if (item == nullptr) {
        return LB_ERR;
    }
    return static_cast<LONG_PTR>(DataOf(item));
}

extern "C" LONG WINAPI olbSetItemData(HWND window, LONG row, LONG_PTR data) {
    return olbSetItemDataEx(window, HandleAt(window, row), data);
}

extern "C" LONG WINAPI olbSetItemDataEx(HWND window, HOLBITEM handle, LONG_PTR data) {
    OlbItem* item = ItemOfCall(window, handle);
    if (item == nullptr) {
        return LB_ERR;
    }
    SetData(item, static_cast<std::uintptr_t>(data));
    return 0;
}

// ---- Height ----

extern "C" LONG WINAPI olbGetItemHeight(HWND window, LONG row) {
    return HasHeight(window, row) ? olbGetItemHeightEx(window, HandleAt(window, row)) : LB_ERR;
}

extern "C" LONG WINAPI olbGetItemHeightEx(HWND window, HOLBITEM handle) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    if (IsOfAllRows(*record, handle)) {
        return record->options.rowHeight;
    }
    return IsItem(ToItem(handle)) ? HeightOf(LayoutOf(*record), ToItem(handle)) : LB_ERR;
}

extern "C" LONG WINAPI olbSetItemHeight(HWND window, LONG row, LONG height) {
    return HasHeight(window, row) ? olbSetItemHeightEx(window, HandleAt(window, row), height)
                                  : LB_ERR;
}

extern "C" LONG WINAPI olbSetItemHeightEx(HWND window, HOLBITEM handle, LONG height) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    if (IsOfAllRows(*record, handle)) {
        record->options.rowHeight = ToPixels(height);
        record->options.hasOwnRowHeight = true;
    } else if (IsItem(ToItem(handle))) {
        ToItem(handle)->height = static_cast<std::uint16_t>(ToPixels(height));
    } else {
        return LB_ERR;
    }
    ShowNewHeights(window);
    return 0;
}

// ---- Path and search ----

extern "C" LPSTR WINAPI olbGetFullPath(HWND window, LONG row, LPSTR buffer) {
    return olbGetFullPathEx(window, HandleAt(window, row), buffer);
}

extern "C" LPSTR WINAPI olbGetFullPathEx(HWND window, HOLBITEM handle, LPSTR buffer) {
    if (buffer == nullptr) {
        return buffer;
    }
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        *buffer = '\0';
    } else {
        FullPath(record->outline, ToItem(handle), buffer);
    }
    return buffer;
}

extern "C" LONG WINAPI olbSetPathSeparator(HWND window, char separator) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    const auto before = static_cast<unsigned char>(record->outline.pathSeparator);
    record->outline.pathSeparator = separator;
    return before;
}

extern "C" void WINAPI olbGetPathSeparator(HWND window, LPSTR buffer) {
    const Record* record = RecordOf<Record>(window);
    if (record != nullptr && buffer != nullptr) {
        buffer[0] = record->outline.pathSeparator;
        buffer[1] = '\0';
    }
}

extern "C" LONG WINAPI olbFindString(HWND window, LONG parent, LONG start, LPCSTR text,
                                     BOOL exact) {
    return RowOfHandle(olbFindStringEx(window, OwnerAt(window, parent), start, text, exact));
}

extern "C" HOLBITEM WINAPI olbFindStringEx(HWND window, HOLBITEM parent, LONG start, LPCSTR text,
                                           BOOL exact) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr
               ? OLB_NOITEM
               : ToHandle(FindString(record->outline, ToItem(parent),
                                     static_cast<std::uint32_t>(start), text, exact != 0));
}
