// A date as text and text as a date.
//
// There are two texts. The value text is what a host reads. The edit text is what is painted and
// edited: with the focus every day and month has room for two digits, and a year that is written
// with two digits has no leading zero.
#pragma once

#include "date/date_layout.h"
#include "date/date_value.h"

#include <span>

namespace vorn::date {

constexpr std::size_t kValueTextSize = 32;

// The longest edit text: three numbers of 16 bits and two separators.
constexpr std::size_t kLongestEditText = 17;

// The date that a control holds, and what decides how it is written.
struct HeldDate {
    Date value;
    std::int32_t null = 0; // non-zero: no date, whatever the numbers
    Layout layout;
    std::int32_t focused = 0;
    std::int32_t typedZero[kPositions] = {}; // the user began the position with a 0
    char valueText[kValueTextSize] = {};
};

// The number at the start of a text: blanks, a sign, digits up to the first other character. No
// digits read as 0, and the number stops at 99,999: beyond any field.
std::int32_t DecimalAt(const char* text);

// Sets one field. A day is clamped to 1 to 31 whatever the month, and one that the calendar change
// of 1752 left out becomes the 14th; a month to 1 to 12; a year to 0 to 9999, with the century of
// the year before it added when years are written with two digits (whatever was given: 2007 into
// 1998 is 3907), in 16 bits. Any other kind changes nothing. Returns 1.
int SetDateField(std::int32_t value, std::int32_t kind, HeldDate& date);

// Sets the fields from a text, in the order of their positions, then cuts the day to the month.
// The first two numbers end at the first character that is neither digit nor space; the third is
// the rest, which may have a sign. No digits read as 0. The null flag stays.
void ParseTypedDate(HeldDate& date, const char* text);

// Rebuilds the value text; it is empty for a null date.
void FormatValueText(HeldDate& date);

// Writes the edit text, cut to the buffer and terminated; it is empty for a null date. A position
// of no kind keeps its separator, so that the text reads back.
void FormatEditText(std::span<char> buffer, const HeldDate& date);

// Where the second and the third position start in the edit text of the date's numbers, in
// characters. A day or month counts as at most two digits and a year as at most four. A year at the
// second position moves that start behind itself and leaves `start3` alone: the caret supports a
// year only first or last.
void MeasureFieldStarts(std::int32_t& start2, std::int32_t& start3, const HeldDate& date);

} // namespace vorn::date
