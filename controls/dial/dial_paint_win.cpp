// The dial's painting.
#include "controls/dial/dial_picture.h"
#include "controls/dial/dial_win.h"
#include "core/gdi_win.h"

namespace vorn::dial {
namespace {

constexpr COLORREF kMarkColor = RGB(255, 0, 0);
constexpr int kMarkPenWidth = 2;

COLORREF ColorOfPen(CornerPen pen) {
    switch (pen) {
    case CornerPen::Highlight:
        return GetSysColor(COLOR_BTNHIGHLIGHT);
    case CornerPen::Shadow:
        return GetSysColor(COLOR_BTNSHADOW);
    case CornerPen::Text:
        return GetSysColor(COLOR_BTNTEXT);
    case CornerPen::GrayText:
        return GetSysColor(COLOR_GRAYTEXT);
    }
    return 0;
}

void DrawCorner(HDC context, const CornerLines& lines) {
    SelectObject(context, GetStockObject(DC_PEN));
    for (const CornerLine& line : lines) {
        SetDCPenColor(context, ColorOfPen(line.pen));
        MoveToEx(context, line.from.x, line.from.y, nullptr);
        LineTo(context, line.to.x, line.to.y);
    }
}

void DrawMark(HDC context, const Rect& mark) {
    HPEN pen = CreatePen(PS_SOLID, kMarkPenWidth, kMarkColor);
    HBRUSH brush = CreateSolidBrush(kMarkColor);
    SelectObject(context, pen);
    SelectObject(context, brush);
    Ellipse(context, mark.left, mark.top, mark.right, mark.bottom);
    SelectObject(context, GetStockObject(BLACK_PEN));
    SelectObject(context, GetStockObject(BLACK_BRUSH));
    DeleteObject(pen);
    DeleteObject(brush);
}

} // namespace

Size ClientSize(HWND window) {
    const Rect client = ClientRect(window);
    return {Width(client), Height(client)};
}

void Draw(HWND window, const OffscreenPaint& offscreen) {
    Record* record = RecordOf<Record>(window);
    // Parents do not always pass on that the system's colours have changed.
    FollowSystemColors(*record);
    const HDC context = offscreen.context();
    const State& state = record->state;
    const Geometry geometry = LayOut(ClientSize(window));
    const RECT client = ToPlatform(ClientRect(window));
    FillWithColor(context, FromPlatform(client), GetSysColor(COLOR_BTNFACE));
    DrawFace(context, *record, geometry.knob);
    DrawCorner(context, LeftButtonLines(state, geometry));
    DrawCorner(context, RightButtonLines(state, geometry));
    DrawMark(context, MarkRectangle(state, geometry));
    if (GetFocus() == window) {
        DrawFocusRect(context, &client);
    }
}

} // namespace vorn::dial
