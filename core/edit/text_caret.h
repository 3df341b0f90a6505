// Caret and selection in the text of an edit, in characters.
#pragma once

#include <cstdint>
#include <span>

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

// Selects as a host asks by EM_SETSEL: from the lower to the higher of two character indexes, the
// caret at the end that was named second, beyond the text meaning its end. A start of -1 only drops
// the selection.
void SelectAsAsked(TextCaret& caret, std::uint32_t start, std::uint32_t end, std::int32_t length);

// Moves the caret and takes the end of the selection that it is at along; the other end stays where
// the selection started. A caret at neither end starts a new one.
void ExtendTo(TextCaret& caret, std::int32_t index, std::int32_t length);

// The selected characters of the text, cut to the buffer and terminated.
void CopySelected(std::span<char> buffer, const char* text, const TextCaret& caret);

// For a text that became shorter.
void KeepInText(TextCaret& caret, std::int32_t length);

} // namespace vorn::edit
