// The numeric edit's keys, characters, focus and clipboard, as a user makes them.
#include "tests/windows/host/numedit_host.h"

namespace {

using vorn::test::ChangeEvents;
using vorn::test::Events;
using vorn::test::NumEditHost;
using vorn::test::operator+;

class NumEditInput : public NumEditHost {
protected:
    // Both messages of a key that types a character ask; the character's tells of what it did, and
    // 1424 comes once more.
    static inline const Events kTyped = Events{"ask", "ask"} + ChangeEvents() + Events{"changed"};
    static inline const Events kNotTyped = {"ask", "ask", "changed"};
    // A key without a character.
    static inline const Events kEdited = Events{"ask"} + ChangeEvents() + Events{"changed"};
    static inline const Events kMoved = {"ask", "changed"};
};

TEST_F(NumEditInput, DigitsAreTyped) {
    HWND edit = CreateFocused();
    TypeKeys("7");
    EXPECT_EQ(TakeEvents(), kTyped);
    TypeKeys("05");
    EXPECT_EQ(TextOf(edit), "705");
    EXPECT_NE(SendMessageA(edit, EM_GETMODIFY, 0, 0), 0);
    EXPECT_FALSE(nmIsNull(edit));
}

TEST_F(NumEditInput, ChangesArePaintedBetweenTheNotifications) {
    HWND edit = CreateFocused();
    notesPaints = true;
    SendMessageA(edit, WM_CHAR, '7', 0);
    EXPECT_EQ(TakeEvents(),
              (Events{"ask", "changed", "EN_UPDATE", "paint", "EN_CHANGE", "changed"}));
}

TEST_F(NumEditInput, DecimalsAreTyped) {
    HWND edit = CreateFocused(NM_FLOATING, 2);
    TypeKeys("12.34");
    EXPECT_EQ(TextOf(edit), "12.34");
    EXPECT_EQ(SelectionOf(edit), "5-5");
    TypeKeys(".");
    EXPECT_EQ(TextOf(edit), "12.34");
}

TEST_F(NumEditInput, SignsAndExponentsAreTyped) {
    HWND edit = CreateFocused();
    TypeKeys("-");
    EXPECT_EQ(TakeEvents(), kTyped);
    TypeKeys("15e");
    EXPECT_EQ(TextOf(edit), "-15e");
    TypeKeys("-");
    EXPECT_EQ(TextOf(edit), "-15e-");
    TypeKeys("1");
    EXPECT_EQ(TextOf(edit), "-1") << "-1.5 without decimals";
    HWND plus = CreateFocused();
    TypeKeys("1e+3");
    EXPECT_EQ(TextOf(plus), "1000");
}

TEST_F(NumEditInput, WhatIsNoNumberBeeps) {
    HWND edit = CreateFocused();
    TypeKeys("12");
    TakeEvents();
    for (const char* key : {"-", ",", "+", "X", " "}) {
        TypeKeys(key);
        EXPECT_EQ(TextOf(edit), "12") << key;
    }
    TakeEvents();
    TypeKeys("X");
    EXPECT_EQ(TakeEvents(), kNotTyped);
}

TEST_F(NumEditInput, TheNumericPadsPointIsTheDecimalCharacter) {
    HWND edit = CreateFocused(NM_FLOATING, 1);
    NmEditParams params = Params(NM_FLOATING, 1);
    params.decimalChar = ',';
    params.thousandChar = '.';
    nmSetEditParams(edit, &params);
    TypeKeys("1.");
    EXPECT_EQ(TextOf(edit), "1.0");
    EXPECT_EQ(SelectionOf(edit), "1-1") << "that was the grouping";
    PressKey(VK_DECIMAL);
    EXPECT_EQ(SelectionOf(edit), "2-2");
    TypeKeys("5");
    EXPECT_EQ(TextOf(edit), "1.5");
    Put(edit, "");
    TypeKeys("2,5");
    EXPECT_EQ(TextOf(edit), "2.5");
}

TEST_F(NumEditInput, TheInsertKeyTurnsToOverwriting) {
    // The system counts the key's presses itself: from here on it and this thread agree.
    SetFocus(host.window());
    do {
        PressKey(VK_INSERT);
    } while ((GetKeyState(VK_INSERT) & 1) != 0);
    HWND edit = CreateFocused();
    Put(edit, "123");
    PressKey(VK_INSERT);
    EXPECT_EQ(TakeEvents(), kMoved);
    TypeKeys("9");
    EXPECT_EQ(TextOf(edit), "923");
    PressKey(VK_INSERT);
    TypeKeys("8");
    EXPECT_EQ(TextOf(edit), "9823");
}

TEST_F(NumEditInput, OutOfRangeBecomesTheLimit) {
    HWND edit = CreateFocused();
    SetRange(edit, 0, 100);
    TakeEvents();
    TypeKeys("25");
    TakeEvents();
    TypeKeys("0");
    EXPECT_EQ(TakeEvents(), kTyped);
    EXPECT_EQ(TextOf(edit), "100");
}

TEST_F(NumEditInput, KeysEditAndMove) {
    HWND edit = CreateFocused();
    PutAndSelectEnd(edit, "1234");
    PressKey(VK_BACK);
    EXPECT_EQ(TextOf(edit), "123");
    EXPECT_EQ(TakeEvents(), (kEdited + Events{"ask", "changed"})) << "it types a character";
    PressKey(VK_HOME);
    EXPECT_EQ(TakeEvents(), kMoved);
    PressKey(VK_DELETE);
    EXPECT_EQ(TextOf(edit), "23");
    EXPECT_EQ(TakeEvents(), kEdited);
    PressKey(VK_RIGHT);
    EXPECT_EQ(SelectionOf(edit), "1-1");
    PressKey(VK_END);
    PressKey(VK_LEFT);
    EXPECT_EQ(SelectionOf(edit), "1-1");
    PressShifted(VK_END);
    EXPECT_EQ(SelectionOf(edit), "1-2");
    PressShifted(VK_HOME);
    EXPECT_EQ(SelectionOf(edit), "0-1");
    PressShifted(VK_RIGHT);
    EXPECT_EQ(SelectionOf(edit), "1-1");
    PressShifted(VK_LEFT);
    EXPECT_EQ(SelectionOf(edit), "0-1");
    TakeEvents();
    TypeKeys("9");
    EXPECT_EQ(TextOf(edit), "93");
    EXPECT_EQ(TakeEvents(), kTyped);
}

TEST_F(NumEditInput, KeysWithoutAUseTellNothing) {
    CreateFocused();
    PressKey(VK_F5);
    PressKey(VK_PRIOR);
    EXPECT_EQ(TakeEvents(), (Events{"ask", "ask"}));
    PressKey(VK_ESCAPE);
    PressKey(VK_CAPITAL);
    PressKey(VK_CAPITAL);
    EXPECT_EQ(TakeEvents(), Events{}) << "the system's";
}

TEST_F(NumEditInput, UpAndDownStep) {
    HWND edit = CreateFocused(NM_FLOATING, 1);
    PressKey(VK_UP);
    EXPECT_EQ(TakeEvents(), kEdited);
    EXPECT_EQ(TextOf(edit), "1.0");
    PressKey(VK_DOWN);
    PressKey(VK_DOWN);
    EXPECT_EQ(TextOf(edit), "-1.0");
    SetRange(edit, -1, 1);
    TakeEvents();
    PressKey(VK_DOWN);
    EXPECT_EQ(TakeEvents(), Events{"ask"}) << "nothing happens at the limit";
    EXPECT_EQ(TextOf(edit), "-1.0");
}

TEST_F(NumEditInput, ReadOnlyBearsNoKey) {
    HWND edit = CreateFocused(NM_GENERAL, 0, VNMS_READONLY);
    PutAndSelectEnd(edit, "12");
    TypeKeys("3");
    PressKey(VK_LEFT);
    PressKey(VK_UP);
    PressKey(VK_BACK);
    EXPECT_EQ(TakeEvents(), Events{}) << "nobody is asked";
    EXPECT_EQ(TextOf(edit), "12");
    EXPECT_EQ(SelectionOf(edit), "2-2");
}

TEST_F(NumEditInput, TheHostMayRefuse) {
    HWND edit = CreateFocused();
    PutAndSelectEnd(edit, "12");
    allowed = 0;
    TypeKeys("3");
    EXPECT_EQ(TakeEvents(), (Events{"ask", "ask"}));
    PressKey(VK_LEFT);
    PressKey(VK_BACK);
    PressKey(VK_UP);
    EXPECT_EQ(TextOf(edit), "12");
    EXPECT_EQ(SelectionOf(edit), "2-2");
    allowed = 1;
}

TEST_F(NumEditInput, AltIsIgnored) {
    HWND edit = CreateFocused();
    BYTE keys[256];
    GetKeyboardState(keys);
    keys[VK_MENU] = 0x80;
    SetKeyboardState(keys);
    SendMessageA(edit, WM_CHAR, '1', 0);
    SendMessageA(edit, WM_KEYDOWN, VK_UP, 0);
    keys[VK_MENU] = 0;
    SetKeyboardState(keys);
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_EQ(TextOf(edit), "");
}

TEST_F(NumEditInput, TabMovesTheFocusToTheNextAndBack) {
    HWND first = Create(NM_GENERAL, 0, WS_TABSTOP);
    HWND second = Create(NM_GENERAL, 0, WS_TABSTOP);
    SetFocus(first);
    PressKey(VK_TAB);
    EXPECT_EQ(GetFocus(), second);
    PressShifted(VK_TAB);
    EXPECT_EQ(GetFocus(), first);
    SendMessageA(first, WM_CHAR, VK_TAB, 0);
    EXPECT_EQ(GetFocus(), second);
    SendMessageA(second, EM_SETREADONLY, TRUE, 0);
    PressKey(VK_TAB);
    EXPECT_EQ(GetFocus(), first);
}

TEST_F(NumEditInput, TheFocusIsToldAndBringsTheCaret) {
    HWND edit = Create();
    Put(edit, "12");
    SetFocus(edit);
    EXPECT_EQ(TakeEvents(), Events{"EN_SETFOCUS"});
    EXPECT_EQ(CaretAt(edit).x, 4);
    PressKey(VK_END);
    EXPECT_GT(CaretAt(edit).x, 4);
    TakeEvents();
    notesPaints = true;
    SetFocus(host.window());
    EXPECT_EQ(TakeEvents(), (Events{"paint", "EN_KILLFOCUS"}));
    EXPECT_EQ(CaretAt(edit).x, -1);
}

TEST_F(NumEditInput, ALongTextIsScrolledToTheCaretWithoutAWord) {
    HWND edit = CreateFocused(NM_GENERAL, 0, 0, 40);
    TypeKeys("123456");
    EXPECT_GT(SendMessageA(edit, EM_GETFIRSTVISIBLELINE, 0, 0), 0);
    EXPECT_LT(CaretAt(edit).x, 40);
    TakeEvents();
    TypeKeys("7");
    EXPECT_EQ(TakeEvents(), kTyped) << "no EN_HSCROLL, no EN_MAXTEXT";
    PressKey(VK_HOME);
    EXPECT_EQ(SendMessageA(edit, EM_GETFIRSTVISIBLELINE, 0, 0), 0);
}

TEST_F(NumEditInput, KeysCopyCutAndPaste) {
    HWND edit = CreateFocused();
    Put(edit, "12345");
    Select(edit, 1, 3);
    PressControlled(VK_INSERT);
    EXPECT_EQ(ClipboardText(), "23");
    EXPECT_EQ(TakeEvents(), kMoved);
    PressShifted(VK_DELETE);
    EXPECT_EQ(TextOf(edit), "145");
    EXPECT_EQ(TakeEvents(), kEdited);
    PressShifted(VK_INSERT);
    EXPECT_EQ(TextOf(edit), "12345");
    EXPECT_EQ(TakeEvents(), kEdited);
    PressControlled(VK_DELETE);
    EXPECT_EQ(TextOf(edit), "12345");
    Select(edit, 5, 5);
    PressControlled('C');
    EXPECT_EQ(ClipboardText(), "12345") << "all of it with nothing selected";
    Select(edit, 0, -1);
    PressControlled('X');
    EXPECT_TRUE(nmIsNull(edit));
    PressControlled('V');
    EXPECT_EQ(TextOf(edit), "12345");
}

TEST_F(NumEditInput, MessagesCopyCutClearAndPaste) {
    HWND edit = Create();
    Put(edit, "12345");
    Select(edit, 1, 3);
    SendMessageA(edit, WM_COPY, 0, 0);
    EXPECT_EQ(ClipboardText(), "23");
    EXPECT_EQ(TakeEvents(), Events{}) << "nothing changes";
    SendMessageA(edit, WM_CUT, 0, 0);
    EXPECT_EQ(TextOf(edit), "145");
    EXPECT_EQ(TakeEvents(), Events{"ask"} + ChangeEvents());
    SendMessageA(edit, WM_PASTE, 0, 0);
    EXPECT_EQ(TextOf(edit), "12345");
    EXPECT_EQ(TakeEvents(), Events{"ask"} + ChangeEvents());
    SetClipboard("stays");
    SendMessageA(edit, WM_CUT, 0, 0);
    EXPECT_EQ(ClipboardText(), "stays") << "nothing is selected";
    Select(edit, 0, 2);
    SendMessageA(edit, WM_CLEAR, 0, 0);
    EXPECT_EQ(TextOf(edit), "345");
    EXPECT_EQ(ClipboardText(), "stays");
}

TEST_F(NumEditInput, PastedTextIsFreedOfItsGroupingOrRefused) {
    HWND edit = Create(NM_FLOATING, 2);
    SetClipboard(" 1,234.5\r\n");
    SendMessageA(edit, WM_PASTE, 0, 0);
    EXPECT_EQ(TextOf(edit), "1234.50");
    TakeEvents();
    for (const char* text : {"x", "", "1.2.3", "--1"}) {
        SetClipboard(text);
        Select(edit, 0, -1);
        SendMessageA(edit, WM_PASTE, 0, 0);
        EXPECT_EQ(TextOf(edit), "1234.50") << text;
        EXPECT_EQ(TakeEvents(), Events{"ask"});
    }
    SetClipboard("7");
    SendMessageA(edit, EM_SETREADONLY, TRUE, 0);
    SendMessageA(edit, WM_PASTE, 0, 0);
    SendMessageA(edit, WM_CLEAR, 0, 0);
    EXPECT_EQ(TextOf(edit), "1234.50");
    EXPECT_EQ(TakeEvents(), Events{});
    SendMessageA(edit, EM_SETREADONLY, FALSE, 0);
    allowed = 0;
    SendMessageA(edit, WM_PASTE, 0, 0);
    SendMessageA(edit, WM_CLEAR, 0, 0);
    EXPECT_EQ(TextOf(edit), "1234.50");
}

TEST_F(NumEditInput, CopiesWithTheDecimalCharacterOfTheUser) {
    HWND edit = Create(NM_FLOATING, 2);
    NmEditParams params = Params(NM_FLOATING, 2);
    params.decimalChar = ',';
    params.thousandChar = '.';
    nmSetEditParams(edit, &params);
    Put(edit, "12.5");
    Select(edit, 0, -1);
    SendMessageA(edit, WM_COPY, 0, 0);
    EXPECT_EQ(ClipboardText(), "12,5");
    SendMessageA(edit, WM_PASTE, 0, 0);
    EXPECT_EQ(TextOf(edit), "12.50") << "and takes that back";
}

TEST_F(NumEditInput, AHostMayChangeTheValueInTheNotification) {
    HWND edit = CreateFocused();
    onEvent = [](HWND window, const std::string& event) {
        if (event == "EN_UPDATE") {
            nmSetInteger(window, 42);
        }
    };
    TypeKeys("7");
    EXPECT_EQ(TextOf(edit), "42");
    onEvent = nullptr;
    TypeKeys("1");
    EXPECT_EQ(TextOf(edit), "142") << "the caret is at the start";
}

} // namespace
