// The dial under the mouse: turning, the corner buttons, their timers, the capture.
#include "tests/windows/host/dial_host.h"
#include "tests/windows/support/input.h"

#include <tuple>

namespace {

using vorn::test::DialHost;
using vorn::test::kEast;
using vorn::test::kLeftButton;
using vorn::test::kNorth;
using vorn::test::kRightButton;
using vorn::test::kSouth;
using vorn::test::kWest;
using vorn::test::Message;
using vorn::test::PumpFor;
using vorn::test::PumpMessages;
using vorn::test::Scroll;

using Scrolls = std::vector<Scroll>;

class DialMouse : public DialHost {
protected:
    // A press that lasts. The pointer is there too: from elsewhere the system may tell the dial of
    // it at any time, which takes the press off its button.
    static void Hold(HWND dial, POINT point) {
        vorn::test::MoveMouse(dial, point.x, point.y);
        Press(dial, point);
    }
};

// ---- Turning ----

TEST_F(DialMouse, TurningTellsThePositionUnderThePointer) {
    HWND dial = CreateAt(40);
    Press(dial, kWest);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_THUMBTRACK, 16}})) << "45 of 270 degrees";
    EXPECT_EQ(GetCapture(), dial);
    Move(dial, kNorth);
    Move(dial, kNorth);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_THUMBTRACK, 50}, {SB_THUMBTRACK, 50}}));
    Move(dial, kEast);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_THUMBTRACK, 83}})) << "225 of 270 degrees";
    Release(dial, kSouth);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_THUMBPOSITION, 100}})) << "the dead zone's middle";
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(GetDialPos(dial), 40) << "its owner moves it";
    Move(dial, kEast);
    EXPECT_EQ(TakeScrolls(), Scrolls{});
}

TEST_F(DialMouse, TurningRunsNoTimer) {
    HWND dial = CreateAt(40);
    Press(dial, kWest);
    EXPECT_FALSE(StopsTimer(dial, 1));
    EXPECT_FALSE(StopsTimer(dial, 2));
    Release(dial, kWest);
}

TEST_F(DialMouse, ADoubleClickIsAPress) {
    HWND dial = CreateAt(40);
    SendMessageA(dial, WM_LBUTTONDBLCLK, MK_LBUTTON, vorn::test::At(kNorth));
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_THUMBTRACK, 50}}));
    EXPECT_EQ(GetCapture(), dial);
    Release(dial, kNorth);
    SendMessageA(dial, WM_LBUTTONDBLCLK, MK_LBUTTON, vorn::test::At(kLeftButton));
    Release(dial, kLeftButton);
    EXPECT_EQ(TakeScrolls(),
              (Scrolls{{SB_THUMBPOSITION, 50}, {SB_LINEUP, 40}, {SB_ENDSCROLL, 40}}));
}

TEST_F(DialMouse, PointersFarOutsideCountToo) {
    HWND dial = CreateAt(40);
    Press(dial, kNorth);
    TakeScrolls();
    Move(dial, {-32768, 46});
    Move(dial, {32767, 46});
    Move(dial, {50, -32768});
    EXPECT_EQ(TakeScrolls(),
              (Scrolls{{SB_THUMBTRACK, 16}, {SB_THUMBTRACK, 83}, {SB_THUMBTRACK, 50}}))
        << "coordinates have a sign";
}

TEST_F(DialMouse, FollowsTheClientAreasSize) {
    HWND dial = CreateAt(40);
    SetWindowPos(dial, nullptr, 0, 0, 300, 200, SWP_NOMOVE | SWP_NOZORDER);
    // Centre (50 + 8 + 92, 4 + 92) = (150, 96).
    Press(dial, {60, 96});
    Release(dial, {150, 20});
    Press(dial, {13, 197}); // the left button's last corner
    Release(dial, {13, 197});
    Press(dial, {286, 186}); // the right one's first
    Release(dial, {286, 186});
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_THUMBTRACK, 16},
                                      {SB_THUMBPOSITION, 50},
                                      {SB_LINEUP, 40},
                                      {SB_ENDSCROLL, 40},
                                      {SB_LINEDOWN, 40},
                                      {SB_ENDSCROLL, 40}}));
}

TEST_F(DialMouse, FollowsRangesAndDirection) {
    HWND dial = CreateAt(40);
    SetDialDirection(dial, 0);
    Press(dial, kWest);
    Release(dial, kEast);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_THUMBTRACK, 83}, {SB_THUMBPOSITION, 16}}));
    SetDialRange(dial, -1000, 1000, FALSE);
    SetDialTurnRange(dial, 0, 180, FALSE);
    Press(dial, kEast);
    Release(dial, kNorth);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_THUMBTRACK, 65536 - 1000}, {SB_THUMBPOSITION, 0}}))
        << "16 bits of the position";
}

