// The year calendar's window procedure.
#include "date/calendar_win.h"

#include "core/window_win.h"
#include "date/today_win.h"

#include <vorn32/calendar.h>

namespace vorn::calendar {
namespace {

// The selection is all that a calendar keeps, and hosts may read it there: words of the window's
// extra bytes.
constexpr int kYearWord = 0;
constexpr int kMonthWord = 2;
constexpr int kDayWord = 4;

static_assert(kSelectedCode == VCALN_SELECT && kDoubleClickedCode == VCALN_DBLCLK);
static_assert(sizeof(VORNCALENDARDATE) == sizeof(DateQuery));

// A window without these words, of a class that a host made with too few extra bytes, stays without
// a selection.
void StoreSelection(HWND window, const date::Date& selection) {
    SetWindowWord(window, kYearWord, selection.year);
    SetWindowWord(window, kMonthWord, selection.month);
    SetWindowWord(window, kDayWord, selection.day);
}

LRESULT OnSetDate(HWND window, WPARAM wParam, LPARAM lParam) {
    const bool today = wParam == 0 && lParam == 0;
    StoreSelection(window, today ? date::Today()
                                 : date::Date{LOWORD(lParam), HIWORD(lParam), LOWORD(wParam)});
    InvalidateRect(window, nullptr, FALSE);
    UpdateWindow(window);
    return 0;
}

LRESULT OnGetDate(HWND window, VORNCALENDARDATE* answer) {
    const QueryResult result = Query(SelectionOf(window));
    if (answer != nullptr) {
        const DateQuery& query = result.query;
        *answer = {query.month, query.day, query.year, query.weekday, query.leapYear};
    }
    return static_cast<LRESULT>(result.dayNumber);
}

// The actions of a press, in order; a repaint may run the code of a host that subclassed the
// window.
void Perform(HWND window, const Actions& actions) {
    for (const Action& action : actions) {
        switch (action.kind) {
        case ActionKind::Repaint: {
            const RECT area = ToPlatform(action.area);
            Redraw(window, &area);
            break;
        }
        case ActionKind::Notify:
            NotifyParent(window, action.code);
            break;
        }
        if (!IsWindow(window)) {
            return;
        }
    }
}

LRESULT OnPress(HWND window, LPARAM lParam) {
    SetFocus(window); // runs host code
    date::Date selection = SelectionOf(window);
    const Actions actions =
        Press(selection, CurrentYear(), MeasureCalendar(window), PointOf(lParam));
    if (actions.count != 0) {
        StoreSelection(window, selection);
        Perform(window, actions);
    }
    return 0;
}

} // namespace

date::Date SelectionOf(HWND window) {
    return {GetWindowWord(window, kMonthWord), GetWindowWord(window, kDayWord),
            GetWindowWord(window, kYearWord)};
}

std::uint16_t CurrentYear() {
    return date::Today().year;
}

} // namespace vorn::calendar

using namespace vorn;
using namespace vorn::calendar;

extern "C" LRESULT CALLBACK VORNCalendarWinFn(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
    switch (message) {
    case WM_ERASEBKGND:
        return 1; // every paint covers all of it
    case WM_PAINT:
        return PaintOffscreen(window, Draw);
    case WM_LBUTTONDOWN:
        return OnPress(window, lParam);
    case WM_LBUTTONDBLCLK:
        NotifyParent(window, kDoubleClickedCode);
        return 0;
    case VCALM_SETDATE:
        return OnSetDate(window, wParam, lParam);
    case VCALM_GETDATE:
        return OnGetDate(window, reinterpret_cast<VORNCALENDARDATE*>(lParam));
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}
