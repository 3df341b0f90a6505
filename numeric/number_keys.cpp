#include "numeric/number_keys.h"

#include "numeric/number_clipboard.h"
#include "numeric/number_spin.h"

namespace vorn::numeric {
namespace {

using edit::ActionKind;
using edit::Actions;
using edit::KeyCommand;

constexpr std::uint32_t kKeyBack = 8;
constexpr std::uint32_t kKeyTab = 9;
constexpr std::uint32_t kKeyEnd = 35;
constexpr std::uint32_t kKeyHome = 36;
constexpr std::uint32_t kKeyLeft = 37;
constexpr std::uint32_t kKeyUp = 38;
constexpr std::uint32_t kKeyRight = 39;
constexpr std::uint32_t kKeyDown = 40;
constexpr std::uint32_t kKeyInsert = 45;
constexpr std::uint32_t kKeyDelete = 46;
constexpr std::uint32_t kKeyC = 67;
constexpr std::uint32_t kKeyV = 86;
constexpr std::uint32_t kKeyX = 88;
constexpr std::uint32_t kKeyPadDecimal = 110;

// The keys that are the system's: Shift, Ctrl, Alt, Caps Lock, Esc and Num Lock.
constexpr std::uint32_t kSystemKeys[] = {16, 17, 18, 20, 27, 144};

struct KeyUse {
    std::uint32_t code;
    KeyCommand command;
};

// The Insert key only turns the toggle state over, which the system does.
constexpr KeyUse kPlainKeys[] = {
    {kKeyBack, KeyCommand::Back},     {kKeyEnd, KeyCommand::End},
    {kKeyHome, KeyCommand::Home},     {kKeyLeft, KeyCommand::Left},
    {kKeyUp, KeyCommand::StepUp},     {kKeyRight, KeyCommand::Right},
    {kKeyDown, KeyCommand::StepDown}, {kKeyInsert, KeyCommand::None},
    {kKeyDelete, KeyCommand::Delete},
};

constexpr KeyUse kShiftKeys[] = {
    {kKeyEnd, KeyCommand::ExtendEnd},   {kKeyHome, KeyCommand::ExtendHome},
    {kKeyLeft, KeyCommand::ExtendLeft}, {kKeyRight, KeyCommand::ExtendRight},
    {kKeyInsert, KeyCommand::Paste},    {kKeyDelete, KeyCommand::Cut},
};

constexpr KeyUse kControlKeys[] = {
    {kKeyInsert, KeyCommand::Copy}, {kKeyDelete, KeyCommand::Refuse}, {kKeyC, KeyCommand::Copy},
    {kKeyV, KeyCommand::Paste},     {kKeyX, KeyCommand::Cut},
};

template <std::size_t Count>
KeyCommand Find(const KeyUse (&keys)[Count], std::uint32_t code) {
    for (const KeyUse& use : keys) {
        if (use.code == code) {
            return use.command;
        }
    }
    return KeyCommand::PassOn;
}

KeyCommand UseOf(const edit::Key& key) {
    if (key.control) {
        return Find(kControlKeys, key.code);
    }
    return key.shift ? Find(kShiftKeys, key.code) : Find(kPlainKeys, key.code);
}

void MoveCaret(Actions& actions, NumberEntry& entry, std::int32_t target, bool extend) {
    const std::int32_t length = LengthOf(entry);
    if (target < 0 || target > length) {
        Append(actions, {ActionKind::Beep});
        return;
    }
    const bool hadSelection = HasSelection(entry.caret);
    if (extend) {
        ExtendTo(entry.caret, target, length);
    } else {
        Select(entry.caret, target, target, target, length);
    }
    if (hadSelection || HasSelection(entry.caret)) {
        Append(actions, {ActionKind::Repaint});
    }
    Append(actions, {ActionKind::PlaceCaret});
}

void RunCaretCommand(Actions& actions, NumberEntry& entry, KeyCommand command) {
    const std::int32_t index = entry.caret.index;
    switch (command) {
    case KeyCommand::Left:
    case KeyCommand::ExtendLeft:
        MoveCaret(actions, entry, index - 1, command == KeyCommand::ExtendLeft);
        break;
    case KeyCommand::Right:
    case KeyCommand::ExtendRight:
        MoveCaret(actions, entry, index + 1, command == KeyCommand::ExtendRight);
        break;
    case KeyCommand::Home:
    case KeyCommand::ExtendHome:
        MoveCaret(actions, entry, 0, command == KeyCommand::ExtendHome);
        break;
    case KeyCommand::End:
    case KeyCommand::ExtendEnd:
        MoveCaret(actions, entry, LengthOf(entry), command == KeyCommand::ExtendEnd);
        break;
    default:
        break;
    }
}

void RunCommand(Actions& actions, NumberEntry& entry, KeyCommand command) {
    switch (command) {
    case KeyCommand::Back:
        DeleteBeforeCaret(actions, entry);
        break;
    case KeyCommand::Delete:
        DeleteAtCaret(actions, entry);
        break;
    case KeyCommand::Copy:
        Append(actions, {ActionKind::Copy});
        break;
    case KeyCommand::Cut:
        if (HasSelection(entry.caret)) {
            Append(actions, {ActionKind::Cut});
        }
        break;
    case KeyCommand::Paste:
        Append(actions, {ActionKind::Paste});
        break;
    case KeyCommand::Refuse:
        Append(actions, {ActionKind::Beep});
        break;
    default:
        RunCaretCommand(actions, entry, command);
        break;
    }
}

} // namespace

edit::KeyRoute RouteNumberKey(const edit::Key& key, bool readOnly) {
    if (key.code == kKeyTab && !key.control && !key.alt) {
        return key.shift ? edit::KeyRoute::FocusPrevious : edit::KeyRoute::FocusNext;
    }
    for (const std::uint32_t systemKey : kSystemKeys) {
        if (key.code == systemKey) {
            return edit::KeyRoute::PassOn;
        }
    }
    if (readOnly) {
        return edit::KeyRoute::Refuse;
    }
    return key.alt ? edit::KeyRoute::PassOn : edit::KeyRoute::Ask;
}

Actions RunKey(NumberEntry& entry, const edit::Key& key, bool allowed) {
    Actions actions;
    entry.padDecimal = key.code == kKeyPadDecimal;
    KeepCaretInText(entry);
    if (!allowed) {
        Append(actions, {ActionKind::Beep});
        return actions;
    }
    const KeyCommand command = UseOf(key);
    if (command == KeyCommand::PassOn) {
        Append(actions, {ActionKind::PassOn});
        return actions;
    }
    if (command == KeyCommand::StepUp || command == KeyCommand::StepDown) {
        actions = StepByKey(entry, command == KeyCommand::StepUp);
        if (actions.count == 0) {
            return actions;
        }
    } else {
        RunCommand(actions, entry, command);
    }
    Append(actions, {ActionKind::SendChanged});
    return actions;
}

} // namespace vorn::numeric
