// Fields that are set and typed.
#include "date/date_format.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace vorn::date {
namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

HeldDate Held(Date value, const char* picture) {
    HeldDate date;
    date.value = value;
    ReadShortDateLayout(picture, '/', date.layout);
    return date;
}

Date AfterSetting(std::int32_t value, std::int32_t kind, Date before, const char* picture) {
    HeldDate date = Held(before, picture);
    EXPECT_EQ(SetDateField(value, kind, date), 1);
    return date.value;
}

constexpr Date kSome = {4, 20, 1998};
constexpr char kShort[] = "M/d/yy";
constexpr char kLong[] = "M/d/yyyy";

TEST(DateField, DayIsClampedWhateverTheMonth) {
    const struct {
        std::int32_t value;
        int day;
    } cases[] = {{kMin, 1}, {-1, 1}, {0, 1}, {1, 1}, {30, 30}, {31, 31}, {32, 31}, {kMax, 31}};
    for (const auto& [value, day] : cases) {
        EXPECT_EQ(AfterSetting(value, kDay, kSome, kShort),
                  (Date{4, static_cast<std::uint16_t>(day), 1998}))
            << value;
    }
}

TEST(DateField, DayAvoidsTheCalendarChange) {
    for (std::int32_t value = -1; value <= 33; ++value) {
        const int clamped = std::clamp(value, 1, 31);
        const int day = clamped >= 3 && clamped <= 13 ? 14 : clamped;
        EXPECT_EQ(AfterSetting(value, kDay, {9, 1, 1752}, kLong).day, day) << value;
        EXPECT_EQ(AfterSetting(value, kDay, {8, 1, 1752}, kLong).day, clamped) << value;
        EXPECT_EQ(AfterSetting(value, kDay, {9, 1, 1753}, kLong).day, clamped) << value;
    }
}

TEST(DateField, MonthIsClamped) {
    const struct {
        std::int32_t value;
        int month;
    } cases[] = {{kMin, 1}, {-1, 1}, {0, 1}, {1, 1}, {12, 12}, {13, 12}, {kMax, 12}};
    for (const auto& [value, month] : cases) {
        EXPECT_EQ(AfterSetting(value, kMonth, {3, 31, 1998}, kShort),
                  (Date{static_cast<std::uint16_t>(month), 31, 1998}))
            << value;
    }
}

TEST(DateField, MonthDoesNotMoveTheDay) {
    EXPECT_EQ(AfterSetting(9, kMonth, {8, 5, 1752}, kLong), (Date{9, 5, 1752}));
    EXPECT_EQ(AfterSetting(2, kMonth, {1, 31, 1999}, kLong), (Date{2, 31, 1999}));
}

TEST(DateField, LongYearIsClamped) {
    const struct {
        std::int32_t value;
        int year;
    } cases[] = {{kMin, 0}, {-1, 0}, {0, 0}, {7, 7}, {9999, 9999}, {10000, 9999}, {kMax, 9999}};
    for (const auto& [value, year] : cases) {
        EXPECT_EQ(AfterSetting(value, kYear, kSome, kLong),
                  (Date{4, 20, static_cast<std::uint16_t>(year)}))
            << value;
    }
}

TEST(DateField, ShortYearKeepsItsCentury) {
    const struct {
        int before;
        std::int32_t value;
        int year;
    } cases[] = {{1998, 7, 1907},    {1999, 7, 1907},   {2031, 7, 2007},
                 {1998, 99, 1999},   {1998, 0, 1900},   {1998, -5, 1900},
                 {45, 7, 7},         {0, 99, 99},       {9999, 0, 9900},
                 {1998, 2007, 3907}, {1998, 100, 2000}, {1998, 10000, 11899}}; // 9999 and 1900
    for (const auto& [before, value, year] : cases) {
        EXPECT_EQ(AfterSetting(value, kYear, {4, 20, static_cast<std::uint16_t>(before)}, kShort),
                  (Date{4, 20, static_cast<std::uint16_t>(year)}))
            << before << ", " << value;
    }
}

