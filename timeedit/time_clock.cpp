#include "timeedit/time_clock.h"

#include "core/text.h"

namespace vorn::timeedit {

void FormatClockText(char (&text)[kClockTextSize], const Time& now) {
    TextBuilder clock = StartText(text);
    AppendNumber(clock, now.hour, 2);
    for (const std::uint16_t number : {now.minute, now.second}) {
        Append(clock, ':');
        AppendNumber(clock, number, 2);
    }
}

} // namespace vorn::timeedit
