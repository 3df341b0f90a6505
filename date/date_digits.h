// Typing a digit: it overtypes the field that the caret is in, the date stays one after each digit,
// and the caret leaves a field that is full.
#pragma once

#include "date/date_entry.h"

namespace vorn::date {

// `today` is what a null date starts from. The digit replaces the selection if there is one, even
// separators, so that fields join.
//
// Each digit leaves a date, but for one way to a day that the calendar change of 1752 left out: the
// day is read when it comes in the text, so one that is before its month or year is judged by the
// old ones.
void EnterDigit(edit::Actions& actions, DateEntry& entry, char digit, const Date& today);

} // namespace vorn::date
