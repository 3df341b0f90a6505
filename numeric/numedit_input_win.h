// The numeric edit's reactions, from its window's messages. Host code runs in all of them: the
// control may be gone afterwards.
#pragma once

#include "core/platform_win.h"

namespace vorn::numeric {

void OnPress(HWND window, WPARAM keys, LPARAM lParam);
void OnDrag(HWND window, LPARAM lParam);

// Ends a press of a spin button, if there is one: it came up, the capture went to another window,
// or the buttons are hidden.
void EndSpin(HWND window);

// These answer whether the message is left to the default procedure.
bool OnTimer(HWND window, WPARAM timer);
bool OnKeyDown(HWND window, WPARAM code);
bool OnCharacter(HWND window, WPARAM character);

} // namespace vorn::numeric
