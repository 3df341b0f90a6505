#include "controls/dial/dial_input.h"

namespace vorn::dial {
namespace {

constexpr std::uint32_t kKeyTab = 9;

enum class Towards : std::uint8_t { Minimum, Maximum };

// The arrows have the codes the other way round than the corner buttons and the signs have them:
// LineUp steps towards the minimum there and needs room towards the maximum here. Owners know.
struct KeyRow {
    std::uint32_t key;
    ScrollCode code;
    Towards room;
};
constexpr KeyRow kKeys[] = {
    {33, ScrollCode::PageUp, Towards::Maximum},   // Page Up
    {34, ScrollCode::PageDown, Towards::Minimum}, // Page Down
    {35, ScrollCode::Top, Towards::Maximum},      // End
    {36, ScrollCode::Bottom, Towards::Minimum},   // Home
    {37, ScrollCode::LineDown, Towards::Minimum}, // Left
    {38, ScrollCode::LineUp, Towards::Maximum},   // Up
    {39, ScrollCode::LineUp, Towards::Maximum},   // Right
    {40, ScrollCode::LineDown, Towards::Minimum}, // Down
};

void AppendPlain(Actions& actions, ActionKind kind) {
    Append(actions, {.kind = kind});
}

void AppendScroll(Actions& actions, ScrollCode code, std::int32_t position) {
    Append(actions, {.kind = ActionKind::Scroll,
                     .code = code,
                     .position = static_cast<std::uint16_t>(position)});
}

void AppendStart(Actions& actions, std::uint32_t timer, std::uint32_t milliseconds) {
    Append(actions, {.kind = ActionKind::StartTimer, .timer = timer, .milliseconds = milliseconds});
}

void AppendStop(Actions& actions, std::uint32_t timer) {
    Append(actions, {.kind = ActionKind::StopTimer, .timer = timer});
}

bool HasRoom(const State& state, Towards towards) {
    return towards == Towards::Minimum ? state.minimum < state.position
                                       : state.maximum > state.position;
}

void AppendIfRoom(Actions& actions, const State& state, ScrollCode code, Towards room) {
    if (HasRoom(state, room)) {
        AppendScroll(actions, code, state.position);
    }
}

void AppendLine(Actions& actions, const State& state, Towards towards) {
    const ScrollCode code = towards == Towards::Minimum ? ScrollCode::LineUp : ScrollCode::LineDown;
    AppendIfRoom(actions, state, code, towards);
}

// The value grows clockwise with direction 1, so that the left button is the one that lowers it.
void AppendLeftStep(Actions& actions, const State& state) {
    AppendLine(actions, state, state.direction == 1 ? Towards::Minimum : Towards::Maximum);
}

void AppendRightStep(Actions& actions, const State& state) {
    AppendLine(actions, state, state.direction == 1 ? Towards::Maximum : Towards::Minimum);
}

void Follow(Actions& actions, bool& down, bool inside) {
    if (down != inside) {
        down = inside;
        AppendPlain(actions, ActionKind::Redraw);
    }
}

void EndGesture(State& state) {
    state.rightDown = false;
    state.leftDown = false;
    state.captured = false;
}

void AppendStopBoth(Actions& actions) {
    AppendStop(actions, kDelayTimer);
    AppendStop(actions, kRepeatTimer);
}

} // namespace

// A timer that is started for a gesture that is over already would never be stopped.
bool IsStale(const State& state, const Action& action) {
    return action.kind == ActionKind::StartTimer && !state.captured;
}

Actions Press(State& state, Size client, Point pointer, bool tabStop) {
    const Geometry geometry = LayOut(client);
    Actions actions;
    AppendPlain(actions, ActionKind::Capture);
    state.captured = true;
    if (Contains(geometry.leftButton, pointer)) {
        state.mode = MouseMode::LeftButton;
        state.leftDown = true;
        AppendLeftStep(actions, state);
    } else if (Contains(geometry.rightButton, pointer)) {
        state.mode = MouseMode::RightButton;
        state.leftDown = false;
        state.rightDown = true;
        AppendRightStep(actions, state);
    } else {
        state.mode = MouseMode::Turn;
        AppendScroll(actions, ScrollCode::ThumbTrack,
                     PositionUnderPointer(state, geometry, pointer));
    }
    if (state.mode != MouseMode::Turn) {
        AppendStart(actions, kDelayTimer, kFirstDelay);
        AppendPlain(actions, ActionKind::Redraw);
    }
    if (tabStop) {
        AppendPlain(actions, ActionKind::TakeFocus);
    }
    return actions;
}

Actions Move(State& state, Size client, Point pointer) {
    Actions actions;
    if (!state.captured) {
        return actions;
    }
    const Geometry geometry = LayOut(client);
    switch (state.mode) {
    case MouseMode::LeftButton:
        Follow(actions, state.leftDown, Contains(geometry.leftButton, pointer));
        break;
    case MouseMode::RightButton:
        Follow(actions, state.rightDown, Contains(geometry.rightButton, pointer));
        break;
    case MouseMode::Turn:
        AppendScroll(actions, ScrollCode::ThumbTrack,
                     PositionUnderPointer(state, geometry, pointer));
        break;
    case MouseMode::None:
        break;
    }
    return actions;
}

Actions Release(State& state, Size client, Point pointer) {
    Actions actions;
    AppendPlain(actions, ActionKind::ReleaseCapture);
    AppendStopBoth(actions);
    EndGesture(state);
    if (state.mode == MouseMode::Turn) {
        AppendScroll(actions, ScrollCode::ThumbPosition,
                     PositionUnderPointer(state, LayOut(client), pointer));
    } else {
        AppendScroll(actions, ScrollCode::EndScroll, state.position);
    }
    AppendPlain(actions, ActionKind::Redraw);
    return actions;
}

Actions CaptureChanged(State& state, CaptureOwner owner) {
    Actions actions;
    if (state.captured && owner != CaptureOwner::Self) {
        EndGesture(state);
        AppendStopBoth(actions);
        AppendPlain(actions, ActionKind::Redraw);
    }
    return actions;
}

Actions TimerTick(const State& state, std::uint32_t timer, std::uint32_t keyboardSpeed) {
    Actions actions;
    if (timer == kDelayTimer) {
        AppendStop(actions, kDelayTimer);
        AppendStart(actions, kRepeatTimer, keyboardSpeed);
    } else if (timer == kRepeatTimer) {
        if (state.rightDown) {
            AppendRightStep(actions, state);
        } else if (state.leftDown) {
            AppendLeftStep(actions, state);
        }
    }
    return actions;
}

Actions KeyDown(const State& state, std::uint32_t key, Modifiers modifiers) {
    Actions actions;
    if (key == kKeyTab) {
        if (!modifiers.control && !modifiers.alt) {
            AppendPlain(actions,
                        modifiers.shift ? ActionKind::FocusPrevious : ActionKind::FocusNext);
        }
        return actions;
    }
    for (const KeyRow& row : kKeys) {
        if (row.key == key) {
            AppendIfRoom(actions, state, row.code, row.room);
        }
    }
    return actions;
}

Actions CharacterTyped(const State& state, std::uint32_t character) {
    Actions actions;
    if (character == '+') {
        AppendLine(actions, state, Towards::Maximum);
    } else if (character == '-') {
        AppendLine(actions, state, Towards::Minimum);
    }
    return actions;
}

Actions FocusChanged() {
    Actions actions;
    AppendPlain(actions, ActionKind::Redraw);
    return actions;
}

Actions Enable(State& state, std::uint32_t enabled) {
    state.enabled = enabled;
    Actions actions;
    AppendPlain(actions, ActionKind::Redraw);
    return actions;
}

Actions Resized(Size window) {
    const bool tooSmall =
        window.width < kSmallestWindow.width || window.height < kSmallestWindow.height;
    Actions actions;
    AppendPlain(actions, tooSmall ? ActionKind::MakeSmallest : ActionKind::RebuildFace);
    return actions;
}

} // namespace vorn::dial
