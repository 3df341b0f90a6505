// Painting the two-pixel frames.
#pragma once

#include "core/frames.h"
#include "core/platform_win.h"

namespace vorn {

// The colours that a caller chooses; the fourth is the system's window frame.
struct FrameColors {
    COLORREF a;
    COLORREF b;
    COLORREF c;
};

// Both leave the stock BLACK_PEN selected.
void DrawSunkenFrame(HDC context, const Rect& rect, const FrameColors& colors);
void DrawRaisedFrame(HDC context, const Rect& rect, const FrameColors& colors);

// A one-pixel outline along the rectangle's edge, all four sides painted. Leaves the stock
// BLACK_PEN selected.
void DrawOutline(HDC context, const Rect& rect, COLORREF color);

} // namespace vorn
