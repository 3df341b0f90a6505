// Mouse and keyboard, as messages and as the devices that the system sees.
#pragma once

#include <windows.h>
#include <initializer_list>

namespace vorn::test {

// Sends a mouse message at a client point.
void SendMouse(HWND window, UINT message, int x, int y);

// Presses, releases and moves the mouse itself: the system finds the window, keeps the button's
// state and posts the messages, which are pumped until they have come.
void PressMouse();
void ReleaseMouse();
void MoveMouse(HWND window, int x, int y); // to a client point

// Presses the keyboard's keys one after the other, holds them all and lets them go: the system
// posts the messages to the window with the focus, which are pumped.
void PressKeys(std::initializer_list<WORD> keys);

// Whether the window has the timer. It has not afterwards.
bool TakeTimer(HWND window, UINT_PTR timer);

} // namespace vorn::test
