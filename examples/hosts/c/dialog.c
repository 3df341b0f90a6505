/*
 * A dialog from a template (dialog.rc) with the library's controls. It does to each what a user or
 * a program would do, prints what it is told and reads back, and ends with 0 when that is as
 * expected.
 */
#include "dialog.h"

#include <stdio.h>
#include <vorn32.h>

static int failures;

/* How often each was told. */
static int clicks;
static int lineDowns;
static int doubleClicks;
static int comboFocuses;
static int ups;

static void Expect(const char* what, LONG actual, LONG expected) {
    printf("%s: %ld%s\n", what, actual, actual == expected ? "" : ", which is not as expected");
    if (actual != expected) {
        failures++;
    }
}

static void OnCommand(WORD id, WORD code) {
    clicks += id == BUTTON_ID && code == VBTN_CLICKED;
    doubleClicks += id == CALENDAR_ID && code == VCALN_DBLCLK;
    comboFocuses += id == COMBO_ID && code == CBN_SETFOCUS;
    ups += id == PAD_ID && code == VUDN_UP;
}

static INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    (void)dialog;
    switch (message) {
    case WM_INITDIALOG:
        return TRUE;
    case WM_COMMAND:
        OnCommand(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_VSCROLL:
        if (LOWORD(wParam) == SB_LINEDOWN) { /* of the key "+": towards the maximum */
            lineDowns++;
            SetDialPos((HWND)lParam, GetDialPos((HWND)lParam) + 1, TRUE);
        }
        return TRUE;
    }
    return FALSE;
}

static void Click(HWND window, int x, int y) {
    SendMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    SendMessage(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

static void UseBarAndDial(HWND dialog) {
    HWND bar = GetDlgItem(dialog, BAR_ID);
    HWND dial = GetDlgItem(dialog, DIAL_ID);
    LONG minimum = -1;
    LONG maximum = -1;

    pbSetLimit(bar, 200);
    pbSetProgress(bar, 250);
    Expect("limit of the percent bar", pbGetLimit(bar), 200);
    Expect("progress, at most the limit", pbGetProgress(bar), 200);

    SetDialRange(dial, 0, 10, TRUE);
    SetDialPos(dial, 4, TRUE);
    SendMessage(dial, WM_CHAR, '+', 1);
    GetDialRange(dial, &minimum, &maximum);
    Expect("minimum of the dial", minimum, 0);
    Expect("maximum of the dial", maximum, 10);
    Expect("steps of the dial", lineDowns, 1);
    Expect("position of the dial", GetDialPos(dial), 5);
}

static void UseCalendar(HWND calendar) {
    VORNCALENDARDATE date;
    LONG day;

    SendMessage(calendar, VCALM_SETDATE, 2000, MAKELONG(2, 29));
    day = (LONG)SendMessage(calendar, VCALM_GETDATE, 0, (LPARAM)&date);
    /* A hundred years, 24 of them leap years, and 59 days after 1 January 1900, which is 693597. */
    Expect("day number of 29 February 2000", day, 730180);
    Expect("month", date.month, 2);
    Expect("day", date.day, 29);
    Expect("year", date.year, 2000);
    Expect("weekday, a Tuesday", date.weekday, 2);
    Expect("leap year", date.leapYear, 1);
    SendMessage(calendar, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(1, 1));
    Expect("double clicks on the calendar", doubleClicks, 1);
}

static void UseComboBox(HWND combo, HWND button) {
    char text[20] = "";

    SendMessage(combo, CB_ADDSTRING, 0, (LPARAM) "Apple");
    SendMessage(combo, CB_ADDSTRING, 0, (LPARAM) "Pear");
    SendMessage(combo, CB_SETCURSEL, 1, 0);
    SendMessage(combo, CB_GETLBTEXT, 1, (LPARAM)text);
    Expect("text of the combo box is Pear", lstrcmp(text, "Pear"), 0);
    SetFocus(button);
    SetFocus(combo);
    Expect("focuses of the combo box", comboFocuses, 1);
    Expect("the focus came from the button",
           SendMessage(combo, VCBM_GETPREVFOCUS, 0, 0) == LOWORD((DWORD_PTR)button), TRUE);
}

static void UseFontSelector(HWND selector) {
    char family[LF_FACESIZE] = "";

    Expect("index of 24 points", fsSetFontPointSize(selector, 24), 10);
    Expect("points", fsGetFontPointSize(selector), 24);
    fsGetFontFamily(selector, family, LF_FACESIZE);
    Expect("the font has a family", family[0] > ' ', TRUE);
}

int main(void) {
    HWND dialog;
    HWND button;

    /* Without it the library would not be loaded, and the dialog's classes not be known. */
    Expect("the library has a version", GetLongVersion() != 0, TRUE);
    dialog = CreateDialog(GetModuleHandle(NULL), MAKEINTRESOURCE(HOST_DIALOG), NULL, DialogProc);
    if (!dialog) {
        printf("the dialog could not be created\n");
        return 2;
    }
    ShowWindow(dialog, SW_SHOW);
    button = GetDlgItem(dialog, BUTTON_ID);
    btnSetPicture(button, 12);
    Click(button, 10, 10);
    Expect("clicks of the button", clicks, 1);
    UseBarAndDial(dialog);
    UseCalendar(GetDlgItem(dialog, CALENDAR_ID));
    UseComboBox(GetDlgItem(dialog, COMBO_ID), button);
    UseFontSelector(GetDlgItem(dialog, FONT_ID));
    Click(GetDlgItem(dialog, PAD_ID), 14, 4);
    Expect("steps up of the spin pad", ups, 1);
    DestroyWindow(dialog);
    printf("%s\n", failures == 0 ? "All is as expected." : "Not all is as expected.");
    return failures == 0 ? 0 : 1;
}
