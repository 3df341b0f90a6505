// The messages that all edits answer alike.
#pragma once

#include "core/edit/edit_body_win.h"

namespace vorn::edit {

// One message as a window procedure gets it.
struct EditMessage {
    HWND window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

// Answers a message of the frame, the focus, the font, the mouse, the text, the selection or the
// clipboard; the result when it is one that all edits answer alike. Returns false for any other,
// and for a window without a record. Host code may run.
bool AnswerEditMessage(const EditKind& kind, const EditMessage& message, LRESULT& result);

// What a change that a message brings needs, beside the selection: not read-only, and the host's
// leave. Host code may run.
void ClearByMessage(const EditKind& kind, HWND window);
void CutByMessage(const EditKind& kind, HWND window);
void PasteByMessage(const EditKind& kind, HWND window);

} // namespace vorn::edit
