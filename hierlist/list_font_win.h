// The font of an outline list.
#pragma once

#include "hierlist/list_record_win.h"

namespace vorn::hierlist {

// Takes a font, none being the stock SYSTEM_FONT, and what follows from its sizes: the height of
// rows, unless the host has set it, and the width of columns.
void TakeFont(Record& record, HFONT font);

// WM_SETFONT and WM_GETFONT. Host code may run.
void OnSetFont(HWND window, HFONT font, bool redraw);
LRESULT OnGetFont(HWND window);

} // namespace vorn::hierlist
