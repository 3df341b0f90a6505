// Deleting, and taking text from and to the clipboard.
#pragma once

#include "numeric/number_entry.h"

#include <span>

namespace vorn::numeric {

// Remove the character in front of or behind the caret, or the selection. What stays must be a
// number, one that was begun, such as "-", or nothing, which makes the number null; anything else
// is refused with a beep, and so is deleting beyond either end. The number is not made anew, so
// that decimals can go.
void DeleteBeforeCaret(edit::Actions& actions, NumberEntry& entry);
void DeleteAtCaret(edit::Actions& actions, NumberEntry& entry);

// Removes the selection in the same way; does nothing without one.
void ClearSelection(edit::Actions& actions, NumberEntry& entry);

// The selected text or, with nothing selected, all of it, with the settings' decimal character; cut
// to the buffer and terminated.
void CopyNumberText(std::span<char> buffer, const NumberEntry& entry);

// Puts a text in at the caret or for the selection, and makes the number anew as typing does. The
// text must be a number by itself once the thousands characters and blanks are out of it, and so
// must what becomes of it; anything else is refused with a beep.
void PasteText(edit::Actions& actions, NumberEntry& entry, const char* text);

} // namespace vorn::numeric
