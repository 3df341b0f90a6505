// Number to text.
//
// The operations on a text change it in place, within its buffer and at most kNumberTextSize bytes
// of it; the text is terminated. What has no room is cut at the end, with one exception that is
// said below. They return 1. A decimal or thousands character of 0 is none: it is neither found nor
// written.
#pragma once

#include "numeric/number_settings.h"

#include <cstdint>
#include <span>

namespace vorn::numeric {

// Brings a number in general form to a count of decimal digits. Without any the fraction is cut
// off; otherwise the first digit that goes rounds up the ones before it when it is above 4. A carry
// beyond the first digit puts a "1" in front and doubles what is then the third character: "9.996"
// becomes "1..00" and "99.996" becomes "100.00". An exponent stays behind the rounded number, with
// fewer decimal digits when there is not enough room for both; for kGeneral it leaves the text as
// it is.
int RoundDigits(std::span<char> text, std::uint16_t digits, char decimalChar,
                std::uint32_t formatKind);

// Puts the thousands character between groups of three, counted from the decimal character or the
// end, without a leading "+".
int GroupThousands(std::span<char> text, const NumberSettings& settings);

// Takes the "0" out of a text that starts with it and the decimal character, "-" or "(" before
// them or not; leaves the text when `leadingZero` is set.
int StripLeadingZero(std::span<char> text, std::int32_t leadingZero, char decimalChar);

// Writes a number as it is displayed or, for the edit form, as it is edited: without grouping and
// parentheses. A null number is a blank, whatever the value. A number that is infinite is not
// rounded.
int FormatValue(const NumberSettings& settings, double value, std::int32_t editForm,
                std::span<char, kNumberTextSize> formatted);

// The same with the number of a text, in which every decimal character becomes a ".".
int FormatNumber(const NumberSettings& settings, char* text, std::int32_t editForm,
                 std::span<char, kNumberTextSize> formatted);

} // namespace vorn::numeric
