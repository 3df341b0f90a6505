/* A window that multiplies a price by a number of pieces, which cannot change while the price is
 * below 1. */
#include <vorn32.h>

enum { PRICE = 1, PIECES, TOTAL };

static WNDPROC numEditProc;

/* There is nothing to count yet. */
static LRESULT CALLBACK PiecesProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == VNMM_OKTOCHANGE) {
        return nmGetInteger(GetDlgItem(GetParent(window), PRICE)) > 0;
    }
    return CallWindowProc(numEditProc, window, message, wParam, lParam);
}

static HWND AddNumber(HWND window, int id, DWORD style, DWORD kind, double highest) {
    NmEditParams params = {0};
    HWND edit = CreateWindow(VORN_NUMEDIT_CLASS, "1",
                             WS_CHILD | WS_VISIBLE | WS_TABSTOP | VNMS_SUNKEN | VNMS_RIGHT | style,
                             20, 20 + (id - PRICE) * 36, 140, 26, window, (HMENU)(INT_PTR)id,
                             GetModuleHandle(NULL), NULL);

    params.formatKind = kind;
    params.decimalDigits = NM_USER_DECIMAL_DIGITS;
    params.rangeCheck = TRUE;
    params.maxValue = highest;
    params.useRegional = TRUE;
    nmSetEditParams(edit, &params);
    return edit;
}

static void ShowTotal(HWND window) {
    double total;

    nmGetDouble(GetDlgItem(window, PRICE), &total);
    total *= nmGetInteger(GetDlgItem(window, PIECES));
    nmSetDouble(GetDlgItem(window, TOTAL), &total);
}

static LRESULT CALLBACK MainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    (void)lParam;
    switch (message) {
    case WM_COMMAND:
        if (HIWORD(wParam) == EN_CHANGE) {
            ShowTotal(window);
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
    HWND pieces;
    MSG message;

    (void)previous;
    (void)command;
    windowClass.lpfnWndProc = MainProc;
    windowClass.hInstance = instance;
    windowClass.hbrBackground = (HBRUSH)(COLOR_BTNFACE + 1);
    windowClass.lpszClassName = "NumberHost";
    RegisterClass(&windowClass);
    window = CreateWindow("NumberHost", "Price, pieces, total", WS_OVERLAPPEDWINDOW, 100, 100, 300,
                          180, NULL, NULL, instance, NULL);
    SetFocus(AddNumber(window, PRICE, 0, NM_FLOATING_GROUPED, 10000));
    pieces = AddNumber(window, PIECES, VNMS_SPIN, NM_INTEGER_GROUPED, 1000);
    numEditProc = (WNDPROC)SetWindowLongPtr(pieces, GWLP_WNDPROC, (LONG_PTR)PiecesProc);
    AddNumber(window, TOTAL, VNMS_READONLY, NM_FLOATING_GROUPED, 1e7);
    ShowTotal(window);
    ShowWindow(window, show);
    while (GetMessage(&message, NULL, 0, 0) > 0) {
        if (!IsDialogMessage(window, &message)) {
            TranslateMessage(&message);
            DispatchMessage(&message);
        }
    }
    return 0;
}
