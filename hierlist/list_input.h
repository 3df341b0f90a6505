// What the list's reactions to the keyboard, the mouse and the focus share: their state and what
// their steps answer.
//
// Each step takes the state over an event at once and answers what is left to do, in order. All
// that may run host code is among that; so rows that an action names may be others by then, or
// none.
#pragma once

#include "core/geometry.h"
#include "core/steps.h"
#include "hierlist/list_options.h"
#include "hierlist/selection.h"

#include <cstdint>

namespace vorn::hierlist {

// Window style bits, beside those of the outline and of its looks.
constexpr std::uint32_t kStyleNotify = 0x1;
constexpr std::uint32_t kStyleMultipleSel = 0x8;
constexpr std::uint32_t kStyleWantKeyboardInput = 0x400;
constexpr std::uint32_t kStyleExtendedSel = 0x800;

// Modifier bits, as mouse messages have them.
constexpr std::uint32_t kShift = 4;
constexpr std::uint32_t kControl = 8;

// Notification codes. The first two need kStyleNotify.
constexpr std::uint32_t kSelChange = 1;
constexpr std::uint32_t kDoubleClicked = 2;
constexpr std::uint32_t kGotFocus = 4;
constexpr std::uint32_t kLostFocus = 5;

// Timers. The second does nothing but start again.
constexpr std::uint32_t kDragTimer = 101;
constexpr std::uint32_t kIdleTimer = 100;

struct Input {
    Selection selection;
    OlbItem* pressed = nullptr; // the item under the last press; null when it is gone
    OlbItem* dragAt = nullptr;  // the item that the drag has come to; null when it is gone
    Point pointer{};            // where the press or the last move was
    std::uint32_t presses = 0;  // how many there were
    std::uint32_t pressModifiers = 0;
    bool captured = false;                 // from a press to its release
    bool dragged = false;                  // the press has become a drag
    std::uint16_t autoScrollInterval = 50; // milliseconds
    std::uint16_t repeatDelay = 300;       // milliseconds; kept for the host, of no effect
};

// What of the rows is in view.
struct View {
    std::uint32_t topRow = 0;
    std::uint32_t bottomRow = 0;
    std::uint32_t rowsPerColumn = 0;
};

enum class ActionKind : std::uint8_t {
    Notify,         // the parent, with the code `first`
    ShowRow,        // scroll until the row `first` is in view
    RepaintRows,    // mark the rows `first` to `last` for painting, as far as they are in view
    RepaintTop,     // the same for the strip of the top row, which an empty list has too
    RepaintAll,     //
    Update,         // paint what is marked, at once
    Open,           // the row `first`
    Close,          // the row `first`
    OpenAll,        // the row `first` and everything below it
    Toggle,         // TogglePressed
    Capture,        //
    ReleaseCapture, //
    StartTimer,     // `first`, with the period autoScrollInterval
    KillTimer,      // `first`
    PageUp,         // scroll by a page, then take the step Paged with the modifiers `first`
    PageDown,
    FocusNext,     // tab item of the parent
    FocusPrevious, //
};

struct Action {
    ActionKind kind;
    std::uint32_t first = 0;
    std::uint32_t last = 0; // for Toggle and kDoubleClicked: of which press, by its number

    friend constexpr bool operator==(const Action&, const Action&) = default;
};

using Actions = ActionList<Action, 12>;

// Whether an action of an earlier step is no longer to be done, since host code that ran before it
// ended the press or deleted the item that it is about.
bool IsStale(const Input& input, const Action& action);

// To be called when the outline says so: an item, or all of them, is about to be freed.
void DropItem(Input& input, const OlbItem* item);
void DropAllItems(Input& input);

// ---- What steps are made of ----

inline bool Has(const Outline& outline, std::uint32_t style) {
    return (outline.style & style) != 0;
}

// Marks a row, or everything, for painting, unless the style forbids it or it is marked already.
// kNoRow marks nothing.
void RepaintRow(Actions& actions, const Outline& outline, std::uint32_t row);
void RepaintRows(Actions& actions, const Outline& outline, std::uint32_t first, std::uint32_t last);
void RepaintAll(Actions& actions, const Outline& outline);

// Has what was marked painted, if anything was.
void AppendUpdate(Actions& actions);

// Notifies the parent if the style wants it.
void AppendNotify(Actions& actions, const Outline& outline, std::uint32_t code,
                  std::uint32_t press = 0);

} // namespace vorn::hierlist
