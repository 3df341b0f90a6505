// Colour codes as they are painted.
#pragma once

#include "core/color.h"
#include "core/platform_win.h"

namespace vorn {

inline COLORREF ResolveColor(ColorCode code) {
    return IsSystemColor(code) ? GetSysColor(SystemColorIndex(code)) : code;
}

} // namespace vorn
