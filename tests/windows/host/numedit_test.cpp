// The numeric edit's creation, settings and the messages of the system's edit.
#include "tests/windows/host/numedit_host.h"
#include "tests/windows/support/abuse.h"

#include <cstring>

namespace {

using vorn::test::ChangedProfile;
using vorn::test::ChangeEvents;
using vorn::test::DestroyedWindow;
using vorn::test::Events;
using vorn::test::NumEditHost;
using vorn::test::operator+;

class NumEdit : public NumEditHost {
protected:
    HWND CreateWithText(const char* text, DWORD style = 0) {
        HWND edit =
            CreateWindowExA(0, VORN_NUMEDIT_CLASS, text, WS_CHILD | WS_VISIBLE | style, 10, 10, 120,
                            24, host.window(), nullptr, GetModuleHandleA(nullptr), nullptr);
        Watch(edit);
        TakeEvents();
        return edit;
    }
};

SIZE SizeOf(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

SIZE ClientOf(HWND window) {
    RECT rect{};
    GetClientRect(window, &rect);
    return {rect.right, rect.bottom};
}

bool operator==(const SIZE& a, const SIZE& b) {
    return a.cx == b.cx && a.cy == b.cy;
}

DWORD StyleOf(HWND window) {
    return static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE)) & 0xFFFF;
}

TEST_F(NumEdit, StartsWithItsTitle) {
    EXPECT_EQ(TextOf(CreateWithText("12.5")), "12.5");
    EXPECT_EQ(TextOf(CreateWithText(nullptr)), "0");
    EXPECT_FALSE(nmIsNull(CreateWithText("0")));
    HWND empty = CreateWithText("");
    EXPECT_TRUE(nmIsNull(empty));
    EXPECT_EQ(TextOf(empty), "");
    EXPECT_EQ(TextOf(CreateWithText(std::string(64, '1').c_str())), std::string(63, '1'));
}

