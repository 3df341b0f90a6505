// Marking rows for painting, for changes that are shown together at the end.
#pragma once

#include "core/platform_win.h"

#include <cstdint>

namespace vorn::hierlist {

// Mark for painting what of the rows is in view, the strip of the top row (of an empty list too),
// or everything, and paint what is marked at once. Nothing while WM_SETREDRAW has drawing off.
void MarkRows(HWND window, std::uint32_t first, std::uint32_t last);
void MarkTop(HWND window);
void MarkAll(HWND window);
void PaintMarked(HWND window); // runs host code

} // namespace vorn::hierlist
