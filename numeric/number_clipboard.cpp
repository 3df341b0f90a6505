#include "numeric/number_clipboard.h"

#include "core/text.h"
#include "numeric/number_draft.h"

#include <algorithm>
#include <cstring>

namespace vorn::numeric {
namespace {

using edit::ActionKind;
using edit::Actions;

bool IsBlank(char character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

void StoreRest(Actions& actions, NumberEntry& entry, const Draft& draft) {
    if (draft.length == 0 || MayBecomeNumber(entry.settings, draft)) {
        StoreDraft(actions, entry, draft);
    } else {
        Append(actions, {ActionKind::Beep});
    }
}

void DeleteCharacter(Actions& actions, NumberEntry& entry, std::int32_t offset) {
    KeepCaretInText(entry);
    Draft draft = StartDraft(entry);
    if (!draft.replacesSelection) {
        const std::int32_t index = draft.caret + offset;
        if (index < 0 || index >= draft.length) {
            Append(actions, {ActionKind::Beep});
            return;
        }
        Remove(draft, index, 1);
    }
    StoreRest(actions, entry, draft);
}

// The text without grouping, as a draft; what is too long is longer than any limit in it, too.
Draft ReadPasted(const NumberSettings& settings, const char* text) {
    const char decimalChar = DecimalCharOf(settings);
    const char thousandChar = ThousandCharOf(settings);
    Draft pasted;
    for (; *text != '\0'; ++text) {
        const bool grouping = *text == thousandChar && *text != decimalChar;
        if (!grouping && !IsBlank(*text)) {
            PutIn(pasted, *text == decimalChar ? '.' : *text);
        }
    }
    return pasted;
}

} // namespace

void DeleteBeforeCaret(Actions& actions, NumberEntry& entry) {
    DeleteCharacter(actions, entry, -1);
}

void DeleteAtCaret(Actions& actions, NumberEntry& entry) {
    DeleteCharacter(actions, entry, 0);
}

void ClearSelection(Actions& actions, NumberEntry& entry) {
    KeepCaretInText(entry);
    if (HasSelection(entry.caret)) {
        StoreRest(actions, entry, StartDraft(entry));
    }
}

void CopyNumberText(std::span<char> buffer, const NumberEntry& entry) {
    const bool part = HasSelection(entry.caret);
    const std::int32_t length = LengthOf(entry);
    const std::int32_t end =
        part ? std::min<std::int32_t>(entry.caret.selectionEnd, length) : length;
    const char decimalChar = DecimalCharOf(entry.settings);
    TextBuilder copy = StartText(buffer);
    for (std::int32_t index = part ? entry.caret.selectionStart : 0; index < end; ++index) {
        const char character = entry.text[index];
        Append(copy, character == '.' && decimalChar != '\0' ? decimalChar : character);
    }
}

void PasteText(Actions& actions, NumberEntry& entry, const char* text) {
    KeepCaretInText(entry);
    const Draft pasted = ReadPasted(entry.settings, text);
    if (!Converts(entry.settings, pasted)) {
        Append(actions, {ActionKind::Beep});
        return;
    }
    Draft draft = StartDraft(entry);
    for (std::int32_t index = 0; index < pasted.length; ++index) {
        PutIn(draft, pasted.text[index]);
    }
    StoreNumber(actions, entry, draft);
}

} // namespace vorn::numeric
