/* A window with a picture button that counts its clicks and one that ends the program. */
#include <vorn32.h>

enum { COUNT = 100, END };

static LRESULT CALLBACK MainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    static int clicks;
    char text[40];

    switch (message) {
    case WM_COMMAND:
        if (HIWORD(wParam) == VBTN_CLICKED && LOWORD(wParam) == COUNT) {
            wsprintf(text, "%d clicks", ++clicks);
            SetWindowText((HWND)lParam, text);
        } else if (HIWORD(wParam) == VBTN_CLICKED && LOWORD(wParam) == END) {
            DestroyWindow(window);
        }
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProc(window, message, wParam, lParam);
}

static HWND AddButton(HWND window, const char* caption, int id, UINT picture) {
    HWND button =
        CreateWindow(VORN_BUTTON_CLASS, caption, WS_CHILD | WS_VISIBLE | WS_TABSTOP | VBTS_PICTURE,
                     20 + (id - COUNT) * 140, 20, 130, 34, window, (HMENU)(INT_PTR)id,
                     GetModuleHandle(NULL), NULL);

    btnSetPicture(button, picture);
    return button;
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
    windowClass.lpszClassName = "ButtonHost";
    RegisterClass(&windowClass);
    window = CreateWindow("ButtonHost", "Counting", WS_OVERLAPPEDWINDOW, 100, 100, 330, 120, NULL,
                          NULL, instance, NULL);
    SetFocus(AddButton(window, "Count", COUNT, 12));
    AddButton(window, "End", END, 14);
    ShowWindow(window, show);
    while (GetMessage(&message, NULL, 0, 0) > 0) {
        if (!IsDialogMessage(window, &message)) {
            DispatchMessage(&message);
        }
    }
    return 0;
}
