/* A window with a time edit for an alarm, and a clock. Its caption tells what is left. */
#include <vorn32.h>

#define ALARM_ID 1
#define CLOCK_ID 2
#define CHECK_TIMER 1

static HWND alarmEdit;
static HWND clockEdit;

static long SecondsOf(HWND edit) {
    return (tmGetHour(edit) * 60L + tmGetMinute(edit)) * 60 + tmGetSecond(edit);
}

static void ShowRest(HWND window) {
    const long day = 24L * 60 * 60;
    long rest;
    char text[60];

    if (tmIsNull(alarmEdit)) {
        SetWindowText(window, "No alarm");
        return;
    }
    rest = (SecondsOf(alarmEdit) - SecondsOf(clockEdit) + day) % day;
    wsprintf(text, "%ld:%02ld:%02ld to go", rest / 3600, rest / 60 % 60, rest % 60);
    SetWindowText(window, text);
}

/* 24 hours, and texts of their own for both halves of the day: see the page about empty ones. */
static HWND AddEdit(HWND parent, int id, int y, DWORD style) {
    HWND edit = CreateWindow(VORN_TIMEEDIT_CLASS, "",
                             WS_CHILD | WS_VISIBLE | WS_TABSTOP | VTMS_SECONDS | style, 20, y, 120,
                             24, parent, (HMENU)(INT_PTR)id, NULL, NULL);
    TmEditParams params;

    tmGetEditParams(edit, &params);
    params.setTime = 0;
    params.keepFormat = 0;
    params.separator = ':';
    params.twentyFourHour = 1;
    lstrcpyn(params.amText, "AM", sizeof params.amText);
    lstrcpyn(params.pmText, "PM", sizeof params.pmText);
    tmSetEditParams(edit, &params);
    return edit;
}

static LRESULT CALLBACK MainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        clockEdit = AddEdit(window, CLOCK_ID, 20, VTMS_READONLY);
        alarmEdit = AddEdit(window, ALARM_ID, 60, VTMS_SUNKEN);
        tmSetNull(alarmEdit);
        tmStartClock(clockEdit);
        SetTimer(window, CHECK_TIMER, 500, NULL);
        return 0;
    case WM_COMMAND:
        if (wParam == MAKEWPARAM(ALARM_ID, EN_CHANGE)) {
            ShowRest(window);
        }
        return 0;
    case WM_TIMER:
        ShowRest(window);
        return 0;
    case WM_SETFOCUS:
        SetFocus(alarmEdit);
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProc(window, message, wParam, lParam);
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR command, int show) {
    WNDCLASS windowClass = {0};
    HWND window;
    MSG message;

    (void)previous;
    (void)command;
    windowClass.lpfnWndProc = MainProc;
    windowClass.hInstance = instance;
    windowClass.hbrBackground = (HBRUSH)(COLOR_BTNFACE + 1);
    windowClass.lpszClassName = "AlarmHost";
    RegisterClass(&windowClass);
    window = CreateWindow("AlarmHost", "No alarm", WS_OVERLAPPEDWINDOW, 100, 100, 260, 150, NULL,
                          NULL, instance, NULL);
    ShowWindow(window, show);
    while (GetMessage(&message, NULL, 0, 0) > 0) {
        DispatchMessage(&message); /* the edit takes keys, not characters */
    }
    return 0;
}
