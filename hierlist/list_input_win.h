// The outline list's messages of keyboard, mouse, focus and timers.
#pragma once

#include "core/platform_win.h"

namespace vorn::hierlist {

bool IsInputMessage(UINT message);

// Host code runs: the control may be gone afterwards.
LRESULT OnInputMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace vorn::hierlist
