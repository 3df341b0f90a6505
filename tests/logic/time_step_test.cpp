// Up, Down and the letters of the suffix.
#include "tests/support/time_editor.h"
#include "timeedit/time_step.h"

namespace vorn::timeedit {
namespace {

// The time that a key makes of another, in this field.
Time Stepped(const Time& value, const Format& format, std::int32_t field, std::uint32_t key) {
    TimeEditor editor(value, format);
    editor.entry.caret.field = field;
    EXPECT_EQ(editor.Press(key), kStepped);
    EXPECT_EQ(editor.entry.time.am, editor.Value().hour < 12 ? 1 : 0);
    return editor.Value();
}

TEST(TimeStep, GoesAroundWithoutACarry) {
    for (const Format& format : {TwentyFourHours(), TwelveHours()}) {
        for (std::uint16_t number = 0; number < 60; ++number) {
            const auto next = static_cast<std::uint16_t>(number == 59 ? 0 : number + 1);
            EXPECT_EQ(Stepped({5, number, 5}, format, 1, kUp), (Time{5, next, 5}));
            EXPECT_EQ(Stepped({5, next, 5}, format, 1, kDown), (Time{5, number, 5}));
            EXPECT_EQ(Stepped({5, 5, number}, format, 2, kUp), (Time{5, 5, next}));
            EXPECT_EQ(Stepped({5, 5, next}, format, 2, kDown), (Time{5, 5, number}));
        }
        for (std::uint16_t hour = 0; hour < 24; ++hour) {
            const auto next = static_cast<std::uint16_t>(hour == 23 ? 0 : hour + 1);
            EXPECT_EQ(Stepped({hour, 5, 5}, format, 0, kUp), (Time{next, 5, 5}));
            EXPECT_EQ(Stepped({next, 5, 5}, format, 0, kDown), (Time{hour, 5, 5}));
        }
    }
}

TEST(TimeStep, TheSuffixChangesBetween11And12) {
    TimeEditor editor({10, 0, 0}, TwelveHours());
    std::string shown;
    for (int step = 0; step < 4; ++step) {
        editor.Press(kUp);
        shown += editor.Shown() + ", ";
    }
    EXPECT_EQ(shown, "<|11>:00:00 AM, <|12>:00:00 PM, <|01>:00:00 PM, <|02>:00:00 PM, ");
    editor.entry.time.value.hour = 23;
    editor.Press(kUp);
    EXPECT_EQ(editor.Shown(), "<|12>:00:00 AM");
    editor.Press(kDown);
    EXPECT_EQ(editor.Shown(), "<|11>:00:00 PM");
}

TEST(TimeStep, SelectsTheField) {
    TimeEditor editor({10, 20, 30}, TwelveHours());
    editor.PutCaretAt(4);
    editor.Press(kUp);
    EXPECT_EQ(editor.Shown(), "10:<|21>:30 AM");
    editor.PutCaretAt(8);
    editor.Press(kDown);
    EXPECT_EQ(editor.Shown(), "10:21:<|29> AM") << "on the separator behind the second";
    editor.Press(kEnd);
    editor.Press(kDown);
    EXPECT_EQ(editor.Shown(), "10:21:29 <|PM>");
    EXPECT_EQ(editor.Value(), (Time{22, 21, 29}));
    editor.Press(kDown);
    EXPECT_EQ(editor.Shown(), "10:21:29 <|AM>");
}

TEST(TimeStep, OfANullTimeStartsFromItsNumbers) {
    TimeEditor editor({10, 20, 30}, TwentyFourHours());
    editor.MakeNull();
    EXPECT_EQ(editor.Press(kUp), kStepped);
    EXPECT_EQ(editor.Shown(), "<|11>:20:30");
    EXPECT_EQ(editor.entry.time.null, 0);
}

TEST(TimeStep, TakesNumbersThatAreNoTime) {
    EXPECT_EQ(Stepped({24, 60, 65535}, TwentyFourHours(), 0, kUp), (Time{0, 59, 59}));
    EXPECT_EQ(Stepped({65535, 60, 1}, TwentyFourHours(), 0, kDown), (Time{22, 59, 1}));
    EXPECT_EQ(Stepped({65535, 60, 1}, TwelveHours(), 3, kDown), (Time{11, 59, 1}));
}

TEST(TimeStep, StaysInFieldsThatThereAre) {
    TimeEditor editor({22, 20, 30}, TwelveHours(true, "", "PM"));
    editor.Press(kEnd);
    EXPECT_EQ(editor.Field(), 3);
    editor.Press(kUp);
    EXPECT_EQ(editor.Shown(), "10:20:<|30>") << "no text stands for the morning";
    EXPECT_EQ(editor.Value(), (Time{10, 20, 30}));
    EXPECT_EQ(editor.Field(), 2);
    TimeEditor minutes({22, 20, 30}, TwelveHours(false));
    minutes.entry.caret.field = 2;
    minutes.Press(kUp);
    EXPECT_EQ(minutes.Shown(), "10:20 <|AM>") << "without seconds the third field is the suffix";
}

TEST(TimeSuffix, LettersChooseTheHalf) {
    TimeEditor editor({10, 20, 30}, TwelveHours());
    editor.PutCaretAt(9);
    EXPECT_EQ(editor.Press('P'), kStepped);
    EXPECT_EQ(editor.Shown(), "10:20:30 <|PM>");
    EXPECT_EQ(editor.Value(), (Time{22, 20, 30}));
    EXPECT_EQ(editor.Press('P'), kStepped);
    EXPECT_EQ(editor.Value(), (Time{22, 20, 30})) << "it is that half already";
    EXPECT_EQ(editor.PressShift('A'), kStepped) << "a capital";
    EXPECT_EQ(editor.Value(), (Time{10, 20, 30}));
    EXPECT_EQ(editor.Press('B'), kBeeped);
    EXPECT_EQ(editor.PressControl('P'), kBeeped);
}

TEST(TimeSuffix, LettersAreOthersOutsideIt) {
    TimeEditor editor({10, 20, 30}, TwelveHours());
    EXPECT_EQ(editor.Press('P'), kBeeped) << "in the hour";
    editor.PutCaretAt(8);
    EXPECT_EQ(editor.Press('P'), kMoved) << "on its separator";
    EXPECT_EQ(editor.Shown(), "10:20:30 |AM");
    TimeEditor without({10, 20, 30}, TwentyFourHours());
    without.Press(kEnd);
    EXPECT_EQ(without.Press('P'), kBeeped);
    editor.MakeNull();
    EXPECT_EQ(editor.Press('P'), kBeeped);
}

TEST(TimeSuffix, LettersOfTheUsersTextsComeFirst) {
    const Format german = TwelveHours(true, "vorm.", "nachm.");
    EXPECT_EQ(HalfOfKey(german, 'V'), HalfOfDay::Morning);
    EXPECT_EQ(HalfOfKey(german, 'N'), HalfOfDay::Afternoon);
    EXPECT_EQ(HalfOfKey(german, 'A'), HalfOfDay::Morning);
    EXPECT_EQ(HalfOfKey(german, 'P'), HalfOfDay::Afternoon);
    EXPECT_EQ(HalfOfKey(german, 'M'), HalfOfDay::None);
    const Format swapped = TwelveHours(true, "Pre", "After");
    EXPECT_EQ(HalfOfKey(swapped, 'P'), HalfOfDay::Morning);
    EXPECT_EQ(HalfOfKey(swapped, 'A'), HalfOfDay::Afternoon);
    const Format same = TwelveHours(true, "x-am", "X-pm");
    EXPECT_EQ(HalfOfKey(same, 'X'), HalfOfDay::Other);
    const Format odd = TwelveHours(true, "", "\xB5\xB5");
    for (const std::uint32_t code : {0u, 0xB5u, 0xFFFFFFB5u, std::uint32_t{'1'}, 0x5Bu, 97u}) {
        EXPECT_EQ(HalfOfKey(odd, code), HalfOfDay::None) << code;
    }
}

TEST(TimeSuffix, ALetterOfBothToggles) {
    TimeEditor editor({10, 20, 30}, TwelveHours(true, "x-am", "X-pm"));
    editor.Press(kEnd);
    editor.Press('X');
    EXPECT_EQ(editor.Shown(), "10:20:30 <|X-pm>");
    editor.Press('X');
    EXPECT_EQ(editor.Shown(), "10:20:30 <|x-am>");
}

} // namespace
} // namespace vorn::timeedit
