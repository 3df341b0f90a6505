// The keys of an edit whose text is made of fields: what each is for. A key goes two ways: first
// RouteKey says whether the edit takes it at all and has to ask whether it may change; once the
// answer is there, and the edit too, its commands follow.
#pragma once

#include "core/edit/field_caret.h"

#include <cstdint>

namespace vorn::edit {

struct Key {
    std::uint32_t code = 0; // virtual key
    bool control = false;
    bool alt = false;
    bool shift = false;
};

enum class KeyRoute : std::uint8_t {
    PassOn,    // the message, to the default procedure
    FocusNext, // tab item of the parent
    FocusPrevious,
    Refuse, // with a beep
    Ask,    // send kAskOkToChange once, and run the key with the answer
};

// A read-only edit refuses every key that is its own, those that would change nothing included.
KeyRoute RouteKey(const Key& key, bool readOnly);

enum class KeyCommand : std::uint8_t {
    None,
    PassOn,
    Left,
    Right,
    Home,
    End,
    ExtendLeft, // the selection
    ExtendRight,
    ExtendHome,
    ExtendEnd,
    StepUp,
    StepDown,
    Back,
    Delete,
    Digit, // DigitOf(code)
    Copy,
    Cut,
    Paste,
    StepOver, // a key without a use: the separator, whatever it is typed with, passes itself
    Refuse,
};

// With Ctrl the keys of the clipboard, with Shift those of selection and clipboard. Nothing with
// Alt.
KeyCommand CommandOf(const Key& key);

// '0' to '9' for a digit key of the main or the numeric pad, 0 for any other.
char DigitOf(std::uint32_t code);

// Runs a command whose rules are the same in every edit of fields. Digits, steps, Delete and
// Backspace are the edit's own, and nothing happens here.
void RunCommonCommand(Actions& actions, FieldCaret& caret, const FieldMap& map, KeyCommand command);

} // namespace vorn::edit
