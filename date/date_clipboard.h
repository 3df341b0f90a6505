// Deleting, and taking text from and to the clipboard.
#pragma once

#include "date/date_entry.h"

#include <span>

namespace vorn::date {

// Removes the character at the caret. A separator is never removed but stepped over, as by Right;
// at the end of the text there is nothing to delete: both tell nobody of a change. The field is
// read again, so that one without digits has its lowest number. With a selection: ClearSelection.
void DeleteAtCaret(edit::Actions& actions, DateEntry& entry);

// One character left and, if there was one, DeleteAtCaret; onto a separator it only moves. With a
// selection: ClearSelection.
void DeleteBeforeCaret(edit::Actions& actions, DateEntry& entry);

// Removes what is selected of each field and keeps the separators. With all of the text selected
// the date becomes null; its numbers stay, for a step to start from. Nothing is done without a
// selection.
void ClearSelection(edit::Actions& actions, DateEntry& entry);

// Whether a text is a date in this layout, and no more: the numbers of all three positions in their
// order, days and months of one or two digits, years of up to as many as the layout has, and the
// separators between, with blanks around each number as the edit text has them. Such a day must
// exist. Years of two digits are of the century of the date that is held, or of today's if that is
// null.
bool ReadWholeDate(Date& date, const char* text, const HeldDate& held, const Date& today);

// Takes such a date, with the caret behind it; refuses any other text with a beep.
void PasteText(edit::Actions& actions, DateEntry& entry, const char* text, const Date& today);

} // namespace vorn::date
