// What tests say to an edit of fields, and what they hear.
#pragma once

#include "core/edit/field_keys.h"
#include "tests/support/edit_printing.h"

#include <string>
#include <vector>

namespace vorn::edit {

namespace keys {

using List = std::vector<Action>;
using enum ActionKind;

constexpr std::uint32_t kBack = 8;
constexpr std::uint32_t kSpace = 32;
constexpr std::uint32_t kEnd = 35;
constexpr std::uint32_t kHome = 36;
constexpr std::uint32_t kLeft = 37;
constexpr std::uint32_t kUp = 38;
constexpr std::uint32_t kRight = 39;
constexpr std::uint32_t kDown = 40;
constexpr std::uint32_t kInsert = 45;
constexpr std::uint32_t kDelete = 46;

// The notifications of a change, in order, and what an edit does after every key.
inline const List kChanged = {{SendChanged},   {Notify, 0x400}, {Repaint},
                              {Notify, 0x300}, {PlaceCaret},    {PostChanged}};
inline const List kStepped = {{SendChanged},   {Notify, 0x400}, {RepaintText},
                              {Notify, 0x300}, {PlaceCaret},    {PostChanged}};
inline const List kBeeped = {{Beep}, {PostChanged}};
inline const List kMoved = {{PlaceCaret}, {PostChanged}};
inline const List kMovedAndRepainted = {{Repaint}, {PlaceCaret}, {PostChanged}};

// The text with | at the caret and < > around the selection, as in "<|3 >/5 /7".
inline std::string ShownWithCaret(const std::string& text, const TextCaret& caret) {
    const bool selected = HasSelection(caret);
    std::string shown;
    for (std::size_t index = 0; index <= text.size(); ++index) {
        shown += selected && index == caret.selectionStart ? "<" : "";
        shown += index == caret.index ? "|" : "";
        shown += selected && index == caret.selectionEnd ? ">" : "";
        shown += index < text.size() ? text.substr(index, 1) : "";
    }
    return shown;
}

} // namespace keys
} // namespace vorn::edit
