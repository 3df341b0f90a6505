// The border of an outline list.
#pragma once

#include "hierlist/list_record_win.h"

namespace vorn::hierlist {

// WM_NCCALCSIZE and WM_NCPAINT: the system sees to a line border and the scroll bars, the frames
// are the control's own. Host code may run.
LRESULT OnCalcSize(HWND window, WPARAM wParam, LPARAM lParam);
LRESULT OnPaintBorder(HWND window, WPARAM wParam, LPARAM lParam);

// Takes the border from 0 to 3, any other number for none, and gives the window the size that its
// client area then needs. Host code may run.
void SetBorder(HWND window, std::uint32_t border);

} // namespace vorn::hierlist
