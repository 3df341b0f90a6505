// A date that is being edited, and what every edit of it does in the end. The steps that the keys
// lead to are in date_digits.h, date_step.h and date_clipboard.h.
#pragma once

#include "core/edit/field_caret.h"
#include "date/date_format.h"

#include <cstdint>

namespace vorn::date {

// Hosts change the date between the keys: RunKey and ClearSelection first bring caret and selection
// into the text that there is.
struct DateEntry {
    HeldDate date;
    edit::FieldCaret caret; // in the edit text; its field is the position
    std::int32_t modified = 0;
};

// Holds an edit text and one more character.
constexpr std::size_t kWorkTextSize = kLongestEditText + 2;

// The fields of the edit text as MeasureFieldStarts has them. With the year at the second position,
// whose start that leaves alone, the second field has no room: the year belongs to the first, but
// for its separator.
edit::FieldMap FieldMapOf(const HeldDate& date);

// Whether no more digits fit: a day or month from 10, a year of all its digits. A position of no
// kind is always full.
bool IsFieldFull(const HeldDate& date, std::int32_t position);

void ClearTypedZeros(HeldDate& date);

// ParseTypedDate of a text that the user changed, which makes a null date one again. The year stays
// within the last one: a selection over a separator can join more digits than a field has.
void ReadTypedText(HeldDate& date, const char* text);

// Caret, selection and scrolling back to the start, as after every date from outside.
void ResetCaret(DateEntry& entry);

// The control has got or lost the focus. Getting it selects the first field.
void EnterFocus(DateEntry& entry);
void LeaveFocus(DateEntry& entry);

// For a date, or a layout, that changed from outside.
void KeepCaretInText(DateEntry& entry);

// The date was changed by the user: marks it, rebuilds the value text and answers the notifications
// with this kind of repainting.
void FinishChange(edit::Actions& actions, DateEntry& entry,
                  edit::ActionKind repaint = edit::ActionKind::Repaint);

} // namespace vorn::date
