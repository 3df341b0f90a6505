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

HBITMAP LoadPicture(WORD id) {
    return LoadBitmapA(Module(), MAKEINTRESOURCEA(id));
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
