// The numeric edit's spin buttons with their timers, and the caret by mouse.
#include "tests/windows/host/numedit_host.h"
#include "tests/windows/support/input.h"

namespace {

using vorn::test::ChangeEvents;
using vorn::test::Events;
using vorn::test::NumEditHost;
using vorn::test::operator+;
using vorn::test::PumpFor;
using vorn::test::SendMouse;
using vorn::test::TakeTimer;

// In a client area of 120 by 24 the buttons begin at 120 - 15, and y 12 is still up's.
constexpr int kButton = 110;
constexpr int kUp = 5;
constexpr int kDown = 18;

constexpr UINT_PTR kDelayTimer = 1;
constexpr UINT_PTR kRepeatTimer = 2;

class NumEditMouse : public NumEditHost {
protected:
    HWND CreateSpinning(DWORD kind = NM_GENERAL, WORD digits = 0, DWORD style = 0) {
        return CreateFocused(kind, digits, style | VNMS_SPIN);
    }
    static void Press(HWND edit, int y) { SendMouse(edit, WM_LBUTTONDOWN, kButton, y); }
    static void Release(HWND edit, int y = kUp) { SendMouse(edit, WM_LBUTTONUP, kButton, y); }
    static void Click(HWND edit, int y) {
        Press(edit, y);
        Release(edit, y);
    }

