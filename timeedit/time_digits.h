// Typing a digit: it overtypes the field that the caret is in, the time stays one after each digit,
// and the caret leaves a field that is full.
#pragma once

#include "timeedit/time_entry.h"

namespace vorn::timeedit {

// A null time starts from zeros. The digit replaces the selection if there is one: its other
// digits become zeros, its separators and its suffix stay. A digit that no number of the field
// begins with is the whole of it. On a separator behind a field, which always has all its digits,
// the digit only moves the caret on; in the suffix it is refused with a beep.
void EnterDigit(edit::Actions& actions, TimeEntry& entry, char digit);

} // namespace vorn::timeedit
