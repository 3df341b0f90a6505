// Handles, rows and answers as hosts have them.
#pragma once

#include "hierlist/list_record_win.h"

#include <vorn32/hierlist.h>

namespace vorn::hierlist {

inline OlbItem* ToItem(HOLBITEM handle) {
    return reinterpret_cast<OlbItem*>(handle);
}

inline HOLBITEM ToHandle(OlbItem* item) {
    return reinterpret_cast<HOLBITEM>(item);
}

// -1 for kNoRow.
inline LONG ToRow(std::uint32_t row) {
    return static_cast<LONG>(row);
}

// The row of an item, among its siblings when it is hidden; -1 for no item.
inline LONG RowOfHandle(HOLBITEM handle) {
    return ToRow(HandleToIndex(ToItem(handle)));
}

// The item of a row; null when there is none.
inline OlbItem* ItemAt(const Record& record, LONG row) {
    return IndexToHandle(record.outline, static_cast<std::uint32_t>(row));
}

// The same for a window; null for no outline list.
inline HOLBITEM HandleAt(HWND window, LONG row) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? nullptr : ToHandle(ItemAt(*record, row));
}

// The item of a row that may be -1 for the top level, which is null; no item for any other row that
// there is not.
inline HOLBITEM OwnerAt(HWND window, LONG row) {
    HOLBITEM handle = HandleAt(window, row);
    return handle == nullptr && row != -1 ? OLB_NOITEM : handle;
}

} // namespace vorn::hierlist
