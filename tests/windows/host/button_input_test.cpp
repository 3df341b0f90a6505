// How the picture button answers mouse, keyboard and timers, and what it tells its parent.
#include "tests/windows/support/button_host.h"
#include "tests/windows/support/spy.h"

namespace {

using vorn::test::Codes;
using vorn::test::Message;
using vorn::test::MoveMouse;
using vorn::test::PressMouse;
using vorn::test::PumpFor;
using vorn::test::ReleaseMouse;
using vorn::test::SendMouse;
using vorn::test::TakeTimer;

constexpr UINT_PTR kDelay = 1;
constexpr UINT_PTR kRepeat = 2;

class ButtonInput : public vorn::test::ButtonTest {};

TEST_F(ButtonInput, ClicksAtTheRelease) {
    HWND button = CreateFocused(VBTS_NOTIFY);
    EXPECT_EQ(Press(button), Codes{VBTN_DOWN});
    EXPECT_EQ(GetCapture(), button);
    EXPECT_EQ(btnGetState(button), 12u);
    EXPECT_EQ(Release(button), (Codes{VBTN_UP, VBTN_CLICKED}));
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(btnGetState(button), 8u);
}

TEST_F(ButtonInput, RepaintsWhenItsLookChangesAndOnlyThen) {
    HWND button = CreateFocused(0);
    UpdateWindow(button);
    vorn::test::Spy spy(button);
    const auto paints = [&] { return spy.Received(WM_PAINT).size(); };
    Press(button);
    EXPECT_EQ(paints(), 1u);
    Move(button, 51);
    Tick(button, kRepeat);
    EXPECT_EQ(paints(), 1u) << "still down";
    Move(button, -1);
    EXPECT_EQ(paints(), 2u);
    Move(button, -2);
    Release(button, -2);
    EXPECT_EQ(paints(), 2u) << "still up";
}

TEST_F(ButtonInput, TellsOnlyClicksUnlessAskedForMore) {
    HWND button = Create();
    EXPECT_EQ(Press(button), Codes{});
    EXPECT_EQ(Release(button), Codes{VBTN_CLICKED});
    EXPECT_EQ(Told([&] { EnableWindow(button, FALSE); }), Codes{});
}

TEST_F(ButtonInput, SaysWhoItIs) {
    HWND button = Create();
    Message received{};
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_COMMAND) {
            received = message;
        }
        return std::nullopt;
    };
    Press(button);
    Release(button);
    EXPECT_EQ(received.wParam, MAKEWPARAM(77, 0));
    EXPECT_EQ(reinterpret_cast<HWND>(received.lParam), button);
}

TEST_F(ButtonInput, TakesTheFocusAtAPressEvenOutside) {
    HWND button = Create(VBTS_NOTIFY);
    EXPECT_EQ(Press(button, 100, 15), Codes{VBTN_SETFOCUS}) << "the first column outside";
    EXPECT_EQ(GetFocus(), button);
    EXPECT_NE(GetCapture(), button);
    EXPECT_EQ(Press(button, -1, 15), Codes{});
    EXPECT_EQ(Press(button, 50, 30), Codes{});
    EXPECT_EQ(Press(button, 50, -1), Codes{});
    EXPECT_EQ(Press(button, 99, 29), Codes{VBTN_DOWN});
}

