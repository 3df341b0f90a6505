// The dial as a host meets it: functions, creation, sizes, failures.
#include "tests/windows/host/dial_host.h"
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/objects.h"

#include <limits>

namespace {

using vorn::test::Message;
using vorn::test::PumpMessages;
using vorn::test::Scroll;

constexpr LONG kMin = std::numeric_limits<LONG>::min();
constexpr LONG kMax = std::numeric_limits<LONG>::max();

class Dial : public vorn::test::DialHost {
protected:
    static void ExpectRange(HWND dial, LONG minimum, LONG maximum) {
        LONG values[2] = {-99, -99};
        EXPECT_NE(GetDialRange(dial, &values[0], &values[1]), 0);
        EXPECT_EQ(values[0], minimum);
        EXPECT_EQ(values[1], maximum);
    }

    static void ExpectTurnRange(HWND dial, LONG start, LONG end) {
        LONG values[2] = {-99, -99};
        EXPECT_NE(GetDialTurnRange(dial, &values[0], &values[1]), 0);
        EXPECT_EQ(values[0], start);
        EXPECT_EQ(values[1], end);
    }

    static void ExpectSize(HWND dial, LONG width, LONG height) {
        RECT rect{};
        GetWindowRect(dial, &rect);
        EXPECT_EQ(rect.right - rect.left, width);
        EXPECT_EQ(rect.bottom - rect.top, height);
    }
};

// ---- Values ----

TEST_F(Dial, HasItsDefaults) {
    HWND dial = Create();
    EXPECT_EQ(GetDialPos(dial), 0);
    ExpectRange(dial, 0, 100);
    ExpectTurnRange(dial, -45, 225);
    EXPECT_EQ(GetDialDirection(dial), 1);
    EXPECT_EQ(GetWindowWord(dial, VORN_DIAL_RECEIVER), 0);
    EXPECT_EQ(VORN_DIAL_RECEIVER, 10);
}

TEST_F(Dial, KeepsThePositionWithinTheRange) {
    HWND dial = Create();
    EXPECT_EQ(SetDialPos(dial, 42, FALSE), 0);
    EXPECT_EQ(SetDialPos(dial, 150, FALSE), 42);
    EXPECT_EQ(GetDialPos(dial), 100);
    EXPECT_EQ(SetDialPos(dial, -1, FALSE), 100);
    EXPECT_EQ(GetDialPos(dial), 0);
    SetDialRange(dial, kMin, kMax, FALSE);
    SetDialPos(dial, kMin, FALSE);
    EXPECT_EQ(GetDialPos(dial), kMin);
    EXPECT_EQ(SetDialPos(dial, kMax, FALSE), kMin);
    EXPECT_EQ(GetDialPos(dial), kMax);
    SetDialRange(dial, 10, -10, FALSE);
    SetDialPos(dial, 0, FALSE);
    EXPECT_EQ(GetDialPos(dial), 10) << "the minimum, with the ends swapped";
}

TEST_F(Dial, StoresRangesAsGiven) {
    HWND dial = CreateAt(70);
    const LONG pairs[][2] = {{-5, 5}, {5, -5}, {7, 7}, {kMin, kMax}, {0, 0}};
    for (const auto& [first, second] : pairs) {
        SetDialRange(dial, first, second, FALSE);
        ExpectRange(dial, first, second);
        SetDialTurnRange(dial, first, second, FALSE);
        ExpectTurnRange(dial, first, second);
        EXPECT_EQ(GetDialPos(dial), 70) << "the position stays where it is";
    }
}

TEST_F(Dial, TellsOnlyWhatIsAskedFor) {
    HWND dial = Create();
    LONG value = -99;
    EXPECT_NE(GetDialRange(dial, nullptr, &value), 0);
    EXPECT_EQ(value, 100);
    EXPECT_NE(GetDialRange(dial, &value, nullptr), 0);
    EXPECT_EQ(value, 0);
    EXPECT_NE(GetDialTurnRange(dial, nullptr, &value), 0);
    EXPECT_EQ(value, 225);
    EXPECT_NE(GetDialTurnRange(dial, &value, nullptr), 0);
    EXPECT_EQ(value, -45);
}

TEST_F(Dial, TakesTheLowestBitAsItsDirection) {
    HWND dial = Create();
    EXPECT_EQ(SetDialDirection(dial, 2), 1);
    EXPECT_EQ(GetDialDirection(dial), 0);
    EXPECT_EQ(SetDialDirection(dial, -1), 0);
    EXPECT_EQ(GetDialDirection(dial), 1);
}

TEST_F(Dial, SaysNothingAboutWhatTheHostSets) {
    HWND dial = Create();
    host.TakeNotifications();
    SetDialPos(dial, 42, TRUE);
    SetDialRange(dial, 5, 6, TRUE);
    SetDialTurnRange(dial, 0, 90, TRUE);
    SetDialDirection(dial, 0);
    PumpMessages();
    EXPECT_EQ(TakeScrolls(), std::vector<Scroll>{});
    EXPECT_EQ(host.TakeNotifications(), std::vector<int>{});
}

// ---- Redrawing ----

int paints = 0;
RECT lastUpdate{};
WNDPROC dialProcedure = nullptr;

LRESULT CALLBACK CountPaints(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT) {
        ++paints;
        GetUpdateRect(window, &lastUpdate, FALSE);
    }
    return CallWindowProcA(dialProcedure, window, message, wParam, lParam);
}

