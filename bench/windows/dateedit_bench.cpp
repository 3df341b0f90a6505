#include "bench/windows/measure.h"

#include <commctrl.h>
#include <vorn32.h>

namespace bench {
namespace {

constexpr int kWidth = 120;
constexpr int kHeight = 24;
constexpr WORD kYear = 2026;
constexpr WORD kMonth = 3;

// The day goes on, so that there is something to paint.
WORD NextDay() {
    static WORD day = 0;
    day = static_cast<WORD>(day % 28 + 1);
    return day;
}

void CompareDates(const char* what, DWORD style) {
    auto* setDate = Ours<decltype(dtSetDate)>("dtSetDate");
    HWND ours = Create(VORN_DATEEDIT_CLASS, style, kWidth, kHeight);
    HWND theirs = Create(DATETIMEPICK_CLASSA, DTS_SHORTDATEFORMAT, kWidth, kHeight);
    // Below ours, so that neither covers the other.
    SetWindowPos(theirs, nullptr, 0, 2 * kHeight, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    Compare(
        what, 100,
        [&] {
            const DtDate date = {kMonth, NextDay(), kYear};
            setDate(ours, &date);
        },
        [&] {
            SYSTEMTIME date{};
            date.wYear = kYear;
            date.wMonth = kMonth;
            date.wDay = NextDay();
            SendMessageA(theirs, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&date));
            UpdateWindow(theirs);
        });
    DestroyWindow(theirs);
    DestroyWindow(ours);
}

} // namespace

void MeasureDateEdit() {
    Compare(
        "date edit: create and destroy / SysDateTimePick32", 100,
        [] { DestroyWindow(Create(VORN_DATEEDIT_CLASS, VDTS_CALENDAR, kWidth, kHeight)); },
        [] { DestroyWindow(Create(DATETIMEPICK_CLASSA, 0, kWidth, kHeight)); });
    CompareDates("date edit: set a date, repainted / SysDateTimePick32", VDTS_CALENDAR);
    CompareDates("date edit: the same in pictures of digits / SysDateTimePick32", VDTS_DIGITS);
}

} // namespace bench
