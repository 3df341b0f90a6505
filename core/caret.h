// Which character of a displayed text a click is at.
#pragma once

#include <cstdint>

namespace vorn {

// How wide the first `count` characters of a text are in the control's font, in pixels.
struct TextMeasure {
    void* context;
    std::int32_t (*width)(void* context, const char* text, std::uint32_t count);
};

// What is selected and shown of an edited text, in characters.
struct EditCaret {
    std::uint16_t selectionStart = 0;
    std::uint16_t selectionEnd = 0;
    std::uint16_t caret = 0;
    std::uint16_t scrollIndex = 0; // the first visible character
};

// How the text is shown.
struct ShownText {
    std::int32_t isNull = 0;        // non-zero: no value, whatever the text
    std::uint16_t displayStyle = 0; // 2 and 3 draw every character in a cell of its own
    std::uint16_t cellWidth = 0;    // in pixels, for those two
};

// The index of the character before which the caret goes for a click at `x`, in pixels from the
// client area's left edge: the nearest boundary between characters, the later one half-way between
// two. A click before the visible text goes to its first character, one behind it to its end. With
// no value, selection, caret and scroll index become 0 and so does the result; otherwise the
// record stays. The text is at most 65,535 characters long.
std::uint16_t CaretFromX(EditCaret& caret, const ShownText& shown, const char* text, std::int32_t x,
                         const TextMeasure& measure);

} // namespace vorn
