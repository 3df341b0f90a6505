/* A window that shows a sentence in the font that the user picks. */
#include <vorn32.h>

#define FONT_ID 101

static HWND selector;

static void Paint(HWND window) {
    PAINTSTRUCT paint;
    HDC context = BeginPaint(window, &paint);
    LOGFONT font = {0};
    HGDIOBJ previous;

    font.lfHeight = fsGetFontSize(selector);
    fsGetFontFamily(selector, font.lfFaceName, LF_FACESIZE);
    previous = SelectObject(context, CreateFontIndirect(&font));
    TextOut(context, 10, 50, "The quick brown fox", 19);
    DeleteObject(SelectObject(context, previous));
    EndPaint(window, &paint);
}

static LRESULT CALLBACK MainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND: /* a family or a size was chosen */
        if (LOWORD(wParam) == FONT_ID) {
            InvalidateRect(window, NULL, TRUE);
        }
        return 0;
    case WM_FONTCHANGE: /* only top-level windows are told of it */
        SendMessage(selector, message, wParam, lParam);
        return 0;
    case WM_PAINT:
        Paint(window);
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
    windowClass.lpszClassName = "FontSelectHost";
    RegisterClass(&windowClass);
    window = CreateWindow("FontSelectHost", "Pick a font", WS_OVERLAPPEDWINDOW, 100, 100, 420, 220,
                          NULL, NULL, instance, NULL);
    selector = CreateWindow(VORN_FONTSELECT_CLASS, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, 10,
                            320, 30, window, (HMENU)FONT_ID, instance, NULL);
    fsSetFontFamily(selector, "Times New Roman");
    fsSetFontPointSize(selector, 24);
    ShowWindow(window, show);
    while (GetMessage(&message, NULL, 0, 0) > 0) {
        if (!IsDialogMessage(window, &message)) {
            TranslateMessage(&message);
            DispatchMessage(&message);
        }
    }
    return 0;
}
