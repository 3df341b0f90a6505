// The mouse and the keyboard of the date edit.
#pragma once

#include "core/platform_win.h"

namespace vorn::date {

// WM_LBUTTONDOWN and, with `wholeField`, WM_LBUTTONDBLCLK. Host code runs.
void OnPress(HWND window, LPARAM lParam, bool wholeField);

// WM_KEYDOWN. Host code runs. Returns whether the message is to be passed on.
bool OnKeyDown(HWND window, WPARAM code);

} // namespace vorn::date
