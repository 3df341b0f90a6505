// Dates as numbers: which days exist, how they are counted, on which weekday they fall. The
// calendar is the Julian one up to 2 September 1752 and the Gregorian one from the next day, 14
// September 1752; the eleven days between do not exist.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vorn::date {

// The record that hosts pass in and out, so its layout is fixed. Nothing keeps a host from storing
// numbers that are no date; every function here is defined for them too.
struct Date {
    std::uint16_t month = 0; // 1 to 12
    std::uint16_t day = 0;   // 1 to 31
    std::uint16_t year = 0;  // all four digits: 0 to 9999

    friend constexpr bool operator==(const Date&, const Date&) = default;
};
static_assert(sizeof(Date) == 6 && offsetof(Date, day) == 2 && offsetof(Date, year) == 4);

constexpr std::uint16_t kLastYear = 9999;

// The days on both sides of the gap in September 1752.
constexpr std::uint16_t kLastJulianDay = 2;
constexpr std::uint16_t kFirstGregorianDay = 14;

using MonthLengths = std::array<std::uint16_t, 12>;

// Every fourth year is a leap year up to 1752; from 1753 on, full centuries only when they divide
// by 400.
bool IsLeapYear(std::uint16_t year);

// The number of days of each month; September 1752 counts as 30.
MonthLengths MonthLengthsOf(std::uint16_t year);

// The number of days of a month, 0 when there is no such month.
std::uint16_t MonthLength(std::uint16_t month, std::uint16_t year);

// Whether this is one of the days that the calendar change of 1752 left out.
bool IsSkippedDay(const Date& date);

// Whether there is such a day. Year 0 counts as a year.
bool IsValidDate(const Date& date);

// Cuts the day to the length of its month; leaves it when there is no such month.
void LimitDay(Date& date);

// The running number of a day, 0 for 1 January 1; where asked also the month lengths of its year
// and its weekday, 0 for Sunday to 6. The days of year 0 have negative numbers, returned modulo
// 2^32, but for its last day: that is 0 like the day after it. Skipped days continue the Julian
// count. Months beyond 12 count as the end of the year.
std::uint32_t DayNumber(std::uint16_t month, std::uint16_t day, std::uint16_t year,
                        MonthLengths* monthLengths = nullptr, std::uint16_t* weekday = nullptr);

// The days since 1 January 1900, negative before it.
std::int32_t SerialDate(const Date& date);

// The days since 1 January of the same year; 31 December 1752 is 354.
std::int32_t DayOfYear(const Date& date);

} // namespace vorn::date
