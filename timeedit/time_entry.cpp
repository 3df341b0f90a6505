#include "timeedit/time_entry.h"

#include "timeedit/time_format.h"

#include <algorithm>

namespace vorn::timeedit {
namespace {

std::int32_t DigitFieldsOf(const HeldTime& time) {
    return time.format.showSeconds != 0 ? 3 : 2;
}

std::int32_t PlacesOf(std::uint16_t number, std::int32_t atLeast) {
    std::int32_t places = 1;
    for (; number >= 10; number /= 10) {
        ++places;
    }
    return std::max(places, atLeast);
}

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

// Digits that hosts stored may be five.
std::uint16_t NumberAt(const char* text, std::int32_t start, std::int32_t end) {
    std::uint32_t number = 0;
    for (std::int32_t index = start; index < end && IsDigit(text[index]); ++index) {
        number = number * 10 + static_cast<std::uint32_t>(text[index] - '0');
    }
    return static_cast<std::uint16_t>(std::min<std::uint32_t>(number, 0xFFFF));
}

// The hour that is shown as this one in the half of the day that the time is in.
std::uint16_t HourOfShown(const HeldTime& time, std::uint16_t shown) {
    if (time.format.twentyFourHour != 0) {
        return shown;
    }
    return static_cast<std::uint16_t>(shown % kNoon + (IsMorning(time.value) ? 0 : kNoon));
}

} // namespace

FieldKind KindOf(const HeldTime& time, std::int32_t field) {
    if (field >= DigitFieldsOf(time)) {
        return FieldKind::Suffix;
    }
    return static_cast<FieldKind>(field);
}

edit::FieldMap FieldMapOf(const HeldTime& time) {
    edit::FieldMap map;
    const std::int32_t digitFields = DigitFieldsOf(time);
    const std::int32_t suffix = SuffixLengthOf(time);
    map.count = digitFields + (suffix != 0 ? 1 : 0);
    const std::int32_t places[] = {PlacesOf(ShownHour(time), HourPlaces(time)),
                                   PlacesOf(time.value.minute, 2), PlacesOf(time.value.second, 2)};
    std::int32_t end = -1;
    for (std::int32_t field = 0; field < digitFields; ++field) {
        map.starts[field] = end + 1;
        end = map.starts[field] + places[field];
    }
    if (suffix != 0) {
        map.starts[digitFields] = end + 1;
        end = map.starts[digitFields] + suffix;
    }
    map.length = time.null != 0 ? 0 : end;
    return map;
}

std::uint16_t LowestOf(const HeldTime& time, FieldKind kind) {
    return kind == FieldKind::Hour && time.format.twentyFourHour == 0 ? 1 : 0;
}

std::uint16_t HighestOf(const HeldTime& time, FieldKind kind) {
    switch (kind) {
    case FieldKind::Hour:
        return time.format.twentyFourHour != 0 ? kLastHour : kNoon;
    case FieldKind::Minute:
        return kLastMinute;
    case FieldKind::Second:
    case FieldKind::Suffix:
        break;
    }
    return kLastSecond;
}

bool IsDigitIndex(const HeldTime& time, const edit::FieldMap& map, std::int32_t index) {
    const std::int32_t field = FieldAt(map, index);
    return KindOf(time, field) != FieldKind::Suffix && index < FieldEnd(map, field);
}

bool IsInSuffix(const TimeEntry& entry) {
    const edit::FieldMap map = FieldMapOf(entry.time);
    return entry.time.null == 0 && SuffixLengthOf(entry.time) != 0 &&
           entry.caret.index >= map.starts[map.count - 1];
}

void ReadTypedText(HeldTime& time, const char* text) {
    const edit::FieldMap map = FieldMapOf(time);
    std::uint16_t numbers[] = {0, 0, std::min(time.value.second, kLastSecond)};
    for (std::int32_t field = 0; field < DigitFieldsOf(time); ++field) {
        const FieldKind kind = KindOf(time, field);
        numbers[field] = std::clamp(NumberAt(text, map.starts[field], FieldEnd(map, field)),
                                    LowestOf(time, kind), HighestOf(time, kind));
    }
    StoreTime(time, {HourOfShown(time, numbers[0]), numbers[1], numbers[2]});
}

void ResetCaret(TimeEntry& entry) {
    entry.caret = {};
}

void EnterFocus(TimeEntry& entry) {
    entry.time.focused = 1;
    FormatValueText(entry.time);
    ResetCaret(entry);
    SelectFieldOf(entry, 0);
}

void LeaveFocus(TimeEntry& entry) {
    entry.time.focused = 0;
    RenewText(entry);
}

void RenewText(TimeEntry& entry) {
    FormatValueText(entry.time);
    const edit::FieldMap map = FieldMapOf(entry.time);
    KeepInText(entry.caret, map.length);
    entry.caret.field = std::min(entry.caret.field, map.count - 1);
}

void SelectFieldOf(TimeEntry& entry, std::int32_t field) {
    const edit::FieldMap map = FieldMapOf(entry.time);
    SelectField(entry.caret, map, std::min(field, map.count - 1));
}

void FinishChange(edit::Actions& actions, TimeEntry& entry, edit::ActionKind repaint) {
    entry.modified = 1;
    RenewText(entry);
    AppendChange(actions, repaint);
}

} // namespace vorn::timeedit
