#include "bench/windows/measure.h"

#include <commctrl.h>
#include <vorn32.h>

namespace bench {
namespace {

constexpr int kColumns = 3;
constexpr int kRows = 4;

void Repaint(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

// A top-level window of its own: twelve of the system's months are larger than the usual host.
HWND CreateTopLevel(const char* className) {
    return CreateWindowExA(0, className, "", WS_POPUP | WS_VISIBLE, 0, 0, 200, 200, nullptr,
                           nullptr, GetModuleHandleA(nullptr), nullptr);
}

// Makes room for twelve months, in three columns and four rows of the size that the system asks
// for.
SIZE MakeRoom(HWND theirs) {
    RECT month{};
    SendMessageA(theirs, MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(&month));
    SIZE size = {kColumns * month.right, kRows * month.bottom};
    const auto shown = [&] {
        SetWindowPos(theirs, nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER);
        return SendMessageA(theirs, MCM_GETCALENDARCOUNT, 0, 0);
    };
    for (int tries = 0; shown() < kColumns * kRows && tries < 20; ++tries) {
        size.cx += 10;
    }
    return size;
}

void ComparePaints() {
    HWND ours = CreateTopLevel(VORN_CALENDAR_CLASS);
    HWND theirs = CreateTopLevel(MONTHCAL_CLASSA);
    const SIZE size = MakeRoom(theirs);
    // Beside theirs, so that neither covers the other.
    SetWindowPos(ours, nullptr, size.cx, 0, size.cx, size.cy, SWP_NOZORDER);
    Compare(
        "year calendar: full repaint / SysMonthCal32, twelve months", 10, [&] { Repaint(ours); },
        [&] { Repaint(theirs); });
    DestroyWindow(theirs);
    DestroyWindow(ours);
}

} // namespace

void MeasureCalendar() {
    Compare(
        "year calendar: create and destroy / SysMonthCal32", 100,
        [] { DestroyWindow(Create(VORN_CALENDAR_CLASS, 0)); },
        [] { DestroyWindow(Create(MONTHCAL_CLASSA, 0)); });
    ComparePaints();
}

} // namespace bench
