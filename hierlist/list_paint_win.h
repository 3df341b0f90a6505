// The painting of an outline list.
#pragma once

#include "core/paint_win.h"
#include "hierlist/layout.h"
#include "hierlist/list_record_win.h"

namespace vorn::hierlist {

// Paints what needs repainting. Runs host code.
void PaintRows(HWND window, const OffscreenPaint& offscreen);

// The pen of the tree's lines: every other pixel from the first on, the rest left as it is. The
// caller's to delete.
HPEN MakeLinePen(const Record& record);

// What a row is painted with: the colour of the ground that is already there, and what there is of
// the rest.
struct RowTools {
    HDC context;
    const Record& record;
    COLORREF ground;
    HDC pictures = nullptr; // the prepared ones
    HPEN lines = nullptr;
};

// Paints a row of the control's own drawing. Runs no host code.
void PaintRow(const RowTools& tools, const Layout& layout, const PlacedRow& placed);

// The focus rectangle, which painted twice is gone.
void PaintFocus(HDC context, const Rect& rect);

// Draws an item's picture from `left` on, in the middle of the rectangle's height. Returns the x
// behind it.
int PaintPicture(const RowTools& tools, const OlbItem* item, const Rect& rect, int left);

// Draws the tree's lines, and the item's box if it has children, in the item's row.
void PaintLines(const RowTools& tools, const OlbItem* item, const Rect& row);
void PaintBox(const RowTools& tools, const OlbItem* item, const Rect& row);

} // namespace vorn::hierlist
