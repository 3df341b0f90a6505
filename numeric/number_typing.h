// The characters that are typed into a number.
#pragma once

#include "core/edit/field_keys.h"
#include "numeric/number_entry.h"

namespace vorn::numeric {

// What becomes of a character, by the keys held with it. A read-only control refuses every one that
// is not the system's.
edit::KeyRoute RouteCharacter(const edit::Key& character, bool readOnly);

// Types a character that RouteCharacter says to ask for, with the host's answer. Asking runs host
// code: when the control is gone after it, there is no entry to come here with.
//
// Digits make the number anew from the text with the digit in it; "-", "e" and the decimal
// character stay as they are typed, wherever a digit may follow them. The decimal character is the
// settings' or, from the numeric pad, "."; typed in front of one it steps over it. Everything else
// is refused with a beep, but for control characters, whose keys have done their work already.
edit::Actions TypeCharacter(NumberEntry& entry, char character, bool overwrite, bool allowed);

} // namespace vorn::numeric
