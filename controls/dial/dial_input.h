// What the dial does on input: each step takes the dial's state and an event, and answers what is
// to be done, in order. It never moves the position itself: it tells the owner what the user did,
// as a scroll bar does, and the owner sets the position.
#pragma once

#include "controls/dial/dial.h"
#include "core/steps.h"

namespace vorn::dial {

// The platform's scroll codes.
enum class ScrollCode : std::uint16_t {
    LineUp,
    LineDown,
    PageUp,
    PageDown,
    ThumbPosition,
    ThumbTrack,
    Top,
    Bottom,
    EndScroll,
};

// A held corner button: after the first delay, repeats at the user's keyboard rate.
constexpr std::uint32_t kDelayTimer = 1;
constexpr std::uint32_t kRepeatTimer = 2;
constexpr std::uint32_t kFirstDelay = 1000; // milliseconds

enum class ActionKind : std::uint8_t {
    Capture,        // take the mouse
    ReleaseCapture, // let it go
    Scroll,         // send the receiver `code` with `position`
    StartTimer,     // `timer`, every `milliseconds`
    StopTimer,      // `timer`
    Redraw,         // the whole dial, at once
    TakeFocus,      // unless the dial has it
    FocusNext,      // the next tab item
    FocusPrevious,  // the previous tab item
    MakeSmallest,   // make the window kSmallestWindow where it is
    RebuildFace,    // for the current client area
};

struct Action {
    ActionKind kind = ActionKind::Redraw;
    ScrollCode code = ScrollCode::LineUp;
    std::uint16_t position = 0; // what fits of it beside the code
    std::uint32_t timer = 0;
    std::uint32_t milliseconds = 0;

    friend constexpr bool operator==(const Action&, const Action&) = default;
};

using Actions = ActionList<Action, 5>;

// A scroll message runs host code, in which the dial may lose the mouse before the rest of the list
// is done. Whether this action is then not to be done any more; asked before each of them.
bool IsStale(const State& state, const Action& action);

// The left mouse button is pressed, once or twice. `tabStop`: the dial has the style WS_TABSTOP.
Actions Press(State& state, Size client, Point pointer, bool tabStop);

// The pointer is moved, with or without the button.
Actions Move(State& state, Size client, Point pointer);

// The left mouse button is released, whether or not it was pressed over the dial.
Actions Release(State& state, Size client, Point pointer);

// The capture changed. When it went against the dial's will, the gesture ends without a message,
// since the user has not ended it.
Actions CaptureChanged(State& state, CaptureOwner owner);

// A timer has run down; nothing for others than the dial's own. `keyboardSpeed`: the system's
// setting as it is (0 to 31), which serves as milliseconds.
Actions TimerTick(const State& state, std::uint32_t timer, std::uint32_t keyboardSpeed);

struct Modifiers {
    bool shift = false;
    bool control = false;
    bool alt = false;
};

// A key goes down, by its virtual code.
Actions KeyDown(const State& state, std::uint32_t key, Modifiers modifiers);

// A character is typed.
Actions CharacterTyped(const State& state, std::uint32_t character);

// The dial gains or loses the focus.
Actions FocusChanged();

// The dial is enabled or disabled.
Actions Enable(State& state, std::uint32_t enabled);

// The window, frame and all, has this size now.
Actions Resized(Size window);

} // namespace vorn::dial
