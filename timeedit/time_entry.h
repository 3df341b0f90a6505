// A time that is being edited, and what every edit of it does in the end. The steps that the keys
// lead to are in time_digits.h, time_step.h and time_clipboard.h.
#pragma once

#include "core/edit/field_caret.h"
#include "timeedit/time_value.h"

#include <cstdint>

namespace vorn::timeedit {

// Hosts change time and format between the keys: RunKey and ClearSelection first bring caret and
// selection into the text that there is.
struct TimeEntry {
    HeldTime time;
    edit::FieldCaret caret; // in the value text
    std::int32_t modified = 0;
};

enum class FieldKind : std::uint8_t { Hour, Minute, Second, Suffix };

// What a field of the map is.
FieldKind KindOf(const HeldTime& time, std::int32_t field);

// The fields of the value text: hour, minute, the second if it is shown, the suffix if there is
// one, which a blank separates. Those of a null time are where its numbers would be.
edit::FieldMap FieldMapOf(const HeldTime& time);

// The lowest and the highest number that a field of digits can show.
std::uint16_t LowestOf(const HeldTime& time, FieldKind kind);
std::uint16_t HighestOf(const HeldTime& time, FieldKind kind);

// Whether a field of digits covers this index of the text.
bool IsDigitIndex(const HeldTime& time, const edit::FieldMap& map, std::int32_t index);

// Whether the caret is in the suffix, or behind it.
bool IsInSuffix(const TimeEntry& entry);

// Takes the numbers of a text that was made of the value text by typing over its digits. Each is
// kept within what its field can show; the half of the day stays.
void ReadTypedText(HeldTime& time, const char* text);

// Caret, selection and scrolling back to the start, as after every time from outside.
void ResetCaret(TimeEntry& entry);

// The control has got or lost the focus. Getting it selects the first field.
void EnterFocus(TimeEntry& entry);
void LeaveFocus(TimeEntry& entry);

// For a time or a format that changed from outside: rebuilds the value text, in which caret and
// selection stay.
void RenewText(TimeEntry& entry);

// Selects a field, or the last one if there is none of that number any more.
void SelectFieldOf(TimeEntry& entry, std::int32_t field);

// The time was changed by the user: marks it, rebuilds the value text and answers the notifications
// with this kind of repainting.
void FinishChange(edit::Actions& actions, TimeEntry& entry,
                  edit::ActionKind repaint = edit::ActionKind::Repaint);

} // namespace vorn::timeedit
