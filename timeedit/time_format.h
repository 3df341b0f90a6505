// A time as text.
#pragma once

#include "timeedit/time_value.h"

namespace vorn::timeedit {

// The hour as it is shown: in the 12-hour form midnight and noon are 12, and the hours from 13 to
// 23 count from 1. Larger ones are shown as they are.
std::uint16_t ShownHour(const HeldTime& time);

// How many places the hour takes at least: two with the focus, where each field has room for both
// digits, and where the user wants leading zeros.
int HourPlaces(const HeldTime& time);

// Rebuilds the value text; it is empty for a null time. It is both what a host reads and what is
// shown and edited.
void FormatValueText(HeldTime& time);

} // namespace vorn::timeedit