TEST_F(DialMouse, EmptyRangesMeanTheMinimum) {
    HWND dial = CreateAt(40);
    SetDialTurnRange(dial, 90, 90, TRUE);
    SetDialRange(dial, 7, 50, TRUE);
    Press(dial, kWest);
    Release(dial, kEast);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_THUMBTRACK, 7}, {SB_THUMBPOSITION, 7}}));
    SetDialTurnRange(dial, -45, 225, TRUE);
    SetDialRange(dial, 7, 7, TRUE);
    Press(dial, kWest);
    Release(dial, kEast);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_THUMBTRACK, 7}, {SB_THUMBPOSITION, 7}}));
}

// ---- Corner buttons ----

TEST_F(DialMouse, CornerButtonsStep) {
    const struct {
        LONG direction;
        POINT button;
        int code;
    } cases[] = {{1, kLeftButton, SB_LINEUP},
                 {1, kRightButton, SB_LINEDOWN},
                 {0, kLeftButton, SB_LINEDOWN},
                 {0, kRightButton, SB_LINEUP}};
    for (const auto& [direction, button, code] : cases) {
        HWND dial = CreateAt(40);
        SetDialDirection(dial, direction);
        Press(dial, button);
        EXPECT_EQ(TakeScrolls(), (Scrolls{{code, 40}}));
        EXPECT_EQ(GetCapture(), dial);
        Release(dial, button);
        EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_ENDSCROLL, 40}}));
        EXPECT_EQ(GetCapture(), nullptr);
        EXPECT_EQ(GetDialPos(dial), 40);
        DestroyWindow(dial);
    }
}

TEST_F(DialMouse, CornerButtonsWithoutRoomStillHoldAndEnd) {
    const std::tuple<LONG, POINT> cases[] = {{0, kLeftButton}, {100, kRightButton}};
    for (const auto& [position, button] : cases) {
        HWND dial = CreateAt(position);
        Press(dial, button);
        EXPECT_EQ(TakeScrolls(), Scrolls{});
        EXPECT_TRUE(StopsTimer(dial, 1)) << "the timer runs";
        Release(dial, button);
        EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_ENDSCROLL, static_cast<int>(position)}}));
        DestroyWindow(dial);
    }
}

TEST_F(DialMouse, HoldingAButtonRepeatsAfterASecond) {
    HWND dial = CreateAt(40);
    Hold(dial, kRightButton);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_LINEDOWN, 40}}));
    PumpFor(900);
    EXPECT_EQ(TakeScrolls(), Scrolls{});
    onScroll = [&](HWND) { SetDialPos(dial, GetDialPos(dial) + 1, TRUE); };
    EXPECT_TRUE(PumpFor(3000, [&] { return scrolls.size() >= 4; }));
    scrolls.resize(4);
    EXPECT_EQ(TakeScrolls(),
              (Scrolls{{SB_LINEDOWN, 40}, {SB_LINEDOWN, 41}, {SB_LINEDOWN, 42}, {SB_LINEDOWN, 43}}))
        << "the owner moves it, and the next step knows";
    onScroll = nullptr;
    Release(dial, kRightButton);
    const int position = static_cast<int>(GetDialPos(dial));
    EXPECT_EQ(scrolls.back(), (Scroll{SB_ENDSCROLL, position}));
    TakeScrolls();
    PumpFor(100);
    EXPECT_EQ(TakeScrolls(), Scrolls{}) << "it is over";
}

TEST_F(DialMouse, TheFirstTimerSendsNoStep) {
    HWND dial = CreateAt(40);
    Press(dial, kLeftButton);
    TakeScrolls();
    SendMessageA(dial, WM_TIMER, 1, 0);
    EXPECT_EQ(TakeScrolls(), Scrolls{});
    EXPECT_FALSE(StopsTimer(dial, 1));
    EXPECT_TRUE(StopsTimer(dial, 2)) << "the repeats begin";
    SendMessageA(dial, WM_TIMER, 2, 0);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_LINEUP, 40}}));
}

// How often a held button steps in 400 milliseconds.
std::size_t StepsAtSpeed(HWND dial, std::vector<Scroll>& scrolls, UINT speed) {
    DWORD old = 0;
    SystemParametersInfoA(SPI_GETKEYBOARDSPEED, 0, &old, 0);
    SystemParametersInfoA(SPI_SETKEYBOARDSPEED, speed, nullptr, 0);
    SendMessageA(dial, WM_TIMER, 1, 0);
    scrolls.clear();
    PumpFor(400);
    SystemParametersInfoA(SPI_SETKEYBOARDSPEED, old, nullptr, 0);
    return scrolls.size();
}

