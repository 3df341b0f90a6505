/* A window with this year's calendar. Its caption tells the day that is selected; a double-click on
 * the calendar ends the program. */
#include <vorn32.h>

#define CALENDAR_ID 1

static void ShowDate(HWND window, HWND calendar) {
    static const char* const weekdays[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                           "Thursday", "Friday", "Saturday"};
    VORNCALENDARDATE date;
    char text[60];

    SendMessage(calendar, VCALM_GETDATE, 0, (LPARAM)&date);
    wsprintf(text, "%s, %d-%02d-%02d", weekdays[date.weekday], date.year, date.month, date.day);
    SetWindowText(window, text);
}

static LRESULT CALLBACK MainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        if (wParam == MAKEWPARAM(CALENDAR_ID, VCALN_SELECT)) {
            ShowDate(window, (HWND)lParam);
        } else if (wParam == MAKEWPARAM(CALENDAR_ID, VCALN_DBLCLK)) {
            DestroyWindow(window);
        }
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProc(window, message, wParam, lParam);
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR command, int show) {
    WNDCLASS windowClass = {0};
    RECT size = {0, 0, 602, 430};
    HWND window;
    HWND calendar;
    MSG message;

    (void)previous;
    (void)command;
    GetVORNVersion(); /* the calendar itself needs no function: this brings the library in */
    windowClass.lpfnWndProc = MainProc;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = "CalendarHost";
    RegisterClass(&windowClass);
    AdjustWindowRect(&size, WS_OVERLAPPEDWINDOW, FALSE);
    window =
        CreateWindow("CalendarHost", "", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 100, 100,
                     size.right - size.left, size.bottom - size.top, NULL, NULL, instance, NULL);
    calendar = CreateWindow(VORN_CALENDAR_CLASS, "", WS_CHILD | WS_VISIBLE, 0, 0, 602, 430, window,
                            (HMENU)CALENDAR_ID, instance, NULL);
    SendMessage(calendar, VCALM_SETDATE, 0, 0); /* today */
    ShowDate(window, calendar);
    ShowWindow(window, show);
    while (GetMessage(&message, NULL, 0, 0) > 0) {
        DispatchMessage(&message);
    }
    return 0;
}
