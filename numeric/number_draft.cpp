#include "numeric/number_draft.h"

#include "core/text.h"
#include "numeric/number_text.h"

#include <cstring>

namespace vorn::numeric {

using edit::ActionKind;

Draft StartDraft(const NumberEntry& entry) {
    Draft draft;
    CopyText(draft.text, entry.text);
    draft.length = LengthOf(entry);
    draft.caret = entry.caret.index;
    if (HasSelection(entry.caret)) {
        Remove(draft, entry.caret.selectionStart,
               entry.caret.selectionEnd - entry.caret.selectionStart);
        draft.replacesSelection = true;
    }
    return draft;
}

void Remove(Draft& draft, std::int32_t start, std::int32_t count) {
    char* place = draft.text + start;
    std::memmove(place, place + count, static_cast<std::size_t>(draft.length - start - count) + 1);
    draft.length -= count;
    draft.caret = start;
}

void PutIn(Draft& draft, char character, bool overwrite) {
    const bool replaces = overwrite && !draft.replacesSelection && draft.caret < draft.length;
    if (!replaces) {
        if (draft.length == kLongestDraft) {
            return;
        }
        char* place = draft.text + draft.caret;
        std::memmove(place + 1, place, static_cast<std::size_t>(draft.length - draft.caret) + 1);
        ++draft.length;
    }
    draft.text[draft.caret] = character;
    ++draft.caret;
}

bool Converts(const NumberSettings& settings, const Draft& draft) {
    Draft copy = draft;
    double value = 0;
    return TextToNumber(settings, copy.text, value) != 0;
}

bool MayBecomeNumber(const NumberSettings& settings, const Draft& draft) {
    if (Converts(settings, draft)) {
        return true;
    }
    Draft continued = draft;
    PutIn(continued, '0');
    return Converts(settings, continued);
}

void StoreDraft(edit::Actions& actions, NumberEntry& entry, const Draft& draft) {
    StoreEdited(entry, draft.text, draft.caret);
    AppendNumberChange(actions, ActionKind::Repaint);
}

void StoreNumber(edit::Actions& actions, NumberEntry& entry, const Draft& draft) {
    Draft copy = draft;
    double value = 0;
    if (draft.length > entry.textLimit || !TextToNumber(entry.settings, copy.text, value)) {
        Append(actions, {ActionKind::Beep});
        return;
    }
    const double kept = ClampToRange(entry.settings, value);
    char text[kNumberTextSize];
    WriteEdited(entry.settings, kept, text);
    const bool fits = std::strlen(text) <= entry.textLimit;
    if (!fits || kept != value) {
        Append(actions, {ActionKind::Beep});
    }
    if (fits) {
        StoreEdited(entry, text, draft.caret);
        AppendNumberChange(actions, ActionKind::Repaint);
    }
}

} // namespace vorn::numeric