TEST_F(NumEdit, StartsAsAGeneralNumberOfTheUsers) {
    const ChangedProfile thousand("sThousand", "'");
    const ChangedProfile decimal("sDecimal", ";,");
    const ChangedProfile zero("iLzero", "0");
    const ChangedProfile digits("iDigits", "3");
    HWND edit = CreateEdit(VORN_NUMEDIT_CLASS, 0);
    NmEditParams params;
    std::memset(&params, 0x5A, sizeof params);
    nmGetEditParams(edit, &params);
    EXPECT_EQ(params.formatKind, DWORD{NM_GENERAL});
    EXPECT_EQ(params.rangeCheck, 0u);
    EXPECT_EQ(params.decimalDigits, 0u) << "the user's are not read";
    EXPECT_EQ(params.reserved, 0x5A5A5A5Au) << "left alone";
    EXPECT_EQ(params.minValue, 0);
    EXPECT_EQ(params.maxValue, 0);
    EXPECT_EQ(params.useRegional, 0u);
    EXPECT_EQ(params.thousandChar, '\'');
    EXPECT_EQ(params.decimalChar, ';') << "one character";
    EXPECT_EQ(params.leadingZero, 0u);
    EXPECT_EQ(SendMessageA(edit, EM_GETMODIFY, 0, 0), 0);
    EXPECT_EQ(SendMessageA(edit, WM_GETFONT, 0, 0), 0);
    EXPECT_EQ(SelectionOf(edit), "0-0");
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(NumEdit, TakesTheRecordByFunctionAndMessage) {
    HWND edit = Create();
    NmEditParams params = Params(NM_FLOATING_GROUPED, 0);
    params.decimalDigits = 0x10002;
    params.rangeCheck = 7;
    params.minValue = -1.5;
    params.maxValue = 1e10;
    EXPECT_EQ(SendMessageA(edit, VNMM_SETEDITPARAMS, 0, reinterpret_cast<LPARAM>(&params)), 0);
    EXPECT_EQ(TakeEvents(), Events{"changed"}) << "without being asked";
    NmEditParams read{};
    SendMessageA(edit, VNMM_GETEDITPARAMS, 0, reinterpret_cast<LPARAM>(&read));
    params.decimalDigits = 2;
    EXPECT_EQ(std::memcmp(&params, &read, sizeof read), 0);
}

TEST_F(NumEdit, TheRecordMayAskForTheUsersSettings) {
    const ChangedProfile thousand("sThousand", ".");
    const ChangedProfile decimal("sDecimal", ",");
    const ChangedProfile zero("iLzero", "0");
    const ChangedProfile digits("iDigits", "3");
    HWND edit = Create();
    NmEditParams params = Params(NM_FLOATING_GROUPED, 0);
    params.decimalDigits = NM_USER_DECIMAL_DIGITS;
    params.useRegional = 1;
    nmSetEditParams(edit, &params);
    NmEditParams read{};
    nmGetEditParams(edit, &read);
    EXPECT_EQ(read.decimalDigits, 3u);
    EXPECT_EQ(read.thousandChar, '.');
    EXPECT_EQ(read.decimalChar, ',');
    EXPECT_EQ(read.leadingZero, 0u);
    params.useRegional = 0;
    params.thousandChar = 0;
    params.decimalChar = ';';
    nmSetEditParams(edit, &params);
    nmGetEditParams(edit, &read);
    EXPECT_EQ(read.thousandChar, '.') << "the one that is missing";
    EXPECT_EQ(read.decimalChar, ';');
    EXPECT_EQ(read.leadingZero, 1u);
}

TEST_F(NumEdit, TheUsersDigitsAreTwoWithoutASetting) {
    const ChangedProfile digits("iDigits", nullptr);
    HWND edit = Create();
    NmEditParams params = Params(NM_FLOATING, 0);
    params.decimalDigits = NM_USER_DECIMAL_DIGITS;
    nmSetEditParams(edit, &params);
    nmGetEditParams(edit, &params);
    EXPECT_EQ(params.decimalDigits, 2u);
}

// The name of the section counts as it is written.
TEST_F(NumEdit, FollowsTheUsersSettings) {
    HWND edit = Create(NM_FLOATING, 2);
    NmEditParams params = Params(NM_FLOATING, 2);
    params.useRegional = 1;
    nmSetEditParams(edit, &params);
    Put(edit, "1234.5");
    const ChangedProfile decimal("sDecimal", ",");
    const ChangedProfile digits("iDigits", "3");
    const std::string before = LastGoodOf(edit);
    for (const char* section : {"Intl", "INTL", "windows", "intl "}) {
        SendMessageA(edit, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>(section));
        EXPECT_EQ(LastGoodOf(edit), before) << section;
    }
    SendMessageA(edit, WM_WININICHANGE, 0, 0);
    EXPECT_EQ(LastGoodOf(edit), before) << "no section";
    SendMessageA(edit, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("intl"));
    EXPECT_EQ(LastGoodOf(edit), "1234,500");
    EXPECT_EQ(TextOf(edit), "1234.5") << "as it was typed";
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(NumEdit, DoesNotFollowSettingsThatAreTheHosts) {
    HWND edit = Create(NM_FLOATING, 2);
    Put(edit, "1234.5");
    const ChangedProfile decimal("sDecimal", ",");
    SendMessageA(edit, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("intl"));
    EXPECT_EQ(LastGoodOf(edit), "1234.50");
}

TEST_F(NumEdit, AnyKindButTheGeneralOneIsANumberDisplay) {
    HWND edit = Create(NM_GENERAL);
    EXPECT_EQ(StyleOf(edit), 0u);
    NmEditParams params = Params(NM_INTEGER, 0);
    nmSetEditParams(edit, &params);
    EXPECT_EQ(StyleOf(edit), DWORD{VNMS_NUMBER});
    HWND digits = Create(NM_INTEGER, 0, VNMS_DIGITS);
    EXPECT_EQ(StyleOf(digits), DWORD{VNMS_DIGITS});
}

WNDPROC procedure = nullptr;

LRESULT CALLBACK AnswerToTheChange(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return message == VNMM_CHANGED ? 42
                                   : CallWindowProcA(procedure, window, message, wParam, lParam);
}

TEST_F(NumEdit, TheRecordsResultIsThatOfTheMessage) {
    HWND edit = Create();
    procedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AnswerToTheChange)));
    NmEditParams params = Params(NM_INTEGER, 0);
    EXPECT_EQ(nmSetEditParams(edit, &params), 42);
    EXPECT_EQ(nmSetEditParams(edit, nullptr), 0);
}

