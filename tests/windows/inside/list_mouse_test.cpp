// The outline list under the mouse, by messages: presses, double clicks, boxes, drags, timers.
#include "tests/windows/support/input.h"
#include "tests/windows/support/list_window.h"

namespace vorn::hierlist::test {
namespace {

using vorn::test::TakeTimer;

class ListWindowMouse : public ListWindow {};

TEST_F(ListWindowMouse, PressCapturesAndRunsTheTimerUntilTheRelease) {
    CreateList(0, "abcdef");
    Press(2);
    EXPECT_EQ(Selected(), "c");
    EXPECT_EQ(GetCapture(), list);
    EXPECT_TRUE(TakeTimer(list, 101));
    Press(3);
    Release();
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_FALSE(TakeTimer(list, 101));
    EXPECT_EQ(host.TakeNotifications(), (Codes{LBN_SETFOCUS, LBN_SELCHANGE, LBN_SELCHANGE}));
}

TEST_F(ListWindowMouse, MessageKeysCount) {
    CreateList(LBS_EXTENDEDSEL, "abcdef");
    Click(0);
    Click(2, MK_CONTROL);
    EXPECT_EQ(Selected(), "a c");
    Click(3, MK_SHIFT);
    Click(1, MK_SHIFT);
    EXPECT_EQ(Selected(), "a c b") << "from c";
}

TEST_F(ListWindowMouse, EmptyListTakesTheFocusAlone) {
    CreateList(0, "");
    SetFocus(host.window());
    Press(0);
    EXPECT_EQ(GetFocus(), list);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_FALSE(TakeTimer(list, 101));
    DoubleClick(0);
    EXPECT_EQ(host.TakeNotifications(), Codes{LBN_SETFOCUS});
}

TEST_F(ListWindowMouse, PressBelowTheRowsSelectsNothing) {
    CreateList(0, "ab");
    Press(3);
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(GetCapture(), list);
    DoubleClick(3);
    EXPECT_EQ(host.TakeNotifications(), Codes{LBN_SETFOCUS});
}

TEST_F(ListWindowMouse, DoubleClickTogglesThenTells) {
    CreateList(0, "ab");
    olbAddChildString(list, 0, "x");
    Click(0);
    host.TakeNotifications();
    DoubleClick(0);
    EXPECT_EQ(QueryOpen(At(0)), 1);
    EXPECT_EQ(host.TakeNotifications(), (Codes{LBN_SELCHANGE, LBN_DBLCLK}));
    DoubleClick(0);
    EXPECT_EQ(QueryOpen(At(0)), 0);
    SetLocked(At(0), true);
    DoubleClick(0);
    EXPECT_EQ(QueryOpen(At(0)), 0);
}

TEST_F(ListWindowMouse, BoxIsWhereItIsDrawn) {
    CreateList(0, "ab");
    olbAddChildString(list, 0, "x");
    olbAddChildStringEx(list, reinterpret_cast<HOLBITEM>(At(0)->firstChild), "y");
    Click(0);
    SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, PointOn(0, 8));
    Release();
    EXPECT_EQ(QueryOpen(At(0)), 0) << "there are no boxes";
    olbEnableMicroBitmaps(list, TRUE);
    const struct {
        int x;
        bool isOn;
    } cases[] = {{2, false}, {3, true}, {14, true}, {15, false}, {100, false}};
    for (const auto& [x, isOn] : cases) {
        const int before = QueryOpen(At(0));
        SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, PointOn(0, x));
        Release();
        EXPECT_EQ(QueryOpen(At(0)) != before, isOn) << x;
    }
    olbOpenItem(list, 0);
    for (const auto& [x, isOn] : cases) {
        const int before = QueryOpen(At(1));
        SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, PointOn(1, x + 20));
        Release();
        EXPECT_EQ(QueryOpen(At(1)) != before, isOn) << x << " on level 1";
    }
}

