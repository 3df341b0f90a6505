// Scrolling an outline list, by its scroll bars, the mouse wheel and otherwise. All of it may run
// host code: the control may be gone afterwards.
#pragma once

#include "hierlist/list_record_win.h"

namespace vorn::hierlist {

// Sets the scroll bars to what the rows need and pulls the view back when it is beyond their end.
// While drawing is off the bars are put off, and the view is pulled back all the same.
void UpdateBars(HWND window);

// Does what was put off, if anything was and WM_SETREDRAW allows it. With LBS_NOREDRAW that is
// when the list is painted for another reason.
void UpdateStaleBars(HWND window);

// Make a row the first, or bring the view this many pixels to the right; not beyond the ends.
void ScrollRowsTo(HWND window, std::uint32_t topIndex);
void ScrollSidewaysTo(HWND window, std::int32_t offset);

// Brings a row wholly into view.
void ShowRow(HWND window, std::uint32_t row);

void OnVerticalScroll(HWND window, WPARAM wParam);
void OnHorizontalScroll(HWND window, WPARAM wParam);

// The two wheels of a mouse.
void OnWheel(HWND window, WPARAM wParam);
void OnSideWheel(HWND window, WPARAM wParam);

} // namespace vorn::hierlist
