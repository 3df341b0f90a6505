#include "timeedit/time_digits.h"

#include "timeedit/time_clipboard.h"
#include "timeedit/time_format.h"

#include <algorithm>

namespace vorn::timeedit {
namespace {

constexpr char kZero = '0';

// Whether no two-digit number of the field begins with this digit.
bool CannotBegin(const HeldTime& time, FieldKind kind, char digit) {
    return digit - kZero > HighestOf(time, kind) / 10;
}

// From where digits typed over the selection go; the end of the text when it has none.
std::int32_t FirstDigitFrom(const HeldTime& time, const edit::FieldMap& map, std::int32_t index) {
    while (index < map.length && !IsDigitIndex(time, map, index)) {
        ++index;
    }
    return index;
}

// Where the caret goes from there.
std::int32_t Overtype(char* text, const HeldTime& time, std::int32_t index, char digit) {
    const edit::FieldMap map = FieldMapOf(time);
    const std::int32_t field = FieldAt(map, index);
    const std::int32_t end = FieldEnd(map, field);
    if (index != map.starts[field] || !CannotBegin(time, KindOf(time, field), digit)) {
        text[index] = digit;
        return index + 1;
    }
    std::fill(text + index, text + end, kZero);
    text[end - 1] = digit;
    return end;
}

// A number that was clamped may have lost digits that only a host can give it, so the text may be
// shorter than where the caret was to go.
void PutCaretBehind(TimeEntry& entry, std::int32_t field, bool full, std::int32_t index) {
    const edit::FieldMap map = FieldMapOf(entry.time);
    if (full) {
        index = field + 1 < map.count ? map.starts[field + 1] : map.length;
    }
    PutCaret(entry.caret, map, index);
}

void TypeAtCaret(TimeEntry& entry, char digit) {
    HeldTime& time = entry.time;
    const edit::FieldMap map = FieldMapOf(time);
    const std::int32_t index = entry.caret.index;
    if (!IsDigitIndex(time, map, index)) {
        ReadTypedText(time, time.valueText); // a host's numbers become a time here too
        PutCaret(entry.caret, FieldMapOf(time), index + 1);
        return;
    }
    const std::int32_t field = FieldAt(map, index);
    const std::int32_t behind = Overtype(time.valueText, time, index, digit);
    const bool full = behind >= FieldEnd(map, field);
    ReadTypedText(time, time.valueText);
    PutCaretBehind(entry, field, full, behind);
}

} // namespace

void EnterDigit(edit::Actions& actions, TimeEntry& entry, char digit) {
    HeldTime& time = entry.time;
    if (time.null != 0) {
        StoreTime(time, {});
        FormatValueText(time);
        // Not as midnight is shown in the 12-hour form.
        const edit::FieldMap map = FieldMapOf(time);
        std::fill_n(time.valueText, FieldEnd(map, 0), kZero);
        ResetCaret(entry);
    } else if (HasSelection(entry.caret)) {
        const edit::FieldMap map = FieldMapOf(time);
        const std::int32_t first = FirstDigitFrom(time, map, entry.caret.selectionStart);
        if (first >= entry.caret.selectionEnd) {
            Append(actions, {edit::ActionKind::Beep});
            return;
        }
        ZeroDigits(time.valueText, time, entry.caret.selectionStart, entry.caret.selectionEnd);
        PutCaret(entry.caret, map, first);
    } else if (IsInSuffix(entry)) {
        Append(actions, {edit::ActionKind::Beep});
        return;
    }
    TypeAtCaret(entry, digit);
    FinishChange(actions, entry);
}

} // namespace vorn::timeedit
