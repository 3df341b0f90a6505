#include "date/date_value.h"

#include <algorithm>

namespace vorn::date {
namespace {

constexpr std::uint16_t kChangeYear = 1752;
constexpr std::uint16_t kChangeMonth = 9;
constexpr std::int32_t kSkippedDays = 11;

// The leap days before the change that the Gregorian rule would not have had: those of the
// centuries 100 to 1700 but for 400, 800, 1200 and 1600.
constexpr std::int32_t kJulianSurplus = 13;

constexpr std::uint16_t kFebruary = 2;

// All divisions truncate, also that of the -1 before year 0.
std::int32_t LeapDaysBefore(std::int32_t year) {
    const std::int32_t previous = year - 1;
    const std::int32_t julian = previous / 4;
    return year > kChangeYear ? julian - previous / 100 + previous / 400 + kJulianSurplus : julian;
}

bool IsAfterTheChange(std::uint16_t month, std::uint16_t day, std::uint16_t year) {
    if (year != kChangeYear) {
        return year > kChangeYear;
    }
    return month > kChangeMonth || (month == kChangeMonth && day >= kFirstGregorianDay);
}

// Day 0 is a Saturday.
std::uint16_t WeekdayOf(std::int32_t dayNumber) {
    const std::int32_t remainder = dayNumber % 7; // -6 to 6
    return static_cast<std::uint16_t>((remainder + 6) % 7);
}

std::int32_t Difference(std::uint32_t from, std::uint32_t to) {
    return static_cast<std::int32_t>(to - from);
}

} // namespace

bool IsLeapYear(std::uint16_t year) {
    const bool julian = year % 4 == 0;
    return year > kChangeYear ? julian && (year % 100 != 0 || year % 400 == 0) : julian;
}

MonthLengths MonthLengthsOf(std::uint16_t year) {
    MonthLengths lengths = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (IsLeapYear(year)) {
        lengths[kFebruary - 1] = 29;
    }
    return lengths;
}

std::uint16_t MonthLength(std::uint16_t month, std::uint16_t year) {
    const MonthLengths lengths = MonthLengthsOf(year);
    return month >= 1 && month <= lengths.size() ? lengths[month - 1u] : std::uint16_t{0};
}

bool IsSkippedDay(const Date& date) {
    return date.year == kChangeYear && date.month == kChangeMonth && date.day > kLastJulianDay &&
           date.day < kFirstGregorianDay;
}

bool IsValidDate(const Date& date) {
    return date.year <= kLastYear && date.day >= 1 &&
           date.day <= MonthLength(date.month, date.year) && !IsSkippedDay(date);
}

void LimitDay(Date& date) {
    const std::uint16_t length = MonthLength(date.month, date.year);
    if (length != 0) {
        date.day = std::min(date.day, length);
    }
}

std::uint32_t DayNumber(std::uint16_t month, std::uint16_t day, std::uint16_t year,
                        MonthLengths* monthLengths, std::uint16_t* weekday) {
    const MonthLengths lengths = MonthLengthsOf(year);
    std::int32_t number = 365 * (year - 1) + LeapDaysBefore(year);
    if (IsAfterTheChange(month, day, year)) {
        number -= kSkippedDays;
    }
    for (std::size_t earlier = 1; earlier < month && earlier <= lengths.size(); ++earlier) {
        number += lengths[earlier - 1];
    }
    number += day - 1;
    if (monthLengths != nullptr) {
        *monthLengths = lengths;
    }
    if (weekday != nullptr) {
        *weekday = WeekdayOf(number);
    }
    return static_cast<std::uint32_t>(number);
}

std::int32_t SerialDate(const Date& date) {
    return Difference(DayNumber(1, 1, 1900), DayNumber(date.month, date.day, date.year));
}

std::int32_t DayOfYear(const Date& date) {
    return Difference(DayNumber(1, 1, date.year), DayNumber(date.month, date.day, date.year));
}

} // namespace vorn::date
