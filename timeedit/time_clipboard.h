// Deleting, and taking text from and to the clipboard.
#pragma once

#include "timeedit/time_entry.h"

namespace vorn::timeedit {

// Makes zeros of the digits from `start` to `end` of a text that is like the value text.
void ZeroDigits(char* text, const HeldTime& time, std::int32_t start, std::int32_t end);

// Makes a zero of the digit at the caret, which stays. A separator and the characters of a suffix
// are never removed but stepped over, as by Right; at the end of the text there is nothing to
// delete: both tell nobody of a change. An hour of the 12-hour form is at least 1. With a
// selection: ClearSelection.
void DeleteAtCaret(edit::Actions& actions, TimeEntry& entry);

// One character left and, if there was one, DeleteAtCaret; onto a separator or in a suffix it only
// moves. With a selection: ClearSelection.
void DeleteBeforeCaret(edit::Actions& actions, TimeEntry& entry);

// Makes zeros of the selected digits and keeps the separators. A suffix that is selected as a whole
// becomes that of the morning, a part of one stays. With all of the text selected the time becomes
// null; its numbers stay, for a step to start from. Nothing is done without a selection.
void ClearSelection(edit::Actions& actions, TimeEntry& entry);

// Whether a text is a time, and no more: the numbers of hour and minute, and of the second unless
// it is left out and counts as 0, of one or two digits each, with the separator between and blanks
// around, and the AM or the PM text behind unless that is left out. There must be such a time: with
// a suffix in the 12-hour form, without one in the 24-hour form.
bool ReadWholeTime(Time& time, const char* text, const Format& format);

// Takes such a time, with the caret behind it; refuses any other text with a beep.
void PasteText(edit::Actions& actions, TimeEntry& entry, const char* text);

} // namespace vorn::timeedit
