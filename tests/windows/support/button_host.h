// A host with picture buttons, for their tests.
#pragma once

#include "tests/windows/support/host_window.h"
#include "tests/windows/support/input.h"

#include <gtest/gtest.h>
#include <vector>
#include <vorn32.h>

namespace vorn::test {

using Codes = std::vector<int>;

class ButtonTest : public testing::Test {
protected:
    HostWindow host;

    HWND Create(DWORD style = 0, int width = 100, int height = 30) {
        return host.Create(VORN_BUTTON_CLASS, style, 10, 20, width, height, 77);
    }

    // A button that has the focus, its style as given: gaining the focus would have changed it.
    HWND CreateFocused(DWORD style) {
        HWND button = Create(style);
        SetFocus(button);
        SetStyleBits(button, style);
        host.TakeNotifications();
        return button;
    }

    // The low word of the style.
    static DWORD StyleBits(HWND window) {
        return static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE)) & 0xFFFF;
    }
    static void SetStyleBits(HWND window, DWORD bits) {
        const auto style = static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
        SetWindowLongA(window, GWL_STYLE, static_cast<LONG>((style & 0xFFFF0000) | bits));
    }

    // What the control told while something ran.
    template <class Run>
    Codes Told(Run run) {
        host.TakeNotifications();
        run();
        return host.TakeNotifications();
    }
    Codes Press(HWND button, int x = 50, int y = 15) {
        return Told([&] { SendMouse(button, WM_LBUTTONDOWN, x, y); });
    }
    Codes Move(HWND button, int x, int y = 15) {
        return Told([&] { SendMouse(button, WM_MOUSEMOVE, x, y); });
    }
    Codes Release(HWND button, int x = 50, int y = 15) {
        return Told([&] { SendMouse(button, WM_LBUTTONUP, x, y); });
    }
    Codes Tick(HWND button, UINT_PTR timer) {
        return Told([&] { SendMessageA(button, WM_TIMER, timer, 0); });
    }
    Codes KeyDown(HWND button, WPARAM key) {
        return Told([&] { SendMessageA(button, WM_KEYDOWN, key, 0); });
    }
    Codes KeyUp(HWND button, WPARAM key) {
        return Told([&] { SendMessageA(button, WM_KEYUP, key, 0); });
    }
};

} // namespace vorn::test
