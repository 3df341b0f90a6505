// Up and Down in a field of a date.
#include "tests/support/date_editor.h"

namespace vorn::date {
namespace {

constexpr std::uint16_t kFebruary = 2;

// The date that a key makes of another, in the field of this kind.
Date Stepped(Date value, std::int32_t kind, std::uint32_t key) {
    Editor editor(value, "dd/MM/yyyy");
    editor.entry.caret.field = kind - 1; // day, month, year
    EXPECT_EQ(editor.Press(key), kStepped);
    return editor.Value();
}

TEST(DateStep, DaysEndWithTheMonth) {
    EXPECT_EQ(Stepped({3, 5, 2007}, kDay, kUp), (Date{3, 6, 2007}));
    EXPECT_EQ(Stepped({3, 5, 2007}, kDay, kDown), (Date{3, 4, 2007}));
    EXPECT_EQ(Stepped({3, 31, 2007}, kDay, kUp), (Date{3, 31, 2007}));
    EXPECT_EQ(Stepped({3, 1, 2007}, kDay, kDown), (Date{3, 1, 2007}));
    EXPECT_EQ(Stepped({4, 30, 2007}, kDay, kUp), (Date{4, 30, 2007}));
    EXPECT_EQ(Stepped({2, 28, 2000}, kDay, kUp), (Date{2, 29, 2000}));
    EXPECT_EQ(Stepped({2, 28, 2001}, kDay, kUp), (Date{2, 28, 2001}));
    EXPECT_EQ(Stepped({2, 28, 1700}, kDay, kUp), (Date{2, 29, 1700}));
}

TEST(DateStep, DaysStepOverTheGapOf1752) {
    EXPECT_EQ(Stepped({9, 2, 1752}, kDay, kUp), (Date{9, 14, 1752}));
    EXPECT_EQ(Stepped({9, 14, 1752}, kDay, kDown), (Date{9, 2, 1752}));
    EXPECT_EQ(Stepped({9, 1, 1752}, kDay, kUp), (Date{9, 2, 1752}));
    EXPECT_EQ(Stepped({9, 15, 1752}, kDay, kDown), (Date{9, 14, 1752}));
    EXPECT_EQ(Stepped({9, 2, 1753}, kDay, kUp), (Date{9, 3, 1753}));
    EXPECT_EQ(Stepped({8, 14, 1752}, kDay, kDown), (Date{8, 13, 1752}));
}

TEST(DateStep, MonthsCutTheDay) {
    EXPECT_EQ(Stepped({3, 31, 2007}, kMonth, kUp), (Date{4, 30, 2007}));
    EXPECT_EQ(Stepped({3, 31, 2007}, kMonth, kDown), (Date{2, 28, 2007}));
    EXPECT_EQ(Stepped({3, 31, 2008}, kMonth, kDown), (Date{2, 29, 2008}));
    EXPECT_EQ(Stepped({12, 31, 2007}, kMonth, kUp), (Date{12, 31, 2007}));
    EXPECT_EQ(Stepped({1, 31, 2007}, kMonth, kDown), (Date{1, 31, 2007}));
}

TEST(DateStep, YearsTakeTheLeapDayAway) {
    EXPECT_EQ(Stepped({3, 31, 2007}, kYear, kUp), (Date{3, 31, 2008}));
    EXPECT_EQ(Stepped({2, 29, 2000}, kYear, kUp), (Date{2, 28, 2001}));
    EXPECT_EQ(Stepped({2, 29, 2000}, kYear, kDown), (Date{2, 28, 1999}));
    EXPECT_EQ(Stepped({2, 28, 2000}, kYear, kDown), (Date{2, 28, 1999}));
    EXPECT_EQ(Stepped({1, 1, 9999}, kYear, kUp), (Date{1, 1, 9999}));
    EXPECT_EQ(Stepped({1, 1, 9998}, kYear, kUp), (Date{1, 1, 9999}));
    EXPECT_EQ(Stepped({1, 1, 1}, kYear, kDown), (Date{1, 1, 0}));
    EXPECT_EQ(Stepped({1, 1, 0}, kYear, kDown), (Date{1, 1, 0}));
    EXPECT_EQ(Stepped({kFebruary, 29, 0}, kYear, kDown), (Date{kFebruary, 29, 0})) << "no step";
}

// A date of a host's that is none steps without harm.
TEST(DateStep, TakesNumbersThatAreNoDate) {
    EXPECT_EQ(Stepped({0, 0, 0}, kDay, kUp), (Date{0, 0, 0})) << "no month, no day to go to";
    EXPECT_EQ(Stepped({0, 0, 0}, kDay, kDown), (Date{0, 0, 0}));
    EXPECT_EQ(Stepped({0, 0, 0}, kMonth, kUp), (Date{1, 0, 0}));
    EXPECT_EQ(Stepped({65535, 65535, 65535}, kMonth, kDown), (Date{65534, 65535, 65535}));
    EXPECT_EQ(Stepped({65535, 65535, 65535}, kYear, kUp), (Date{65535, 65535, 65535}));
    EXPECT_EQ(Stepped({65535, 65535, 65535}, kYear, kDown), (Date{65535, 65535, 65534}));
    EXPECT_EQ(Stepped({2, 31, 1995}, kDay, kUp), (Date{2, 31, 1995}));
}

TEST(DateStep, SelectsTheField) {
    Editor editor({3, 5, 2007}, "M/d/yyyy");
    editor.Press(kUp);
    EXPECT_EQ(editor.Shown(), "<|4 >/5 /2007");
    editor.PutCaretAt(4);
    editor.Press(kDown);
    EXPECT_EQ(editor.Shown(), "4 /<|4 >/2007");
    editor.PutCaretAt(8);
    editor.Press(kUp);
    EXPECT_EQ(editor.Shown(), "4 /4 /<|2008>");
    EXPECT_EQ(editor.Field(), 2);
    EXPECT_EQ(editor.ValueText(), "4/4/2008");
    EXPECT_EQ(editor.entry.modified, 1);
}

TEST(DateStep, FollowsTheWidthOfTheYear) {
    Editor editor({3, 5, 1999}, "yy/M/d");
    EXPECT_EQ(editor.Shown(), "<|99>/3 /5 ");
    editor.Press(kUp);
    EXPECT_EQ(editor.Shown(), "<|0>/3 /5 ");
    EXPECT_EQ(editor.Value().year, 2000) << "the century steps too";
    editor.PutCaretAt(5);
    editor.Press(kUp);
    EXPECT_EQ(editor.Shown(), "0/3 /<|6 >");
}

TEST(DateStep, ClearsTypedZeros) {
    Editor editor({3, 5, 2007}, "M/d/yy");
    editor.Type("0");
    EXPECT_EQ(editor.Text(), "01/5 /7");
    editor.Press(kUp);
    EXPECT_EQ(editor.Text(), "2 /5 /7");
}

TEST(DateStep, TakesANullDateFromTheNumbersItHolds) {
    Editor editor({3, 5, 2007}, "M/d/yy");
    editor.MakeNull();
    EXPECT_EQ(editor.Text(), "");
    EXPECT_EQ(editor.Press(kUp), kStepped);
    EXPECT_EQ(editor.Shown(), "<|4 >/5 /7");
    EXPECT_EQ(editor.entry.date.null, 0);
    EXPECT_EQ(editor.ValueText(), "4/5/07");
}

TEST(DateStep, OfAPositionOfNoKindChangesNoNumber) {
    Editor editor({3, 5, 2007}, "M/d/yy");
    editor.entry.date.layout.kinds[0] = 0;
    editor.PutCaretAt(0);
    EXPECT_EQ(editor.Press(kUp), kStepped);
    EXPECT_EQ(editor.Value(), (Date{3, 5, 2007}));
}

// Day 6, month 5 and year 2008 step to one more and back to one less, in every layout where the
// fields can be reached; the selection is the field that the text has there.
TEST(DateStep, WorksInEveryLayout) {
    for (const Layout& layout : AllLayouts()) {
        Editor editor({5, 6, 2008}, "");
        editor.entry.date.layout = layout;
        const bool yearInside = layout.kinds[1] == kYear;
        const std::string year = layout.fourDigitYear != 0 ? "2008" : "8";
        std::int32_t start = 0;
        for (std::int32_t position = 0; position < kPositions; ++position) {
            const std::int32_t kind = layout.kinds[position];
            const std::string before = kind == kDay ? "6 " : kind == kMonth ? "5 " : year;
            if (!yearInside || position == 2) { // in the others the year is one with the first
                editor.PutCaretAt(start);
                EXPECT_EQ(editor.Field(), position);
                EXPECT_EQ(editor.Press(kUp), kStepped);
                const Date& value = editor.Value();
                EXPECT_EQ(value, (Date{static_cast<std::uint16_t>(5 + (kind == kMonth)),
                                       static_cast<std::uint16_t>(6 + (kind == kDay)),
                                       static_cast<std::uint16_t>(2008 + (kind == kYear))}));
                const edit::FieldCaret& caret = editor.entry.caret;
                EXPECT_EQ(caret.index, start);
                EXPECT_EQ(caret.selectionStart, start);
                EXPECT_EQ(caret.selectionEnd, start + static_cast<std::int32_t>(before.size()));
                EXPECT_EQ(editor.Press(kDown), kStepped);
                EXPECT_EQ(editor.Value(), (Date{5, 6, 2008}));
            }
            start += static_cast<std::int32_t>(before.size()) + 1;
        }
    }
}

} // namespace
} // namespace vorn::date
