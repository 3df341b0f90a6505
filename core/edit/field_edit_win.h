// Keys and presses in an edit whose text is made of fields.
#pragma once

#include "core/edit/edit_messages_win.h"
#include "core/edit/field_keys.h"

namespace vorn::edit {

// What one control's edits have of their own. Their body's caret is a FieldCaret.
struct FieldEdit {
    const EditKind& kind;

    // Runs a key that was asked for, with the host's answer.
    Actions (*runKey)(EditBody& body, const Key& key, bool allowed);

    // The fields of the text that is shown.
    FieldMap (*mapOf)(const EditBody& body);
};

// WM_KEYDOWN, whose result it is. Host code runs.
LRESULT PressFieldKey(const FieldEdit& edit, const EditMessage& message);

// A press at this client point of the text: an edit without the focus takes it, which selects the
// first field; one with the focus puts its caret there or, by a double click, selects the field.
// Host code may run.
void PressFieldText(const FieldEdit& edit, HWND window, Point point, bool wholeField);

// An EditKind's followCaret.
void FollowCaretWithField(FieldCaret& caret, const FieldMap& map);

} // namespace vorn::edit
