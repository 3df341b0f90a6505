// The year calendar as a window.
#pragma once

#include "core/paint_win.h"
#include "date/calendar.h"

namespace vorn::calendar {

// The date that the window's three words hold; all 0 for a window that is gone or has no such
// words.
date::Date SelectionOf(HWND window);

// Today's year. Like all of today it is UTC's.
std::uint16_t CurrentYear();

// The layout of the window's client area.
Layout MeasureCalendar(HWND window);

// Draws what needs repainting. Runs no host code.
void Draw(HWND window, const OffscreenPaint& offscreen);

} // namespace vorn::calendar