TEST_F(ButtonInput, IsDownUnderThePointerOnly) {
    HWND button = CreateFocused(VBTS_NOTIFY);
    EXPECT_EQ(Move(button, 50), Codes{}) << "not pressed";
    Press(button);
    EXPECT_EQ(Move(button, 60), Codes{});
    EXPECT_EQ(Move(button, -1), Codes{VBTN_UP});
    EXPECT_EQ(Move(button, -20), Codes{});
    EXPECT_EQ(Move(button, 0), Codes{VBTN_DOWN});
    EXPECT_EQ(Move(button, 100), Codes{VBTN_UP});
    EXPECT_EQ(GetCapture(), button);
    EXPECT_EQ(Release(button, 100), Codes{}) << "no click";
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(ButtonInput, ClicksAtAReleaseOutsideThatNoMoveAnnounced) {
    HWND button = CreateFocused(VBTS_NOTIFY);
    Press(button);
    EXPECT_EQ(Release(button, 200), (Codes{VBTN_UP, VBTN_CLICKED}));
}

TEST_F(ButtonInput, IgnoresAReleaseWithoutAPress) {
    HWND button = CreateFocused(VBTS_NOTIFY);
    btnSetState(button, TRUE);
    EXPECT_EQ(Release(button), Codes{});
    EXPECT_EQ(btnGetState(button), 12u);
}

TEST_F(ButtonInput, TogglesAtThePress) {
    HWND button = CreateFocused(VBTS_NOTIFY | VBTS_TOGGLE);
    EXPECT_EQ(Press(button), (Codes{VBTN_DOWN, VBTN_CLICKED}));
    EXPECT_EQ(Release(button), Codes{}) << "stays down";
    EXPECT_EQ(btnGetState(button), 12u);
    EXPECT_EQ(Press(button), Codes{VBTN_UP}) << "no click";
    EXPECT_EQ(Release(button), Codes{});
    EXPECT_EQ(btnGetState(button), 8u);
}

TEST_F(ButtonInput, AToggleButtonFollowsThePointerTooWhileItIsHeld) {
    HWND button = CreateFocused(VBTS_NOTIFY | VBTS_TOGGLE);
    Press(button);
    EXPECT_EQ(Move(button, 100), Codes{VBTN_UP});
    EXPECT_EQ(Move(button, 50), Codes{VBTN_DOWN});
    EXPECT_EQ(Move(button, 100), Codes{VBTN_UP});
    EXPECT_EQ(Release(button, 100), Codes{});
    EXPECT_EQ(btnGetState(button), 8u);
}

TEST_F(ButtonInput, CountsADoubleClickAsTwoPresses) {
    HWND button = CreateFocused(VBTS_NOTIFY | VBTS_TOGGLE);
    Press(button);
    Release(button);
    EXPECT_EQ(Told([&] { SendMouse(button, WM_LBUTTONDBLCLK, 50, 15); }), Codes{VBTN_UP});
    Release(button);
    EXPECT_EQ(btnGetState(button), 8u);

    SetStyleBits(button, VBTS_NOTIFY);
    EXPECT_EQ(Told([&] { SendMouse(button, WM_LBUTTONDBLCLK, 50, 15); }), Codes{VBTN_DOWN});
    EXPECT_EQ(GetCapture(), button);
    EXPECT_EQ(Release(button), (Codes{VBTN_UP, VBTN_CLICKED}));
}

TEST_F(ButtonInput, RepeatsWhileItIsHeld) {
    HWND button = CreateFocused(VBTS_NOTIFY | VBTS_AUTOREPEAT);
    EXPECT_EQ(Press(button), (Codes{VBTN_DOWN, VBTN_CLICKED}));
    EXPECT_EQ(Tick(button, kDelay), Codes{}) << "the delay's end";
    EXPECT_EQ(Tick(button, kRepeat), Codes{VBTN_CLICKED});
    EXPECT_EQ(Move(button, -5), Codes{VBTN_UP});
    EXPECT_EQ(Tick(button, kRepeat), Codes{}) << "pauses outside";
    EXPECT_EQ(Move(button, 5), Codes{VBTN_DOWN});
    EXPECT_EQ(Tick(button, kRepeat), Codes{VBTN_CLICKED});
    EXPECT_EQ(Release(button), Codes{VBTN_UP}) << "no click of its own";
    EXPECT_FALSE(TakeTimer(button, kRepeat));
}

TEST_F(ButtonInput, HasOneTimerAfterTheOther) {
    HWND button = CreateFocused(VBTS_AUTOREPEAT);
    Press(button);
    EXPECT_TRUE(TakeTimer(button, kDelay));
    EXPECT_FALSE(TakeTimer(button, kRepeat));
    Press(button);
    Tick(button, kDelay);
    EXPECT_FALSE(TakeTimer(button, kDelay));
    EXPECT_TRUE(TakeTimer(button, kRepeat));
    Release(button);
}

TEST_F(ButtonInput, ClicksOnAnyOtherTimerWhileItIsDown) {
    HWND button = CreateFocused(0);
    EXPECT_EQ(Tick(button, 9), Codes{});
    btnSetState(button, TRUE);
    EXPECT_EQ(Tick(button, 9), Codes{VBTN_CLICKED});
}

// The keyboard's settings are taken as milliseconds: half a second of them would be hundreds.
TEST_F(ButtonInput, RepeatsAsFastAsTimersDo) {
    HWND button = CreateFocused(VBTS_AUTOREPEAT);
    const DWORD start = GetTickCount();
    Press(button);
    std::size_t clicks = 0;
    EXPECT_TRUE(PumpFor(20000, [&] { return (clicks += host.TakeNotifications().size()) >= 10; }));
    EXPECT_LT(GetTickCount() - start, 2500u)
        << "ten at no more than 31 ms each, and a slow machine";
    Release(button);
    EXPECT_FALSE(PumpFor(200, [&] { return !host.TakeNotifications().empty(); }));
}

TEST_F(ButtonInput, RepeatsAtTheKeyboardsSpeedSettingInMilliseconds) {
    DWORD old = 0;
    SystemParametersInfoA(SPI_GETKEYBOARDSPEED, 0, &old, 0);
    SystemParametersInfoA(SPI_SETKEYBOARDSPEED, 31, nullptr, 0);
    HWND button = CreateFocused(VBTS_AUTOREPEAT);
    Press(button);
    Tick(button, kDelay);
    const DWORD start = GetTickCount();
    std::size_t clicks = 0;
    EXPECT_TRUE(PumpFor(20000, [&] { return (clicks += host.TakeNotifications().size()) >= 20; }));
    EXPECT_GE(GetTickCount() - start, 20u * 31 - 60) << "by a coarse clock";
    Release(button);
    SystemParametersInfoA(SPI_SETKEYBOARDSPEED, old, nullptr, 0);
}

TEST_F(ButtonInput, AFirstPressRepeatsAndItsReleaseLeavesTheTimer) {
    HWND button = Create(VBTS_NOTIFY | VBTS_AUTOREPEAT);
    EXPECT_EQ(Press(button), (Codes{VBTN_SETFOCUS, VBTN_DOWN, VBTN_CLICKED}));
    EXPECT_EQ(StyleBits(button), DWORD{VBTS_NOTIFY | VBTS_DEFAULT}) << "by gaining the focus";
    Tick(button, kDelay);
    EXPECT_EQ(Tick(button, kRepeat), Codes{VBTN_CLICKED});
    EXPECT_EQ(Release(button), (Codes{VBTN_UP, VBTN_CLICKED})) << "as an ordinary button";
    EXPECT_EQ(Tick(button, kRepeat), Codes{}) << "while it is up";
    EXPECT_TRUE(TakeTimer(button, kRepeat));
}

// The press goes by the style before the focus came, its release by the one that it left.
TEST_F(ButtonInput, AFirstPressTogglesAndItsReleaseIsOfAnOrdinaryButton) {
    HWND button = Create(VBTS_NOTIFY | VBTS_TOGGLE);
    EXPECT_EQ(Press(button), (Codes{VBTN_SETFOCUS, VBTN_DOWN, VBTN_CLICKED}));
    EXPECT_EQ(Release(button), (Codes{VBTN_UP, VBTN_CLICKED}));
    EXPECT_EQ(btnGetState(button), 8u);
}

// Handing the default look over clears the toggle bit; what follows still goes by the style before.
TEST_F(ButtonInput, LosingTheFocusGoesByTheStyleItHadBefore) {
    HWND first = Create(WS_TABSTOP);
    HWND toggle = Create(WS_TABSTOP);
    HWND other = host.Create("STATIC", WS_TABSTOP, 0, 100, 50, 20);
    SetFocus(toggle);
    SetStyleBits(toggle, VBTS_NOTIFY | VBTS_TOGGLE);
    KeyDown(toggle, VK_SPACE);
    EXPECT_EQ(Told([&] { SetFocus(other); }), Codes{VBTN_KILLFOCUS});
    EXPECT_EQ(StyleBits(toggle), DWORD{VBTS_NOTIFY}) << "the look was handed over";
    EXPECT_EQ(StyleBits(first) & VBTS_DEFAULT, DWORD{VBTS_DEFAULT});
    EXPECT_EQ(btnGetState(toggle), 4u) << "a toggle button stays down";
}

TEST_F(ButtonInput, AToggleButtonWithAutoRepeatClicksByBothRules) {
    HWND button = CreateFocused(VBTS_NOTIFY | VBTS_TOGGLE | VBTS_AUTOREPEAT);
    EXPECT_EQ(Press(button), (Codes{VBTN_DOWN, VBTN_CLICKED, VBTN_CLICKED}));
    EXPECT_EQ(Release(button), Codes{});
    EXPECT_FALSE(TakeTimer(button, kDelay));
    EXPECT_EQ(Press(button), (Codes{VBTN_UP, VBTN_CLICKED}));
}

TEST_F(ButtonInput, ReturnAndSpacePress) {
    HWND button = CreateFocused(VBTS_NOTIFY);
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_SPACE}}) {
        EXPECT_EQ(KeyDown(button, key), Codes{VBTN_DOWN});
        EXPECT_EQ(KeyDown(button, key), Codes{VBTN_DOWN}) << "the keyboard's repeat";
        EXPECT_EQ(btnGetState(button), 12u);
        EXPECT_EQ(KeyUp(button, key), (Codes{VBTN_UP, VBTN_CLICKED}));
        EXPECT_EQ(KeyUp(button, key), Codes{});
    }
    EXPECT_EQ(KeyDown(button, 'A'), Codes{});
    EXPECT_EQ(KeyUp(button, 'A'), Codes{});
}

