// How the picture button reacts: to the mouse, the keyboard, its timers and the focus.
#pragma once

#include "controls/button/button.h"
#include "core/steps.h"

#include <cstdint>

namespace vorn::button {

// Notification codes. All but the click need the style bit kStyleNotify.
constexpr std::uint32_t kClicked = 0;
constexpr std::uint32_t kWentDown = 2;
constexpr std::uint32_t kCameUp = 3;
constexpr std::uint32_t kGotDisabled = 4;
constexpr std::uint32_t kGotFocus = 6;
constexpr std::uint32_t kLostFocus = 7;

// The auto-repeat timers. The interval of each is the number that a setting of the keyboard has
// (its delay, 0 to 3, and its speed, 0 to 31), the low 16 bits of it taken as milliseconds as they
// stand: the repeat runs as fast as the system's timers do.
constexpr std::uint32_t kDelayTimer = 1;  // SPI_GETKEYBOARDDELAY
constexpr std::uint32_t kRepeatTimer = 2; // SPI_GETKEYBOARDSPEED

enum class EventKind : std::uint8_t {
    // A press at `point`, double click or not. The button takes the focus between reading `style`
    // and this event: gaining the focus costs the auto-repeat and toggle bits, which count for the
    // press all the same.
    Press,
    Move,           // to `point`
    Release,        // `style` is that after the press
    CaptureChanged, // to captureOwner
    Timer,          // `timer`
    KeyDown,        // `key`, control, alt, shift
    KeyUp,          // `key`
    FocusGained,    // otherIsButton
    FocusLost,      // handsOver; `style` before anything is done about it
    Enable,         // `on`
    SetState,       // `on` is down
    StopRepeat,
};

struct Event {
    EventKind kind;
    std::uint32_t style = 0; // the window's
    Rect client{};
    Point point{};
    CaptureOwner captureOwner = CaptureOwner::Nobody;
    std::uint32_t timer = 0;
    std::uint32_t key = 0; // virtual key code
    bool control = false;
    bool alt = false;
    bool shift = false;
    bool otherIsButton = false; // whether the window that lost the focus is a button
    bool handsOver = false;     // whether DefaultHeir names another button than this one
    bool on = false;
};

enum class ActionKind : std::uint8_t {
    Notify, // the parent, with the code `value`
    Capture,
    ReleaseCapture,
    StartTimer, // `value`: kDelayTimer or kRepeatTimer
    KillTimer,  // `value`
    Redraw,     // at once
    // BM_SETSTYLE with the bits `value`, and with redrawing if `redraw`, sent to the button itself,
    // to the button that lost the focus or is the heir of the default look.
    StyleSelf,
    StyleOther,
    MarkEnabled,  // take WS_DISABLED out of the style
    MarkDisabled, // put it in
    FocusNext,    // tab item of the parent
    FocusPrevious,
    PassOn, // the message, to the default procedure, whose result is the message's
};

struct Action {
    ActionKind kind;
    std::uint32_t value = 0;
    bool redraw = false;

    friend constexpr bool operator==(const Action&, const Action&) = default;
};

using Actions = ActionList<Action, 6>;

// Takes the state over the event and answers what is to be done.
Actions Step(State& state, const Event& event);

// Whether an action of an earlier step is no longer to be done, since a notification before it led
// to another step that undid it: a press that ended in there has no repeat to start.
bool IsStale(const State& state, const Action& action);

// The button that has the default look once `self` has lost the focus; `self` when nothing changes.
//
// When the focus goes to another button, that one sees to the look. Otherwise it passes to the
// first of the unbroken run of buttons that ends with `self` in tab order. When every tab item is a
// button there is no first; that shows in the walk returning to `self` a second time or, since it
// never returns to a button that is no tab stop, in its going round without.
//
// `isButton(item)` asks an item, also a null one, whether it is a button; `previous(item)` answers
// the tab item before it.
template <class Item, class IsButton, class Previous>
Item DefaultHeir(Item self, bool focusGoesToButton, IsButton isButton, Previous previous) {
    if (focusGoesToButton) {
        return self;
    }
    Item heir = self;
    Item landmark = self; // an item of the walk, moved on at every power of two
    std::uint32_t returns = 0;
    std::uint32_t steps = 0;
    for (Item item = self; isButton(item); item = previous(item), ++steps) {
        heir = item;
        returns += item == self && steps != 0 ? 1u : 0u;
        if (returns == 2 || (item == landmark && item != self)) {
            return self;
        }
        if ((steps & (steps - 1)) == 0) {
            landmark = item;
        }
    }
    return heir;
}

} // namespace vorn::button
