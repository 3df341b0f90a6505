// The border of an edit as the window's frame.
#pragma once

#include "core/edit/edit_body_win.h"

namespace vorn::edit {

// WM_NCCALCSIZE: lParam is a RECT, or a record that begins with one.
void ShrinkToClient(const EditBody& body, LPARAM lParam);

// WM_NCPAINT.
void PaintBorder(HWND window, const EditBody& body);

// Repaints field and border at once, for colours that the border has too. Host code may run.
BOOL RedrawWithBorder(HWND window);

} // namespace vorn::edit
