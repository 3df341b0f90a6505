// The four-way spin pad as a window.
#pragma once

#include "controls/udlr/udlr.h"
#include "core/platform_win.h"
#include "core/record_win.h"

#include <array>

namespace vorn::udlr {

struct Record {
    static constexpr ControlClass kClass = ControlClass::Udlr;

    State state;
    std::array<HBITMAP, kPictures> pictures{}; // null where there is none to be had
};

} // namespace vorn::udlr