TEST_F(ListWindowMouse, BoxMovesWithTheRowsSideways) {
    CreateList(0, "ab");
    olbAddChildString(list, 0, "x");
    olbEnableMicroBitmaps(list, TRUE);
    RecordOf<Record>(list)->offset = 5;
    SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, PointOn(0, 10)); // 15 from the row's left
    Release();
    EXPECT_EQ(QueryOpen(At(0)), 0);
    SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, PointOn(0, 9));
    Release();
    EXPECT_EQ(QueryOpen(At(0)), 1);
}

TEST_F(ListWindowMouse, DragFollowsThePointerWhileCaptured) {
    CreateList(LBS_EXTENDEDSEL, "abcdef");
    Drag(2);
    EXPECT_EQ(Selected(), "");
    Press(0);
    Drag(2);
    EXPECT_EQ(Selected(), "a b c");
    Drag(1);
    EXPECT_EQ(Selected(), "a b");
    Release();
    Drag(3);
    EXPECT_EQ(Selected(), "a b");
}

TEST_F(ListWindowMouse, CaptureTakenAwayEndsTheDrag) {
    CreateList(0, "abcdef");
    const HWND other = host.Create("BUTTON", 0, 300, 10, 50, 20, 1);
    Press(1);
    SetCapture(other);
    EXPECT_FALSE(TakeTimer(list, 101));
    Drag(3);
    EXPECT_EQ(Selected(), "b");
    Release();
    EXPECT_EQ(GetCapture(), other) << "which keeps the capture";
    ReleaseCapture();
    Press(1);
    SendMessageA(list, WM_CANCELMODE, 0, 0);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_FALSE(TakeTimer(list, 101));
}

TEST_F(ListWindowMouse, TimerScrollsWhileThePointerIsOutside) {
    CreateList(0, "abcdefghij");
    Press(1);
    vorn::test::MoveMouse(list, 100, 500);
    EXPECT_TRUE(PumpFor(5000, [&] { return Selected() == "j"; })) << Selected();
    EXPECT_EQ(RecordOf<Record>(list)->topIndex, 6u);
    vorn::test::MoveMouse(list, 100, -5);
    EXPECT_TRUE(PumpFor(5000, [&] { return Selected() == "a"; })) << Selected();
    EXPECT_EQ(RecordOf<Record>(list)->topIndex, 0u);
    Release();
}

TEST_F(ListWindowMouse, TimerMessagesAndCallsAreTheSame) {
    CreateList(0, "abcdefghij");
    Press(1);
    SetCursorPos(600, 470);
    SendMessageA(list, WM_TIMER, 101, 0);
    EXPECT_EQ(Selected(), "d");
    lbTimerProc(list, WM_TIMER, 101, 0);
    EXPECT_EQ(Selected(), "e");
    lbTimerProc(list, WM_TIMER, 77, 0);
    SendMessageA(list, WM_TIMER, 77, 0);
    EXPECT_EQ(Selected(), "e");
    Release();
}

TEST_F(ListWindowMouse, TheOtherTimerStartsAgain) {
    CreateList(0, "ab");
    lbTimerProc(list, WM_TIMER, 100, 0);
    EXPECT_TRUE(TakeTimer(list, 100));
}

TEST_F(ListWindowMouse, TimerOfNoListDoesNothing) {
    lbTimerProc(nullptr, WM_TIMER, 101, 0);
    lbTimerProc(host.window(), WM_TIMER, 100, 0);
    EXPECT_FALSE(TakeTimer(host.window(), 100));
    CreateList(0, "ab");
    DestroyWindow(list);
    lbTimerProc(list, WM_TIMER, 101, 0);
}

TEST_F(ListWindowMouse, RightButtonIsPassedOn) {
    CreateList(0, "ab");
    int menus = 0;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        menus += message.message == WM_CONTEXTMENU ? 1 : 0;
        return std::nullopt;
    };
    SendMessageA(list, WM_RBUTTONUP, 0, PointOn(0));
    EXPECT_EQ(menus, 1);
    EXPECT_EQ(Selected(), "");
}

} // namespace
} // namespace vorn::hierlist::test
