// What a control is painted on, when its parent has a say in it.
#pragma once

#include "core/geometry_win.h"
#include "core/platform_win.h"

namespace vorn {

// A colour; and a brush that is no plain colour, where there is one.
struct Ground {
    COLORREF color;
    HBRUSH brush = nullptr; // the host's
};

// Asks the parent by one of the WM_CTLCOLOR messages. It may change the context's colours, and
// nothing of that is undone. Runs host code.
HBRUSH AskForBrush(HWND window, HDC context, UINT message);

// What a parent's answer means: a brush, a system colour's number and one, as FillRect takes it
// too, or nothing, which leaves the control its own colour. The context is the one that was asked
// about: the colour of DC_BRUSH is the context's.
Ground GroundOf(HBRUSH answer, HDC context, COLORREF own);

// Fills with the ground. What the brush leaves open shows the colour.
void FillWithGround(HDC context, const Rect& rect, const Ground& ground);

} // namespace vorn
