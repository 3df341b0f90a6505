// Typing digits into a date. With the focus a day or month below 10 is written with a blank behind
// it, and | stands for the caret.
#include "date/date_digits.h"
#include "tests/support/date_editor.h"

#include <string>

namespace vorn::date {
namespace {

constexpr Date kFifthOfMarch = {3, 5, 2007};

Editor Null(const char* picture, char separator = '/') {
    Editor editor({0, 0, 0}, picture, separator);
    editor.MakeNull();
    return editor;
}

// What is shown after these digits were typed with the caret at an index.
std::string After(const char* picture, Date value, std::int32_t caret, const char* digits) {
    Editor editor(value, picture);
    editor.PutCaretAt(caret);
    editor.Type(digits);
    EXPECT_EQ(editor.Field(), FieldAt(FieldMapOf(editor.entry.date), editor.entry.caret.index));
    return editor.Shown();
}

// A null date: this year's first day, but for the first field.

TEST(DateDigitsOfNull, ADigitThatNeedsNoSecondCompletesTheField) {
    Editor editor = Null("M/d/yy");
    editor.Type("7");
    EXPECT_EQ(editor.Value(), (Date{7, 1, 2026}));
    EXPECT_EQ(editor.Shown(), "7 /|1 /26");
    EXPECT_EQ(editor.Field(), 1);
    EXPECT_EQ(editor.entry.date.null, 0);
    EXPECT_EQ(editor.entry.modified, 1);
    EXPECT_EQ(editor.ValueText(), "7/1/26");
}

TEST(DateDigitsOfNull, AMonthGoesOnAfterAOne) {
    for (const char digit : {'0', '1', '2', '9'}) {
        Editor editor = Null("M/d/yyyy");
        editor.Type(std::string(1, digit).c_str());
        EXPECT_EQ(editor.entry.caret.index, digit > '1' ? 3 : 1) << digit;
        EXPECT_EQ(editor.Field(), digit > '1' ? 1 : 0);
        EXPECT_EQ(editor.Value().month, digit == '0' ? 1 : digit - '0');
        EXPECT_EQ(editor.Value().day, 1);
        EXPECT_EQ(editor.Value().year, 2026);
    }
}

TEST(DateDigitsOfNull, ADayGoesOnAfterAThree) {
    for (const char digit : {'0', '1', '3', '4', '9'}) {
        Editor editor = Null("d/M/yyyy");
        editor.Type(std::string(1, digit).c_str());
        EXPECT_EQ(editor.entry.caret.index, digit > '3' ? 3 : 1) << digit;
        EXPECT_EQ(editor.Value(),
                  (Date{1, static_cast<std::uint16_t>(digit == '0' ? 1 : digit - '0'), 2026}));
    }
    Editor editor = Null("d/M/yyyy");
    editor.Type("31");
    EXPECT_EQ(editor.Shown(), "31/|1 /2026");
}

TEST(DateDigitsOfNull, AYearBeginsWithTheDigit) {
    Editor editor = Null("yyyy-MM-dd", '-');
    editor.Type("2");
    EXPECT_EQ(editor.Value(), (Date{1, 1, 2}));
    EXPECT_EQ(editor.Shown(), "2|-1 -1 ");
    editor.Type("031");
    EXPECT_EQ(editor.Shown(), "2031-|1 -1 ");
    editor = Null("yy-M-d", '-');
    editor.Type("9");
    EXPECT_EQ(editor.Value(), (Date{1, 1, 9})) << "there is no century to keep";
}

TEST(DateDigitsOfNull, AZeroIsShown) {
    Editor editor = Null("M/d/yy");
    editor.Type("0");
    EXPECT_EQ(editor.Value(), (Date{1, 1, 2026}));
    EXPECT_EQ(editor.Shown(), "0|1/1 /26");
    editor.Type("7");
    EXPECT_EQ(editor.Value().month, 7);
}

TEST(DateDigitsOfNull, ForgetsZerosOfTheDateBefore) {
    Editor editor = Null("M/d/yy");
    editor.entry.date.typedZero[1] = 1;
    editor.Type("1");
    EXPECT_EQ(editor.Shown(), "1| /1 /26");
}

TEST(DateDigitsOfNull, IsTodaysYearInALayoutThatBeginsWithNoKind) {
    Editor editor = Null("");
    editor.entry.date.layout.kinds[1] = kDay;
    editor.Type("5");
    EXPECT_EQ(editor.Value(), (Date{1, 1, 2026}));
    EXPECT_EQ(editor.Shown(), "/|1 /");
}

// At the start of the text.

TEST(DateDigitsAtStart, ADigitThatCannotBeginComesBehindAZero) {
    EXPECT_EQ(After("M/d/yy", {12, 5, 2007}, 0, "2"), "2 |/5 /7");
    EXPECT_EQ(After("M/d/yy", {12, 5, 2007}, 0, "9"), "9 |/5 /7");
    EXPECT_EQ(After("d/M/yy", {3, 25, 2007}, 0, "4"), "4 |/3 /7");
    EXPECT_EQ(After("d/M/yy", {3, 25, 2007}, 0, "9"), "9 |/3 /7");
}

TEST(DateDigitsAtStart, AnyOtherIsTypedOver) {
    EXPECT_EQ(After("M/d/yy", {2, 5, 2007}, 0, "1"), "1| /5 /7");
    EXPECT_EQ(After("M/d/yy", {11, 5, 2007}, 0, "0"), "0|1/5 /7");
    EXPECT_EQ(After("d/M/yy", {3, 11, 2007}, 0, "3"), "3|1/3 /7");
    EXPECT_EQ(After("d/M/yy", {3, 19, 2007}, 0, "3"), "3|1/3 /7") << "39 is 31";
    EXPECT_EQ(After("d/M/yy", {2, 19, 2007}, 0, "3"), "2|8/2 /7") << "the month's last";
    EXPECT_EQ(After("M/d/yy", {12, 5, 2007}, 0, "0"), "0|2/5 /7");
    EXPECT_EQ(After("M/d/yy", {10, 5, 2007}, 0, "0"), "0|1/5 /7") << "no month 0";
    EXPECT_EQ(After("yyyy/M/d", kFifthOfMarch, 0, "1"), "1|007/3 /5 ");
    EXPECT_EQ(After("yyyy/M/d", kFifthOfMarch, 0, "9"), "9|007/3 /5 ");
    EXPECT_EQ(After("yy/M/d", {3, 5, 1998}, 0, "5"), "5|8/3 /5 ");
}

TEST(DateDigitsAtStart, AYearMayBecomeShorter) {
    EXPECT_EQ(After("yyyy/M/d", kFifthOfMarch, 0, "0"), "7|/3 /5 ");
    EXPECT_EQ(After("yy/M/d", {3, 5, 1998}, 0, "0"), "8|/3 /5 ");
}

TEST(DateDigitsAtStart, TheSecondDigitFillsTheField) {
    EXPECT_EQ(After("M/d/yy", kFifthOfMarch, 0, "12"), "12/|5 /7");
    EXPECT_EQ(After("M/d/yy", kFifthOfMarch, 0, "19"), "12/|5 /7");
    EXPECT_EQ(After("d/M/yy", kFifthOfMarch, 0, "10"), "10/|3 /7");
    EXPECT_EQ(After("M/d/yy", kFifthOfMarch, 0, "07"), "7 |/5 /7") << "7 is not full";
}

// Without the focus the first field may have room for one digit only.
TEST(DateDigitsAtStart, MakesRoomForTheZero) {
    Editor editor(kFifthOfMarch, "M/d/yyyy");
    LeaveFocus(editor.entry);
    editor.PutCaretAt(0);
    ASSERT_EQ(editor.Text(), "3/5/2007");
    editor.Type("8");
    EXPECT_EQ(editor.Value(), (Date{8, 5, 2007}));
    EXPECT_EQ(editor.Shown(), "8/|5/2007");
    EXPECT_EQ(editor.Field(), 1);
}

// On the separator behind a field.

TEST(DateDigitsOnSeparator, GoToAFieldThatIsNotFull) {
    EXPECT_EQ(After("M/d/yy", {1, 5, 2007}, 2, "2"), "12/|5 /7");
    EXPECT_EQ(After("M/d/yy", {1, 5, 2007}, 2, "9"), "12/|5 /7");
    EXPECT_EQ(After("M/d/yy", {1, 1, 2007}, 5, "6"), "1 /16/|7");
    EXPECT_EQ(After("yyyy/M/d", {3, 5, 1}, 1, "998"), "1998/|3 /5 ");
    EXPECT_EQ(After("yy/M/d", {3, 5, 2000}, 1, "7"), "7/|3 /5 ") << "07, both digits typed";
    EXPECT_EQ(After("yy/M/d", {3, 5, 2001}, 1, "7"), "17/|3 /5 ");
}

TEST(DateDigitsOnSeparator, StepOverWhenTheFieldIsFull) {
    EXPECT_EQ(After("M/d/yy", {12, 5, 2007}, 2, "1"), "12/|5 /7");
    EXPECT_EQ(After("M/d/yy", {1, 10, 2007}, 5, "1"), "1 /10/|7");
    EXPECT_EQ(After("yyyy/M/d", kFifthOfMarch, 4, "1"), "2007/|3 /5 ");
    EXPECT_EQ(After("yy/M/d", {3, 5, 1998}, 2, "1"), "98/|3 /5 ");
}

// At the end of the text.

TEST(DateDigitsAtEnd, GoToAYearThatIsNotFull) {
    EXPECT_EQ(After("M/d/yyyy", {3, 5, 1}, 7, "998"), "3 /5 /1998|");
    EXPECT_EQ(After("M/d/yyyy", {3, 5, 20}, 8, "1"), "3 /5 /201|");
    EXPECT_EQ(After("M/d/yyyy", {3, 5, 999}, 9, "5"), "3 /5 /9995|");
    EXPECT_EQ(After("M/d/yy", {3, 5, 2001}, 7, "7"), "3 /5 /17|");
}

TEST(DateDigitsAtEnd, ReplaceTheYear0) {
    EXPECT_EQ(After("M/d/yyyy", {3, 5, 0}, 7, "7"), "3 /5 /7|");
    EXPECT_EQ(After("M/d/yyyy", {3, 5, 0}, 7, "0"), "3 /5 /0|");
    Editor editor({3, 5, 2000}, "M/d/yy");
    editor.PutCaretAt(7);
    editor.Type("79");
    EXPECT_EQ(editor.Shown(), "3 /5 /79|");
    EXPECT_EQ(editor.Value().year, 2079);
}

TEST(DateDigitsAtEnd, ChangeNothingWhenItIsFull) {
    EXPECT_EQ(After("M/d/yyyy", kFifthOfMarch, 10, "1"), "3 /5 /2007|");
    EXPECT_EQ(After("M/d/yy", {3, 5, 1998}, 8, "1"), "3 /5 /98|");
    EXPECT_EQ(After("yy/M/d", {3, 15, 1998}, 8, "1"), "98/3 /15|");
    // The last number ends at its first blank.
    EXPECT_EQ(After("yy/M/d", {3, 5, 1998}, 8, "1"), "98/3 /5 |");
}

// Anywhere else.

TEST(DateDigitsInside, TypeOver) {
    EXPECT_EQ(After("M/d/yy", {3, 25, 2007}, 3, "1"), "3 /1|5/7");
    EXPECT_EQ(After("M/d/yy", {3, 25, 2007}, 4, "1"), "3 /21/|7");
    EXPECT_EQ(After("M/d/yy", {4, 25, 2007}, 3, "3"), "4 /3|0/7") << "35 is 30 in April";
    EXPECT_EQ(After("M/d/yy", kFifthOfMarch, 3, "9"), "3 /9| /7");
    EXPECT_EQ(After("M/d/yyyy", kFifthOfMarch, 6, "1998"), "3 /5 /1998|");
    EXPECT_EQ(After("M/d/yyyy", kFifthOfMarch, 7, "9"), "3 /5 /29|07");
    EXPECT_EQ(After("yyyy/M/d", kFifthOfMarch, 8, "12"), "2007/3 /12|");
    EXPECT_EQ(After("yyyy/M/d", kFifthOfMarch, 3, "8"), "2008/|3 /5 ");
}

TEST(DateDigitsInside, AZeroAtTheStartOfAFieldIsShown) {
    EXPECT_EQ(After("M/d/yy", kFifthOfMarch, 3, "0"), "3 /0|1/7");
    EXPECT_EQ(After("M/d/yy", {3, 15, 2007}, 3, "0"), "3 /0|5/7");
    EXPECT_EQ(After("yy/M/d", {3, 15, 2007}, 4, "0"), "7/12/|15") << "on a separator: 30";
    EXPECT_EQ(After("yy/M/d", {3, 15, 2007}, 5, "0"), "7/3 /0|5");
    EXPECT_EQ(After("yy/M/d", {3, 15, 2007}, 2, "0"), "7/0|1/15");
    EXPECT_EQ(After("M/d/yy", {3, 15, 2007}, 4, "0"), "3 /10/|7") << "not at the start";
}

TEST(DateDigitsInside, TheNextDigitForgetsTheZero) {
    EXPECT_EQ(After("M/d/yy", kFifthOfMarch, 3, "07"), "3 /7 |/7");
    EXPECT_EQ(After("M/d/yy", kFifthOfMarch, 0, "00"), "1 |/5 /7");
}

TEST(DateDigitsInside, KeepTheCenturyOfShortYears) {
    Editor editor({12, 31, 1998}, "M/d/yy");
    editor.PutCaretAt(6);
    editor.Type("0");
    EXPECT_EQ(editor.Value().year, 1908);
    EXPECT_EQ(editor.Shown(), "12/31/8|");
}

// The day comes before the year in the text, so it is judged by the year before.
TEST(DateDigitsInside, AYearMayLeadIntoTheGapOf1752) {
    Editor editor({9, 5, 1751}, "d/M/yyyy");
    editor.PutCaretAt(9);
    editor.Type("2");
    EXPECT_EQ(editor.Value(), (Date{9, 5, 1752}));
    EXPECT_TRUE(IsSkippedDay(editor.Value()));
    editor.PutCaretAt(1);
    editor.Type("1");
    EXPECT_EQ(editor.Value(), (Date{9, 30, 1752})) << "51 is 31, and then 30";
    Editor day({9, 20, 1752}, "d/M/yyyy");
    day.Type("5");
    EXPECT_EQ(day.Value(), (Date{9, 14, 1752}));
}

// With a selection.

std::string Replaced(Date value, const char* picture, std::int32_t start, std::int32_t end,
                     const char* digits) {
    Editor editor(value, picture);
    editor.SelectText(start, end);
    editor.Type(digits);
    EXPECT_EQ(editor.Field(), FieldAt(FieldMapOf(editor.entry.date), editor.entry.caret.index));
    return editor.Shown();
}

TEST(DateDigitsOverSelection, ReplaceIt) {
    EXPECT_EQ(Replaced(kFifthOfMarch, "M/d/yy", 0, 2, "7"), "7| /5 /7");
    EXPECT_EQ(Replaced(kFifthOfMarch, "M/d/yy", 0, 2, "12"), "12/|5 /7");
    EXPECT_EQ(Replaced({12, 25, 1998}, "M/d/yy", 3, 5, "31"), "12/31/|98");
    EXPECT_EQ(Replaced({12, 25, 1998}, "M/d/yyyy", 6, 10, "2003"), "12/25/2003|");
    EXPECT_EQ(Replaced({12, 25, 1998}, "M/d/yyyy", 7, 9, "0"), "12/25/10|8");
    EXPECT_EQ(Replaced({12, 25, 1998}, "yyyy/M/d", 0, 4, "2003"), "2003/|12/25");
}

TEST(DateDigitsOverSelection, AZeroIsShownWhereItStarts) {
    EXPECT_EQ(Replaced(kFifthOfMarch, "M/d/yy", 0, 2, "0"), "0|1/5 /7");
    EXPECT_EQ(Replaced(kFifthOfMarch, "M/d/yy", 3, 5, "0"), "3 /0|1/7");
    EXPECT_EQ(Replaced(kFifthOfMarch, "yy/M/d", 5, 7, "0"), "7/3 /0|1") << "behind \"7/3 /\"";
    EXPECT_EQ(Replaced(kFifthOfMarch, "M/d/yy", 0, 2, "05"), "5 |/5 /7");
}

TEST(DateDigitsOverSelection, ForgetTheZeroOfAnotherField) {
    Editor editor(kFifthOfMarch, "M/d/yy");
    editor.Type("0");
    ASSERT_EQ(editor.Shown(), "0|1/5 /7");
    editor.SelectText(3, 5);
    editor.Type("2");
    EXPECT_EQ(editor.Shown(), "1 /2| /7");
}

// Inside a field the zero counts for the third one, whichever field that is.
TEST(DateDigitsOverSelection, AZeroInsideAFieldMarksTheThird) {
    EXPECT_EQ(Replaced({12, 5, 2007}, "yy/M/d", 3, 4, "0"), "7/10|/05");
}

TEST(DateDigitsOverSelection, OverASeparatorJoinsTheFields) {
    EXPECT_EQ(Replaced({12, 25, 1998}, "M/d/yy", 0, 8, "5"), "5| /1 /0");
    EXPECT_EQ(Replaced({12, 25, 1998}, "M/d/yy", 0, 4, "1"), "1|2/31/0") << "\"15/98\"";
    Editor editor({12, 25, 1998}, "yy/M/d");
    editor.SelectText(2, 3);
    editor.Type("1");
    EXPECT_EQ(editor.Value(), (Date{12, 1, 9999})) << "\"98112/25\": 9999, and 1900 more";
}

TEST(DateDigits, AreRunWithoutACareForWhereTheCaretWas) {
    Editor editor({12, 25, 1998}, "M/d/yyyy");
    editor.PutCaretAt(10);
    editor.entry.date.value = {1, 2, 3}; // by the host
    editor.Type("4");
    EXPECT_EQ(editor.Shown(), "1 /2 /34|");
    editor.entry.date.null = 1;
    editor.Type("4");
    EXPECT_EQ(editor.Shown(), "4 /|1 /2026");
}

// Numbers that are no date become one.
TEST(DateDigits, MakeADateOfAnyNumbers) {
    for (const Layout& layout : AllLayouts()) {
        for (std::int32_t caret = 0; caret <= 17; ++caret) {
            Editor editor({65535, 65535, 65535}, "");
            editor.entry.date.layout = layout;
            editor.PutCaretAt(caret);
            editor.Type("1");
            EXPECT_TRUE(IsValidDate(editor.Value())) << editor.Text();
        }
    }
}

// All of a date typed from its first field on, as people do: 25 December 1998, or in two digits.
TEST(DateDigits, FillADateInEveryLayoutWithTheYearOutside) {
    for (const Layout& layout : AllLayouts()) {
        if (layout.kinds[1] == kYear) {
            continue;
        }
        for (const bool null : {false, true}) {
            Editor editor({3, 5, 1907}, "");
            editor.entry.date.layout = layout;
            EnterFocus(editor.entry);
            if (null) {
                editor.MakeNull();
            }
            std::string shown;
            for (std::int32_t position = 0; position < kPositions; ++position) {
                const std::int32_t kind = layout.kinds[position];
                const char* year = layout.fourDigitYear != 0 ? "1998" : "98";
                const char* digits = kind == kDay ? "25" : kind == kMonth ? "12" : year;
                EXPECT_EQ(editor.Field(), position);
                editor.Type(digits);
                shown += std::string(position == 0 ? "" : "/") + digits;
            }
            EXPECT_EQ(editor.Shown(), shown + "|");
            EXPECT_EQ(editor.Value().month, 12);
            EXPECT_EQ(editor.Value().day, 25);
            EXPECT_EQ(editor.Value().year % 100, 98);
        }
    }
}

// The separator between the first field and the year is not known to the caret: it stops a digit,
// but is never typed over.
TEST(DateDigits, LeaveTheSeparatorsOfAYearInTheMiddle) {
    Editor editor({3, 5, 2007}, "d/yyyy/M");
    EXPECT_EQ(editor.Shown(), "<|5 /2007>/3 ");
    editor.PutCaretAt(0);
    editor.Type("12");
    EXPECT_EQ(editor.Shown(), "12|/2007/3 ");
    editor.Type("1");
    EXPECT_EQ(editor.Shown(), "12/|2007/3 ");
    editor.Type("1998");
    EXPECT_EQ(editor.Shown(), "12/1998/|3 ");
    EXPECT_EQ(editor.Field(), 2);
    editor.Type("11");
    EXPECT_EQ(editor.Shown(), "12/1998/11|");
    editor.PutCaretAt(7);
    editor.Type("5");
    EXPECT_EQ(editor.Shown(), "12/1998/|11") << "a full year";
    editor = Editor({3, 5, 7}, "d/yyyy/M");
    editor.PutCaretAt(4);
    editor.Type("5");
    EXPECT_EQ(editor.Shown(), "5 /75|/3 ");
}

} // namespace
} // namespace vorn::date
