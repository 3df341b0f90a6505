// The date edit and its host: date and layout in records and texts.
#include "date/date_edit.h"
#include "tests/support/date_editor.h"

#include <cstring>
#include <string>

namespace vorn::date {
namespace {

// A profile that knows two keys.
struct Profile {
    std::string separator = "/";
    std::string picture = "M/d/yy";

    static void Read(void* context, const char* key, const char* /*fallback*/, char* buffer,
                     std::uint32_t size) {
        const auto& self = *static_cast<const Profile*>(context);
        const bool isSeparator = std::string("sDate") == key;
        EXPECT_TRUE(isSeparator || std::string("sShortDate") == key) << key;
        const std::string text = (isSeparator ? self.separator : self.picture).substr(0, size - 1);
        std::memcpy(buffer, text.c_str(), text.size() + 1);
    }
    RegionalProfile profile() { return {this, Read}; }
};

// An edit that shows 5 March 2007, with the caret somewhere inside.
DateEntry Entry(const char* picture, char separator = '/') {
    DateEntry entry;
    entry.date.value = {3, 5, 2007};
    ReadShortDateLayout(picture, separator, entry.date.layout);
    FormatValueText(entry.date);
    PutCaret(entry.caret, FieldMapOf(entry.date), 2);
    entry.date.typedZero[0] = 1;
    return entry;
}

void ExpectAtStart(const DateEntry& entry) {
    EXPECT_EQ(entry.caret.selectionStart, 0);
    EXPECT_EQ(entry.caret.selectionEnd, 0);
    EXPECT_EQ(entry.caret.index, 0);
    EXPECT_EQ(entry.caret.firstVisible, 0);
    EXPECT_EQ(entry.caret.field, 0);
    EXPECT_EQ(entry.date.typedZero[0], 0);
}

TEST(DateEditStart, IsTodayInTheUsersLayout) {
    Profile user{".", "dd.MM.yyyy"};
    DateEntry entry;
    StartDate(entry, kToday, user.profile());
    EXPECT_EQ(entry.date.value, kToday);
    EXPECT_EQ(entry.date.null, 0);
    EXPECT_STREQ(entry.date.valueText, "17.08.2026");
    EXPECT_EQ(entry.modified, 0);
    user = {"-", "yyyy-M-d"};
    PutCaret(entry.caret, FieldMapOf(entry.date), 10);
    ReloadLayout(entry, user.profile());
    EXPECT_STREQ(entry.date.valueText, "2026-8-17");
    EXPECT_EQ(entry.caret.index, 9) << "the text became shorter";
}

TEST(DateEditParams, AreFilledButForTwoFields) {
    const DateEntry entry = Entry("dd.MM.yyyy", '.');
    EditParams params;
    std::memset(&params, 0x5A, sizeof params);
    GetEditParams(params, entry.date);
    EXPECT_EQ(params.size, 48u);
    EXPECT_EQ(params.setDate, 1u);
    EXPECT_EQ(params.year, 2007);
    EXPECT_EQ(params.month, 3);
    EXPECT_EQ(params.day, 5);
    EXPECT_EQ(params.reserved1, 0x5A5A);
    EXPECT_EQ(params.keepLayout, 1u);
    EXPECT_EQ(params.separator, '.');
    EXPECT_EQ(params.reserved2, 0x5A5A);
    EXPECT_EQ(params.monthLeadingZero, 1u);
    EXPECT_EQ(params.dayLeadingZero, 0x5A5A5A5Au);
    EXPECT_EQ(params.fourDigitYear, 0x5A5A5A5Au);
    EXPECT_EQ(params.kinds[0], 1u);
    EXPECT_EQ(params.kinds[1], 2u);
    EXPECT_EQ(params.kinds[2], 3u);
}

TEST(DateEditParams, HandedBackChangeNothing) {
    Profile other{"-", "yyyy-MM-dd"};
    DateEntry entry = Entry("dd.MM.yyyy", '.');
    EditParams params = {};
    GetEditParams(params, entry.date);
    SetEditParams(entry, params, true, kToday, other.profile());
    EXPECT_STREQ(entry.date.valueText, "05.03.2007");
    ExpectAtStart(entry);
}

EditParams Params(std::uint16_t year, std::uint16_t month, std::uint16_t day) {
    EditParams params = {};
    params.size = kEditParamsSize;
    params.setDate = 1;
    params.year = year;
    params.month = month;
    params.day = day;
    return params;
}

TEST(DateEditParams, BringALayout) {
    Profile user;
    DateEntry entry = Entry("M/d/yy");
    EditParams params = Params(1995, 2, 3);
    params.separator = 0xFF00 | '.';
    params.dayLeadingZero = 7;
    params.fourDigitYear = 1;
    params.kinds[0] = 1;
    params.kinds[1] = 2;
    params.kinds[2] = 3;
    SetEditParams(entry, params, true, kToday, user.profile());
    EXPECT_STREQ(entry.date.valueText, "03.2.1995");
    EXPECT_EQ(entry.date.null, 0);
    ExpectAtStart(entry);
}

TEST(DateEditParams, TakeTheUsersSeparatorOrPicture) {
    Profile user{"-", "dd-MM-yyyy"};
    DateEntry entry = Entry("M/d/yy");
    EditParams params = Params(1995, 2, 3);
    params.kinds[0] = 2;
    params.kinds[1] = 1;
    params.kinds[2] = 3;
    SetEditParams(entry, params, true, kToday, user.profile());
    EXPECT_STREQ(entry.date.valueText, "2-3-95");

    params.kinds[0] = 0;
    SetEditParams(entry, params, true, kToday, user.profile());
    EXPECT_STREQ(entry.date.valueText, "03-02-1995") << "flags come with the picture";

    user.picture = "yyyy.M.d";
    params.separator = '.';
    SetEditParams(entry, params, true, kToday, user.profile());
    EXPECT_STREQ(entry.date.valueText, "1995.2.3") << "split at the new separator";
}

TEST(DateEditParams, OfTheYear0AreToday) {
    Profile user;
    DateEntry entry = Entry("M/d/yy");
    entry.date.null = 1;
    EditParams params = Params(0, 5, 6);
    params.keepLayout = 1;
    SetEditParams(entry, params, true, kToday, user.profile());
    EXPECT_EQ(entry.date.value, kToday);
    EXPECT_EQ(entry.date.null, 0);
}

TEST(DateEditParams, WithoutTheDateStillBringTheLayout) {
    Profile user{".", "d.M.yyyy"};
    DateEntry entry = Entry("M/d/yy");
    SetEditParams(entry, Params(1995, 2, 3), false, kToday, user.profile());
    EXPECT_STREQ(entry.date.valueText, "5.3.2007");
    entry.date.value.year = 0;
    SetEditParams(entry, Params(1995, 2, 3), false, kToday, user.profile());
    EXPECT_EQ(entry.date.null, 1) << "the year that is held counts";
    EXPECT_STREQ(entry.date.valueText, "");
    entry.date.value.year = 7;
    SetEditParams(entry, Params(1995, 2, 3), false, kToday, user.profile());
    EXPECT_EQ(entry.date.null, 0);
}

TEST(DateEditDate, IsTakenAsItIs) {
    DateEntry entry = Entry("M/d/yyyy");
    SetDate(entry, {13, 99, 65535});
    EXPECT_STREQ(entry.date.valueText, "13/99/65535");
    EXPECT_EQ(entry.date.null, 0);
    SetDate(entry, {0, 0, 0});
    EXPECT_EQ(entry.date.null, 0);
    EXPECT_STREQ(entry.date.valueText, "0/0/0000");
    SetDate(entry, {9, 0, 0});
    EXPECT_EQ(entry.date.null, 1);
    EXPECT_STREQ(entry.date.valueText, "");
    EXPECT_EQ(entry.date.value, (Date{9, 0, 0}));
    SetDate(entry, {9, 0, 1});
    EXPECT_EQ(entry.date.null, 0);
}

TEST(DateEditDate, LeavesTheCaretInTheText) {
    DateEntry entry = Entry("M/d/yyyy");
    PutCaret(entry.caret, FieldMapOf(entry.date), 8);
    SetDate(entry, {3, 5, 7});
    EXPECT_EQ(entry.caret.index, 5) << "3/5/7";
    EXPECT_EQ(entry.date.typedZero[0], 0);
}

TEST(DateEditDate, TakesTheFieldAlongWhenTheCaretHadToMove) {
    DateEntry entry = Entry("M/d/yyyy");
    PutCaret(entry.caret, FieldMapOf(entry.date), 8);
    ASSERT_EQ(entry.caret.field, 2);
    SetDate(entry, {9, 0, 0}); // no date and no text
    EXPECT_EQ(entry.caret.index, 0);
    SetDate(entry, {3, 5, 2007});
    EXPECT_EQ(entry.caret.field, 0) << "the month's, where the caret is";
}

Date FromString(const char* text, const char* picture = "M/d/yy", char separator = '/') {
    DateEntry entry = Entry(picture, separator);
    entry.date.null = 1;
    SetDateString(entry, text);
    EXPECT_EQ(entry.date.null, 0) << text;
    ExpectAtStart(entry);
    return entry.date.value;
}

TEST(DateEditString, IsNotChecked) {
    EXPECT_EQ(FromString("2/31/95"), (Date{2, 31, 1995}));
    EXPECT_EQ(FromString("3/5/95"), (Date{3, 5, 1995}));
    EXPECT_EQ(FromString("3/5/2095"), (Date{3, 5, 2095}));
    EXPECT_EQ(FromString("3/5/95", "M/d/yyyy"), (Date{3, 5, 95}));
    EXPECT_EQ(FromString("5.3.7", "d.M.yy", '.'), (Date{3, 5, 1907}));
    EXPECT_EQ(FromString("70000/77/0"), (Date{4464, 77, 1900})) << "the low 16 bits of 70,000";
    EXPECT_EQ(FromString("3/5/123456"), (Date{3, 5, 57920})) << "those of 123,456";
    EXPECT_EQ(FromString("3/99999999999999999999/7"), (Date{3, 52427, 1907}))
        << "those of 214,748,363, where numbers end";
    EXPECT_EQ(FromString("-1/5/-3"), (Date{65535, 5, 1897}));
    EXPECT_EQ(FromString(" 3 / +5/ 95x"), (Date{3, 5, 1995}));
    EXPECT_EQ(FromString("x/y/z"), (Date{0, 0, 1900}));
}

TEST(DateEditString, MayHaveFewerOrMorePieces) {
    EXPECT_EQ(FromString("7"), (Date{7, 5, 2007}));
    EXPECT_EQ(FromString("7/8"), (Date{7, 8, 2007}));
    EXPECT_EQ(FromString("7/8/"), (Date{7, 8, 1900})) << "an empty piece is 0";
    EXPECT_EQ(FromString("/8/95"), (Date{0, 8, 1995}));
    EXPECT_EQ(FromString("1/2/3/4/5"), (Date{1, 2, 1903}));
}

TEST(DateEditString, IsCut) {
    EXPECT_EQ(FromString(("1/2/" + std::string(60, '0') + "7").c_str()), (Date{1, 2, 1900}));
    EXPECT_EQ(FromString((std::string(28, '0') + "12/3").c_str()), (Date{1, 0, 2007}))
        << "a number has 29 characters and the text 31, up to the separator";
}

TEST(DateEditString, ThatIsMissingIsNoDate) {
    for (const char* text : {static_cast<const char*>(nullptr), ""}) {
        DateEntry entry = Entry("M/d/yy");
        SetDateString(entry, text);
        EXPECT_EQ(entry.date.null, 1);
        EXPECT_EQ(entry.date.value, Date{});
        EXPECT_STREQ(entry.date.valueText, "");
        ExpectAtStart(entry);
    }
}

TEST(DateEditString, WithoutASeparatorIsOneNumber) {
    EXPECT_EQ(FromString("12/25", "M/d/yy", '\0'), (Date{12, 5, 2007}));
}

TEST(DateEditText, IsReadAsTyped) {
    DateEntry entry = Entry("M/d/yy");
    entry.date.null = 1;
    SetText(entry, "13/31/98");
    EXPECT_EQ(entry.date.value, (Date{12, 31, 2098})) << "clamped, in the century that was held";
    EXPECT_EQ(entry.date.null, 0);
    EXPECT_STREQ(entry.date.valueText, "12/31/98");
    EXPECT_EQ(entry.caret.index, 2) << "the caret stays";
    SetText(entry, "");
    EXPECT_EQ(entry.date.null, 1);
    EXPECT_EQ(entry.date.value, Date{});
    SetText(entry, "2/30/4");
    EXPECT_EQ(entry.date.value, (Date{2, 29, 4}));
    SetText(entry, nullptr);
    EXPECT_EQ(entry.date.null, 1);
}

TEST(DateEditTime, GoesBothWays) {
    DateEntry entry = Entry("M/d/yyyy");
    entry.date.null = 1;
    SetTime(entry, {59, 58, 23, 29, 1, 100, 9, 9, 9});
    EXPECT_EQ(entry.date.value, (Date{2, 29, 2000}));
    EXPECT_EQ(entry.date.null, 0);
    EXPECT_STREQ(entry.date.valueText, "2/29/2000");
    ExpectAtStart(entry);

    const TimeRecord time = TimeOf({2, 29, 2000});
    const TimeRecord expected = {0, 0, 0, 29, 1, 100, 2, 59, 0}; // a Tuesday; 31 + 28 days before
    EXPECT_EQ(std::memcmp(&time, &expected, sizeof time), 0);
    EXPECT_EQ(TimeOf({12, 31, 1752}).dayOfYear, 354) << "366 days but for the eleven left out";
    EXPECT_EQ(TimeOf({1, 1, 1900}).weekday, 1) << "a Monday";
    EXPECT_EQ(TimeOf({1, 1, 0}).year, -1900);
}

TEST(DateEditTime, BearsAnyNumbers) {
    DateEntry entry = Entry("M/d/yyyy");
    SetTime(entry, {0, 0, 0, INT32_MIN, INT32_MAX, INT32_MAX, 0, 0, 0});
    EXPECT_EQ(entry.date.value, (Date{0, 0, 1899})) << "the low 16 bits of each";
    for (const Date& date : {Date{0, 0, 0}, Date{65535, 65535, 65535}, Date{13, 0, 0}}) {
        const TimeRecord time = TimeOf(date);
        EXPECT_GE(time.weekday, 0);
        EXPECT_LE(time.weekday, 6);
        EXPECT_EQ(time.month, date.month - 1);
    }
}

TEST(DateEditCaptions, AreReplacedOneByOneAndBroughtBack) {
    Captions captions = {};
    ResetCaptions(captions);
    EXPECT_STREQ(captions.texts[0], "&OK");
    EXPECT_STREQ(captions.texts[1], "&Cancel");
    EXPECT_STREQ(captions.texts[2], "&Erase");
    EXPECT_EQ(SetCaption(captions, 1, "&Abbrechen"), captions.texts[1]);
    EXPECT_STREQ(captions.texts[1], "&Abbrechen");
    EXPECT_STREQ(SetCaption(captions, 1, nullptr), "&Abbrechen");
    SetCaption(captions, 0, std::string(100, 'x').c_str());
    EXPECT_EQ(std::string(captions.texts[0]), std::string(31, 'x'));
    EXPECT_STREQ(captions.texts[2], "&Erase");
    EXPECT_EQ(SetCaption(captions, 3, "x"), nullptr);
    EXPECT_EQ(SetCaption(captions, -1, "x"), nullptr);
    ResetCaptions(captions);
    EXPECT_STREQ(captions.texts[0], "&OK");
    EXPECT_STREQ(captions.texts[1], "&Cancel");
}

TEST(DateEditFocus, SelectsTheFirstFieldAndScrollsBack) {
    DateEntry entry = Entry("M/d/yy");
    entry.caret.firstVisible = 3;
    EnterFocus(entry);
    EXPECT_EQ(entry.caret.firstVisible, 0);
    EXPECT_EQ(entry.caret.index, 0);
    EXPECT_EQ(entry.caret.selectionEnd, 2) << "a digit and the room for another";
}

} // namespace
} // namespace vorn::date
