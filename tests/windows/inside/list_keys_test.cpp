// The outline list's keys, characters and focus, by messages.
#include "tests/windows/support/list_window.h"

namespace vorn::hierlist::test {
namespace {

class ListWindowKeys : public ListWindow {};

TEST_F(ListWindowKeys, ArrowsSelectAndTell) {
    CreateList(0, "abcdefgh");
    Key(VK_HOME);
    EXPECT_EQ(Selected(), "a");
    Key(VK_DOWN);
    EXPECT_EQ(Selected(), "b");
    Key(VK_UP);
    Key(VK_UP);
    EXPECT_EQ(Selected(), "a");
    Key(VK_END);
    EXPECT_EQ(Selected(), "h");
    EXPECT_EQ(host.TakeNotifications(), (Codes{1, 1, 1, 1})) << "none for Up at the first row";
    EXPECT_EQ(RecordOf<Record>(list)->topIndex, 4u) << "scrolled into view";
}

TEST_F(ListWindowKeys, ShiftHeldExtends) {
    CreateList(LBS_EXTENDEDSEL, "abcdefgh");
    Click(1);
    Key(VK_DOWN, MK_SHIFT);
    Key(VK_DOWN, MK_SHIFT);
    EXPECT_EQ(Selected(), "b c d");
    Key(VK_DOWN);
    EXPECT_EQ(Selected(), "e");
}

TEST_F(ListWindowKeys, PagesScrollAndGoToTheNewTopRow) {
    CreateList(WS_VSCROLL, "abcdefghij");
    Key(VK_HOME);
    std::vector<WPARAM> scrolls;
    Key(VK_NEXT);
    const std::uint32_t top = RecordOf<Record>(list)->topIndex;
    EXPECT_GT(top, 0u);
    EXPECT_EQ(Selected(), std::string(1, static_cast<char>('a' + top)));
    for (int page = 0; page < 4; ++page) {
        Key(VK_NEXT);
    }
    EXPECT_EQ(RecordOf<Record>(list)->topIndex, 6u);
    EXPECT_EQ(Selected(), "j") << "the top stays: the last row";
    for (int page = 0; page < 5; ++page) {
        Key(VK_PRIOR);
    }
    EXPECT_EQ(Selected(), "a");
}

TEST_F(ListWindowKeys, ColumnsAreAsHighAsTheWindow) {
    CreateList(LBS_MULTICOLUMN, "abcdefgh", 3);
    Key(VK_HOME);
    Key(VK_RIGHT);
    EXPECT_EQ(Selected(), "d");
    Key(VK_RIGHT);
    Key(VK_RIGHT);
    EXPECT_EQ(Selected(), "h");
    Key(VK_LEFT);
    EXPECT_EQ(Selected(), "e");
    Key(VK_NEXT);
    EXPECT_EQ(Selected(), "e");
}

TEST_F(ListWindowKeys, SpaceChangesSides) {
    CreateList(LBS_MULTIPLESEL, "abcd");
    Key(VK_HOME);
    Key(VK_SPACE);
    Key(VK_DOWN);
    Key(VK_DOWN);
    Key(VK_SPACE);
    EXPECT_EQ(Selected(), "a c");
    Key(VK_SPACE);
    EXPECT_EQ(Selected(), "a");
    EXPECT_EQ(host.TakeNotifications(), (Codes{1, 1}));
}

TEST_F(ListWindowKeys, ControlAndPlusOpenEverythingBelow) {
    CreateList(0, "ab");
    olbAddChildString(list, 0, "x");
    olbAddChildStringEx(list, reinterpret_cast<HOLBITEM>(At(0)->firstChild), "y");
    Key(VK_HOME);
    Key(VK_ADD);
    Key(VK_OEM_PLUS, MK_CONTROL);
    EXPECT_EQ(RowCount(Items()), 2u);
    Key(VK_ADD, MK_CONTROL);
    EXPECT_EQ(RowCount(Items()), 4u) << "a, x, y, b";
    olbCloseItem(list, 0);
    Key(VK_OEM_PLUS, MK_CONTROL | MK_SHIFT);
    EXPECT_EQ(RowCount(Items()), 4u);
}

TEST_F(ListWindowKeys, PlusAndMinusOpenAndClose) {
    CreateList(0, "ab");
    olbAddChildString(list, 0, "x");
    Key(VK_HOME);
    Type('+');
    EXPECT_EQ(QueryOpen(At(0)), 1);
    Type('-');
    EXPECT_EQ(QueryOpen(At(0)), 0);
}

TEST_F(ListWindowKeys, CharactersSearch) {
    CreateList(0, "abcabc");
    Click(0);
    Type('c');
    Type('c');
    EXPECT_EQ(Selected(), "c");
    EXPECT_EQ(CaretRow(Items(), State().selection), 5u);
    Type('C');
    EXPECT_EQ(CaretRow(Items(), State().selection), 5u);
}

TEST_F(ListWindowKeys, DialogsLeaveArrowsAndCharactersToIt) {
    CreateList(0, "a");
    EXPECT_EQ(SendMessageA(list, WM_GETDLGCODE, 0, 0), DLGC_WANTARROWS | DLGC_WANTCHARS);
}

TEST_F(ListWindowKeys, TabGoesToTheNextControl) {
    const HWND before = host.Create("BUTTON", WS_TABSTOP, 300, 10, 50, 20, 1);
    CreateList(WS_TABSTOP, "ab");
    const HWND after = host.Create("BUTTON", WS_TABSTOP, 300, 50, 50, 20, 2);
    SetFocus(list);
    Key(VK_TAB);
    EXPECT_EQ(GetFocus(), after);
    SetFocus(list);
    Key(VK_TAB, MK_SHIFT);
    EXPECT_EQ(GetFocus(), before);
}

TEST_F(ListWindowKeys, EmptyListBearsEveryKeyAndCharacter) {
    for (const DWORD style :
         {0ul, DWORD{LBS_MULTIPLESEL}, DWORD{LBS_EXTENDEDSEL}, DWORD{LBS_MULTICOLUMN}}) {
        CreateList(style, "");
        SetFocus(list);
        host.TakeNotifications();
        for (WPARAM key = 0; key < 256; ++key) {
            for (const WPARAM modifiers : {0, MK_SHIFT, MK_CONTROL}) {
                Key(key, modifiers);
            }
            Type(static_cast<char>(key));
        }
        EXPECT_EQ(host.TakeNotifications(), Codes{});
        DestroyWindow(list);
    }
}

// ---- Asking the parent ----

// Answers the questions about keys and characters, and writes them down.
class ListWindowQuestions : public ListWindow {
protected:
    ListWindowQuestions() {
        host.answer = [this](const Message& message) -> std::optional<LRESULT> {
            if (message.message == WM_VKEYTOITEM || message.message == WM_CHARTOITEM) {
                questions.push_back(message);
                return answer;
            }
            return std::nullopt;
        };
    }
    std::vector<Message> questions;
    LRESULT answer = -1;
};

TEST_F(ListWindowQuestions, CarryTheKeyTheCaretRowAndTheList) {
    CreateList(LBS_WANTKEYBOARDINPUT, "abcd");
    Click(2);
    Key(VK_DOWN);
    Type('a');
    ASSERT_EQ(questions.size(), 2u);
    EXPECT_EQ(questions[0].message, UINT{WM_VKEYTOITEM});
    EXPECT_EQ(questions[0].wParam, MAKEWPARAM(VK_DOWN, 2));
    EXPECT_EQ(questions[0].lParam, reinterpret_cast<LPARAM>(list));
    EXPECT_EQ(questions[1].message, UINT{WM_CHARTOITEM});
    EXPECT_EQ(questions[1].wParam, MAKEWPARAM('a', 3));
    EXPECT_EQ(questions[1].lParam, reinterpret_cast<LPARAM>(list));
    EXPECT_EQ(Selected(), "a") << "-1: the list goes on";
}

TEST_F(ListWindowQuestions, AreAskedWithTheStyleAlone) {
    CreateList(0, "abcd");
    Key(VK_DOWN);
    Type('a');
    EXPECT_EQ(questions.size(), 0u);
}

TEST_F(ListWindowQuestions, AreNotAskedAboutKeysThatAreNotTheLists) {
    CreateList(LBS_WANTKEYBOARDINPUT, "abcd");
    for (const WPARAM key : {0, 8, 188, 255}) {
        Key(key);
    }
    EXPECT_EQ(questions.size(), 0u);
    Key(9);
    Key(187);
    EXPECT_EQ(questions.size(), 2u);
}

TEST_F(ListWindowQuestions, MinusTwoEndsIt) {
    CreateList(LBS_WANTKEYBOARDINPUT, "abcd");
    Click(2);
    answer = -2;
    Key(VK_HOME);
    Type('a');
    EXPECT_EQ(Selected(), "c");
    EXPECT_EQ(Caret(), "c");
}

TEST_F(ListWindowQuestions, RowBecomesTheCaretsAndTheKeyGoesOn) {
    CreateList(LBS_WANTKEYBOARDINPUT, "abcdefgh");
    Click(0);
    answer = 5;
    Key(VK_DOWN);
    EXPECT_EQ(Selected(), "g");
    Key(VK_SHIFT);
    EXPECT_EQ(Selected(), "g");
    EXPECT_EQ(Caret(), "f") << "a key without a use moves the caret alone";
    Type('c');
    EXPECT_EQ(Selected(), "c");
    answer = 100;
    Key(VK_SHIFT);
    EXPECT_EQ(Caret(), "c") << "no such row";
}

TEST_F(ListWindowQuestions, NoCaretIsRowMinusOne) {
    CreateList(LBS_WANTKEYBOARDINPUT, "");
    Key(VK_DOWN);
    Type('a');
    ASSERT_EQ(questions.size(), 2u);
    EXPECT_EQ(HIWORD(questions[0].wParam), 0xFFFF);
    EXPECT_EQ(HIWORD(questions[1].wParam), 0xFFFF);
}

// ---- Focus ----

TEST_F(ListWindowKeys, FocusMarksTheCaretAndTells) {
    CreateList(0, "abcd");
    SetFocus(host.window());
    SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, PointOn(1));
    Release();
    EXPECT_EQ(host.TakeNotifications(), (Codes{LBN_SETFOCUS, LBN_SELCHANGE}))
        << "a press takes the focus first";
    EXPECT_EQ(GetFocus(), list);
    EXPECT_EQ(At(1)->flags, kFlagSelected | kFlagCaret);
    SetFocus(host.window());
    EXPECT_EQ(host.TakeNotifications(), Codes{LBN_KILLFOCUS});
    EXPECT_EQ(At(1)->flags, kFlagSelected);
}

TEST_F(ListWindowKeys, FocusIsToldWithoutTheNotifyStyle) {
    list = host.Create(VORN_HIERLIST_CLASS, 0, 10, 10, 200, 100);
    SetFocus(list);
    SetFocus(host.window());
    EXPECT_EQ(host.TakeNotifications(), (Codes{LBN_SETFOCUS, LBN_KILLFOCUS}));
}

TEST_F(ListWindowKeys, TopRowIsTheCaretOnceItIsPainted) {
    CreateList(0, "abcd");
    SetFocus(list);
    EXPECT_EQ(Caret(), "a");
    EXPECT_EQ(At(0)->flags, kFlagCaret);
}

} // namespace
} // namespace vorn::hierlist::test
