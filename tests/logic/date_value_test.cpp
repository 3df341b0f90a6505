// Day numbers, weekdays and which dates exist, over the whole range of the calendar.
#include "date/date_value.h"

#include <gtest/gtest.h>

namespace vorn::date {
namespace {

// The astronomers' count of days, from their closed formulas on a year that starts in March.
std::int64_t JulianDayCount(int month, int day, int year, bool gregorian) {
    const int beforeMarch = (14 - month) / 12;
    const std::int64_t y = year + 4800 - beforeMarch;
    const int m = month + 12 * beforeMarch - 3;
    const std::int64_t days = day + (153 * m + 2) / 5 + 365 * y + y / 4;
    return gregorian ? days - y / 100 + y / 400 - 32045 : days - 32083;
}

bool IsGregorian(int month, int day, int year) {
    return year * 10000 + month * 100 + day >= 17520914;
}

// The count on 1 January of the year 1.
constexpr std::int64_t kFirstDay = 1721424;

std::int64_t DayCount(int month, int day, int year) {
    return JulianDayCount(month, day, year, IsGregorian(month, day, year)) - kFirstDay;
}

// By the difference between the firsts of two months in the count of the year's calendar: that of
// 1752 is the Julian one.
int LengthOfMonth(int month, int year) {
    const bool gregorian = year > 1752;
    const int nextMonth = month == 12 ? 1 : month + 1;
    const int nextYear = month == 12 ? year + 1 : year;
    return static_cast<int>(JulianDayCount(nextMonth, 1, nextYear, gregorian) -
                            JulianDayCount(month, 1, year, gregorian));
}

std::uint16_t U16(int value) {
    return static_cast<std::uint16_t>(value);
}

std::uint32_t NumberOf(int month, int day, int year) {
    return DayNumber(U16(month), U16(day), U16(year));
}

int WeekdayOf(int month, int day, int year) {
    std::uint16_t weekday = 77;
    DayNumber(U16(month), U16(day), U16(year), nullptr, &weekday);
    return weekday;
}

TEST(DateDayNumber, HasItsReferenceValues) {
    EXPECT_EQ(NumberOf(1, 1, 1), 0u);
    EXPECT_EQ(WeekdayOf(1, 1, 1), 6);
    EXPECT_EQ(NumberOf(9, 2, 1752), 639797u);
    EXPECT_EQ(WeekdayOf(9, 2, 1752), 3);
    EXPECT_EQ(NumberOf(9, 14, 1752), 639798u);
    EXPECT_EQ(WeekdayOf(9, 14, 1752), 4);
    EXPECT_EQ(NumberOf(1, 1, 1900), 693597u);
    EXPECT_EQ(WeekdayOf(1, 1, 1900), 1);
    EXPECT_EQ(NumberOf(1, 1, 2000), 730121u);
    EXPECT_EQ(WeekdayOf(1, 1, 2000), 6);
}

// One step for each day that exists, none for any other.
TEST(DateDayNumber, CountsEveryDayOfTheCalendar) {
    std::uint32_t number = 0;
    unsigned weekday = 6;
    for (int year = 1; year <= 9999; ++year) {
        for (int month = 1; month <= 12; ++month) {
            const int length = LengthOfMonth(month, year);
            for (int day = 1; day <= length; ++day) {
                if (year == 1752 && month == 9 && day == 3) {
                    day = 14;
                }
                MonthLengths lengths{};
                std::uint16_t reported = 77;
                const std::uint32_t counted =
                    DayNumber(U16(month), U16(day), U16(year), &lengths, &reported);
                if (counted != number || counted != DayCount(month, day, year) ||
                    reported != weekday || lengths[static_cast<unsigned>(month) - 1] != length ||
                    !IsValidDate({U16(month), U16(day), U16(year)})) {
                    FAIL() << month << "/" << day << "/" << year << ": " << counted << ", weekday "
                           << reported << "; expected " << number << ", " << weekday;
                }
                ++number;
                weekday = (weekday + 1) % 7;
            }
            ASSERT_FALSE(IsValidDate({U16(month), 0, U16(year)}));
            ASSERT_FALSE(IsValidDate({U16(month), U16(length + 1), U16(year)}));
        }
    }
    // 31 December 9999 is day 5373484 of the astronomers.
    EXPECT_EQ(number - 1, 5373484u - 1721424u);
}

TEST(DateDayNumber, LeavesWhatIsNotAskedFor) {
    MonthLengths lengths{};
    std::uint16_t weekday = 77;
    EXPECT_EQ(DayNumber(3, 1, 2000, &lengths, nullptr), 730181u); // 60 days after 1 January
    EXPECT_EQ(lengths, (MonthLengths{31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}));
    EXPECT_EQ(DayNumber(3, 1, 2000, nullptr, &weekday), 730181u);
    EXPECT_EQ(weekday, 3) << "a Wednesday";
    EXPECT_EQ(DayNumber(3, 1, 2000), 730181u);
}

TEST(DateDayNumber, OfYearNullIsCountedBackwards) {
    // 366 days, and its last one shares its number with the first of year 1.
    EXPECT_EQ(static_cast<std::int32_t>(NumberOf(1, 1, 0)), -365);
    EXPECT_EQ(WeekdayOf(1, 1, 0), 5) << "-365 is 53 weeks less 6 days before a Saturday";
    EXPECT_EQ(static_cast<std::int32_t>(NumberOf(12, 30, 0)), -1);
    EXPECT_EQ(WeekdayOf(12, 30, 0), 5) << "the day before a Saturday";
    EXPECT_EQ(NumberOf(12, 31, 0), 0u);
    EXPECT_EQ(WeekdayOf(12, 31, 0), 6);
    EXPECT_EQ(MonthLength(2, 0), 29);
}

TEST(DateDayNumber, OfYearNullHasNoNegativeWeekday) {
    std::int32_t number = -365;
    int weekday = 5;
    for (int month = 1; month <= 12; ++month) {
        for (int day = 1; day <= MonthLength(U16(month), 0); ++day) {
            ASSERT_EQ(static_cast<std::int32_t>(NumberOf(month, day, 0)), number);
            ASSERT_EQ(WeekdayOf(month, day, 0), weekday);
            ++number;
            weekday = (weekday + 1) % 7;
        }
    }
    EXPECT_EQ(number, 1);
}

TEST(DateDayNumber, ContinuesTheJulianCountOverSkippedDays) {
    for (int day = 3; day <= 13; ++day) {
        EXPECT_EQ(NumberOf(9, day, 1752), 639795u + static_cast<unsigned>(day));
    }
}

TEST(DateDayNumber, TakesAnyNumbers) {
    EXPECT_EQ(NumberOf(0, 0, 0), 0u - 366u) << "no month and the day before the first";
    EXPECT_EQ(WeekdayOf(0, 0, 0), 4);
    EXPECT_EQ(NumberOf(0, 1, 2000), NumberOf(1, 1, 2000)) << "no month before it";
    EXPECT_EQ(NumberOf(13, 1, 1999), 730121u) << "all twelve months";
    EXPECT_EQ(NumberOf(65535, 1, 1999), 730121u) << "there are no more";
    EXPECT_EQ(NumberOf(1, 65535, 2000), 730121u + 65534u);
    // 365 x 65534 + 16383 - 655 + 163 + 13 - 11, then a leap-year-free year's 365 and 65534.
    EXPECT_EQ(NumberOf(65535, 65535, 65535), 23919910u + 15893u + 365u + 65534u);
}

TEST(DateLeapYear, IsEveryFourthUpTo1752) {
    for (const int year : {0, 4, 100, 400, 1500, 1700, 1748, 1752}) {
        EXPECT_TRUE(IsLeapYear(U16(year))) << year;
    }
    for (const int year : {1, 2, 3, 1699, 1701, 1702, 1750, 1751}) {
        EXPECT_FALSE(IsLeapYear(U16(year))) << year;
    }
}

TEST(DateLeapYear, SparesCenturiesFrom1753) {
    for (const int year : {1756, 1996, 2000, 2004, 2400, 9996}) {
        EXPECT_TRUE(IsLeapYear(U16(year))) << year;
    }
    for (const int year : {1753, 1754, 1755, 1800, 1900, 2001, 2100, 9900, 9999}) {
        EXPECT_FALSE(IsLeapYear(U16(year))) << year;
    }
}

TEST(DateMonthLength, IsThatOfTheYear) {
    EXPECT_EQ(MonthLengthsOf(1999), (MonthLengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}));
    EXPECT_EQ(MonthLength(2, 1700), 29);
    EXPECT_EQ(MonthLength(2, 1800), 28);
    EXPECT_EQ(MonthLength(2, 1900), 28);
    EXPECT_EQ(MonthLength(2, 2000), 29);
    EXPECT_EQ(MonthLength(9, 1752), 30) << "its last day is the 30th";
    EXPECT_EQ(MonthLength(1, 1999), 31);
    EXPECT_EQ(MonthLength(12, 1999), 31);
}

TEST(DateMonthLength, IsNullWithoutSuchAMonth) {
    EXPECT_EQ(MonthLength(0, 1999), 0);
    EXPECT_EQ(MonthLength(13, 1999), 0);
    EXPECT_EQ(MonthLength(65535, 1999), 0);
}

TEST(DateLimitDay, CutsToTheMonth) {
    const struct {
        Date date;
        int day;
    } cases[] = {{{4, 31, 1999}, 30}, {{2, 29, 2001}, 28},    {{2, 29, 2000}, 29},
                 {{2, 29, 1700}, 29}, {{2, 65535, 1800}, 28}, {{12, 31, 0}, 31},
                 {{9, 5, 1752}, 5},   {{1, 0, 1999}, 0},      {{0, 99, 1999}, 99},
                 {{13, 99, 1999}, 99}};
    for (const auto& [date, day] : cases) {
        Date limited = date;
        LimitDay(limited);
        EXPECT_EQ(limited, (Date{date.month, U16(day), date.year}))
            << date.month << "/" << date.day << "/" << date.year;
    }
}

TEST(DateValidity, EndsWithTheYearsAndMonths) {
    EXPECT_TRUE(IsValidDate({1, 1, 0}));
    EXPECT_TRUE(IsValidDate({2, 29, 0}));
    EXPECT_TRUE(IsValidDate({12, 31, 9999}));
    EXPECT_FALSE(IsValidDate({1, 1, 10000}));
    EXPECT_FALSE(IsValidDate({0, 1, 2000}));
    EXPECT_FALSE(IsValidDate({13, 1, 2000}));
    EXPECT_FALSE(IsValidDate({0, 0, 0}));
}

TEST(DateValidity, LacksTheDaysOfTheCalendarChange) {
    for (int day = 1; day <= 30; ++day) {
        const bool skipped = day >= 3 && day <= 13;
        EXPECT_EQ(IsSkippedDay({9, U16(day), 1752}), skipped) << day;
        EXPECT_EQ(IsValidDate({9, U16(day), 1752}), !skipped) << day;
        EXPECT_FALSE(IsSkippedDay({8, U16(day), 1752}));
        EXPECT_FALSE(IsSkippedDay({10, U16(day), 1752}));
        EXPECT_FALSE(IsSkippedDay({9, U16(day), 1751}));
        EXPECT_FALSE(IsSkippedDay({9, U16(day), 1753}));
    }
}

TEST(DateSerial, StartsWith1900) {
    EXPECT_EQ(SerialDate({1, 1, 1900}), 0);
    EXPECT_EQ(SerialDate({1, 1, 2000}), 36524);
    EXPECT_EQ(SerialDate({12, 31, 1899}), -1);
    EXPECT_EQ(SerialDate({9, 14, 1752}), -53799); // 639798 - 693597
    EXPECT_EQ(SerialDate({1, 1, 1}), -693597);
    EXPECT_EQ(SerialDate({1, 1, 0}), -693962);
}

TEST(DateOfYear, CountsFromItsFirstDay) {
    EXPECT_EQ(DayOfYear({1, 1, 1999}), 0);
    EXPECT_EQ(DayOfYear({12, 31, 1999}), 364);
    EXPECT_EQ(DayOfYear({12, 31, 2000}), 365);
    EXPECT_EQ(DayOfYear({9, 2, 1752}), 245);
    EXPECT_EQ(DayOfYear({9, 14, 1752}), 246);
    EXPECT_EQ(DayOfYear({12, 31, 1752}), 354);
    EXPECT_EQ(DayOfYear({12, 31, 0}), 365);
}

} // namespace
} // namespace vorn::date
