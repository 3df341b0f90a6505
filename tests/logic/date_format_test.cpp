// The two texts of a date and where their fields start.
#include "date/date_format.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vorn::date {
namespace {

// A date in the layout of a picture such as "M/d/yy".
HeldDate Held(Date value, const char* picture, char separator) {
    HeldDate date;
    date.value = value;
    ReadShortDateLayout(picture, separator, date.layout);
    return date;
}

std::string ValueText(HeldDate date) {
    std::fill_n(date.valueText, kValueTextSize, 'x');
    FormatValueText(date);
    return date.valueText;
}

std::string EditText(const HeldDate& date) {
    std::vector<char> buffer(64, 'x');
    FormatEditText(buffer, date);
    return buffer.data();
}

constexpr Date kFifthOfMarch = {3, 5, 2007};
constexpr Date kChristmas = {12, 25, 1998};

TEST(DateValueText, FollowsTheLayout) {
    EXPECT_EQ(ValueText(Held(kFifthOfMarch, "M/d/yy", '/')), "3/5/07");
    EXPECT_EQ(ValueText(Held(kFifthOfMarch, "dd.MM.yyyy", '.')), "05.03.2007");
    EXPECT_EQ(ValueText(Held(kFifthOfMarch, "MM-d-yyy", '-')), "03-5-2007");
    EXPECT_EQ(ValueText(Held(kFifthOfMarch, "yy/M/dd", '/')), "07/3/05");
    EXPECT_EQ(ValueText(Held(kChristmas, "M/d/yy", '/')), "12/25/98");
    EXPECT_EQ(ValueText(Held(kChristmas, "yyyy-MM-dd", '-')), "1998-12-25");
}

TEST(DateValueText, PadsTheYear) {
    EXPECT_EQ(ValueText(Held({1, 1, 7}, "d/M/yyyy", '/')), "1/1/0007");
    EXPECT_EQ(ValueText(Held({1, 1, 0}, "d/M/yyyy", '/')), "1/1/0000");
    EXPECT_EQ(ValueText(Held({1, 1, 0}, "d/M/yy", '/')), "1/1/00");
    EXPECT_EQ(ValueText(Held({1, 1, 1900}, "d/M/yy", '/')), "1/1/00");
}

TEST(DateValueText, OfANullDateIsEmpty) {
    HeldDate date = Held(kFifthOfMarch, "M/d/yy", '/');
    FormatValueText(date);
    date.null = -1; // any non-zero
    FormatValueText(date);
    EXPECT_STREQ(date.valueText, "");
    EXPECT_EQ(date.value, kFifthOfMarch);
}

TEST(DateValueText, DoesNotDependOnTheFocus) {
    HeldDate date = Held(kFifthOfMarch, "M/d/yy", '/');
    date.focused = 1;
    date.typedZero[0] = 1;
    EXPECT_EQ(ValueText(date), "3/5/07");
}

TEST(DateValueText, LacksPositionsOfNoKind) {
    HeldDate date = Held(kFifthOfMarch, "M/d/yy", '/');
    date.layout.kinds[1] = 0;
    EXPECT_EQ(ValueText(date), "3/07");
    date.layout.kinds[2] = 4;
    EXPECT_EQ(ValueText(date), "3/");
    date.layout.kinds[0] = -1;
    EXPECT_EQ(ValueText(date), "");
    date.layout.kinds[2] = kYear;
    EXPECT_EQ(ValueText(date), "07");
}

TEST(DateTexts, WriteNumbersThatAreNoDate) {
    HeldDate date = Held({65535, 65535, 65535}, "M/d/yyyy", '/');
    EXPECT_EQ(ValueText(date), "65535/65535/65535");
    EXPECT_EQ(EditText(date), "65535/65535/65535");
    EXPECT_EQ(EditText(date).size(), kLongestEditText);
    EXPECT_EQ(ValueText(Held({2, 31, 1995}, "M/d/yy", '/')), "2/31/95");
    EXPECT_EQ(ValueText(Held({0, 0, 0}, "M/d/yy", '/')), "0/0/00");
}

TEST(DateTexts, WithoutASeparatorRunTogether) {
    const HeldDate date = Held(kFifthOfMarch, "MM", '\0');
    HeldDate all = date;
    all.layout.kinds[1] = kDay;
    all.layout.kinds[2] = kYear;
    EXPECT_EQ(ValueText(all), "03507");
    EXPECT_EQ(EditText(all), "0357");
}

TEST(DateEditText, WithoutFocusFollowsTheLayout) {
    EXPECT_EQ(EditText(Held(kFifthOfMarch, "M/d/yy", '/')), "3/5/7");
    EXPECT_EQ(EditText(Held(kFifthOfMarch, "dd.MM.yyyy", '.')), "05.03.2007");
    EXPECT_EQ(EditText(Held(kChristmas, "M/d/yy", '/')), "12/25/98");
}

TEST(DateEditText, NeverPadsTheYear) {
    EXPECT_EQ(EditText(Held({1, 1, 7}, "d/M/yyyy", '/')), "1/1/7");
    EXPECT_EQ(EditText(Held({1, 1, 0}, "d/M/yyyy", '/')), "1/1/0");
    EXPECT_EQ(EditText(Held({1, 1, 1900}, "d/M/yy", '/')), "1/1/0");
    EXPECT_EQ(EditText(Held({1, 1, 710}, "yy/M/d", '/')), "10/1/1");
}

TEST(DateEditText, WithFocusHasRoomForTwoDigits) {
    HeldDate date = Held(kFifthOfMarch, "M/d/yy", '/');
    date.focused = 1;
    EXPECT_EQ(EditText(date), "3 /5 /7");
    date.layout.monthLeadingZero = 1; // counts only without the focus
    EXPECT_EQ(EditText(date), "3 /5 /7");
    date.typedZero[1] = 1;
    EXPECT_EQ(EditText(date), "3 /05/7");
    date.typedZero[0] = -1;
    EXPECT_EQ(EditText(date), "03/05/7");
    date.typedZero[2] = 1; // years are never padded
    EXPECT_EQ(EditText(date), "03/05/7");
    date.value = kChristmas;
    EXPECT_EQ(EditText(date), "12/25/98");
}

TEST(DateEditText, WithoutFocusForgetsTypedZeros) {
    HeldDate date = Held(kFifthOfMarch, "M/d/yy", '/');
    date.typedZero[0] = date.typedZero[1] = 1;
    EXPECT_EQ(EditText(date), "3/5/7");
}

TEST(DateEditText, EndsWithASpaceWhenTheLastFieldIsShort) {
    HeldDate date = Held(kFifthOfMarch, "yyyy-MM-dd", '-');
    date.focused = 1;
    EXPECT_EQ(EditText(date), "2007-3 -5 ");
}

TEST(DateEditText, OfANullDateIsEmpty) {
    HeldDate date = Held(kFifthOfMarch, "M/d/yy", '/');
    date.null = 1;
    EXPECT_EQ(EditText(date), "");
    date.focused = 1;
    EXPECT_EQ(EditText(date), "");
}

TEST(DateEditText, KeepsTheSeparatorsOfPositionsOfNoKind) {
    HeldDate date = Held(kFifthOfMarch, "M/d/yy", '/');
    date.layout.kinds[1] = 0;
    EXPECT_EQ(EditText(date), "3//7");
    date.layout.kinds[0] = 9;
    date.layout.kinds[2] = 0;
    EXPECT_EQ(EditText(date), "//");
}

TEST(DateEditText, IsCutToTheBuffer) {
    const HeldDate date = Held(kChristmas, "MM/dd/yyyy", '/');
    const std::string whole = "12/25/1998";
    for (std::size_t size = 1; size < 14; ++size) {
        std::vector<char> buffer(size, 'x'); // on the heap: the sanitizer sees any byte beyond it
        FormatEditText(buffer, date);
        EXPECT_EQ(std::string(buffer.data()), whole.substr(0, size - 1)) << size;
    }
    FormatEditText({}, date);
}

// The edit text once more, by way of the C library's pictures.
std::string PrintedEditText(const HeldDate& date) {
    std::string text;
    for (std::size_t position = 0; position < 3; ++position) {
        const Layout& layout = date.layout;
        const int kind = layout.kinds[position];
        int number = kind == 1 ? date.value.day : date.value.month;
        const char* picture = nullptr;
        if (kind == 3) {
            picture = "%i";
            number = layout.fourDigitYear != 0 ? date.value.year : date.value.year % 100;
        } else if (date.focused == 0) {
            const bool zero = (kind == 1 ? layout.dayLeadingZero : layout.monthLeadingZero) != 0;
            picture = zero ? "%02i" : "%i";
        } else if (number >= 10) {
            picture = "%2i";
        } else {
            picture = date.typedZero[position] != 0 ? "%02i" : "%i ";
        }
        char piece[16];
        std::snprintf(piece, sizeof piece, picture, number);
        text += piece;
        text += position < 2 ? std::string(1, layout.separator) : "";
    }
    return text;
}

std::string PrintedValueText(const HeldDate& date) {
    std::string text;
    for (std::size_t position = 0; position < 3; ++position) {
        const Layout& layout = date.layout;
        char piece[16];
        if (layout.kinds[position] == 3) {
            const int year = date.value.year;
            std::snprintf(piece, sizeof piece, layout.fourDigitYear != 0 ? "%04i" : "%02i",
                          layout.fourDigitYear != 0 ? year : year - year / 100 * 100);
        } else if (layout.kinds[position] == 1) {
            std::snprintf(piece, sizeof piece, layout.dayLeadingZero != 0 ? "%02i" : "%i",
                          date.value.day);
        } else {
            std::snprintf(piece, sizeof piece, layout.monthLeadingZero != 0 ? "%02i" : "%i",
                          date.value.month);
        }
        text += piece;
        text += position < 2 ? std::string(1, layout.separator) : "";
    }
    return text;
}

constexpr int kFormCount = 6 * 8 * 2 * 8;

// Every order of the fields, the three flags, the focus and the typed zeros, by number.
void SetForm(HeldDate& date, int form) {
    const int orders[6][3] = {{1, 2, 3}, {1, 3, 2}, {2, 1, 3}, {2, 3, 1}, {3, 1, 2}, {3, 2, 1}};
    std::copy_n(orders[form % 6], 3, date.layout.kinds);
    const int flags = form / 6;
    date.layout.monthLeadingZero = flags & 1;
    date.layout.dayLeadingZero = flags & 2;
    date.layout.fourDigitYear = flags & 4;
    date.focused = flags & 8;
    date.typedZero[0] = flags & 16;
    date.typedZero[1] = flags & 32;
    date.typedZero[2] = flags & 64;
}

// Dates with numbers of every width, the ends of the calendar and of its gap.
std::vector<Date> Samples() {
    std::vector<Date> samples;
    for (const int year : {0, 7, 10, 45, 99, 100, 999, 1000, 1700, 1752, 1753, 1900, 1998, 2000,
                           2007, 2031, 9900, 9999}) {
        for (const int month : {1, 2, 9, 10, 12}) {
            for (const int day : {1, 2, 9, 10, 14, 28, 29, 30, 31}) {
                const Date date = {static_cast<std::uint16_t>(month),
                                   static_cast<std::uint16_t>(day),
                                   static_cast<std::uint16_t>(year)};
                if (IsValidDate(date)) {
                    samples.push_back(date);
                }
            }
        }
    }
    return samples;
}

TEST(DateTexts, AreThoseOfThePicturesInEveryForm) {
    for (int form = 0; form < kFormCount; ++form) {
        HeldDate date;
        date.layout.separator = '-';
        SetForm(date, form);
        for (const Date& value : Samples()) {
            date.value = value;
            ASSERT_EQ(EditText(date), PrintedEditText(date)) << form;
            ASSERT_EQ(ValueText(date), PrintedValueText(date)) << form;
        }
    }
}

struct Starts {
    std::int32_t second = -7;
    std::int32_t third = -7;
};

Starts StartsOf(const HeldDate& date) {
    Starts starts;
    MeasureFieldStarts(starts.second, starts.third, date);
    return starts;
}

// The starts are behind the separators of the edit text, but for a year in the middle.
TEST(DateFieldStarts, AreInStepWithTheEditTextInEveryForm) {
    for (int form = 0; form < kFormCount; ++form) {
        HeldDate date;
        SetForm(date, form);
        for (const Date& value : Samples()) {
            date.value = value;
            const std::string text = EditText(date);
            const int second = static_cast<int>(text.find('/')) + 1;
            const int third = static_cast<int>(text.rfind('/')) + 1;
            const bool yearInTheMiddle = date.layout.kinds[1] == 3;
            const Starts starts = StartsOf(date);
            ASSERT_EQ(starts.second, yearInTheMiddle ? third : second) << text;
            ASSERT_EQ(starts.third, yearInTheMiddle ? -7 : third) << text;
        }
    }
}

TEST(DateFieldStarts, FollowTheFocusAndTheZeros) {
    HeldDate date = Held(kFifthOfMarch, "M/d/yy", '/');
    EXPECT_EQ(StartsOf(date).second, 2); // 3/5/7
    EXPECT_EQ(StartsOf(date).third, 4);
    date.layout.dayLeadingZero = 1; // 3/05/7
    EXPECT_EQ(StartsOf(date).second, 2);
    EXPECT_EQ(StartsOf(date).third, 5);
    date.focused = 1; // 3 /5 /7
    EXPECT_EQ(StartsOf(date).second, 3);
    EXPECT_EQ(StartsOf(date).third, 6);
}

TEST(DateFieldStarts, FollowTheDigitsOfTheYear) {
    const struct {
        int year;
        const char* picture;
        int second;
    } cases[] = {{0, "yyyy/M/d", 2},    {9, "yyyy/M/d", 2},    {10, "yyyy/M/d", 3},
                 {99, "yyyy/M/d", 3},   {100, "yyyy/M/d", 4},  {999, "yyyy/M/d", 4},
                 {1000, "yyyy/M/d", 5}, {9999, "yyyy/M/d", 5}, {1909, "yy/M/d", 2},
                 {1910, "yy/M/d", 3}};
    for (const auto& [year, picture, second] : cases) {
        const HeldDate date = Held({3, 5, static_cast<std::uint16_t>(year)}, picture, '/');
        EXPECT_EQ(StartsOf(date).second, second) << year;
        EXPECT_EQ(StartsOf(date).third, second + 2) << year;
    }
}

TEST(DateFieldStarts, PassAYearInTheMiddle) {
    const Starts starts = StartsOf(Held(kFifthOfMarch, "M/yyyy/d", '/'));
    EXPECT_EQ(starts.second, 7) << "3/ and 2007/";
    EXPECT_EQ(starts.third, -7) << "as it was";
}

TEST(DateFieldStarts, AreMeasuredOfANullDateToo) {
    HeldDate date = Held(kFifthOfMarch, "M/d/yy", '/');
    date.null = 1;
    EXPECT_EQ(StartsOf(date).second, 2);
    EXPECT_EQ(StartsOf(date).third, 4);
}

TEST(DateFieldStarts, CountPositionsOfNoKindAsTheirSeparator) {
    HeldDate date = Held(kFifthOfMarch, "M/d/yy", '/');
    date.layout.kinds[0] = 0; // "/5/7"
    EXPECT_EQ(StartsOf(date).second, 1);
    EXPECT_EQ(StartsOf(date).third, 3);
    date.layout.kinds[1] = 4; // "//7"
    EXPECT_EQ(StartsOf(date).third, 2);
}

TEST(DateFieldStarts, CountNoSeparatorThatIsNotThere) {
    HeldDate date = Held(kChristmas, "M/d/yy", '/');
    date.layout.separator = '\0';
    EXPECT_EQ(StartsOf(date).second, 2);
    EXPECT_EQ(StartsOf(date).third, 4);
}

TEST(DateFieldStarts, CountTwoDigitsOfADayAndFourOfAYear) {
    EXPECT_EQ(StartsOf(Held({12, 65535, 1998}, "d/M/yy", '/')).second, 3);
    EXPECT_EQ(StartsOf(Held({12, 25, 65535}, "yyyy/M/d", '/')).second, 5);
}

} // namespace
} // namespace vorn::date
