#include "timeedit/time_format.h"

#include "core/text.h"

namespace vorn::timeedit {

std::uint16_t ShownHour(const HeldTime& time) {
    const std::uint16_t hour = time.value.hour;
    if (time.format.twentyFourHour != 0 || hour > kLastHour) {
        return hour;
    }
    const auto shown = static_cast<std::uint16_t>(hour % kNoon);
    return shown == 0 ? kNoon : shown;
}

int HourPlaces(const HeldTime& time) {
    return time.focused != 0 || time.format.leadingZero != 0 ? 2 : 1;
}

void FormatValueText(HeldTime& time) {
    TextBuilder text = StartText(time.valueText);
    if (time.null != 0) {
        return;
    }
    const char separator = SeparatorOf(time.format);
    AppendNumber(text, ShownHour(time), HourPlaces(time));
    Append(text, separator);
    AppendNumber(text, time.value.minute, 2);
    if (time.format.showSeconds != 0) {
        Append(text, separator);
        AppendNumber(text, time.value.second, 2);
    }
    const char* suffix = SuffixOf(time);
    if (*suffix != '\0') {
        Append(text, ' ');
    }
    for (; *suffix != '\0'; ++suffix) {
        Append(text, *suffix);
    }
}

} // namespace vorn::timeedit