TEST_F(DialMouse, RepeatsEveryAsManyMillisecondsAsTheKeyboardSpeedSays) {
    HWND dial = CreateAt(40);
    Hold(dial, kLeftButton);
    const std::size_t at31 = StepsAtSpeed(dial, scrolls, 31);
    EXPECT_GE(at31, 5u);
    EXPECT_LE(at31, 14u) << "400 / 31 and one more";
    const std::size_t at12 = StepsAtSpeed(dial, scrolls, 12);
    EXPECT_GT(at12, 14u) << "up to 400 / 12 = 33";
    Release(dial, kLeftButton);
}

TEST_F(DialMouse, LeavingTheButtonPausesTheRepeats) {
    for (const POINT button : {kLeftButton, kRightButton}) {
        HWND dial = CreateAt(40);
        Press(dial, button);
        Move(dial, kNorth);
        TakeScrolls();
        SendMessageA(dial, WM_TIMER, 2, 0);
        EXPECT_EQ(TakeScrolls(), Scrolls{});
        Move(dial, button);
        SendMessageA(dial, WM_TIMER, 2, 0);
        EXPECT_EQ(TakeScrolls().size(), 1u);
        Release(dial, button);
        DestroyWindow(dial);
    }
}

TEST_F(DialMouse, RepeatsStopAtTheEndOfTheRange) {
    HWND dial = CreateAt(2);
    onScroll = [&](HWND) { SetDialPos(dial, GetDialPos(dial) - 1, FALSE); };
    Press(dial, kLeftButton);
    for (int tick = 0; tick < 5; ++tick) {
        SendMessageA(dial, WM_TIMER, 2, 0);
    }
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_LINEUP, 2}, {SB_LINEUP, 1}}));
}

TEST_F(DialMouse, AReleaseWithoutAPressEndsTheScroll) {
    HWND dial = CreateAt(7);
    Release(dial, kNorth);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_ENDSCROLL, 7}}));
    Press(dial, kWest);
    Release(dial, kWest);
    TakeScrolls();
    Release(dial, kNorth);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_THUMBPOSITION, 50}})) << "as the last gesture did";
}

// ---- The message ----

TEST_F(DialMouse, ScrollMessagesComeFromTheDial) {
    HWND dial = CreateAt(0);
    SetDialRange(dial, -1, 100, FALSE);
    Message received{};
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_VSCROLL) {
            received = message;
        }
        return std::nullopt;
    };
    SetDialPos(dial, -1, FALSE);
    Press(dial, {21, 75}); // lower left: the start
    EXPECT_EQ(received.message, 277u);
    EXPECT_EQ(received.wParam, WPARAM{0xFFFF0005}) << "the position has 16 bits";
    EXPECT_EQ(received.lParam, reinterpret_cast<LPARAM>(dial));
}

int ownScrolls = 0;
WNDPROC dialProcedure = nullptr;

LRESULT CALLBACK CountScrolls(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_VSCROLL) {
        EXPECT_EQ(reinterpret_cast<HWND>(lParam), window);
        ++ownScrolls;
        return 0;
    }
    return CallWindowProcA(dialProcedure, window, message, wParam, lParam);
}

TEST_F(DialMouse, TheWindowWordChoosesTheReceiver) {
    HWND dial = CreateAt(40);
    dialProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(dial, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountScrolls)));
    for (const WORD word : {WORD{1}, WORD{0x8000}, WORD{0xFFFF}}) {
        ownScrolls = 0;
        SetWindowWord(dial, 10, word);
        Press(dial, kWest);
        EXPECT_EQ(ownScrolls, 1) << word;
        EXPECT_EQ(TakeScrolls(), Scrolls{});
        SetWindowWord(dial, 10, 0);
        Release(dial, kWest);
        EXPECT_EQ(ownScrolls, 1) << "the word counts as the message is sent";
        EXPECT_EQ(TakeScrolls().size(), 1u);
    }
}

TEST_F(DialMouse, AnUnhandledMessageToTheDialItselfIsHarmless) {
    HWND dial = CreateAt(40);
    SetWindowWord(dial, 10, 1);
    Press(dial, kWest);
    Release(dial, kWest);
    EXPECT_EQ(GetDialPos(dial), 40);
}

