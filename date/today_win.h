// Today's date.
#pragma once

#include "core/platform_win.h"
#include "date/date_value.h"

namespace vorn::date {

// UTC's, like all of the library's today.
inline Date Today() {
    SYSTEMTIME now{};
    GetSystemTime(&now);
    return {now.wMonth, now.wDay, now.wYear};
}

} // namespace vorn::date
