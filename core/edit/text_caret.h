// Caret and selection in the text of an edit, in characters.
#pragma once

#include <cstdint>

namespace vorn::edit {

struct TextCaret {
    std::uint16_t selectionStart = 0; // the same as the end when nothing is selected
    std::uint16_t selectionEnd = 0;
    std::uint16_t index = 0;        // the character that the caret is in front of
    std::uint16_t firstVisible = 0; // the first character shown of a text that is too wide
};

constexpr bool HasSelection(const TextCaret& caret) {
    return caret.selectionStart != caret.selectionEnd;
}

// Selects from `start` to `end`, in whichever order, with the caret at `index`. All are kept within
// a text of this length.
void Select(TextCaret& caret, std::int32_t start, std::int32_t end, std::int32_t index,
            std::int32_t length);

// Moves the caret and takes the end of the selection that it is at along; the other end stays where
// the selection started. A caret at neither end starts a new one.
void ExtendTo(TextCaret& caret, std::int32_t index, std::int32_t length);

// For a text that became shorter.
void KeepInText(TextCaret& caret, std::int32_t length);

} // namespace vorn::edit