TEST(DateField, ShortYearIsANumberOf16Bits) {
    // 65500 + 99 - 65536
    EXPECT_EQ(AfterSetting(99, kYear, {4, 20, 65535}, kShort).year, 63);
}

TEST(DateField, OfNoKindChangesNothing) {
    for (const std::int32_t kind : {kMin, -1, 0, 4, kMax}) {
        EXPECT_EQ(AfterSetting(7, kind, kSome, kShort), kSome) << kind;
    }
}

// Reads from the heap, so that the sanitizer sees any byte beyond the text.
Date AfterTyping(const std::string& text, Date before, const char* picture) {
    const std::vector<char> exact(text.c_str(), text.c_str() + text.size() + 1);
    HeldDate date = Held(before, picture);
    ParseTypedDate(date, exact.data());
    return date.value;
}

TEST(DateTyping, SetsTheFieldsOfTheLayout) {
    EXPECT_EQ(AfterTyping("3/5/07", kSome, kShort), (Date{3, 5, 1907}));
    EXPECT_EQ(AfterTyping("3/5/07", {4, 20, 2001}, kShort), (Date{3, 5, 2007}));
    EXPECT_EQ(AfterTyping("12/25/2007", kSome, kLong), (Date{12, 25, 2007}));
    EXPECT_EQ(AfterTyping("25/12/2007", kSome, "d/M/yyyy"), (Date{12, 25, 2007}));
    EXPECT_EQ(AfterTyping("2007/12/25", kSome, "yyyy/M/d"), (Date{12, 25, 2007}));
    EXPECT_EQ(AfterTyping("12/2007/25", kSome, "M/yyyy/d"), (Date{12, 25, 2007}));
}

TEST(DateTyping, SkipsSpacesAmongTheDigits) {
    EXPECT_EQ(AfterTyping(" 1 2 / 2 5 /  2007 ", kSome, kLong), (Date{12, 25, 2007}));
    EXPECT_EQ(AfterTyping("3 /5 /7", kSome, kShort), (Date{3, 5, 1907}));
}

TEST(DateTyping, EndsANumberAtAnyOtherCharacter) {
    EXPECT_EQ(AfterTyping("12.25-2007", kSome, kLong), (Date{12, 25, 2007}));
    EXPECT_EQ(AfterTyping("12x25\t2007", kSome, kLong), (Date{12, 25, 2007}));
    EXPECT_EQ(AfterTyping("-3/5", kSome, kLong), (Date{1, 3, 5})) << "no digits, 3, 5";
}

TEST(DateTyping, ReadsTheThirdNumberWithBlanksAndSign) {
    EXPECT_EQ(AfterTyping("3/5/ \t\n\v\f\r2007", kSome, kLong).year, 2007);
    EXPECT_EQ(AfterTyping("3/5/+2007", kSome, kLong).year, 2007);
    EXPECT_EQ(AfterTyping("3/5/-7", kSome, kLong).year, 0) << "clamped";
    EXPECT_EQ(AfterTyping("3/5/- 7", kSome, kLong).year, 0);
    EXPECT_EQ(AfterTyping("3/5/+-7", kSome, kLong).year, 0) << "one sign";
    EXPECT_EQ(AfterTyping("3/5/20 07", kSome, kLong).year, 20) << "to the first non-digit";
    EXPECT_EQ(AfterTyping("3/5/2007/9", kSome, kLong).year, 2007);
}

TEST(DateTyping, ReadsMissingNumbersAsNull) {
    const Date clamped = {1, 1, 0};
    for (const char* text : {"", "/", "//", "   ", "x", "//x", "a/b/c"}) {
        EXPECT_EQ(AfterTyping(text, kSome, kLong), clamped) << text;
    }
    EXPECT_EQ(AfterTyping("5", kSome, kLong), (Date{5, 1, 0}));
    EXPECT_EQ(AfterTyping("5/6", kSome, kLong), (Date{5, 6, 0}));
    EXPECT_EQ(AfterTyping("5/6/", kSome, kShort), (Date{5, 6, 1900}));
}

