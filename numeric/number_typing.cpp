#include "numeric/number_typing.h"

#include "numeric/number_draft.h"

#include <cstring>

namespace vorn::numeric {
namespace {

using edit::ActionKind;
using edit::Actions;

constexpr std::uint32_t kTab = 9;

// The characters that are the system's, whatever they are typed with.
constexpr std::uint32_t kSystemCharacters[] = {16, 17, 18, 20, 27};

constexpr std::uint32_t kSpace = 32;
constexpr std::uint32_t kDeleteCharacter = 127; // what Ctrl+Backspace types

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

bool IsControlCharacter(char character) {
    const auto code = static_cast<unsigned char>(character);
    return code < kSpace || code == kDeleteCharacter;
}

void Beep(Actions& actions) {
    Append(actions, {ActionKind::Beep});
}

// The character in front of the caret, 0 at the start.
char Before(const Draft& draft) {
    return draft.caret == 0 ? '\0' : draft.text[draft.caret - 1];
}

// A digit in front of a "-" would end up as no number; in overwrite mode it replaces the sign.
void TypeDigit(Actions& actions, NumberEntry& entry, Draft& draft, char digit, bool overwrite) {
    const bool replacesSign = overwrite && !draft.replacesSelection;
    if (draft.caret == 0 && draft.text[0] == '-' && !replacesSign) {
        Beep(actions);
        return;
    }
    PutIn(draft, digit, overwrite);
    StoreNumber(actions, entry, draft);
}

// Takes a character that is no digit, where one may follow it.
void TypeMark(Actions& actions, NumberEntry& entry, Draft& draft, char mark, bool overwrite) {
    PutIn(draft, mark, overwrite);
    if (draft.length > entry.textLimit || !MayBecomeNumber(entry.settings, draft)) {
        Beep(actions);
        return;
    }
    StoreDraft(actions, entry, draft);
}

void TypeSign(Actions& actions, NumberEntry& entry, Draft& draft, char sign, bool overwrite) {
    const bool inFront = sign == '-' && draft.caret == 0;
    if (inFront || Before(draft) == 'e') {
        TypeMark(actions, entry, draft, sign, overwrite);
    } else {
        Beep(actions);
    }
}

void TypeExponent(Actions& actions, NumberEntry& entry, Draft& draft, bool overwrite) {
    if (draft.caret == 0 || std::strchr(draft.text, 'e') != nullptr) {
        Beep(actions);
    } else {
        TypeMark(actions, entry, draft, 'e', overwrite);
    }
}

void TypePoint(Actions& actions, NumberEntry& entry, Draft& draft, bool overwrite) {
    if (KeepsIntegers(entry.settings)) {
        Beep(actions);
        return;
    }
    const char* point = std::strchr(draft.text, '.');
    if (point == nullptr) {
        TypeMark(actions, entry, draft, '.', overwrite);
    } else if (point == draft.text + draft.caret && !draft.replacesSelection) {
        Select(entry.caret, draft.caret + 1, draft.caret + 1, draft.caret + 1, draft.length);
        Append(actions, {ActionKind::PlaceCaret});
    } else {
        Beep(actions);
    }
}

void Edit(Actions& actions, NumberEntry& entry, char character, bool fromPad, bool overwrite) {
    Draft draft = StartDraft(entry);
    if (IsDigit(character)) {
        TypeDigit(actions, entry, draft, character, overwrite);
    } else if (character == '-' || character == '+') {
        TypeSign(actions, entry, draft, character, overwrite);
    } else if (character == 'e' || character == 'E') {
        TypeExponent(actions, entry, draft, overwrite);
    } else if (character == DecimalCharOf(entry.settings) || (character == '.' && fromPad)) {
        TypePoint(actions, entry, draft, overwrite);
    } else {
        Beep(actions);
    }
}

} // namespace

edit::KeyRoute RouteCharacter(const edit::Key& character, bool readOnly) {
    if (character.code == kTab && !character.control && !character.alt) {
        return character.shift ? edit::KeyRoute::FocusPrevious : edit::KeyRoute::FocusNext;
    }
    for (const std::uint32_t system : kSystemCharacters) {
        if (character.code == system) {
            return edit::KeyRoute::PassOn;
        }
    }
    if (readOnly) {
        return edit::KeyRoute::Refuse;
    }
    return character.alt ? edit::KeyRoute::PassOn : edit::KeyRoute::Ask;
}

Actions TypeCharacter(NumberEntry& entry, char character, bool overwrite, bool allowed) {
    Actions actions;
    const bool fromPad = entry.padDecimal;
    entry.padDecimal = false;
    KeepCaretInText(entry);
    if (!allowed) {
        Beep(actions);
        return actions;
    }
    if (!IsControlCharacter(character)) {
        Edit(actions, entry, character, fromPad, overwrite);
    }
    Append(actions, {ActionKind::SendChanged});
    return actions;
}

} // namespace vorn::numeric
