#include "core/edit/field_keys.h"

namespace vorn::edit {
namespace {

constexpr std::uint32_t kKeyBack = 8;
constexpr std::uint32_t kKeyTab = 9;
constexpr std::uint32_t kKeySpace = 32;
constexpr std::uint32_t kKeyEnd = 35;
constexpr std::uint32_t kKeyHome = 36;
constexpr std::uint32_t kKeyLeft = 37;
constexpr std::uint32_t kKeyUp = 38;
constexpr std::uint32_t kKeyRight = 39;
constexpr std::uint32_t kKeyDown = 40;
constexpr std::uint32_t kKeyInsert = 45;
constexpr std::uint32_t kKeyDelete = 46;
constexpr std::uint32_t kKeyDigit0 = 48;
constexpr std::uint32_t kKeyC = 67;
constexpr std::uint32_t kKeyV = 86;
constexpr std::uint32_t kKeyX = 88;
constexpr std::uint32_t kKeyNumpad0 = 96;

// The keys that are the system's: Shift, Ctrl, Alt, Esc, Print Screen, Num Lock and Caps Lock.
constexpr std::uint32_t kSystemKeys[] = {16, 17, 18, 27, 44, 144, 20};

struct KeyUse {
    std::uint32_t code;
    KeyCommand command;
};

constexpr KeyUse kPlainKeys[] = {
    {kKeyBack, KeyCommand::Back},     {kKeySpace, KeyCommand::Right},
    {kKeyEnd, KeyCommand::End},       {kKeyHome, KeyCommand::Home},
    {kKeyLeft, KeyCommand::Left},     {kKeyUp, KeyCommand::StepUp},
    {kKeyRight, KeyCommand::Right},   {kKeyDown, KeyCommand::StepDown},
    {kKeyInsert, KeyCommand::PassOn}, {kKeyDelete, KeyCommand::Delete},
};

constexpr KeyUse kShiftKeys[] = {
    {kKeyEnd, KeyCommand::ExtendEnd},   {kKeyHome, KeyCommand::ExtendHome},
    {kKeyLeft, KeyCommand::ExtendLeft}, {kKeyRight, KeyCommand::ExtendRight},
    {kKeyInsert, KeyCommand::Paste},    {kKeyDelete, KeyCommand::Cut},
};

constexpr KeyUse kControlKeys[] = {
    {kKeyInsert, KeyCommand::Copy},
    {kKeyC, KeyCommand::Copy},
    {kKeyV, KeyCommand::Paste},
    {kKeyX, KeyCommand::Cut},
};

template <std::size_t Count>
KeyCommand Find(const KeyUse (&keys)[Count], std::uint32_t code, KeyCommand otherwise) {
    for (const KeyUse& use : keys) {
        if (use.code == code) {
            return use.command;
        }
    }
    return otherwise;
}

bool IsSystemKey(std::uint32_t code) {
    for (const std::uint32_t systemKey : kSystemKeys) {
        if (code == systemKey) {
            return true;
        }
    }
    return false;
}

// Digits typed with Shift are other characters.
KeyCommand PlainCommand(std::uint32_t code) {
    return DigitOf(code) != '\0' ? KeyCommand::Digit : Find(kPlainKeys, code, KeyCommand::StepOver);
}

// Whatever it is called, what to put on the clipboard is the selection.
void AppendWithSelection(Actions& actions, const FieldCaret& caret, ActionKind kind) {
    if (HasSelection(caret)) {
        Append(actions, {kind});
    }
}

void StepOver(Actions& actions, FieldCaret& caret, const FieldMap& map) {
    if (FieldBeforeSeparator(map, caret.index) != kNoField) {
        MoveCaret(actions, caret, map, CaretMove::Right);
    } else {
        Append(actions, {ActionKind::Beep});
    }
}

} // namespace

KeyRoute RouteKey(const Key& key, bool readOnly) {
    if (key.code == kKeyTab) {
        if (key.control || key.alt) {
            return KeyRoute::PassOn;
        }
        return key.shift ? KeyRoute::FocusPrevious : KeyRoute::FocusNext;
    }
    if (IsSystemKey(key.code)) {
        return KeyRoute::PassOn;
    }
    return readOnly ? KeyRoute::Refuse : KeyRoute::Ask;
}

KeyCommand CommandOf(const Key& key) {
    if (key.alt) {
        return KeyCommand::None;
    }
    if (key.control) {
        return Find(kControlKeys, key.code, KeyCommand::Refuse);
    }
    return key.shift ? Find(kShiftKeys, key.code, KeyCommand::StepOver) : PlainCommand(key.code);
}

char DigitOf(std::uint32_t code) {
    for (const std::uint32_t zero : {kKeyDigit0, kKeyNumpad0}) {
        if (code >= zero && code <= zero + 9) {
            return static_cast<char>('0' + (code - zero));
        }
    }
    return '\0';
}

void RunCommonCommand(Actions& actions, FieldCaret& caret, const FieldMap& map,
                      KeyCommand command) {
    switch (command) {
    case KeyCommand::PassOn:
        Append(actions, {ActionKind::PassOn});
        break;
    case KeyCommand::Left:
    case KeyCommand::ExtendLeft:
        MoveCaret(actions, caret, map, CaretMove::Left, command == KeyCommand::ExtendLeft);
        break;
    case KeyCommand::Right:
    case KeyCommand::ExtendRight:
        MoveCaret(actions, caret, map, CaretMove::Right, command == KeyCommand::ExtendRight);
        break;
    case KeyCommand::Home:
    case KeyCommand::ExtendHome:
        MoveCaret(actions, caret, map, CaretMove::Home, command == KeyCommand::ExtendHome);
        break;
    case KeyCommand::End:
    case KeyCommand::ExtendEnd:
        MoveCaret(actions, caret, map, CaretMove::End, command == KeyCommand::ExtendEnd);
        break;
    case KeyCommand::Copy:
        AppendWithSelection(actions, caret, ActionKind::Copy);
        break;
    case KeyCommand::Cut:
        AppendWithSelection(actions, caret, ActionKind::Cut);
        break;
    case KeyCommand::Paste:
        Append(actions, {ActionKind::Paste});
        break;
    case KeyCommand::StepOver:
        StepOver(actions, caret, map);
        break;
    case KeyCommand::Refuse:
        Append(actions, {ActionKind::Beep});
        break;
    case KeyCommand::None:
    case KeyCommand::StepUp:
    case KeyCommand::StepDown:
    case KeyCommand::Back:
    case KeyCommand::Delete:
    case KeyCommand::Digit:
        break;
    }
}

} // namespace vorn::edit
