#include "core/ground_win.h"

#include "core/gdi_win.h"

namespace vorn {
namespace {

// One that is no object is one that the host has deleted, or an answer that is no brush at all.
bool IsBrush(HBRUSH answer) {
    return GetObjectType(answer) == OBJ_BRUSH;
}

bool IsSystemColor(UINT_PTR answer) {
    return answer >= 1 && answer <= COLOR_MENUBAR + 1;
}

} // namespace

HBRUSH AskForBrush(HWND window, HDC context, UINT message) {
    return reinterpret_cast<HBRUSH>(SendMessageA(GetParent(window), message,
                                                 reinterpret_cast<WPARAM>(context),
                                                 reinterpret_cast<LPARAM>(window)));
}

Ground GroundOf(HBRUSH answer, HDC context, COLORREF own) {
    const auto number = reinterpret_cast<UINT_PTR>(answer);
    if (IsSystemColor(number)) {
        return {GetSysColor(static_cast<int>(number) - 1)};
    }
    if (!IsBrush(answer)) {
        return {own};
    }
    if (answer == GetStockObject(DC_BRUSH)) {
        return {GetDCBrushColor(context)};
    }
    LOGBRUSH description{};
    GetObjectA(answer, sizeof description, &description);
    return description.lbStyle == BS_SOLID ? Ground{description.lbColor} : Ground{own, answer};
}

void FillWithGround(HDC context, const Rect& rect, const Ground& ground) {
    FillWithColor(context, rect, ground.color);
    if (ground.brush != nullptr) {
        const RECT area = ToPlatform(rect);
        FillRect(context, &area, ground.brush);
    }
}

} // namespace vorn
