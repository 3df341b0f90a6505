#include "core/edit/edit_border_win.h"

#include "core/color_win.h"
#include "core/frames_win.h"

namespace vorn::edit {

void ShrinkToClient(const EditBody& body, LPARAM lParam) {
    auto* rect = reinterpret_cast<RECT*>(lParam);
    if (rect == nullptr) {
        return;
    }
    *rect = ToPlatform(ClientWithin(FromPlatform(*rect), body.borderStyle));
}

void PaintBorder(HWND window, const EditBody& body) {
    HDC context = GetWindowDC(window);
    if (context == nullptr) {
        return;
    }
    RECT screen{};
    GetWindowRect(window, &screen);
    const Rect rect = {0, 0, screen.right - screen.left, screen.bottom - screen.top};
    const FrameColors colors = {ResolveColor(body.colors.shadow),
                                ResolveColor(body.colors.highlight),
                                ResolveColor(body.colors.face)};
    switch (body.borderStyle) {
    case kBorderLine:
        DrawOutline(context, rect, GetSysColor(COLOR_WINDOWFRAME));
        break;
    case kBorderRaised:
        DrawRaisedFrame(context, rect, colors);
        break;
    case kBorderSunken:
        DrawSunkenFrame(context, rect, colors);
        break;
    default:
        break;
    }
    ReleaseDC(window, context);
}

BOOL RedrawWithBorder(HWND window) {
    return RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
}

} // namespace vorn::edit
