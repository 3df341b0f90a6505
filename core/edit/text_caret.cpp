#include "core/edit/text_caret.h"

#include <algorithm>

namespace vorn::edit {
namespace {

constexpr std::int32_t kLastIndex = 0xFFFF;

std::uint16_t Within(std::int32_t index, std::int32_t length) {
    return static_cast<std::uint16_t>(std::clamp(index, 0, std::clamp(length, 0, kLastIndex)));
}

// The end of the selection that stays.
std::uint16_t Anchor(const TextCaret& caret) {
    if (caret.index == caret.selectionStart) {
        return caret.selectionEnd;
    }
    return caret.index == caret.selectionEnd ? caret.selectionStart : caret.index;
}

} // namespace

void Select(TextCaret& caret, std::int32_t start, std::int32_t end, std::int32_t index,
            std::int32_t length) {
    caret.selectionStart = Within(std::min(start, end), length);
    caret.selectionEnd = Within(std::max(start, end), length);
    caret.index = Within(index, length);
}

void ExtendTo(TextCaret& caret, std::int32_t index, std::int32_t length) {
    Select(caret, Anchor(caret), index, index, length);
}

void KeepInText(TextCaret& caret, std::int32_t length) {
    Select(caret, caret.selectionStart, caret.selectionEnd, caret.index, length);
    caret.firstVisible = Within(caret.firstVisible, length);
}

} // namespace vorn::edit
