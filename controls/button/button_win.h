// The picture button as a window.
#pragma once

#include "controls/button/button.h"
#include "core/paint_win.h"
#include "core/record_win.h"

namespace vorn::button {

struct Record {
    static constexpr ControlClass kClass = ControlClass::Button;

    State state;
    HBITMAP strip = nullptr;          // null where there is none to be had
    HBITMAP hostAppPicture = nullptr; // likewise
    HBITMAP userBitmap = nullptr;     // the host's
    HFONT font = nullptr;             // the host's, or the stock SYSTEM_FONT
    PaintState paint;
};

// Draws the button. Runs host code.
void Draw(HWND window, const OffscreenPaint& offscreen);

} // namespace vorn::button
