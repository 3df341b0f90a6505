// Painting a picture in slices.
#pragma once

#include "core/edit/edit_slices.h"
#include "core/geometry.h"
#include "core/platform_win.h"

namespace vorn::edit {

// A bitmap of the library's resources with silver and gray in the user's colours, the caller's to
// delete; null when it cannot be had.
HBITMAP LoadButtonPicture(WORD id);

// Fills the rectangle with the picture, or with that cell of a row of pictures; a null one paints
// nothing.
void DrawSlices(HDC context, const Rect& rect, HBITMAP picture, const SliceCuts& columns,
                const SliceCuts& rows, std::int32_t cell = 0);

} // namespace vorn::edit
