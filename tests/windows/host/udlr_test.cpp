// The spin pad as a host meets it: directions, timers, capture, size, failures.
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/host_window.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/objects.h"
#include "tests/windows/support/spy.h"

#include <gtest/gtest.h>
#include <vector>
#include <vorn32.h>

namespace {

using vorn::test::HostWindow;
using vorn::test::Message;
using vorn::test::PumpFor;
using vorn::test::PumpMessages;
using vorn::test::SendMouse;
using vorn::test::TakeTimer;

using Codes = std::vector<int>;

constexpr UINT_PTR kDelay = 1;
constexpr UINT_PTR kRepeat = 2;

class Udlr : public testing::Test {
protected:
    HostWindow host;

    HWND Create(DWORD style = 0, int width = 29, int height = 29) {
        return host.Create(VORN_UDLR_CLASS, style, 10, 20, width, height, 77);
    }
    HWND CreatePressed() {
        HWND pad = Create();
        SendMouse(pad, WM_LBUTTONDOWN, 14, 3);
        EXPECT_EQ(host.TakeNotifications(), Codes{VUDN_UP});
        return pad;
    }
    // Makes the host destroy the pad in the notification with this code.
    void DestroyOn(int code) {
        host.answer = [code](const Message& message) -> std::optional<LRESULT> {
            if (message.message == WM_COMMAND && HIWORD(message.wParam) == code) {
                DestroyWindow(reinterpret_cast<HWND>(message.lParam));
            }
            return std::nullopt;
        };
    }
};

void ExpectPlace(HWND pad, int x, int y, int width, int height) {
    RECT rect{};
    GetWindowRect(pad, &rect);
    EXPECT_EQ(rect.left, x);
    EXPECT_EQ(rect.top, y);
    EXPECT_EQ(rect.right - rect.left, width);
    EXPECT_EQ(rect.bottom - rect.top, height);
}

TEST_F(Udlr, HasItsOwnSize) {
    const struct {
        int width;
        int height;
    } sizes[] = {{29, 29}, {100, 50}, {0, 0}, {1, 300}, {28, 30}};
    for (const auto& size : sizes) {
        HWND pad = Create(0, size.width, size.height);
        ExpectPlace(pad, 10, 20, 29, 29);
        SetWindowPos(pad, nullptr, 40, 60, 200, 10, SWP_NOZORDER);
        ExpectPlace(pad, 40, 60, 29, 29);
        MoveWindow(pad, 30, 30, 5, 5, TRUE);
        ExpectPlace(pad, 30, 30, 29, 29);
        DestroyWindow(pad);
    }
}

TEST_F(Udlr, TakingItsSizeKeepsItsPlaceAmongTheOthers) {
    HWND first = host.Create("STATIC", 0, 10, 20, 29, 29);
    HWND pad = Create();
    HWND last = host.Create("STATIC", 0, 10, 20, 29, 29);
    ASSERT_EQ(GetWindow(first, GW_HWNDNEXT), pad);
    vorn::test::Spy spy(pad);
    std::vector<UINT> corrections;
    spy.before = [&](const Message& message) {
        if (message.message == WM_WINDOWPOSCHANGING) {
            const auto* change = reinterpret_cast<const WINDOWPOS*>(message.lParam);
            if (change->cx == 29 && change->cy == 29) {
                corrections.push_back(change->flags);
            }
        }
    };
    SetWindowPos(pad, nullptr, 50, 60, 100, 10, SWP_NOZORDER);
    ASSERT_EQ(corrections.size(), 1u);
    EXPECT_EQ(corrections[0] & (SWP_NOMOVE | SWP_NOZORDER | SWP_NOSIZE),
              UINT{SWP_NOMOVE | SWP_NOZORDER});
    ExpectPlace(pad, 50, 60, 29, 29);
    EXPECT_EQ(GetWindow(pad, GW_HWNDPREV), first);
    EXPECT_EQ(GetWindow(pad, GW_HWNDNEXT), last);
}

TEST_F(Udlr, HasRoomForItsBorder) {
    HWND pad = Create(WS_BORDER, 100, 50);
    const int width = 29 + 2 * GetSystemMetrics(SM_CXBORDER);
    const int height = 29 + 2 * GetSystemMetrics(SM_CYBORDER);
    ExpectPlace(pad, 10, 20, width, height);
    RECT client{};
    GetClientRect(pad, &client);
    EXPECT_EQ(client.right, 29);
    EXPECT_EQ(client.bottom, 29);
    MoveWindow(pad, 10, 20, 29, 29, TRUE);
    ExpectPlace(pad, 10, 20, width, height);
}

TEST_F(Udlr, TakesNoTextAtCreation) {
    HWND pad = CreateWindowExA(0, VORN_UDLR_CLASS, "text", WS_CHILD, 0, 0, 29, 29, host.window(),
                               nullptr, GetModuleHandleA(nullptr), nullptr);
    ASSERT_NE(pad, nullptr);
    EXPECT_EQ(GetWindowTextLengthA(pad), 0);
}

TEST_F(Udlr, TellsADirectionAtOnce) {
    const struct {
        int x;
        int y;
        int code;
    } parts[] = {{14, 3, 100}, {24, 14, 101}, {14, 24, 102}, {3, 14, 103}};
    HWND pad = Create();
    for (const auto& part : parts) {
        Message received{};
        host.answer = [&](const Message& message) -> std::optional<LRESULT> {
            if (message.message == WM_COMMAND) {
                received = message;
            }
            return std::nullopt;
        };
        SendMouse(pad, WM_LBUTTONDOWN, part.x, part.y);
        EXPECT_EQ(received.wParam, MAKEWPARAM(77, part.code));
        EXPECT_EQ(reinterpret_cast<HWND>(received.lParam), pad);
        SendMouse(pad, WM_LBUTTONUP, part.x, part.y);
        EXPECT_EQ(host.TakeNotifications(), Codes{part.code}) << "nothing is told at the release";
    }
}

TEST_F(Udlr, ASecondPressOfADoubleClickIsNone) {
    HWND pad = Create();
    SendMouse(pad, WM_LBUTTONDBLCLK, 14, 3);
    EXPECT_EQ(host.TakeNotifications(), Codes{});
    EXPECT_NE(GetCapture(), pad);
}

TEST_F(Udlr, HoldsTheCaptureFromPressToRelease) {
    HWND pad = CreatePressed();
    EXPECT_EQ(GetCapture(), pad);
    SendMouse(pad, WM_LBUTTONUP, 14, 3);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(Udlr, FollowsThePointerWhileItIsHeld) {
    HWND pad = Create();
    SendMouse(pad, WM_MOUSEMOVE, 14, 3);
    EXPECT_EQ(host.TakeNotifications(), Codes{}) << "not pressed";
    SendMouse(pad, WM_LBUTTONDOWN, 10, 10);
    EXPECT_EQ(host.TakeNotifications(), Codes{}) << "on a diagonal";
    SendMouse(pad, WM_MOUSEMOVE, 3, 14);
    SendMouse(pad, WM_MOUSEMOVE, 4, 14);
    EXPECT_EQ(host.TakeNotifications(), Codes{VUDN_LEFT}) << "told once";
    SendMouse(pad, WM_MOUSEMOVE, 24, 14);
    SendMouse(pad, WM_MOUSEMOVE, 14, 24);
    SendMouse(pad, WM_MOUSEMOVE, 14, 3);
    EXPECT_EQ(host.TakeNotifications(), (Codes{VUDN_RIGHT, VUDN_DOWN, VUDN_UP}));
    SendMouse(pad, WM_MOUSEMOVE, 14, -3);
    EXPECT_EQ(host.TakeNotifications(), Codes{});
    EXPECT_EQ(GetCapture(), pad) << "outside too";
    SendMouse(pad, WM_MOUSEMOVE, 14, 3);
    EXPECT_EQ(host.TakeNotifications(), Codes{VUDN_UP});
    SendMouse(pad, WM_LBUTTONUP, 14, 3);
    SendMouse(pad, WM_MOUSEMOVE, 3, 14);
    EXPECT_EQ(host.TakeNotifications(), Codes{}) << "released";
}

TEST_F(Udlr, StartsTheDelayAtThePress) {
    HWND pad = CreatePressed();
    EXPECT_TRUE(TakeTimer(pad, kDelay));
    EXPECT_FALSE(TakeTimer(pad, kRepeat));
    SendMouse(pad, WM_LBUTTONDOWN, 10, 10);
    EXPECT_TRUE(TakeTimer(pad, kDelay)) << "on a diagonal too";
}

TEST_F(Udlr, TheFirstRepeatComesAsTheDelayEnds) {
    HWND pad = CreatePressed();
    SendMessageA(pad, WM_TIMER, 12345, 0); // whatever the identifier
    EXPECT_EQ(host.TakeNotifications(), Codes{VUDN_UP});
    EXPECT_FALSE(TakeTimer(pad, kDelay));
    EXPECT_TRUE(TakeTimer(pad, kRepeat));
    SendMessageA(pad, WM_TIMER, kRepeat, 0);
    SendMessageA(pad, WM_TIMER, kRepeat, 0);
    EXPECT_EQ(host.TakeNotifications(), (Codes{VUDN_UP, VUDN_UP}));
}

TEST_F(Udlr, RepeatsNothingBesideTheParts) {
    HWND pad = CreatePressed();
    SendMouse(pad, WM_MOUSEMOVE, 100, 3);
    SendMessageA(pad, WM_TIMER, kDelay, 0);
    SendMessageA(pad, WM_TIMER, kRepeat, 0);
    EXPECT_EQ(host.TakeNotifications(), Codes{});
    SendMouse(pad, WM_MOUSEMOVE, 14, 24);
    SendMessageA(pad, WM_TIMER, kRepeat, 0);
    EXPECT_EQ(host.TakeNotifications(), (Codes{VUDN_DOWN, VUDN_DOWN}));
}

TEST_F(Udlr, StopsItsTimersAtTheRelease) {
    HWND pad = CreatePressed();
    SendMouse(pad, WM_LBUTTONUP, 14, 3);
    EXPECT_FALSE(TakeTimer(pad, kDelay));
    SendMouse(pad, WM_LBUTTONDOWN, 14, 3);
    SendMessageA(pad, WM_TIMER, kDelay, 0);
    SendMouse(pad, WM_LBUTTONUP, 14, 3);
    EXPECT_FALSE(TakeTimer(pad, kRepeat));
    host.TakeNotifications();
    SendMessageA(pad, WM_TIMER, kRepeat, 0);
    EXPECT_EQ(host.TakeNotifications(), Codes{});
}

TEST_F(Udlr, ASecondPressWhileRepeatingStartsTheDelayBesideTheRepeat) {
    HWND pad = CreatePressed();
    SendMessageA(pad, WM_TIMER, kDelay, 0);
    SendMouse(pad, WM_LBUTTONDOWN, 3, 14);
    EXPECT_EQ(host.TakeNotifications(), (Codes{VUDN_UP, VUDN_LEFT}));
    EXPECT_TRUE(TakeTimer(pad, kDelay));
    EXPECT_TRUE(TakeTimer(pad, kRepeat));
}

TEST_F(Udlr, RepeatsByTheClock) {
    const DWORD start = GetTickCount();
    HWND pad = CreatePressed();
    Codes codes;
    const auto hasComeAgain = [&] {
        codes = host.TakeNotifications();
        return !codes.empty();
    };
    ASSERT_TRUE(PumpFor(5000, hasComeAgain));
    EXPECT_GE(GetTickCount() - start, 480u) << "half a second, by a coarse clock";
    EXPECT_EQ(codes[0], VUDN_UP);
    ASSERT_TRUE(PumpFor(5000, hasComeAgain)) << "again, at the keyboard's rate";
    SendMouse(pad, WM_LBUTTONUP, 14, 3);
    EXPECT_FALSE(PumpFor(200, hasComeAgain));
}

TEST_F(Udlr, RepeatsAtTheKeyboardsSpeedSettingInMilliseconds) {
    DWORD old = 0;
    SystemParametersInfoA(SPI_GETKEYBOARDSPEED, 0, &old, 0);
    SystemParametersInfoA(SPI_SETKEYBOARDSPEED, 31, nullptr, 0);
    HWND pad = CreatePressed();
    SendMessageA(pad, WM_TIMER, kDelay, 0);
    host.TakeNotifications();
    const DWORD start = GetTickCount();
    std::size_t count = 0;
    ASSERT_TRUE(PumpFor(20000, [&] { return (count += host.TakeNotifications().size()) >= 20; }));
    const DWORD elapsed = GetTickCount() - start;
    EXPECT_GE(elapsed, 20u * 31 - 60);
    SendMouse(pad, WM_LBUTTONUP, 14, 3);
    SystemParametersInfoA(SPI_SETKEYBOARDSPEED, old, nullptr, 0);
}

TEST_F(Udlr, GoesOnWhenItIsDisabled) {
    HWND pad = CreatePressed();
    SendMessageA(pad, WM_TIMER, kDelay, 0);
    EnableWindow(pad, FALSE);
    host.TakeNotifications();
    EXPECT_NE(GetCapture(), pad) << "the system's doing";
    SendMessageA(pad, WM_TIMER, kRepeat, 0);
    EXPECT_EQ(host.TakeNotifications(), Codes{VUDN_UP});
    EXPECT_TRUE(TakeTimer(pad, kRepeat));
    SendMouse(pad, WM_MOUSEMOVE, 3, 14);
    SendMouse(pad, WM_LBUTTONUP, 3, 14);
    SendMouse(pad, WM_LBUTTONDOWN, 24, 14);
    EXPECT_EQ(host.TakeNotifications(), (Codes{VUDN_LEFT, VUDN_RIGHT}))
        << "what comes is answered as ever";
}

TEST_F(Udlr, EndsWhenAnotherWindowTakesTheCaptureAndTheButtonIsUp) {
    HWND pad = CreatePressed();
    SendMessageA(pad, WM_TIMER, kDelay, 0);
    host.TakeNotifications();
    SetCapture(host.window());
    EXPECT_FALSE(TakeTimer(pad, kRepeat));
    SendMessageA(pad, WM_TIMER, kRepeat, 0);
    SendMouse(pad, WM_MOUSEMOVE, 3, 14);
    EXPECT_EQ(host.TakeNotifications(), Codes{});
    EXPECT_EQ(GetCapture(), host.window()) << "the taker keeps it";
    ReleaseCapture();
}

TEST_F(Udlr, WorksByTheMouseItself) {
    HWND pad = Create();
    vorn::test::MoveMouse(pad, 14, 3);
    vorn::test::PressMouse();
    ASSERT_TRUE(PumpFor(2000, [&] { return GetCapture() == pad; }));
    vorn::test::MoveMouse(pad, 3, 14);
    PumpFor(2000, [&] { return false; });
    const Codes codes = host.TakeNotifications();
    ASSERT_GE(codes.size(), 3u);
    EXPECT_EQ(codes[0], VUDN_UP);
    EXPECT_EQ(codes[1], VUDN_LEFT);
    EXPECT_EQ(codes.back(), VUDN_LEFT);
    vorn::test::ReleaseMouse();
    EXPECT_TRUE(PumpFor(2000, [&] { return GetCapture() == nullptr; }));
    EXPECT_FALSE(TakeTimer(pad, kDelay));
    EXPECT_FALSE(TakeTimer(pad, kRepeat));
}

TEST_F(Udlr, WithoutTheCaptureItSeesForItselfWhetherTheButtonIsHeld) {
    HWND pad = Create();
    vorn::test::MoveMouse(pad, 14, 3);
    vorn::test::PressMouse();
    ASSERT_TRUE(PumpFor(2000, [&] { return GetCapture() == pad; }));
    SetCapture(host.window());
    host.TakeNotifications();
    SendMessageA(pad, WM_TIMER, kDelay, 0);
    EXPECT_EQ(host.TakeNotifications(), Codes{VUDN_UP}) << "still held";
    vorn::test::ReleaseMouse();
    host.TakeNotifications();
    SendMessageA(pad, WM_TIMER, kRepeat, 0);
    EXPECT_EQ(host.TakeNotifications(), Codes{});
    EXPECT_FALSE(TakeTimer(pad, kRepeat));
    ReleaseCapture();
}

TEST_F(Udlr, BearsAHostThatDestroysItInANotification) {
    for (int round = 0; round < 20; ++round) {
        HWND pad = Create();
        DestroyOn(VUDN_UP);
        SendMouse(pad, WM_LBUTTONDOWN, 14, 3);
        EXPECT_FALSE(IsWindow(pad)) << "by a press";

        pad = Create();
        SendMouse(pad, WM_LBUTTONDOWN, 3, 14);
        SendMouse(pad, WM_MOUSEMOVE, 14, 3);
        EXPECT_FALSE(IsWindow(pad)) << "by a move";
        host.TakeNotifications();

        for (const UINT_PTR timer : {kDelay, kRepeat}) {
            DestroyOn(0);
            pad = CreatePressed();
            if (timer == kRepeat) {
                SendMessageA(pad, WM_TIMER, kDelay, 0);
            }
            DestroyOn(VUDN_UP);
            SendMessageA(pad, WM_TIMER, timer, 0);
            EXPECT_FALSE(IsWindow(pad)) << "by a timer";
            host.TakeNotifications();
        }
    }
}

// A host that shows a message in the notification: the release comes before the press is done.
void CALLBACK CloseToldBox(HWND, UINT, UINT_PTR, DWORD) {
    HWND box = FindWindowA("#32770", "Told");
    if (box != nullptr) {
        PostMessageA(box, WM_COMMAND, IDCANCEL, 0);
    }
}

// As a message box takes the capture and is closed by a release that the pad does not see.
TEST_F(Udlr, IsNotHeldAnyMoreAfterAMessageBoxInItsNotification) {
    HWND pad = Create();
    int told = 0;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_COMMAND) {
            ++told;
            SetTimer(host.window(), 1, 20, CloseToldBox);
            MessageBoxA(host.window(), "", "Told", MB_OK);
            KillTimer(host.window(), 1);
        }
        return std::nullopt;
    };
    SendMouse(pad, WM_LBUTTONDOWN, 14, 3);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(GetCapture(), nullptr);
    PumpFor(900, [&] { return told > 1; });
    EXPECT_EQ(told, 1) << "the first repeat would come after half a second";
    EXPECT_FALSE(TakeTimer(pad, kDelay));
    EXPECT_FALSE(TakeTimer(pad, kRepeat));
    host.answer = nullptr;
}

