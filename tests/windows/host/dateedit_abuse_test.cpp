// Date edits whose host does its worst, and windows that are hardly date edits.
#include "tests/windows/host/dateedit_host.h"
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/objects.h"

#include <algorithm>
#include <utility>

namespace {

using vorn::test::DateEditHost;
using vorn::test::Events;
using vorn::test::Form;
using vorn::test::Numbers;
using vorn::test::PumpMessages;

class DateEditAbuse : public DateEditHost {
protected:
    void DestroyIn(const std::string& event) {
        onEvent = [event](HWND edit, const std::string& happened) {
            if (happened == event) {
                DestroyWindow(edit);
            }
        };
    }
};

// The ways to change a date that tell somebody.
struct Change {
    const char* name;
    void (*make)(HWND edit);
};

void SendKey(HWND edit, WPARAM key) {
    SendMessageA(edit, WM_KEYDOWN, key, 1);
}

constexpr Change kUserChanges[] = {
    {"digit", [](HWND edit) { SendKey(edit, '1'); }},
    {"step", [](HWND edit) { SendKey(edit, VK_UP); }},
    {"delete", [](HWND edit) { SendKey(edit, VK_DELETE); }},
    {"back", [](HWND edit) { SendKey(edit, VK_BACK); }},
    {"paste", [](HWND edit) { SendMessageA(edit, WM_PASTE, 0, 0); }},
    {"cut", [](HWND edit) { SendMessageA(edit, WM_CUT, 0, 0); }},
    {"clear", [](HWND edit) { SendMessageA(edit, WM_CLEAR, 0, 0); }},
    {"replace",
     [](HWND edit) { SendMessageA(edit, EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("1/2/2003")); }},
};

constexpr Change kHostChanges[] = {
    {"date string", [](HWND edit) { dtSetDateString(edit, "1/2/2003"); }},
    {"null", [](HWND edit) { dtSetNull(edit); }},
    {"text", [](HWND edit) { SetWindowTextA(edit, "1/2/2003"); }},
    {"params",
     [](HWND edit) {
         DtEditParams params{};
         params.size = sizeof params;
         params.setDate = 1;
         params.year = 1999;
         dtSetEditParams(edit, &params);
     }},
    {"time",
     [](HWND edit) {
         const int time[9] = {0, 0, 0, 1, 1, 95};
         SendMessageA(edit, VDTM_SETTIME, 0, reinterpret_cast<LPARAM>(time));
     }},
};

TEST_F(DateEditAbuse, BearsDestructionInWhateverAChangeTells) {
    notesPaints = true;
    for (const char* event : {"ask", "changed", "EN_UPDATE", "paint", "EN_CHANGE"}) {
        for (const auto& [name, make] : kUserChanges) {
            onEvent = nullptr;
            HWND edit = CreateFocused();
            SetClipboard("12/25/1998");
            TakeEvents();
            DestroyIn(event);
            make(edit);
            EXPECT_FALSE(IsWindow(edit)) << name << " in " << event;
            const Events told = TakeEvents();
            EXPECT_TRUE(std::find(told.begin(), told.end(), event) != told.end()) << name;
        }
    }
}

TEST_F(DateEditAbuse, BearsDestructionInWhateverAHostsChangeTells) {
    notesPaints = true;
    for (const char* event : {"ask", "changed", "paint"}) {
        for (const auto& [name, make] : kHostChanges) {
            onEvent = nullptr;
            HWND edit = CreateFocused();
            DestroyIn(event);
            make(edit);
            EXPECT_FALSE(IsWindow(edit)) << name << " in " << event;
        }
    }
}

TEST_F(DateEditAbuse, BearsDestructionAsTheFocusComesAndGoes) {
    HWND edit = Create();
    DestroyIn("EN_SETFOCUS");
    SetFocus(edit);
    EXPECT_FALSE(IsWindow(edit));
    onEvent = nullptr;
    edit = CreateFocused();
    DestroyIn("EN_KILLFOCUS");
    SetFocus(host.window());
    EXPECT_FALSE(IsWindow(edit));
    onEvent = nullptr;
    edit = CreateFocused(0, Form::MonthFirst, 30);
    DestroyIn("EN_HSCROLL");
    SendKey(edit, VK_END);
    EXPECT_FALSE(IsWindow(edit));
    onEvent = nullptr;
    edit = CreateFocused(0, Form::MonthFirst, 30);
    DestroyIn("EN_MAXTEXT");
    SendKey(edit, VK_END);
    EXPECT_FALSE(IsWindow(edit));
}

TEST_F(DateEditAbuse, BearsDestructionUnderAPress) {
    for (const char* event : {"EN_SETFOCUS", "ask", "paint"}) {
        for (const int x : {20, 110}) {
            onEvent = nullptr;
            notesPaints = false;
            SetFocus(host.window());
            HWND edit = Create(VDTS_CALENDAR);
            notesPaints = true;
            DestroyIn(event);
            SendMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, 10));
            EXPECT_EQ(IsWindow(edit), std::string(event) == "ask" && x == 20) << event << x;
            if (IsWindow(edit)) {
                onEvent = nullptr;
                DestroyWindow(edit);
            }
        }
    }
}

