#include "date/date_keys.h"

#include "date/date_clipboard.h"
#include "date/date_digits.h"
#include "date/date_step.h"

namespace vorn::date {

using edit::ActionKind;
using edit::KeyCommand;

edit::Actions RunKey(DateEntry& entry, const edit::Key& key, bool allowed, const Date& today) {
    edit::Actions actions;
    if (!allowed) {
        Append(actions, {ActionKind::Beep});
        return actions;
    }
    const KeyCommand command = CommandOf(key);
    if (command == KeyCommand::None) {
        return actions;
    }
    KeepCaretInText(entry);
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
        EnterDigit(actions, entry, edit::DigitOf(key.code), today);
        break;
    default:
        RunCommonCommand(actions, entry.caret, FieldMapOf(entry.date), command);
        break;
    }
    Append(actions, {ActionKind::PostChanged});
    return actions;
}

} // namespace vorn::date