TEST_F(ButtonInput, KeysToggle) {
    HWND button = CreateFocused(VBTS_NOTIFY | VBTS_TOGGLE);
    EXPECT_EQ(KeyDown(button, VK_SPACE), (Codes{VBTN_DOWN, VBTN_CLICKED}));
    EXPECT_EQ(KeyUp(button, VK_SPACE), Codes{});
    EXPECT_EQ(KeyDown(button, VK_RETURN), Codes{VBTN_UP});
    EXPECT_EQ(KeyUp(button, VK_RETURN), Codes{});
}

TEST_F(ButtonInput, KeysRepeatWithTheKeyboard) {
    HWND button = CreateFocused(VBTS_NOTIFY | VBTS_AUTOREPEAT);
    EXPECT_EQ(KeyDown(button, VK_SPACE), (Codes{VBTN_DOWN, VBTN_CLICKED}));
    EXPECT_EQ(KeyDown(button, VK_SPACE), (Codes{VBTN_DOWN, VBTN_CLICKED}));
    EXPECT_FALSE(TakeTimer(button, kDelay)) << "no timer of the button's";
    EXPECT_EQ(KeyUp(button, VK_SPACE), Codes{VBTN_UP});
}

// Sets keys as held, for GetKeyState.
class HeldKeys {
public:
    explicit HeldKeys(std::initializer_list<int> keys) {
        GetKeyboardState(before_);
        BYTE now[256] = {};
        for (const int key : keys) {
            now[key] = 0x80;
        }
        SetKeyboardState(now);
    }
    ~HeldKeys() { SetKeyboardState(before_); }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

private:
    BYTE before_[256] = {};
};

