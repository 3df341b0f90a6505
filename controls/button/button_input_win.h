// The picture button's reactions, from its window's messages.
#pragma once

#include "controls/button/button_input.h"
#include "core/platform_win.h"

namespace vorn::button {

// Each takes the control through one event and does what comes of it. Host code runs: the control
// may be gone afterwards.
void OnPress(HWND window, LPARAM lParam);
void OnMove(HWND window, LPARAM lParam);
void OnRelease(HWND window);
void OnCaptureChanged(HWND window, LPARAM lParam);
void OnTimer(HWND window, WPARAM timer);
void OnSetFocus(HWND window, HWND loser);
void OnKillFocus(HWND window, HWND gainer);
void OnEnable(HWND window, bool enabled);
void SetDown(HWND window, bool down);
void StopRepeat(HWND window);

// The same for a key; they answer whether the message is left to the default procedure.
bool OnKeyDown(HWND window, WPARAM key);
bool OnKeyUp(HWND window, WPARAM key);

} // namespace vorn::button