void Watch(HWND dial) {
    PumpMessages();
    paints = 0;
    dialProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(dial, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountPaints)));
}

// Runs something that must repaint the whole dial before it returns, or must not repaint at all.
void ExpectPaints(int expected, const std::function<void()>& run) {
    paints = 0;
    lastUpdate = {};
    run();
    EXPECT_EQ(paints, expected);
    const RECT whole = {0, 0, 100, 100};
    if (expected > 0) {
        EXPECT_TRUE(EqualRect(&lastUpdate, &whole));
    }
}

TEST_F(Dial, RedrawsWhenItIsTold) {
    HWND dial = Create();
    Watch(dial);
    ExpectPaints(0, [&] { SetDialPos(dial, 10, FALSE); });
    ExpectPaints(1, [&] { SetDialPos(dial, 20, TRUE); });
    ExpectPaints(1, [&] { SetDialPos(dial, 20, 256); });
    ExpectPaints(0, [&] { SetDialRange(dial, 0, 50, FALSE); });
    ExpectPaints(1, [&] { SetDialRange(dial, 0, 60, TRUE); });
    ExpectPaints(0, [&] { SetDialTurnRange(dial, 0, 90, FALSE); });
    ExpectPaints(1, [&] { SetDialTurnRange(dial, 0, 80, TRUE); });
    ExpectPaints(1, [&] { SetDialDirection(dial, 0); });
    ExpectPaints(1, [&] { SetDialDirection(dial, 0); });
}

TEST_F(Dial, RedrawsForFocusEnablingAndColors) {
    HWND dial = Create();
    Watch(dial);
    ExpectPaints(1, [&] { SetFocus(dial); });
    ExpectPaints(1, [&] { SetFocus(host.window()); });
    ExpectPaints(1, [&] { EnableWindow(dial, FALSE); });
    ExpectPaints(1, [&] { EnableWindow(dial, TRUE); });
    ExpectPaints(1, [&] { SendMessageA(dial, WM_SYSCOLORCHANGE, 0, 0); });
}

// ---- Creation and size ----

TEST_F(Dial, IsFortyByFortyAtLeast) {
    HWND dial = Create(0, 30, 60);
    ExpectSize(dial, 40, 40);
    RECT rect{};
    GetWindowRect(dial, &rect);
    MapWindowPoints(nullptr, host.window(), reinterpret_cast<POINT*>(&rect), 2);
    EXPECT_EQ(rect.left, 10) << "where it was";
    EXPECT_EQ(rect.top, 10);
    SetWindowPos(dial, nullptr, 0, 0, 300, 39, SWP_NOMOVE | SWP_NOZORDER);
    ExpectSize(dial, 40, 40);
    SetWindowPos(dial, nullptr, 0, 0, 41, 40, SWP_NOMOVE | SWP_NOZORDER);
    ExpectSize(dial, 41, 40);
    SetWindowPos(dial, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOZORDER);
    ExpectSize(dial, 40, 40);
}

