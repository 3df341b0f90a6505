// The painting of an outline list.
#pragma once

#include "core/paint_win.h"
#include "hierlist/layout.h"
#include "hierlist/list_record.h"

namespace vorn::hierlist {

// What rows are painted on: a brush, and its colour where it has one.
struct Ground {
    HBRUSH brush = nullptr;
    COLORREF color = 0;
};

// Paints what needs repainting. Runs host code.
void PaintRows(HWND window, const OffscreenPaint& offscreen);

// Paints a row of the control's own drawing on the ground that is already there. Runs no host code.
void PaintRow(HDC context, const Record& record, const Layout& layout, const PlacedRow& placed,
              const Ground& ground);

// The focus rectangle, which painted twice is gone.
void PaintFocus(HDC context, const Rect& rect);

// Draws an item's picture from `left` on, in the middle of the rectangle's height. Returns the x
// behind it, `left` itself when there is none to draw.
int PaintPicture(HDC context, const Record& record, const OlbItem* item, const Rect& rect, int left,
                 COLORREF background);

// Draws the tree's lines, and the item's box if there are boxes, in the item's row.
void PaintLines(HDC context, const Record& record, const OlbItem* item, const Rect& row);
void PaintBox(HDC context, const Record& record, const OlbItem* item, const Rect& row,
              COLORREF background);

} // namespace vorn::hierlist
