// The date edit under real keys, mouse, focus and clipboard.
#include "tests/windows/host/dateedit_host.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/pixels.h"

namespace {

using vorn::test::DateEditHost;
using vorn::test::Events;
using vorn::test::Form;
using vorn::test::HostWindow;
using vorn::test::Message;
using vorn::test::Numbers;
using vorn::test::PumpMessages;

// What a key that changes the date leads to; the last comes posted.
const Events kChangedByKey = {"ask", "changed", "EN_UPDATE", "EN_CHANGE", "changed"};

class DateEditInput : public DateEditHost {
protected:
    // The width of a text in the stock system font.
    static int Extent(const char* text) {
        HDC screen = GetDC(nullptr);
        HGDIOBJ before = SelectObject(screen, GetStockObject(SYSTEM_FONT));
        SIZE size{};
        GetTextExtentPoint32A(screen, text, lstrlenA(text), &size);
        SelectObject(screen, before);
        ReleaseDC(nullptr, screen);
        return size.cx;
    }
    static TEXTMETRICA SystemFont() {
        TEXTMETRICA metrics{};
        HDC screen = GetDC(nullptr);
        HGDIOBJ before = SelectObject(screen, GetStockObject(SYSTEM_FONT));
        GetTextMetricsA(screen, &metrics);
        SelectObject(screen, before);
        ReleaseDC(nullptr, screen);
        return metrics;
    }
    static void Click(HWND edit, int x, int y = 10) {
        vorn::test::SendMouse(edit, WM_LBUTTONDOWN, x, y);
        vorn::test::SendMouse(edit, WM_LBUTTONUP, x, y);
    }
};

TEST_F(DateEditInput, TheFocusSelectsTheFirstField) {
    HWND edit = Create();
    EXPECT_EQ(TextOf(edit), "3/5/2007");
    SetFocus(edit);
    EXPECT_EQ(TakeEvents(), Events{"EN_SETFOCUS"});
    EXPECT_EQ(TextOf(edit), "3 /5 /2007") << "room for a second digit";
    EXPECT_EQ(SelectionOf(edit), "0-2");
    EXPECT_EQ(CaretAt(edit).x, 4);
    EXPECT_EQ(CaretAt(edit).y, (24 - SystemFont().tmHeight) / 2);
    EXPECT_EQ(CaretSize(edit).cx, 2);
    EXPECT_EQ(CaretSize(edit).cy, SystemFont().tmHeight);
    SetFocus(host.window());
    EXPECT_EQ(TakeEvents(), Events{"EN_KILLFOCUS"});
    EXPECT_EQ(TextOf(edit), "3/5/2007");
    EXPECT_EQ(CaretAt(edit).x, -1) << "the caret is gone";
}

TEST_F(DateEditInput, TypesADate) {
    HWND edit = CreateFocused();
    notesPaints = true;
    Type("1");
    EXPECT_EQ(TakeEvents(),
              (Events{"ask", "changed", "EN_UPDATE", "paint", "EN_CHANGE", "changed"}));
    notesPaints = false;
    Type("2");
    EXPECT_EQ(TakeEvents(), kChangedByKey);
    EXPECT_EQ(SelectionOf(edit), "3-3") << "a full field is left";
    Type("251998");
    EXPECT_EQ(DateOf(edit), (Numbers{12, 25, 1998}));
    EXPECT_EQ(ValueOf(edit), "12/25/1998");
    EXPECT_EQ(SendMessageA(edit, EM_GETMODIFY, 0, 0), 1);
    EXPECT_EQ(CaretAt(edit).x, 4 + Extent("12/25/1998"));
}

TEST_F(DateEditInput, SevenIntoNoDateIsJulyOfThisYear) {
    HWND edit = CreateFocused(0, Form::TwoDigits);
    dtSetNull(edit);
    EXPECT_EQ(TextOf(edit), "");
    Type("7");
    SYSTEMTIME now{};
    GetSystemTime(&now);
    EXPECT_EQ(DateOf(edit), (Numbers{7, 1, now.wYear}));
    EXPECT_EQ(SelectionOf(edit), "3-3") << "at the start of the day";
    EXPECT_FALSE(dtIsNull(edit));
}

TEST_F(DateEditInput, NumericPadAndArrows) {
    HWND edit = CreateFocused();
    PressKey(VK_NUMPAD1);
    PressKey(VK_NUMPAD1);
    EXPECT_EQ(DateOf(edit), (Numbers{11, 5, 2007}));
    TakeEvents();
    PressKey(VK_RIGHT);
    EXPECT_EQ(TakeEvents(), (Events{"ask", "changed"})) << "every key asks, and posts";
    EXPECT_EQ(CaretAt(edit).x, 4 + Extent("11/5"));
    PressKey(VK_UP);
    EXPECT_EQ(DateOf(edit), (Numbers{11, 6, 2007}));
    EXPECT_EQ(SelectionOf(edit), "3-5");
    EXPECT_EQ(TakeEvents(), kChangedByKey);
    PressKey(VK_END);
    EXPECT_EQ(CaretAt(edit).x, 4 + Extent("11/6 /2007"));
    PressKey(VK_DOWN);
    EXPECT_EQ(DateOf(edit), (Numbers{11, 6, 2006}));
    PressKey(VK_HOME);
    EXPECT_EQ(CaretAt(edit).x, 4);
    PressKey(VK_BACK);
    EXPECT_EQ(DateOf(edit), (Numbers{11, 6, 2006})) << "nothing left of it";
    PressKey(VK_DELETE);
    EXPECT_EQ(DateOf(edit), (Numbers{1, 6, 2006}));
}

TEST_F(DateEditInput, KeysThatAreTheSystemsAskNothing) {
    HWND edit = CreateFocused();
    for (const int key : {VK_SHIFT, VK_CONTROL, VK_ESCAPE, VK_NUMLOCK, VK_NUMLOCK, VK_CAPITAL,
                          VK_CAPITAL, VK_SNAPSHOT}) {
        PressKey(static_cast<WORD>(key));
        EXPECT_EQ(TakeEvents(), Events{}) << key;
    }
    PressKey('A');
    EXPECT_EQ(TakeEvents(), (Events{"ask", "changed"}));
    EXPECT_EQ(ValueOf(edit), "3/5/2007");
}

TEST_F(DateEditInput, AVetoedKeyChangesNothing) {
    HWND edit = CreateFocused();
    allowed = 0;
    for (const WORD key : {WORD{'1'}, WORD{VK_UP}, WORD{VK_DELETE}, WORD{VK_RIGHT}}) {
        PressKey(key);
        EXPECT_EQ(TakeEvents(), Events{"ask"});
    }
    EXPECT_EQ(ValueOf(edit), "3/5/2007");
    EXPECT_EQ(SelectionOf(edit), "0-2");
}

TEST_F(DateEditInput, ReadOnlyRefusesKeysAndPresses) {
    HWND edit = CreateFocused(VDTS_READONLY | VDTS_CALENDAR);
    for (const WORD key : {WORD{'1'}, WORD{VK_UP}, WORD{VK_RIGHT}}) {
        PressKey(key);
        EXPECT_EQ(TakeEvents(), Events{});
    }
    Click(edit, 60);
    EXPECT_EQ(SelectionOf(edit), "0-2");
    Click(edit, 115);
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_EQ(GetCapture(), nullptr);
    SendMessageA(edit, EM_SETREADONLY, FALSE, 0);
    Type("1");
    EXPECT_EQ(TakeEvents(), kChangedByKey);
}

TEST_F(DateEditInput, TabLeavesForTheNextTabStop) {
    HWND first = Create(WS_TABSTOP);
    HWND label = host.Create("STATIC", 0, 10, 100, 20, 20, 1001);
    HWND second = host.Create("EDIT", WS_TABSTOP, 10, 150, 50, 20, 1002);
    HWND third = host.Create("EDIT", WS_TABSTOP, 10, 200, 50, 20, 1003);
    EXPECT_NE(label, nullptr);
    SetFocus(first);
    PressKey(VK_TAB);
    EXPECT_EQ(GetFocus(), second);
    SetFocus(first);
    PressShifted(VK_TAB);
    EXPECT_EQ(GetFocus(), third) << "the parent's list goes around";
    SetFocus(first);
    PressControlled(VK_TAB);
    EXPECT_EQ(GetFocus(), first);
    allowed = 0;
    PressKey(VK_TAB);
    EXPECT_EQ(GetFocus(), second) << "leaving needs no leave";
}

TEST_F(DateEditInput, TheSelectionGrowsWithShift) {
    HWND edit = CreateFocused();
    PressKey(VK_END);
    PressShifted(VK_LEFT);
    PressShifted(VK_LEFT);
    EXPECT_EQ(SelectionOf(edit), "8-10");
    EXPECT_EQ(CaretAt(edit).x, 4 + Extent("3 /5 /20"));
    PressShifted(VK_RIGHT);
    EXPECT_EQ(SelectionOf(edit), "9-10");
    PressShifted(VK_HOME);
    EXPECT_EQ(SelectionOf(edit), "0-10");
    EXPECT_EQ(CaretAt(edit).x, 4);
    PressKey(VK_HOME);
    PressShifted(VK_END);
    EXPECT_EQ(SelectionOf(edit), "0-10");
    PressKey(VK_DELETE);
    EXPECT_TRUE(dtIsNull(edit)) << "all of it was selected";
    EXPECT_EQ(TextOf(edit), "");
}

TEST_F(DateEditInput, CopiesCutsAndPastesWithKeys) {
    HWND edit = CreateFocused();
    SetClipboard("before");
    PressKey(VK_HOME);
    PressControlled('C');
    EXPECT_EQ(ClipboardText(), "before") << "nothing is selected";
    PressShifted(VK_END);
    PressControlled(VK_INSERT);
    EXPECT_EQ(ClipboardText(), "3 /5 /2007");
    SetClipboard(" 12/25/1998 ");
    TakeEvents();
    PressControlled('V');
    EXPECT_EQ(TakeEvents(), kChangedByKey);
    EXPECT_EQ(DateOf(edit), (Numbers{12, 25, 1998}));
    SetClipboard("12/25");
    PressShifted(VK_INSERT);
    EXPECT_EQ(TakeEvents(), (Events{"ask", "changed"})) << "no date";
    EXPECT_EQ(DateOf(edit), (Numbers{12, 25, 1998}));
    Select(edit, 3, 5);
    PressControlled('X');
    EXPECT_EQ(ClipboardText(), "25");
    EXPECT_EQ(DateOf(edit), (Numbers{12, 1, 1998}));
    Select(edit, 0, -1);
    PressShifted(VK_DELETE);
    EXPECT_EQ(ClipboardText(), "12/1 /1998");
    EXPECT_TRUE(dtIsNull(edit));
}

TEST_F(DateEditInput, CopiesCutsAndPastesByMessages) {
    HWND edit = CreateFocused();
    Select(edit, 0, -1);
    EXPECT_EQ(SendMessageA(edit, WM_COPY, 0, 0), 0);
    EXPECT_EQ(ClipboardText(), "3 /5 /2007");
    EXPECT_EQ(TakeEvents(), Events{}) << "a copy changes nothing";
    SetClipboard("1/2/2003");
    SendMessageA(edit, WM_PASTE, 0, 0);
    EXPECT_EQ(TakeEvents(), (Events{"ask", "changed", "EN_UPDATE", "EN_CHANGE"}));
    EXPECT_EQ(DateOf(edit), (Numbers{1, 2, 2003}));
    Select(edit, 3, 5);
    SendMessageA(edit, WM_CUT, 0, 0);
    EXPECT_EQ(ClipboardText(), "2 ");
    EXPECT_EQ(DateOf(edit), (Numbers{1, 1, 2003}));
    EXPECT_EQ(TakeEvents(), (Events{"ask", "changed", "EN_UPDATE", "EN_CHANGE"}));
    allowed = 0;
    Select(edit, 0, -1);
    SendMessageA(edit, WM_CUT, 0, 0);
    EXPECT_EQ(ClipboardText(), "1 /1 /2003") << "copied, and kept";
    SendMessageA(edit, WM_CLEAR, 0, 0);
    SendMessageA(edit, WM_PASTE, 0, 0);
    EXPECT_EQ(TakeEvents(), (Events{"ask", "ask", "ask"}));
    allowed = 1;
    SendMessageA(edit, EM_SETREADONLY, TRUE, 0);
    for (const UINT message : {WM_CUT, WM_CLEAR, WM_PASTE}) {
        SendMessageA(edit, message, 0, 0);
    }
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_EQ(DateOf(edit), (Numbers{1, 1, 2003}));
    SendMessageA(edit, EM_SETREADONLY, FALSE, 0);
    SendMessageA(edit, WM_CLEAR, 0, 0);
    EXPECT_TRUE(dtIsNull(edit));
}

TEST_F(DateEditInput, PastesNothingButText) {
    HWND edit = CreateFocused();
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    CloseClipboard();
    SendMessageA(edit, WM_PASTE, 0, 0);
    SetClipboard(std::string(5000, '1'));
    SendMessageA(edit, WM_PASTE, 0, 0);
    SetClipboard("");
    SendMessageA(edit, WM_PASTE, 0, 0);
    EXPECT_EQ(ValueOf(edit), "3/5/2007");
}

TEST_F(DateEditInput, SelectsAndReplacesAsWildlyAsItIsAsked) {
    HWND edit = CreateFocused();
    const struct {
        int start;
        int end;
        const char* selection;
    } cases[] = {{0, -1, "0-10"},         {-1, 0, "10-10"}, {5, 3, "3-5"},
                 {100, 200, "10-10"},     {-5, 2, "2-10"},  {0x7FFFFFFF, -0x7FFFFFFF, "10-10"},
                 {65536, 65538, "10-10"}, {4, 4, "4-4"}};
    for (const auto& [start, end, selection] : cases) {
        Select(edit, start, end);
        EXPECT_EQ(SelectionOf(edit), selection) << start << " " << end;
    }
    EXPECT_EQ(CaretAt(edit).x, 4 + Extent("3 /5"));
    EXPECT_EQ(TakeEvents(), Events{});
    const auto replace = [edit](const char* text) {
        SendMessageA(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
    };
    replace("1/2/2003");
    EXPECT_EQ(DateOf(edit), (Numbers{1, 2, 2003}));
    replace("x");
    replace(std::string(100000, '9').c_str());
    EXPECT_EQ(DateOf(edit), (Numbers{1, 2, 2003}));
    Select(edit, 3, 5);
    replace("");
    EXPECT_EQ(DateOf(edit), (Numbers{1, 1, 2003}));
    Select(edit, 0, -1);
    replace(nullptr);
    EXPECT_TRUE(dtIsNull(edit));
    replace("");
}

TEST_F(DateEditInput, AClickPutsTheCaret) {
    HWND edit = Create();
    Click(edit, 100);
    EXPECT_EQ(GetFocus(), edit);
    EXPECT_EQ(SelectionOf(edit), "0-2") << "the first click brings the focus";
    Click(edit, 4 + Extent("3 /5"));
    EXPECT_EQ(SelectionOf(edit), "4-4");
    EXPECT_EQ(CaretAt(edit).x, 4 + Extent("3 /5"));
    PressKey(VK_UP);
    EXPECT_EQ(DateOf(edit), (Numbers{3, 6, 2007})) << "the day was current";
    Click(edit, 119);
    EXPECT_EQ(SelectionOf(edit), "10-10");
    PressKey(VK_DOWN);
    EXPECT_EQ(DateOf(edit), (Numbers{3, 6, 2006}));
    Click(edit, 0);
    EXPECT_EQ(SelectionOf(edit), "0-0");
}

TEST_F(DateEditInput, ADoubleClickSelectsTheField) {
    HWND edit = CreateFocused();
    const struct {
        const char* upTo;
        const char* selection;
        Numbers up;
    } cases[] = {{"3", "0-2", {4, 5, 2007}},
                 {"3 /5", "3-5", {4, 6, 2007}},
                 {"3 /5 /20", "6-10", {4, 6, 2008}}};
    for (const auto& [upTo, selection, up] : cases) {
        vorn::test::SendMouse(edit, WM_LBUTTONDBLCLK, 4 + Extent(upTo), 10);
        vorn::test::SendMouse(edit, WM_LBUTTONUP, 4, 10);
        EXPECT_EQ(SelectionOf(edit), selection);
        PressKey(VK_UP);
        EXPECT_EQ(DateOf(edit), up);
    }
}

TEST_F(DateEditInput, ThePressCapturesAndTheReleaseLetsGo) {
    HWND edit = CreateFocused();
    vorn::test::SendMouse(edit, WM_LBUTTONDOWN, 20, 10);
    EXPECT_EQ(GetCapture(), edit);
    vorn::test::SendMouse(edit, WM_LBUTTONUP, 20, 10);
    EXPECT_EQ(GetCapture(), nullptr);
    vorn::test::SendMouse(edit, WM_LBUTTONDOWN, 20, 10);
    SetCapture(host.window());
    EXPECT_EQ(GetCapture(), host.window());
    vorn::test::SendMouse(edit, WM_LBUTTONUP, 20, 10);
    EXPECT_EQ(GetCapture(), host.window()) << "it is another window's now";
    ReleaseCapture();
}

TEST_F(DateEditInput, ShowsABeamOverWhatCanBeEdited) {
    HWND edit = Create(VDTS_CALENDAR);
    SendMessageA(edit, WM_MOUSEMOVE, 0, MAKELPARAM(20, 10));
    EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_IBEAM));
    SendMessageA(edit, WM_MOUSEMOVE, 0, MAKELPARAM(110, 10));
    EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_ARROW));
    SendMessageA(edit, WM_MOUSEMOVE, 0, MAKELPARAM(20, 10));
    SendMessageA(edit, EM_SETREADONLY, TRUE, 0);
    SendMessageA(edit, WM_MOUSEMOVE, 0, MAKELPARAM(20, 10));
    EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_ARROW));
}

