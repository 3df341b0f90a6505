// The time edit as a window.
#pragma once

#include "core/edit/edit_body_win.h"
#include "core/record_win.h"
#include "timeedit/time_entry.h"

namespace vorn::timeedit {

struct Record : edit::EditBody {
    static constexpr ControlClass kClass = ControlClass::TimeEdit;

    TimeEntry entry;
};

extern const edit::EditKind kTimeEdit;

} // namespace vorn::timeedit
