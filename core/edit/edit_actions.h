// What the steps of an edit answer.
#pragma once

#include "core/steps.h"

#include <cstdint>

namespace vorn::edit {

// Messages that an edit sends itself, for hosts that subclass it.
constexpr std::uint32_t kAskOkToChange = 1183; // before a change; the answer 0 refuses it
constexpr std::uint32_t kTellChanged = 1424;   // after a change

// Notification codes, those of the system's edit.
constexpr std::uint32_t kChange = 0x0300;
constexpr std::uint32_t kUpdate = 0x0400;
constexpr std::uint32_t kMaxText = 0x0501;
constexpr std::uint32_t kHScroll = 0x0601;

enum class ActionKind : std::uint8_t {
    Beep,   // MB_ICONHAND
    Notify, // the parent, with `code`
    // kHScroll in the form that moves to the left have always had and hosts know: wParam is the
    // control's identifier alone, lParam the low half of its window handle below kHScroll.
    NotifyLeftScroll,
    SendChanged, // kTellChanged to the edit itself
    PostChanged, // the same, posted
    Repaint,     // the client area at once, without erasing
    RepaintText, // only the text area
    Scroll,      // to where the caret is in view, to be repainted by what follows
    PlaceCaret,  // where the state says, scrolled into view
    PassOn,      // the message, to the default procedure, whose result is the message's
    // The selection is to be put on the clipboard; for Cut the edit clears it once it is there.
    Copy,
    Cut,
    Paste, // the edit takes the clipboard's text
};

struct Action {
    ActionKind kind;
    std::uint32_t code = 0;

    friend constexpr bool operator==(const Action&, const Action&) = default;
};

// The longest is a Backspace that scrolls.
using Actions = ActionList<Action, 9>;

// What a change by the user does, once the value is stored and its text rebuilt. `repaint` is one
// of the two kinds of repainting.
constexpr void AppendChange(Actions& actions, ActionKind repaint) {
    Append(actions, {ActionKind::SendChanged});
    Append(actions, {ActionKind::Notify, kUpdate});
    Append(actions, {repaint});
    Append(actions, {ActionKind::Notify, kChange});
    Append(actions, {ActionKind::PlaceCaret});
}

} // namespace vorn::edit
