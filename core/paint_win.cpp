#include "core/paint_win.h"

#include "core/gdi_win.h"

namespace vorn {

OffscreenPaint::OffscreenPaint(HWND window) : window_(window) {
    HDC screen = BeginPaint(window, &paint_);
    const RECT& area = paint_.rcPaint;
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    if (screen == nullptr || width <= 0 || height <= 0) {
        return;
    }
    memory_ = CreateCompatibleDC(screen);
    bitmap_ = CreatePixels({width, height});
    if (memory_ == nullptr || bitmap_ == nullptr) {
        DeleteDC(memory_);
        memory_ = nullptr;
        return;
    }
    saved_ = SaveDC(memory_);
    SelectObject(memory_, bitmap_);
    SetViewportOrgEx(memory_, -area.left, -area.top, nullptr);
    SetBrushOrgEx(memory_, -area.left, -area.top, nullptr);
}

OffscreenPaint::~OffscreenPaint() {
    if (memory_ != nullptr) {
        const RECT& area = paint_.rcPaint;
        BitBlt(paint_.hdc, area.left, area.top, area.right - area.left, area.bottom - area.top,
               memory_, area.left, area.top, SRCCOPY);
        RestoreDC(memory_, saved_);
        DeleteDC(memory_);
    }
    if (bitmap_ != nullptr) {
        DeleteObject(bitmap_);
    }
    EndPaint(window_, &paint_);
}

} // namespace vorn
