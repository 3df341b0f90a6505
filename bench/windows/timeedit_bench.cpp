#include "bench/windows/measure.h"

#include <commctrl.h>
#include <vorn32.h>

namespace bench {
namespace {

// The system's edit of a time of day.
HWND CreateTheirs() {
    return Create(DATETIMEPICK_CLASSA, DTS_TIMEFORMAT, 200, 24);
}

HWND CreateOurs(DWORD style = VTMS_SECONDS) {
    return Create(VORN_TIMEEDIT_CLASS, style, 200, 24);
}

void SetTheirs(HWND window, WORD second) {
    SYSTEMTIME time = {
        2026, 1, 4, 1, 12, static_cast<WORD>(second / 60), static_cast<WORD>(second % 60), 0};
    SendMessageA(window, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time));
    UpdateWindow(window);
}

void CompareSettings(HWND ours, HWND theirs) {
    const auto setTime = Ours<BOOL WINAPI(HWND, const TmTime*)>("tmSetTime");
    const auto setText = Ours<BOOL WINAPI(HWND, LPCSTR)>("tmSetTimeString");
    WORD ourSecond = 0;
    WORD theirSecond = 0;
    const auto next = [&] {
        theirSecond = static_cast<WORD>((theirSecond + 1) % 3600);
        SetTheirs(theirs, theirSecond);
    };
    Compare(
        "time edit: visible change / SysDateTimePick32", 200,
        [&] {
            ourSecond = static_cast<WORD>((ourSecond + 1) % 3600);
            const TmTime time = {12, static_cast<WORD>(ourSecond / 60),
                                 static_cast<WORD>(ourSecond % 60)};
            setTime(ours, &time);
        },
        next);
    Compare(
        "time edit: visible change by text / SysDateTimePick32", 200,
        [&] {
            ourSecond = static_cast<WORD>((ourSecond + 1) % 3600);
            char text[20];
            wsprintfA(text, "12:%02d:%02d PM", ourSecond / 60, ourSecond % 60);
            setText(ours, text);
        },
        next);
}

void CompareKeys(HWND ours, HWND theirs) {
    const auto step = [](HWND window) {
        SendMessageA(window, WM_KEYDOWN, VK_UP, 1);
        SendMessageA(window, WM_KEYUP, VK_UP, 1);
        UpdateWindow(window);
    };
    SetFocus(ours);
    Measure("time edit: step by key, with the focus", 200, [&] {
        step(ours);
        MSG message; // that it posts to itself
        PeekMessageA(&message, ours, WM_USER + 400, WM_USER + 400, PM_REMOVE);
    });
    SetFocus(theirs);
    Measure("SysDateTimePick32: step by key, with the focus", 200, [&] { step(theirs); });
}

} // namespace

void MeasureTimeEdit() {
    Compare(
        "time edit: create and destroy / SysDateTimePick32", 100,
        [] { DestroyWindow(CreateOurs()); }, [] { DestroyWindow(CreateTheirs()); });
    HWND ours = CreateOurs();
    HWND theirs = CreateTheirs();
    SetWindowPos(theirs, nullptr, 0, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    CompareSettings(ours, theirs);
    CompareKeys(ours, theirs);
    DestroyWindow(theirs);
    const auto startClock = Ours<BOOL WINAPI(HWND)>("tmStartClock");
    startClock(ours);
    Measure("time edit: tick of the clock within a second", 1000,
            [&] { SendMessageA(ours, WM_TIMER, 567, 0); });
    DestroyWindow(ours);
}

} // namespace bench
