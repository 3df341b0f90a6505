// The calendar that a date edit drops down.
#pragma once

#include "core/platform_win.h"

namespace vorn::date {

constexpr INT_PTR kCalendarCancelled = IDCANCEL;

// Lets the user choose a date. The choice, or none at all, is in the control's record afterwards,
// unless the answer is kCalendarCancelled. Host code runs.
INT_PTR OpenCalendar(HWND window);

} // namespace vorn::date
