#include "core/edit/text_caret.h"

#include "core/text.h"

#include <algorithm>

namespace vorn::edit {
namespace {

constexpr std::int32_t kLastIndex = 0xFFFF;
constexpr std::uint32_t kDropSelection = 0xFFFFFFFF;

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

void SelectAsAsked(TextCaret& caret, std::uint32_t start, std::uint32_t end, std::int32_t length) {
    if (start == kDropSelection) {
        Select(caret, caret.index, caret.index, caret.index, length);
        return;
    }
    const auto last = static_cast<std::uint32_t>(std::clamp(length, 0, kLastIndex));
    const auto from = static_cast<std::int32_t>(std::min(start, last));
    const auto to = static_cast<std::int32_t>(std::min(end, last));
    Select(caret, from, to, to, length);
}

void ExtendTo(TextCaret& caret, std::int32_t index, std::int32_t length) {
    Select(caret, Anchor(caret), index, index, length);
}

void CopySelected(std::span<char> buffer, const char* text, const TextCaret& caret) {
    TextBuilder selected = StartText(buffer);
    for (std::int32_t index = 0; index < caret.selectionEnd && text[index] != '\0'; ++index) {
        if (index >= caret.selectionStart) {
            Append(selected, text[index]);
        }
    }
}

void KeepInText(TextCaret& caret, std::int32_t length) {
    Select(caret, caret.selectionStart, caret.selectionEnd, caret.index, length);
    caret.firstVisible = Within(caret.firstVisible, length);
}

} // namespace vorn::edit
