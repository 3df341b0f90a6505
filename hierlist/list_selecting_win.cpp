// The exported functions of selection, anchor and caret in an outline list, and of what is in view.
#include "core/window_win.h"
#include "hierlist/list_handles_win.h"
#include "hierlist/list_input_win.h"
#include "hierlist/list_scroll_win.h"
#include "hierlist/list_view_win.h"
#include "hierlist/select_at.h"
#include "hierlist/type_ahead.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

// The record of a list that selects one item, or of one that selects several; null for the other
// kind and for no outline list.
Record* RecordOfKind(HWND window, bool several) {
    Record* record = RecordOf<Record>(window);
    const bool selectsSeveral =
        record != nullptr && Has(record->outline, kStyleMultipleSel | kStyleExtendedSel);
    return selectsSeveral == several ? record : nullptr;
}

bool IsRow(const Record& record, LONG row) {
    return row >= 0 && static_cast<std::uint32_t>(row) < RowCount(record.outline);
}

// The last row, -1 in an empty list.
LONG LastRow(const Record& record) {
    return static_cast<LONG>(RowCount(record.outline)) - 1;
}

std::uint32_t Position(LONG row) {
    return static_cast<std::uint32_t>(row);
}

void Unselect(HWND window, Record& record) {
    Selection& selection = record.state.selection;
    OlbItem* anchor = selection.anchor;
    selection.anchor = nullptr;
    if (anchor != nullptr) {
        DeselectItem(record.outline, selection, anchor);
        RedrawRow(window, RowOf(record.outline, anchor));
    }
}

void SelectAll(HWND window, Record& record, LONG first, LONG last, bool on) {
    if (SelectRows(record.outline, record.state.selection, Position(first), Position(last), on) !=
        0) {
        RedrawRows(window);
    }
}

} // namespace
} // namespace vorn::hierlist

using namespace vorn;
using namespace vorn::hierlist;

// ---- One item selected ----

extern "C" LONG WINAPI olbSetCurSel(HWND window, LONG row) {
    Record* record = RecordOfKind(window, false);
    if (record == nullptr) {
        return LB_ERR;
    }
    if (row == -1) {
        Unselect(window, *record);
        return LB_ERR;
    }
    if (!IsRow(*record, row)) {
        return LB_ERR;
    }
    if (!IsSelected(ItemAt(*record, row))) {
        Actions actions;
        SelectAt(actions, record->outline, record->state, Position(row), 0, Tell::Nobody);
        AppendUpdate(actions);
        PerformAll(window, actions);
    }
    return 0;
}

extern "C" LONG WINAPI olbGetCurSel(HWND window) {
    Record* record = RecordOfKind(window, false);
    return record == nullptr ? LB_ERR
                             : ToRow(RowOf(record->outline, record->state.selection.anchor));
}

extern "C" HOLBITEM WINAPI olbGetCurSelEx(HWND window) {
    const Record* record = RecordOfKind(window, false);
    OlbItem* anchor = record != nullptr ? record->state.selection.anchor : nullptr;
    return anchor != nullptr ? ToHandle(anchor) : OLB_NOITEM;
}

extern "C" LONG WINAPI olbSelectString(HWND window, LONG start, LPCSTR text) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr || text == nullptr) {
        return LB_ERR;
    }
    std::uint32_t found = kNoRow;
    Actions actions =
        SelectString(record->outline, record->state, Position(start), text, Tell::Nobody, found);
    PerformAll(window, actions);
    return ToRow(found);
}

// ---- Several items selected ----

extern "C" LONG WINAPI olbSetSel(HWND window, LONG row, BOOL select) {
    Record* record = RecordOfKind(window, true);
    if (record == nullptr) {
        return LB_ERR;
    }
    if (row == -1) {
        if (select != 0) {
            record->state.selection.anchor = nullptr;
        }
        SelectAll(window, *record, 0, LastRow(*record), select != 0);
        return 0;
    }
    if (!IsRow(*record, row)) {
        return LB_ERR;
    }
    Actions actions =
        SelectRow(record->outline, record->state, Position(row), select != 0, Tell::Nobody);
    if (select != 0) {
        // As in list boxes, the row that was selected last is where the user goes on from.
        record->state.selection.anchor = ItemAt(*record, row);
        MoveCaret(actions, record->outline, record->state, Position(row));
        AppendUpdate(actions);
    }
    PerformAll(window, actions);
    return 0;
}