TEST_F(ButtonInput, TabAndArrowsMoveTheFocus) {
    HWND before = host.Create("EDIT", WS_TABSTOP, 0, 100, 50, 20);
    HWND button = Create(WS_TABSTOP);
    host.Create("EDIT", 0, 0, 150, 50, 20); // no tab stop: passed over
    HWND after = host.Create("EDIT", WS_TABSTOP, 0, 200, 50, 20);
    const auto focusAfter = [&](WPARAM key, std::initializer_list<int> held) {
        SetFocus(button);
        const HeldKeys keys(held);
        EXPECT_EQ(SendMessageA(button, WM_KEYDOWN, key, 0), 0);
        return GetFocus();
    };
    EXPECT_EQ(focusAfter(VK_TAB, {}), after);
    EXPECT_EQ(focusAfter(VK_TAB, {VK_SHIFT}), before);
    EXPECT_EQ(focusAfter(VK_RIGHT, {}), after);
    EXPECT_EQ(focusAfter(VK_LEFT, {}), before);
    EXPECT_EQ(focusAfter(VK_RIGHT, {VK_SHIFT}), after);
    EXPECT_EQ(focusAfter(VK_LEFT, {VK_SHIFT}), before);
    for (const WPARAM key : {WPARAM{VK_TAB}, WPARAM{VK_LEFT}, WPARAM{VK_RIGHT}}) {
        EXPECT_EQ(focusAfter(key, {VK_CONTROL}), button);
        EXPECT_EQ(focusAfter(key, {VK_MENU}), button);
    }
    EXPECT_EQ(focusAfter(VK_UP, {}), button);
    EXPECT_EQ(focusAfter(VK_DOWN, {}), button);
}

