#include "core/edit/edit_slices_win.h"

#include "core/classes_win.h"
#include "core/gdi_win.h"

namespace vorn::edit {

HBITMAP LoadButtonPicture(WORD id) {
    return static_cast<HBITMAP>(
        LoadImageA(Module(), MAKEINTRESOURCEA(id), IMAGE_BITMAP, 0, 0, LR_LOADMAP3DCOLORS));
}

void DrawSlices(HDC context, const Rect& rect, HBITMAP picture, const SliceCuts& columns,
                const SliceCuts& rows, std::int32_t cell) {
    HDC memory = picture == nullptr ? nullptr : CreateCompatibleDC(context);
    if (memory == nullptr) {
        return;
    }
    HGDIOBJ before = SelectObject(memory, picture);
    const SavedContext saved(context);
    SetStretchBltMode(context, COLORONCOLOR);
    const std::int32_t left = cell * columns.size;
    for (const Slice& row : SlicesOf(rows, Height(rect))) {
        for (const Slice& column : SlicesOf(columns, Width(rect))) {
            if (row.toSize > 0 && column.toSize > 0) {
                StretchBlt(context, rect.left + column.to, rect.top + row.to, column.toSize,
                           row.toSize, memory, left + column.from, row.from, column.fromSize,
                           row.fromSize, SRCCOPY);
            }
        }
    }
    SelectObject(memory, before);
    DeleteDC(memory);
}

} // namespace vorn::edit