TEST_F(Udlr, StartsNoTimerForAPressThatEndedInItsNotification) {
    HWND pad = Create();
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_COMMAND) {
            SendMouse(pad, WM_LBUTTONUP, 14, 3);
        }
        return std::nullopt;
    };
    SendMouse(pad, WM_LBUTTONDOWN, 14, 3);
    EXPECT_FALSE(TakeTimer(pad, kDelay));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(Udlr, WorksInAClassOfTheHostsOwn) {
    WNDCLASSA ours{};
    GetClassInfoA(nullptr, VORN_UDLR_CLASS, &ours);
    EXPECT_GE(ours.cbWndExtra, 10);
    ours.lpszClassName = "HostsOwnPad";
    ours.hInstance = GetModuleHandleA(nullptr);
    ours.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
    ASSERT_NE(RegisterClassA(&ours), 0);
    HWND pad = host.Create("HostsOwnPad", 0, 0, 0, 100, 20);
    ASSERT_NE(pad, nullptr);
    SendMouse(pad, WM_LBUTTONDOWN, 14, 24);
    EXPECT_EQ(host.TakeNotifications(), Codes{VUDN_DOWN});
    DestroyWindow(pad);
    EXPECT_TRUE(UnregisterClassA("HostsOwnPad", GetModuleHandleA(nullptr)));
}