// The pop-up is cancelled as long as there is none.
TEST_F(DateEditInput, TheButtonTakesTheFocusAsksAndLooksPressed) {
    HWND edit = Create(VDTS_CALENDAR);
    const vorn::test::Pixels before = vorn::test::PixelsOf(edit);
    vorn::test::Pixels pressed;
    onEvent = [&](HWND window, const std::string& event) {
        if (event == "ask") {
            pressed = vorn::test::PixelsOf(window);
        }
    };
    allowed = 0;
    TakeEvents();
    vorn::test::SendMouse(edit, WM_LBUTTONDOWN, 110, 10);
    EXPECT_EQ(TakeEvents(), (Events{"EN_SETFOCUS", "ask"}));
    vorn::test::SendMouse(edit, WM_LBUTTONUP, 110, 10);
    EXPECT_EQ(GetFocus(), edit);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(ValueOf(edit), "3/5/2007");
    const vorn::test::Pixels after = vorn::test::PixelsOf(edit);
    int changed = 0;
    for (int y = 0; y < 24; ++y) {
        for (int x = 120 - 21; x < 120; ++x) {
            EXPECT_EQ(after.At(x, y), before.At(x, y)) << "it came up again";
            changed += pressed.At(x, y) != before.At(x, y);
        }
    }
    EXPECT_GT(changed, 100) << "frame and arrow, at least";
}