TEST(DateTyping, ClampsNumbersOfAnyLength) {
    const std::string huge(5000, '9');
    EXPECT_EQ(AfterTyping(huge + "/" + huge + "/" + huge, kSome, kLong), (Date{12, 31, 9999}));
    EXPECT_EQ(AfterTyping("1/1/-" + huge, kSome, kLong), (Date{1, 1, 0}));
    // 2^32 + 1 is not 1.
    EXPECT_EQ(AfterTyping("4294967297/1/4294967297", kSome, kLong), (Date{12, 1, 9999}));
    EXPECT_EQ(AfterTyping(std::string(5000, '0') + "3/5/2007", kSome, kLong), (Date{3, 5, 2007}));
}

TEST(DateTyping, LimitsTheDayToTheMonth) {
    EXPECT_EQ(AfterTyping("4/31/1999", kSome, kLong), (Date{4, 30, 1999}));
    EXPECT_EQ(AfterTyping("2/29/2001", kSome, kLong), (Date{2, 28, 2001}));
    EXPECT_EQ(AfterTyping("2/29/2000", kSome, kLong), (Date{2, 29, 2000}));
    EXPECT_EQ(AfterTyping("2/29/1700", kSome, kLong), (Date{2, 29, 1700}));
    EXPECT_EQ(AfterTyping("2/30/1900", kSome, kLong), (Date{2, 28, 1900}));
    EXPECT_EQ(AfterTyping("31/4/99", kSome, "d/M/yy"), (Date{4, 30, 1999}));
    EXPECT_EQ(AfterTyping("99/2/31", kSome, "yy/M/d"), (Date{2, 28, 1999}));
}

TEST(DateTyping, KeepsTheCenturyInTwoDigitMode) {
    EXPECT_EQ(AfterTyping("12/31/7", {12, 31, 1999}, kShort), (Date{12, 31, 1907}));
    EXPECT_EQ(AfterTyping("2/29/0", {2, 28, 1999}, kShort), (Date{2, 28, 1900}))
        << "limited by the year with its century";
    EXPECT_EQ(AfterTyping("2/29/0", {2, 28, 2099}, kShort), (Date{2, 29, 2000}));
}

// The day sees the month and the year that hold when its turn comes.
TEST(DateTyping, FollowsTheOrderOfThePositions) {
    EXPECT_EQ(AfterTyping("9/5/1752", {9, 1, 1752}, kLong), (Date{9, 14, 1752}));
    EXPECT_EQ(AfterTyping("9/5/1752", {1, 1, 1752}, kLong), (Date{9, 14, 1752}))
        << "the month is new";
    EXPECT_EQ(AfterTyping("9/5/1752", {9, 1, 1751}, kLong), (Date{9, 5, 1752}))
        << "the year is still old";
    EXPECT_EQ(AfterTyping("9/5/1751", {9, 1, 1752}, kLong), (Date{9, 14, 1751}));
    EXPECT_EQ(AfterTyping("1752/9/5", {1, 1, 1999}, "yyyy/M/d"), (Date{9, 14, 1752}));
    EXPECT_EQ(AfterTyping("5/9/1752", {1, 1, 1752}, "d/M/yyyy"), (Date{9, 5, 1752}))
        << "the month is still old";
    EXPECT_EQ(AfterTyping("5/1/1752", {9, 1, 1752}, "d/M/yyyy"), (Date{1, 14, 1752}));
}

TEST(DateTyping, PassesPositionsOfNoKind) {
    HeldDate date = Held(kSome, kLong);
    date.layout.kinds[1] = 0;
    ParseTypedDate(date, "3/5/2007");
    EXPECT_EQ(date.value, (Date{3, 20, 2007}));
    date.layout.kinds[0] = 9;
    date.layout.kinds[2] = -1;
    ParseTypedDate(date, "1/1/1");
    EXPECT_EQ(date.value, (Date{3, 20, 2007}));
}

TEST(DateTyping, LeavesAMonthThatIsNone) {
    HeldDate date = Held({0, 99, 1998}, kLong);
    date.layout.kinds[0] = date.layout.kinds[1] = 0;
    ParseTypedDate(date, "//2007");
    EXPECT_EQ(date.value, (Date{0, 99, 2007})) << "no length to limit the day to";
}

