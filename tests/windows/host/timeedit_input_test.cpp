// The time edit under keyboard and mouse: focus, keys, clipboard, presses, and what it tells.
#include "tests/windows/support/time_host.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

using vorn::test::Heard;
using vorn::test::PressKeys;
using vorn::test::PumpMessages;
using vorn::test::SendMouse;

using Selection = std::pair<DWORD, DWORD>;

const Heard kChanged = {"ask", "changed", "UPDATE", "CHANGE", "changed"};

class TimeEditInput : public vorn::test::TimeEditTest {
protected:
    // What a real key makes the edit with the focus say.
    Heard Press(std::initializer_list<WORD> keys) {
        return edits.HeardBy([&] { PressKeys(keys); });
    }

    void Type(const char* keys) {
        for (; *keys != '\0'; ++keys) {
            PressKeys({static_cast<WORD>(*keys)});
        }
    }

    // The middle of a character.
    static int XOf(HWND edit, int index) {
        HDC context = GetDC(edit);
        const std::string text = TextOf(edit);
        SIZE before{};
        SIZE behind{};
        GetTextExtentPoint32A(context, text.c_str(), index, &before);
        GetTextExtentPoint32A(context, text.c_str(), index + 1, &behind);
        ReleaseDC(edit, context);
        return 4 + static_cast<int>(before.cx + behind.cx) / 2;
    }
};

// ---- Focus ----

TEST_F(TimeEditInput, FocusSelectsTheHourAndShowsTwoDigits) {
    HWND edit = CreateAt(14, 5, 9);
    EXPECT_EQ(edits.HeardBy([&] { SetFocus(edit); }), Heard{"SETFOCUS"});
    EXPECT_EQ(TextOf(edit), "02:05:09 PM");
    EXPECT_EQ(SelectionOf(edit), (Selection{0, 2}));
    EXPECT_EQ(edits.HeardBy([&] { SetFocus(edits.window()); }), Heard{"KILLFOCUS"});
    EXPECT_EQ(TextOf(edit), "2:05:09 PM");
}

TEST_F(TimeEditInput, TheCaretIsTwoWideAndAsHighAsTheFont) {
    HWND edit = CreateFocused(14, 5, 9);
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    ASSERT_TRUE(GetGUIThreadInfo(GetCurrentThreadId(), &info));
    EXPECT_EQ(info.hwndCaret, edit);
    EXPECT_EQ(info.rcCaret.left, 4);
    EXPECT_EQ(info.rcCaret.right - info.rcCaret.left, 2);
    EXPECT_EQ(info.rcCaret.bottom - info.rcCaret.top, tmGetMinHeight(edit));
    SetFocus(edits.window());
    ASSERT_TRUE(GetGUIThreadInfo(GetCurrentThreadId(), &info));
    EXPECT_EQ(info.hwndCaret, nullptr);
}

// ---- Keys ----

TEST_F(TimeEditInput, DigitsChangeTheTimeAndSaySo) {
    HWND edit = CreateFocused(14, 5, 9);
    EXPECT_EQ(Press({'7'}), kChanged);
    EXPECT_EQ(TextOf(edit), "07:05:09 PM");
    EXPECT_EQ(TimeOf(edit), (TmTime{19, 5, 9}));
    EXPECT_EQ(SendMessageA(edit, EM_GETMODIFY, 0, 0), 1);
    Type("4512");
    EXPECT_EQ(TextOf(edit), "07:45:12 PM");
    EXPECT_EQ(SelectionOf(edit), (Selection{9, 9})) << "behind the blank";
    EXPECT_EQ(Press({'A'}), kChanged);
    EXPECT_EQ(TextOf(edit), "07:45:12 AM");
    EXPECT_EQ(SelectionOf(edit), (Selection{9, 11}));
    EXPECT_EQ(Press({VK_SHIFT, 'P'}), kChanged);
    EXPECT_EQ(TextOf(edit), "07:45:12 PM");
    EXPECT_EQ(Press({VK_NUMPAD3}), (Heard{"ask", "changed"})) << "no digit in the suffix";
}

TEST_F(TimeEditInput, ArrowsStepAndMove) {
    HWND edit = CreateFocused(23, 59, 0);
    EXPECT_EQ(Press({VK_UP}), kChanged);
    EXPECT_EQ(TextOf(edit), "12:59:00 AM");
    EXPECT_EQ(Press({VK_RIGHT}), (Heard{"ask", "changed"}));
    PressKeys({VK_RIGHT});
    PressKeys({VK_RIGHT});
    PressKeys({VK_UP});
    EXPECT_EQ(TextOf(edit), "12:00:00 AM");
    EXPECT_EQ(SelectionOf(edit), (Selection{3, 5}));
    PressKeys({VK_END});
    PressKeys({VK_DOWN});
    EXPECT_EQ(TextOf(edit), "12:00:00 PM");
    EXPECT_EQ(TimeOf(edit), (TmTime{12, 0, 0}));
    PressKeys({VK_HOME});
    PressKeys({VK_DOWN});
    EXPECT_EQ(TextOf(edit), "11:00:00 AM");
}

