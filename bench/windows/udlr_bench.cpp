#include "bench/windows/measure.h"

#include <commctrl.h>
#include <vorn32.h>

namespace bench {
namespace {

constexpr int kSide = 29;

void PressAndRelease(HWND pad) {
    SendMessageA(pad, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(14, 5));
    SendMessageA(pad, WM_LBUTTONUP, 0, MAKELPARAM(14, 5));
}

} // namespace

void MeasureUdlr() {
    Compare(
        "spin pad: create and destroy / msctls_updown32", 200,
        [] { DestroyWindow(Create(VORN_UDLR_CLASS, 0, kSide, kSide)); },
        [] { DestroyWindow(Create(UPDOWN_CLASSA, 0, kSide, kSide)); });

    HWND ours = Create(VORN_UDLR_CLASS, 0, kSide, kSide);
    HWND theirs = Create(UPDOWN_CLASSA, 0, kSide, kSide);
    SetWindowPos(theirs, nullptr, 60, 10, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    Compare(
        "spin pad: press and release / msctls_updown32", 200, [&] { PressAndRelease(ours); },
        [&] { PressAndRelease(theirs); });
    DestroyWindow(theirs);
    DestroyWindow(ours);
}

} // namespace bench
