#include "timeedit/time_settings.h"

#include "core/text.h"

#include <algorithm>

namespace vorn::timeedit {
namespace {

// One character and its terminator.
constexpr std::uint32_t kSeparatorSize = 2;

constexpr char kDefaultSeparator[] = ":";
constexpr char kDefaultAm[] = "AM";
constexpr char kDefaultPm[] = "PM";

// A text of the record, which need not be terminated there.
void TakeSuffix(char (&suffix)[kSuffixSize], const char (&given)[kSuffixSize]) {
    char text[kSuffixSize + 1] = {};
    std::copy_n(given, kSuffixSize, text);
    CopyText(suffix, text);
}

} // namespace

void ReadUserFormat(const RegionalProfile& profile, Format& format) {
    void* context = profile.context;
    format.twentyFourHour = static_cast<std::int32_t>(profile.readInteger(context, "iTime", 1));
    format.leadingZero = static_cast<std::int32_t>(profile.readInteger(context, "iTLZero", 1));
    profile.readString(context, "s2359", format.twentyFourHour != 0 ? "" : kDefaultPm,
                       format.pmText, kSuffixSize);
    profile.readString(context, "s1159", kDefaultAm, format.amText, kSuffixSize);
    char separator[kSeparatorSize] = {};
    profile.readString(context, "sTime", kDefaultSeparator, separator, kSeparatorSize);
    // A key without a text would leave the fields run together.
    format.separator =
        static_cast<unsigned char>(separator[0] != '\0' ? separator[0] : kDefaultSeparator[0]);
}

void GetEditParams(const HeldTime& time, EditParams& params) {
    const Format& format = time.format;
    params.setTime = 1;
    params.time = time.value;
    params.separator = format.separator;
    params.leadingZero = static_cast<std::uint32_t>(format.leadingZero);
    params.twentyFourHour = static_cast<std::uint32_t>(format.twentyFourHour);
    params.showSeconds = static_cast<std::uint32_t>(format.showSeconds);
    CopyText(params.amText, format.amText);
    CopyText(params.pmText, format.pmText);
}

bool SetEditParams(HeldTime& time, const EditParams& params, bool allowed) {
    const bool takeTime = allowed && params.setTime != 0;
    if (takeTime) {
        StoreTime(time, params.time);
    }
    if (params.keepFormat == 0) {
        Format& format = time.format;
        // The low byte is the character; without one there is none to take.
        if ((params.separator & 0xFF) != 0) {
            format.separator = params.separator;
        }
        format.twentyFourHour = static_cast<std::int32_t>(params.twentyFourHour);
        format.leadingZero = static_cast<std::int32_t>(params.leadingZero);
        format.showSeconds = static_cast<std::int32_t>(params.showSeconds);
        TakeSuffix(format.pmText, params.pmText);
        TakeSuffix(format.amText, params.amText);
    }
    return takeTime;
}

} // namespace vorn::timeedit
