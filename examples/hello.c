/* A percent bar that runs from 0 to 100. */
#include <vorn32.h>

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR command, int show) {
    HWND bar = CreateWindow(VORN_PERCENTBAR_CLASS, "", WS_POPUP | VPBS_SUNKEN | VPBS_PERCENT, 200,
                            200, 300, 28, NULL, NULL, instance, NULL);
    LONG progress;

    (void)previous;
    (void)command;
    ShowWindow(bar, show);
    for (progress = 1; progress <= 100; progress++) {
        pbSetProgress(bar, progress); /* paints at once */
        Sleep(30);
    }
    return 0;
}
