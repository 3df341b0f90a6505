#include "timeedit/time_keys.h"

#include "timeedit/time_clipboard.h"
#include "timeedit/time_digits.h"
#include "timeedit/time_step.h"

namespace vorn::timeedit {

using edit::ActionKind;
using edit::KeyCommand;

namespace {

// A key without a use of its own chooses a half of the day in the suffix, if it is a letter that
// does.
void RunOtherKey(edit::Actions& actions, TimeEntry& entry, std::uint32_t code) {
    const HalfOfDay half = HalfOfKey(entry.time.format, code);
    if (half != HalfOfDay::None && IsInSuffix(entry)) {
        ChooseHalf(actions, entry, half);
    } else {
        RunCommonCommand(actions, entry.caret, FieldMapOf(entry.time), KeyCommand::StepOver);
    }
}

} // namespace

edit::Actions RunKey(TimeEntry& entry, const edit::Key& key, bool allowed) {
    edit::Actions actions;
    if (!allowed) {
        Append(actions, {ActionKind::Beep});
        return actions;
    }
    const KeyCommand command = CommandOf(key);
    if (command == KeyCommand::None) {
        return actions;
    }
    RenewText(entry);
    switch (command) {
    case KeyCommand::StepUp:
    case KeyCommand::StepDown:
        StepField(actions, entry, command == KeyCommand::StepUp);
        break;
    case KeyCommand::Back:
        DeleteBeforeCaret(actions, entry);
        break;
    case KeyCommand::Delete:
        DeleteAtCaret(actions, entry);
        break;
    case KeyCommand::Digit:
        EnterDigit(actions, entry, edit::DigitOf(key.code));
        break;
    case KeyCommand::StepOver:
        RunOtherKey(actions, entry, key.code);
        break;
    default:
        RunCommonCommand(actions, entry.caret, FieldMapOf(entry.time), command);
        break;
    }
    Append(actions, {ActionKind::PostChanged});
    return actions;
}

} // namespace vorn::timeedit
