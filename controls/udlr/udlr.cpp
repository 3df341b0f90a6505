#include "controls/udlr/udlr.h"

namespace vorn::udlr {
namespace {

constexpr std::int32_t kSide = 28;      // the square's first column and row outside
constexpr std::int32_t kUpperHalf = 14; // its last row of the upper half

void AppendNotification(Actions& actions, Direction direction) {
    if (direction != Direction::None) {
        Append(actions, {ActionKind::Notify, NotificationCode(direction)});
    }
}

void AppendTimer(Actions& actions, ActionKind kind, std::uint32_t timer) {
    Append(actions, {kind, 0, timer});
}

Actions Press(State& state, const Event& event) {
    state.captured = true;
    state.captureTaken = false;
    state.direction = HitTest(event.x, event.y);
    state.timerPhase = kDelayTimer;

    Actions actions;
    Append(actions, {ActionKind::Capture});
    AppendNotification(actions, state.direction);
    AppendTimer(actions, ActionKind::StartTimer, kDelayTimer);
    Append(actions, {ActionKind::Repaint});
    return actions;
}

Actions Move(State& state, const Event& event) {
    Actions actions;
    const Direction direction = HitTest(event.x, event.y);
    if (!state.captured || direction == state.direction) {
        return actions;
    }
    state.direction = direction;
    AppendNotification(actions, direction);
    Append(actions, {ActionKind::Repaint});
    return actions;
}

// Back to rest. Nothing is notified.
void AppendRest(Actions& actions, State& state) {
    if (state.timerPhase != kNoTimer) {
        AppendTimer(actions, ActionKind::KillTimer, state.timerPhase);
    }
    Append(actions, {ActionKind::Repaint});
    state.timerPhase = kNoTimer;
    state.direction = Direction::None;
    state.captured = false;
    state.captureTaken = false;
}

Actions Release(State& state) {
    Actions actions;
    Append(actions, {ActionKind::ReleaseCapture});
    AppendRest(actions, state);
    return actions;
}

// Without the capture the pad does not see the button's release: it then looks for itself whether
// the button is still down.
bool ReleasedElsewhere(const State& state, const Event& event) {
    return state.captureTaken && !event.buttonHeld;
}

// The system takes the capture, so that nobody has it afterwards, when it opens a message box, and
// from a pad that is being disabled, which goes on. Which of them it is shows later.
Actions CaptureChanged(State& state, const Event& event) {
    Actions actions;
    if (event.captureOwner == CaptureOwner::Self) {
        return actions;
    }
    state.captureTaken = state.captured;
    if (event.captureOwner == CaptureOwner::Other && ReleasedElsewhere(state, event)) {
        AppendRest(actions, state);
    }
    return actions;
}

Actions Timer(State& state, const Event& event) {
    Actions actions;
    if (!state.disabled && ReleasedElsewhere(state, event)) {
        AppendRest(actions, state);
        return actions;
    }
    if (state.timerPhase == kDelayTimer) {
        AppendTimer(actions, ActionKind::KillTimer, kDelayTimer);
        AppendTimer(actions, ActionKind::StartTimer, kRepeatTimer);
        state.timerPhase = kRepeatTimer;
    }
    if (state.timerPhase == kRepeatTimer) {
        AppendNotification(actions, state.direction);
    }
    return actions;
}

Actions Enable(State& state, const Event& event) {
    Actions actions;
    state.disabled = !event.enabled;
    Append(actions, {ActionKind::RepaintErased});
    return actions;
}

} // namespace

Direction HitTest(std::uint16_t x, std::uint16_t y) {
    if (x < 1 || x >= kSide || y < 1 || y >= kSide || x == y || x == kSide - y) {
        return Direction::None;
    }
    const bool upperHalf = y <= kUpperHalf;
    const std::int32_t leftDiagonal = upperHalf ? y : kSide - y;
    if (x < leftDiagonal) {
        return Direction::Left;
    }
    if (x > kSide - leftDiagonal) {
        return Direction::Right;
    }
    return upperHalf ? Direction::Up : Direction::Down;
}

std::uint16_t NotificationCode(Direction direction) {
    switch (direction) {
    case Direction::Up:
        return 100;
    case Direction::Right:
        return 101;
    case Direction::Down:
        return 102;
    case Direction::Left:
        return 103;
    case Direction::None:
        break;
    }
    return 0;
}

std::uint32_t PictureOf(Direction direction) {
    if (direction == Direction::None) {
        return 0;
    }
    // Codes and pictures have the same order, clockwise from up.
    return 1u + NotificationCode(direction) - NotificationCode(Direction::Up);
}

Size RequiredSize(std::uint32_t style, Size border) {
    const std::int32_t borders = (style & kStyleBorder) != 0 ? 2 : 0;
    return {kPictureSide + borders * border.width, kPictureSide + borders * border.height};
}

Actions Step(State& state, const Event& event) {
    switch (event.kind) {
    case EventKind::ButtonDown:
        return Press(state, event);
    case EventKind::Move:
        return Move(state, event);
    case EventKind::ButtonUp:
        return Release(state);
    case EventKind::Timer:
        return Timer(state, event);
    case EventKind::CaptureChanged:
        return CaptureChanged(state, event);
    case EventKind::Enable:
        return Enable(state, event);
    }
    return {};
}

bool IsStale(const State& state, const Action& action) {
    return action.kind == ActionKind::StartTimer && action.timer != state.timerPhase;
}

} // namespace vorn::udlr
