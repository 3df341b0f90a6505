#include "hierlist/list_repaint_win.h"

#include "hierlist/list_view_win.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

Record* DrawnRecord(HWND window) {
    Record* record = RecordOf<Record>(window);
    return record != nullptr && !record->redrawOff ? record : nullptr;
}

void Mark(HWND window, const Rect& part) {
    const RECT area = ToPlatform(part);
    InvalidateRect(window, &area, FALSE);
}

} // namespace

void MarkRows(HWND window, std::uint32_t first, std::uint32_t last) {
    Record* record = DrawnRecord(window);
    if (record == nullptr) {
        return;
    }
    const Layout layout = LayoutOf(*record);
    if (layout.multiColumn) {
        first == last ? Mark(window, RowRect(layout, first)) : MarkAll(window);
        return;
    }
    const std::uint32_t lastInView = LastRowInView(layout);
    const std::uint32_t from = std::max(first, layout.topIndex);
    const std::uint32_t to = std::min(last, lastInView);
    if (lastInView != kNoRow && from <= to) {
        Mark(window,
             {0, RowRect(layout, from).top, layout.client.width, RowRect(layout, to).bottom});
    }
}

void MarkTop(HWND window) {
    Record* record = DrawnRecord(window);
    if (record == nullptr) {
        return;
    }
    const Layout layout = LayoutOf(*record);
    if (RowCount(layout) == 0) {
        Mark(window, {0, 0, layout.client.width, layout.rowHeight});
    } else {
        Mark(window, RowRect(layout, layout.topIndex));
    }
}

void MarkAll(HWND window) {
    if (DrawnRecord(window) != nullptr) {
        InvalidateRect(window, nullptr, FALSE);
    }
}

void PaintMarked(HWND window) {
    if (DrawnRecord(window) != nullptr) {
        UpdateWindow(window);
    }
}

} // namespace vorn::hierlist