TEST_F(DateEditAbuse, TakesTheLastOfNestedChanges) {
    HWND edit = CreateFocused();
    bool once = true;
    onEvent = [&](HWND window, const std::string& event) {
        if (event == "EN_UPDATE" && std::exchange(once, false)) {
            dtSetDateString(window, "12/25/1998");
        }
    };
    SendKey(edit, VK_UP);
    EXPECT_EQ(DateOf(edit), (Numbers{12, 25, 1998}));
    EXPECT_EQ(TakeEvents(),
              (Events{"ask", "changed", "EN_UPDATE", "ask", "changed", "EN_CHANGE", "changed"}));
}

TEST_F(DateEditAbuse, AKeyRunsOnTheDateThatTheHostSetsWhenAsked) {
    HWND edit = CreateFocused();
    bool once = true;
    onEvent = [&](HWND window, const std::string& event) {
        if (event == "ask" && std::exchange(once, false)) {
            SetDate(window, 1, 1, 1);
            Select(window, 60, 70);
        }
    };
    SendKey(edit, '2');
    const Numbers date = DateOf(edit);
    EXPECT_EQ(date.month, 1);
    EXPECT_EQ(date.day, 1);
    EXPECT_EQ(date.year, 12) << "behind the year's 1";
}

TEST_F(DateEditAbuse, TheFocusMayGoElsewhereInANotification) {
    HWND edit = CreateFocused();
    HWND other = host.Create("EDIT", WS_TABSTOP, 10, 100, 80, 20, 1002);
    onEvent = [&](HWND, const std::string& event) {
        if (event == "EN_UPDATE") {
            SetFocus(other);
        }
    };
    SendKey(edit, VK_UP);
    EXPECT_EQ(GetFocus(), other);
    EXPECT_EQ(CaretAt(other).x >= 0, true) << "the other one's caret stays";
    EXPECT_EQ(CaretAt(edit).x, -1);
    EXPECT_EQ(TextOf(edit), "4/5/2007");
}

TEST_F(DateEditAbuse, LeavesTheCaretOfTheWindowThatGotTheFocusMeanwhile) {
    CreateFocused();
    HWND other = host.Create("EDIT", WS_TABSTOP, 10, 100, 80, 20, 1002);
    onEvent = [&](HWND, const std::string& event) {
        if (event == "EN_KILLFOCUS") {
            SetFocus(other);
        }
    };
    SetFocus(host.window());
    ASSERT_EQ(GetFocus(), other);
    EXPECT_GE(CaretAt(other).x, 0);
}

TEST_F(DateEditAbuse, TheFocusMayComeBackAtOnce) {
    HWND edit = CreateFocused();
    bool once = true;
    onEvent = [&](HWND window, const std::string& event) {
        if (event == "EN_KILLFOCUS" && std::exchange(once, false)) {
            SetFocus(window);
        }
    };
    SetFocus(host.window());
    PumpMessages();
    if (GetFocus() == edit) {
        EXPECT_GE(CaretAt(edit).x, 4);
        EXPECT_EQ(TextOf(edit), "3 /5 /2007");
    } else {
        EXPECT_EQ(TextOf(edit), "3/5/2007");
    }
}

