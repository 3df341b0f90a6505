// What the dial does on input, as lists of actions, and that a host which does anything inside a
// scroll message leaves no timer behind.
#include "controls/dial/dial_input.h"

#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <set>
#include <utility>
#include <vector>

namespace vorn::dial {

void PrintTo(const Action& action, std::ostream* out) {
    const char* const names[] = {"Capture",       "ReleaseCapture", "Scroll",     "StartTimer",
                                 "StopTimer",     "Redraw",         "TakeFocus",  "FocusNext",
                                 "FocusPrevious", "MakeSmallest",   "RebuildFace"};
    *out << names[static_cast<std::size_t>(action.kind)] << " code "
         << static_cast<int>(action.code) << " position " << action.position << " timer "
         << action.timer << " ms " << action.milliseconds;
}

namespace {

using List = std::vector<Action>;

// Centre (50, 46), the corner buttons in columns 2 to 13 and 86 to 97 of rows 86 to 97.
constexpr Size kClient = {100, 100};
constexpr Point kLeft = {8, 92};
constexpr Point kRight = {92, 92};
constexpr Point kWest = {10, 46}; // position 16
constexpr Point kNorth = {50, 4}; // position 50
constexpr Point kEast = {90, 46}; // position 83

const Action kCapture = {.kind = ActionKind::Capture};
const Action kReleaseCapture = {.kind = ActionKind::ReleaseCapture};
const Action kRedraw = {.kind = ActionKind::Redraw};
const Action kTakeFocus = {.kind = ActionKind::TakeFocus};
const Action kStart1 = {.kind = ActionKind::StartTimer, .timer = 1, .milliseconds = 1000};
const Action kStop1 = {.kind = ActionKind::StopTimer, .timer = 1};
const Action kStop2 = {.kind = ActionKind::StopTimer, .timer = 2};

Action Send(int code, int position) {
    return {.kind = ActionKind::Scroll,
            .code = static_cast<ScrollCode>(code),
            .position = static_cast<std::uint16_t>(position)};
}

List Listed(const Actions& actions) {
    return {actions.begin(), actions.end()};
}

State At(std::int32_t position, std::int32_t direction = 1) {
    State state;
    state.position = position;
    state.direction = direction;
    return state;
}

// ---- Press ----

TEST(DialPress, OnTheLeftButtonStepsAndWaits) {
    State state = At(40);
    EXPECT_EQ(Listed(Press(state, kClient, kLeft, false)),
              (List{kCapture, Send(0, 40), kStart1, kRedraw}));
    EXPECT_TRUE(state.captured);
    EXPECT_TRUE(state.leftDown);
    EXPECT_FALSE(state.rightDown);
    EXPECT_EQ(state.mode, MouseMode::LeftButton);
    state = At(40, 0);
    EXPECT_EQ(Listed(Press(state, kClient, kLeft, false)),
              (List{kCapture, Send(1, 40), kStart1, kRedraw}));
}

TEST(DialPress, OnTheRightButtonStepsAndWaits) {
    State state = At(40);
    state.leftDown = true;
    EXPECT_EQ(Listed(Press(state, kClient, kRight, false)),
              (List{kCapture, Send(1, 40), kStart1, kRedraw}));
    EXPECT_TRUE(state.captured);
    EXPECT_FALSE(state.leftDown) << "cleared";
    EXPECT_TRUE(state.rightDown);
    EXPECT_EQ(state.mode, MouseMode::RightButton);
    state = At(40, 0);
    EXPECT_EQ(Listed(Press(state, kClient, kRight, false)),
              (List{kCapture, Send(0, 40), kStart1, kRedraw}));
}

TEST(DialPress, OnTheLeftButtonLeavesTheRightOneAsItIs) {
    State state = At(40);
    state.rightDown = true;
    Press(state, kClient, kLeft, false);
    EXPECT_TRUE(state.rightDown);
}

TEST(DialPress, WithoutRoomSendsNothingButWaits) {
    for (std::int32_t direction = 0; direction < 2; ++direction) {
        State atMinimum = At(0, direction);
        const Point lowers = direction == 1 ? kLeft : kRight;
        EXPECT_EQ(Listed(Press(atMinimum, kClient, lowers, false)),
                  (List{kCapture, kStart1, kRedraw}));
        EXPECT_EQ(Listed(Release(atMinimum, kClient, lowers)),
                  (List{kReleaseCapture, kStop1, kStop2, Send(8, 0), kRedraw}));
        State atMaximum = At(100, direction);
        const Point raises = direction == 1 ? kRight : kLeft;
        EXPECT_EQ(Listed(Press(atMaximum, kClient, raises, false)),
                  (List{kCapture, kStart1, kRedraw}));
    }
}

TEST(DialPress, ElsewhereTracksThePointer) {
    State state = At(40);
    EXPECT_EQ(Listed(Press(state, kClient, kWest, false)), (List{kCapture, Send(5, 16)}));
    EXPECT_TRUE(state.captured);
    EXPECT_EQ(state.mode, MouseMode::Turn);
    EXPECT_EQ(state.position, 40) << "the owner sets it";
    EXPECT_EQ(Listed(Press(state, kClient, kNorth, false)), (List{kCapture, Send(5, 50)}));
    EXPECT_EQ(Listed(Press(state, kClient, {50, 97}, false)), (List{kCapture, Send(5, 100)}))
        << "outside of the knob too";
}

TEST(DialPress, TakesTheFocusLastWhenTabsStopAtTheDial) {
    State state = At(40);
    EXPECT_EQ(Listed(Press(state, kClient, kLeft, true)),
              (List{kCapture, Send(0, 40), kStart1, kRedraw, kTakeFocus}));
    EXPECT_EQ(Listed(Press(state, kClient, kNorth, true)),
              (List{kCapture, Send(5, 50), kTakeFocus}));
}

TEST(DialPress, HitsTheButtonsWithoutTheirRightAndBottomEdge) {
    const struct {
        Point point;
        MouseMode mode;
    } cases[] = {
        {{2, 86}, MouseMode::LeftButton},   {{13, 97}, MouseMode::LeftButton},
        {{14, 97}, MouseMode::Turn},        {{13, 98}, MouseMode::Turn},
        {{1, 86}, MouseMode::Turn},         {{2, 85}, MouseMode::Turn},
        {{86, 86}, MouseMode::RightButton}, {{97, 97}, MouseMode::RightButton},
        {{98, 97}, MouseMode::Turn},        {{97, 98}, MouseMode::Turn},
        {{85, 86}, MouseMode::Turn},        {{86, 85}, MouseMode::Turn},
    };
    for (const auto& [point, mode] : cases) {
        State state;
        Press(state, kClient, point, false);
        EXPECT_EQ(state.mode, mode) << point.x << ", " << point.y;
    }
}

TEST(DialPress, SendsWhatFitsOfThePosition) {
    State state = At(70000);
    state.maximum = 100000;
    EXPECT_EQ(Listed(Press(state, kClient, kLeft, false))[1], Send(0, 70000 - 65536));
    EXPECT_EQ(Listed(Press(state, kClient, kNorth, false))[1], Send(5, 50000));
    state = At(-1);
    state.minimum = -5;
    EXPECT_EQ(Listed(Press(state, kClient, kLeft, false))[1], Send(0, 65535));
}

// ---- Move ----

TEST(DialMove, WithoutTheMouseDoesNothing) {
    for (const MouseMode mode :
         {MouseMode::None, MouseMode::LeftButton, MouseMode::RightButton, MouseMode::Turn}) {
        State state = At(40);
        state.mode = mode;
        for (const Point point : {kLeft, kRight, kNorth}) {
            EXPECT_EQ(Listed(Move(state, kClient, point)), List{});
        }
        EXPECT_FALSE(state.leftDown);
        EXPECT_FALSE(state.rightDown);
    }
}

TEST(DialMove, OffAButtonAndBackRedrawsOnChange) {
    const struct {
        Point inside;
        Point otherButton;
        bool State::*down;
    } cases[] = {{kLeft, kRight, &State::leftDown}, {kRight, kLeft, &State::rightDown}};
    for (const auto& [inside, otherButton, down] : cases) {
        State state = At(40);
        Press(state, kClient, inside, false);
        EXPECT_EQ(Listed(Move(state, kClient, inside)), List{});
        EXPECT_EQ(Listed(Move(state, kClient, otherButton)), List{kRedraw});
        EXPECT_FALSE(state.leftDown);
        EXPECT_FALSE(state.rightDown);
        EXPECT_EQ(Listed(Move(state, kClient, kNorth)), List{});
        EXPECT_EQ(Listed(Move(state, kClient, inside)), List{kRedraw});
        EXPECT_TRUE(state.*down);
    }
}

TEST(DialMove, WhileTurningTracksThePointer) {
    State state = At(40);
    Press(state, kClient, kWest, false);
    EXPECT_EQ(Listed(Move(state, kClient, kNorth)), List{Send(5, 50)});
    EXPECT_EQ(Listed(Move(state, kClient, kNorth)), List{Send(5, 50)}) << "moved or not";
    EXPECT_EQ(Listed(Move(state, kClient, {30000, 46})), List{Send(5, 83)});
    EXPECT_EQ(Listed(Move(state, kClient, {-30000, 46})), List{Send(5, 16)});
    EXPECT_EQ(Listed(Move(state, kClient, {50, -30000})), List{Send(5, 50)});
    EXPECT_FALSE(Listed(Move(state, kClient, kLeft)).empty());
    EXPECT_FALSE(state.leftDown) << "the corner buttons take no part";
}

// ---- Release ----

TEST(DialRelease, AfterTurningSendsTheFinalPosition) {
    State state = At(40);
    Press(state, kClient, kWest, false);
    EXPECT_EQ(Listed(Release(state, kClient, kEast)),
              (List{kReleaseCapture, kStop1, kStop2, Send(4, 83), kRedraw}));
    EXPECT_FALSE(state.captured);
    EXPECT_EQ(state.mode, MouseMode::Turn) << "the mode stays";
    EXPECT_EQ(Listed(Release(state, kClient, kNorth)),
              (List{kReleaseCapture, kStop1, kStop2, Send(4, 50), kRedraw}))
        << "also without another press";
}

TEST(DialRelease, AfterACornerButtonEndsTheScroll) {
    for (const Point pressed : {kLeft, kRight}) {
        State state = At(40);
        Press(state, kClient, pressed, false);
        EXPECT_EQ(Listed(Release(state, kClient, kNorth)),
                  (List{kReleaseCapture, kStop1, kStop2, Send(8, 40), kRedraw}));
        EXPECT_FALSE(state.captured);
        EXPECT_FALSE(state.leftDown);
        EXPECT_FALSE(state.rightDown);
        EXPECT_EQ(state.mode, pressed == kLeft ? MouseMode::LeftButton : MouseMode::RightButton);
    }
}

TEST(DialRelease, WithoutAPressEndsTheScroll) {
    State state = At(7);
    EXPECT_EQ(Listed(Release(state, kClient, kNorth)),
              (List{kReleaseCapture, kStop1, kStop2, Send(8, 7), kRedraw}));
}

// ---- Timers ----

TEST(DialTimer, FirstDelayGivesWayToTheRepeatsWithoutAStep) {
    State state = At(40);
    Press(state, kClient, kLeft, false);
    for (const std::uint32_t speed : {0u, 31u}) {
        EXPECT_EQ(
            Listed(TimerTick(state, 1, speed)),
            (List{kStop1, {.kind = ActionKind::StartTimer, .timer = 2, .milliseconds = speed}}));
    }
}

TEST(DialTimer, RepeatsTheStepOfTheHeldButton) {
    for (std::int32_t direction = 0; direction < 2; ++direction) {
        State state = At(40, direction);
        Press(state, kClient, kLeft, false);
        EXPECT_EQ(Listed(TimerTick(state, 2, 31)), List{Send(direction == 1 ? 0 : 1, 40)});
        Release(state, kClient, kLeft);
        Press(state, kClient, kRight, false);
        EXPECT_EQ(Listed(TimerTick(state, 2, 31)), List{Send(direction == 1 ? 1 : 0, 40)});
    }
}

TEST(DialTimer, StopsSteppingAtTheEndOfTheRange) {
    State state = At(1);
    Press(state, kClient, kLeft, false);
    EXPECT_EQ(Listed(TimerTick(state, 2, 31)), List{Send(0, 1)});
    SetPosition(state, 0);
    EXPECT_EQ(Listed(TimerTick(state, 2, 31)), List{});
    Release(state, kClient, kLeft);
    SetPosition(state, 100);
    Press(state, kClient, kRight, false);
    EXPECT_EQ(Listed(TimerTick(state, 2, 31)), List{});
}

TEST(DialTimer, PausesWhileThePointerIsOffTheButton) {
    State state = At(40);
    Press(state, kClient, kRight, false);
    Move(state, kClient, kNorth);
    EXPECT_EQ(Listed(TimerTick(state, 2, 31)), List{});
    Move(state, kClient, kRight);
    EXPECT_EQ(Listed(TimerTick(state, 2, 31)), List{Send(1, 40)});
}

TEST(DialTimer, PrefersTheRightButton) {
    State state = At(40);
    state.leftDown = state.rightDown = true;
    EXPECT_EQ(Listed(TimerTick(state, 2, 31)), List{Send(1, 40)});
}

TEST(DialTimer, OfAnotherNumberIsNotItsOwn) {
    State state = At(40);
    Press(state, kClient, kLeft, false);
    EXPECT_EQ(Listed(TimerTick(state, 0, 31)), List{});
    EXPECT_EQ(Listed(TimerTick(state, 3, 31)), List{});
}

// ---- Capture ----

TEST(DialCapture, TakenAwayEndsTheGestureSilently) {
    for (const CaptureOwner owner : {CaptureOwner::Nobody, CaptureOwner::Other}) {
        for (const Point pressed : {kLeft, kRight, kNorth}) {
            State state = At(40);
            Press(state, kClient, pressed, false);
            EXPECT_EQ(Listed(CaptureChanged(state, owner)), (List{kStop1, kStop2, kRedraw}));
            EXPECT_FALSE(state.captured);
            EXPECT_FALSE(state.leftDown);
            EXPECT_FALSE(state.rightDown);
            EXPECT_EQ(Listed(Move(state, kClient, pressed)), List{});
            EXPECT_EQ(Listed(TimerTick(state, 2, 31)), List{});
        }
    }
}

TEST(DialCapture, TakenByTheDialItselfChangesNothing) {
    State state = At(40);
    Press(state, kClient, kLeft, false);
    EXPECT_EQ(Listed(CaptureChanged(state, CaptureOwner::Self)), List{});
    EXPECT_TRUE(state.captured);
    EXPECT_TRUE(state.leftDown);
}

TEST(DialCapture, LetGoByTheDialItselfIsNoSurprise) {
    State state = At(40);
    Press(state, kClient, kLeft, false);
    Release(state, kClient, kLeft);
    EXPECT_EQ(Listed(CaptureChanged(state, CaptureOwner::Nobody)), List{});
}

// Performs the actions as a window does, with a host that answers scroll messages.
class Performer {
public:
    State state = At(40);
    std::set<std::uint32_t> timers;
    std::vector<int> codes;
    std::function<void(Performer&)> onScroll; // taken away before it runs

