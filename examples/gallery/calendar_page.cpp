// A year calendar with its choice beside the buttons that change its year.
#include "page.h"

#include <cstdio>

namespace gallery {
namespace {

enum Id { kCalendar = 100, kChoice, kEarlier, kLater, kToday };

constexpr int kCalendarTop = 44;

VORNCALENDARDATE DateOf(HWND page) {
    VORNCALENDARDATE date{};
    SendMessageA(GetDlgItem(page, kCalendar), VCALM_GETDATE, 0, reinterpret_cast<LPARAM>(&date));
    return date;
}

void ShowChoice(HWND page, const char* how) {
    static const char* const weekdays[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                           "Thursday", "Friday", "Saturday"};
    const VORNCALENDARDATE date = DateOf(page);
    char text[80];
    std::snprintf(text, sizeof text, "%s: %s, %04u-%02u-%02u%s", how, weekdays[date.weekday % 7],
                  date.year, date.month, date.day, date.leapYear != 0 ? ", a leap year" : "");
    SetWindowTextA(GetDlgItem(page, kChoice), text);
}

void SetDate(HWND page, WORD year, WORD month, WORD day) {
    SendMessageA(GetDlgItem(page, kCalendar), VCALM_SETDATE, year, MAKELONG(month, day));
}

void ChangeYear(HWND page, int years) {
    const VORNCALENDARDATE date = DateOf(page);
    const int year = date.year + years;
    if (year >= 1 && year <= 9999) {
        // Only a leap year has a 29 February.
        const bool leapDay = date.month == 2 && date.day == 29;
        SetDate(page, static_cast<WORD>(year), date.month, leapDay ? WORD{28} : date.day);
    }
}

void Create(HWND page) {
    Add(page, "STATIC", "", SS_LEFTNOWORDWRAP | SS_NOPREFIX, {10, 16, 350, 34}, kChoice);
    Add(page, "BUTTON", "Earlier", WS_TABSTOP, {360, 10, 440, 36}, kEarlier);
    Add(page, "BUTTON", "Later", WS_TABSTOP, {445, 10, 525, 36}, kLater);
    Add(page, "BUTTON", "Today", WS_TABSTOP, {530, 10, 610, 36}, kToday);
    Add(page, VORN_CALENDAR_CLASS, "", WS_BORDER, {10, kCalendarTop, 610, kPageHeight - 10},
        kCalendar);
    SetDate(page, 1752, 9, 14);
    ShowChoice(page, "Set");
}

void Command(HWND page, int id, int code, HWND /*control*/) {
    switch (id) {
    case kCalendar:
        ShowChoice(page, code == VCALN_DBLCLK ? "Double-clicked" : "Selected");
        return;
    case kEarlier:
    case kLater:
        ChangeYear(page, id == kLater ? 1 : -1);
        break;
    case kToday:
        SetDate(page, 0, 0, 0);
        break;
    default:
        return;
    }
    ShowChoice(page, "Set");
}

} // namespace

extern const Page kCalendarPage = {"calendar", "Year calendar", Create, Command, nullptr};

} // namespace gallery