TEST_F(NumEdit, SetTextAsksAndTells) {
    HWND edit = Create();
    notesPaints = true;
    EXPECT_TRUE(SetWindowTextA(edit, "12"));
    EXPECT_EQ(TakeEvents(), (Events{"ask", "changed", "EN_UPDATE", "paint", "EN_CHANGE"}));
    EXPECT_EQ(TextOf(edit), "12");
    allowed = 0;
    EXPECT_FALSE(SendMessageA(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("13")));
    EXPECT_EQ(TakeEvents(), Events{"ask"});
    EXPECT_EQ(TextOf(edit), "12");
    allowed = 1;
    SetWindowTextA(edit, "");
    EXPECT_TRUE(nmIsNull(edit));
    SetWindowTextA(edit, std::string(100, '7').c_str());
    EXPECT_EQ(TextOf(edit), std::string(63, '7'));
    EXPECT_FALSE(nmIsNull(edit));
}

// What stands around the buffer must stay.
TEST_F(NumEdit, TextIsCutToTheBuffer) {
    HWND edit = Create();
    Put(edit, "12.5");
    for (int size = 0; size <= 6; ++size) {
        char buffer[8];
        std::memset(buffer, '#', sizeof buffer);
        const LRESULT copied = SendMessageA(edit, WM_GETTEXT, static_cast<WPARAM>(size),
                                            reinterpret_cast<LPARAM>(buffer));
        const int expected = size == 0 ? 0 : std::min(size - 1, 4);
        EXPECT_EQ(copied, expected);
        EXPECT_EQ(std::string(buffer, static_cast<std::size_t>(expected)),
                  std::string("12.5", static_cast<std::size_t>(expected)));
        if (size > 0) {
            EXPECT_EQ(buffer[expected], '\0');
        }
        EXPECT_EQ(buffer[std::max(size, 0)], '#');
    }
    EXPECT_EQ(GetWindowTextLengthA(edit), 4);
    EXPECT_EQ(SendMessageA(edit, WM_GETTEXT, 64, 0), 0);
}

TEST_F(NumEdit, TheTextIsTheKeptOneWhateverIsShown) {
    HWND edit = Create(NM_FLOATING_GROUPED_PARENTHESES, 2);
    Put(edit, "-1234.5");
    EXPECT_EQ(TextOf(edit), "-1234.5");
    EXPECT_EQ(SendMessageA(edit, EM_LINELENGTH, 0, 0), 7);
    SetFocus(edit);
    EXPECT_EQ(TextOf(edit), "-1234.5");
}

TEST_F(NumEdit, AnswersAsTheSystemsEdit) {
    HWND edit = Create();
    Put(edit, "12345");
    Select(edit, 1, 3);
    EXPECT_EQ(SelectionOf(edit), "1-3");
    EXPECT_EQ(SendMessageA(edit, EM_GETSEL, 0, 0), MAKELONG(1, 3));
    Select(edit, 0, -1);
    EXPECT_EQ(SelectionOf(edit), "0-5");
    Select(edit, 2, 99);
    EXPECT_EQ(SelectionOf(edit), "2-5");
    EXPECT_EQ(SendMessageA(edit, EM_GETLINECOUNT, 0, 0), 1);
    EXPECT_EQ(SendMessageA(edit, EM_LINELENGTH, 0, 0), 5);
    EXPECT_EQ(SendMessageA(edit, EM_GETFIRSTVISIBLELINE, 0, 0), 0);
    SendMessageA(edit, EM_SETMODIFY, 5, 0);
    EXPECT_EQ(SendMessageA(edit, EM_GETMODIFY, 0, 0), 5);
    char line[8] = "\x03";
    EXPECT_EQ(SendMessageA(edit, EM_GETLINE, 0, reinterpret_cast<LPARAM>(line)), 3);
    EXPECT_EQ(std::string(line, 3), "123");
    RECT rect{};
    SendMessageA(edit, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&rect));
    EXPECT_EQ(rect.left, 4);
    EXPECT_EQ(rect.right, 120);
    nmEnableSpinButtons(edit, TRUE);
    SendMessageA(edit, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&rect));
    EXPECT_EQ(rect.right, 105) << "24 * 5 / 8";
    EXPECT_EQ(SendMessageA(edit, WM_GETDLGCODE, 0, 0), 33161);
    EXPECT_EQ(SendMessageA(edit, WM_ERASEBKGND, 0, 0), 1);
}

