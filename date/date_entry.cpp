#include "date/date_entry.h"

#include <algorithm>
#include <cstring>

namespace vorn::date {

edit::FieldMap FieldMapOf(const HeldDate& date) {
    edit::FieldMap map;
    map.count = kPositions;
    map.separatorWidth = date.layout.separator != '\0' ? 1 : 0;
    std::int32_t start3 = 0;
    MeasureFieldStarts(map.starts[1], start3, date);
    map.starts[2] = std::max(map.starts[1], start3);
    char text[kWorkTextSize];
    FormatEditText(text, date);
    map.length = static_cast<std::int32_t>(std::strlen(text));
    return map;
}

bool IsFieldFull(const HeldDate& date, std::int32_t position) {
    switch (date.layout.kinds[position]) {
    case kDay:
        return date.value.day >= 10;
    case kMonth:
        return date.value.month >= 10;
    case kYear:
        return date.layout.fourDigitYear != 0 ? date.value.year >= 1000
                                              : date.value.year % 100 >= 10;
    default:
        return true;
    }
}

void ClearTypedZeros(HeldDate& date) {
    std::fill_n(date.typedZero, kPositions, 0);
}

void ReadTypedText(HeldDate& date, const char* text) {
    date.null = 0;
    ParseTypedDate(date, text);
    if (date.value.year > kLastYear) {
        date.value.year = kLastYear;
        LimitDay(date.value);
    }
}

void ResetCaret(DateEntry& entry) {
    entry.caret = {};
}

void EnterFocus(DateEntry& entry) {
    entry.date.focused = 1;
    ClearTypedZeros(entry.date);
    ResetCaret(entry);
    SelectField(entry.caret, FieldMapOf(entry.date), 0);
}

void LeaveFocus(DateEntry& entry) {
    entry.date.focused = 0;
    KeepCaretInText(entry);
}

void KeepCaretInText(DateEntry& entry) {
    const edit::FieldMap map = FieldMapOf(entry.date);
    const std::uint16_t before = entry.caret.index;
    KeepInText(entry.caret, map.length);
    if (entry.caret.index != before) {
        entry.caret.field = FieldAt(map, entry.caret.index);
    }
}

void FinishChange(edit::Actions& actions, DateEntry& entry, edit::ActionKind repaint) {
    entry.modified = 1;
    FormatValueText(entry.date);
    KeepCaretInText(entry);
    AppendChange(actions, repaint);
}

} // namespace vorn::date
