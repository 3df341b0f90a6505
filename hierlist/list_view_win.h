// The rows of an outline list in its window: where they are, and how they are repainted.
#pragma once

#include "hierlist/layout.h"
#include "hierlist/list_record_win.h"

namespace vorn::hierlist {

// The layout at this moment, valid until host code runs. Builds the table of columns if need be.
Layout LayoutOf(Record& record);

// The same for a client area of another size than the window's.
Layout LayoutFor(Record& record, Size client);

// The style, the rows or their heights changed: columns begin elsewhere.
inline void ForgetColumns(Record& record) {
    record.columnsHeight = -1;
}

// Whether changes show: neither the style nor WM_SETREDRAW says otherwise.
bool IsDrawingOn(const Record& record);

// Repaint at once if drawing is on. Each may run host code: the control may be gone afterwards.
void RedrawRows(HWND window);
void RedrawRow(HWND window, std::uint32_t row);
void RedrawFromRow(HWND window, std::uint32_t row);

} // namespace vorn::hierlist
