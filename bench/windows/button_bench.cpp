#include "bench/windows/measure.h"

#include <vorn32.h>

namespace bench {
namespace {

void PressAndRelease(HWND button) {
    SendMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageA(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
}

void ComparePresses(const char* what, DWORD style) {
    HWND ours = Create(VORN_BUTTON_CLASS, style);
    HWND theirs = Create("BUTTON", BS_PUSHBUTTON);
    SetWindowPos(theirs, nullptr, 10, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    for (HWND button : {ours, theirs}) {
        SetWindowTextA(button, "Caption");
    }
    // Each keeps the focus for its turn, as a button that is pressed again and again does.
    Compare(
        what, 200, [&] { PressAndRelease(ours); }, [&] { PressAndRelease(theirs); });
    DestroyWindow(theirs);
    DestroyWindow(ours);
}

} // namespace

void MeasureButton() {
    Compare(
        "button: create and destroy / BUTTON", 200,
        [] { DestroyWindow(Create(VORN_BUTTON_CLASS, 0)); },
        [] { DestroyWindow(Create("BUTTON", BS_PUSHBUTTON)); });
    ComparePresses("button: press and release / BUTTON", 0);
    ComparePresses("button: press and release, with a picture / BUTTON", VBTS_PICTURE);
}

} // namespace bench
