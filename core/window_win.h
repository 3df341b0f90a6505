// What controls do to their own window and say to their parent.
#pragma once

#include "core/platform_win.h"
#include "core/steps.h"

namespace vorn {

// Repaints the rectangle, or the whole window, at once. Host code may run.
inline BOOL Redraw(HWND window, const RECT* rect = nullptr) {
    return RedrawWindow(window, rect, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

inline DWORD StyleOf(HWND window) {
    return static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
}

// Clears some style bits and sets others. Host code may run.
void ChangeStyle(HWND window, DWORD clear, DWORD set);

// Sends the parent WM_COMMAND with the control's identifier and this code. Host code runs: the
// control may be gone afterwards.
void NotifyParent(HWND window, WORD code);

// Whether the control's parent, when asked, says that it is such a host application as the next
// function looks for. Host code may run.
bool ParentIsHostApp(HWND window);

// Whether the control lives in a host application that wants the library's alternative look: one of
// its ancestors is of the class "rwswnd", or its parent says so when asked. Host code may run.
bool IsInHostApp(HWND window);

// Who has the capture now, by the lParam of a WM_CAPTURECHANGED.
CaptureOwner NewCaptureOwner(HWND window, LPARAM lParam);

// The number that one of the keyboard's settings has (SPI_GETKEYBOARDDELAY, SPI_GETKEYBOARDSPEED),
// the low 16 bits of it.
UINT KeyboardSetting(UINT setting);

// Gives the focus to the tab item after the control, or before it, in the dialog that the control
// is in: its parent, or where that is a container within another window's tab order, that window.
// Host code runs: the control may be gone afterwards.
void FocusTabItem(HWND control, bool previous);

} // namespace vorn
