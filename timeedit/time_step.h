// Up and Down, and the letters of the suffix.
#pragma once

#include "timeedit/time_entry.h"

namespace vorn::timeedit {

// The current field one further or one back, around its ends: from the last hour, minute or second
// to the first and back, without a carry into another field. Hours of the 12-hour form run through
// both halves of the day. The suffix takes the other half. Then the field is selected. A null time
// steps from the numbers it still has.
void StepField(edit::Actions& actions, TimeEntry& entry, bool up);

enum class HalfOfDay : std::uint8_t { Morning, Afternoon, Other, None };

// What a letter says in the suffix, by its virtual key: the half whose text begins with it, the
// other half than now if both do; of those that neither text begins with, A means the morning and P
// the afternoon.
HalfOfDay HalfOfKey(const Format& format, std::uint32_t code);

// Takes that half of the day and selects the suffix.
void ChooseHalf(edit::Actions& actions, TimeEntry& entry, HalfOfDay half);

} // namespace vorn::timeedit
