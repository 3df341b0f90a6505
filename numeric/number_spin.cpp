#include "numeric/number_spin.h"

namespace vorn::numeric {
namespace {

using edit::ActionKind;
using edit::Actions;

// Returns whether the value may be stepped to.
bool StepValue(const NumberEntry& entry, bool up, double& value) {
    const NumberSettings& settings = entry.settings;
    value = ValueOf(entry);
    const double stepped = up ? value + 1 : value - 1;
    const bool within = up ? stepped <= settings.maxValue : stepped >= settings.minValue;
    if (settings.rangeCheck != 0 && !within) {
        return false;
    }
    value = stepped;
    return true;
}

Actions StoreStepped(NumberEntry& entry, double value) {
    Actions actions;
    char text[kNumberTextSize];
    WriteEdited(entry.settings, value, text);
    if (CutAtLimit(entry, text)) {
        Append(actions, {ActionKind::Notify, kTextCut});
    }
    entry.caret.firstVisible = 0;
    StoreNumber(entry, text, kLongestText);
    AppendNumberChange(actions, ActionKind::RepaintText);
    return actions;
}

void AppendKillTimer(SpinActions& actions, SpinState& state) {
    if (state.timer != 0) {
        Append(actions, {SpinActionKind::KillTimer, state.timer});
        state.timer = 0;
    }
}

SpinActions Press(SpinState& state, SpinButton button) {
    SpinActions actions;
    AppendKillTimer(actions, state);
    state = {button, kDelayTimer, 0};
    Append(actions, {SpinActionKind::BeginPress});
    Append(actions, {SpinActionKind::StartTimer, kDelayTimer});
    Append(actions, {SpinActionKind::TakeFocus});
    Append(actions, {SpinActionKind::Redraw});
    Append(actions, {SpinActionKind::AskAndStep});
    return actions;
}

SpinActions End(SpinState& state) {
    SpinActions actions;
    if (state.pressed == SpinButton::None) {
        return actions;
    }
    AppendKillTimer(actions, state);
    state = {};
    Append(actions, {SpinActionKind::EndPress});
    Append(actions, {SpinActionKind::Redraw});
    return actions;
}

// A tick that was on its way when its timer was killed does nothing.
SpinActions Tick(SpinState& state, std::uint32_t timer) {
    SpinActions actions;
    if (timer != kDelayTimer && timer != kRepeatTimer) {
        Append(actions, {SpinActionKind::PassOn});
    } else if (timer == state.timer && timer == kDelayTimer) {
        ++state.repeatCount;
        AppendKillTimer(actions, state);
        state.timer = kRepeatTimer;
        Append(actions, {SpinActionKind::StartTimer, kRepeatTimer});
    } else if (timer == state.timer) {
        Append(actions, {SpinActionKind::AskAndStep});
    }
    return actions;
}

} // namespace

SpinButton SpinButtonAt(const Rect& client, Point point) {
    const std::int32_t width = edit::RightPartWidth(Height(client), kSpinEighths);
    if (!Contains(client, point) || point.x < client.right - width) {
        return SpinButton::None;
    }
    return point.y <= client.bottom / 2 ? SpinButton::Up : SpinButton::Down;
}

Actions StepByMouse(NumberEntry& entry, bool up) {
    double value = 0;
    StepValue(entry, up, value);
    return StoreStepped(entry, value);
}

Actions StepByKey(NumberEntry& entry, bool up) {
    double value = 0;
    return StepValue(entry, up, value) ? StoreStepped(entry, value) : Actions{};
}

SpinActions Step(SpinState& state, const SpinEvent& event) {
    switch (event.kind) {
    case SpinEventKind::Press:
        return Press(state, event.button);
    case SpinEventKind::End:
        return End(state);
    case SpinEventKind::Timer:
        return Tick(state, event.timer);
    }
    return {};
}

bool IsStale(const SpinState& state, const SpinAction& action) {
    switch (action.kind) {
    case SpinActionKind::StartTimer:
        return state.timer != action.timer;
    case SpinActionKind::BeginPress:
    case SpinActionKind::TakeFocus:
    case SpinActionKind::AskAndStep:
        return state.pressed == SpinButton::None;
    default:
        return false;
    }
}

} // namespace vorn::numeric