TEST_F(NumEdit, ReplacesTheSelectionAsPastedTextDoes) {
    HWND edit = Create();
    Put(edit, "12345");
    Select(edit, 1, 4);
    SendMessageA(edit, EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("99"));
    EXPECT_EQ(TextOf(edit), "1995");
    EXPECT_EQ(TakeEvents(), Events{"ask"} + ChangeEvents());
    SendMessageA(edit, EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("x"));
    EXPECT_EQ(TextOf(edit), "1995");
    Select(edit, 0, -1);
    SendMessageA(edit, EM_REPLACESEL, 0, reinterpret_cast<LPARAM>(""));
    EXPECT_TRUE(nmIsNull(edit));
}

TEST_F(NumEdit, TheTextLimitIsForTyping) {
    HWND edit = CreateFocused();
    SendMessageA(edit, EM_LIMITTEXT, 3, 0);
    SendMessageA(edit, WM_CHAR, '1', 0);
    SendMessageA(edit, WM_CHAR, '2', 0);
    SendMessageA(edit, WM_CHAR, '3', 0);
    SendMessageA(edit, WM_CHAR, '4', 0);
    EXPECT_EQ(TextOf(edit), "123");
    Put(edit, "123456");
    EXPECT_EQ(TextOf(edit), "123456");
    SendMessageA(edit, EM_LIMITTEXT, 0, 0);
    SendMessageA(edit, WM_CHAR, '7', 0);
    EXPECT_EQ(TextOf(edit), "7123456") << "as far as there is room";
}

TEST_F(NumEdit, BecomesReadOnlyAndDisabled) {
    HWND edit = Create();
    EXPECT_NE(SendMessageA(edit, EM_SETREADONLY, 1, 0), 0);
    EXPECT_EQ(StyleOf(edit), DWORD{VNMS_READONLY});
    SetFocus(edit);
    SendMessageA(edit, WM_CHAR, '1', 0);
    EXPECT_EQ(TextOf(edit), "");
    SendMessageA(edit, EM_SETREADONLY, 0, 0);
    SendMessageA(edit, WM_CHAR, '1', 0);
    EXPECT_EQ(TextOf(edit), "1");
    EnableWindow(edit, FALSE);
    EXPECT_FALSE(IsWindowEnabled(edit));
}

TEST_F(NumEdit, NullAsksAndTakesTheNumberAway) {
    HWND edit = CreateFocused(NM_GENERAL, 0, 0, 40);
    PutAndSelectEnd(edit, "1234567890");
    Select(edit, 8, 10);
    EXPECT_GT(SendMessageA(edit, EM_GETFIRSTVISIBLELINE, 0, 0), 0) << "it is narrow";
    EXPECT_FALSE(nmIsNull(edit));
    allowed = 0;
    EXPECT_EQ(nmSetNull(edit), 0);
    EXPECT_EQ(TakeEvents(), Events{"ask"});
    EXPECT_EQ(TextOf(edit), "1234567890") << "it was refused";
    EXPECT_EQ(SelectionOf(edit), "8-10");
    allowed = 1;
    EXPECT_NE(SendMessageA(edit, VNMM_SETNULL, 0, 0), 0);
    EXPECT_EQ(SendMessageA(edit, EM_GETFIRSTVISIBLELINE, 0, 0), 0);
    EXPECT_EQ(TakeEvents(), (Events{"ask", "changed"}));
    EXPECT_EQ(SendMessageA(edit, VNMM_ISNULL, 0, 0), 1);
    EXPECT_EQ(TextOf(edit), "");
    EXPECT_EQ(GetWindowTextLengthA(edit), 0);
    EXPECT_EQ(SelectionOf(edit), "0-0");
    EXPECT_EQ(LastGoodOf(edit), " ");
    EXPECT_EQ(nmGetInteger(edit), 0);
}

