#include "tests/windows/support/input.h"

#include "tests/windows/support/host_window.h"

namespace vorn::test {
namespace {

constexpr DWORD kPatience = 2000; // milliseconds

void UseMouse(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof input);
    PumpMessages();
}

bool IsHeld() {
    return GetAsyncKeyState(VK_LBUTTON) < 0;
}

} // namespace

void SendMouse(HWND window, UINT message, int x, int y) {
    SendMessageA(window, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(x, y));
}

void PressMouse() {
    UseMouse(MOUSEEVENTF_LEFTDOWN);
    PumpFor(kPatience, IsHeld);
}

void ReleaseMouse() {
    UseMouse(MOUSEEVENTF_LEFTUP);
    PumpFor(kPatience, [] { return !IsHeld(); });
}

void MoveMouse(HWND window, int x, int y) {
    POINT point = {x, y};
    ClientToScreen(window, &point);
    SetCursorPos(point.x, point.y);
    PumpFor(kPatience, [&] {
        POINT now{};
        GetCursorPos(&now);
        return now.x == point.x && now.y == point.y;
    });
    PumpMessages();
}

bool TakeTimer(HWND window, UINT_PTR timer) {
    return KillTimer(window, timer) != 0;
}

} // namespace vorn::test
