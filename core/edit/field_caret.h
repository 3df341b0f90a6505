// The caret of an edit whose text is made of fields, such as a date or a time, and its moves.
#pragma once

#include "core/edit/edit_actions.h"
#include "core/edit/text_caret.h"

#include <cstdint>

namespace vorn::edit {

constexpr std::int32_t kMostFields = 4;

// Where the fields stand in a text.
struct FieldMap {
    std::int32_t count = 0;
    std::int32_t starts[kMostFields] = {}; // from 0, never falling
    std::int32_t separatorWidth = 1;       // of what stands behind each field but the last: 0 or 1
    std::int32_t length = 0;               // of the text; an empty text has the starts of no text
};

struct FieldCaret : TextCaret {
    std::int32_t field = 0; // the current one, from 0
};

// Behind the last character of a field; where its start is when the field has no room.
std::int32_t FieldEnd(const FieldMap& map, std::int32_t field);

// The field that a caret at this index is in: from its start to its separator, inclusive.
std::int32_t FieldAt(const FieldMap& map, std::int32_t index);

constexpr std::int32_t kNoField = -1;

// The field whose separator is at this index, kNoField when none is.
std::int32_t FieldBeforeSeparator(const FieldMap& map, std::int32_t index);

// Puts the caret there, at most at the end of the text, without a selection; its field becomes
// current.
void PutCaret(FieldCaret& caret, const FieldMap& map, std::int32_t index);

// Selects a field, with the caret at its start, and makes it current.
void SelectField(FieldCaret& caret, const FieldMap& map, std::int32_t field);

enum class CaretMove : std::uint8_t { Left, Right, Home, End };

// Moves the caret one character, to the first visible one or to the end, and drops the selection
// or, when `extend`, lets it follow. A move beyond either end beeps and leaves everything. Moving
// onto a separator enters the field before it, moving over one the field behind it; Home makes the
// first field current even if it is scrolled out of view, End the last one.
void MoveCaret(Actions& actions, FieldCaret& caret, const FieldMap& map, CaretMove move,
               bool extend = false);

} // namespace vorn::edit
