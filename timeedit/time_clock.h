// The running clock.
#pragma once

#include "timeedit/time_value.h"

namespace vorn::timeedit {

constexpr std::uint32_t kClockTimer = 567;
constexpr std::uint32_t kClockPeriod = 100; // in milliseconds

constexpr std::size_t kClockTextSize = 9;

// What a tick sets the control from, whatever its format: "14:05:09". It is read like any other
// text, so that it changes nothing until the next second, and so that a control whose separator is
// another shows the hour alone.
void FormatClockText(char (&text)[kClockTextSize], const Time& now);

} // namespace vorn::timeedit
