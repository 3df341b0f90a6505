// The time edit under keyboard and mouse: focus, keys, clipboard, presses, and what it tells.
#include "tests/windows/support/input.h"
#include "tests/windows/support/time_host.h"

#include <algorithm>
#include <array>

namespace {

using vorn::test::Events;
using vorn::test::PumpMessages;
using vorn::test::SendMouse;

const Events kChanged = {"ask", "changed", "EN_UPDATE", "EN_CHANGE", "changed"};

class TimeEditInput : public vorn::test::TimeEditTest {
protected:
    // What real keys make the edit with the focus say.
    Events Press(WORD key) {
        return HeardBy([&] { PressKey(key); });
    }
    Events PressWithShift(WORD key) {
        return HeardBy([&] { PressShifted(key); });
    }
    Events PressWithControl(WORD key) {
        return HeardBy([&] { PressControlled(key); });
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
    EXPECT_EQ(HeardBy([&] { SetFocus(edit); }), Events{"EN_SETFOCUS"});
    EXPECT_EQ(TextOf(edit), "02:05:09 PM");
    EXPECT_EQ(SelectionOf(edit), "0-2");
    EXPECT_EQ(HeardBy([&] { SetFocus(host.window()); }), Events{"EN_KILLFOCUS"});
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
    SetFocus(host.window());
    ASSERT_TRUE(GetGUIThreadInfo(GetCurrentThreadId(), &info));
    EXPECT_EQ(info.hwndCaret, nullptr);
}

// ---- Keys ----

TEST_F(TimeEditInput, DigitsChangeTheTimeAndSaySo) {
    HWND edit = CreateFocused(14, 5, 9);
    EXPECT_EQ(Press('7'), kChanged);
    EXPECT_EQ(TextOf(edit), "07:05:09 PM");
    EXPECT_EQ(TimeOf(edit), (TmTime{19, 5, 9}));
    EXPECT_EQ(SendMessageA(edit, EM_GETMODIFY, 0, 0), 1);
    Type("4512");
    EXPECT_EQ(TextOf(edit), "07:45:12 PM");
    EXPECT_EQ(SelectionOf(edit), "9-9") << "behind the blank";
    EXPECT_EQ(Press('A'), kChanged);
    EXPECT_EQ(TextOf(edit), "07:45:12 AM");
    EXPECT_EQ(SelectionOf(edit), "9-11");
    EXPECT_EQ(PressWithShift('P'), kChanged);
    EXPECT_EQ(TextOf(edit), "07:45:12 PM");
    EXPECT_EQ(Press(VK_NUMPAD3), (Events{"ask", "changed"})) << "no digit in the suffix";
}

TEST_F(TimeEditInput, ArrowsStepAndMove) {
    HWND edit = CreateFocused(23, 59, 0);
    EXPECT_EQ(Press(VK_UP), kChanged);
    EXPECT_EQ(TextOf(edit), "12:59:00 AM");
    EXPECT_EQ(Press(VK_RIGHT), (Events{"ask", "changed"}));
    PressKey(VK_RIGHT);
    PressKey(VK_RIGHT);
    PressKey(VK_UP);
    EXPECT_EQ(TextOf(edit), "12:00:00 AM");
    EXPECT_EQ(SelectionOf(edit), "3-5");
    PressKey(VK_END);
    PressKey(VK_DOWN);
    EXPECT_EQ(TextOf(edit), "12:00:00 PM");
    EXPECT_EQ(TimeOf(edit), (TmTime{12, 0, 0}));
    PressKey(VK_HOME);
    PressKey(VK_DOWN);
    EXPECT_EQ(TextOf(edit), "11:00:00 AM");
}

TEST_F(TimeEditInput, DeletingAllIsNullAndTypingStartsFromZeros) {
    HWND edit = CreateFocused(14, 5, 9);
    PressKey(VK_HOME);
    PressShifted(VK_END);
    EXPECT_EQ(SelectionOf(edit), "0-11");
    EXPECT_EQ(Press(VK_DELETE), kChanged);
    EXPECT_TRUE(tmIsNull(edit));
    EXPECT_EQ(TextOf(edit), "");
    EXPECT_EQ(Press(VK_BACK), (Events{"ask", "changed"})) << "nothing to delete";
    EXPECT_EQ(Press('3'), kChanged);
    EXPECT_EQ(TextOf(edit), "03:00:00 AM");
    EXPECT_EQ(TimeOf(edit), (TmTime{3, 0, 0}));
}

TEST_F(TimeEditInput, RefusedKeysChangeNothing) {
    HWND edit = CreateFocused(14, 5, 9);
    for (const WORD key : {WORD{'7'}, WORD{VK_UP}, WORD{VK_DELETE}, WORD{VK_RIGHT}}) {
        EXPECT_EQ(Refused([&] { PressKey(key); }), Events{"ask"}) << key;
    }
    EXPECT_EQ(TextOf(edit), "02:05:09 PM");
    EXPECT_EQ(SelectionOf(edit), "0-2");
    EXPECT_EQ(SendMessageA(edit, EM_GETMODIFY, 0, 0), 0);
}

TEST_F(TimeEditInput, ReadOnlyOnesRefuseKeysWithoutAsking) {
    HWND edit = CreateFocused(14, 5, 9, VTMS_SECONDS | VTMS_READONLY);
    EXPECT_EQ(Press('7'), Events{});
    EXPECT_EQ(Press(VK_UP), Events{});
    SendMouse(edit, WM_LBUTTONDOWN, XOf(edit, 4), 10);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(SelectionOf(edit), "0-2");
    EXPECT_EQ(HeardBy([&] { SendMessageA(edit, WM_CLEAR, 0, 0); }), Events{});
    EXPECT_EQ(HeardBy([&] { SendMessageA(edit, WM_PASTE, 0, 0); }), Events{});
    EXPECT_EQ(TextOf(edit), "02:05:09 PM");
}

TEST_F(TimeEditInput, TabGoesToTheNextTabStop) {
    HWND before = host.Create("EDIT", WS_TABSTOP, 300, 10, 50, 20, 1);
    HWND edit = CreateAt(14, 5, 9, VTMS_SECONDS | WS_TABSTOP);
    HWND after = host.Create("EDIT", WS_TABSTOP, 300, 40, 50, 20, 2);
    SetFocus(edit);
    PressKey(VK_TAB);
    EXPECT_EQ(GetFocus(), after);
    SetFocus(edit);
    PressShifted(VK_TAB);
    EXPECT_EQ(GetFocus(), before);
    SetFocus(edit);
    PressControlled(VK_TAB);
    EXPECT_EQ(GetFocus(), edit);
}

// A control with numbers that the field has no room for.
TEST_F(TimeEditInput, SaysWhenTheTextScrollsOrIsBeyond) {
    HWND edit = CreateEdit(VORN_TIMEEDIT_CLASS, VTMS_SECONDS, 50, 24);
    Set(edit, 22, 44, 55);
    SetFocus(edit);
    PumpMessages();
    const Events end = Press(VK_END);
    EXPECT_EQ(end, (Events{"ask", "EN_HSCROLL", "EN_MAXTEXT", "changed"}));
    Events left;
    for (int presses = 0; presses < 11; ++presses) {
        const Events heard = Press(VK_LEFT);
        left.insert(left.end(), heard.begin(), heard.end());
    }
    const auto form = std::to_string(GetDlgCtrlID(edit)) + " 0 " +
                      std::to_string(LOWORD(reinterpret_cast<UINT_PTR>(edit))) + " 1537";
    EXPECT_NE(std::count(left.begin(), left.end(), form), 0) << "its own form";
    EXPECT_EQ(std::count(left.begin(), left.end(), "EN_HSCROLL"), 0);
}

// ---- Clipboard ----

TEST_F(TimeEditInput, CopiesCutsAndPastesByKeys) {
    HWND edit = CreateFocused(14, 5, 9);
    SetClipboard("before");
    EXPECT_EQ(PressWithControl('C'), (Events{"ask", "changed"}));
    EXPECT_EQ(ClipboardText(), "02");
    PressKey(VK_HOME);
    PressShifted(VK_END);
    EXPECT_EQ(PressWithControl('X'), kChanged);
    EXPECT_EQ(ClipboardText(), "02:05:09 PM");
    EXPECT_TRUE(tmIsNull(edit));
    EXPECT_EQ(PressWithControl('V'), kChanged);
    EXPECT_EQ(TextOf(edit), "02:05:09 PM");
    EXPECT_EQ(SelectionOf(edit), "11-11");
    SetClipboard("no time");
    EXPECT_EQ(PressWithShift(VK_INSERT), (Events{"ask", "changed"}));
    EXPECT_EQ(TextOf(edit), "02:05:09 PM");
}

TEST_F(TimeEditInput, CopiesCutsAndPastesByMessages) {
    HWND edit = CreateAt(14, 5, 9);
    SendMessageA(edit, EM_SETSEL, 0, -1);
    EXPECT_EQ(HeardBy([&] { SendMessageA(edit, WM_COPY, 0, 0); }), Events{});
    EXPECT_EQ(ClipboardText(), "2:05:09 PM");
    EXPECT_EQ(HeardBy([&] { SendMessageA(edit, WM_CUT, 0, 0); }),
              (Events{"ask", "changed", "EN_UPDATE", "EN_CHANGE"}));
    EXPECT_TRUE(tmIsNull(edit));
    EXPECT_EQ(HeardBy([&] { SendMessageA(edit, WM_PASTE, 0, 0); }),
              (Events{"ask", "changed", "EN_UPDATE", "EN_CHANGE"}));
    EXPECT_EQ(TimeOf(edit), (TmTime{14, 5, 9}));
    SendMessageA(edit, EM_SETSEL, 2, 4);
    EXPECT_EQ(HeardBy([&] { SendMessageA(edit, WM_CLEAR, 0, 0); }),
              (Events{"ask", "changed", "EN_UPDATE", "EN_CHANGE"}));
    EXPECT_EQ(TimeOf(edit), (TmTime{14, 0, 9}));
    SendMessageA(edit, EM_SETSEL, 0, -1);
    EXPECT_EQ(Refused([&] { SendMessageA(edit, WM_CLEAR, 0, 0); }), Events{"ask"});
    EXPECT_EQ(TimeOf(edit), (TmTime{14, 0, 9}));
}

// ---- Mouse ----

TEST_F(TimeEditInput, PressesPutTheCaretAndDoublePressesSelect) {
    HWND edit = CreateAt(14, 5, 9);
    EXPECT_EQ(HeardBy([&] { SendMouse(edit, WM_LBUTTONDOWN, XOf(edit, 5), 10); }),
              Events{"EN_SETFOCUS"});
    EXPECT_EQ(GetCapture(), edit);
    SendMouse(edit, WM_LBUTTONUP, XOf(edit, 5), 10);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(SelectionOf(edit), "0-2") << "the first press takes the focus";
    SendMouse(edit, WM_LBUTTONDOWN, XOf(edit, 4) - 3, 10);
    SendMouse(edit, WM_LBUTTONUP, XOf(edit, 4) - 3, 10);
    EXPECT_EQ(SelectionOf(edit), "4-4");
    PressKey(VK_UP);
    EXPECT_EQ(TimeOf(edit), (TmTime{14, 6, 9})) << "the minute is current";
    for (const auto& [index, start, end] :
         {std::array<DWORD, 3>{1, 0, 2}, {4, 3, 5}, {7, 6, 8}, {10, 9, 11}}) {
        SendMouse(edit, WM_LBUTTONDBLCLK, XOf(edit, static_cast<int>(index)), 10);
        SendMouse(edit, WM_LBUTTONUP, 0, 0);
        EXPECT_EQ(SelectionOf(edit), std::to_string(start) + "-" + std::to_string(end));
    }
    tmSetNull(edit);
    SendMouse(edit, WM_LBUTTONDOWN, 60, 10);
    SendMouse(edit, WM_LBUTTONUP, 60, 10);
    EXPECT_EQ(SelectionOf(edit), "0-0");
    PressKey(VK_UP);
    EXPECT_EQ(TextOf(edit), "03:06:09 PM") << "the hour is current";
}

} // namespace
