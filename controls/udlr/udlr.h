// The four-way spin pad's geometry and behaviour: everything about it that needs no window.
#pragma once

#include "core/geometry.h"
#include "core/steps.h"

#include <cstdint>

namespace vorn::udlr {

enum class Direction : std::uint8_t { None, Up, Down, Left, Right };

// The direction whose triangle holds the client point. The triangles are those that the diagonals
// cut from the square of columns and rows 1 to 27; the diagonals and everything outside the square
// belong to none. Coordinates are the 16-bit halves of a mouse message taken as unsigned, so that a
// point left of or above the pad is far to its right or below it.
Direction HitTest(std::uint16_t x, std::uint16_t y);

// The code that tells the parent of a direction; 0 for none, of which it is never told.
std::uint16_t NotificationCode(Direction direction);

// The pad's pictures, one for each part that can be pressed and one for rest.
constexpr std::uint32_t kPictures = 5;
constexpr std::uint16_t kFirstPicture = 305; // the resource identifier of picture 0
constexpr std::int32_t kPictureSide = 29;

// Which of the pictures shows this direction pressed, 0 to 4.
std::uint32_t PictureOf(Direction direction);

// The size that the pad's window always has: the picture's, within a border of this width and
// height if it has one (window style bit kStyleBorder).
constexpr std::uint32_t kStyleBorder = 0x00800000; // WS_BORDER
Size RequiredSize(std::uint32_t style, Size border);

// The pad's timers. The identifier of the one that was started last is the pad's phase.
constexpr std::uint32_t kNoTimer = 0;
constexpr std::uint32_t kDelayTimer = 1;
constexpr std::uint32_t kRepeatTimer = 2;

struct State {
    std::uint32_t timerPhase = kNoTimer;
    Direction direction = Direction::None;
    bool captured = false; // the mouse button went down on the pad and has not come up
    bool disabled = false;
    bool captureTaken = false; // while captured: the release may go unseen
};

enum class EventKind : std::uint8_t {
    ButtonDown,     // at x, y
    Move,           // at x, y
    ButtonUp,       //
    Timer,          // buttonHeld
    CaptureChanged, // to captureOwner; buttonHeld
    Enable,         // enabled
};

struct Event {
    EventKind kind;
    std::uint16_t x = 0;
    std::uint16_t y = 0;
    bool buttonHeld = false; // whether the mouse button is physically down
    CaptureOwner captureOwner = CaptureOwner::Nobody;
    bool enabled = false;
};

enum class ActionKind : std::uint8_t {
    Notify, // the parent, with `code`
    Capture,
    ReleaseCapture,
    StartTimer, // `timer`: kDelayTimer for kDelay, kRepeatTimer for the keyboard's speed setting
    KillTimer,  // `timer`
    Repaint,    // at once, without erasing
    RepaintErased,
};

struct Action {
    ActionKind kind;
    std::uint16_t code = 0;
    std::uint32_t timer = kNoTimer;

    friend constexpr bool operator==(const Action&, const Action&) = default;
};

// The repeat timer's interval is the number that the keyboard-speed setting has, taken as
// milliseconds as it stands.
constexpr std::uint32_t kDelay = 500; // milliseconds

using Actions = ActionList<Action, 4>;

// Takes the state over the event and answers what is to be done.
Actions Step(State& state, const Event& event);

// Whether an action of an earlier step is no longer to be done, since a notification before it led
// to another step that undid it: a button released in there leaves no timer to start.
bool IsStale(const State& state, const Action& action);

} // namespace vorn::udlr
