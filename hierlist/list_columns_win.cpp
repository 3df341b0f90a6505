// The exported functions of the columns, tab stops and widths of an outline list.
#include "core/window_win.h"
#include "hierlist/list_handles_win.h"
#include "hierlist/list_scroll_win.h"
#include "hierlist/list_view_win.h"

namespace vorn::hierlist {
namespace {

constexpr LONG kMostColumns = 20;
constexpr LONG kNarrowestColumn = 24; // pixels

// The rows lie elsewhere, and the scroll bars are others.
void ShowNewColumns(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        ForgetColumns(*record);
        UpdateBars(window);
        RedrawRows(window);
    }
}

void EndColumns(HWND window) {
    ChangeStyle(window, kStyleMultiColumn, 0);
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        record->options.wantsVerticalBar = true; // what the columns have taken
        record->offset = 0;
    }
}

void BeginColumns(HWND window, LONG width) {
    ChangeStyle(window, 0, kStyleMultiColumn);
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        record->options.wantsHorizontalBar = true;
        record->options.wantsVerticalBar = false;
        record->options.columnWidth = width;
        record->topIndex = 0;
        record->offset = 0;
    }
}

} // namespace
} // namespace vorn::hierlist

using namespace vorn;
using namespace vorn::hierlist;

extern "C" BOOL WINAPI olbSetColumns(HWND window, LONG count) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr || count < 0 || count > kMostColumns) {
        return FALSE;
    }
    if (count == 0) {
        if ((StyleOf(window) & kStyleMultiColumn) != 0) {
            EndColumns(window);
        }
    } else {
        const LONG bar = record->options.wantsVerticalBar ? GetSystemMetrics(SM_CXVSCROLL) : 0;
        const LONG width = (ClientRect(window).right + bar) / count;
        if (width < kNarrowestColumn) {
            return FALSE;
        }
        BeginColumns(window, width);
    }
    ShowNewColumns(window);
    return TRUE;
}

extern "C" LONG WINAPI olbSetColumnWidth(HWND window, LONG width) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    const LONG before = record->options.columnWidth;
    record->options.columnWidth = width;
    ShowNewColumns(window);
    return before;
}

extern "C" LONG WINAPI olbGetColumnWidth(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : record->options.columnWidth;
}

extern "C" LONG WINAPI olbGetLinesPerColumn(HWND window) {
    Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : static_cast<LONG>(LinesPerColumn(LayoutOf(*record)));
}

extern "C" BOOL WINAPI olbSetTabStops(HWND window, LONG count, const int* stops) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr || count < 0 || (stops == nullptr && count != 0) ||
        !SetTabStops(record->tabs, stops, static_cast<std::uint32_t>(count))) {
        return FALSE;
    }
    RedrawRows(window);
    return TRUE;
}

extern "C" LONG WINAPI olbSetHorizontalExtent(HWND window, LONG pixels) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    const LONG before = record->options.horizontalExtent;
    record->options.horizontalExtent = pixels > 0 ? pixels : 0;
    UpdateBars(window);
    return before;
}

extern "C" LONG WINAPI olbGetHorizontalExtent(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : record->options.horizontalExtent;
}