TEST_F(DialMouse, WorksWithoutAParent) {
    HWND dial = CreateWindowExA(0, VORN_DIAL_CLASS, "", WS_POPUP | WS_VISIBLE, 50, 50, 100, 100,
                                nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    Press(dial, kWest);
    Release(dial, kWest);
    SendMessageA(dial, WM_KEYDOWN, VK_TAB, 0);
    EXPECT_TRUE(IsWindow(dial));
    DestroyWindow(dial);
}

// ---- Focus ----

TEST_F(DialMouse, APressTakesTheFocusOfATabStop) {
    HWND other = host.Create("EDIT", WS_TABSTOP, 200, 10, 50, 20);
    HWND tabStop = CreateAt(40, WS_TABSTOP);
    HWND none = CreateAt(40);
    for (const POINT point : {kLeftButton, kRightButton, kNorth}) {
        SetFocus(other);
        ASSERT_EQ(GetFocus(), other);
        Press(none, point);
        Release(none, point);
        EXPECT_EQ(GetFocus(), other);
        HWND during = nullptr;
        onScroll = [&](HWND) { during = GetFocus(); };
        Press(tabStop, point);
        EXPECT_EQ(during, other) << "last of all";
        EXPECT_EQ(GetFocus(), tabStop);
        EXPECT_EQ(GetCapture(), tabStop);
        onScroll = nullptr;
        Release(tabStop, point);
    }
}

// ---- The capture ----

void ExpectIdle(HWND dial) {
    EXPECT_NE(GetCapture(), dial);
    EXPECT_FALSE(KillTimer(dial, 1));
    EXPECT_FALSE(KillTimer(dial, 2));
    for (const WPARAM timer : {1, 2}) {
        SendMessageA(dial, WM_TIMER, timer, 0); // under way already
    }
    EXPECT_FALSE(KillTimer(dial, 1));
    EXPECT_FALSE(KillTimer(dial, 2));
}

TEST_F(DialMouse, LosingTheCaptureEndsTheGestureSilently) {
    for (const POINT point : {kLeftButton, kRightButton, kNorth}) {
        HWND dial = CreateAt(40);
        Press(dial, point);
        SendMessageA(dial, WM_TIMER, 1, 0);
        TakeScrolls();
        SetCapture(host.window());
        ExpectIdle(dial);
        Move(dial, kWest);
        Move(dial, point);
        SendMessageA(dial, WM_TIMER, 2, 0);
        EXPECT_EQ(TakeScrolls(), Scrolls{});
        ReleaseCapture();
        DestroyWindow(dial);
    }
}

TEST_F(DialMouse, LosingTheCaptureInsideTheFirstStepLeavesNoTimer) {
    for (const POINT button : {kLeftButton, kRightButton}) {
        HWND dial = CreateAt(40);
        onScroll = [&](HWND) { SetCapture(host.window()); };
        Press(dial, button);
        onScroll = nullptr;
        ExpectIdle(dial);
        ReleaseCapture();
        DestroyWindow(dial);
    }
}

void CALLBACK CloseMessageBox(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND box = FindWindowA("#32770", "dial test");
    if (box != nullptr) {
        KillTimer(nullptr, timer);
        PostMessageA(box, WM_COMMAND, IDOK, 0);
    }
}

TEST_F(DialMouse, AMessageBoxInsideAStepEndsTheGesture) {
    for (const POINT button : {kLeftButton, kRightButton, kNorth}) {
        HWND dial = CreateAt(40);
        int boxes = 0;
        onScroll = [&](HWND) {
            if (++boxes == 1) {
                SetTimer(nullptr, 0, 20, CloseMessageBox);
                EXPECT_EQ(MessageBoxA(host.window(), "stepped", "dial test", MB_OK), IDOK);
            }
        };
        Press(dial, button);
        EXPECT_EQ(boxes, 1);
        ExpectIdle(dial);
        PumpFor(50);
        EXPECT_EQ(boxes, 1) << "nothing clicks on";
        onScroll = nullptr;
        DestroyWindow(dial);
    }
}

TEST_F(DialMouse, DisablingTheDialEndsTheGesture) {
    HWND dial = CreateAt(40);
    Press(dial, kLeftButton);
    SendMessageA(dial, WM_TIMER, 1, 0);
    EnableWindow(dial, FALSE);
    ExpectIdle(dial);
    EnableWindow(dial, TRUE);
}

TEST_F(DialMouse, ASecondPressIsAPressAgain) {
    HWND dial = CreateAt(40);
    Press(dial, kLeftButton);
    Press(dial, kLeftButton);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_LINEUP, 40}, {SB_LINEUP, 40}}));
    EXPECT_EQ(GetCapture(), dial);
    EXPECT_TRUE(StopsTimer(dial, 1)) << "its own capture took nothing from it";
    Release(dial, kLeftButton);
    ExpectIdle(dial);
}