TEST_F(TimeEditInput, DeletingAllIsNullAndTypingStartsFromZeros) {
    HWND edit = CreateFocused(14, 5, 9);
    PressKeys({VK_HOME});
    PressKeys({VK_SHIFT, VK_END});
    EXPECT_EQ(SelectionOf(edit), (Selection{0, 11}));
    EXPECT_EQ(Press({VK_DELETE}), kChanged);
    EXPECT_TRUE(tmIsNull(edit));
    EXPECT_EQ(TextOf(edit), "");
    EXPECT_EQ(Press({VK_BACK}), (Heard{"ask", "changed"})) << "nothing to delete";
    EXPECT_EQ(Press({'3'}), kChanged);
    EXPECT_EQ(TextOf(edit), "03:00:00 AM");
    EXPECT_EQ(TimeOf(edit), (TmTime{3, 0, 0}));
}

TEST_F(TimeEditInput, RefusedKeysChangeNothing) {
    HWND edit = CreateFocused(14, 5, 9);
    for (const WORD key : {WORD{'7'}, WORD{VK_UP}, WORD{VK_DELETE}, WORD{VK_RIGHT}}) {
        EXPECT_EQ(Refused([&] { PressKeys({key}); }), Heard{"ask"}) << key;
    }
    EXPECT_EQ(TextOf(edit), "02:05:09 PM");
    EXPECT_EQ(SelectionOf(edit), (Selection{0, 2}));
    EXPECT_EQ(SendMessageA(edit, EM_GETMODIFY, 0, 0), 0);
}

TEST_F(TimeEditInput, ReadOnlyOnesRefuseKeysWithoutAsking) {
    HWND edit = CreateFocused(14, 5, 9, VTMS_SECONDS | VTMS_READONLY);
    EXPECT_EQ(Press({'7'}), Heard{});
    EXPECT_EQ(Press({VK_UP}), Heard{});
    SendMouse(edit, WM_LBUTTONDOWN, XOf(edit, 4), 10);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(SelectionOf(edit), (Selection{0, 2}));
    EXPECT_EQ(edits.HeardBy([&] { SendMessageA(edit, WM_CLEAR, 0, 0); }), Heard{});
    EXPECT_EQ(edits.HeardBy([&] { SendMessageA(edit, WM_PASTE, 0, 0); }), Heard{});
    EXPECT_EQ(TextOf(edit), "02:05:09 PM");
}

TEST_F(TimeEditInput, TabGoesToTheNextTabStop) {
    HWND before = edits.host().Create("EDIT", WS_TABSTOP, 300, 10, 50, 20, 1);
    HWND edit = CreateAt(14, 5, 9, VTMS_SECONDS | WS_TABSTOP);
    HWND after = edits.host().Create("EDIT", WS_TABSTOP, 300, 40, 50, 20, 2);
    SetFocus(edit);
    PressKeys({VK_TAB});
    EXPECT_EQ(GetFocus(), after);
    SetFocus(edit);
    PressKeys({VK_SHIFT, VK_TAB});
    EXPECT_EQ(GetFocus(), before);
    SetFocus(edit);
    PressKeys({VK_CONTROL, VK_TAB});
    EXPECT_EQ(GetFocus(), edit);
}

// A control with numbers that the field has no room for.
TEST_F(TimeEditInput, SaysWhenTheTextScrollsOrIsBeyond) {
    HWND edit = edits.Create(VORN_TIMEEDIT_CLASS, VTMS_SECONDS, 50, 24);
    Set(edit, 22, 44, 55);
    SetFocus(edit);
    PumpMessages();
    const Heard end = Press({VK_END});
    EXPECT_EQ(end, (Heard{"ask", "HSCROLL", "MAXTEXT", "changed"}));
    Heard left;
    for (int presses = 0; presses < 11; ++presses) {
        const Heard heard = Press({VK_LEFT});
        left.insert(left.end(), heard.begin(), heard.end());
    }
    EXPECT_NE(std::count(left.begin(), left.end(), "left HSCROLL"), 0);
    EXPECT_EQ(std::count(left.begin(), left.end(), "HSCROLL"), 0);
}

// ---- Clipboard ----

std::string ClipboardText() {
    std::string text = "nothing";
    OpenClipboard(nullptr);
    HANDLE block = GetClipboardData(CF_TEXT);
    if (block != nullptr) {
        text = static_cast<const char*>(GlobalLock(block));
        GlobalUnlock(block);
    }
    CloseClipboard();
    return text;
}

