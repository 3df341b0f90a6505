#include "core/frames_win.h"

namespace vorn {
namespace {

// The pen of the device context itself, in a colour: nothing to create, nothing to delete.
class ContextPen {
public:
    explicit ContextPen(HDC context)
        : context_(context), color_(SetDCPenColor(context, RGB(0, 0, 0))) {
        SelectObject(context, GetStockObject(DC_PEN));
    }
    ~ContextPen() {
        SelectObject(context_, GetStockObject(BLACK_PEN));
        SetDCPenColor(context_, color_);
    }
    ContextPen(const ContextPen&) = delete;
    ContextPen& operator=(const ContextPen&) = delete;

private:
    HDC context_;
    COLORREF color_;
};

COLORREF ColorOf(FramePen pen, const FrameColors& colors) {
    switch (pen) {
    case FramePen::A:
        return colors.a;
    case FramePen::B:
        return colors.b;
    case FramePen::C:
        return colors.c;
    case FramePen::WindowFrame:
        break;
    }
    return GetSysColor(COLOR_WINDOWFRAME);
}

void DrawLines(HDC context, const FrameLines& lines, const FrameColors& colors) {
    const ContextPen pen(context);
    for (const FrameLine& line : lines) {
        SetDCPenColor(context, ColorOf(line.pen, colors));
        const auto& [from, over, to] = line.points;
        MoveToEx(context, from.x, from.y, nullptr);
        LineTo(context, over.x, over.y);
        LineTo(context, to.x, to.y);
    }
}

} // namespace

void DrawSunkenFrame(HDC context, const Rect& rect, const FrameColors& colors) {
    DrawLines(context, SunkenFrame(rect), colors);
}

void DrawRaisedFrame(HDC context, const Rect& rect, const FrameColors& colors) {
    DrawLines(context, RaisedFrame(rect), colors);
}

void DrawOutline(HDC context, const Rect& rect, COLORREF color) {
    const ContextPen pen(context);
    SetDCPenColor(context, color);
    MoveToEx(context, rect.left, rect.top, nullptr);
    LineTo(context, rect.right - 1, rect.top);
    LineTo(context, rect.right - 1, rect.bottom - 1);
    LineTo(context, rect.left, rect.bottom - 1);
    LineTo(context, rect.left, rect.top);
}

} // namespace vorn
