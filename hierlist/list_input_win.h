// The outline list's messages of keyboard, mouse, focus and timers.
#pragma once

#include "core/platform_win.h"
#include "hierlist/list_input.h"

namespace vorn::hierlist {

bool IsInputMessage(UINT message);

// Host code runs: the control may be gone afterwards.
LRESULT OnInputMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Does what a step answered, in order, as long as the control is there. Host code runs.
void PerformAll(HWND window, const Actions& actions);

} // namespace vorn::hierlist
