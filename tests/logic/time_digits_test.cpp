// Typing digits into a time.
#include "tests/support/time_editor.h"

namespace vorn::timeedit {
namespace {

// What the text looks like after each of the digits.
std::vector<std::string> Shown(TimeEditor& editor, const char* digits) {
    std::vector<std::string> shown;
    for (; *digits != '\0'; ++digits) {
        editor.Type(std::string(1, *digits).c_str());
        shown.push_back(editor.Shown());
    }
    return shown;
}

using Texts = std::vector<std::string>;

TEST(TimeDigits, FillTheFieldsOfThe24HourForm) {
    TimeEditor editor({9, 5, 7}, TwentyFourHours());
    EXPECT_EQ(editor.Shown(), "<|09>:05:07");
    EXPECT_EQ(Shown(editor, "143059"), (Texts{"1|0:05:07", "14:|05:07", "14:3|5:07", "14:30:|07",
                                              "14:30:5|7", "14:30:59|"}));
    EXPECT_EQ(editor.Value(), (Time{14, 30, 59}));
    EXPECT_EQ(editor.entry.time.am, 0);
    EXPECT_EQ(editor.entry.modified, 1);
    EXPECT_EQ(editor.Field(), 2);
}

TEST(TimeDigits, FillTheFieldsOfThe12HourForm) {
    TimeEditor editor({9, 5, 7}, TwelveHours());
    EXPECT_EQ(editor.Shown(), "<|09>:05:07 AM");
    EXPECT_EQ(Shown(editor, "123059"), (Texts{"1|0:05:07 AM", "12:|05:07 AM", "12:3|5:07 AM",
                                              "12:30:|07 AM", "12:30:5|7 AM", "12:30:59 |AM"}));
    EXPECT_EQ(editor.Value(), (Time{0, 30, 59})) << "12 AM is midnight";
    EXPECT_EQ(editor.Field(), 3) << "behind the blank";
}

TEST(TimeDigits, KeepTheHalfOfTheDay) {
    TimeEditor editor({21, 5, 7}, TwelveHours(false));
    EXPECT_EQ(Shown(editor, "12"), (Texts{"1|0:05 PM", "12:|05 PM"}));
    EXPECT_EQ(editor.Value(), (Time{12, 5, 7})) << "with the seconds that do not show";
    editor.PutCaretAt(0);
    editor.Type("4");
    EXPECT_EQ(editor.Value(), (Time{16, 5, 7}));
}

// 3 begins no hour of 24, 2 none of 12, 6 no minute.
TEST(TimeDigits, OneThatBeginsNoNumberIsTheWholeField) {
    for (char digit = '0'; digit <= '9'; ++digit) {
        const std::string text(1, digit);
        const auto number = static_cast<std::uint16_t>(digit - '0');
        const bool beginsHour24 = digit <= '2';
        const bool beginsHour12 = digit <= '1';
        const bool beginsMinute = digit <= '5';
        for (const bool selected : {true, false}) {
            TimeEditor hour24({0, 0, 0}, TwentyFourHours());
            TimeEditor hour12({10, 0, 0}, TwelveHours());
            TimeEditor minute({0, 0, 0}, TwentyFourHours());
            TimeEditor second({0, 0, 0}, TwentyFourHours());
            minute.SelectText(3, selected ? 5 : 3);
            second.SelectText(6, selected ? 8 : 6);
            if (!selected) {
                hour24.PutCaretAt(0);
                hour12.PutCaretAt(0);
                minute.PutCaretAt(3);
                second.PutCaretAt(6);
            }
            hour24.Type(text.c_str());
            EXPECT_EQ(hour24.Value().hour, beginsHour24 ? number * 10 : number) << digit;
            EXPECT_EQ(hour24.entry.caret.index, beginsHour24 ? 1 : 3);
            hour12.Type(text.c_str());
            EXPECT_EQ(hour12.Value().hour, digit == '1' ? 10 : digit == '0' ? 1 : number) << digit;
            EXPECT_EQ(hour12.entry.caret.index, beginsHour12 ? 1 : 3);
            minute.Type(text.c_str());
            EXPECT_EQ(minute.Value().minute, beginsMinute ? number * 10 : number) << digit;
            EXPECT_EQ(minute.entry.caret.index, beginsMinute ? 4 : 6);
            second.Type(text.c_str());
            EXPECT_EQ(second.Value().second, beginsMinute ? number * 10 : number) << digit;
            EXPECT_EQ(second.entry.caret.index, beginsMinute ? 7 : 8);
        }
    }
}

// What a field cannot hold becomes the nearest that it can.
TEST(TimeDigits, AreClamped) {
    TimeEditor hour24({9, 0, 0}, TwentyFourHours());
    hour24.PutCaretAt(0);
    EXPECT_EQ(Shown(hour24, "2"), (Texts{"2|3:00:00"})) << "29";
    EXPECT_EQ(Shown(hour24, "9"), (Texts{"23:|00:00"})) << "29";
    TimeEditor hour12({9, 0, 0}, TwelveHours());
    hour12.PutCaretAt(0);
    EXPECT_EQ(Shown(hour12, "1"), (Texts{"1|2:00:00 AM"})) << "19";
    hour12.PutCaretAt(0);
    EXPECT_EQ(Shown(hour12, "0"), (Texts{"0|2:00:00 AM"}));
    EXPECT_EQ(Shown(hour12, "0"), (Texts{"01:|00:00 AM"})) << "00";
    TimeEditor minute({0, 65535, 65535}, TwentyFourHours());
    minute.PutCaretAt(3);
    EXPECT_EQ(minute.Shown(), "00:|65535:65535");
    EXPECT_EQ(Shown(minute, "1"), (Texts{"00:5|9:59"})) << "15535; a host's second as well";
}

TEST(TimeDigits, OvertypeAnyDigit) {
    TimeEditor editor({12, 34, 56}, TwentyFourHours());
    editor.PutCaretAt(1);
    EXPECT_EQ(Shown(editor, "1"), (Texts{"11:|34:56"}));
    editor.PutCaretAt(4);
    EXPECT_EQ(Shown(editor, "9"), (Texts{"11:39:|56"})) << "a unit may be any";
    editor.PutCaretAt(7);
    EXPECT_EQ(Shown(editor, "0"), (Texts{"11:39:50|"}));
}

// A field always has both digits, so there is nothing to add behind it.
TEST(TimeDigits, BehindAFieldOnlyMoveTheCaret) {
    TimeEditor editor({12, 34, 56}, TwelveHours());
    editor.PutCaretAt(2);
    EXPECT_EQ(Shown(editor, "7"), (Texts{"12:|34:56 PM"}));
    editor.PutCaretAt(8);
    EXPECT_EQ(Shown(editor, "7"), (Texts{"12:34:56 |PM"}));
    EXPECT_EQ(editor.Field(), 3);
    TimeEditor last({12, 34, 56}, TwentyFourHours());
    last.Press(kEnd);
    EXPECT_EQ(Shown(last, "7"), (Texts{"12:34:56|"}));
    EXPECT_EQ(last.Value(), (Time{12, 34, 56}));
    TimeEditor host({12, 34, 228}, TwentyFourHours());
    host.PutCaretAt(2);
    EXPECT_EQ(Shown(host, "7"), (Texts{"12:|34:59"})) << "a time in any case";
}

TEST(TimeDigits, AreRefusedInTheSuffix) {
    TimeEditor editor({12, 34, 56}, TwelveHours());
    for (const std::int32_t index : {9, 10, 11}) {
        editor.PutCaretAt(index);
        EXPECT_EQ(editor.Press('7'), kBeeped);
        EXPECT_EQ(editor.entry.caret.index, index);
    }
    editor.SelectText(9, 11);
    EXPECT_EQ(editor.Press('7'), kBeeped);
    EXPECT_EQ(editor.Shown(), "12:34:56 <PM|>");
    editor.SelectText(8, 11);
    EXPECT_EQ(editor.Press('7'), kBeeped) << "nothing but a blank in front";
    EXPECT_EQ(editor.entry.modified, 0);
}

TEST(TimeDigits, ReplaceTheSelection) {
    TimeEditor all({12, 34, 56}, TwelveHours());
    all.SelectText(0, 11);
    EXPECT_EQ(Shown(all, "7"), (Texts{"07:|00:00 PM"}));
    EXPECT_EQ(all.Value(), (Time{19, 0, 0}));
    TimeEditor inside({12, 34, 56}, TwentyFourHours());
    inside.SelectText(1, 4);
    EXPECT_EQ(Shown(inside, "3"), (Texts{"13:|04:56"}));
    TimeEditor separator({12, 34, 56}, TwentyFourHours());
    separator.SelectText(2, 4);
    EXPECT_EQ(Shown(separator, "5"), (Texts{"12:5|4:56"})) << "the first digit of it";
    TimeEditor only({12, 34, 56}, TwentyFourHours());
    only.SelectText(2, 3);
    EXPECT_EQ(only.Press('5'), kBeeped) << "no digit in it";
}

TEST(TimeDigits, StartANullTimeFromZeros) {
    TimeEditor editor({12, 34, 56}, TwentyFourHours());
    editor.MakeNull();
    EXPECT_EQ(editor.Shown(), "|");
    EXPECT_EQ(Shown(editor, "1"), (Texts{"1|0:00:00"}));
    EXPECT_EQ(editor.entry.time.null, 0);
    editor.MakeNull();
    EXPECT_EQ(Shown(editor, "7"), (Texts{"07:|00:00"}));
    editor.MakeNull();
    EXPECT_EQ(Shown(editor, "00"), (Texts{"0|0:00:00", "00:|00:00"}));

    TimeEditor twelve({12, 34, 56}, TwelveHours());
    twelve.MakeNull();
    EXPECT_EQ(Shown(twelve, "12"), (Texts{"1|0:00:00 AM", "12:|00:00 AM"}));
    EXPECT_EQ(twelve.Value(), (Time{0, 0, 0}));
    twelve.MakeNull();
    EXPECT_EQ(Shown(twelve, "0"), (Texts{"0|1:00:00 AM"})) << "the lowest hour there";
}

// Without the focus, and without leading zeros, an hour may be a digit; a host can send keys then.
TEST(TimeDigits, StandAnHourOfOneDigit) {
    Format format = TwentyFourHours();
    format.leadingZero = 0;
    TimeEditor editor({9, 5, 7}, format);
    LeaveFocus(editor.entry);
    ResetCaret(editor.entry);
    EXPECT_EQ(Shown(editor, "1"), (Texts{"1:|05:07"}));
    editor.PutCaretAt(0);
    EXPECT_EQ(Shown(editor, "4"), (Texts{"4:|05:07"}));
}

TEST(TimeDigits, OfBothPadsAreTheSame) {
    for (std::uint32_t digit = 0; digit <= 9; ++digit) {
        TimeEditor main({12, 34, 56}, TwelveHours());
        TimeEditor numeric({12, 34, 56}, TwelveHours());
        EXPECT_EQ(main.Press(48 + digit), kChanged);
        EXPECT_EQ(numeric.Press(96 + digit), kChanged);
        EXPECT_EQ(main.Shown(), numeric.Shown());
        EXPECT_EQ(main.PressShift(48 + digit), kBeeped) << "another character";
    }
}

} // namespace
} // namespace vorn::timeedit
