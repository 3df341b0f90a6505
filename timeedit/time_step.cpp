#include "timeedit/time_step.h"

#include <algorithm>

namespace vorn::timeedit {
namespace {

std::uint16_t Stepped(std::uint16_t number, std::uint16_t last, bool up) {
    number = std::min(number, last);
    if (up) {
        return static_cast<std::uint16_t>(number == last ? 0 : number + 1);
    }
    return static_cast<std::uint16_t>(number == 0 ? last : number - 1);
}

std::uint16_t InOtherHalf(std::uint16_t hour) {
    return static_cast<std::uint16_t>(hour < kNoon ? hour + kNoon : hour - kNoon);
}

// The virtual key of a letter that may be small; 0 for anything else, which no key is.
std::uint32_t KeyOfLetter(char letter) {
    if (letter >= 'a' && letter <= 'z') {
        return static_cast<std::uint32_t>(letter - 'a' + 'A');
    }
    return letter >= 'A' && letter <= 'Z' ? static_cast<std::uint32_t>(letter) : 0;
}

Time ValidTime(const Time& time) {
    return {std::min(time.hour, kLastHour), std::min(time.minute, kLastMinute),
            std::min(time.second, kLastSecond)};
}

void FinishStep(edit::Actions& actions, TimeEntry& entry, const Time& time, std::int32_t field) {
    StoreTime(entry.time, time);
    FinishChange(actions, entry, edit::ActionKind::RepaintText);
    SelectFieldOf(entry, field);
}

} // namespace

void StepField(edit::Actions& actions, TimeEntry& entry, bool up) {
    const std::int32_t field = entry.caret.field;
    Time time = ValidTime(entry.time.value);
    switch (KindOf(entry.time, field)) {
    case FieldKind::Hour:
        time.hour = Stepped(time.hour, kLastHour, up);
        break;
    case FieldKind::Minute:
        time.minute = Stepped(time.minute, kLastMinute, up);
        break;
    case FieldKind::Second:
        time.second = Stepped(time.second, kLastSecond, up);
        break;
    case FieldKind::Suffix:
        time.hour = InOtherHalf(time.hour);
        break;
    }
    FinishStep(actions, entry, time, field);
}

HalfOfDay HalfOfKey(const Format& format, std::uint32_t code) {
    const bool am = code == KeyOfLetter(format.amText[0]);
    const bool pm = code == KeyOfLetter(format.pmText[0]);
    if (code < 'A' || code > 'Z') {
        return HalfOfDay::None;
    }
    if (am && pm) {
        return HalfOfDay::Other;
    }
    if (am || (!pm && code == 'A')) {
        return HalfOfDay::Morning;
    }
    return pm || code == 'P' ? HalfOfDay::Afternoon : HalfOfDay::None;
}

void ChooseHalf(edit::Actions& actions, TimeEntry& entry, HalfOfDay half) {
    Time time = ValidTime(entry.time.value);
    const bool toMorning = half == HalfOfDay::Other ? !IsMorning(time) : half == HalfOfDay::Morning;
    if (toMorning != IsMorning(time)) {
        time.hour = InOtherHalf(time.hour);
    }
    FinishStep(actions, entry, time, entry.caret.field);
}

} // namespace vorn::timeedit
