// The mouse and the keyboard of the date edit.
#pragma once

#include "core/edit/edit_messages_win.h"

namespace vorn::date {

// WM_LBUTTONDOWN and, with `wholeField`, WM_LBUTTONDBLCLK. Host code runs.
void OnPress(HWND window, LPARAM lParam, bool wholeField);

// WM_KEYDOWN. Host code runs.
LRESULT OnKeyDown(const edit::EditMessage& message);

} // namespace vorn::date
