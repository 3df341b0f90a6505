/* A window with a dial and a percent bar that follows it. */
#include <vorn32.h>

static HWND dial;
static HWND bar;

/* The arrow keys have their line codes the other way round than everything else. */
static BOOL IsArrowDown(void) {
    return GetKeyState(VK_LEFT) < 0 || GetKeyState(VK_UP) < 0 || GetKeyState(VK_RIGHT) < 0 ||
           GetKeyState(VK_DOWN) < 0;
}

/* Where the dial is to go. */
static LONG Answer(WORD code, SHORT position) {
    const LONG step = IsArrowDown() ? -1 : 1;
    LONG minimum = 0;
    LONG maximum = 0;

    GetDialRange(dial, &minimum, &maximum);
    switch (code) {
    case SB_LINEUP:
        return GetDialPos(dial) - step;
    case SB_LINEDOWN:
        return GetDialPos(dial) + step;
    case SB_PAGEUP:
        return GetDialPos(dial) + 10;
    case SB_PAGEDOWN:
        return GetDialPos(dial) - 10;
    case SB_TOP:
        return maximum;
    case SB_BOTTOM:
        return minimum;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return position;
    }
    return GetDialPos(dial); /* SB_ENDSCROLL */
}

static LRESULT CALLBACK MainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_VSCROLL:
        SetDialPos(dial, Answer(LOWORD(wParam), (SHORT)HIWORD(wParam)), TRUE);
        pbSetProgress(bar, GetDialPos(dial));
        return 0;
    case WM_SETFOCUS:
        SetFocus(dial);
        return 0;
    case WM_SYSCOLORCHANGE:
        SendMessage(dial, message, wParam, lParam);
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
    windowClass.lpszClassName = "DialHost";
    RegisterClass(&windowClass);
    window = CreateWindow("DialHost", "Volume", WS_OVERLAPPEDWINDOW, 100, 100, 240, 260, NULL, NULL,
                          instance, NULL);
    dial = CreateWindow(VORN_DIAL_CLASS, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 40, 20, 140, 140,
                        window, NULL, instance, NULL);
    bar = CreateWindow(VORN_PERCENTBAR_CLASS, "", WS_CHILD | WS_VISIBLE | VPBS_SUNKEN, 40, 170, 140,
                       20, window, NULL, instance, NULL);
    ShowWindow(window, show);
    while (GetMessage(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message); /* for the keys + and - */
        DispatchMessage(&message);
    }
    return 0;
}
