// Text as a time.
#include "tests/support/time_editor.h"
#include "timeedit/time_clock.h"
#include "timeedit/time_parse.h"

#include <cstdio>

namespace vorn::timeedit {
namespace {

constexpr Time kElsewhere = {3, 33, 33}; // not what any of these texts says

HeldTime Read(const char* text, const Format& format) {
    HeldTime held = Held(kElsewhere, format);
    EXPECT_TRUE(ReadTimeText(held, text)) << text;
    EXPECT_EQ(held.null, 0);
    return held;
}

Time TimeOf(const char* text, const Format& format) {
    return Read(text, format).value;
}

// A 24-hour form of a user who has both texts.
Format Named24() {
    Format format = TwentyFourHours();
    SetSuffixes(format, "AM", "PM");
    return format;
}

TEST(TimeParse, SuffixMakesTheHour) {
    EXPECT_EQ(TimeOf("2:05:09 PM", TwelveHours()), (Time{14, 5, 9}));
    EXPECT_EQ(TimeOf("12:00:00 AM", TwelveHours()), (Time{0, 0, 0}));
    EXPECT_EQ(TimeOf("12:00:00 PM", TwelveHours()), (Time{12, 0, 0}));
    EXPECT_EQ(TimeOf("11:59:59 AM", TwelveHours()), (Time{11, 59, 59}));
    EXPECT_EQ(TimeOf("14:00:00 AM", TwelveHours()), (Time{2, 0, 0})) << "12 taken off";
    EXPECT_EQ(TimeOf("14:00:00 PM", TwelveHours()), (Time{14, 0, 0}));
    EXPECT_EQ(TimeOf("0:00:00 PM", TwelveHours()), (Time{12, 0, 0}));
    EXPECT_EQ(TimeOf("2:05:09 pM", TwelveHours()), (Time{14, 5, 9})) << "whatever the case";
    EXPECT_EQ(TimeOf("2:05:09 PM", Named24()), (Time{14, 5, 9})) << "in either form";
}

TEST(TimeParse, WithoutASuffixTheHourDecides) {
    EXPECT_EQ(TimeOf("14:30:00", Named24()), (Time{14, 30, 0}));
    EXPECT_EQ(TimeOf("09:15:00", Named24()), (Time{9, 15, 0}));
    EXPECT_EQ(TimeOf("9:15:00 xx", TwelveHours()), (Time{9, 15, 0})) << "nobody's suffix";
    EXPECT_EQ(TimeOf("21:15:00 xx", TwelveHours()), (Time{21, 15, 0}));
    EXPECT_EQ(TimeOf("9:15:00 P", TwelveHours()), (Time{9, 15, 0})) << "not all of it";
    EXPECT_EQ(TimeOf("9:15:00 PMs", TwelveHours()), (Time{9, 15, 0}));
}

// The order of the comparisons: AM text, PM text, hour.
TEST(TimeParse, NoSuffixIsAnEmptyOne) {
    EXPECT_EQ(TimeOf("14:30:00", TwelveHours(true, "", "")), (Time{2, 30, 0}));
    EXPECT_EQ(TimeOf("14:30:00", TwelveHours(true, "", "PM")), (Time{2, 30, 0}));
    EXPECT_EQ(TimeOf("09:15:00", TwelveHours(true, "AM", "")), (Time{21, 15, 0}));
    Format usual = TwentyFourHours();
    SetSuffixes(usual, "AM", "");
    EXPECT_EQ(TimeOf("09:15:00", usual), (Time{21, 15, 0}));
    EXPECT_EQ(TimeOf("14:30:00", usual), (Time{14, 30, 0}));
    EXPECT_EQ(TimeOf("9:15 AM", usual), (Time{9, 15, 0}));
    EXPECT_EQ(TimeOf("9:15 x", TwelveHours(true, "x", "X")), (Time{9, 15, 0})) << "AM first";
}

TEST(TimeParse, PiecesEndAtSeparatorsAndTheSuffixBeginsAtABlank) {
    EXPECT_EQ(TimeOf("7 PM", TwelveHours()), (Time{19, 0, 0}));
    EXPECT_EQ(TimeOf("7:8 PM", TwelveHours()), (Time{19, 8, 0}));
    EXPECT_EQ(TimeOf("7::9", Named24()), (Time{7, 0, 9}));
    EXPECT_EQ(TimeOf(":8", Named24()), (Time{0, 8, 0}));
    EXPECT_EQ(TimeOf("7:8:9:PM", TwelveHours()), (Time{19, 8, 9})) << "the fourth piece";
    EXPECT_EQ(TimeOf("7:8:9:PM:AM", TwelveHours()), (Time{19, 8, 9})) << "no fifth";
    EXPECT_EQ(TimeOf("7:8:9  PM ", TwelveHours()), (Time{19, 8, 9})) << "blanks";
    EXPECT_EQ(TimeOf(" 7:8:9", Named24()), (Time{0, 0, 0})) << "a blank first: all is suffix";
    Format points = TwelveHours();
    points.separator = '.';
    EXPECT_EQ(TimeOf("7.8.9 PM", points), (Time{19, 8, 9}));
    EXPECT_EQ(TimeOf("7:8.9", points), (Time{7, 9, 0})) << "a colon is no separator then";
    Format blanks = TwelveHours();
    blanks.separator = ' ';
    EXPECT_EQ(TimeOf("7 8 9 PM", blanks), (Time{19, 8, 9})) << "the separator comes first";
}

TEST(TimeParse, NumbersAreLeadingDigitsUnchecked) {
    EXPECT_EQ(TimeOf("7x8:5y:z", Named24()), (Time{7, 5, 0}));
    EXPECT_EQ(TimeOf("-7:+5:9", Named24()), (Time{0, 0, 9})) << "a sign is no digit";
    EXPECT_EQ(TimeOf("99:88:77", Named24()), (Time{99, 88, 77}));
    EXPECT_EQ(TimeOf("65537:65535:65540", Named24()), (Time{1, 65535, 4})) << "16 bits";
    EXPECT_EQ(TimeOf("xyz", Named24()), (Time{0, 0, 0}));
}

TEST(TimeParse, LongTextsAreCut) {
    // 19 characters of a piece count, so the 5 behind 18 zeros does and the 6 does not.
    EXPECT_EQ(TimeOf("00000000000000000056:1", Named24()), (Time{5, 1, 0}));
    // 63 characters of a text count: behind 60 of them ":45" makes it to the 4.
    const std::string start(60, '0');
    EXPECT_EQ(TimeOf((start + ":45").c_str(), Named24()), (Time{0, 45, 0}));
    EXPECT_EQ(TimeOf((start + "0:45").c_str(), Named24()), (Time{0, 4, 0}));
    EXPECT_EQ(TimeOf((start + "000:45").c_str(), Named24()), (Time{0, 0, 0}));
    EXPECT_EQ(TimeOf((start + start + start).c_str(), Named24()), (Time{0, 0, 0}));
}

TEST(TimeParse, SuffixesWithBlanksAreRecognized) {
    const Format format = TwelveHours(true, "a. m.", "p. m.");
    EXPECT_EQ(TimeOf("2:05:09 p. m.", format), (Time{14, 5, 9}));
    EXPECT_EQ(TimeOf("2:05:09 P.M.", format), (Time{14, 5, 9}));
    EXPECT_EQ(TimeOf("12:05:09 a. m.", format), (Time{0, 5, 9}));
    EXPECT_TRUE(IsSameSuffix("", ""));
    EXPECT_FALSE(IsSameSuffix("", "x"));
    EXPECT_FALSE(IsSameSuffix("x", ""));
    EXPECT_FALSE(IsSameSuffix("[", "{")) << "32 apart, and no letters";
    EXPECT_FALSE(IsSameSuffix("", " ")) << "none at all is not one of blanks";
    EXPECT_EQ(TimeOf("14:30:00", TwelveHours(true, " ", "PM")), (Time{14, 30, 0}));
}

TEST(TimeParse, EmptyTextsMakeItNull) {
    for (const char* text : {static_cast<const char*>(nullptr), ""}) {
        HeldTime held = Held({14, 5, 9}, TwelveHours());
        EXPECT_TRUE(ReadTimeText(held, text));
        EXPECT_EQ(held.null, 1);
        EXPECT_EQ(held.value, (Time{0, 0, 0}));
        EXPECT_EQ(held.am, 1);
        EXPECT_TRUE(ReadTimeText(held, text)) << "again: it is redrawn";
    }
}

TEST(TimeParse, TheSameTimeDoesNothing) {
    HeldTime held = Held({14, 5, 9}, TwelveHours());
    EXPECT_FALSE(ReadTimeText(held, "2:05:09 PM"));
    EXPECT_FALSE(ReadTimeText(held, "14:05:09"));
    EXPECT_TRUE(ReadTimeText(held, "2:05:10 PM"));
    EXPECT_FALSE(ReadTimeText(held, "2:05:10 PM"));
    held.am = 1; // hour and flag differ only when a text made them so
    EXPECT_TRUE(ReadTimeText(held, "2:05:10 PM")) << "the flag counts";
}

// Midnight's numbers are a null time's too, so it has to be told otherwise.
TEST(TimeParse, NullTimesStayNullForTheirOwnNumbers) {
    HeldTime held = Held(kElsewhere, TwelveHours());
    ReadTimeText(held, "");
    EXPECT_FALSE(ReadTimeText(held, "12:00:00 AM"));
    EXPECT_EQ(held.null, 1);
    EXPECT_TRUE(ReadTimeText(held, "12:00:01 AM"));
    EXPECT_EQ(held.null, 0);
    EXPECT_EQ(held.value, (Time{0, 0, 1}));
}

TEST(TimeParse, AmFlagFollowsTheSuffix) {
    EXPECT_EQ(Read("9:15:00 AM", TwelveHours()).am, 1);
    EXPECT_EQ(Read("9:15:00 PM", TwelveHours()).am, 0);
    EXPECT_EQ(Read("9:15:00", Named24()).am, 1);
    EXPECT_EQ(Read("12:15:00", Named24()).am, 0);
    const HeldTime odd = Read("30:00:00 AM", TwelveHours());
    EXPECT_EQ(odd.am, 1) << "as the text said";
    EXPECT_EQ(odd.value, (Time{18, 0, 0}));
}

struct Suffixes {
    const char* am;
    const char* pm;
};

// Formatted as C would, and read back.
TEST(TimeParse, EveryTimeOfDayReadsBack) {
    for (const Suffixes& suffixes : {Suffixes{"AM", "PM"},
                                     {"a.m.", "p.m."},
                                     {"vorm.", "nachm."},
                                     {"a. m.", "p. m."},
                                     {"f.h.", "e.h."},
                                     {"12345678", "9"}}) {
        const Format twelve = TwelveHours(true, suffixes.am, suffixes.pm);
        Format twentyFour = TwentyFourHours();
        SetSuffixes(twentyFour, suffixes.am, suffixes.pm);
        HeldTime first = Held({0, 0, 0}, twelve);
        HeldTime second = Held({0, 0, 0}, twentyFour);
        for (unsigned seconds = 1; seconds < 86400; ++seconds) {
            const unsigned hour = seconds / 3600;
            const unsigned shown = hour % 12 == 0 ? 12 : hour % 12;
            const Time time = {static_cast<std::uint16_t>(hour),
                               static_cast<std::uint16_t>(seconds / 60 % 60),
                               static_cast<std::uint16_t>(seconds % 60)};
            char expected[40];
            std::snprintf(expected, sizeof expected, "%02u:%02u:%02u %s", shown, time.minute,
                          time.second, hour < 12 ? suffixes.am : suffixes.pm);
            ASSERT_STREQ(Held(time, twelve).valueText, expected);
            ASSERT_TRUE(ReadTimeText(first, expected));
            ASSERT_EQ(first.value, time);
            ASSERT_EQ(first.am, hour < 12 ? 1 : 0);

            std::snprintf(expected, sizeof expected, "%02u:%02u:%02u", hour, time.minute,
                          time.second);
            ASSERT_STREQ(Held(time, twentyFour).valueText, expected);
            ASSERT_TRUE(ReadTimeText(second, expected));
            ASSERT_EQ(second.value, time);
        }
    }
}

// A tick is a text like any other: it changes the time once a second.
TEST(TimeClock, TicksChangeTheTimeOnceASecond) {
    for (const Format& format : {Named24(), TwelveHours()}) {
        HeldTime held = Held({8, 59, 57}, format);
        int changes = 0;
        for (int tick = 0; tick < 40; ++tick) { // four seconds, from 8:59:58
            const int seconds = 8 * 3600 + 59 * 60 + 58 + tick / 10;
            char text[kClockTextSize];
            FormatClockText(text, {static_cast<std::uint16_t>(seconds / 3600),
                                   static_cast<std::uint16_t>(seconds / 60 % 60),
                                   static_cast<std::uint16_t>(seconds % 60)});
            changes += ReadTimeText(held, text) ? 1 : 0;
        }
        EXPECT_EQ(changes, 4);
        EXPECT_EQ(held.value, (Time{9, 0, 1}));
    }
}

TEST(TimeClock, WithAnotherSeparatorShowsTheHourAlone) {
    Format points = Named24();
    points.separator = '.';
    HeldTime held = Held({0, 0, 0}, points);
    EXPECT_TRUE(ReadTimeText(held, "14:05:09"));
    EXPECT_EQ(held.value, (Time{14, 0, 0}));
    EXPECT_FALSE(ReadTimeText(held, "14:05:10"));
}

} // namespace
} // namespace vorn::timeedit
