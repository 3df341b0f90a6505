// Pictures with a transparent colour.
#pragma once

#include "core/geometry.h"
#include "core/platform_win.h"

namespace vorn {

// Copies the piece of the bitmap that starts at `source` to `target`, the transparent colour
// replaced by `background`. Transparent is the colour of the whole bitmap's bottom-left pixel,
// wherever it occurs. Where the piece lies beyond the bitmap's edge the background shows. A null
// bitmap paints nothing, nor does one that there is no memory to copy.
void DrawTransparentBitmap(HDC context, const Rect& target, HBITMAP bitmap, Point source,
                           COLORREF background);

} // namespace vorn
