// Small pieces of painting that every control uses.
#pragma once

#include "core/geometry_win.h"
#include "core/platform_win.h"

namespace vorn {

// Puts the device context back as it was, what was selected included.
class SavedContext {
public:
    explicit SavedContext(HDC context) : context_(context), saved_(SaveDC(context)) {}
    ~SavedContext() { RestoreDC(context_, saved_); }
    SavedContext(const SavedContext&) = delete;
    SavedContext& operator=(const SavedContext&) = delete;

private:
    HDC context_;
    int saved_;
};

// The screen's device context, for measuring text.
class ScreenContext {
public:
    ScreenContext() : context_(GetDC(nullptr)) {}
    ~ScreenContext() { ReleaseDC(nullptr, context_); }
    ScreenContext(const ScreenContext&) = delete;
    ScreenContext& operator=(const ScreenContext&) = delete;

    HDC get() const { return context_; }

private:
    HDC context_;
};

// Fills with one colour; an empty or inverted rectangle paints nothing.
void FillWithColor(HDC context, const Rect& rect, COLORREF color);

// Describes 32-bit pixels, 0x00RRGGBB, row by row from the top.
BITMAPINFO DescribePixels(Size size);

// A bitmap of such pixels, the caller's to delete; null when it cannot be had. It is ready sooner
// than one that is made to be compatible with a device, which has to be asked for its colours.
HBITMAP CreatePixels(Size size);

// A bitmap of the library's resources, the caller's to delete; null when it cannot be had.
HBITMAP LoadPicture(WORD id);

// The font that a host's choice means: none is the stock SYSTEM_FONT.
inline HFONT OrSystemFont(HFONT font) {
    return font != nullptr ? font : static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
}

// A font of a family, by its height in pixels; the caller's to delete.
HFONT CreateFamilyFont(const char* family, BYTE pitchAndFamily, LONG height, LONG weight);

// The metrics of a font, measured on the screen.
TEXTMETRICA MeasureFont(HFONT font);

} // namespace vorn
