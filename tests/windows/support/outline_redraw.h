// Whether a function of an outline list's repaints it, at once.
#pragma once

#include "tests/windows/support/spy.h"

#include <windows.h>
#include <cstddef>
#include <functional>

namespace vorn::test {

// How often the list is painted while the act runs.
inline std::size_t PaintsBy(HWND list, const std::function<void()>& act) {
    PumpMessages();
    const Spy spy(list);
    act();
    return spy.Received(WM_PAINT).size();
}

} // namespace vorn::test