TEST_F(DateEditAbuse, BearsAHostThatRepaintsItAsItPaints) {
    HWND edit = Create(VDTS_DIGITS);
    notesPaints = true;
    int depth = 0;
    onEvent = [&](HWND window, const std::string& event) {
        if (event == "paint" && depth < 3) {
            ++depth;
            RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        }
    };
    RedrawWindow(edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    PumpMessages();
    EXPECT_FALSE(GetUpdateRect(edit, nullptr, FALSE));
}

TEST_F(DateEditAbuse, BearsTheLongestStrings) {
    HWND edit = Create();
    const std::string huge(100000, '9');
    dtSetDateString(edit, huge.c_str());
    SetWindowTextA(edit, huge.c_str());
    SetWindowTextA(edit, (huge + "/" + huge + "/" + huge).c_str());
    EXPECT_EQ(DateOf(edit), (Numbers{12, 31, 9999}));
    SetDate(edit, 65535, 65535, 65535);
    EXPECT_EQ(TextOf(edit), "65535/65535/65535");
    EXPECT_EQ(ValueOf(edit), "65535/65535/65535");
    SetFocus(edit);
    for (const WPARAM key : {WPARAM{'1'}, WPARAM{VK_UP}, WPARAM{VK_END}, WPARAM{VK_BACK}}) {
        SendKey(edit, key);
    }
    dtSetMonthLiterals(edit, nullptr);
    dtSetDayLiterals(edit, nullptr);
}

void CALLBACK CloseDialog(HWND, UINT, UINT_PTR, DWORD) {
    EndDialog(FindWindowA(nullptr, "Select Date"), IDCANCEL);
}

// A press on the button opens a dialog, which is closed soon.
TEST_F(DateEditAbuse, SurvivesRandomMessages) {
    const UINT_PTR timer = SetTimer(nullptr, 0, 10, CloseDialog);
    vorn::test::SendRandomMessages(
        [this] { return host.Create(VORN_DATEEDIT_CLASS, VDTS_CALENDAR, 0, 0, 120, 24); }, 20070305,
        20000,
        {EM_GETSEL, EM_GETRECT, EM_GETLINE, EM_REPLACESEL, EM_SETRECT, EM_GETTHUMB, 1159, 1160,
         1161, 1167, 1177, 1178, 1184, 1185, 0x0D00, 0x0D01, 0x0D07});
    KillTimer(nullptr, timer);
}

TEST_F(DateEditAbuse, AClassOfTheHostsOwnWorksToo) {
    WNDCLASSA own{};
    GetClassInfoA(nullptr, VORN_DATEEDIT_CLASS, &own);
    own.hInstance = GetModuleHandleA(nullptr);
    own.lpszClassName = "OwnDateEdit";
    RegisterClassA(&own);
    HWND edit = host.Create("OwnDateEdit", VDTS_LINE, 0, 0, 100, 24);
    ASSERT_NE(edit, nullptr);
    SetDate(edit, 1, 1, 2000);
    EXPECT_EQ(dtGetDate(edit, nullptr), 36524);
    DestroyWindow(edit);
    UnregisterClassA("OwnDateEdit", GetModuleHandleA(nullptr));
}

TEST_F(DateEditAbuse, LeavesNoObjectBehind) {
    EXPECT_EQ(vorn::test::ObjectsLeftBy([this] {
                  HWND edit = host.Create(VORN_DATEEDIT_CLASS,
                                          VDTS_CALENDAR | VDTS_DIGITS | VDTS_SUNKEN, 0, 0, 120, 30);
                  UpdateWindow(edit);
                  dtSetDisplayStyle(edit, VDTD_CELLS);
                  dtSetDisplayStyle(edit, VDTD_DIGITS);
                  dtSetDisplayStyle(edit, 9);
                  dtSetDisplayStyle(edit, VDTD_DIGITS);
                  SendMessageA(edit, WM_SYSCOLORCHANGE, 0, 0);
                  DestroyWindow(edit);
              }),
              "");
}

} // namespace