    static inline const Events kStep = Events{"ask"} + ChangeEvents();
};

TEST_F(NumEditMouse, ButtonsStepByOne) {
    HWND edit = CreateSpinning(NM_FLOATING, 2);
    Press(edit, kUp);
    EXPECT_EQ(TextOf(edit), "1.00") << "null is stepped from 0";
    EXPECT_EQ(TakeEvents(), kStep);
    EXPECT_EQ(GetCapture(), edit);
    Release(edit);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(TakeEvents(), Events{}) << "nothing is told at the release";
    EXPECT_EQ(SelectionOf(edit), "4-4");
    EXPECT_NE(SendMessageA(edit, EM_GETMODIFY, 0, 0), 0);
    Click(edit, kDown);
    Click(edit, kDown);
    EXPECT_EQ(TextOf(edit), "-1.00");
    SendMouse(edit, WM_LBUTTONDBLCLK, kButton, kDown);
    Release(edit);
    EXPECT_EQ(TextOf(edit), "-2.00") << "the second of a double click";
}

// 1000000 does not fit: the caret behind it is in view before anybody is told.
TEST_F(NumEditMouse, ANarrowOneScrollsBeforeItTells) {
    HWND edit = CreateSpinning();
    SetWindowPos(edit, nullptr, 0, 0, 60, 24, SWP_NOMOVE | SWP_NOZORDER);
    PutAndSelectEnd(edit, "1000000");
    Select(edit, 0, 0);
    std::vector<LRESULT> first;
    onEvent = [&](HWND, const std::string&) {
        first.push_back(SendMessageA(edit, EM_GETFIRSTVISIBLELINE, 0, 0));
    };
    notesPaints = true;
    SendMessageA(edit, WM_KEYDOWN, VK_UP, 1);
    notesPaints = false;
    EXPECT_EQ(TakeEvents(),
              (Events{"ask", "changed", "EN_UPDATE", "paint", "EN_CHANGE", "changed"}))
        << "painted once";
    ASSERT_EQ(first.size(), 6u);
    EXPECT_EQ(first[0], 0);
    EXPECT_GT(first[1], 0);
    EXPECT_EQ(first, (std::vector<LRESULT>{0, first[1], first[1], first[1], first[1], first[1]}));
}

TEST_F(NumEditMouse, TheUpperHalfIsUp) {
    HWND edit = CreateSpinning();
    const struct {
        int y;
        const char* text;
    } clicks[] = {{0, "1"}, {12, "2"}, {13, "1"}, {23, "0"}};
    for (const auto& [y, text] : clicks) {
        Click(edit, y);
        EXPECT_EQ(TextOf(edit), text) << y;
    }
}

TEST_F(NumEditMouse, ThereAreNoButtonsWithoutTheStyle) {
    HWND edit = CreateFocused();
    Click(edit, kUp);
    EXPECT_TRUE(nmIsNull(edit));
    nmEnableSpinButtons(edit, TRUE);
    Click(edit, kUp);
    EXPECT_EQ(TextOf(edit), "1");
}

TEST_F(NumEditMouse, APressTakesTheFocusFirst) {
    HWND edit = Create(NM_GENERAL, 0, VNMS_SPIN);
    Press(edit, kUp);
    EXPECT_EQ(GetFocus(), edit);
    EXPECT_EQ(TakeEvents(), Events{"EN_SETFOCUS"} + kStep);
    Release(edit);
}

TEST_F(NumEditMouse, TheLimitIsToldAtEveryStep) {
    HWND edit = CreateSpinning();
    Put(edit, "10");
    SetRange(edit, 0, 10);
    TakeEvents();
    Click(edit, kUp);
    EXPECT_EQ(TextOf(edit), "10");
    EXPECT_EQ(TakeEvents(), kStep);
}

TEST_F(NumEditMouse, ATextThatReachesTheLimitIsCut) {
    HWND edit = CreateSpinning();
    SendMessageA(edit, EM_LIMITTEXT, 3, 0);
    Put(edit, "99");
    Click(edit, kUp);
    EXPECT_EQ(TextOf(edit), "10");
    EXPECT_EQ(TakeEvents(), Events{"ask"} + Events{"code 1280"} + ChangeEvents());
}

TEST_F(NumEditMouse, OnlyTheTextIsPaintedBetweenTheNotifications) {
    HWND edit = CreateSpinning();
    notesPaints = true;
    Press(edit, kUp);
    EXPECT_EQ(TakeEvents(), (Events{"paint", "ask", "changed", "EN_UPDATE", "paint", "EN_CHANGE"}));
    Release(edit);
    EXPECT_EQ(TakeEvents(), Events{"paint"});
}

TEST_F(NumEditMouse, AHeldButtonRepeats) {
    HWND edit = CreateSpinning();
    DWORD speed = 0;
    SystemParametersInfoA(SPI_GETKEYBOARDSPEED, 0, &speed, 0);
    Press(edit, kUp);
    const DWORD start = GetTickCount();
    ASSERT_TRUE(PumpFor(3000, [&] { return TextOf(edit) != "1"; }));
    EXPECT_GE(GetTickCount() - start, 990u) << "a second, and the first repeat's interval";
    ASSERT_TRUE(PumpFor(3000, [&] { return nmGetInteger(edit) >= 5; })) << speed;
    Release(edit);
    const std::string text = TextOf(edit);
    EXPECT_FALSE(PumpFor(150, [&] { return TextOf(edit) != text; }));
    EXPECT_FALSE(TakeTimer(edit, kDelayTimer));
    EXPECT_FALSE(TakeTimer(edit, kRepeatTimer));
}

TEST_F(NumEditMouse, AHeldButtonStopsSteppingWhenTheEditIsReadOnly) {
    HWND edit = CreateSpinning();
    Press(edit, kUp);
    SendMessageA(edit, WM_TIMER, kDelayTimer, 0);
    SendMessageA(edit, EM_SETREADONLY, TRUE, 0);
    TakeEvents();
    SendMessageA(edit, WM_TIMER, kRepeatTimer, 0);
    EXPECT_EQ(TextOf(edit), "1");
    EXPECT_EQ(TakeEvents(), Events{}) << "it does not even ask";
    SendMessageA(edit, EM_SETREADONLY, FALSE, 0);
    SendMessageA(edit, WM_TIMER, kRepeatTimer, 0);
    EXPECT_EQ(TextOf(edit), "2");
    Release(edit);
}

TEST_F(NumEditMouse, EveryRepeatAsks) {
    HWND edit = CreateSpinning();
    Press(edit, kDown);
    TakeEvents();
    SendMessageA(edit, WM_TIMER, kRepeatTimer, 0);
    EXPECT_EQ(TakeEvents(), Events{}) << "the delay is not over";
    SendMessageA(edit, WM_TIMER, kDelayTimer, 0);
    EXPECT_EQ(TextOf(edit), "-1") << "and its end is no step";
    SendMessageA(edit, WM_TIMER, kRepeatTimer, 0);
    EXPECT_EQ(TextOf(edit), "-2");
    allowed = 0;
    TakeEvents();
    SendMessageA(edit, WM_TIMER, kRepeatTimer, 0);
    EXPECT_EQ(TextOf(edit), "-2");
    EXPECT_EQ(events.front(), "ask");
    Release(edit);
}

TEST_F(NumEditMouse, TheHostMayRefuse) {
    HWND edit = CreateSpinning();
    allowed = 0;
    Click(edit, kUp);
    EXPECT_TRUE(nmIsNull(edit));
    EXPECT_EQ(TakeEvents(), Events{"ask"});
}

TEST_F(NumEditMouse, ReadOnlyHasNoSteps) {
    HWND edit = CreateSpinning(NM_GENERAL, 0, VNMS_READONLY);
    Click(edit, kUp);
    EXPECT_TRUE(nmIsNull(edit));
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_FALSE(TakeTimer(edit, kDelayTimer));
}

TEST_F(NumEditMouse, APressEndsWithItsCapture) {
    HWND edit = CreateSpinning();
    Press(edit, kUp);
    SetCapture(host.window());
    EXPECT_FALSE(TakeTimer(edit, kDelayTimer));
    SendMessageA(edit, WM_TIMER, kRepeatTimer, 0);
    EXPECT_EQ(TextOf(edit), "1");
    EXPECT_EQ(GetCapture(), host.window());
    ReleaseCapture();
    Click(edit, kUp);
    EXPECT_EQ(TextOf(edit), "2");
    Press(edit, kUp);
    EnableWindow(edit, FALSE);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_FALSE(TakeTimer(edit, kDelayTimer));
}

TEST_F(NumEditMouse, HiddenButtonsEndThePress) {
    HWND edit = CreateSpinning();
    Press(edit, kUp);
    nmEnableSpinButtons(edit, FALSE);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_FALSE(TakeTimer(edit, kDelayTimer));
}

TEST_F(NumEditMouse, OthersTimersAreLeftAlone) {
    HWND edit = CreateSpinning();
    EXPECT_EQ(SendMessageA(edit, WM_TIMER, 77, 0), 0);
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(NumEditMouse, AClickPutsTheCaret) {
    HWND edit = Create();
    Put(edit, "12345");
    SendMouse(edit, WM_LBUTTONDOWN, 60, 10);
    SendMouse(edit, WM_LBUTTONUP, 60, 10);
    EXPECT_EQ(GetFocus(), edit);
    EXPECT_EQ(SelectionOf(edit), "5-5") << "behind the text";
    EXPECT_EQ(TakeEvents(), Events{"EN_SETFOCUS"});
    const int end = CaretAt(edit).x;
    SendMouse(edit, WM_LBUTTONDOWN, 0, 10);
    SendMouse(edit, WM_LBUTTONUP, 0, 10);
    EXPECT_EQ(CaretAt(edit).x, 4);
    SendMouse(edit, WM_LBUTTONDOWN, 4 + (end - 4) * 2 / 5, 10);
    SendMouse(edit, WM_LBUTTONUP, 60, 10);
    EXPECT_EQ(SelectionOf(edit), "2-2") << "the digits of the system's font are equally wide";
    Put(edit, "");
    SendMouse(edit, WM_LBUTTONDOWN, 60, 10);
    SendMouse(edit, WM_LBUTTONUP, 60, 10);
    EXPECT_EQ(SelectionOf(edit), "0-0");
}

TEST_F(NumEditMouse, DraggingSelects) {
    HWND edit = CreateFocused();
    Put(edit, "12345");
    Select(edit, 5, 5);
    const int end = CaretAt(edit).x;
    const int behindTwo = 4 + (end - 4) * 2 / 5;
    const int behindFour = 4 + (end - 4) * 4 / 5;
    SendMouse(edit, WM_MOUSEMOVE, 4, 10);
    EXPECT_EQ(SelectionOf(edit), "5-5") << "no button is down";
    SendMouse(edit, WM_LBUTTONDOWN, behindTwo, 10);
    EXPECT_EQ(GetCapture(), edit);
    SendMouse(edit, WM_MOUSEMOVE, behindFour, 10);
    EXPECT_EQ(SelectionOf(edit), "2-4");
    SendMouse(edit, WM_MOUSEMOVE, -50, 10);
    EXPECT_EQ(SelectionOf(edit), "0-2");
    SendMouse(edit, WM_LBUTTONUP, -50, 10);
    EXPECT_EQ(GetCapture(), nullptr);
    SendMouse(edit, WM_MOUSEMOVE, behindFour, 10);
    EXPECT_EQ(SelectionOf(edit), "0-2");
    SendMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(behindFour, 10));
    SendMouse(edit, WM_LBUTTONUP, behindFour, 10);
    EXPECT_EQ(SelectionOf(edit), "2-4") << "Shift goes on from where the selection started";
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(NumEditMouse, TheRealMouseSteps) {
    HWND edit = Create(NM_GENERAL, 0, VNMS_SPIN);
    vorn::test::MoveMouse(edit, kButton, kDown);
    vorn::test::PressMouse();
    EXPECT_TRUE(PumpFor(2000, [&] { return TextOf(edit) == "-1"; }));
    vorn::test::ReleaseMouse();
    EXPECT_TRUE(PumpFor(2000, [] { return GetCapture() == nullptr; }));
    EXPECT_EQ(TextOf(edit), "-1");
}

} // namespace
