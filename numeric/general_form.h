// A double as text with twelve significant digits, the same on every target and in every locale.
#pragma once

#include <cstdint>
#include <span>

namespace vorn::numeric {

// The longest, "-1.23456789012e-308", and its terminator.
constexpr std::size_t kGeneralFormSize = 20;

// Writes the value rounded to 12 significant digits, half away from zero, cut to the buffer and
// terminated: "123.5". The fraction's trailing zeros are left out, the "." stays: "3.". A value
// that is rounded to less than 0.1 or to 1e12 or more gets an exponent of a sign and at least three
// digits: "5.e-002". A negative zero keeps its sign. Infinity is "1.#INF" and what is no number
// "1.#QNAN", with the sign of the double. Returns 1.
int GeneralForm(double value, std::span<char> buffer);

} // namespace vorn::numeric