// A field of 44 pixels: the text starts at 4, and the caret takes 2.
TEST_F(DateEditInput, ANarrowFieldScrolls) {
    HWND edit = CreateFocused(0, Form::MonthFirst, 44);
    PressKey(VK_END);
    const char* text = "3 /5 /2007";
    int first = 0;
    while (4 + Extent(text + first) + 2 > 44) {
        ++first;
    }
    ASSERT_GT(first, 0) << "the text is too wide";
    EXPECT_EQ(CaretAt(edit).x, 4 + Extent(text + first));
    EXPECT_EQ(TakeEvents(), (Events{"ask", "EN_HSCROLL", "EN_MAXTEXT", "changed"}));
    for (int index = 9; index >= first; --index) {
        PressKey(VK_LEFT);
        EXPECT_EQ(CaretAt(edit).x, 4 + Extent(std::string(text + first, text + index).c_str()));
    }
    TakeEvents();
    PressKey(VK_LEFT);
    EXPECT_EQ(CaretAt(edit).x, 4) << "the text follows";
    char scrolled[64];
    wsprintfA(scrolled, "1000 0 %u %u", LOWORD(reinterpret_cast<UINT_PTR>(edit)), 0x0601);
    EXPECT_EQ(TakeEvents(), (Events{"ask", scrolled, "changed"}));
    PressKey(VK_HOME);
    EXPECT_EQ(SelectionOf(edit), std::to_string(first - 1) + "-" + std::to_string(first - 1))
        << "the first visible character";
    SetFocus(host.window());
    SetFocus(edit);
    EXPECT_EQ(SelectionOf(edit), "0-2");
    EXPECT_EQ(CaretAt(edit).x, 4);
}

