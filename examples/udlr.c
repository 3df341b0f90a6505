/* A window that is moved over the screen by the spin pad in it. */
#include <vorn32.h>

static void Move(HWND window, int right, int down) {
    RECT place;

    GetWindowRect(window, &place);
    SetWindowPos(window, NULL, place.left + right, place.top + down, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

static LRESULT CALLBACK MainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        switch (HIWORD(wParam)) {
        case VUDN_UP:
            Move(window, 0, -8);
            break;
        case VUDN_RIGHT:
            Move(window, 8, 0);
            break;
        case VUDN_DOWN:
            Move(window, 0, 8);
            break;
        case VUDN_LEFT:
            Move(window, -8, 0);
            break;
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
    GetVORNVersion(); /* the pad itself needs no function: this brings the library in */
    windowClass.lpfnWndProc = MainProc;
    windowClass.hInstance = instance;
    windowClass.hbrBackground = (HBRUSH)(COLOR_BTNFACE + 1);
    windowClass.lpszClassName = "PadHost";
    RegisterClass(&windowClass);
    window = CreateWindow("PadHost", "Moving", WS_OVERLAPPEDWINDOW, 100, 100, 200, 120, NULL, NULL,
                          instance, NULL);
    CreateWindow(VORN_UDLR_CLASS, "", WS_CHILD | WS_VISIBLE, 80, 20, 0, 0, window, NULL, instance,
                 NULL);
    ShowWindow(window, show);
    while (GetMessage(&message, NULL, 0, 0) > 0) {
        DispatchMessage(&message);
    }
    return 0;
}
