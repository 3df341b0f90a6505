#include "timeedit/time_clipboard.h"

#include "timeedit/time_format.h"
#include "timeedit/time_parse.h"

#include <algorithm>

namespace vorn::timeedit {
namespace {

constexpr int kMostDigits = 2; // of a pasted number

void ZeroText(edit::Actions& actions, TimeEntry& entry, std::int32_t start, std::int32_t end,
              bool toMorning = false) {
    HeldTime& time = entry.time;
    ZeroDigits(time.valueText, time, start, end);
    ReadTypedText(time, time.valueText);
    if (toMorning) {
        time.value.hour = static_cast<std::uint16_t>(time.value.hour % kNoon);
        StoreTime(time, time.value);
    }
    PutCaret(entry.caret, FieldMapOf(time), start);
    FinishChange(actions, entry);
}

void MakeNull(edit::Actions& actions, TimeEntry& entry) {
    entry.time.null = 1;
    ResetCaret(entry);
    FinishChange(actions, entry);
}

bool IsWholeSuffixSelected(const TimeEntry& entry, const edit::FieldMap& map) {
    return SuffixLengthOf(entry.time) != 0 &&
           entry.caret.selectionStart <= map.starts[map.count - 1] &&
           entry.caret.selectionEnd == map.length;
}

void SkipBlanks(const char*& text, char separator) {
    while (*text == ' ' && *text != separator) {
        ++text;
    }
}

// Takes a number and the blanks around it. Whether there is one.
bool TakeNumber(const char*& text, char separator, std::uint16_t& number) {
    SkipBlanks(text, separator);
    int digits = 0;
    number = 0;
    for (; digits < kMostDigits && *text >= '0' && *text <= '9'; ++text) {
        number = static_cast<std::uint16_t>(number * 10 + (*text - '0'));
        ++digits;
    }
    SkipBlanks(text, separator);
    return digits != 0;
}

bool TakeSeparator(const char*& text, char separator) {
    if (*text != separator) {
        return false;
    }
    ++text;
    return true;
}

// The hour that a suffix makes of another; none if it is neither text.
bool ApplySuffix(std::uint16_t& hour, const char* suffix, const Format& format) {
    const bool am = IsSameSuffix(suffix, format.amText);
    if (!am && !IsSameSuffix(suffix, format.pmText)) {
        return false;
    }
    if (hour < 1 || hour > kNoon) {
        return false;
    }
    hour = static_cast<std::uint16_t>(hour % kNoon + (am ? 0 : kNoon));
    return true;
}

} // namespace

void ZeroDigits(char* text, const HeldTime& time, std::int32_t start, std::int32_t end) {
    const edit::FieldMap map = FieldMapOf(time);
    for (std::int32_t index = start; index < std::min(end, map.length); ++index) {
        if (IsDigitIndex(time, map, index)) {
            text[index] = '0';
        }
    }
}

void DeleteAtCaret(edit::Actions& actions, TimeEntry& entry) {
    if (HasSelection(entry.caret)) {
        ClearSelection(actions, entry);
        return;
    }
    const edit::FieldMap map = FieldMapOf(entry.time);
    const std::int32_t index = entry.caret.index;
    if (index < map.length && IsDigitIndex(entry.time, map, index)) {
        ZeroText(actions, entry, index, index + 1);
    } else {
        MoveCaret(actions, entry.caret, map, edit::CaretMove::Right);
    }
}

void DeleteBeforeCaret(edit::Actions& actions, TimeEntry& entry) {
    if (HasSelection(entry.caret)) {
        ClearSelection(actions, entry);
        return;
    }
    const edit::FieldMap map = FieldMapOf(entry.time);
    const std::uint16_t before = entry.caret.index;
    MoveCaret(actions, entry.caret, map, edit::CaretMove::Left);
    if (entry.caret.index != before && IsDigitIndex(entry.time, map, entry.caret.index)) {
        DeleteAtCaret(actions, entry);
    }
}

void ClearSelection(edit::Actions& actions, TimeEntry& entry) {
    RenewText(entry);
    if (!HasSelection(entry.caret)) {
        return;
    }
    const edit::FieldMap map = FieldMapOf(entry.time);
    const std::int32_t start = entry.caret.selectionStart;
    const std::int32_t end = entry.caret.selectionEnd;
    if (start == 0 && end == map.length) {
        MakeNull(actions, entry);
        return;
    }
    ZeroText(actions, entry, start, end, IsWholeSuffixSelected(entry, map));
}

bool ReadWholeTime(Time& time, const char* text, const Format& format) {
    const char separator = SeparatorOf(format);
    Time read;
    if (!TakeNumber(text, separator, read.hour) || !TakeSeparator(text, separator) ||
        !TakeNumber(text, separator, read.minute)) {
        return false;
    }
    if (TakeSeparator(text, separator) && !TakeNumber(text, separator, read.second)) {
        return false;
    }
    if (*text != '\0' && !ApplySuffix(read.hour, text, format)) {
        return false;
    }
    if (read.hour > kLastHour || read.minute > kLastMinute || read.second > kLastSecond) {
        return false;
    }
    time = read;
    return true;
}

void PasteText(edit::Actions& actions, TimeEntry& entry, const char* text) {
    HeldTime& time = entry.time;
    Time read;
    if (!ReadWholeTime(read, text, time.format)) {
        Append(actions, {edit::ActionKind::Beep});
        return;
    }
    StoreTime(time, read);
    FormatValueText(time);
    const edit::FieldMap map = FieldMapOf(time);
    PutCaret(entry.caret, map, map.length);
    FinishChange(actions, entry);
}

} // namespace vorn::timeedit