TEST_F(DateEditInput, TheCaretStandsInCells) {
    HWND edit = CreateFocused(VDTS_DIGITS, Form::MonthFirst, 300);
    const int font = SystemFont().tmHeight;
    const int height = font * 3 / 2 < 19   ? 13
                       : font * 3 / 2 < 22 ? 19
                       : font * 3 / 2 < 26 ? 22
                                           : 26;
    EXPECT_EQ(CaretSize(edit).cy, height);
    EXPECT_EQ(CaretAt(edit).y, (24 - height) / 2);
    const int digit = height == 13 ? 8 : height == 19 ? 11 : 12;
    PressKey(VK_END);
    EXPECT_EQ(CaretAt(edit).x, 4 + 10 * digit);
    Click(edit, 4 + 3 * digit + digit / 2 - 1);
    EXPECT_EQ(CaretAt(edit).x, 4 + 3 * digit);
    dtSetDisplayStyle(edit, VDTD_CELLS);
    EXPECT_EQ(CaretAt(edit).x, 4 + 3 * (SystemFont().tmMaxCharWidth + 2));
    EXPECT_EQ(CaretSize(edit).cy, font);
    dtSetDisplayStyle(edit, VDTD_TEXT);
    EXPECT_EQ(CaretAt(edit).x, 4 + Extent("3 /"));
}

TEST_F(DateEditInput, ADisabledEditLeavesKeysAlone) {
    HWND edit = Create();
    EnableWindow(edit, FALSE);
    SetFocus(edit);
    EXPECT_NE(GetFocus(), edit);
    EnableWindow(edit, TRUE);
    SetFocus(edit);
    EXPECT_EQ(GetFocus(), edit);
}

} // namespace
