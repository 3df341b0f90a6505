// Rectangles between the logic halves and the platform.
#pragma once

#include "core/geometry.h"
#include "core/platform_win.h"

namespace vorn {

inline Rect FromPlatform(const RECT& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

inline RECT ToPlatform(const Rect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

inline Rect ClientRect(HWND window) {
    RECT rect{};
    GetClientRect(window, &rect);
    return FromPlatform(rect);
}

} // namespace vorn
