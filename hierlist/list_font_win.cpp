#include "hierlist/list_font_win.h"

#include "core/gdi_win.h"
#include "hierlist/list_scroll_win.h"
#include "hierlist/list_view_win.h"

namespace vorn::hierlist {

void TakeFont(Record& record, HFONT font) {
    record.font = OrSystemFont(font);
    const TEXTMETRICA metrics = MeasureFont(record.font);
    record.fontHeight = metrics.tmHeight;
    record.options.averageWidth = metrics.tmAveCharWidth;
    if (!record.options.hasOwnRowHeight) {
        record.options.rowHeight = RowHeightFor(record.options, metrics.tmHeight);
        ForgetColumns(record);
    }
}

void OnSetFont(HWND window, HFONT font, bool redraw) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    TakeFont(*record, font);
    UpdateBars(window);
    if (redraw) {
        RedrawRows(window);
    }
}

LRESULT OnGetFont(HWND window) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr || record->font == OrSystemFont(nullptr)) {
        return 0;
    }
    return reinterpret_cast<LRESULT>(record->font);
}

} // namespace vorn::hierlist
