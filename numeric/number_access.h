// What hosts read and write of a number.
#pragma once

#include "numeric/number_entry.h"

#include <cstdint>
#include <span>

namespace vorn::numeric {

// The value, clamped, without its fraction; beyond 32 bits the nearer end of their range. A null
// number is 0. An unsigned number's range is that of both kinds of 32 bits: from -2147483648, whose
// bits it has, to 4294967295.
std::int32_t ReadInteger(const NumberEntry& entry);
std::uint32_t ReadUnsigned(const NumberEntry& entry);

// The value, clamped, as it is edited, without grouping and parentheses but with the settings'
// decimal character; " " for a null number. Returns 1.
int ReadLastGoodNumber(const NumberEntry& entry, std::span<char, kNumberTextSize> text);

// As what a value is written.
enum class Written : std::uint8_t {
    Integer,
    UnsignedInteger,
    Floating,
    UnsignedLong, // like Floating, in a range that integer kinds have room for all the same
};

// Stores a value, once the host has answered that it may change: clamped to the range and written
// without its fraction or, of the last two, in general form. The decimal digits are those of the
// settings in kinds kGeneral and kFloating to kFloatingGroupedParentheses, unless it is displayed
// in digits; kFloatingUnpadded has only the decimals that are not 0, and an integer kind has none.
// A text that reaches the limit is cut. Caret and selection go to the start and the number counts
// as unmodified; no notification tells of it.
edit::Actions Write(NumberEntry& entry, double value, Written as);

// Whether that cuts the text, of which the parent is told before (kTextCut).
bool IsCutWritten(const NumberEntry& entry, double value, Written as);

} // namespace vorn::numeric
