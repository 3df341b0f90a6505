#include "date/dateedit_calendar_win.h"

namespace vorn::date {

// There is no calendar to drop down yet.
INT_PTR OpenCalendar(HWND /*window*/) {
    return kCalendarCancelled;
}

} // namespace vorn::date
