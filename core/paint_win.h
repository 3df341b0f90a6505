// Painting off screen, and painting that asks the parent for colours.
#pragma once

#include "core/geometry_win.h"
#include "core/platform_win.h"
#include "core/record_win.h"

namespace vorn {

// From its construction to the end of its scope a WM_PAINT is answered: drawing goes to a bitmap
// and is copied to the screen at the end. The bitmap's corner is that of the client area, so that
// device coordinates, which clip regions and viewports are given in, are client coordinates too.
// There is anything in it before: all of the part to repaint has to be drawn. When there is no
// memory for the bitmap, drawing goes to the screen. The window may be destroyed in between, and
// already by its construction: the window is asked to paint its frame and erase its background
// then, and a host that subclassed it may do anything.
class OffscreenPaint {
public:
    explicit OffscreenPaint(HWND window);
    ~OffscreenPaint();
    OffscreenPaint(const OffscreenPaint&) = delete;
    OffscreenPaint& operator=(const OffscreenPaint&) = delete;

    HDC context() const { return memory_ != nullptr ? memory_ : paint_.hdc; }

    // What needs repainting, in client coordinates.
    const RECT& area() const { return paint_.rcPaint; }

private:
    HWND window_;
    PAINTSTRUCT paint_{};
    HDC memory_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    int saved_ = 0;
};

// Frees the bitmap that is kept from one paint to the next; for the library's end.
void FreeKeptPixels();

// Answers WM_PAINT with `draw(window, offscreen)`, unless the window was destroyed as the paint
// began. For drawing that runs no host code, such as that of a control without a record.
template <class Draw>
LRESULT PaintOffscreen(HWND window, Draw draw) {
    OffscreenPaint offscreen(window);
    if (IsWindow(window)) {
        draw(window, offscreen);
    }
    return 0;
}

// A record's share in PaintWindow.
struct PaintState {
    bool painting = false;
    bool again = false; // asked to paint while painting
};

// The same for a control with a record, whose drawing may run host code. A host that makes the
// control repaint from there would recurse without end; such a repaint is put off until the first
// has ended. The record type has a PaintState named `paint`.
template <class Record, class Draw>
LRESULT PaintWindow(HWND window, Draw draw) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return DefWindowProcA(window, WM_PAINT, 0, 0);
    }
    if (record->paint.painting) {
        record->paint.again = true;
        ValidateRect(window, nullptr);
        return 0;
    }
    record->paint.painting = true;
    PaintOffscreen(window, [&](HWND, const OffscreenPaint& offscreen) {
        if (RecordOf<Record>(window) != nullptr) {
            draw(window, offscreen);
        }
    });
    record = RecordOf<Record>(window);
    if (record != nullptr) {
        const bool again = record->paint.again;
        record->paint = {};
        if (again) {
            InvalidateRect(window, nullptr, FALSE);
        }
    }
    return 0;
}

} // namespace vorn
