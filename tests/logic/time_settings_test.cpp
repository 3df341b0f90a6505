// The user's settings and the record of time and format.
#include "tests/support/time_editor.h"
#include "timeedit/time_settings.h"

#include <array>
#include <bit>
#include <map>
#include <vector>

namespace vorn::timeedit {
namespace {

// WIN.INI's section as a map; what is asked and with what is noted.
struct Profile {
    std::map<std::string, std::string> keys;
    std::vector<std::string> asked;

    static void String(void* context, const char* key, const char* fallback, char* buffer,
                       std::uint32_t size) {
        auto& self = *static_cast<Profile*>(context);
        self.asked.push_back(std::string(key) + "=" + fallback + "/" + std::to_string(size));
        const auto found = self.keys.find(key);
        const std::string text = found == self.keys.end() ? fallback : found->second;
        const std::string cut = text.substr(0, size - 1);
        std::copy(cut.begin(), cut.end(), buffer);
        buffer[cut.size()] = '\0';
    }
    static std::uint32_t Integer(void* context, const char* key, std::int32_t fallback) {
        auto& self = *static_cast<Profile*>(context);
        self.asked.push_back(std::string(key) + "=" + std::to_string(fallback));
        const auto found = self.keys.find(key);
        return found == self.keys.end() ? static_cast<std::uint32_t>(fallback)
                                        : static_cast<std::uint32_t>(std::stoul(found->second));
    }

