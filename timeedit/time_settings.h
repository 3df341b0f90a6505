// What decides how a time is written: the user's regional settings and what the host changed.
#pragma once

#include "core/profile.h"
#include "timeedit/time_value.h"

namespace vorn::timeedit {

// Takes the user's settings; whether seconds are shown stays. Without a key a time is written in
// the 24-hour form with leading zeros and colons, "AM" stands before noon, and after it nothing in
// the 24-hour form and "PM" in the other. An empty separator counts as missing.
void ReadUserFormat(const RegionalProfile& profile, Format& format);

// The record in which hosts read and write time and format. Its layout is fixed.
#pragma pack(push, 1)
struct EditParams {
    std::uint32_t setTime; // non-zero: the time is taken
    Time time;
    std::uint16_t reserved1;  // neither read nor written, as the other
    std::uint32_t keepFormat; // non-zero: the rest is ignored
    std::uint16_t separator;  // 0: the one there is
    std::uint16_t reserved2;
    std::uint32_t leadingZero;
    std::uint32_t twentyFourHour;
    std::uint32_t showSeconds;
    char amText[kSuffixSize];
    char pmText[kSuffixSize];
};
#pragma pack(pop)

static_assert(sizeof(EditParams) == 50);
static_assert(offsetof(EditParams, setTime) == 0 && offsetof(EditParams, time) == 4);
static_assert(offsetof(EditParams, reserved1) == 10 && offsetof(EditParams, keepFormat) == 12);
static_assert(offsetof(EditParams, separator) == 16 && offsetof(EditParams, reserved2) == 18);
static_assert(offsetof(EditParams, leadingZero) == 20 &&
              offsetof(EditParams, twentyFourHour) == 24);
static_assert(offsetof(EditParams, showSeconds) == 28 && offsetof(EditParams, amText) == 32);
static_assert(offsetof(EditParams, pmText) == 41);

// Fills the record but for the reserved fields and `keepFormat`.
void GetEditParams(const HeldTime& time, EditParams& params);

// Takes the time if the record says so and the host allows it, and the format if the record says
// so, whatever the host answered. Texts are cut to their fields. Returns whether the time was
// taken. The value text stays.
bool SetEditParams(HeldTime& time, const EditParams& params, bool allowed);

} // namespace vorn::timeedit
