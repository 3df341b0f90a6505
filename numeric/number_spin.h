// The spin buttons at the right edge of the numeric edit, and their steps.
#pragma once

#include "core/edit/edit_layout.h"
#include "core/steps.h"
#include "numeric/number_entry.h"

#include <cstdint>

namespace vorn::numeric {

enum class SpinButton : std::uint8_t { None, Up, Down };

// The spin area takes so many eighths of the client area's height from its width.
constexpr std::int32_t kSpinEighths = 5;

// The button at a point of the client area, when the buttons are shown: the upper one down to half
// the height, inclusive.
SpinButton SpinButtonAt(const Rect& client, Point point);

// Adds 1 to the value, clamped, of which null is 0, or subtracts it, unless that would leave the
// range on this side; the text is made anew all the same, which a limit does not keep from being a
// change. Answers the change, with kTextCut in front when the text had to be cut.
edit::Actions StepByMouse(NumberEntry& entry, bool up);

// The same, but at the limit nothing happens at all.
edit::Actions StepByKey(NumberEntry& entry, bool up);

// The timers: the first waits for the repeat, whose interval is the keyboard's speed, 0 to 31, the
// number itself taken as milliseconds.
constexpr std::uint32_t kDelayTimer = 1;
constexpr std::uint32_t kRepeatTimer = 2;
constexpr std::uint32_t kDelay = 1000; // milliseconds

struct SpinState {
    SpinButton pressed = SpinButton::None;
    std::uint16_t timer = 0; // kDelayTimer or kRepeatTimer while it runs, else 0
    std::uint16_t repeatCount = 0;
};

enum class SpinEventKind : std::uint8_t {
    Press, // `button`
    // The button came up, the capture went to another window, or the buttons are no longer shown.
    End,
    Timer, // `timer`
};

struct SpinEvent {
    SpinEventKind kind;
    SpinButton button = SpinButton::None;
    std::uint32_t timer = 0;
};

enum class SpinActionKind : std::uint8_t {
    BeginPress, // capture the mouse and hide the caret
    EndPress,
    StartTimer, // `timer`
    KillTimer,  // `timer`
    TakeFocus,  // unless the control has it
    Redraw,
    AskAndStep, // send kAskOkToChange and, if allowed and still pressed, StepByMouse
    PassOn,     // the message, to the default procedure
};

struct SpinAction {
    SpinActionKind kind;
    std::uint32_t timer = 0;

    friend constexpr bool operator==(const SpinAction&, const SpinAction&) = default;
};

using SpinActions = ActionList<SpinAction, 6>;

// Takes the buttons over the event and answers what is to be done.
SpinActions Step(SpinState& state, const SpinEvent& event);

// Whether an action of an earlier step is no longer to be done, since the press ended meanwhile.
bool IsStale(const SpinState& state, const SpinAction& action);

} // namespace vorn::numeric
