// The numeric edit as a window.
#pragma once

#include "core/edit/edit_body_win.h"
#include "core/record_win.h"
#include "numeric/number_spin.h"

namespace vorn::numeric {

struct Record : edit::EditBody {
    static constexpr ControlClass kClass = ControlClass::NumEdit;

    NumberEntry entry;
    SpinState spin;
    std::uint32_t alignment = 0; // 0 left, 1 centred, 2 right
    HBITMAP spinPicture = nullptr;
};

// What is the numeric edit's own among the edits.
extern const edit::EditKind kNumberKind;

// Takes a display style into record and settings; the picture of the spin buttons is the caller's.
void TakeNumberDisplay(Record& record, std::uint32_t displayStyle);

// Loads the picture of the spin buttons anew, in the system's colours.
void LoadSpinPicture(Record& record);

// Draws the edit. Runs host code: the parent is asked for colours.
void Draw(HWND window, const OffscreenPaint& offscreen);

// Paints the spin buttons, and the line that parts them from the text.
void PaintSpinButtons(HDC context, const edit::EditBody& body, const Rect& rect);

} // namespace vorn::numeric
