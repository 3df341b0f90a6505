// A number that is being edited, and what every edit of it does in the end. The steps that keys,
// characters and the mouse lead to are in number_keys.h, number_typing.h, number_clipboard.h and
// number_spin.h; what hosts read and write is in number_access.h.
#pragma once

#include "core/edit/edit_actions.h"
#include "core/edit/text_caret.h"
#include "numeric/number_settings.h"

#include <cstdint>
#include <span>

namespace vorn::numeric {

// The longest text, and a new control's text limit.
constexpr std::uint16_t kLongestText = kNumberTextSize - 1;

// Notification: a text had to be cut to fit.
constexpr std::uint32_t kTextCut = 0x0500;

// Hosts change the text between the keys: every step first brings caret and selection into the text
// that there is.
struct NumberEntry {
    NumberSettings settings;
    char text[kNumberTextSize] = {}; // with "." as decimal character; of a null number empty
    edit::TextCaret caret;
    std::uint16_t textLimit = kLongestText; // 1 to kLongestText characters
    std::int32_t modified = 0;
    bool padDecimal = false; // whether the next "." comes from the numeric pad
};

std::int32_t LengthOf(const NumberEntry& entry);

// Whether numbers are kept without decimals: the integer kinds, and whatever is displayed in
// digits.
bool KeepsIntegers(const NumberSettings& settings);

// The value, clamped to the range; that of what converts when the text does not, and 0 of a null
// number.
double ValueOf(const NumberEntry& entry);

// Writes a value as typing and spinning leave it: in general form, for floating kinds rounded to
// the decimal digits, otherwise cut at the decimal character. So an integer of 13 digits or more,
// whose general form has an exponent, keeps its first digit alone.
void WriteEdited(const NumberSettings& settings, double value, std::span<char> text);

// Makes the settings' decimal character "." in the text; for settings that have changed.
void KeepPoint(NumberEntry& entry);

// What a change by the user does once it is stored; the caret is in view before anybody is told.
void AppendNumberChange(edit::Actions& actions, edit::ActionKind repaint);

// The text that a control is created with; null stands for "0".
void StoreCreationText(NumberEntry& entry, const char* text);

// A text from outside, null for an empty one, cut to kLongestText characters. The number is null
// exactly when it is empty. Caret and selection go to the start, and it counts as unmodified.
// Answers the notifications.
edit::Actions SetText(NumberEntry& entry, const char* text);

// Takes the value away, and its text; caret and selection go to the start.
void SetNull(NumberEntry& entry);

// The most characters that typing may leave and at which other texts are cut; 0 and what is more
// than a text can have mean kLongestText. The text there is stays.
void SetTextLimit(NumberEntry& entry, std::uint32_t limit);

// Cuts a text that reaches the limit to one character less than it. Returns whether it did.
bool CutAtLimit(const NumberEntry& entry, std::span<char> text);

// Caret, selection and scrolling back to the start.
void ResetCaret(NumberEntry& entry);

void KeepCaretInText(NumberEntry& entry);

// Takes a text that the user made, with the caret at this index, and marks the number modified.
// An empty one makes it null. A caret behind the text goes to its end, and the text is shown from
// its first character.
void StoreEdited(NumberEntry& entry, const char* text, std::int32_t caret);

// The same for the text of a number, which is one even when the limit has left nothing of it.
void StoreNumber(NumberEntry& entry, const char* text, std::int32_t caret);

} // namespace vorn::numeric
