#include "bench/windows/measure.h"

#include <commctrl.h>
#include <string>
#include <vorn32.h>

namespace bench {
namespace {

constexpr int kSide = 100;

void CreateAndDestroy(const char* className) {
    DestroyWindow(Create(className, WS_TABSTOP, kSide, kSide));
}

// The message makes the face anew, and repaints when the dial can be seen.
void MeasureFace(int side) {
    HWND dial = Create(VORN_DIAL_CLASS, 0, side, side);
    ShowWindow(dial, SW_HIDE);
    const std::string what = "dial: face of " + std::to_string(side) + " pixels made anew";
    Measure(what.c_str(), 100, [&] { SendMessageA(dial, WM_SYSCOLORCHANGE, 0, 0); });
    DestroyWindow(dial);
}

} // namespace

void MeasureDial() {
    const auto setPosition = Ours<LONG WINAPI(HWND, LONG, BOOL)>("SetDialPos");
    Compare(
        "dial: create and destroy / msctls_trackbar32", 100,
        [] { CreateAndDestroy(VORN_DIAL_CLASS); }, [] { CreateAndDestroy(TRACKBAR_CLASSA); });

    HWND ours = Create(VORN_DIAL_CLASS, 0, kSide, kSide);
    HWND theirs = Create(TRACKBAR_CLASSA, TBS_NOTICKS, kSide, kSide);
    SetWindowPos(theirs, nullptr, 120, 10, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    LONG ourPosition = 0;
    LONG theirPosition = 0;
    Compare(
        "dial: visible step / msctls_trackbar32", 200,
        [&] { setPosition(ours, ourPosition = (ourPosition + 1) % 100, TRUE); },
        [&] {
            theirPosition = (theirPosition + 1) % 100;
            SendMessageA(theirs, TBM_SETPOS, TRUE, theirPosition);
            UpdateWindow(theirs);
        });
    DestroyWindow(theirs);
    DestroyWindow(ours);
    for (const int side : {40, 100, 200}) {
        MeasureFace(side);
    }
}

} // namespace bench
