/* A window with the tree of fruit, of which a double click tells the path. */
#include <vorn32.h>

#define LIST_ID 100

static HWND list;

static HOLBITEM Add(HOLBITEM parent, LPCSTR text) {
    return olbAddChildStringEx(list, parent, text);
}

static void Fill(void) {
    HOLBITEM fruit;
    HOLBITEM apple;

    SendMessage(list, WM_SETREDRAW, FALSE, 0);
    olbEnableMicroBitmaps(list, TRUE);
    olbShowLines(list, TRUE);
    olbSetPathSeparator(list, '/');
    fruit = Add(NULL, "Fruit");
    apple = Add(fruit, "Apple");
    Add(apple, "Cox");
    Add(apple, "Boskoop");
    Add(fruit, "Pear");
    olbLockItemEx(list, Add(NULL, "Secrets"), TRUE);
    olbOpenItem(list, olbHandleToIndex(fruit));
    olbSetCurSel(list, 0);
    SendMessage(list, WM_SETREDRAW, TRUE, 0);
}

static LRESULT CALLBACK MainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    char path[256];

    switch (message) {
    case WM_COMMAND:
        if (LOWORD(wParam) == LIST_ID && HIWORD(wParam) == LBN_DBLCLK) {
            SetWindowText(window, olbGetFullPathEx(list, olbGetCurSelEx(list), path));
        }
        return 0;
    case WM_SIZE:
        MoveWindow(list, 0, 0, LOWORD(lParam), HIWORD(lParam), TRUE);
        return 0;
    case WM_SETFOCUS:
        SetFocus(list);
        return 0;
    case WM_SYSCOLORCHANGE:
        SendMessage(list, message, wParam, lParam);
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
    windowClass.lpszClassName = "OutlineHost";
    RegisterClass(&windowClass);
    window = CreateWindow("OutlineHost", "Outline", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 100, 100,
                          260, 300, NULL, NULL, instance, NULL);
    list = CreateWindow(VORN_HIERLIST_CLASS, "",
                        WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOTIFY | OLBS_SUNKEN, 0, 0, 240,
                        260, window, (HMENU)LIST_ID, instance, NULL);
    Fill();
    ShowWindow(window, show);
    while (GetMessage(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
    return 0;
}
