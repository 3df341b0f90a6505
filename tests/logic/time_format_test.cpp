// A time as text.
#include "tests/support/time_editor.h"
#include "timeedit/time_clock.h"

namespace vorn::timeedit {
namespace {

std::string Text(const Time& value, const Format& format, bool focused = false) {
    HeldTime held = Held(value, format);
    held.focused = focused ? 1 : 0;
    FormatValueText(held);
    return held.valueText;
}

Format WithoutLeadingZero(Format format) {
    format.leadingZero = 0;
    return format;
}

TEST(TimeFormat, NullIsEmpty) {
    HeldTime held = Held({14, 5, 9}, TwentyFourHours());
    held.null = 1;
    FormatValueText(held);
    EXPECT_STREQ(held.valueText, "");
}

TEST(TimeFormat, TwelveHourFormCountsFromTwelve) {
    const Format format = TwelveHours();
    EXPECT_EQ(Text({0, 0, 0}, format), "12:00:00 AM");
    EXPECT_EQ(Text({1, 0, 0}, format), "01:00:00 AM");
    EXPECT_EQ(Text({11, 59, 59}, format), "11:59:59 AM");
    EXPECT_EQ(Text({12, 0, 0}, format), "12:00:00 PM");
    EXPECT_EQ(Text({13, 0, 0}, format), "01:00:00 PM");
    EXPECT_EQ(Text({23, 5, 9}, format), "11:05:09 PM");
}

TEST(TimeFormat, TwentyFourHourFormHasNoSuffix) {
    Format format = TwentyFourHours();
    SetSuffixes(format, "AM", "PM");
    EXPECT_EQ(Text({0, 0, 0}, format), "00:00:00");
    EXPECT_EQ(Text({14, 5, 9}, format), "14:05:09");
}

TEST(TimeFormat, LeadingZeroByTheUserOrTheFocus) {
    EXPECT_EQ(Text({9, 5, 7}, TwentyFourHours()), "09:05:07");
    EXPECT_EQ(Text({9, 5, 7}, WithoutLeadingZero(TwentyFourHours())), "9:05:07");
    EXPECT_EQ(Text({9, 5, 7}, WithoutLeadingZero(TwentyFourHours()), true), "09:05:07");
    EXPECT_EQ(Text({9, 5, 7}, WithoutLeadingZero(TwentyFourHours(false))), "9:05");
    EXPECT_EQ(Text({9, 5, 7}, WithoutLeadingZero(TwentyFourHours(false)), true), "09:05");
    EXPECT_EQ(Text({0, 0, 0}, WithoutLeadingZero(TwentyFourHours())), "0:00:00");
    EXPECT_EQ(Text({21, 5, 7}, WithoutLeadingZero(TwelveHours())), "9:05:07 PM");
    EXPECT_EQ(Text({21, 5, 7}, WithoutLeadingZero(TwelveHours(false))), "9:05 PM");
    EXPECT_EQ(Text({10, 5, 7}, WithoutLeadingZero(TwelveHours(false))), "10:05 AM");
}

TEST(TimeFormat, EmptySuffixesHaveNoBlank) {
    EXPECT_EQ(Text({9, 5, 7}, TwelveHours(true, "", "")), "09:05:07");
    EXPECT_EQ(Text({9, 5, 7}, TwelveHours(true, "", "PM")), "09:05:07");
    EXPECT_EQ(Text({21, 5, 7}, TwelveHours(true, "", "PM")), "09:05:07 PM");
    EXPECT_EQ(Text({9, 5, 7}, TwelveHours(true, "vorm.", "nachm.")), "09:05:07 vorm.");
}

TEST(TimeFormat, AnySeparator) {
    Format format = TwentyFourHours();
    format.separator = '.';
    EXPECT_EQ(Text({9, 5, 7}, format), "09.05.07");
    format.separator = 0x41B7;
    EXPECT_EQ(Text({9, 5, 7}, format), "09\xB7"
                                       "05\xB7"
                                       "07")
        << "the low byte";
}

// Hosts store what they like; the text has room for it.
TEST(TimeFormat, NumbersThatAreNoTimeAreShownAsTheyAre) {
    const Format format = TwelveHours(true, "12345678", "abcdefgh");
    EXPECT_EQ(Text({24, 60, 61}, format), "24:60:61 abcdefgh");
    EXPECT_EQ(Text({65535, 65535, 65535}, format), "65535:65535:65535 abcdefgh");
    EXPECT_EQ(Text({100, 0, 0}, TwentyFourHours()), "100:00:00");
}

// The fields are where the text has its separators, whatever the form.
TEST(TimeFormat, FieldsAreWhereTheTextHasThem) {
    for (const Format& base : {TwentyFourHours(), TwentyFourHours(false), TwelveHours(),
                               TwelveHours(false), TwelveHours(true, "", "p")}) {
        for (const bool leadingZero : {false, true}) {
            for (const bool focused : {false, true}) {
                for (const Time& value : {Time{0, 0, 0}, Time{9, 5, 7}, Time{13, 59, 59},
                                          Time{10, 0, 1}, Time{300, 100, 65535}}) {
                    Format format = base;
                    format.leadingZero = leadingZero ? 1 : 0;
                    HeldTime held = Held(value, format);
                    held.focused = focused ? 1 : 0;
                    FormatValueText(held);
                    const edit::FieldMap map = FieldMapOf(held);
                    const std::string text = held.valueText;
                    EXPECT_EQ(static_cast<std::size_t>(map.length), text.size()) << text;
                    std::size_t start = 0;
                    for (std::int32_t field = 0; field < map.count; ++field) {
                        EXPECT_EQ(static_cast<std::size_t>(map.starts[field]), start) << text;
                        start = text.find_first_of(": ", start) + 1;
                    }
                    EXPECT_EQ(start, 0u) << "no separator is left: " << text;
                }
            }
        }
    }
}

TEST(TimeFormat, ClockTextIsAlwaysTheSameForm) {
    char text[kClockTextSize];
    FormatClockText(text, {9, 5, 7});
    EXPECT_STREQ(text, "09:05:07");
    FormatClockText(text, {23, 59, 59});
    EXPECT_STREQ(text, "23:59:59");
    FormatClockText(text, {0, 0, 0});
    EXPECT_STREQ(text, "00:00:00");
}

} // namespace
} // namespace vorn::timeedit
