// The controls of the "Select Date" dialog: their places and pictures. Host code may run in all of
// these.
#pragma once

#include "core/platform_win.h"
#include "date/date_edit.h"

namespace vorn::date {

// The year box with its font and both arrows with their pictures, in the band above the calendar.
void ArrangeYearLine(HWND dialog);

// Deletes the font and the pictures.
void ReleaseYearLine(HWND dialog);

// Puts the system's push buttons in the places of the picture buttons.
void UseSystemButtons(HWND dialog, const Captions& texts);

// Moves the dialog, if need be, so that all of it is on the screen that the date edit is on.
void BringOnScreen(HWND dialog, HWND dateEdit);

} // namespace vorn::date
