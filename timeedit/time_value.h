// The time of day that a control holds, and how it is written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace vorn::timeedit {

// The record that hosts pass in and out, so its layout is fixed. Nothing keeps a host from storing
// numbers that are no time; every function here is defined for them too.
struct Time {
    std::uint16_t hour = 0; // 0 to 23
    std::uint16_t minute = 0;
    std::uint16_t second = 0;

    friend constexpr bool operator==(const Time&, const Time&) = default;
};
static_assert(sizeof(Time) == 6 && offsetof(Time, minute) == 2 && offsetof(Time, second) == 4);

constexpr std::uint16_t kLastHour = 23;
constexpr std::uint16_t kLastMinute = 59;
constexpr std::uint16_t kLastSecond = 59;
constexpr std::uint16_t kNoon = 12; // the first hour of the second half, and what divides them

constexpr std::size_t kSuffixSize = 9;
constexpr std::size_t kValueTextSize = 64;

struct Format {
    std::int32_t leadingZero = 1; // flags as they were given: any non-zero is on
    std::int32_t twentyFourHour = 1;
    std::int32_t showSeconds = 0;
    std::uint16_t separator = ':'; // one character, in the low byte; never 0
    char amText[kSuffixSize] = {};
    char pmText[kSuffixSize] = {};
};

struct HeldTime {
    Time value;
    std::int32_t null = 0; // non-zero: no time, whatever the numbers
    std::int32_t am = 1;   // the hour is before noon
    std::int32_t focused = 0;
    Format format;
    char valueText[kValueTextSize] = {};
};

inline char SeparatorOf(const Format& format) {
    return static_cast<char>(format.separator & 0xFF);
}

constexpr bool IsMorning(const Time& time) {
    return time.hour < kNoon;
}

// The text that stands behind this time, empty when none does.
inline const char* SuffixOf(const HeldTime& time) {
    if (time.format.twentyFourHour != 0) {
        return "";
    }
    return IsMorning(time.value) ? time.format.amText : time.format.pmText;
}

inline std::int32_t SuffixLengthOf(const HeldTime& time) {
    return static_cast<std::int32_t>(std::strlen(SuffixOf(time)));
}

// Takes a time as it is given, for a null one too. The value text stays.
inline void StoreTime(HeldTime& held, const Time& time) {
    held.value = time;
    held.am = IsMorning(time) ? 1 : 0;
    held.null = 0;
}

} // namespace vorn::timeedit