    Format Read() {
        Format format;
        SetSuffixes(format, "old", "older");
        ReadUserFormat({this, String, Integer}, format);
        return format;
    }
};

TEST(TimeSettings, DefaultsAreThe24HourForm) {
    Profile profile;
    const Format format = profile.Read();
    EXPECT_EQ(format.twentyFourHour, 1);
    EXPECT_EQ(format.leadingZero, 1);
    EXPECT_EQ(format.separator, ':');
    EXPECT_STREQ(format.amText, "AM");
    EXPECT_STREQ(format.pmText, "");
    EXPECT_EQ(profile.asked, (std::vector<std::string>{"iTime=1", "iTLZero=1", "s2359=/9",
                                                       "s1159=AM/9", "sTime=:/2"}));
}

TEST(TimeSettings, PmIsTheDefaultOfThe12HourFormAlone) {
    Profile profile;
    profile.keys = {{"iTime", "0"}};
    EXPECT_STREQ(profile.Read().pmText, "PM");
    profile.keys = {{"iTime", "0"}, {"s2359", ""}};
    EXPECT_STREQ(profile.Read().pmText, "");
    profile.keys = {{"iTime", "1"}, {"s2359", "pm"}};
    EXPECT_STREQ(profile.Read().pmText, "pm");
}

TEST(TimeSettings, TakeTheUsers) {
    Profile profile;
    profile.keys = {{"iTime", "0"},
                    {"iTLZero", "0"},
                    {"s1159", "vorm."},
                    {"s2359", "nachmittags"},
                    {"sTime", ".."}};
    const Format format = profile.Read();
    EXPECT_EQ(format.twentyFourHour, 0);
    EXPECT_EQ(format.leadingZero, 0);
    EXPECT_STREQ(format.amText, "vorm.");
    EXPECT_STREQ(format.pmText, "nachmitt") << "eight characters";
    EXPECT_EQ(format.separator, '.');
    profile.keys["sTime"] = "";
    EXPECT_EQ(profile.Read().separator, ':') << "none is not a separator";
    profile.keys["sTime"] = "\xB7";
    EXPECT_EQ(profile.Read().separator, 0xB7);
}

TEST(TimeSettings, LeaveTheSeconds) {
    Profile profile;
    for (const std::int32_t shown : {0, 64}) {
        Format format;
        format.showSeconds = shown;
        ReadUserFormat({&profile, Profile::String, Profile::Integer}, format);
        EXPECT_EQ(format.showSeconds, shown);
    }
}

constexpr std::uint32_t kUntouched = 0xCDCDCDCD;

EditParams Untouched() {
    std::array<unsigned char, sizeof(EditParams)> bytes;
    bytes.fill(0xCD);
    return std::bit_cast<EditParams>(bytes);
}

TEST(TimeParams, AreFilledButForReservedAndKeepFormat) {
    Format format = TwelveHours(true, "a", "12345678");
    format.leadingZero = 3;
    format.showSeconds = 64;
    format.separator = 0x2D2E;
    EditParams params = Untouched();
    GetEditParams(Held({14, 5, 9}, format), params);
    unsigned char bytes[50];
    std::memcpy(bytes, &params, sizeof bytes);
    const unsigned char expected[50] = {
        1,    0,    0,    0,                           // set-time flag
        14,   0,    5,    0,    9,   0,                // time
        0xCD, 0xCD,                                    // reserved
        0xCD, 0xCD, 0xCD, 0xCD,                        // keep-format
        0x2E, 0x2D,                                    // separator
        0xCD, 0xCD,                                    // reserved
        3,    0,    0,    0,                           // leading zero
        0,    0,    0,    0,                           // 24-hour
        64,   0,    0,    0,                           // seconds
        'a',  0,    0,    0,    0,   0,   0,   0,   0, // AM
        '1',  '2',  '3',  '4',  '5', '6', '7', '8', 0, // PM
    };
    for (int index = 0; index < 50; ++index) {
        EXPECT_EQ(bytes[index], expected[index]) << "offset " << index;
    }
}

EditParams AllOthers() {
    EditParams params = {};
    params.setTime = 2;
    params.time = {21, 22, 23};
    params.separator = '-';
    params.leadingZero = 0;
    params.twentyFourHour = 0;
    params.showSeconds = 1;
    std::memcpy(params.amText, "morning", 8);
    std::memcpy(params.pmText, "nightfall", 9); // without a terminator
    return params;
}

TEST(TimeParams, AreTaken) {
    HeldTime held = Held({1, 2, 3}, TwentyFourHours(false));
    held.null = 1;
    EXPECT_TRUE(SetEditParams(held, AllOthers(), true));
    EXPECT_EQ(held.value, (Time{21, 22, 23}));
    EXPECT_EQ(held.null, 0);
    EXPECT_EQ(held.am, 0);
    FormatValueText(held);
    EXPECT_STREQ(held.valueText, "9-22-23 nightfal");
    EXPECT_STREQ(held.format.amText, "morning");
}

TEST(TimeParams, RefusalKeepsTheTimeAlone) {
    HeldTime held = Held({1, 2, 3}, TwentyFourHours(false));
    EXPECT_FALSE(SetEditParams(held, AllOthers(), false));
    EXPECT_EQ(held.value, (Time{1, 2, 3}));
    EXPECT_EQ(held.am, 1);
    FormatValueText(held);
    EXPECT_STREQ(held.valueText, "1-02-03 morning");
}

TEST(TimeParams, FlagsChooseWhatIsTaken) {
    HeldTime held = Held({1, 2, 3}, TwentyFourHours(false));
    EditParams params = AllOthers();
    params.keepFormat = 1;
    EXPECT_TRUE(SetEditParams(held, params, true));
    FormatValueText(held);
    EXPECT_STREQ(held.valueText, "21:22");
    params.keepFormat = 0;
    params.setTime = 0;
    params.time = {5, 5, 5};
    params.separator = 0;
    EXPECT_FALSE(SetEditParams(held, params, true));
    EXPECT_EQ(held.format.separator, ':') << "0 keeps the one there is";
    EXPECT_EQ(held.value, (Time{21, 22, 23}));
    params.separator = 0x0100;
    SetEditParams(held, params, true);
    EXPECT_EQ(held.format.separator, ':') << "no character in it";
}

TEST(TimeParams, WhatWasGotChangesNothing) {
    const HeldTime held = Held({14, 5, 9}, TwelveHours(true, "a.m.", "p.m."));
    for (const std::uint32_t keepFormat : {0u, kUntouched}) {
        EditParams params = {};
        GetEditParams(held, params);
        params.keepFormat = keepFormat;
        HeldTime again = held;
        EXPECT_TRUE(SetEditParams(again, params, true));
        FormatValueText(again);
        EXPECT_STREQ(again.valueText, "02:05:09 p.m.");
        EXPECT_EQ(again.value, held.value);
        EXPECT_EQ(again.am, held.am);
    }
}

} // namespace
} // namespace vorn::timeedit
