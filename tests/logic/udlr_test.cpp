// The spin pad's geometry and behaviour.
#include "controls/udlr/udlr.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vorn::udlr {

void PrintTo(const Action& action, std::ostream* out) {
    *out << "{kind " << static_cast<int>(action.kind) << ", code " << action.code << ", timer "
         << action.timer << "}";
}

namespace {

using enum ActionKind;

// Column 0 and row 0, the diagonals and all beyond 27 belong to nothing.
constexpr const char* kMap[32] = {
    "................................", // 0
    "..UUUUUUUUUUUUUUUUUUUUUUUUU.....", ".L.UUUUUUUUUUUUUUUUUUUUUUU.R....",
    ".LL.UUUUUUUUUUUUUUUUUUUUU.RR....", ".LLL.UUUUUUUUUUUUUUUUUUU.RRR....",
    ".LLLL.UUUUUUUUUUUUUUUUU.RRRR....", ".LLLLL.UUUUUUUUUUUUUUU.RRRRR....",
    ".LLLLLL.UUUUUUUUUUUUU.RRRRRR....", ".LLLLLLL.UUUUUUUUUUU.RRRRRRR....",
    ".LLLLLLLL.UUUUUUUUU.RRRRRRRR....",
    ".LLLLLLLLL.UUUUUUU.RRRRRRRRR....", // 10
    ".LLLLLLLLLL.UUUUU.RRRRRRRRRR....", ".LLLLLLLLLLL.UUU.RRRRRRRRRRR....",
    ".LLLLLLLLLLLL.U.RRRRRRRRRRRR....",
    ".LLLLLLLLLLLLL.RRRRRRRRRRRRR....", // 14: the centre
    ".LLLLLLLLLLLL.D.RRRRRRRRRRRR....", ".LLLLLLLLLLL.DDD.RRRRRRRRRRR....",
    ".LLLLLLLLLL.DDDDD.RRRRRRRRRR....", ".LLLLLLLLL.DDDDDDD.RRRRRRRRR....",
    ".LLLLLLLL.DDDDDDDDD.RRRRRRRR....",
    ".LLLLLLL.DDDDDDDDDDD.RRRRRRR....", // 20
    ".LLLLLL.DDDDDDDDDDDDD.RRRRRR....", ".LLLLL.DDDDDDDDDDDDDDD.RRRRR....",
    ".LLLL.DDDDDDDDDDDDDDDDD.RRRR....", ".LLL.DDDDDDDDDDDDDDDDDDD.RRR....",
    ".LL.DDDDDDDDDDDDDDDDDDDDD.RR....", ".L.DDDDDDDDDDDDDDDDDDDDDDD.R....",
    "..DDDDDDDDDDDDDDDDDDDDDDDDD.....", // 27
    "................................", "................................",
    "................................", "................................",
};

char Letter(Direction direction) {
    return ".UDLR"[static_cast<int>(direction)];
}

TEST(UdlrHitTest, AnswersTheDrawnMap) {
    for (std::uint16_t y = 0; y < 32; ++y) {
        std::string row;
        for (std::uint16_t x = 0; x < 32; ++x) {
            row += Letter(HitTest(x, y));
        }
        EXPECT_EQ(row, kMap[y]) << "row " << y;
    }
}

TEST(UdlrHitTest, PointsFarOutsideHitNothing) {
    // Negative coordinates arrive as numbers near 65536.
    constexpr std::uint16_t kOutside[] = {32, 255, 32767, 32768, 65508, 65534, 65535};
    for (const std::uint16_t outside : kOutside) {
        for (std::uint16_t inside = 0; inside < 32; ++inside) {
            EXPECT_EQ(HitTest(outside, inside), Direction::None);
            EXPECT_EQ(HitTest(inside, outside), Direction::None);
            EXPECT_EQ(HitTest(outside, outside), Direction::None);
        }
    }
}

TEST(UdlrData, DirectionsHaveTheirNumbersCodesAndPictures) {
    const struct {
        Direction direction;
        int number;
        int code;
        std::uint32_t picture;
    } rows[] = {{Direction::None, 0, 0, 305},
                {Direction::Up, 1, 100, 306},
                {Direction::Down, 2, 102, 308},
                {Direction::Left, 3, 103, 309},
                {Direction::Right, 4, 101, 307}};
    for (const auto& row : rows) {
        EXPECT_EQ(static_cast<int>(row.direction), row.number);
        EXPECT_EQ(NotificationCode(row.direction), row.code);
        EXPECT_EQ(kFirstPicture + PictureOf(row.direction), row.picture);
    }
}

TEST(UdlrData, SizeIsThePicturesWithinTheBorder) {
    EXPECT_EQ(RequiredSize(0, {1, 1}), (Size{29, 29}));
    EXPECT_EQ(RequiredSize(0x50000000, {1, 1}), (Size{29, 29}));
    EXPECT_EQ(RequiredSize(0x50800000, {1, 1}), (Size{31, 31}));
    EXPECT_EQ(RequiredSize(0x00800000, {2, 3}), (Size{33, 35}));
}

// The actions, in short.
Action Notification(std::uint16_t code) {
    return {Notify, code};
}
Action Start(std::uint32_t timer) {
    return {StartTimer, 0, timer};
}
Action Kill(std::uint32_t timer) {
    return {KillTimer, 0, timer};
}

using List = std::vector<Action>;

List Do(State& state, const Event& event) {
    const Actions actions = Step(state, event);
    return {actions.begin(), actions.end()};
}
List Down(State& state, std::uint16_t x, std::uint16_t y) {
    return Do(state, {EventKind::ButtonDown, x, y});
}
List MoveTo(State& state, std::uint16_t x, std::uint16_t y) {
    return Do(state, {EventKind::Move, x, y});
}
List Up(State& state) {
    return Do(state, {EventKind::ButtonUp});
}
List Tick(State& state, bool held = false) {
    return Do(state, {EventKind::Timer, 0, 0, held});
}
List TakeCapture(State& state, bool held) {
    return Do(state, {EventKind::CaptureChanged, 0, 0, held, CaptureOwner::Other});
}

// A press in the up triangle.
State Pressed() {
    State state;
    Down(state, 14, 3);
    return state;
}

TEST(UdlrPress, NotifiesThenStartsTheDelay) {
    State state;
    EXPECT_EQ(Down(state, 14, 3), (List{{Capture}, Notification(100), Start(1), {Repaint}}));
    EXPECT_TRUE(state.captured);
    EXPECT_EQ(state.direction, Direction::Up);
    EXPECT_EQ(state.timerPhase, 1u);
}

TEST(UdlrPress, TellsEachDirectionByItsCode) {
    State state;
    EXPECT_EQ(Down(state, 24, 14)[1], Notification(101));
    EXPECT_EQ(Down(state, 14, 24)[1], Notification(102));
    EXPECT_EQ(Down(state, 3, 14)[1], Notification(103));
}

TEST(UdlrPress, OnADiagonalSaysNothingButStartsTheDelay) {
    State state;
    EXPECT_EQ(Down(state, 10, 10), (List{{Capture}, Start(1), {Repaint}}));
    EXPECT_EQ(state.direction, Direction::None);
    EXPECT_EQ(MoveTo(state, 10, 11), (List{Notification(103), {Repaint}}));
}

TEST(UdlrPress, WhileRepeatingStartsTheDelayAnew) {
    State state = Pressed();
    Tick(state);
    EXPECT_EQ(Down(state, 3, 14), (List{{Capture}, Notification(103), Start(1), {Repaint}}))
        << "timer 2 goes on";
    EXPECT_EQ(state.timerPhase, 1u);
    // The next tick is still timer 2's and is taken for the end of the delay.
    EXPECT_EQ(Tick(state), (List{Kill(1), Start(2), Notification(103)}));
}

TEST(UdlrMove, ToAnotherTriangleTellsItsDirection) {
    State state = Pressed();
    EXPECT_EQ(MoveTo(state, 24, 14), (List{Notification(101), {Repaint}}));
    EXPECT_EQ(MoveTo(state, 25, 14), List{}) << "same triangle";
    EXPECT_EQ(MoveTo(state, 14, 14), (List{{Repaint}})) << "the centre is none";
    EXPECT_EQ(MoveTo(state, 14, 13), (List{Notification(100), {Repaint}}));
    EXPECT_EQ(state.timerPhase, 1u);
}

TEST(UdlrMove, OutsideKeepsTheCaptureAndPausesTheRepeats) {
    State state = Pressed();
    Tick(state);
    EXPECT_EQ(MoveTo(state, 65535, 14), (List{{Repaint}}));
    EXPECT_TRUE(state.captured);
    EXPECT_EQ(Tick(state), List{});
    EXPECT_EQ(MoveTo(state, 14, 24), (List{Notification(102), {Repaint}}));
    EXPECT_EQ(Tick(state), List{Notification(102)});
}

TEST(UdlrMove, WithoutAPressDoesNothing) {
    State state;
    EXPECT_EQ(MoveTo(state, 14, 3), List{});
    EXPECT_EQ(state.direction, Direction::None);
}

TEST(UdlrRelease, StopsTheRunningTimerAndSaysNothing) {
    State state = Pressed();
    EXPECT_EQ(Up(state), (List{{ReleaseCapture}, Kill(1), {Repaint}}));
    EXPECT_FALSE(state.captured);
    EXPECT_EQ(state.direction, Direction::None);
    EXPECT_EQ(state.timerPhase, 0u);

    state = Pressed();
    Tick(state);
    EXPECT_EQ(Up(state), (List{{ReleaseCapture}, Kill(2), {Repaint}}));
    EXPECT_EQ(Up(state), (List{{ReleaseCapture}, {Repaint}})) << "no timer to stop";
    EXPECT_EQ(MoveTo(state, 14, 3), List{}) << "not captured";
}

TEST(UdlrTimer, FirstRepeatComesWithTheEndOfTheDelay) {
    State state = Pressed();
    EXPECT_EQ(kDelay, 500u);
    EXPECT_EQ(Tick(state), (List{Kill(1), Start(2), Notification(100)}));
    EXPECT_EQ(state.timerPhase, 2u);
    EXPECT_EQ(Tick(state), List{Notification(100)});
    EXPECT_EQ(Tick(state), List{Notification(100)});
}

TEST(UdlrTimer, EndsTheDelayOnADiagonalToo) {
    State state;
    Down(state, 10, 10);
    EXPECT_EQ(Tick(state), (List{Kill(1), Start(2)}));
    EXPECT_EQ(Tick(state), List{});
}

TEST(UdlrTimer, AtRestDoesNothing) {
    State state;
    EXPECT_EQ(Tick(state), List{});
    EXPECT_EQ(state.timerPhase, 0u);
}

TEST(UdlrEnable, RepaintsAndLeavesARunningRepeat) {
    State state = Pressed();
    Tick(state);
    EXPECT_EQ(Do(state, {.kind = EventKind::Enable, .enabled = false}), List{{RepaintErased}});
    EXPECT_TRUE(state.disabled);
    EXPECT_TRUE(state.captured);
    EXPECT_EQ(state.direction, Direction::Up) << "the picture stays";
    EXPECT_EQ(Tick(state), List{Notification(100)});
    EXPECT_EQ(Down(state, 14, 24)[1], Notification(102)) << "a disabled pad reacts";
    EXPECT_EQ(Do(state, {.kind = EventKind::Enable, .enabled = true}), List{{RepaintErased}});
    EXPECT_FALSE(state.disabled);
}

TEST(UdlrCapture, TakenAfterTheButtonCameUpEndsThePress) {
    State state = Pressed();
    Tick(state);
    EXPECT_EQ(TakeCapture(state, false), (List{Kill(2), {Repaint}}));
    EXPECT_FALSE(state.captured);
    EXPECT_EQ(state.direction, Direction::None);
    EXPECT_EQ(Tick(state), List{});
}

TEST(UdlrCapture, TakenWhileTheButtonIsHeldRepeatsUntilItComesUp) {
    State state = Pressed();
    EXPECT_EQ(TakeCapture(state, true), List{});
    EXPECT_EQ(Tick(state, true), (List{Kill(1), Start(2), Notification(100)}));
    EXPECT_EQ(Tick(state, true), List{Notification(100)});
    EXPECT_EQ(Tick(state, false), (List{Kill(2), {Repaint}})) << "the release went elsewhere";
    EXPECT_EQ(state.timerPhase, 0u);
    EXPECT_EQ(Tick(state, true), List{});
}

TEST(UdlrCapture, GivenToItselfChangesNothing) {
    State state = Pressed();
    EXPECT_EQ(Do(state, {EventKind::CaptureChanged, 0, 0, false, CaptureOwner::Self}), List{});
    EXPECT_TRUE(state.captured);
    EXPECT_EQ(Tick(state, false), (List{Kill(1), Start(2), Notification(100)}));
}

TEST(UdlrCapture, TakenByTheSystemRepeatsWhileTheButtonIsHeld) {
    State state = Pressed();
    EXPECT_EQ(Do(state, {EventKind::CaptureChanged, 0, 0, false, CaptureOwner::Nobody}), List{});
    EXPECT_EQ(Tick(state, true), (List{Kill(1), Start(2), Notification(100)}));
    EXPECT_EQ(Tick(state, false), (List{Kill(2), {Repaint}}));
    EXPECT_FALSE(state.captured);
}

TEST(UdlrCapture, TakenFromADisabledPadChangesNothing) {
    State state = Pressed();
    Do(state, {EventKind::CaptureChanged, 0, 0, false, CaptureOwner::Nobody});
    Event disabled{EventKind::Enable};
    disabled.enabled = false;
    Do(state, disabled);
    EXPECT_EQ(Tick(state, false), (List{Kill(1), Start(2), Notification(100)}));
    EXPECT_EQ(Tick(state, false), List{Notification(100)});
    EXPECT_TRUE(state.captured);
}

TEST(UdlrCapture, TakenBetweenPressesIsNoConcern) {
    State state;
    EXPECT_EQ(TakeCapture(state, false), List{});
    Down(state, 14, 3);
    EXPECT_EQ(Tick(state, false), (List{Kill(1), Start(2), Notification(100)}))
        << "with the capture in hand the release is awaited";
}

TEST(UdlrCapture, ANewPressForgetsThatItWasTaken) {
    State state = Pressed();
    TakeCapture(state, true);
    Down(state, 14, 3);
    EXPECT_EQ(Tick(state, false), (List{Kill(1), Start(2), Notification(100)}));
}

TEST(UdlrStale, IsATimerWhosePhaseIsOver) {
    State state = Pressed();
    EXPECT_FALSE(IsStale(state, Start(1)));
    Up(state); // in the press's notification
    EXPECT_TRUE(IsStale(state, Start(1)));
    EXPECT_FALSE(IsStale(state, {Repaint}));
    EXPECT_FALSE(IsStale(state, Kill(1)));
    EXPECT_FALSE(IsStale(state, Notification(100)));
    Down(state, 14, 3);
    EXPECT_FALSE(IsStale(state, Start(1)));
    Tick(state);
    EXPECT_FALSE(IsStale(state, Start(2)));
    EXPECT_TRUE(IsStale(state, Start(1)));
}

} // namespace
} // namespace vorn::udlr
