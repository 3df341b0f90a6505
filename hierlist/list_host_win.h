// What an outline list asks its parent about items and tells it of them.
#pragma once

#include "hierlist/list_record_win.h"

namespace vorn::hierlist {

// What the outline is given to speak to the parent and the window. Its context is the record.
extern const Callbacks kListCallbacks;

// Asks the parent for the height of all rows of an owner-drawn list, and keeps the answer. Host
// code runs: the control may be gone afterwards.
void AskRowHeight(HWND window);

// WM_MEASUREITEM that the control sends to itself goes on to the parent.
LRESULT OnMeasureItem(HWND window, WPARAM wParam, LPARAM lParam);

// The value that owner-draw messages carry for an item: its text's address, or, without texts, the
// item's data and before any was set the value that it was added with.
ULONG_PTR OwnerDrawData(const OlbItem* item);

} // namespace vorn::hierlist