TEST_F(DialMouse, ReleasedInsideTheFirstStepItLeavesNoTimer) {
    HWND dial = CreateAt(40);
    bool released = false;
    onScroll = [&](HWND) {
        if (!released) {
            released = true;
            Release(dial, kLeftButton);
        }
    };
    Press(dial, kLeftButton);
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_LINEUP, 40}, {SB_ENDSCROLL, 40}}));
    ExpectIdle(dial);
}

// ---- Hosts that destroy the dial ----

// Every way to a scroll message, after a preparation whose messages are left alone.
struct Path {
    const char* name;
    std::function<void(HWND)> prepare;
    std::function<void(HWND)> run;
};

void Click(HWND dial, UINT message, POINT point) {
    SendMessageA(dial, message, MK_LBUTTON, vorn::test::At(point));
}

std::vector<Path> Paths() {
    std::vector<Path> paths;
    const auto nothing = [](HWND) {};
    for (const POINT point : {kLeftButton, kRightButton, kNorth}) {
        const auto press = [point](HWND dial) { Click(dial, WM_LBUTTONDOWN, point); };
        paths.push_back({"press", nothing, press});
        paths.push_back({"double click", nothing,
                         [point](HWND dial) { Click(dial, WM_LBUTTONDBLCLK, point); }});
        paths.push_back(
            {"release", press, [point](HWND dial) { Click(dial, WM_LBUTTONUP, point); }});
    }
    paths.push_back({"move", [](HWND dial) { Click(dial, WM_LBUTTONDOWN, kNorth); },
                     [](HWND dial) { Click(dial, WM_MOUSEMOVE, kEast); }});
    for (const POINT point : {kLeftButton, kRightButton}) {
        const auto hold = [point](HWND dial) {
            vorn::test::MoveMouse(dial, point.x, point.y);
            Click(dial, WM_LBUTTONDOWN, point);
            SendMessageA(dial, WM_TIMER, 1, 0);
        };
        paths.push_back({"timer", hold, [](HWND dial) { SendMessageA(dial, WM_TIMER, 2, 0); }});
        paths.push_back({"timer as it comes", hold,
                         [](HWND dial) { PumpFor(1000, [dial] { return IsWindow(dial) == 0; }); }});
    }
    for (const WPARAM key : {33, 34, 35, 36, 37, 38, 39, 40}) {
        paths.push_back(
            {"key", nothing, [key](HWND dial) { SendMessageA(dial, WM_KEYDOWN, key, 0); }});
    }
    for (const WPARAM sign : {'+', '-'}) {
        paths.push_back(
            {"sign", nothing, [sign](HWND dial) { SendMessageA(dial, WM_CHAR, sign, 0); }});
    }
    return paths;
}

TEST_F(DialMouse, MayBeDestroyedInsideEachScrollMessage) {
    for (const Path& path : Paths()) {
        HWND dial = CreateAt(40, WS_TABSTOP);
        onScroll = nullptr;
        path.prepare(dial);
        scrolls.clear();
        onScroll = [](HWND window) { DestroyWindow(window); };
        path.run(dial);
        EXPECT_FALSE(IsWindow(dial)) << path.name;
        EXPECT_EQ(scrolls.size(), 1u) << path.name << ": nothing comes from the dead";
        EXPECT_EQ(GetCapture(), nullptr) << path.name;
        EXPECT_EQ(SetDialPos(dial, 1, TRUE), 0) << path.name;
    }
    PumpMessages();
}

TEST_F(DialMouse, MayBeDestroyedWithItsParentInsideAStep) {
    HWND dial = CreateAt(40, WS_TABSTOP);
    onScroll = [&](HWND) { DestroyWindow(host.window()); };
    Press(dial, kLeftButton);
    EXPECT_FALSE(IsWindow(dial));
    PumpMessages();
}

TEST_F(DialMouse, MayBeDestroyedAsItTakesTheFocus) {
    HWND edit = host.Create("EDIT", WS_TABSTOP, 200, 10, 50, 20);
    HWND dial = CreateAt(40, WS_TABSTOP);
    SetFocus(edit);
    const auto record = host.answer;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_COMMAND && HIWORD(message.wParam) == EN_KILLFOCUS) {
            DestroyWindow(dial);
        }
        return record(message);
    };
    Press(dial, kLeftButton);
    EXPECT_FALSE(IsWindow(dial));
    EXPECT_EQ(GetCapture(), nullptr);
}

} // namespace
