// Mouse and keyboard, as messages and as the devices that the system sees.
#pragma once

#include <windows.h>

namespace vorn::test {

// Sends a mouse message at a client point.
void SendMouse(HWND window, UINT message, int x, int y);

// Presses, releases and moves the mouse itself: the system finds the window, keeps the button's
// state and posts the messages, which are pumped until they have come.
void PressMouse();
void ReleaseMouse();
void MoveMouse(HWND window, int x, int y); // to a client point

// Uses the keyboard itself; the messages wait in the queue. A struck key goes down and comes up,
// the modifier, if any, around it.
void PushKey(WORD key);
void ReleaseKey(WORD key);
void StrikeKey(WORD key, WORD modifier = 0);

// Whether the window has the timer. It has not afterwards.
bool TakeTimer(HWND window, UINT_PTR timer);

} // namespace vorn::test
