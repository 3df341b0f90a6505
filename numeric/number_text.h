// Text to number.
#pragma once

#include "numeric/number_settings.h"

#include <cstdint>

namespace vorn::numeric {

// Converts a text: blanks, a sign, digits with at most one ".", and an exponent of "e" or "E", a
// sign and digits, of any length and correctly rounded, half to even. Every decimal character of
// the settings in the text becomes a "." first, and stays one. The value is that of what converts,
// 0 when nothing does; beyond the largest double it is infinite. Returns whether the text is valid:
// it converts wholly, and to a finite number.
int TextToNumber(const NumberSettings& settings, char* text, double& value);

// The value without its fraction. What is beyond 32 bits becomes the nearer end of their range, and
// what is no number the lower one.
std::int32_t TruncateToInteger(double value);

} // namespace vorn::numeric