extern "C" LONG WINAPI olbGetSel(HWND window, LONG row) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr || !IsRow(*record, row)) {
        return LB_ERR;
    }
    return IsSelected(ItemAt(*record, row)) ? 1 : 0;
}

extern "C" LONG WINAPI olbGetSelItems(HWND window, LONG most, int* rows) {
    const Record* record = RecordOfKind(window, true);
    if (record == nullptr || rows == nullptr) {
        return LB_ERR;
    }
    return static_cast<LONG>(SelectedRows(record->outline, record->state.selection, rows,
                                          Position(std::max<LONG>(most, 0))));
}

extern "C" LONG WINAPI olbGetSelCount(HWND window) {
    const Record* record = RecordOfKind(window, true);
    return record == nullptr ? LB_ERR : static_cast<LONG>(record->state.selection.count);
}

extern "C" LONG WINAPI olbSelItemRange(HWND window, LONG first, LONG last, BOOL select) {
    Record* record = RecordOfKind(window, true);
    if (record == nullptr) {
        return LB_ERR;
    }
    const LONG end = last != -1 ? last : LastRow(*record);
    if (std::max(first, end) >= 0) {
        SelectAll(window, *record, std::max<LONG>(std::min(first, end), 0), std::max(first, end),
                  select != 0);
    }
    return 0;
}

// ---- Anchor and caret ----

extern "C" LONG WINAPI olbSetAnchorIndex(HWND window, LONG row) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr || (row != -1 && !IsRow(*record, row))) {
        return LB_ERR;
    }
    record->state.selection.anchor = ItemAt(*record, row);
    return 0;
}

extern "C" LONG WINAPI olbGetAnchorIndex(HWND window) {
    Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR
                             : ToRow(RowOf(record->outline, record->state.selection.anchor));
}

extern "C" LONG WINAPI olbSetCaretIndex(HWND window, LONG row) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr || !IsRow(*record, row)) {
        return LB_ERR;
    }
    Actions actions;
    MoveCaret(actions, record->outline, record->state, Position(row));
    AppendUpdate(actions);
    PerformAll(window, actions);
    return 0;
}

extern "C" LONG WINAPI olbGetCaretIndex(HWND window) {
    Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR
                             : ToRow(RowOf(record->outline, record->state.selection.caret));
}

// ---- View ----

extern "C" LONG WINAPI olbSetTopIndex(HWND window, LONG row) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr || (row != 0 && !IsRow(*record, row))) {
        return LB_ERR;
    }
    const Layout layout = LayoutOf(*record);
    if (RowCount(layout) == 0) {
        return 0;
    }
    if (layout.multiColumn) {
        ScrollSidewaysTo(window, OffsetOfColumn(layout, Position(row)));
    } else {
        ScrollRowsTo(window, Position(row));
    }
    return 0;
}

extern "C" LONG WINAPI olbGetTopIndex(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    const Layout layout = LayoutOf(*record);
    return ToRow(layout.multiColumn ? FirstColumnRow(layout) : layout.topIndex);
}

extern "C" LONG WINAPI olbGetBottomIndex(HWND window) {
    Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : ToRow(LastRowInView(LayoutOf(*record)));
}

extern "C" LONG WINAPI olbGetItemAtPoint(HWND window, int x, int y) {
    Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : ToRow(RowAt(LayoutOf(*record), {x, y}));
}

// An empty list has a place for its first row all the same.
extern "C" LONG WINAPI olbGetItemRect(HWND window, LONG row, RECT* rect) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr || rect == nullptr || (row != 0 && !IsRow(*record, row))) {
        return LB_ERR;
    }
    const Layout layout = LayoutOf(*record);
    *rect = ToPlatform(RowCount(layout) != 0 ? RowRect(layout, Position(row))
                                             : Rect{0, 0, layout.client.width, layout.rowHeight});
    RECT client{};
    GetClientRect(window, &client);
    RECT inView{};
    return IntersectRect(&inView, rect, &client) != 0 ? 1 : 0;
}
