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

TEXTMETRICA MeasureFont(HFONT font) {
    TEXTMETRICA metrics{};
    const ScreenContext screen;
    const SavedContext saved(screen.get());
    SelectObject(screen.get(), font);
    GetTextMetricsA(screen.get(), &metrics);
    return metrics;
}

} // namespace vorn
