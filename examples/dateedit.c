/* A window with a date edit. Its caption tells the date and how far away it is; once it is in the
 * past, the edit is locked. */
#include <vorn32.h>

#define DATE_ID 1

static WNDPROC dateEditProc;
static LONG today;

/* A date in the past stays as it is. */
static LRESULT CALLBACK LockProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == VDTM_OKTOCHANGE) {
        return dtIsNull(window) || dtGetDate(window, NULL) >= today;
    }
    return CallWindowProc(dateEditProc, window, message, wParam, lParam);
}

static void ShowDate(HWND window, HWND edit) {
    char date[32];
    char text[80];

    if (dtIsNull(edit)) {
        lstrcpy(text, "No date");
    } else {
        wsprintf(text, "%s, in %ld days", dtGetDateString(edit, date),
                 dtGetDate(edit, NULL) - today);
    }
    SetWindowText(window, text);
}

static LRESULT CALLBACK MainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        if (wParam == MAKEWPARAM(DATE_ID, EN_CHANGE)) {
            ShowDate(window, (HWND)lParam);
        }
        return 0;
    case WM_SETFOCUS:
        SetFocus(GetDlgItem(window, DATE_ID));
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
    HWND edit;
    MSG message;

    (void)previous;
    (void)command;
    windowClass.lpfnWndProc = MainProc;
    windowClass.hInstance = instance;
    windowClass.hbrBackground = (HBRUSH)(COLOR_BTNFACE + 1);
    windowClass.lpszClassName = "DateHost";
    RegisterClass(&windowClass);
    window = CreateWindow("DateHost", "", WS_OVERLAPPEDWINDOW, 100, 100, 320, 120, NULL, NULL,
                          instance, NULL);
    edit = CreateWindow(VORN_DATEEDIT_CLASS, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP | VDTS_SUNKEN,
                        20, 20, 140, 26, window, (HMENU)DATE_ID, instance, NULL);
    today = dtGetDate(edit, NULL); /* that is what it starts with */
    dateEditProc = (WNDPROC)SetWindowLongPtr(edit, GWLP_WNDPROC, (LONG_PTR)LockProc);
    ShowDate(window, edit);
    ShowWindow(window, show);
    while (GetMessage(&message, NULL, 0, 0) > 0) {
        DispatchMessage(&message);
    }
    return 0;
}