TEST_F(NumEdit, StyleBitsAndFunctionsAgree) {
    HWND edit = Create();
    EXPECT_NE(nmEnableSpinButtons(edit, 5), 0);
    EXPECT_NE(nmSetAlignment(edit, VNMA_RIGHT), 0);
    EXPECT_NE(nmSetDisplayStyle(edit, VNMD_CELLS), 0);
    EXPECT_EQ(StyleOf(edit), DWORD{VNMS_SPIN | VNMS_RIGHT | VNMS_CELLS});
    SendMessageA(edit, VNMM_ENABLESPINBUTTONS, 0, 0);
    SendMessageA(edit, VNMM_SETALIGNMENT, VNMA_CENTER, 0);
    SendMessageA(edit, VNMM_SETDISPLAYSTYLE, VNMD_DIGITS, 0);
    EXPECT_EQ(StyleOf(edit), DWORD{VNMS_CENTER | VNMS_DIGITS});
    nmSetAlignment(edit, 3);
    nmSetDisplayStyle(edit, VNMD_TEXT);
    EXPECT_EQ(StyleOf(edit), 0u);
    nmSetAlignment(edit, -1);
    nmSetDisplayStyle(edit, 7);
    EXPECT_EQ(StyleOf(edit), 0u);
}

// In digits the number is one without decimals, and stays so when only the bits are cleared.
TEST_F(NumEdit, AnyOtherDisplayStyleClearsTheBitsAlone) {
    HWND edit = Create(NM_FLOATING, 2, VNMS_DIGITS);
    Put(edit, "2.75");
    EXPECT_EQ(LastGoodOf(edit), "2");
    nmSetDisplayStyle(edit, 3);
    EXPECT_EQ(StyleOf(edit), 0u);
    EXPECT_EQ(LastGoodOf(edit), "2");
    nmSetDisplayStyle(edit, VNMD_TEXT);
    EXPECT_EQ(LastGoodOf(edit), "2.75");
    HWND cells = Create(NM_FLOATING, 2, VNMS_DIGITS | VNMS_CELLS);
    Put(cells, "2.75");
    EXPECT_EQ(LastGoodOf(cells), "2.75") << "cells win";
}

TEST_F(NumEdit, BordersComeFromTheStyle) {
    const struct {
        DWORD style;
        int allowance;
    } cases[] = {{0, 0},
                 {VNMS_LINE, 2},
                 {VNMS_RAISED, 4},
                 {VNMS_SUNKEN, 4},
                 {VNMS_LINE | VNMS_RAISED | VNMS_SUNKEN, 2}};
    for (const auto& [style, allowance] : cases) {
        HWND edit = Create(NM_GENERAL, 0, style);
        EXPECT_TRUE(ClientOf(edit) == (SIZE{120 - allowance, 24 - allowance})) << style;
    }
}

TEST_F(NumEdit, ABorderComesOnTopOfTheClientArea) {
    HWND edit = Create();
    const struct {
        DWORD border;
        DWORD bits;
        SIZE size;
    } steps[] = {{1, VNMS_LINE, {122, 26}},
                 {1, VNMS_LINE, {122, 26}},
                 {2, VNMS_RAISED, {124, 28}},
                 {3, VNMS_SUNKEN, {124, 28}},
                 {0, 0, {120, 24}},
                 {3, VNMS_SUNKEN, {124, 28}},
                 {9, 0, {120, 24}}};
    for (const auto& [border, bits, size] : steps) {
        EXPECT_EQ(SendMessageA(edit, VNMM_SETBORDERSTYLE, border, 0), 1);
        EXPECT_EQ(StyleOf(edit), bits);
        EXPECT_TRUE(SizeOf(edit) == size) << border;
    }
    EXPECT_EQ(nmSetBorderStyle(nullptr, 1), 0);
}

