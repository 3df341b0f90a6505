#include "tests/windows/abuse/subject_operations.h"

#include "tests/windows/support/input.h"

#include <array>
#include <vorn32.h>

namespace vorn::test {
namespace {

// ---- The pieces that operations are made of ----

Operation Sent(const std::string& name, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return {name, [=](HWND window) { SendMessageA(window, message, wParam, lParam); }};
}

Operation SentText(const std::string& name, UINT message, WPARAM wParam, const char* text) {
    return Sent(name, message, wParam, reinterpret_cast<LPARAM>(text));
}

// A key of a control that has the focus.
Operation Key(const std::string& name, WPARAM key, char character = '\0') {
    return {name, [=](HWND window) {
                SetFocus(window);
                SendMessageA(window, WM_KEYDOWN, key, 1);
                if (character != '\0') {
                    SendMessageA(window, WM_CHAR, static_cast<WPARAM>(character), 1);
                }
                SendMessageA(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
            }};
}

Operation Click(const std::string& name, int x, int y) {
    return {name, [=](HWND window) {
                SendMouse(window, WM_LBUTTONDOWN, x, y);
                SendMouse(window, WM_MOUSEMOVE, x + 2, y + 1);
                SendMouse(window, WM_LBUTTONUP, x, y);
            }};
}

// A press whose timer ticks a few times.
Operation Hold(const std::string& name, int x, int y, const std::vector<UINT_PTR>& timers) {
    return {name, [=](HWND window) {
                SendMouse(window, WM_LBUTTONDOWN, x, y);
                for (const UINT_PTR timer : timers) {
                    SendMessageA(window, WM_TIMER, timer, 0);
                }
                SendMouse(window, WM_MOUSEMOVE, -20, 300);
                SendMouse(window, WM_LBUTTONUP, -20, 300);
            }};
}

std::vector<Operation> Join(std::vector<Operation> first, const std::vector<Operation>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

// ---- What edits share ----

std::vector<Operation> EditOperations() {
    return {
        Key("digit", '1', '1'),
        Key("up", VK_UP),
        Key("end", VK_END),
        {"end of a narrow one",
         [](HWND window) {
             SetWindowPos(window, nullptr, 0, 0, 30, 24, SWP_NOMOVE | SWP_NOZORDER);
             SetFocus(window);
             SendMessageA(window, WM_KEYDOWN, VK_END, 1);
             SendMessageA(window, WM_KEYDOWN, VK_HOME, 1);
         }},
        Key("backspace", VK_BACK, '\b'),
        Key("delete", VK_DELETE),
        Key("escape", VK_ESCAPE, '\x1B'),
        Key("letter", 'P', 'p'),
        {"clipboard",
         [](HWND window) {
             SendMessageA(window, EM_SETSEL, 0, -1);
             SendMessageA(window, WM_COPY, 0, 0);
             SendMessageA(window, WM_CUT, 0, 0);
             SendMessageA(window, WM_PASTE, 0, 0);
             SendMessageA(window, WM_CLEAR, 0, 0);
         }},
        SentText("replace", EM_REPLACESEL, TRUE, "12"),
        Sent("read only", EM_SETREADONLY, TRUE),
        Sent("limit", EM_LIMITTEXT, 3),
        Sent("undo", EM_UNDO),
    };
}

// ---- The date edit's dialog ----

HWND dialogThatStays = nullptr; // opened by another

// Chooses or gives up, in turn, in the dialog that a date edit opened.
void CALLBACK EndPopup(HWND, UINT, UINT_PTR, DWORD) {
    static bool choose = false;
    if (FindDateDialog(dialogThatStays) != nullptr) {
        choose = !choose;
        EndDateDialogs(choose ? IDOK : IDCANCEL, dialogThatStays);
    }
}

void OpenPopup(HWND dateEdit) {
    dialogThatStays = FindDateDialog();
    const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, EndPopup);
    PressCalendarButton(dateEdit);
    KillTimer(nullptr, timer);
}

struct DialogSearch {
    HWND except;
    HWND found;
};

// A dialog that has been ended is hidden until its loop has noticed.
BOOL CALLBACK CompareDialog(HWND window, LPARAM parameter) {
    auto* search = reinterpret_cast<DialogSearch*>(parameter);
    char title[20] = "";
    if (window != search->except && IsWindowVisible(window) &&
        GetWindowTextA(window, title, sizeof title) > 0 && title == std::string("Select Date")) {
        search->found = window;
    }
    return search->found == nullptr ? TRUE : FALSE;
}

Operation Choose(const std::string& name, int place) {
    return {name, [=](HWND window) {
                SetFocus(ListIn(window, place));
                SendMessageA(ListIn(window, place), CB_SHOWDROPDOWN, TRUE, 0);
                SendMessageA(ListIn(window, place), WM_KEYDOWN, VK_DOWN, 1);
                SendMessageA(ListIn(window, place), WM_KEYDOWN, VK_RETURN, 1);
                SendMessageA(ListIn(window, place), CB_SHOWDROPDOWN, FALSE, 0);
                PumpMessages();
            }};
}

} // namespace

HWND ListIn(HWND fontSelector, int place) {
    HWND list = GetWindow(GetWindow(fontSelector, GW_CHILD), GW_CHILD);
    for (int i = 0; i < place && list != nullptr; ++i) {
        list = GetWindow(list, GW_HWNDNEXT);
    }
    return list;
}

void PressCalendarButton(HWND dateEdit) {
    SendMouse(dateEdit, WM_LBUTTONDOWN, 108, 10);
    SendMouse(dateEdit, WM_LBUTTONUP, 108, 10);
}

HWND FindDateDialog(HWND except) {
    DialogSearch search = {except, nullptr};
    EnumThreadWindows(GetCurrentThreadId(), CompareDialog, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

void EndDateDialogs(WORD command, HWND except) {
    while (HWND dialog = FindDateDialog(except)) {
        SendMessageA(dialog, WM_COMMAND, command, 0);
    }
}

std::vector<Operation> CommonOperations(POINT press) {
    const auto x = static_cast<int>(press.x);
    const auto y = static_cast<int>(press.y);
    return {
        {"paint",
         [](HWND window) {
             RedrawWindow(window, nullptr, nullptr,
                          RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
         }},
        {"text", [](HWND window) { SetWindowTextA(window, "1/2/3"); }},
        {"focus",
         [](HWND window) {
             SetFocus(window);
             SetFocus(GetParent(window));
         }},
        {"resize",
         [](HWND window) {
             SetWindowPos(window, nullptr, 3, 3, 70, 50, SWP_NOZORDER);
             UpdateWindow(window);
         }},
        {"disable and enable",
         [](HWND window) {
             SetFocus(window);
             EnableWindow(window, FALSE);
             EnableWindow(window, TRUE);
         }},
        {"hide and show",
         [](HWND window) {
             SetFocus(window);
             ShowWindow(window, SW_HIDE);
             ShowWindow(window, SW_SHOW);
             UpdateWindow(window);
         }},
        {"font",
         [](HWND window) {
             SendMessageA(window, WM_SETFONT,
                          reinterpret_cast<WPARAM>(GetStockObject(ANSI_VAR_FONT)), TRUE);
             UpdateWindow(window);
         }},
        Sent("system colours", WM_SYSCOLORCHANGE),
        Sent("system settings", WM_WININICHANGE),
        Click("click", x, y),
        {"double click",
         [=](HWND window) {
             SendMouse(window, WM_LBUTTONDBLCLK, x, y);
             SendMouse(window, WM_LBUTTONUP, x, y);
         }},
    };
}

std::vector<Operation> Ends(POINT press) {
    const auto x = static_cast<int>(press.x);
    const auto y = static_cast<int>(press.y);
    return {
        {"end", [](HWND window) { DestroyWindow(window); }},
        {"end while pressed",
         [=](HWND window) {
             SendMouse(window, WM_LBUTTONDOWN, x, y);
             DestroyWindow(window);
         }},
    };
}

std::vector<Operation> ButtonOperations() {
    return {
        {"state",
         [](HWND window) {
             btnSetState(window, TRUE);
             btnSetState(window, FALSE);
         }},
        {"picture",
         [](HWND window) {
             btnSetPicture(window, 3);
             btnEnableColorCode(window, TRUE);
             btnSetColorCode(window, RGB(1, 2, 3));
         }},
        {"style",
         [](HWND window) {
             btnSetStyle(window, VBTS_TOGGLE | VBTS_DEFAULT, TRUE);
             SendMessageA(window, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
         }},
        {"colour", [](HWND window) { btnSetColor(window, VORN_COLOR_FACE, 77); }},
        Hold("hold", 50, 15, {1, 2, 2}),
        Key("space", VK_SPACE, ' '),
        Key("return", VK_RETURN, '\r'),
        Sent("system click", BM_CLICK),
    };
}

std::vector<Operation> NumEditOperations() {
    return Join(EditOperations(), {
                                      {"number",
                                       [](HWND window) {
                                           nmSetInteger(window, -7);
                                           const double number = 1e300;
                                           nmSetDouble(window, &number);
                                       }},
                                      {"too long a number",
                                       [](HWND window) {
                                           SendMessageA(window, EM_LIMITTEXT, 3, 0);
                                           nmSetInteger(window, 123456);
                                       }},
                                      {"null", [](HWND window) { nmSetNull(window); }},
                                      {"format",
                                       [](HWND window) {
                                           NmEditParams params{};
                                           params.formatKind = NM_FLOATING_GROUPED_PARENTHESES;
                                           params.rangeCheck = 1;
                                           params.decimalDigits = 2;
                                           params.maxValue = 10;
                                           nmSetEditParams(window, &params);
                                       }},
                                      {"looks",
                                       [](HWND window) {
                                           nmSetDisplayStyle(window, VNMD_DIGITS);
                                           nmSetDisplayStyle(window, VNMD_CELLS);
                                           nmSetAlignment(window, VNMA_RIGHT);
                                           nmSetBorderStyle(window, VORN_BORDER_RAISED);
                                           nmEnableSpinButtons(window, FALSE);
                                           nmSetColor(window, VORN_COLOR_TEXT, 5);
                                       }},
                                      Hold("spin", 84, 6, {1, 2, 2}),
                                  });
}

std::vector<Operation> DateEditOperations() {
    return Join(EditOperations(), {
                                      {"date",
                                       [](HWND window) {
                                           const DtDate date = {12, 31, 1999};
                                           dtSetDate(window, &date);
                                           dtSetDateString(window, "1/1/2000");
                                       }},
                                      {"null", [](HWND window) { dtSetNull(window); }},
                                      {"layout",
                                       [](HWND window) {
                                           DtEditParams params{};
                                           params.size = sizeof params;
                                           params.setDate = 1;
                                           dtSetEditParams(window, &params);
                                       }},
                                      {"looks",
                                       [](HWND window) {
                                           dtSetDisplayStyle(window, VDTD_DIGITS);
                                           dtSetDisplayStyle(window, VDTD_CELLS);
                                           dtSetBorderStyle(window, VORN_BORDER_RAISED);
                                           dtEnableCalendar(window, FALSE);
                                           dtSetColor(window, VORN_COLOR_TEXT, 5);
                                       }},
                                      {"calendar", OpenPopup},
                                      {"calendar of system buttons",
                                       [](HWND window) {
                                           dtSetButtonStyle(window, 0);
                                           OpenPopup(window);
                                       }},
                                  });
}

std::vector<Operation> TimeEditOperations() {
    return Join(EditOperations(), {
                                      {"time",
                                       [](HWND window) {
                                           const TmTime time = {23, 59, 59};
                                           tmSetTime(window, &time);
                                           tmSetTimeString(window, "1:02:03 AM");
                                       }},
                                      {"null", [](HWND window) { tmSetNull(window); }},
                                      {"format",
                                       [](HWND window) {
                                           TmEditParams params{};
                                           params.setTime = 1;
                                           params.twentyFourHour = 1;
                                           tmSetEditParams(window, &params);
                                           PumpMessages();
                                       }},
                                      {"looks",
                                       [](HWND window) {
                                           tmSetDisplayStyle(window, VTMD_DIGITS);
                                           tmSetDisplayStyle(window, VTMD_CELLS);
                                           tmSetBorderStyle(window, VORN_BORDER_SUNKEN);
                                           tmSetColor(window, VORN_COLOR_TEXT, 5);
                                       }},
                                      {"clock",
                                       [](HWND window) {
                                           tmStartClock(window);
                                           SendMessageA(window, WM_TIMER, 567, 0);
                                           tmStopClock(window);
                                       }},
                                  });
}

std::vector<Operation> FontSelectOperations() {
    return {
        {"family", [](HWND window) { fsSetFontFamily(window, "A"); }},
        {"size",
         [](HWND window) {
             fsSetFontPointSize(window, 14);
             fsSetFontSize(window, 30);
             fsSetItemHeight(window, 20);
         }},
        {"colour", [](HWND window) { fsSetColor(window, VORN_COLOR_BACKGROUND, 5); }},
        {"codes",
         [](HWND window) {
             fsSetFontCommandCode(window, 5);
             fsSetSizeCommandCode(window, 6);
         }},
        Sent("fonts changed", WM_FONTCHANGE),
        Choose("choose a family", 0),
        Choose("choose a size", 1),
    };
}

std::vector<Operation> CalendarOperations() {
    return {
        Sent("date", VCALM_SETDATE, 1999, MAKELPARAM(12, 31)),
        Sent("today", VCALM_SETDATE),
        Sent("no date", VCALM_SETDATE, 0xFFFF, -1),
        Sent("ask", VCALM_GETDATE),
        Key("key", VK_RIGHT),
    };
}

std::vector<Operation> DialOperations() {
    return {
        {"position", [](HWND window) { SetDialPos(window, 70, TRUE); }},
        {"range",
         [](HWND window) {
             SetDialRange(window, -10, 10, TRUE);
             SetDialTurnRange(window, 0, 180, TRUE);
             SetDialDirection(window, 0);
         }},
        Hold("corner", 5, 55, {1, 2, 2}),
        Hold("turn", 30, 10, {1, 2, 2}),
        Key("up", VK_UP),
        Key("down", VK_DOWN),
        Key("home", VK_HOME),
        Key("page", VK_NEXT),
        Key("plus", VK_ADD, '+'),
    };
}

std::vector<Operation> UdlrOperations() {
    return {Hold("hold", 15, 5, {1, 2, 2}), Click("left", 4, 15), Click("right", 26, 15),
            Click("down", 15, 26)};
}

std::vector<Operation> PercentBarOperations() {
    return {
        {"progress",
         [](HWND window) {
             pbSetProgress(window, 60);
             pbSetLimit(window, 0);
             pbSetProgress(window, -5);
         }},
        {"looks",
         [](HWND window) {
             pbEnablePercent(window, TRUE);
             pbEnableText(window, FALSE);
             pbEnableTickMarks(window, FALSE);
             pbSetBorderStyle(window, VORN_BORDER_RAISED);
             pbSetPercentFont(window, nullptr);
             pbSetColor(window, VORN_COLOR_FILL, 5);
         }},
    };
}

// ---- The outline list and the combo box ----

void FillList(HWND list) {
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    for (const char* text : {"a", "b", "c", "d", "e"}) {
        olbAddString(list, text);
    }
    olbAddChildString(list, 1, "x");
    olbAddChildString(list, 1, "y");
    olbOpenItem(list, 1);
    olbShowLines(list, TRUE);
    olbEnableMicroBitmaps(list, TRUE);
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
}

namespace {

std::vector<Operation> ListContentOperations() {
    return {
        {"add",
         [](HWND list) {
             olbAddString(list, "f");
             olbAddChildString(list, 0, "g");
             olbInsertString(list, 1, "h");
         }},
        {"delete",
         [](HWND list) {
             olbDeleteString(list, 0);
             olbDeleteSubTree(list, 0);
         }},
        {"empty", [](HWND list) { olbResetContent(list); }},
        {"move and copy",
         [](HWND list) {
             olbMoveItem(list, 3, 0, 0);
             olbCopyItem(list, 1, -1, 0);
             olbMoveChildren(list, 1, 0, OLB_APPEND);
             olbCopyChildren(list, 0, 1, 0);
         }},
        {"open and close",
         [](HWND list) {
             olbCloseItem(list, 1);
             olbOpenAll(list, -1);
             olbCloseAll(list);
         }},
        {"item",
         [](HWND list) {
             olbSetItemText(list, 1, "longer");
             olbSetItemHeight(list, 0, 30);
             olbSetBitmapIndex(list, 0, OLB_SORTFIRST);
         }},
        {"files", [](HWND list) { olbDir(list, 0, "nothing.such"); }},
    };
}

std::vector<Operation> ListLookOperations() {
    return {
        {"options",
         [](HWND list) {
             olbSetIndent(list, 10);
             olbShowLines(list, FALSE);
             olbSetFullSelectRect(list, TRUE);
             olbSetFlags(list, 0xFFFF, OLBO_ASKBACKGROUND);
             olbSetColor(list, OLBC_TEXT, 5, TRUE);
         }},
        {"border", [](HWND list) { olbSetBorderStyle(list, VORN_BORDER_RAISED); }},
        {"columns",
         [](HWND list) {
             olbSetColumns(list, 2);
             olbSetHorizontalExtent(list, 500);
         }},
        {"owner draw",
         [](HWND list) {
             olbSetOwnerDraw(list, 1);
             olbSetOwnerDraw(list, 2);
             olbChangeStyle(list, LBS_MULTIPLESEL);
         }},
        {"select",
         [](HWND list) {
             olbSetCurSel(list, 2);
             olbSetSel(list, -1, TRUE);
             olbSelItemRange(list, 0, 2, FALSE);
             olbSelectString(list, -1, "c");
             olbSetTopIndex(list, 2);
         }},
    };
}

} // namespace

std::vector<Operation> ListOperations() {
    const std::vector<Operation> input = {
        Key("down", VK_DOWN),
        Key("end", VK_END),
        Key("page", VK_NEXT),
        Key("space", VK_SPACE, ' '),
        Key("letter", 'C', 'c'),
        Key("plus", VK_ADD, '+'),
        Key("minus", VK_SUBTRACT, '-'),
        Click("box", 8, 27),
        Hold("drag", 60, 9, {101, 100}),
        Sent("scroll", WM_VSCROLL, SB_PAGEDOWN),
        Sent("scroll across", WM_HSCROLL, SB_LINEDOWN),
    };
    return Join(Join(ListContentOperations(), ListLookOperations()), input);
}

void FillComboBox(HWND comboBox) {
    for (const char* text : {"one", "two", "three"}) {
        SendMessageA(comboBox, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
}

std::vector<Operation> ComboBoxOperations() {
    return {
        SentText("add", CB_ADDSTRING, 0, "four"),
        Sent("select", CB_SETCURSEL, 1),
        Key("down", VK_DOWN),
        Key("drop", VK_F4),
        {"drop down",
         [](HWND window) {
             SendMessageA(window, CB_SHOWDROPDOWN, TRUE, 0);
             SendMessageA(window, CB_SHOWDROPDOWN, FALSE, 0);
         }},
        Sent("ask", VCBM_GETPREVFOCUS),
    };
}

} // namespace vorn::test