TEST_F(Udlr, ASecondCreationMessageChangesNothing) {
    HWND pad = CreatePressed();
    CREATESTRUCTA create{};
    EXPECT_EQ(SendMessageA(pad, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&create)), 0);
    SendMessageA(pad, WM_TIMER, kDelay, 0);
    EXPECT_EQ(host.TakeNotifications(), Codes{VUDN_UP}) << "still pressed";
}

TEST_F(Udlr, LivesOnWithoutItsRecord) {
    HWND pad = Create();
    SendMessageA(pad, WM_NCDESTROY, 0, 0);
    SendMouse(pad, WM_LBUTTONDOWN, 14, 3);
    SendMouse(pad, WM_MOUSEMOVE, 3, 14);
    SendMessageA(pad, WM_TIMER, kDelay, 0);
    EnableWindow(pad, FALSE);
    SendMouse(pad, WM_LBUTTONUP, 14, 3);
    InvalidateRect(pad, nullptr, TRUE);
    UpdateWindow(pad);
    EXPECT_FALSE(GetUpdateRect(pad, nullptr, FALSE));
    EXPECT_EQ(host.TakeNotifications(), Codes{});
}

TEST_F(Udlr, LeavesNoObjectsBehind) {
    EXPECT_EQ(vorn::test::ObjectsLeftBy([&] {
                  HWND pad = Create();
                  SendMouse(pad, WM_LBUTTONDOWN, 14, 3);
                  SendMessageA(pad, WM_TIMER, kDelay, 0);
                  UpdateWindow(pad);
                  DestroyWindow(pad);
              }),
              "");
}

TEST_F(Udlr, BearsRandomMessages) {
    vorn::test::SendRandomMessages([&] { return Create(WS_BORDER); }, 20240901, 20000);
}

} // namespace
