/* A window with a percent bar that runs from 0 to 100 and then ends the program. */
#include <vorn32.h>

static HWND bar;

static LRESULT CALLBACK MainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_TIMER:
        if (pbGetProgress(bar) == pbGetLimit(bar)) {
            DestroyWindow(window);
        } else {
            pbSetProgress(bar, pbGetProgress(bar) + 1);
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
    HWND window;
    MSG message;

    (void)previous;
    (void)command;
    windowClass.lpfnWndProc = MainProc;
    windowClass.hInstance = instance;
    windowClass.hbrBackground = (HBRUSH)(COLOR_BTNFACE + 1);
    windowClass.lpszClassName = "PercentBarHost";
    RegisterClass(&windowClass);
    window = CreateWindow("PercentBarHost", "Working", WS_OVERLAPPEDWINDOW, 100, 100, 320, 120,
                          NULL, NULL, instance, NULL);
    bar =
        CreateWindow(VORN_PERCENTBAR_CLASS, "", WS_CHILD | WS_VISIBLE | VPBS_SUNKEN | VPBS_PERCENT,
                     20, 20, 260, 24, window, NULL, instance, NULL);
    ShowWindow(window, show);
    SetTimer(window, 1, 50, NULL);
    while (GetMessage(&message, NULL, 0, 0) > 0) {
        DispatchMessage(&message);
    }
    return 0;
}
