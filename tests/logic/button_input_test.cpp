// How the picture button reacts to the mouse, its timers and the keyboard.
#include "tests/support/button_steps.h"

namespace vorn::button {
namespace {

using enum ActionKind;

constexpr std::uint32_t kPlain = 0x50010000; // child, visible, tab stop
constexpr std::uint32_t kTelling = kPlain | 0x4000;
constexpr std::uint32_t kRepeating = kTelling | 0x0200;
constexpr std::uint32_t kToggling = kTelling | 0x0400;

TEST(ButtonMouse, PressTakesTheCaptureAndGoesDown) {
    Button button{kTelling};
    EXPECT_EQ(button.Press(kInside), (List{{Capture}, {Notify, 2}, {Redraw}}));
    EXPECT_EQ(button.state.flags, 7u) << "enabled, down, captured";
    EXPECT_EQ(button.Release(), (List{{ReleaseCapture}, {Notify, 3}, {Redraw}, {Notify, 0}}));
    EXPECT_EQ(button.state.flags, 1u);
}

TEST(ButtonMouse, OnlyTheClickNeedsNoNotifyStyle) {
    Button button{kPlain};
    EXPECT_EQ(button.Press(kInside), (List{{Capture}, {Redraw}}));
    EXPECT_EQ(button.Move(kOutside), List{{Redraw}});
    EXPECT_EQ(button.Move(kInside), List{{Redraw}});
    EXPECT_EQ(button.Release(), (List{{ReleaseCapture}, {Redraw}, {Notify, 0}}));
}

TEST(ButtonMouse, PressOutsideTheClientAreaDoesNothing) {
    // The client area is 3, 5 to 103, 45 without its right column and bottom row.
    for (const Point point : {Point{2, 20}, {103, 20}, {50, 4}, {50, 45}, {-1, -1}}) {
        Button button{kTelling};
        EXPECT_EQ(button.Press(point), List{});
        EXPECT_EQ(button.state.flags, 1u);
    }
    for (const Point point : {Point{3, 5}, {102, 44}}) {
        Button button{kTelling};
        EXPECT_EQ(button.Press(point).size(), 3u);
    }
}

TEST(ButtonMouse, PressWhileDownTellsAgain) {
    Button button{kTelling};
    button.Press(kInside);
    EXPECT_EQ(button.Press(kInside), (List{{Capture}, {Notify, 2}, {Redraw}}));
}

TEST(ButtonMouse, MovesInAndOutTurnTheCapturedButton) {
    Button button{kTelling};
    EXPECT_EQ(button.Move(kInside), List{}) << "not captured";
    button.Press(kInside);
    EXPECT_EQ(button.Move({4, 6}), List{}) << "still inside";
    EXPECT_EQ(button.Move(kOutside), (List{{Notify, 3}, {Redraw}}));
    EXPECT_EQ(button.Move({-5, 500}), List{}) << "still outside";
    EXPECT_EQ(button.Move(kInside), (List{{Notify, 2}, {Redraw}}));
    EXPECT_EQ(button.Move(kOutside), (List{{Notify, 3}, {Redraw}}));
    EXPECT_EQ(button.Release(), List{{ReleaseCapture}}) << "no click outside";
    EXPECT_EQ(button.Move(kInside), List{});
}

TEST(ButtonMouse, ReleaseClicksWhereverThePointerIs) {
    // A release outside without a move before it: the button is still down.
    Button button{kTelling};
    button.Press(kInside);
    Event event{EventKind::Release, kTelling, kClient};
    event.point = kOutside;
    EXPECT_EQ(button.Do(event), (List{{ReleaseCapture}, {Notify, 3}, {Redraw}, {Notify, 0}}));
}

TEST(ButtonMouse, ReleaseWithoutAPressDoesNothing) {
    Button button{kTelling};
    EXPECT_EQ(button.Release(), List{});
    button.SetDown(true);
    EXPECT_EQ(button.Release(), List{});
    EXPECT_TRUE(IsDown(button.state));
}

TEST(ButtonToggle, EachPressFlipsAndGoingDownClicks) {
    Button button{kToggling};
    EXPECT_EQ(button.Press(kInside), (List{{Capture}, {Notify, 2}, {Notify, 0}, {Redraw}}));
    EXPECT_EQ(button.Release(), List{{ReleaseCapture}});
    EXPECT_TRUE(IsDown(button.state)) << "stays down";
    EXPECT_EQ(button.Press(kInside), (List{{Capture}, {Notify, 3}, {Redraw}})) << "no click";
    EXPECT_EQ(button.Release(), List{{ReleaseCapture}});
    EXPECT_FALSE(IsDown(button.state));
}

TEST(ButtonToggle, FollowsThePointerToo) {
    Button button{kToggling};
    button.Press(kInside);
    EXPECT_EQ(button.Move(kOutside), (List{{Notify, 3}, {Redraw}}));
    EXPECT_EQ(button.Move(kInside), (List{{Notify, 2}, {Redraw}})) << "no click";
    button.Release();
    button.Press(kInside); // up
    EXPECT_EQ(button.Move(kInside), (List{{Notify, 2}, {Redraw}}));
}

TEST(ButtonRepeat, ClicksAtOnceAndStartsTheDelay) {
    Button button{kRepeating};
    EXPECT_EQ(button.Press(kInside),
              (List{{Capture}, {Notify, 2}, {Notify, 0}, {StartTimer, 1}, {Redraw}}));
    EXPECT_EQ(button.state.repeatTimer, 1u);
    EXPECT_EQ(button.Tick(1), (List{{KillTimer, 1}, {StartTimer, 2}})) << "no click";
    EXPECT_EQ(button.state.repeatTimer, 2u);
    EXPECT_EQ(button.Tick(2), (List{{Notify, 0}}));
    EXPECT_EQ(button.Tick(2), (List{{Notify, 0}}));
    EXPECT_EQ(button.Release(), (List{{ReleaseCapture}, {Notify, 3}, {Redraw}, {KillTimer, 2}}))
        << "no click at the release";
    EXPECT_EQ(button.state.repeatTimer, 2u) << "keeps its value";
}

TEST(ButtonRepeat, ReleaseDuringTheDelayStopsIt) {
    Button button{kRepeating};
    button.Press(kInside);
    EXPECT_EQ(button.Release(), (List{{ReleaseCapture}, {Notify, 3}, {Redraw}, {KillTimer, 1}}));
}

TEST(ButtonRepeat, PausesWhileThePointerIsOutside) {
    Button button{kRepeating};
    button.Press(kInside);
    button.Tick(1);
    button.Move(kOutside);
    EXPECT_EQ(button.Tick(2), List{});
    EXPECT_EQ(button.Move(kInside), (List{{Notify, 2}, {Redraw}}));
    EXPECT_EQ(button.Tick(2), (List{{Notify, 0}}));
    button.Move(kOutside);
    EXPECT_EQ(button.Release(), (List{{ReleaseCapture}, {KillTimer, 2}}));
}

TEST(ButtonRepeat, AnyTimerButTheDelayClicks) {
    Button button{kPlain};
    EXPECT_EQ(button.Tick(77), List{}) << "up";
    button.SetDown(true);
    EXPECT_EQ(button.Tick(77), (List{{Notify, 0}}));
    EXPECT_EQ(button.Tick(0), (List{{Notify, 0}}));
}

TEST(ButtonRepeat, PressThatGainedTheFocusLeavesItsTimer) {
    Button button{kRepeating};
    button.Press(kInside); // with the style that was read before
    button.style = kTelling | 1;
    button.Tick(1);
    EXPECT_EQ(button.Tick(2), (List{{Notify, 0}})) << "it repeats";
    EXPECT_EQ(button.Release(), (List{{ReleaseCapture}, {Notify, 3}, {Redraw}, {Notify, 0}}))
        << "and clicks; the timer goes on";
    EXPECT_EQ(button.Tick(2), List{}) << "to no effect while the button is up";
}

TEST(ButtonRepeat, WithToggleClicksByBothRules) {
    Button button{kToggling | 0x0200};
    EXPECT_EQ(button.Press(kInside),
              (List{{Capture}, {Notify, 2}, {Notify, 0}, {Notify, 0}, {StartTimer, 1}, {Redraw}}));
    EXPECT_EQ(button.Release(), (List{{ReleaseCapture}, {KillTimer, 1}}));
    EXPECT_EQ(button.Press(kInside),
              (List{{Capture}, {Notify, 3}, {Notify, 0}, {StartTimer, 1}, {Redraw}}));
}

TEST(ButtonRepeat, StopsWhenAskedIfItHasTheStyleAndATimer) {
    Button button{kRepeating};
    EXPECT_EQ(button.StopRepeat(), List{}) << "no timer yet";
    button.Press(kInside);
    EXPECT_EQ(button.StopRepeat(), (List{{KillTimer, 1}}));
    button.Tick(1);
    EXPECT_EQ(button.StopRepeat(), (List{{KillTimer, 2}}));
    EXPECT_TRUE(IsDown(button.state));
    button.style = kTelling;
    EXPECT_EQ(button.StopRepeat(), List{});
}

TEST(ButtonRepeat, DelayOfAPressThatIsOverIsNotStarted) {
    Button button{kRepeating};
    button.Press(kInside);
    EXPECT_FALSE(IsStale(button.state, {StartTimer, 1}));
    button.Release(); // in the click that the press sends
    EXPECT_TRUE(IsStale(button.state, {StartTimer, 1}));
    EXPECT_FALSE(IsStale(button.state, {StartTimer, 2})) << "nothing comes between";
    EXPECT_FALSE(IsStale(button.state, {Redraw}));
    EXPECT_FALSE(IsStale(button.state, {KillTimer, 1}));
    EXPECT_FALSE(IsStale(button.state, {Notify, 1}));
}

TEST(ButtonCapture, TakenEndsThePressWithoutAClick) {
    for (const CaptureOwner owner : {CaptureOwner::Nobody, CaptureOwner::Other}) {
        Button button{kTelling};
        button.Press(kInside);
        EXPECT_EQ(button.CaptureTo(owner), (List{{Notify, 3}, {Redraw}}));
        EXPECT_EQ(button.state.flags, 1u);
        EXPECT_EQ(button.Move(kInside), List{});
        EXPECT_EQ(button.Release(), List{});
    }
}

TEST(ButtonCapture, TakenStopsTheTimerWhateverTheStyleIsByThen) {
    Button button{kRepeating};
    button.Press(kInside);
    EXPECT_EQ(button.CaptureTo(CaptureOwner::Other), (List{{KillTimer, 1}, {Notify, 3}, {Redraw}}));

    button.Press(kInside);
    button.Tick(1);
    button.style = kTelling | 1;
    EXPECT_EQ(button.CaptureTo(CaptureOwner::Nobody),
              (List{{KillTimer, 2}, {Notify, 3}, {Redraw}}));

    // A toggle button stays down, with nothing left that clicks.
    button.style = kRepeating | 0x0400;
    button.Press(kInside);
    EXPECT_EQ(button.CaptureTo(CaptureOwner::Nobody), (List{{KillTimer, 1}}));
    EXPECT_EQ(button.state.flags, 3u);
}

TEST(ButtonCapture, KeptOrNotHeldChangesNothing) {
    Button button{kTelling};
    button.Press(kInside);
    EXPECT_EQ(button.CaptureTo(CaptureOwner::Self), List{}) << "pressed again";
    EXPECT_EQ(button.state.flags, 7u);
    button.Release(); // whose ReleaseCapture makes the capture change
    button.SetDown(true);
    EXPECT_EQ(button.CaptureTo(CaptureOwner::Nobody), List{});
    EXPECT_TRUE(IsDown(button.state));
}

TEST(ButtonKeys, ReturnAndSpacePressAndRelease) {
    for (const std::uint32_t key : {13u, 32u}) {
        Button button{kTelling};
        EXPECT_EQ(button.KeyDown(key), (List{{Notify, 2}, {Redraw}}));
        EXPECT_EQ(button.state.flags, 3u) << "not captured";
        EXPECT_EQ(button.KeyDown(key), (List{{Notify, 2}, {Redraw}})) << "the keyboard's repeat";
        EXPECT_EQ(button.KeyUp(key), (List{{Notify, 3}, {Redraw}, {Notify, 0}}));
        EXPECT_EQ(button.KeyUp(key), List{}) << "up already";
    }
}

TEST(ButtonKeys, PressKeysIgnoreTheModifiers) {
    Button button{kTelling};
    EXPECT_EQ(button.KeyDown(32, {.control = true, .alt = true, .shift = true}),
              (List{{Notify, 2}, {Redraw}}));
}

TEST(ButtonKeys, FlipAToggleButton) {
    Button button{kToggling};
    EXPECT_EQ(button.KeyDown(32), (List{{Notify, 2}, {Notify, 0}, {Redraw}}));
    EXPECT_EQ(button.KeyUp(32), List{});
    EXPECT_EQ(button.KeyDown(13), (List{{Notify, 3}, {Redraw}}));
    EXPECT_EQ(button.KeyUp(13), List{});
}

TEST(ButtonKeys, RepeatClicksWithTheKeyboardAndWithoutATimer) {
    Button button{kRepeating};
    EXPECT_EQ(button.KeyDown(32), (List{{Notify, 2}, {Notify, 0}, {Redraw}}));
    EXPECT_EQ(button.KeyDown(32), (List{{Notify, 2}, {Notify, 0}, {Redraw}}));
    EXPECT_EQ(button.KeyUp(32), (List{{Notify, 3}, {Redraw}})) << "no click at the release";
    EXPECT_EQ(button.state.repeatTimer, 0u);

    button.style = kToggling | 0x0200;
    EXPECT_EQ(button.KeyDown(32), (List{{Notify, 2}, {Notify, 0}, {Notify, 0}, {Redraw}}));
    EXPECT_EQ(button.KeyDown(32), (List{{Notify, 3}, {Notify, 0}, {Redraw}}));
}

TEST(ButtonKeys, TabAndArrowsMoveTheFocus) {
    Button button{kTelling};
    EXPECT_EQ(button.KeyDown(9), List{{FocusNext}});
    EXPECT_EQ(button.KeyDown(9, {.shift = true}), List{{FocusPrevious}});
    for (const bool shift : {false, true}) {
        EXPECT_EQ(button.KeyDown(37, {.shift = shift}), List{{FocusPrevious}});
        EXPECT_EQ(button.KeyDown(39, {.shift = shift}), List{{FocusNext}});
    }
    for (const std::uint32_t key : {9u, 37u, 39u}) {
        EXPECT_EQ(button.KeyDown(key, {.control = true}), List{});
        EXPECT_EQ(button.KeyDown(key, {.alt = true}), List{});
        EXPECT_EQ(button.KeyDown(key, {.control = true, .alt = true}), List{});
        EXPECT_EQ(button.KeyUp(key), List{{PassOn}});
    }
}

TEST(ButtonKeys, SystemKeysArePassedOn) {
    Button button{kTelling};
    for (const std::uint32_t key : {16u, 17u, 18u, 27u, 44u, 144u, 20u}) {
        EXPECT_EQ(button.KeyDown(key), List{{PassOn}}) << key;
        EXPECT_EQ(button.KeyDown(key, {.control = true}), List{{PassOn}}) << key;
        EXPECT_EQ(button.KeyUp(key), List{{PassOn}}) << key;
    }
    for (const std::uint32_t key : {38u, 40u, 65u, 112u, 145u, 0u}) {
        EXPECT_EQ(button.KeyDown(key), List{}) << key;
        EXPECT_EQ(button.KeyUp(key), List{{PassOn}}) << key;
    }
}

TEST(ButtonSetState, TellsAChangeAndNeverClicks) {
    for (const std::uint32_t style : {kTelling, kRepeating, kToggling}) {
        Button button{style};
        EXPECT_EQ(button.SetDown(false), List{});
        EXPECT_EQ(button.SetDown(true), (List{{Notify, 2}, {Redraw}}));
        EXPECT_EQ(button.SetDown(true), List{});
        EXPECT_EQ(button.SetDown(false), (List{{Notify, 3}, {Redraw}}));
        EXPECT_EQ(button.state.flags, 1u);
    }
}

} // namespace
} // namespace vorn::button
