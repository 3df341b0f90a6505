// The time edit as a host meets it: creation, functions and their messages, refusals, settings.
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/objects.h"
#include "tests/windows/support/spy.h"
#include "tests/windows/support/time_host.h"

#include <cstring>
#include <functional>
#include <vector>

namespace {

using vorn::test::Events;
using vorn::test::Spy;

class TimeEdit : public vorn::test::TimeEditTest {
protected:
    static LRESULT Send(HWND edit, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(edit, message, wParam, lParam);
    }
    static LRESULT SendPointer(HWND edit, UINT message, const void* pointer) {
        return SendMessageA(edit, message, 0, reinterpret_cast<LPARAM>(pointer));
    }

    static DWORD Style(HWND edit) { return static_cast<DWORD>(GetWindowLongA(edit, GWL_STYLE)); }

    static SIZE SizeOf(HWND edit) {
        RECT rect{};
        GetWindowRect(edit, &rect);
        return {rect.right - rect.left, rect.bottom - rect.top};
    }

    static TmEditParams ParamsOf(HWND edit) {
        TmEditParams params{};
        EXPECT_EQ(tmGetEditParams(edit, &params), 1);
        return params;
    }
};

// ---- The editing state ----

TEST_F(TimeEdit, EditingStartsAnewWithATimeFromOutside) {
    const std::function<void(HWND)> changes[] = {
        [](HWND edit) { Set(edit, 7, 8, 9); },
        [](HWND edit) { tmSetTimeString(edit, "7:08:09 AM"); },
        [](HWND edit) { tmSetNull(edit); },
        [](HWND edit) {
            const int time[9] = {9, 8, 7};
            SendPointer(edit, 3328, time);
        },
    };
    for (const auto& change : changes) {
        HWND edit = CreateFocused(1, 2, 3);
        Send(edit, EM_SETSEL, 3, 5);
        change(edit);
        EXPECT_EQ(SelectionOf(edit), "0-0");
        DestroyWindow(edit);
    }
}

TEST_F(TimeEdit, EditingGoesOnWhenTheTimeIsTheSame) {
    HWND edit = CreateFocused(1, 2, 3);
    Send(edit, EM_SETSEL, 3, 5);
    tmSetTimeString(edit, "1:02:03 AM");
    EXPECT_EQ(SelectionOf(edit), "3-5");
}

// ---- Creation ----

unsigned SecondsOfDay(const SYSTEMTIME& time) {
    return time.wHour * 3600u + time.wMinute * 60u + time.wSecond;
}

TEST_F(TimeEdit, HoldsTheTimeOfItsCreationInUtc) {
    SYSTEMTIME before{};
    GetSystemTime(&before);
    HWND edit = Create();
    ASSERT_NE(edit, nullptr);
    EXPECT_NE(GetWindowLongPtrA(edit, 8), 0) << "the record";
    EXPECT_FALSE(tmIsNull(edit));
    const TmTime time = TimeOf(edit);
    const unsigned passed =
        (time.hour * 3600u + time.minute * 60u + time.second + 86400u - SecondsOfDay(before)) %
        86400u;
    EXPECT_LE(passed, 5u);
    EXPECT_EQ(Send(edit, EM_GETMODIFY), 0);
    EXPECT_EQ(TakeEvents(), Events{}) << "nothing was told";
}

TEST_F(TimeEdit, ReadsItsStyles) {
    EXPECT_EQ(TextOf(CreateAt(14, 5, 9, 0)), "2:05 PM");
    EXPECT_EQ(TextOf(CreateAt(14, 5, 9, 0x40)), "2:05:09 PM");
    EXPECT_EQ(ParamsOf(CreateAt(14, 5, 9, 0x40)).showSeconds, 1u);
    EXPECT_EQ(ParamsOf(CreateAt(14, 5, 9, 0)).showSeconds, 0u);
}

// 0x1000 is the raised border here, 2 of tmSetBorderStyle, and wins.
TEST_F(TimeEdit, ReadsItsBorderInItsOwnOrder) {
    const struct {
        DWORD style;
        int allowance;
        bool hasSystemBit;
    } cases[] = {{0, 0, false},     {0x4000, 2, false}, {0x2000, 4, true}, {0x1000, 4, true},
                 {0x3000, 4, true}, {0x7000, 4, true},  {0x6000, 4, true}};
    for (const auto& [style, allowance, hasSystemBit] : cases) {
        HWND edit = Create(style);
        RECT client{};
        GetClientRect(edit, &client);
        EXPECT_EQ(client.right, 200 - allowance) << style;
        EXPECT_EQ(client.bottom, 24 - allowance) << style;
        EXPECT_EQ((Style(edit) & WS_BORDER) != 0, hasSystemBit) << style;
        EXPECT_EQ(Style(edit) & 0x7000, style);
        DestroyWindow(edit);
    }
}

// ---- The time and its functions ----

TEST_F(TimeEdit, TakesATimeAsItIs) {
    HWND edit = Create();
    const TmTime time = {14, 5, 9};
    EXPECT_EQ(HeardBy([&] { EXPECT_EQ(tmSetTime(edit, &time), 1); }), (Events{"ask", "changed"}));
    EXPECT_EQ(TimeOf(edit), time);
    EXPECT_EQ(tmGetHour(edit), 14u);
    EXPECT_EQ(tmGetMinute(edit), 5u);
    EXPECT_EQ(tmGetSecond(edit), 9u);
    EXPECT_EQ(TextOf(edit), "2:05:09 PM");
    const TmTime none = {65535, 65535, 65535};
    EXPECT_EQ(tmSetTime(edit, &none), 1);
    EXPECT_EQ(TimeOf(edit), none);
    EXPECT_EQ(TextOf(edit), "65535:65535:65535 PM");
    EXPECT_EQ(tmSetTime(edit, nullptr), 0);
    EXPECT_EQ(tmGetTime(edit, nullptr), 0);
}

TEST_F(TimeEdit, CanHoldNoTime) {
    HWND edit = CreateAt(14, 5, 9);
    EXPECT_EQ(HeardBy([&] { EXPECT_EQ(tmSetNull(edit), 1); }), (Events{"ask", "changed"}));
    EXPECT_TRUE(tmIsNull(edit));
    EXPECT_EQ(TextOf(edit), "");
    EXPECT_EQ(tmGetHour(edit), 14u) << "the numbers stay";
    Set(edit, 14, 5, 9);
    EXPECT_FALSE(tmIsNull(edit));
    EXPECT_EQ(TextOf(edit), "2:05:09 PM");
    EXPECT_EQ(tmSetTimeString(edit, ""), 1);
    EXPECT_TRUE(tmIsNull(edit));
    EXPECT_EQ(tmGetHour(edit), 0u);
    Set(edit, 14, 5, 9);
    EXPECT_EQ(tmSetTimeString(edit, nullptr), 1);
    EXPECT_TRUE(tmIsNull(edit));
    EXPECT_EQ(TimeOf(edit), (TmTime{0, 0, 0}));
}

TEST_F(TimeEdit, ReadsTexts) {
    HWND edit = Create();
    tmSetTimeString(edit, "2:05:09 PM");
    EXPECT_EQ(TimeOf(edit), (TmTime{14, 5, 9}));
    tmSetTimeString(edit, "12:00:00 AM");
    EXPECT_EQ(TimeOf(edit), (TmTime{0, 0, 0}));
    EXPECT_EQ(TextOf(edit), "12:00:00 AM");
    SetWindowTextA(edit, "3:04:05 pm");
    EXPECT_EQ(TimeOf(edit), (TmTime{15, 4, 5}));
    char longText[400];
    std::memset(longText, '7', sizeof longText - 1);
    longText[399] = '\0';
    EXPECT_EQ(tmSetTimeString(edit, longText), 1);
    EXPECT_EQ(tmGetMinute(edit), 0u);
}

TEST_F(TimeEdit, EmptySuffixesMatchTextsWithoutOne) {
    UseForm("0", "", "PM");
    HWND edit = Create();
    tmSetTimeString(edit, "14:30:00");
    EXPECT_EQ(tmGetHour(edit), 2u);
    UseForm("1", "AM", "");
    HWND other = Create();
    tmSetTimeString(other, "09:15:00");
    EXPECT_EQ(tmGetHour(other), 21u);
}

TEST_F(TimeEdit, SettingTheSameTimeByTextRepaintsOnce) {
    HWND edit = Create();
    UpdateWindow(edit);
    const Spy spy(edit);
    EXPECT_EQ(HeardBy([&] { tmSetTimeString(edit, "2:05:09 PM"); }), (Events{"ask", "changed"}));
    EXPECT_EQ(spy.Received(WM_PAINT).size(), 1u);
    EXPECT_EQ(HeardBy([&] { EXPECT_EQ(tmSetTimeString(edit, "2:05:09 PM"), 1); }), Events{"ask"});
    EXPECT_EQ(spy.Received(WM_PAINT).size(), 1u);
    EXPECT_FALSE(GetUpdateRect(edit, nullptr, FALSE));
}

TEST_F(TimeEdit, CopiesTexts) {
    HWND edit = CreateAt(14, 5, 9);
    char buffer[80];
    std::memset(buffer, '#', sizeof buffer);
    EXPECT_EQ(tmGetTimeString(edit, buffer), buffer);
    EXPECT_STREQ(buffer, "2:05:09 PM");
    EXPECT_EQ(buffer[11], '#') << "nothing behind the terminator";
    EXPECT_EQ(tmGetTimeString(edit, nullptr), nullptr);

    EXPECT_EQ(Send(edit, WM_GETTEXTLENGTH), 10);
    std::memset(buffer, '#', sizeof buffer);
    EXPECT_EQ(Send(edit, WM_GETTEXT, 5, reinterpret_cast<LPARAM>(buffer)), 4);
    EXPECT_EQ(std::string(buffer, 6), std::string("2:05\0#", 6));
    EXPECT_EQ(Send(edit, WM_GETTEXT, 0, reinterpret_cast<LPARAM>(buffer)), 0);
    EXPECT_EQ(Send(edit, WM_GETTEXT, 5, 0), 0);
}

TEST_F(TimeEdit, MessagesAreTheFunctions) {
    HWND edit = CreateAt(14, 5, 9);
    EXPECT_EQ(Send(edit, 1162), 14);
    EXPECT_EQ(Send(edit, 1163), 5);
    EXPECT_EQ(Send(edit, 1164), 9);
    TmTime time{};
    EXPECT_EQ(SendPointer(edit, 1161, &time), 1);
    EXPECT_EQ(time, (TmTime{14, 5, 9}));
    time = {1, 2, 3};
    EXPECT_EQ(SendPointer(edit, 1167, &time), 1);
    EXPECT_EQ(TextOf(edit), "1:02:03 AM");
    EXPECT_EQ(Send(edit, 1176), 0);
    EXPECT_EQ(Send(edit, 1175), 1);
    EXPECT_EQ(Send(edit, 1176), 1);
    EXPECT_EQ(SendPointer(edit, 1178, "4:05:06 PM"), 1);
    char text[64];
    EXPECT_EQ(SendPointer(edit, 1177, text), reinterpret_cast<LRESULT>(text));
    EXPECT_STREQ(text, "4:05:06 PM");
    EXPECT_EQ(Send(edit, 1179), tmGetMinHeight(edit));
    EXPECT_EQ(Send(edit, 1180), tmGetMinWidth(edit));
    EXPECT_EQ(Send(edit, 1183), 1);
    Send(edit, 1172, VTMD_CELLS);
    EXPECT_EQ(Style(edit) & 0x30, 0x20u);
    TmEditParams params{};
    EXPECT_EQ(SendPointer(edit, 1159, &params), 1);
    EXPECT_EQ(params.time, (TmTime{16, 5, 6}));
    params.time.hour = 7;
    params.keepFormat = 1;
    EXPECT_EQ(SendPointer(edit, 1160, &params), 1);
    EXPECT_EQ(TextOf(edit), "7:05:06 AM");
    EXPECT_EQ(Send(edit, 1184), 1);
    EXPECT_EQ(Send(edit, 1185), 1);
    EXPECT_FALSE(vorn::test::TakeTimer(edit, 567));
    for (const UINT message : {1165u, 1166u, 1168u, 1169u, 1170u, 1171u, 1173u, 1174u, 1186u}) {
        EXPECT_EQ(Send(edit, message, 1, 1), 0) << message;
    }
    EXPECT_EQ(TextOf(edit), "7:05:06 AM");
    EXPECT_EQ(Style(edit) & 0x7000, 0u) << "1186 is not tmSetBorderStyle";
}

TEST_F(TimeEdit, AnswersTheRecordOfNineNumbers) {
    HWND edit = CreateAt(14, 5, 9);
    LONG record[9];
    FillMemory(record, sizeof record, 0xEE);
    EXPECT_EQ(SendPointer(edit, 3329, record), 0);
    const LONG expected[9] = {9, 5, 14};
    for (int index = 0; index < 9; ++index) {
        EXPECT_EQ(record[index], expected[index]) << index;
    }
    const LONG other[9] = {1, 2, 3, 9, 9, 9, 9, 9, 9};
    EXPECT_EQ(HeardBy([&] { EXPECT_EQ(SendPointer(edit, 3328, other), 0); }),
              (Events{"ask", "changed"}));
    EXPECT_EQ(TimeOf(edit), (TmTime{3, 2, 1}));
    EXPECT_EQ(Refused([&] { SendPointer(edit, 3328, record); }), Events{"ask"});
    EXPECT_EQ(tmGetHour(edit), 3u);
    EXPECT_EQ(Send(edit, 3328), 0) << "null";
    EXPECT_EQ(Send(edit, 3329), 0);
    EXPECT_EQ(Send(edit, 3333, 5, 0), 0);
    LONG size = -1;
    EXPECT_EQ(SendPointer(edit, 3335, &size), 11);
    EXPECT_EQ(size, 36);
    EXPECT_EQ(Send(edit, 3335), 11);
    EXPECT_EQ(TimeOf(edit), (TmTime{3, 2, 1}));
}

// ---- Refusals ----

TEST_F(TimeEdit, RefusedChangesAreDropped) {
    HWND edit = CreateAt(14, 5, 9);
    const TmTime time = {1, 2, 3};
    EXPECT_EQ(Refused([&] { EXPECT_EQ(tmSetTime(edit, &time), 0); }), Events{"ask"});
    EXPECT_EQ(Refused([&] { EXPECT_EQ(tmSetNull(edit), 0); }), Events{"ask"});
    EXPECT_EQ(Refused([&] { EXPECT_EQ(tmSetTimeString(edit, "1:02:03 AM"), 0); }), Events{"ask"});
    EXPECT_EQ(Refused([&] { EXPECT_EQ(tmSetTimeString(edit, ""), 0); }), Events{"ask"});
    EXPECT_EQ(Refused([&] { SetWindowTextA(edit, "1:02:03 AM"); }), Events{"ask"});
    EXPECT_EQ(TextOf(edit), "2:05:09 PM");
    EXPECT_EQ(tmOkToChange(edit), 1);
    EXPECT_EQ(tmOkToChange(nullptr), 1);
}

TEST_F(TimeEdit, TakesItsFormatEvenWhenTheTimeIsRefused) {
    HWND edit = CreateAt(14, 5, 9);
    TmEditParams params = ParamsOf(edit);
    EXPECT_EQ(params.separator, ':');
    EXPECT_EQ(params.leadingZero, 0u);
    EXPECT_EQ(params.twentyFourHour, 0u);
    EXPECT_STREQ(params.amText, "AM");
    EXPECT_STREQ(params.pmText, "PM");
    params.time = {1, 2, 3};
    params.separator = '.';
    std::memcpy(params.amText, "morgens", 8);
    std::memcpy(params.pmText, "nachmitta", 9);
    EXPECT_EQ(Refused([&] {
                  tmSetEditParams(edit, &params);
                  EXPECT_EQ(events, Events{"ask"}) << "the other is posted";
              }),
              (Events{"ask", "changed"}));
    EXPECT_EQ(TextOf(edit), "2.05.09 nachmitt") << "cut to eight characters";
    EXPECT_EQ(tmSetEditParams(edit, &params), 1);
    EXPECT_EQ(TextOf(edit), "1.02.03 morgens");
    params.keepFormat = 1;
    params.separator = '-';
    params.setTime = 0;
    params.time.hour = 9;
    EXPECT_EQ(HeardBy([&] { tmSetEditParams(edit, &params); }), (Events{"ask", "changed"}));
    EXPECT_EQ(TextOf(edit), "1.02.03 morgens");
    EXPECT_EQ(tmSetEditParams(edit, nullptr), 0);
    EXPECT_EQ(tmGetEditParams(edit, nullptr), 0);
}

TEST_F(TimeEdit, RepaintsAtOnceAndOnce) {
    HWND edit = CreateAt(14, 5, 9);
    UpdateWindow(edit);
    Spy spy(edit);
    std::vector<RECT> areas;
    spy.before = [&](const vorn::test::Message& message) {
        if (message.message == WM_PAINT) {
            areas.emplace_back();
            GetUpdateRect(edit, &areas.back(), FALSE);
        }
    };
    const auto paintsOf = [&](const std::function<void()>& run) {
        areas.clear();
        run();
        return areas.size();
    };
    EXPECT_EQ(paintsOf([&] { Set(edit, 1, 2, 3); }), 1u);
    EXPECT_EQ(areas[0].left, 0);
    EXPECT_EQ(paintsOf([&] { tmSetNull(edit); }), 1u);
    EXPECT_EQ(paintsOf([&] { tmSetTimeString(edit, "4:05:06 AM"); }), 1u);
    EXPECT_EQ(paintsOf([&] { tmSetColor(edit, 77, 0); }), 1u) << "whatever the slot";
    EXPECT_EQ(paintsOf([&] { SendPointer(edit, WM_WININICHANGE, "intl"); }), 1u);
    const TmEditParams params = ParamsOf(edit);
    EXPECT_EQ(paintsOf([&] { tmSetEditParams(edit, &params); }), 1u);
    const RECT text = {4, 0, 200, 24};
    EXPECT_TRUE(EqualRect(&areas[0], &text)) << "from the text's left edge on";
    EXPECT_EQ(spy.Received(WM_ERASEBKGND).size(), 0u);
}

TEST_F(TimeEdit, ParamsEndNull) {
    HWND edit = CreateAt(14, 5, 9);
    TmEditParams params = ParamsOf(edit);
    tmSetNull(edit);
    tmSetEditParams(edit, &params);
    EXPECT_FALSE(tmIsNull(edit));
    EXPECT_EQ(TextOf(edit), "2:05:09 PM");
}

// ---- The user's settings ----

TEST_F(TimeEdit, FollowsTheUsersSettingsWhenItIsTold) {
    HWND edit = CreateAt(14, 5, 9);
    SetUser("iTime", "1");
    SetUser("sTime", ".");
    for (const char* section : {"Intl", "INTL", "windows", ""}) {
        SendPointer(edit, WM_WININICHANGE, section);
        EXPECT_EQ(TextOf(edit), "2:05:09 PM") << section;
    }
    Send(edit, WM_WININICHANGE);
    EXPECT_EQ(TextOf(edit), "2:05:09 PM");
    SendPointer(edit, WM_WININICHANGE, "intl");
    EXPECT_EQ(TextOf(edit), "14.05.09");
    SetUser("iTLZero", "1");
    Set(edit, 4, 5, 9);
    SendPointer(edit, WM_WININICHANGE, "intl");
    EXPECT_EQ(TextOf(edit), "04.05.09");
    EXPECT_EQ(TimeOf(edit), (TmTime{4, 5, 9}));
}

TEST_F(TimeEdit, HasDefaultsForWhatTheUserDoesNotSay) {
    for (const char* key : {"iTime", "iTLZero", "s1159", "s2359", "sTime"}) {
        SetUser(key, nullptr);
    }
    HWND edit = CreateAt(4, 5, 9);
    EXPECT_EQ(TextOf(edit), "04:05:09");
    EXPECT_STREQ(ParamsOf(edit).amText, "AM");
    EXPECT_STREQ(ParamsOf(edit).pmText, "");
    SetUser("iTime", "0");
    SendPointer(edit, WM_WININICHANGE, "intl");
    EXPECT_STREQ(ParamsOf(edit).pmText, "PM");
}

// ---- Sizes and style bits ----

TEST_F(TimeEdit, TellsTheLeastSizeOfItsFont) {
    HFONT font =
        CreateFontA(-40, 0, 0, 0, 400, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
    for (HFONT used : {static_cast<HFONT>(GetStockObject(SYSTEM_FONT)), font}) {
        TEXTMETRICA metrics{};
        HDC screen = GetDC(nullptr);
        HGDIOBJ before = SelectObject(screen, used);
        GetTextMetricsA(screen, &metrics);
        SelectObject(screen, before);
        ReleaseDC(nullptr, screen);
        for (const auto& [style, allowance] :
             {std::pair<DWORD, int>{0, 0}, {0x4000, 2}, {0x2000, 4}, {0x1000, 4}}) {
            HWND edit = Create(style);
            Send(edit, WM_SETFONT, reinterpret_cast<WPARAM>(used), TRUE);
            EXPECT_EQ(tmGetMinHeight(edit), metrics.tmHeight + allowance);
            EXPECT_EQ(tmGetMinWidth(edit), 3 * metrics.tmMaxCharWidth + allowance);
            DestroyWindow(edit);
        }
    }
    DeleteObject(font);
}

TEST_F(TimeEdit, GrowsWithEveryRequestForABorder) {
    HWND edit = Create(0, 200, 24);
    EXPECT_EQ(tmSetBorderStyle(edit, VORN_BORDER_RAISED), 1);
    EXPECT_EQ(SizeOf(edit).cx, 204);
    EXPECT_EQ(SizeOf(edit).cy, 28);
    EXPECT_EQ(Style(edit) & 0x7000, 0x2000u) << "the other way round than at creation";
    tmSetBorderStyle(edit, VORN_BORDER_RAISED);
    EXPECT_EQ(SizeOf(edit).cx, 208) << "again";
    tmSetBorderStyle(edit, VORN_BORDER_SUNKEN);
    EXPECT_EQ(Style(edit) & 0x7000, 0x1000u);
    EXPECT_EQ(SizeOf(edit).cx, 208) << "the client area's 204 and 4";
    tmSetBorderStyle(edit, VORN_BORDER_LINE);
    EXPECT_EQ(Style(edit) & 0x7000, 0x4000u);
    EXPECT_EQ(SizeOf(edit).cx, 206);
    tmSetBorderStyle(edit, VORN_BORDER_NONE);
    EXPECT_EQ(Style(edit) & 0x7000, 0u);
    EXPECT_EQ(SizeOf(edit).cx, 204);
    tmSetBorderStyle(edit, VORN_BORDER_LINE);
    tmSetBorderStyle(edit, 9);
    EXPECT_EQ(Style(edit) & 0x7000, 0u);
    EXPECT_EQ(tmGetMinWidth(edit), tmGetMinWidth(Create(VTMS_LINE))) << "the border stays";
}

TEST_F(TimeEdit, KeepsItsDisplayStyleInItsStyleBits) {
    HWND edit = CreateAt(14, 5, 9);
    EXPECT_NE(tmSetDisplayStyle(edit, VTMD_DIGITS), 0);
    EXPECT_EQ(Style(edit) & 0x30, 0x10u);
    tmSetDisplayStyle(edit, VTMD_CELLS);
    EXPECT_EQ(Style(edit) & 0x30, 0x20u);
    tmSetDisplayStyle(edit, VTMD_TEXT);
    EXPECT_EQ(Style(edit) & 0x30, 0u);
    tmSetDisplayStyle(edit, VTMD_CELLS);
    tmSetDisplayStyle(edit, 7);
    EXPECT_EQ(Style(edit) & 0x30, 0u);
    EXPECT_EQ(TextOf(edit), "2:05:09 PM");
}

// ---- The system edit's messages ----

TEST_F(TimeEdit, AnswersTheMessagesOfAnEdit) {
    HWND edit = CreateAt(14, 5, 9);
    EXPECT_EQ(Send(edit, EM_GETLINECOUNT), 1);
    EXPECT_EQ(Send(edit, EM_LINELENGTH), 10);
    char line[8] = {};
    const WORD size = 7;
    std::memcpy(line, &size, sizeof size);
    line[7] = '#';
    EXPECT_EQ(SendPointer(edit, EM_GETLINE, line), 7);
    EXPECT_EQ(std::string(line, 8), "2:05:09#");
    Send(edit, EM_SETMODIFY, TRUE);
    EXPECT_EQ(Send(edit, EM_GETMODIFY), TRUE);
    RECT rect{};
    SendPointer(edit, EM_GETRECT, &rect);
    EXPECT_EQ(rect.left, 4);
    EXPECT_EQ(rect.right, 200);
    Send(edit, EM_SETSEL, 2, 4);
    EXPECT_EQ(SelectionOf(edit), "2-4");
    EXPECT_EQ(Send(edit, EM_GETSEL), MAKELONG(2, 4));
    EXPECT_EQ(HeardBy([&] { SendPointer(edit, EM_REPLACESEL, "3:04 PM"); }),
              (Events{"ask", "changed", "EN_UPDATE", "EN_CHANGE"}));
    EXPECT_EQ(TimeOf(edit), (TmTime{15, 4, 0}));
    EXPECT_EQ(Refused([&] { SendPointer(edit, EM_REPLACESEL, "5:04 PM"); }), Events{"ask"});
    EXPECT_EQ(HeardBy([&] { SendPointer(edit, EM_REPLACESEL, "five"); }), Events{"ask"});
    EXPECT_EQ(TimeOf(edit), (TmTime{15, 4, 0}));
    Send(edit, EM_SETREADONLY, TRUE);
    EXPECT_EQ(Style(edit) & 0x800, 0x800u);
    Send(edit, EM_SETREADONLY, FALSE);
    EXPECT_EQ(Style(edit) & 0x800, 0u);
    EXPECT_EQ(Send(edit, WM_GETFONT), 0) << "the system's";
}

// ---- Windows that are none ----

TEST_F(TimeEdit, FunctionsBearAnyWindow) {
    HWND edit = Create();
    DestroyWindow(edit);
    for (HWND window : {HWND{nullptr}, edit, host.window(), vorn::test::CreateForeignWindow(),
                        vorn::test::DestroyedWindow()}) {
        TmTime time = {1, 2, 3};
        TmEditParams params;
        FillMemory(&params, sizeof params, 0xEE);
        char text[64] = "untouched";
        EXPECT_EQ(tmGetEditParams(window, &params), 0);
        EXPECT_EQ(params.setTime, 0xEEEEEEEE);
        EXPECT_EQ(tmSetEditParams(window, &params), 0);
        EXPECT_EQ(tmGetTime(window, &time), 0);
        EXPECT_EQ(time, (TmTime{1, 2, 3}));
        EXPECT_EQ(tmGetHour(window) + tmGetMinute(window) + tmGetSecond(window), 0u);
        EXPECT_EQ(tmSetTime(window, &time), 0);
        EXPECT_EQ(tmSetDisplayStyle(window, 1), 0);
        EXPECT_EQ(tmSetNull(window), 0);
        EXPECT_EQ(tmIsNull(window), 1);
        EXPECT_EQ(tmGetTimeString(window, text), nullptr);
        EXPECT_STREQ(text, "untouched");
        EXPECT_EQ(tmSetTimeString(window, "1:02:03"), 0);
        EXPECT_EQ(tmGetMinHeight(window), 0);
        EXPECT_EQ(tmGetMinWidth(window), 0);
        EXPECT_EQ(tmSetColor(window, 2, 0), 0);
        EXPECT_EQ(tmOkToChange(window), 1);
        EXPECT_EQ(tmStartClock(window), 0);
        EXPECT_EQ(tmStopClock(window), 0);
        EXPECT_EQ(tmSetBorderStyle(window, 2), 0);
    }
    EXPECT_EQ(TakeEvents(), Events{}) << "nobody was asked";
}

TEST_F(TimeEdit, LeavesNoObjectsBehind) {
    EXPECT_EQ(vorn::test::ObjectsLeftBy([&] {
                  HWND edit = CreateAt(4, 5, 6, VTMS_DIGITS | VTMS_RAISED);
                  SetFocus(edit);
                  tmSetDisplayStyle(edit, VTMD_CELLS);
                  tmSetDisplayStyle(edit, VTMD_DIGITS);
                  tmStartClock(edit);
                  UpdateWindow(edit);
                  DestroyWindow(edit);
              }),
              "");
}

} // namespace
