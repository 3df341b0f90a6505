// Painting an edit.
#pragma once

#include "core/edit/edit_body_win.h"
#include "core/ground_win.h"

namespace vorn::edit {

// The field's colours as they are painted. A parent may ask for a ground other than the background
// of its texts.
struct FieldInk {
    COLORREF background;
    COLORREF text;
    Ground ground;
};

// Those that the edit itself has.
FieldInk FieldInkOf(const EditBody& body);

// Paints field, text, selection and right part. Runs no host code but the kind's. The alignment is
// that of a text without the focus, as AlignedLeft has it.
void PaintEdit(const EditKind& kind, HWND window, HDC context, const FieldInk& ink,
               std::uint32_t alignment = 0);

} // namespace vorn::edit
