// The percent bar as a window.
#pragma once

#include "controls/percentbar/percentbar.h"
#include "core/paint_win.h"
#include "core/record_win.h"

namespace vorn::percentbar {

struct Record {
    static constexpr ControlClass kClass = ControlClass::PercentBar;

    State state;
    HFONT scaleFont = nullptr;   // the host's, or the stock SYSTEM_FONT
    HFONT percentFont = nullptr; // likewise
    PaintState paint;
};

// The bar inside the window's client area, by the window's current fonts.
Rect MeasureBar(HWND window, const Record& record);

// Draws the control. Runs host code.
void Draw(HWND window, const OffscreenPaint& offscreen);

} // namespace vorn::percentbar