TEST_F(NumEdit, KnowsTheLeastSizeOfItsFont) {
    HDC screen = GetDC(nullptr);
    TEXTMETRICA metrics{};
    SelectObject(screen, GetStockObject(SYSTEM_FONT));
    GetTextMetricsA(screen, &metrics);
    ReleaseDC(nullptr, screen);
    const int width = metrics.tmMaxCharWidth + metrics.tmHeight * 5 / 8;
    const int allowances[] = {0, 2, 4, 4};
    HWND edit = Create();
    for (DWORD border = 0; border < 4; ++border) {
        nmSetBorderStyle(edit, border);
        EXPECT_EQ(nmGetMinHeight(edit), metrics.tmHeight + allowances[border]);
        EXPECT_EQ(SendMessageA(edit, VNMM_GETMINWIDTH, 0, 0), width + allowances[border]);
        EXPECT_EQ(SendMessageA(edit, VNMM_GETMINHEIGHT, 0, 0), nmGetMinHeight(edit));
    }
}

TEST_F(NumEdit, AFontMayMakeItHigherAndNothingElse) {
    HFONT large = CreateFontA(-40, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    HFONT small = CreateFontA(-8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    HWND edit = Create(NM_GENERAL, 0, VNMS_SUNKEN, 30);
    SendMessageA(edit, WM_SETFONT, reinterpret_cast<WPARAM>(large), TRUE);
    EXPECT_EQ(SendMessageA(edit, WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(large));
    EXPECT_TRUE(SizeOf(edit) == (SIZE{30, nmGetMinHeight(edit)}));
    SendMessageA(edit, WM_SETFONT, reinterpret_cast<WPARAM>(small), TRUE);
    EXPECT_GT(SizeOf(edit).cy, nmGetMinHeight(edit)) << "it never becomes smaller";
    SendMessageA(edit, WM_SETFONT, 0, FALSE);
    EXPECT_EQ(SendMessageA(edit, WM_GETFONT, 0, 0), 0);
    MoveWindow(edit, 0, 0, 5, 3, TRUE);
    EXPECT_TRUE(SizeOf(edit) == (SIZE{5, 3})) << "the host's size is kept";
    DestroyWindow(edit);
    EXPECT_TRUE(DeleteObject(large));
    EXPECT_TRUE(DeleteObject(small));
}

TEST_F(NumEdit, FunctionsBearWindowsThatAreNone) {
    HWND foreign = vorn::test::CreateForeignWindow();
    for (HWND window : {static_cast<HWND>(nullptr), foreign, DestroyedWindow(), host.window()}) {
        NmEditParams params = Params(NM_FLOATING, 2);
        const NmEditParams before = params;
        nmGetEditParams(window, &params);
        EXPECT_EQ(std::memcmp(&params, &before, sizeof params), 0);
        EXPECT_EQ(nmSetEditParams(window, &params), 0);
        EXPECT_EQ(nmEnableSpinButtons(window, TRUE), 0);
        EXPECT_EQ(nmSetAlignment(window, 1), 0);
        EXPECT_EQ(nmSetDisplayStyle(window, 1), 0);
        EXPECT_EQ(nmSetBorderStyle(window, 1), 0);
        EXPECT_EQ(nmSetColor(window, 2, 0), 0);
        EXPECT_EQ(nmSetNull(window), 0);
        EXPECT_EQ(nmIsNull(window), 1);
        EXPECT_EQ(nmOkToChange(window), 1);
        EXPECT_EQ(nmGetMinHeight(window), 0);
        EXPECT_EQ(nmGetMinWidth(window), 0);
    }
    HWND edit = Create();
    nmGetEditParams(edit, nullptr);
    DestroyWindow(foreign);
}

TEST_F(NumEdit, ATextFollowsItsNewDecimalCharacter) {
    HWND edit = Create(NM_GENERAL, 2);
    Put(edit, "1234,5");
    NmEditParams params = Params(NM_GENERAL, 2);
    params.thousandChar = '.';
    params.decimalChar = ',';
    nmSetEditParams(edit, &params);
    EXPECT_EQ(TextOf(edit), "1234.5");
    double value = 0;
    nmGetDouble(edit, &value);
    EXPECT_EQ(value, 1234.5);
}

} // namespace
