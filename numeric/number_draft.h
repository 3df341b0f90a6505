// A text that the user is about to make of a number, and whether it may become one.
#pragma once

#include "numeric/number_entry.h"

#include <cstdint>

namespace vorn::numeric {

// More than any text limit, so that what is too long shows.
constexpr std::int32_t kLongestDraft = 2 * kLongestText;

struct Draft {
    char text[kLongestDraft + 1] = {};
    std::int32_t length = 0;
    std::int32_t caret = 0;
    bool replacesSelection = false;
};

// The text without what is selected, with the caret where that was.
Draft StartDraft(const NumberEntry& entry);

// Takes out `count` characters from `start` on; the caret goes to `start`.
void Remove(Draft& draft, std::int32_t start, std::int32_t count);

// Puts a character in at the caret, and the caret behind it. To overwrite is to replace the
// character there, if there is one and no selection was replaced already. Beyond kLongestDraft
// characters there is no change.
void PutIn(Draft& draft, char character, bool overwrite = false);

// Whether the text is a number.
bool Converts(const NumberSettings& settings, const Draft& draft);

// Whether it is one, or begins one: a digit typed at the caret would make it one, as in "-" and
// "1e-".
bool MayBecomeNumber(const NumberSettings& settings, const Draft& draft);

// Stores the draft as it stands and answers the change.
void StoreDraft(edit::Actions& actions, NumberEntry& entry, const Draft& draft);

// Stores the draft's value: the nearer limit, with a beep, of one out of range, and as the kind
// keeps it. Refuses with a beep what is no number or longer than the text limit.
void StoreNumber(edit::Actions& actions, NumberEntry& entry, const Draft& draft);

} // namespace vorn::numeric