TEST(DateTyping, LeavesTheNullFlag) {
    HeldDate date = Held(kSome, kLong);
    date.null = 1;
    ParseTypedDate(date, "3/5/2007");
    EXPECT_EQ(date.null, 1);
    EXPECT_EQ(date.value, (Date{3, 5, 2007}));
}

// Every kind or none at every position, every flag, both focus states and every typed zero.
constexpr int kFormCount = 64 * 8 * 2 * 8;

void SetForm(HeldDate& date, int form) {
    date.layout.kinds[0] = form % 4;
    date.layout.kinds[1] = form / 4 % 4;
    date.layout.kinds[2] = form / 16 % 4;
    const int flags = form / 64;
    date.layout.monthLeadingZero = flags & 1;
    date.layout.dayLeadingZero = flags & 2;
    date.layout.fourDigitYear = flags & 4;
    date.focused = flags & 8;
    date.typedZero[0] = flags & 16;
    date.typedZero[1] = flags & 32;
    date.typedZero[2] = flags & 64;
}

constexpr Date kSamples[] = {
    {1, 1, 0},      {2, 29, 0},    {1, 1, 1},     {9, 9, 9},      {10, 10, 10},   {12, 31, 99},
    {2, 29, 1700},  {9, 2, 1752},  {9, 14, 1752}, {10, 5, 1752},  {1, 1, 1900},   {2, 28, 1900},
    {12, 25, 1998}, {2, 29, 2000}, {3, 5, 2007},  {11, 30, 2031}, {12, 31, 9999}, {1, 31, 9900}};

TEST(DateRoundTrip, EditTextReadsBackInEveryForm) {
    for (int form = 0; form < kFormCount; ++form) {
        for (const Date& value : kSamples) {
            HeldDate date;
            date.value = value;
            SetForm(date, form);
            char text[64];
            FormatEditText(text, date);
            ParseTypedDate(date, text);
            ASSERT_EQ(date.value, value) << form << ": " << text;
        }
    }
}

TEST(DateRoundTrip, ValueTextReadsBackInEveryFullForm) {
    for (int form = 0; form < kFormCount; ++form) {
        for (const Date& value : kSamples) {
            HeldDate date;
            date.value = value;
            SetForm(date, form);
            const std::int32_t* kinds = date.layout.kinds;
            if (kinds[0] == 0 || kinds[1] == 0 || kinds[2] == 0) {
                continue; // its separators are missing too
            }
            FormatValueText(date);
            ParseTypedDate(date, date.valueText);
            ASSERT_EQ(date.value, value) << form << ": " << date.valueText;
        }
    }
}

// Onto another date: the fields of the layout arrive, the century stays, whatever was there before.
TEST(DateRoundTrip, CarriesADateOverToAnother) {
    const int orders[6][3] = {{1, 2, 3}, {1, 3, 2}, {2, 1, 3}, {2, 3, 1}, {3, 1, 2}, {3, 2, 1}};
    for (const auto& order : orders) {
        for (int flags = 0; flags < 8; ++flags) {
            for (const Date& value : kSamples) {
                HeldDate source;
                source.value = value;
                source.layout = {
                    flags & 1, flags & 2, flags & 4, {order[0], order[1], order[2]}, '-'};
                FormatValueText(source);
                HeldDate target = source;
                target.value = {6, 6, 2346};
                ParseTypedDate(target, source.valueText);
                Date expected = value;
                if ((flags & 4) == 0) {
                    expected.year = static_cast<std::uint16_t>(2300 + value.year % 100);
                    if (value.month == 2 && value.day == 29 && expected.year % 4 != 0) {
                        expected.day = 28;
                    }
                    if (expected.year == 2300 && value.month == 2 && value.day == 29) {
                        expected.day = 28;
                    }
                }
                ASSERT_EQ(target.value, expected) << source.valueText;
            }
        }
    }
}

} // namespace
} // namespace vorn::date
