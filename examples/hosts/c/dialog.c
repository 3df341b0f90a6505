/*
 * A dialog from a template (dialog.rc) with all of the library's controls. It does to each what a
 * user or a program would do, prints what it is told and reads back, and ends with 0 when that is
 * as expected.
 */
#include "dialog.h"

#include <stdio.h>
#include <string.h>
#include <vorn32.h>

static int failures;

/* How often each was told. */
static int clicks;
static int lineDowns;
static int doubleClicks;
static int comboFocuses;
static int ups;
static int numberChanges;
static int dateChanges;
static int timeChanges;
static int selections;

/* What a line of the output ends with. */
static const char* Judge(BOOL asExpected) {
    failures += !asExpected;
    return asExpected ? "" : ", which is not as expected";
}

static void Expect(const char* what, LONG actual, LONG expected) {
    printf("%s: %ld%s\n", what, actual, Judge(actual == expected));
}

static void ExpectNumber(const char* what, double actual, double expected) {
    printf("%s: %g%s\n", what, actual, Judge(actual == expected));
}

static void ExpectText(const char* what, const char* actual, const char* expected) {
    printf("%s: %s%s\n", what, actual, Judge(strcmp(actual, expected) == 0));
}

static void OnCommand(WORD id, WORD code) {
    clicks += id == BUTTON_ID && code == VBTN_CLICKED;
    doubleClicks += id == CALENDAR_ID && code == VCALN_DBLCLK;
    comboFocuses += id == COMBO_ID && code == CBN_SETFOCUS;
    ups += id == PAD_ID && code == VUDN_UP;
    numberChanges += id == NUMBER_ID && code == EN_CHANGE;
    dateChanges += id == DATE_ID && code == EN_CHANGE;
    timeChanges += id == TIME_ID && code == EN_CHANGE;
    selections += id == LIST_ID && code == LBN_SELCHANGE;
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
    ExpectText("text of the combo box", text, "Pear");
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

/* Functions notify of nothing, a text that is set does. */
static void UseNumericEdit(HWND edit) {
    NmEditParams params = {0};
    NmEditParams kept = {0};
    double number = 1234.5;
    char text[64] = "";

    params.formatKind = NM_FLOATING_GROUPED;
    params.rangeCheck = TRUE;
    params.decimalDigits = 2;
    params.minValue = -1000.5;
    params.maxValue = 5000.25;
    params.thousandChar = '\'';
    params.decimalChar = ',';
    params.leadingZero = TRUE;
    nmSetEditParams(edit, &params);
    nmGetEditParams(edit, &kept);
    Expect("format and range are those set", memcmp(&kept, &params, sizeof kept) == 0, TRUE);

    nmSetDouble(edit, &number);
    number = 0;
    nmGetDouble(edit, &number);
    ExpectNumber("number", number, 1234.5);
    nmGetLastGoodNumber(edit, text);
    ExpectText("number as text", text, "1234,50");
    nmSetInteger(edit, -321);
    Expect("integer", nmGetInteger(edit), -321);
    number = 100000;
    nmSetDouble(edit, &number);
    nmGetDouble(edit, &number);
    ExpectNumber("number, at most the maximum", number, 5000.25);
    Expect("changes by functions", numberChanges, 0);
    SendMessage(edit, WM_SETTEXT, 0, (LPARAM) "7.25");
    nmGetDouble(edit, &number);
    ExpectNumber("number of the text", number, 7.25);
    Expect("changes of the number", numberChanges, 1);
}

static void UseDateEdit(HWND edit) {
    const DtDate leapDay = {2, 29, 2000};
    DtDate date = {0, 0, 0};
    DtEditParams params = {0};
    char text[32] = "";

    dtSetDate(edit, &leapDay);
    /* A hundred years, 24 of them leap years, and 59 days. */
    Expect("days from 1 January 1900", dtGetDate(edit, &date), 36583);
    Expect("the date is that set", memcmp(&date, &leapDay, sizeof date) == 0, TRUE);

    params.size = sizeof params;
    params.setDate = TRUE;
    params.year = 2007;
    params.month = 3;
    params.day = 5;
    params.separator = '.';
    params.monthLeadingZero = TRUE;
    params.dayLeadingZero = TRUE;
    params.fourDigitYear = TRUE;
    params.kinds[0] = DT_DAY;
    params.kinds[1] = DT_MONTH;
    params.kinds[2] = DT_YEAR;
    dtSetEditParams(edit, &params);
    ExpectText("date as text", dtGetDateString(edit, text), "05.03.2007");
    memset(&params, 0, sizeof params);
    params.size = sizeof params;
    dtGetEditParams(edit, &params);
    Expect("year of the record", params.year, 2007);
    Expect("month of the record", params.month, 3);
    Expect("day of the record", params.day, 5);
    Expect("the layout is to be kept", params.keepLayout, TRUE);
    Expect("separator", params.separator, '.');
    Expect("what stands last", params.kinds[2], DT_YEAR);

    Expect("changes by functions", dateChanges, 0);
    SetFocus(edit);
    SendMessage(edit, WM_KEYDOWN, VK_UP, 0); /* steps what stands first */
    Expect("day after the key", dtGetDay(edit), 6);
    Expect("changes of the date", dateChanges, 1);
}

static void UseTimeEdit(HWND edit) {
    const TmTime afternoon = {14, 5, 9};
    TmTime time = {0, 0, 0};
    TmEditParams params = {0};
    TmEditParams kept = {0};
    char text[64] = "";

    params.setTime = TRUE;
    params.time.hour = 23;
    params.time.minute = 59;
    params.time.second = 58;
    params.separator = '.';
    params.leadingZero = TRUE;
    params.showSeconds = TRUE;
    strcpy(params.amText, "morning");
    strcpy(params.pmText, "evening");
    tmSetEditParams(edit, &params);
    ExpectText("time as text", tmGetTimeString(edit, text), "11.59.58 evening");
    tmGetEditParams(edit, &kept);
    Expect("time and format are those set", memcmp(&kept, &params, sizeof kept) == 0, TRUE);

    tmSetTime(edit, &afternoon);
    Expect("hour", (LONG)tmGetHour(edit), 14);
    Expect("minute", (LONG)tmGetMinute(edit), 5);
    Expect("second", (LONG)tmGetSecond(edit), 9);
    tmGetTime(edit, &time);
    Expect("the time is that set", memcmp(&time, &afternoon, sizeof time) == 0, TRUE);
    Expect("changes by functions", timeChanges, 0);
    SetFocus(edit);
    SendMessage(edit, WM_KEYDOWN, VK_UP, 0); /* steps the hour */
    Expect("hour after the key", (LONG)tmGetHour(edit), 15);
    Expect("changes of the time", timeChanges, 1);
}

/* One item at the top, and two below it. */
static void UseOutlineList(HWND list) {
    const LONG_PTR data = (LONG_PTR)((UINT_PTR)-1 / 3); /* as wide as a pointer */
    HOLBITEM fruit;
    HOLBITEM apple;
    HOLBITEM pear;
    OLBINSERTION insertion = {0};
    RECT place = {0, 0, 0, 0};
    char text[20] = "";

    fruit = olbAddChildStringEx(list, NULL, "Fruit");
    pear = olbAddChildStringEx(list, fruit, "Pear");
    insertion.parent = fruit;
    insertion.position = 0;
    insertion.text = "Apple";
    apple = (HOLBITEM)SendMessage(list, OLBM_INSERTSTRINGEX, 0, (LPARAM)&insertion);
    Expect("apples are fruit", olbQueryParentEx(list, apple) == fruit, TRUE);
    Expect("fruit is at the top", olbQueryParentEx(list, fruit) == NULL, TRUE);
    olbCloseItem(list, olbHandleToIndex(fruit)); /* only then it knows its children by number */
    Expect("pears stand behind apples", olbGetChildHandleEx(fruit, 1) == pear, TRUE);
    Expect("there are no plums", olbFindStringEx(list, fruit, -1, "Plum", TRUE) == OLB_NOITEM,
           TRUE);
    Expect("length of the text", olbGetTextEx(list, apple, text), 5);
    ExpectText("text of the item", text, "Apple");
    olbSetItemDataEx(list, pear, data);
    Expect("the item has its data", olbGetItemDataEx(list, pear) == data, TRUE);

    Expect("items", olbGetCount(list), 3);
    Expect("rows of the closed list", olbGetVisibleCount(list), 1);
    olbOpenItem(list, olbHandleToIndex(fruit));
    Expect("rows of the open list", olbGetVisibleCount(list), 3);
    Expect("row of the pear", olbHandleToIndex(pear), 2);
    Expect("the item of that row", olbIndexToHandle(list, 2) == pear, TRUE);
    Expect("selections by functions", selections, 0);
    Expect("the row is in view", olbGetItemRect(list, 2, &place), 1);
    Click(list, place.right - 1, (place.top + place.bottom) / 2);
    Expect("the click selected the pear", olbGetCurSelEx(list) == pear, TRUE);
    Expect("selections", selections, 1);
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
    UseNumericEdit(GetDlgItem(dialog, NUMBER_ID));
    UseDateEdit(GetDlgItem(dialog, DATE_ID));
    UseTimeEdit(GetDlgItem(dialog, TIME_ID));
    UseOutlineList(GetDlgItem(dialog, LIST_ID));
    DestroyWindow(dialog);
    printf("%s\n", failures == 0 ? "All is as expected." : "Not all is as expected.");
    return failures == 0 ? 0 : 1;
}
