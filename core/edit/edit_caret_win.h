// The caret of an edit on the screen, its focus, and what its steps answer.
#pragma once

#include "core/edit/edit_body_win.h"

namespace vorn::edit {

// Puts the caret where the next character goes, scrolled into view, while the edit has the focus. A
// move of the text and a caret beyond the text area are told to the parent after what the user did,
// and not after what a host did. Host code may run.
enum class Told : bool { No, Yes };
void PlaceCaret(const EditKind& kind, HWND window, Told told);

// For another font or display style: the caret gets their height.
void RenewCaret(const EditKind& kind, HWND window);

// Repaints the client area, or the text area alone, at once and without erasing. Host code may run.
void Repaint(HWND window);
void RepaintText(const EditKind& kind, HWND window);

// WM_SETFOCUS and WM_KILLFOCUS. Host code runs.
void GainFocus(const EditKind& kind, HWND window);
void LoseFocus(const EditKind& kind, HWND window);

// The left button goes down on an edit and comes up: the edit has the capture, and the caret is
// hidden, in between. Host code may run.
void BeginPress(const EditKind& kind, HWND window);
void EndPress(const EditKind& kind, HWND window);

// Where a click puts the caret, in characters.
std::uint16_t IndexAt(const EditKind& kind, EditBody& body, std::int32_t x);

// The cursor at a client point: a beam over text that can be edited.
void ShowCursorAt(const EditKind& kind, HWND window, Point point);

// Asks the host whether the edit may change; false also when it is gone afterwards.
bool IsOkToChange(const EditKind& kind, HWND window);

// Performs what a step answered, in order, as long as the edit is there. Host code runs. Returns
// whether the message is to be passed on.
bool PerformEdit(const EditKind& kind, HWND window, const Actions& actions);

} // namespace vorn::edit
