#include "core/paint_win.h"

#include "core/gdi_win.h"

#include <algorithm>
#include <cstdint>

namespace vorn {
namespace {

// A bitmap that an earlier paint has left for the next: memory that was written to before is there
// at once, where new memory is a large part of what a list's repaint costs. Null while a paint has
// it, and then another thread's paint makes one of its own.
void* volatile keptPixels = nullptr;
constexpr std::int64_t kMostKept = 262'144; // pixels, of 4 bytes each

Size SizeOf(HBITMAP pixels) {
    BITMAP description{};
    GetObjectA(pixels, sizeof description, &description);
    return {description.bmWidth, description.bmHeight};
}

bool MayKeep(Size size) {
    return std::int64_t{size.width} * size.height <= kMostKept;
}

// A bitmap of at least this size, with anything in it; null when it cannot be had.
HBITMAP TakePixels(Size size) {
    auto* const kept = static_cast<HBITMAP>(InterlockedExchangePointer(&keptPixels, nullptr));
    if (kept == nullptr) {
        return CreatePixels(size);
    }
    const Size there = SizeOf(kept);
    if (size.width <= there.width && size.height <= there.height) {
        return kept;
    }
    DeleteObject(kept);
    // Paints of flat and of narrow parts take turns, as those of a list and its rows.
    const Size both = {std::max(size.width, there.width), std::max(size.height, there.height)};
    return CreatePixels(MayKeep(both) ? both : size);
}

void KeepPixels(HBITMAP pixels) {
    const bool keeps = pixels != nullptr && MayKeep(SizeOf(pixels));
    void* const before = keeps ? InterlockedExchangePointer(&keptPixels, pixels) : pixels;
    if (before != nullptr) {
        DeleteObject(before);
    }
}

} // namespace

void FreeKeptPixels() {
    void* const kept = InterlockedExchangePointer(&keptPixels, nullptr);
    if (kept != nullptr) {
        DeleteObject(kept);
    }
}

OffscreenPaint::OffscreenPaint(HWND window) : window_(window) {
    HDC screen = BeginPaint(window, &paint_);
    const RECT& area = paint_.rcPaint;
    if (screen == nullptr || IsRectEmpty(&area)) {
        return;
    }
    memory_ = CreateCompatibleDC(screen);
    bitmap_ = TakePixels({area.right, area.bottom});
    if (memory_ == nullptr || bitmap_ == nullptr) {
        DeleteDC(memory_);
        memory_ = nullptr;
        return;
    }
    saved_ = SaveDC(memory_);
    SelectObject(memory_, bitmap_);
    IntersectClipRect(memory_, area.left, area.top, area.right, area.bottom);
}

OffscreenPaint::~OffscreenPaint() {
    if (memory_ != nullptr) {
        const RECT& area = paint_.rcPaint;
        BitBlt(paint_.hdc, area.left, area.top, area.right - area.left, area.bottom - area.top,
               memory_, area.left, area.top, SRCCOPY);
        RestoreDC(memory_, saved_);
        DeleteDC(memory_);
    }
    KeepPixels(bitmap_);
    EndPaint(window_, &paint_);
}

} // namespace vorn
