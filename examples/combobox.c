/* A dialog whose combo box tells where the focus was before it came. */
#include <vorn32.h>

#define NAME_ID 101
#define COMBO_ID 102
#define TOLD_ID 103

static INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    WORD previous;

    (void)lParam;
    switch (message) {
    case WM_INITDIALOG:
        SendDlgItemMessage(dialog, COMBO_ID, CB_ADDSTRING, 0, (LPARAM) "Apple");
        SendDlgItemMessage(dialog, COMBO_ID, CB_ADDSTRING, 0, (LPARAM) "Pear");
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(wParam) == COMBO_ID && HIWORD(wParam) == CBN_SETFOCUS) {
            previous = (WORD)SendDlgItemMessage(dialog, COMBO_ID, VCBM_GETPREVFOCUS, 0, 0);
            SetDlgItemText(dialog, TOLD_ID,
                           previous == LOWORD((DWORD_PTR)GetDlgItem(dialog, NAME_ID))
                               ? "The focus came from the name."
                               : "The focus came from elsewhere.");
        }
        if (LOWORD(wParam) == IDCANCEL) {
            PostQuitMessage(0);
        }
        return TRUE;
    }
    return FALSE;
}

static void Add(HWND dialog, const char* className, DWORD style, int y, int height, int id) {
    CreateWindow(className, "", WS_CHILD | WS_VISIBLE | style, 10, y, 220, height, dialog,
                 (HMENU)(INT_PTR)id, GetModuleHandle(NULL), NULL);
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR command, int show) {
    struct {
        DLGTEMPLATE header;
        WORD noMenuNoClassNoTitle[3];
    } box = {{WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, 20, 20, 160, 70}, {0}};
    HWND dialog;
    MSG message;

    (void)previous;
    (void)command;
    GetVORNVersion(); /* the combo box itself needs no function: this brings the library in */
    dialog = CreateDialogIndirect(instance, &box.header, NULL, DialogProc);
    Add(dialog, "EDIT", WS_BORDER | WS_TABSTOP, 10, 22, NAME_ID);
    Add(dialog, VORN_COMBOBOX_CLASS, CBS_DROPDOWNLIST | WS_TABSTOP, 40, 120, COMBO_ID);
    Add(dialog, "STATIC", 0, 75, 20, TOLD_ID);
    SendMessage(dialog, WM_INITDIALOG, 0, 0);
    ShowWindow(dialog, show);
    while (GetMessage(&message, NULL, 0, 0) > 0) {
        if (!IsDialogMessage(dialog, &message)) {
            TranslateMessage(&message);
            DispatchMessage(&message);
        }
    }
    return 0;
}
