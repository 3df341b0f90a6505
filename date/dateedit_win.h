// The date edit as a window.
#pragma once

#include "core/edit/edit_body_win.h"
#include "core/record_win.h"
#include "date/date_edit.h"

namespace vorn::date {

struct Record : edit::EditBody {
    static constexpr ControlClass kClass = ControlClass::DateEdit;

    DateEntry entry;
    bool eraseDisabled = false; // in the calendar
    bool buttonPressed = false; // while the calendar is being opened
    std::uint32_t buttonStyle = 1;
    ColorCode dialogColor = kButtonFaceColor;
    HBITMAP normalButton = nullptr;
    HBITMAP pressedButton = nullptr;
};

// What is the date edit's own among the edits.
extern const edit::EditKind kDateKind;

// What every change by a host ends with, once the record has it: repaints, puts the caret in its
// place and sends kTellChanged. Host code runs. Returns the result of the redraw.
BOOL ShowNewDate(HWND window);

} // namespace vorn::date
