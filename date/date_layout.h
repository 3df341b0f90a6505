// How the user writes a date: the order of day, month and year, their widths and the separator.
#pragma once

#include "core/profile.h"

#include <cstdint>

namespace vorn::date {

// What stands at a position of the text. Any other number stands for nothing.
constexpr std::int32_t kDay = 1;
constexpr std::int32_t kMonth = 2;
constexpr std::int32_t kYear = 3;

constexpr int kPositions = 3;

struct Layout {
    std::int32_t monthLeadingZero = 0; // flags as they were given: any non-zero is on
    std::int32_t dayLeadingZero = 0;
    std::int32_t fourDigitYear = 0;
    std::int32_t kinds[kPositions] = {};
    char separator = '/'; // after the first and the second position
};

// Takes separator and layout from a short-date picture such as "M/d/yy". The letter at the start
// and those behind the first two separators decide: M, d or y is the position's kind; a doubled M
// or d asks for leading zeros, a y two letters on for a four-digit year. A position with any other
// letter, or that the picture does not have, keeps its kind, and a field that the picture does not
// name its flag.
void ReadShortDateLayout(const char* format, char separator, Layout& layout);

// The user's separator, "/" when there is none.
char ReadDateSeparator(const RegionalProfile& profile);

// ReadShortDateLayout with the user's picture, "M/d/yy" when there is none.
void ReadUserLayout(const RegionalProfile& profile, char separator, Layout& layout);

} // namespace vorn::date
