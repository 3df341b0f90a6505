// Text as a time.
#pragma once

#include "timeedit/time_value.h"

namespace vorn::timeedit {

// Whether two texts are the same suffix: without regard to the case of the letters A to Z, and to
// blanks, which no suffix that was read from a text can have.
bool IsSameSuffix(const char* read, const char* suffix);

// Takes the time of a text: the numbers between the separators, and behind the first blank the
// suffix. Nothing is checked: numbers that are not there are 0, of those beyond 16 bits the low
// bits count, and of a text that is longer than a value text can be the start.
//
// The suffix is compared with the AM text first, then with the PM text; if it is neither, the hour
// decides. So a text without a suffix is one before noon when the AM text is empty and one after
// noon when only the PM text is. An hour above 11 counts from noon, with either suffix.
//
// A missing or empty text makes the time null, with midnight's numbers. Returns false when nothing
// was done because the text has the numbers that are held, which leaves a null time null. The value
// text stays.
bool ReadTimeText(HeldTime& held, const char* text);

} // namespace vorn::timeedit