TEST_F(ButtonInput, LeavesTheReleaseOfAltToTheSystem) {
    HWND button = CreateFocused(0);
    WPARAM command = 0;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_SYSCOMMAND) {
            command = message.wParam;
            return 0;
        }
        return std::nullopt;
    };
    SendMessageA(button, WM_SYSKEYDOWN, VK_MENU, 0x20000001);
    SendMessageA(button, WM_KEYUP, VK_MENU, static_cast<LPARAM>(0xC0000001));
    EXPECT_EQ(command & 0xFFF0, WPARAM{SC_KEYMENU}) << "the menu's key";
}

TEST_F(ButtonInput, TellsOfBeingDisabled) {
    HWND button = Create(VBTS_NOTIFY);
    EXPECT_EQ(Told([&] { EnableWindow(button, FALSE); }), Codes{VBTN_DISABLED});
    EXPECT_EQ(Told([&] { EnableWindow(button, TRUE); }), Codes{});
    SendMessageA(button, WM_ENABLE, FALSE, 0);
    EXPECT_FALSE(IsWindowEnabled(button)) << "the style follows the message";
    SendMessageA(button, WM_ENABLE, TRUE, 0);
    EXPECT_TRUE(IsWindowEnabled(button));
}

TEST_F(ButtonInput, WorksByTheMouseItself) {
    HWND button = Create(VBTS_NOTIFY);
    MoveMouse(button, 50, 15);
    PressMouse();
    ASSERT_TRUE(PumpFor(2000, [&] { return GetCapture() == button; }));
    EXPECT_EQ(host.TakeNotifications(), (Codes{VBTN_SETFOCUS, VBTN_DOWN}));
    MoveMouse(button, 50, 60);
    EXPECT_TRUE(PumpFor(2000, [&] { return btnGetState(button) == 8; }));
    EXPECT_EQ(host.TakeNotifications(), Codes{VBTN_UP});
    MoveMouse(button, 20, 5);
    EXPECT_TRUE(PumpFor(2000, [&] { return btnGetState(button) == 12; }));
    ReleaseMouse();
    EXPECT_TRUE(PumpFor(2000, [&] { return GetCapture() == nullptr; }));
    EXPECT_EQ(host.TakeNotifications(), (Codes{VBTN_DOWN, VBTN_UP, VBTN_CLICKED}));
}

} // namespace