TEST_F(Dial, StaysInItsPlaceAmongTheOthersWhenItGrows) {
    HWND dial = Create();
    HWND above = host.Create("STATIC", 0, 200, 200, 10, 10);
    SetWindowPos(above, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    SetWindowPos(dial, nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
    ExpectSize(dial, 40, 40);
    EXPECT_EQ(GetWindow(host.window(), GW_CHILD), above);
    EXPECT_EQ(GetWindow(above, GW_HWNDNEXT), dial);
}

TEST_F(Dial, CountsItsFrameInItsSize) {
    HWND dial = Create(WS_BORDER, 40, 40);
    ExpectSize(dial, 40, 40);
    RECT client{};
    GetClientRect(dial, &client);
    EXPECT_EQ(client.right, 38);
    SetWindowPos(dial, nullptr, 0, 0, 39, 40, SWP_NOMOVE | SWP_NOZORDER);
    ExpectSize(dial, 40, 40);
}

TEST_F(Dial, MayBeMinimizedAsAWindowOfItsOwn) {
    HWND dial = CreateWindowExA(0, VORN_DIAL_CLASS, "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50,
                                200, 200, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    ASSERT_NE(dial, nullptr);
    SendMessageA(dial, WM_SIZE, SIZE_MINIMIZED, 0);
    ExpectSize(dial, 200, 200);
    ShowWindow(dial, SW_MINIMIZE);
    EXPECT_TRUE(IsIconic(dial));
    ShowWindow(dial, SW_RESTORE);
    ExpectSize(dial, 200, 200);
    DestroyWindow(dial);
}

TEST_F(Dial, BearsEverySize) {
    HWND dial = Create();
    for (const int side : {0, 1, 39, 40, 41, 57, 100, 333, 1060, 3000}) {
        SetWindowPos(dial, nullptr, 0, 0, side, side, SWP_NOMOVE | SWP_NOZORDER);
        UpdateWindow(dial);
        SetWindowPos(dial, nullptr, 0, 0, side, 50, SWP_NOMOVE | SWP_NOZORDER);
        UpdateWindow(dial);
        EXPECT_FALSE(GetUpdateRect(dial, nullptr, FALSE)) << side;
    }
}

TEST_F(Dial, WantsArrowsAndCharactersInDialogs) {
    EXPECT_EQ(SendMessageA(Create(), WM_GETDLGCODE, 0, 0), 0x189);
}

TEST_F(Dial, IsAWindowAsAnyOtherBesides) {
    HWND dial = CreateWindowExA(0, VORN_DIAL_CLASS, "volume", WS_CHILD, 0, 0, 50, 50, host.window(),
                                nullptr, GetModuleHandleA(nullptr), nullptr);
    char text[20] = "";
    GetWindowTextA(dial, text, sizeof text);
    EXPECT_STREQ(text, "volume") << "the default procedure has its part in the creation";
}

// ---- What is no dial ----

void ExpectAllFunctionsAnswerZero(HWND window) {
    LONG first = 12345;
    LONG second = 67890;
    EXPECT_EQ(SetDialPos(window, 1, TRUE), 0);
    EXPECT_EQ(GetDialPos(window), 0);
    EXPECT_EQ(SetDialRange(window, 1, 2, TRUE), 0);
    EXPECT_EQ(GetDialRange(window, &first, &second), 0);
    EXPECT_EQ(SetDialTurnRange(window, 1, 2, TRUE), 0);
    EXPECT_EQ(GetDialTurnRange(window, &first, &second), 0);
    EXPECT_EQ(SetDialDirection(window, 0), 0);
    EXPECT_EQ(GetDialDirection(window), 0);
    EXPECT_EQ(first, 12345) << "nothing is written";
    EXPECT_EQ(second, 67890);
}

TEST_F(Dial, FunctionsAnswerZeroForOtherWindows) {
    ExpectAllFunctionsAnswerZero(nullptr);
    ExpectAllFunctionsAnswerZero(vorn::test::DestroyedWindow());
    ExpectAllFunctionsAnswerZero(reinterpret_cast<HWND>(static_cast<INT_PTR>(-1)));
    ExpectAllFunctionsAnswerZero(GetDesktopWindow());
    HWND foreign = vorn::test::CreateForeignWindow();
    ExpectAllFunctionsAnswerZero(foreign);
    for (int offset = 0; offset < 48; offset += 4) {
        EXPECT_EQ(GetWindowLongA(foreign, offset), 0x5A5A5A5A) << "a foreign window is left alone";
    }
    DestroyWindow(foreign);
    ExpectAllFunctionsAnswerZero(host.Create(VORN_PERCENTBAR_CLASS, 0, 0, 0, 50, 50));
    HWND dial = Create();
    DestroyWindow(dial);
    ExpectAllFunctionsAnswerZero(dial);
}

TEST_F(Dial, FunctionsAnswerZeroForAHostsOwnClassOfTheSameName) {
    WNDCLASSA theirs{};
    theirs.lpfnWndProc = DefWindowProcA;
    theirs.cbWndExtra = 48;
    theirs.hInstance = GetModuleHandleA(nullptr);
    theirs.lpszClassName = VORN_DIAL_CLASS;
    ASSERT_NE(RegisterClassA(&theirs), 0);
    HWND window = Create();
    for (int offset = 0; offset < 48; offset += 4) {
        SetWindowLongA(window, offset, 0x5A5A5A5A);
    }
    ExpectAllFunctionsAnswerZero(window);
    DestroyWindow(window);
    EXPECT_TRUE(UnregisterClassA(VORN_DIAL_CLASS, GetModuleHandleA(nullptr)));
}

TEST_F(Dial, LivesOnWithoutItsRecord) {
    HWND dial = Create(WS_TABSTOP);
    SendMessageA(dial, WM_NCDESTROY, 0, 0);
    ExpectAllFunctionsAnswerZero(dial);
    for (const UINT message :
         {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_MOUSEMOVE, WM_LBUTTONUP, WM_CAPTURECHANGED, WM_TIMER,
          WM_KEYDOWN, WM_CHAR, WM_SETFOCUS, WM_KILLFOCUS, WM_ENABLE, WM_SIZE, WM_SYSCOLORCHANGE}) {
        EXPECT_EQ(SendMessageA(dial, message, '+', vorn::test::At(vorn::test::kLeftButton)), 0)
            << message;
    }
    EXPECT_EQ(TakeScrolls(), std::vector<Scroll>{});
    EXPECT_EQ(GetCapture(), nullptr);
    SetWindowPos(dial, nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
    InvalidateRect(dial, nullptr, TRUE);
    UpdateWindow(dial);
    EXPECT_FALSE(GetUpdateRect(dial, nullptr, FALSE)) << "painted by the default procedure";
}

TEST_F(Dial, ASecondCreationMessageChangesNothing) {
    HWND dial = CreateAt(12);
    SetWindowWord(dial, VORN_DIAL_RECEIVER, 1);
    CREATESTRUCTA create{};
    create.lpszName = "";
    EXPECT_EQ(SendMessageA(dial, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&create)), 0);
    EXPECT_EQ(GetDialPos(dial), 12);
    EXPECT_EQ(GetWindowWord(dial, VORN_DIAL_RECEIVER), 1);
}

TEST_F(Dial, WorksInAClassOfTheHostsOwn) {
    WNDCLASSA ours{};
    GetClassInfoA(nullptr, VORN_DIAL_CLASS, &ours);
    ours.lpszClassName = "HostsOwnDial";
    ours.hInstance = GetModuleHandleA(nullptr);
    ours.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
    ASSERT_NE(RegisterClassA(&ours), 0);
    HWND dial = host.Create("HostsOwnDial", 0, 0, 0, 100, 100);
    ASSERT_NE(dial, nullptr);
    SetDialPos(dial, 42, TRUE);
    EXPECT_EQ(GetDialPos(dial), 42);
    Press(dial, vorn::test::kWest);
    EXPECT_EQ(TakeScrolls(), (std::vector<Scroll>{{SB_THUMBTRACK, 16}}));
    DestroyWindow(dial);
    EXPECT_TRUE(UnregisterClassA("HostsOwnDial", GetModuleHandleA(nullptr)));
}

// ---- Endurance ----

TEST_F(Dial, LeavesNoObjectsBehind) {
    EXPECT_EQ(vorn::test::ObjectsLeftBy([&] {
                  HWND dial = CreateAt(30, WS_TABSTOP);
                  SetDialPos(dial, 50, TRUE);
                  SetWindowPos(dial, nullptr, 0, 0, 60, 60, SWP_NOMOVE | SWP_NOZORDER);
                  SendMessageA(dial, WM_SYSCOLORCHANGE, 0, 0);
                  DestroyWindow(dial);
              }),
              "");
}

TEST_F(Dial, BearsRandomMessages) {
    onScroll = [&](HWND dial) { SetDialPos(dial, scrolls.back().position, FALSE); };
    vorn::test::SendRandomMessages([&] { return CreateAt(50, WS_TABSTOP); }, 20240812, 20000);
}

} // namespace