void SetClipboard(const char* text) {
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, std::strlen(text) + 1);
    std::memcpy(GlobalLock(block), text, std::strlen(text) + 1);
    GlobalUnlock(block);
    OpenClipboard(nullptr);
    EmptyClipboard();
    SetClipboardData(CF_TEXT, block);
    CloseClipboard();
}

TEST_F(TimeEditInput, CopiesCutsAndPastesByKeys) {
    HWND edit = CreateFocused(14, 5, 9);
    SetClipboard("before");
    EXPECT_EQ(Press({VK_CONTROL, 'C'}), (Heard{"ask", "changed"}));
    EXPECT_EQ(ClipboardText(), "02");
    PressKeys({VK_HOME});
    PressKeys({VK_SHIFT, VK_END});
    EXPECT_EQ(Press({VK_CONTROL, 'X'}), kChanged);
    EXPECT_EQ(ClipboardText(), "02:05:09 PM");
    EXPECT_TRUE(tmIsNull(edit));
    EXPECT_EQ(Press({VK_CONTROL, 'V'}), kChanged);
    EXPECT_EQ(TextOf(edit), "02:05:09 PM");
    EXPECT_EQ(SelectionOf(edit), (Selection{11, 11}));
    SetClipboard("no time");
    EXPECT_EQ(Press({VK_SHIFT, VK_INSERT}), (Heard{"ask", "changed"}));
    EXPECT_EQ(TextOf(edit), "02:05:09 PM");
}

TEST_F(TimeEditInput, CopiesCutsAndPastesByMessages) {
    HWND edit = CreateAt(14, 5, 9);
    SendMessageA(edit, EM_SETSEL, 0, -1);
    EXPECT_EQ(edits.HeardBy([&] { SendMessageA(edit, WM_COPY, 0, 0); }), Heard{});
    EXPECT_EQ(ClipboardText(), "2:05:09 PM");
    EXPECT_EQ(edits.HeardBy([&] { SendMessageA(edit, WM_CUT, 0, 0); }),
              (Heard{"ask", "changed", "UPDATE", "CHANGE"}));
    EXPECT_TRUE(tmIsNull(edit));
    EXPECT_EQ(edits.HeardBy([&] { SendMessageA(edit, WM_PASTE, 0, 0); }),
              (Heard{"ask", "changed", "UPDATE", "CHANGE"}));
    EXPECT_EQ(TimeOf(edit), (TmTime{14, 5, 9}));
    SendMessageA(edit, EM_SETSEL, 2, 4);
    EXPECT_EQ(edits.HeardBy([&] { SendMessageA(edit, WM_CLEAR, 0, 0); }),
              (Heard{"ask", "changed", "UPDATE", "CHANGE"}));
    EXPECT_EQ(TimeOf(edit), (TmTime{14, 0, 9}));
    SendMessageA(edit, EM_SETSEL, 0, -1);
    EXPECT_EQ(Refused([&] { SendMessageA(edit, WM_CLEAR, 0, 0); }), Heard{"ask"});
    EXPECT_EQ(TimeOf(edit), (TmTime{14, 0, 9}));
}

// ---- Mouse ----

TEST_F(TimeEditInput, PressesPutTheCaretAndDoublePressesSelect) {
    HWND edit = CreateAt(14, 5, 9);
    EXPECT_EQ(edits.HeardBy([&] { SendMouse(edit, WM_LBUTTONDOWN, XOf(edit, 5), 10); }),
              Heard{"SETFOCUS"});
    EXPECT_EQ(GetCapture(), edit);
    SendMouse(edit, WM_LBUTTONUP, XOf(edit, 5), 10);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(SelectionOf(edit), (Selection{0, 2})) << "the first press takes the focus";
    SendMouse(edit, WM_LBUTTONDOWN, XOf(edit, 4) - 3, 10);
    SendMouse(edit, WM_LBUTTONUP, XOf(edit, 4) - 3, 10);
    EXPECT_EQ(SelectionOf(edit), (Selection{4, 4}));
    PressKeys({VK_UP});
    EXPECT_EQ(TimeOf(edit), (TmTime{14, 6, 9})) << "the minute is current";
    for (const auto& [index, start, end] :
         {std::array<DWORD, 3>{1, 0, 2}, {4, 3, 5}, {7, 6, 8}, {10, 9, 11}}) {
        SendMouse(edit, WM_LBUTTONDBLCLK, XOf(edit, static_cast<int>(index)), 10);
        SendMouse(edit, WM_LBUTTONUP, 0, 0);
        EXPECT_EQ(SelectionOf(edit), (Selection{start, end}));
    }
    tmSetNull(edit);
    SendMouse(edit, WM_LBUTTONDOWN, 60, 10);
    SendMouse(edit, WM_LBUTTONUP, 60, 10);
    EXPECT_EQ(SelectionOf(edit), (Selection{0, 0}));
    PressKeys({VK_UP});
    EXPECT_EQ(TextOf(edit), "03:06:09 PM") << "the hour is current";
}

} // namespace
