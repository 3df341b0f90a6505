#include "core/edit/edit_layout.h"

#include <algorithm>
#include <cstring>

namespace vorn::edit {
namespace {

constexpr std::int32_t kRuling = 2; // what a cell is wider than the widest character

std::uint32_t LengthOf(const ShownText& shown) {
    return static_cast<std::uint32_t>(std::strlen(shown.text));
}

} // namespace

DigitSize DigitSizeOf(const FontFigures& font) {
    const std::int32_t height = font.height * 3 / 2;
    if (height < 19) {
        return {0, {8, 13}};
    }
    if (height < 22) {
        return {1, {11, 19}};
    }
    return height < 26 ? DigitSize{2, {12, 22}} : DigitSize{2, {12, 26}};
}

std::int32_t CellWidthOf(std::uint32_t displayStyle, const FontFigures& font) {
    if (displayStyle == kDigitPictures) {
        return DigitSizeOf(font).cell.width;
    }
    return displayStyle == kCharacterCells ? font.maxWidth + kRuling : 0;
}

std::int32_t TextHeightOf(std::uint32_t displayStyle, const FontFigures& font) {
    return displayStyle == kDigitPictures ? DigitSizeOf(font).cell.height : font.height;
}

Rect TextArea(const Rect& client, std::int32_t rightPartWidth) {
    return {client.left + kTextLeft, client.top, client.right - rightPartWidth, client.bottom};
}

std::int32_t TextTop(const Rect& textArea, std::int32_t textHeight) {
    return textArea.top + (Height(textArea) - textHeight) / 2;
}

std::int32_t TextWidth(const ShownText& shown, std::uint32_t from, std::uint32_t to) {
    if (IsInCells(shown.displayStyle)) {
        return static_cast<std::int32_t>(to - from) * shown.cellWidth;
    }
    return shown.measure.width(shown.measure.context, shown.text + from, to - from);
}

std::int32_t AlignedLeft(const Rect& textArea, std::int32_t textWidth, std::uint32_t alignment) {
    const std::int32_t room = Width(textArea) - textWidth;
    if (room <= 0 || alignment == 0 || alignment > 2) {
        return textArea.left;
    }
    return textArea.left + (alignment == 1 ? (room + 1) / 2 : room);
}

std::uint16_t CaretFromX(TextCaret& caret, const ShownText& shown, std::int32_t x) {
    if (shown.isNull) {
        Select(caret, 0, 0, 0, 0);
        caret.firstVisible = 0;
        return 0;
    }
    const std::uint32_t length = LengthOf(shown);
    const std::uint32_t first = std::min<std::uint32_t>(caret.firstVisible, length);
    std::int32_t before = kTextLeft;
    if (x < before) {
        return static_cast<std::uint16_t>(first);
    }
    for (std::uint32_t index = first; index < length; ++index) {
        const std::int32_t after = kTextLeft + TextWidth(shown, first, index + 1);
        if (x <= after) {
            return static_cast<std::uint16_t>(after - x > x - before ? index : index + 1);
        }
        before = after;
    }
    return static_cast<std::uint16_t>(length);
}

std::int32_t CaretX(const TextCaret& caret, const ShownText& shown) {
    const std::uint32_t index = std::min<std::uint32_t>(caret.index, LengthOf(shown));
    const std::uint32_t first = std::min<std::uint32_t>(caret.firstVisible, index);
    return kTextLeft + TextWidth(shown, first, index);
}

bool ScrollToCaret(TextCaret& caret, const ShownText& shown, std::int32_t right) {
    const std::uint16_t before = caret.firstVisible;
    const auto length = static_cast<std::uint16_t>(LengthOf(shown));
    caret.index = std::min(caret.index, length);
    caret.firstVisible = std::min(caret.firstVisible, caret.index);
    while (caret.firstVisible < caret.index && CaretX(caret, shown) + kCaretWidth > right) {
        ++caret.firstVisible;
    }
    return caret.firstVisible != before;
}

bool IsCaretBeyond(const TextCaret& caret, const ShownText& shown, std::int32_t right) {
    const std::uint32_t index = std::min<std::uint32_t>(caret.index, LengthOf(shown));
    return kTextLeft + TextWidth(shown, 0, index) > right;
}

} // namespace vorn::edit
