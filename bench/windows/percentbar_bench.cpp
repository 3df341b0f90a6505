#include "bench/windows/measure.h"

#include <commctrl.h>
#include <vorn32.h>

namespace bench {
namespace {

void CreateAndDestroy(const char* className, DWORD style) {
    DestroyWindow(Create(className, style));
}

} // namespace

void MeasurePercentBar() {
    const auto setLimit = Ours<BOOL WINAPI(HWND, LONG)>("pbSetLimit");
    const auto setProgress = Ours<BOOL WINAPI(HWND, LONG)>("pbSetProgress");
    Compare(
        "percent bar: create and destroy / msctls_progress32", 200,
        [] { CreateAndDestroy(VORN_PERCENTBAR_CLASS, VPBS_SUNKEN); },
        [] { CreateAndDestroy(PROGRESS_CLASSA, 0); });

    HWND ours = Create(VORN_PERCENTBAR_CLASS, VPBS_SUNKEN);
    HWND theirs = Create(PROGRESS_CLASSA, PBS_SMOOTH);
    SetWindowPos(theirs, nullptr, 10, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    LONG ourProgress = 0;
    LONG theirProgress = 0;
    Compare(
        "percent bar: visible step / msctls_progress32", 200,
        [&] { setProgress(ours, ourProgress = (ourProgress + 1) % 100); },
        [&] {
            theirProgress = (theirProgress + 1) % 100;
            SendMessageA(theirs, PBM_SETPOS, static_cast<WPARAM>(theirProgress), 0);
            UpdateWindow(theirs);
        });
    Compare(
        "percent bar: step by message / msctls_progress32", 200,
        [&] {
            ourProgress = (ourProgress + 1) % 100;
            SendMessageA(ours, VPBM_SETPROGRESS, 0, ourProgress);
        },
        [&] {
            theirProgress = (theirProgress + 1) % 100;
            SendMessageA(theirs, PBM_SETPOS, static_cast<WPARAM>(theirProgress), 0);
            UpdateWindow(theirs);
        });
    DestroyWindow(theirs);
    DestroyWindow(ours);

    HWND grown = Create(VORN_PERCENTBAR_CLASS, 0);
    Growth("percent bar: steps, cost a step", [&](int steps) {
        setLimit(grown, steps);
        for (int step = 1; step <= steps; ++step) {
            setProgress(grown, step);
        }
    });
    DestroyWindow(grown);
}

} // namespace bench
