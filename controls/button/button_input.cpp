#include "controls/button/button_input.h"

namespace vorn::button {
namespace {

constexpr std::uint32_t kKeyTab = 9;
constexpr std::uint32_t kKeyReturn = 13;
constexpr std::uint32_t kKeySpace = 32;
constexpr std::uint32_t kKeyLeft = 37;
constexpr std::uint32_t kKeyRight = 39;

// The keys that are the system's: Shift, Ctrl, Alt, Esc, Print Screen, Num Lock and Caps Lock.
constexpr std::uint32_t kSystemKeys[] = {16, 17, 18, 27, 44, 144, 20};

bool Has(std::uint32_t bits, std::uint32_t bit) {
    return (bits & bit) != 0;
}

void Put(State& state, std::uint32_t flag, bool on) {
    state.flags = on ? state.flags | flag : state.flags & ~flag;
}

void AppendNotification(Actions& actions, const Event& event, std::uint32_t code) {
    if (code == kClicked || Has(event.style, kStyleNotify)) {
        Append(actions, {ActionKind::Notify, code});
    }
}

void AppendRedraw(Actions& actions) {
    Append(actions, {ActionKind::Redraw});
}

// Takes the button down or up, whatever it was, and tells so.
void Turn(Actions& actions, State& state, const Event& event, bool down) {
    Put(state, kStateDown, down);
    AppendNotification(actions, event, down ? kWentDown : kCameUp);
}

// What a press by mouse or key does first. A toggle button clicks when it goes down; the other
// kinds do at the release.
void PressDown(Actions& actions, State& state, const Event& event) {
    const bool toggle = Has(event.style, kStyleToggle);
    Turn(actions, state, event, !toggle || !IsDown(state));
    if (toggle && IsDown(state)) {
        AppendNotification(actions, event, kClicked);
    }
    if (Has(event.style, kStyleAutoRepeat)) {
        AppendNotification(actions, event, kClicked);
    }
}

// Whether the end of a press takes the button up again.
bool ComesUp(const State& state, const Event& event) {
    return IsDown(state) && !Has(event.style, kStyleToggle);
}

// What a release of mouse or key does first. Where a press clicks at once, its release does not.
void LetUp(Actions& actions, State& state, const Event& event) {
    if (!ComesUp(state, event)) {
        return;
    }
    Turn(actions, state, event, false);
    AppendRedraw(actions);
    if (!Has(event.style, kStyleAutoRepeat)) {
        AppendNotification(actions, event, kClicked);
    }
}

void AppendKillTimer(Actions& actions, const State& state) {
    if (state.repeatTimer != 0) {
        Append(actions, {ActionKind::KillTimer, state.repeatTimer});
    }
}

Actions Press(State& state, const Event& event) {
    Actions actions;
    if (!Contains(event.client, event.point)) {
        return actions;
    }
    Append(actions, {ActionKind::Capture});
    Put(state, kStateCaptured, true);
    PressDown(actions, state, event);
    if (Has(event.style, kStyleAutoRepeat)) {
        state.repeatTimer = kDelayTimer;
        Append(actions, {ActionKind::StartTimer, kDelayTimer});
    }
    AppendRedraw(actions);
    return actions;
}

// A captured button is down under the pointer and up elsewhere, a toggle button too.
Actions Move(State& state, const Event& event) {
    Actions actions;
    const bool inside = Contains(event.client, event.point);
    if (Has(state.flags, kStateCaptured) && inside != IsDown(state)) {
        Turn(actions, state, event, inside);
        AppendRedraw(actions);
    }
    return actions;
}

Actions Release(State& state, const Event& event) {
    Actions actions;
    if (!Has(state.flags, kStateCaptured)) {
        return actions;
    }
    Append(actions, {ActionKind::ReleaseCapture});
    Put(state, kStateCaptured, false);
    LetUp(actions, state, event);
    if (Has(event.style, kStyleAutoRepeat)) {
        AppendKillTimer(actions, state);
    }
    return actions;
}

// A press whose capture is taken away will see no release: it ends here, without a click. The timer
// stops whatever the style says by now, since a toggle button stays down and would go on clicking.
Actions CaptureChanged(State& state, const Event& event) {
    Actions actions;
    if (!Has(state.flags, kStateCaptured) || event.captureOwner == CaptureOwner::Self) {
        return actions;
    }
    Put(state, kStateCaptured, false);
    AppendKillTimer(actions, state);
    if (ComesUp(state, event)) {
        Turn(actions, state, event, false);
        AppendRedraw(actions);
    }
    return actions;
}

// A repeat timer that outlived its press ticks on without a click while the button is up.
Actions Timer(State& state, const Event& event) {
    Actions actions;
    if (event.timer == kDelayTimer) {
        state.repeatTimer = kRepeatTimer;
        Append(actions, {ActionKind::KillTimer, kDelayTimer});
        Append(actions, {ActionKind::StartTimer, kRepeatTimer});
    } else if (IsDown(state)) {
        AppendNotification(actions, event, kClicked);
    }
    return actions;
}

bool IsSystemKey(std::uint32_t key) {
    for (const std::uint32_t systemKey : kSystemKeys) {
        if (key == systemKey) {
            return true;
        }
    }
    return false;
}

bool IsPressKey(std::uint32_t key) {
    return key == kKeyReturn || key == kKeySpace;
}

bool IsFocusKey(std::uint32_t key) {
    return key == kKeyTab || key == kKeyLeft || key == kKeyRight;
}

// A pressed key repeats as the keyboard does, and an auto-repeat button's clicks with it.
Actions KeyDown(State& state, const Event& event) {
    Actions actions;
    if (IsPressKey(event.key)) {
        PressDown(actions, state, event);
        AppendRedraw(actions);
    } else if (IsFocusKey(event.key) && !event.control && !event.alt) {
        const bool back = event.key == kKeyTab ? event.shift : event.key == kKeyLeft;
        Append(actions, {back ? ActionKind::FocusPrevious : ActionKind::FocusNext});
    } else if (IsSystemKey(event.key)) {
        Append(actions, {ActionKind::PassOn});
    }
    return actions;
}

Actions KeyUp(State& state, const Event& event) {
    Actions actions;
    if (IsPressKey(event.key)) {
        LetUp(actions, state, event);
    } else {
        Append(actions, {ActionKind::PassOn});
    }
    return actions;
}

Actions FocusGained(State& state, const Event& event) {
    Actions actions;
    if (event.otherIsButton) {
        Append(actions, {ActionKind::StyleOther, 0, true});
    }
    Put(state, kStateFocus, true);
    AppendNotification(actions, event, kGotFocus);
    Append(actions, {ActionKind::StyleSelf, kStyleDefault, true});
    return actions;
}

Actions FocusLost(State& state, const Event& event) {
    Actions actions;
    if (event.handsOver) {
        Append(actions, {ActionKind::StyleSelf, 0, false});
        Append(actions, {ActionKind::StyleOther, kStyleDefault, true});
    }
    Put(state, kStateFocus, false);
    if (ComesUp(state, event)) {
        Turn(actions, state, event, false);
    }
    AppendNotification(actions, event, kLostFocus);
    AppendRedraw(actions);
    return actions;
}

Actions Enable(State& state, const Event& event) {
    Actions actions;
    Put(state, kStateEnabled, event.on);
    if (!event.on) {
        AppendNotification(actions, event, kGotDisabled);
    }
    Append(actions, {event.on ? ActionKind::MarkEnabled : ActionKind::MarkDisabled});
    AppendRedraw(actions);
    return actions;
}

// Never a click.
Actions SetState(State& state, const Event& event) {
    Actions actions;
    if (event.on != IsDown(state)) {
        Turn(actions, state, event, event.on);
        AppendRedraw(actions);
    }
    return actions;
}

Actions StopRepeat(const State& state, const Event& event) {
    Actions actions;
    if (Has(event.style, kStyleAutoRepeat)) {
        AppendKillTimer(actions, state);
    }
    return actions;
}

} // namespace

Actions Step(State& state, const Event& event) {
    switch (event.kind) {
    case EventKind::Press:
        return Press(state, event);
    case EventKind::Move:
        return Move(state, event);
    case EventKind::Release:
        return Release(state, event);
    case EventKind::CaptureChanged:
        return CaptureChanged(state, event);
    case EventKind::Timer:
        return Timer(state, event);
    case EventKind::KeyDown:
        return KeyDown(state, event);
    case EventKind::KeyUp:
        return KeyUp(state, event);
    case EventKind::FocusGained:
        return FocusGained(state, event);
    case EventKind::FocusLost:
        return FocusLost(state, event);
    case EventKind::Enable:
        return Enable(state, event);
    case EventKind::SetState:
        return SetState(state, event);
    case EventKind::StopRepeat:
        return StopRepeat(state, event);
    }
    return {};
}

bool IsStale(const State& state, const Action& action) {
    return action.kind == ActionKind::StartTimer && action.value == kDelayTimer &&
           !Has(state.flags, kStateCaptured);
}

} // namespace vorn::button
