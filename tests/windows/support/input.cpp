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

// The keys that are beside the numeric pad's; without this Shift would make them the pad's.
bool IsExtended(WORD key) {
    return (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE;
}

void UseKey(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags | (IsExtended(key) ? KEYEVENTF_EXTENDEDKEY : 0);
    SendInput(1, &input, sizeof input);
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

void PushKey(WORD key) {
    UseKey(key, 0);
}

void ReleaseKey(WORD key) {
    UseKey(key, KEYEVENTF_KEYUP);
}

void StrikeKey(WORD key, WORD modifier) {
    if (modifier != 0) {
        PushKey(modifier);
    }
    PushKey(key);
    ReleaseKey(key);
    if (modifier != 0) {
        ReleaseKey(modifier);
    }
}

bool TakeTimer(HWND window, UINT_PTR timer) {
    return KillTimer(window, timer) != 0;
}

} // namespace vorn::test
