// The "Select Date" dialog that a date edit drops down.
#pragma once

#include "core/platform_win.h"
#include "date/popup.h"

namespace vorn::date {

// Runs the dialog. The choice, or none at all, is in the date edit's record afterwards, unless the
// answer is kPopupCancelled; so is a year that was typed before the user cancelled. Host code runs:
// the date edit may be gone.
INT_PTR OpenPopup(HWND dateEdit);

} // namespace vorn::date
