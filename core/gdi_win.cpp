#include "core/gdi_win.h"

#include "core/classes_win.h"

namespace vorn {

void FillWithColor(HDC context, const Rect& rect, COLORREF color) {
    if (rect.left >= rect.right || rect.top >= rect.bottom) {
        return;
    }
    const RECT area = ToPlatform(rect);
    SetDCBrushColor(context, color);
    FillRect(context, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

BITMAPINFO DescribePixels(Size size) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.width;
    info.bmiHeader.biHeight = -size.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return info;
}

HBITMAP CreatePixels(Size size) {
    const BITMAPINFO info = DescribePixels(size);
    void* pixels = nullptr;
    return CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
}

HBITMAP LoadPicture(WORD id) {
    return static_cast<HBITMAP>(
        LoadImageA(Module(), MAKEINTRESOURCEA(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
}

HFONT CreateFamilyFont(const char* family, BYTE pitchAndFamily, LONG height, LONG weight) {
    LOGFONTA font{};
    font.lfHeight = height;
    font.lfWeight = weight;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfPitchAndFamily = pitchAndFamily;
    lstrcpynA(font.lfFaceName, family, LF_FACESIZE);
    return CreateFontIndirectA(&font);
}

TEXTMETRICA MeasureFont(HFONT font) {
    TEXTMETRICA metrics{};
    const ScreenContext screen;
    const SavedContext saved(screen.get());
    SelectObject(screen.get(), font);
    GetTextMetricsA(screen.get(), &metrics);
    return metrics;
}

} // namespace vorn
