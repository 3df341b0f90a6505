// Up and Down: the current field one further or one back.
#pragma once

#include "date/date_entry.h"

namespace vorn::date {

// Never wraps around; at the end of its range the field stays, and the notifications are the same.
// The step of a month cuts the day to it, and that of a year takes 29 February to the 28th, into a
// leap year too. Then the field is selected. A null date steps from the numbers it still has.
void StepField(edit::Actions& actions, DateEntry& entry, bool up);

} // namespace vorn::date
