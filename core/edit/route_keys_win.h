// Keys on their way into an edit.
#pragma once

#include "core/edit/field_keys.h"
#include "core/window_win.h"

namespace vorn::edit {

// A key or a character with the keys that are held with it.
inline Key KeyNow(WPARAM code) {
    const auto isHeld = [](int key) { return GetKeyState(key) < 0; };
    return {static_cast<std::uint32_t>(code), isHeld(VK_CONTROL), isHeld(VK_MENU),
            isHeld(VK_SHIFT)};
}

// Takes a key its way, and through `ask()` when the host is to be asked. Returns whether the
// message is to be passed on. Host code may run.
template <class Ask>
bool FollowRoute(HWND window, KeyRoute route, Ask ask) {
    switch (route) {
    case KeyRoute::PassOn:
        return true;
    case KeyRoute::FocusNext:
        FocusTabItem(window, false);
        return false;
    case KeyRoute::FocusPrevious:
        FocusTabItem(window, true);
        return false;
    case KeyRoute::Refuse:
        MessageBeep(MB_ICONHAND);
        return false;
    case KeyRoute::Ask:
        return ask();
    }
    return true;
}

} // namespace vorn::edit
