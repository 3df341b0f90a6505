// What a user hears when an edit refuses something.
#include "tests/windows/host/numedit_host.h"
#include "tests/windows/support/beeps.h"

namespace {

using vorn::test::CountedBeeps;
using vorn::test::NumEditHost;

class NumEditBeeps : public NumEditHost {
protected:
    CountedBeeps beeps;

    HWND CreateSelected() {
        HWND edit = CreateFocused(NM_FLOATING, 1);
        Put(edit, "12.5");
        Select(edit, 0, 2);
        CountedBeeps::Take();
        return edit;
    }

    static void SendCharacter(HWND edit, char character) {
        SendMessageA(edit, WM_CHAR, static_cast<WPARAM>(character), 1);
    }
};

TEST_F(NumEditBeeps, ACharacterThatIsNoNumbersBeeps) {
    HWND edit = CreateSelected();
    SendCharacter(edit, '7');
    EXPECT_EQ(CountedBeeps::Take(), 0);
    SendCharacter(edit, 'x');
    EXPECT_EQ(CountedBeeps::Take(), 1);
}

TEST_F(NumEditBeeps, AValueOutOfRangeBeeps) {
    HWND edit = CreateFocused();
    SetRange(edit, 0, 100);
    PutAndSelectEnd(edit, "25");
    CountedBeeps::Take();
    SendCharacter(edit, '0');
    EXPECT_EQ(TextOf(edit), "100");
    EXPECT_EQ(CountedBeeps::Take(), 1);
}

TEST_F(NumEditBeeps, WhatTheHostRefusesBeepsButForTextsOfItsOwn) {
    HWND edit = CreateSelected();
    SetClipboard("3");
    allowed = 0;
    SendCharacter(edit, '7');
    EXPECT_EQ(CountedBeeps::Take(), 1);
    for (const UINT message : {WM_PASTE, WM_CUT, WM_CLEAR, EM_REPLACESEL}) {
        SendMessageA(edit, message, 0, 0);
        EXPECT_EQ(CountedBeeps::Take(), 1) << message;
    }
    SendMessageA(edit, EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("3"));
    EXPECT_EQ(CountedBeeps::Take(), 1);
    EXPECT_EQ(SetWindowTextA(edit, "3"), FALSE);
    nmSetInteger(edit, 3);
    nmSetNull(edit);
    EXPECT_EQ(CountedBeeps::Take(), 0);
    EXPECT_EQ(TextOf(edit), "12.5");
}

TEST_F(NumEditBeeps, AReadOnlyOneBeepsUnlessItsHostReplacesTheSelection) {
    HWND edit = CreateSelected();
    SetClipboard("3");
    SendMessageA(edit, EM_SETREADONLY, TRUE, 0);
    CountedBeeps::Take();
    for (const UINT message : {WM_PASTE, WM_CUT, WM_CLEAR}) {
        SendMessageA(edit, message, 0, 0);
        EXPECT_EQ(CountedBeeps::Take(), 1) << message;
    }
    EXPECT_EQ(TextOf(edit), "12.5");
    SendMessageA(edit, EM_REPLACESEL, 0, 0);
    EXPECT_EQ(TextOf(edit), ".5");
    Select(edit, 0, -1);
    SendMessageA(edit, EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("4"));
    EXPECT_EQ(TextOf(edit), "4.0");
    EXPECT_EQ(CountedBeeps::Take(), 0);
}

TEST_F(NumEditBeeps, WithoutASelectionThereIsNothingToRefuse) {
    HWND edit = CreateSelected();
    Select(edit, 1, 1);
    allowed = 0;
    for (const UINT message : {WM_CUT, WM_CLEAR, EM_REPLACESEL}) {
        SendMessageA(edit, message, 0, 0);
    }
    EXPECT_EQ(CountedBeeps::Take(), 0);
}

// Blanks are taken out of a number, but not so many.
TEST_F(NumEditBeeps, ATextWithoutEndIsNotPasted) {
    HWND edit = CreateFocused();
    SetClipboard("5" + std::string(100, ' '));
    SendMessageA(edit, WM_PASTE, 0, 0);
    EXPECT_EQ(TextOf(edit), "5");
    EXPECT_EQ(CountedBeeps::Take(), 0);
    SetClipboard("7" + std::string(300, ' '));
    SendMessageA(edit, WM_PASTE, 0, 0);
    EXPECT_EQ(TextOf(edit), "5");
    EXPECT_EQ(CountedBeeps::Take(), 1);
}

class FieldEditBeeps : public vorn::test::EditHost {
protected:
    CountedBeeps beeps;
};

TEST_F(FieldEditBeeps, KeysThatTheHostRefusesBeepAndMessagesDoNot) {
    for (const char* className : {VORN_DATEEDIT_CLASS, VORN_TIMEEDIT_CLASS}) {
        HWND edit = CreateEdit(className, 0);
        SetFocus(edit);
        Select(edit, 0, -1);
        SetClipboard("3");
        allowed = 0;
        CountedBeeps::Take();
        SendMessageA(edit, WM_KEYDOWN, VK_UP, 1);
        EXPECT_GT(CountedBeeps::Take(), 0) << className;
        for (const UINT message : {WM_PASTE, WM_CUT, WM_CLEAR, EM_REPLACESEL}) {
            SendMessageA(edit, message, 0, 0);
            EXPECT_EQ(CountedBeeps::Take(), 0) << className << ", " << message;
        }
        allowed = 1;
    }
}

} // namespace
