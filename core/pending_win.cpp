// The classes whose controls are still to come: plain windows until then.
#include "core/platform_win.h"

#include <vorn32/library.h>

extern "C" {

LRESULT CALLBACK VORNNumEditWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcA(window, message, wParam, lParam);
}

LRESULT CALLBACK VORNDateEditWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcA(window, message, wParam, lParam);
}

LRESULT CALLBACK VORNTimeEditWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcA(window, message, wParam, lParam);
}

} // extern "C"