    void Perform(const Actions& actions) {
        for (const Action& action : actions) {
            if (!IsStale(state, action)) {
                Perform(action);
            }
        }
    }

private:
    void Perform(const Action& action) {
        if (action.kind == ActionKind::ReleaseCapture) {
            Perform(CaptureChanged(state, CaptureOwner::Nobody)); // as the platform tells at once
        } else if (action.kind == ActionKind::StartTimer) {
            timers.insert(action.timer);
        } else if (action.kind == ActionKind::StopTimer) {
            timers.erase(action.timer);
        } else if (action.kind == ActionKind::Scroll) {
            codes.push_back(static_cast<int>(action.code));
            const auto host = std::exchange(onScroll, nullptr);
            if (host) {
                host(*this);
            }
        }
    }
};

TEST(DialHost, SeesAWholeHold) {
    Performer dial;
    dial.Perform(Press(dial.state, kClient, kLeft, true));
    EXPECT_EQ(dial.timers, std::set<std::uint32_t>{1});
    dial.Perform(TimerTick(dial.state, 1, 31));
    EXPECT_EQ(dial.timers, std::set<std::uint32_t>{2});
    dial.Perform(TimerTick(dial.state, 2, 31));
    dial.Perform(TimerTick(dial.state, 2, 31));
    dial.Perform(Release(dial.state, kClient, kLeft));
    EXPECT_TRUE(dial.timers.empty());
    EXPECT_EQ(dial.codes, (std::vector<int>{0, 0, 0, 8}));
}

TEST(DialHost, MayTakeTheMouseInsideTheFirstStep) {
    Performer dial;
    dial.onScroll = [](Performer& inner) {
        inner.Perform(CaptureChanged(inner.state, CaptureOwner::Nobody));
    };
    dial.Perform(Press(dial.state, kClient, kLeft, true));
    EXPECT_TRUE(dial.timers.empty());
    EXPECT_FALSE(dial.state.leftDown);
}

TEST(DialHost, MayRunTheReleaseInsideTheFirstStep) {
    Performer dial;
    dial.onScroll = [](Performer& inner) { inner.Perform(Release(inner.state, kClient, kRight)); };
    dial.Perform(Press(dial.state, kClient, kRight, true));
    EXPECT_TRUE(dial.timers.empty());
    EXPECT_EQ(dial.codes, (std::vector<int>{1, 8}));
}

TEST(DialHost, MayTakeTheMouseInsideARepeat) {
    Performer dial;
    dial.Perform(Press(dial.state, kClient, kRight, true));
    dial.Perform(TimerTick(dial.state, 1, 31));
    dial.onScroll = [](Performer& inner) {
        inner.Perform(CaptureChanged(inner.state, CaptureOwner::Nobody));
    };
    dial.Perform(TimerTick(dial.state, 2, 31));
    EXPECT_TRUE(dial.timers.empty());
}

TEST(DialHost, GetsNoRepeatsFromALateFirstDelay) {
    Performer dial;
    dial.Perform(Press(dial.state, kClient, kLeft, true));
    dial.Perform(Release(dial.state, kClient, kLeft));
    dial.Perform(TimerTick(dial.state, 1, 31)); // was under way already
    EXPECT_TRUE(dial.timers.empty());
}

// ---- Keys ----

TEST(DialKeys, HaveTheirCodesAndGuards) {
    const struct {
        std::uint32_t key;
        int code;
        bool needsRoomAbove; // else below
    } keys[] = {{33, 2, true},  {34, 3, false}, {35, 6, true}, {36, 7, false},
                {37, 1, false}, {40, 1, false}, {38, 0, true}, {39, 0, true}};
    for (std::int32_t direction = 0; direction < 2; ++direction) {
        for (const auto& [key, code, needsRoomAbove] : keys) {
            const State middle = At(40, direction);
            const State bottom = At(0, direction);
            const State top = At(100, direction);
            const List sentAtBottom = needsRoomAbove ? List{Send(code, 0)} : List{};
            const List sentAtTop = needsRoomAbove ? List{} : List{Send(code, 100)};
            EXPECT_EQ(Listed(KeyDown(middle, key, {})), List{Send(code, 40)}) << key;
            EXPECT_EQ(Listed(KeyDown(bottom, key, {})), sentAtBottom) << key;
            EXPECT_EQ(Listed(KeyDown(top, key, {})), sentAtTop) << key;
        }
    }
}

TEST(DialKeys, CareForNoModifiers) {
    for (int bits = 0; bits < 8; ++bits) {
        const Modifiers modifiers = {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0};
        EXPECT_EQ(Listed(KeyDown(At(40), 37, modifiers)), List{Send(1, 40)});
    }
}

TEST(DialKeys, TabMovesTheFocusUnlessCtrlOrAltIsHeld) {
    const Action next = {.kind = ActionKind::FocusNext};
    const Action previous = {.kind = ActionKind::FocusPrevious};
    EXPECT_EQ(Listed(KeyDown(At(40), 9, {})), List{next});
    EXPECT_EQ(Listed(KeyDown(At(40), 9, {.shift = true})), List{previous});
    EXPECT_EQ(Listed(KeyDown(At(40), 9, {.control = true})), List{});
    EXPECT_EQ(Listed(KeyDown(At(40), 9, {.alt = true})), List{});
    EXPECT_EQ(Listed(KeyDown(At(40), 9, {.shift = true, .control = true})), List{});
    EXPECT_EQ(Listed(KeyDown(At(40), 9, {.shift = true, .alt = true})), List{});
}

TEST(DialKeys, OthersDoNothing) {
    const std::set<std::uint32_t> known = {9, 33, 34, 35, 36, 37, 38, 39, 40};
    for (std::uint32_t key = 0; key < 256; ++key) {
        EXPECT_EQ(Listed(KeyDown(At(40), key, {})).empty(), !known.contains(key)) << key;
    }
}

TEST(DialCharacters, PlusAndMinusStepTheirWay) {
    for (std::int32_t direction = 0; direction < 2; ++direction) {
        EXPECT_EQ(Listed(CharacterTyped(At(40, direction), '+')), List{Send(1, 40)});
        EXPECT_EQ(Listed(CharacterTyped(At(40, direction), '-')), List{Send(0, 40)});
    }
    EXPECT_EQ(Listed(CharacterTyped(At(0), '+')), List{Send(1, 0)});
    EXPECT_EQ(Listed(CharacterTyped(At(0), '-')), List{});
    EXPECT_EQ(Listed(CharacterTyped(At(100), '+')), List{});
    EXPECT_EQ(Listed(CharacterTyped(At(100), '-')), List{Send(0, 100)});
}

TEST(DialCharacters, OthersDoNothing) {
    for (std::uint32_t character = 0; character < 0x200; ++character) {
        const bool known = character == 0x2B || character == 0x2D;
        EXPECT_EQ(Listed(CharacterTyped(At(40), character)).empty(), !known) << character;
    }
}

// ---- The rest ----

TEST(DialFocus, IsShown) {
    EXPECT_EQ(Listed(FocusChanged()), List{kRedraw});
}

TEST(DialEnable, IsKeptAndShown) {
    State state;
    EXPECT_EQ(Listed(Enable(state, 0)), List{kRedraw});
    EXPECT_EQ(state.enabled, 0u);
    EXPECT_EQ(Listed(Enable(state, 0xFFFFFFFF)), List{kRedraw});
    EXPECT_EQ(state.enabled, 0xFFFFFFFFu);
}

TEST(DialSize, IsFortyByFortyAtLeast) {
    const List makeSmallest = {{.kind = ActionKind::MakeSmallest}};
    const List rebuild = {{.kind = ActionKind::RebuildFace}};
    EXPECT_EQ(kSmallestWindow, (Size{40, 40}));
    EXPECT_EQ(Listed(Resized({30, 60})), makeSmallest);
    EXPECT_EQ(Listed(Resized({60, 39})), makeSmallest);
    EXPECT_EQ(Listed(Resized({39, 40})), makeSmallest);
    EXPECT_EQ(Listed(Resized({0, 0})), makeSmallest);
    EXPECT_EQ(Listed(Resized({40, 40})), rebuild);
    EXPECT_EQ(Listed(Resized({200, 40})), rebuild);
}

} // namespace
} // namespace vorn::dial
