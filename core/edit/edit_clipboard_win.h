// An edit and the clipboard, in text form (CF_TEXT).
//
// Every function may run host code: that of the window whose data was on the clipboard before.
#pragma once

#include "core/edit/edit_body_win.h"

namespace vorn::edit {

// Puts the selected text, or what the kind says, on the clipboard; whether it is there. Nothing is
// done without a text.
bool CopyToClipboard(const EditKind& kind, HWND window);

// The same, and then clears the selection; not when the clipboard cannot be had.
void CutToClipboard(const EditKind& kind, HWND window);

// Takes the clipboard's text, if it has any.
void PasteFromClipboard(const EditKind& kind, HWND window);

} // namespace vorn::edit
