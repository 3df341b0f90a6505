// Where the characters of an edit's text are, in pixels: for clicks, the caret and scrolling. All x
// are from the client area's left edge.
#pragma once

#include "core/edit/text_caret.h"
#include "core/geometry.h"

#include <cstdint>

namespace vorn::edit {

constexpr std::int32_t kTextLeft = 4; // where the first visible character starts
constexpr std::int32_t kCaretWidth = 2;

// How the text is shown. Any other style is plain text too.
constexpr std::uint32_t kPlainText = 0;
constexpr std::uint32_t kDigitPictures = 2;
constexpr std::uint32_t kCharacterCells = 3;

// Whether every character has a cell of its own, all of the same width.
constexpr bool IsInCells(std::uint32_t displayStyle) {
    return displayStyle == kDigitPictures || displayStyle == kCharacterCells;
}

// Figures of the edit's font, in pixels.
struct FontFigures {
    std::uint16_t height = 0;
    std::uint16_t ascent = 0;
    std::uint16_t internalLeading = 0;
    std::uint16_t maxWidth = 0; // of the widest character
};

// How wide the first `count` characters of a text are in the edit's font, in pixels.
struct TextMeasure {
    void* context = nullptr;
    std::int32_t (*width)(void* context, const char* text, std::uint32_t count) = nullptr;
};

// A text, at most 65,535 characters long, and how it is shown.
struct ShownText {
    const char* text = "";
    bool isNull = false; // no value, whatever the text
    std::uint32_t displayStyle = kPlainText;
    std::int32_t cellWidth = 0; // in pixels, for the styles in cells
    TextMeasure measure;        // for the others
};

// The pictures of digits come in three sizes, chosen by the font; the largest is also shown with
// two more rows of background above and below.
struct DigitSize {
    std::int32_t picture = 0; // 0 to 2, from the smallest
    Size cell;
};
DigitSize DigitSizeOf(const FontFigures& font);

// How wide the cells of a style are in this font; 0 for plain text.
std::int32_t CellWidthOf(std::uint32_t displayStyle, const FontFigures& font);

// How high text and caret are.
std::int32_t TextHeightOf(std::uint32_t displayStyle, const FontFigures& font);

// How wide the edit's right part is: its buttons have the shape of so many eighths of their height.
constexpr std::int32_t RightPartWidth(std::int32_t clientHeight, std::int32_t eighths) {
    return clientHeight * eighths / 8;
}

// The client area between the text's left edge and the right part.
Rect TextArea(const Rect& client, std::int32_t rightPartWidth);

// The text area's rows that the text takes: it is centred.
std::int32_t TextTop(const Rect& textArea, std::int32_t textHeight);

// How wide the characters from one to another are, `to` not included.
std::int32_t TextWidth(const ShownText& shown, std::uint32_t from, std::uint32_t to);

// Where the text's left edge is for a text that is not being edited: at the area's for alignment 0,
// for 1 in its middle, for 2 at its right. A text without room starts at the area's left edge.
std::int32_t AlignedLeft(const Rect& textArea, std::int32_t textWidth, std::uint32_t alignment);

// The index of the character before which the caret goes for a click at `x`: the nearest boundary
// between characters, the later one half-way between two. A click before the visible text goes to
// its first character, one behind it to its end. With no value the caret's record is cleared and
// the result 0; otherwise the record stays.
std::uint16_t CaretFromX(TextCaret& caret, const ShownText& shown, std::int32_t x);

// The caret's left edge.
std::int32_t CaretX(const TextCaret& caret, const ShownText& shown);

// Scrolls by the fewest characters that bring the caret between the text's left edge and `right`,
// the first column outside; without room for it the caret's character comes first. Returns whether
// the text moved.
bool ScrollToCaret(TextCaret& caret, const ShownText& shown, std::int32_t right);

// Whether the text up to the caret, unscrolled, is too wide.
bool IsCaretBeyond(const TextCaret& caret, const ShownText& shown, std::int32_t right);

} // namespace vorn::edit
