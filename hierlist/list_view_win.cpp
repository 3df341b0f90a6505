#include "hierlist/list_view_win.h"

#include "core/window_win.h"

namespace vorn::hierlist {
namespace {

Size ClientSize(HWND window) {
    const Rect client = ClientRect(window);
    return {client.right, client.bottom};
}

// Repaints a part of the client area; an empty one not at all.
void RedrawPart(HWND window, const Rect& part) {
    if (part.left < part.right && part.top < part.bottom) {
        const RECT area = ToPlatform(part);
        vorn::Redraw(window, &area);
    }
}

} // namespace

Layout LayoutFor(Record& record, Size client) {
    Layout layout = MakeLayout(record.outline, record.options, StyleOf(record.window), client);
    layout.columns = &record.columns;
    layout.topIndex = layout.multiColumn ? 0 : record.topIndex;
    layout.offset = record.offset;
    if (layout.multiColumn && layout.variable && record.columnsHeight != client.height) {
        BuildColumns(record.columns, layout);
        record.columnsHeight = client.height;
    }
    return layout;
}

Layout LayoutOf(Record& record) {
    return LayoutFor(record, ClientSize(record.window));
}

bool IsDrawingOn(const Record& record) {
    return !record.redrawOff && (StyleOf(record.window) & kStyleNoRedraw) == 0;
}

void RedrawRows(HWND window) {
    const Record* record = RecordOf<Record>(window);
    if (record != nullptr && IsDrawingOn(*record)) {
        vorn::Redraw(window);
    }
}

void RedrawRow(HWND window, std::uint32_t row) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr && IsDrawingOn(*record)) {
        RedrawPart(window, RowRect(LayoutOf(*record), row));
    }
}

void RedrawFromRow(HWND window, std::uint32_t row) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr || !IsDrawingOn(*record)) {
        return;
    }
    const Layout layout = LayoutOf(*record);
    const Rect first = RowRect(layout, row);
    // All columns to the right change too.
    const Rect part = layout.multiColumn
                          ? Rect{first.left, 0, layout.client.width, layout.client.height}
                          : Rect{0, first.top, layout.client.width, layout.client.height};
    RedrawPart(window, part);
}

} // namespace vorn::hierlist
