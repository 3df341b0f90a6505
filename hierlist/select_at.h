// Selecting a row as a click or a key does, by the three rules of single, multiple and extended
// selection, and moving the caret alone.
#pragma once

#include "hierlist/list_input.h"

namespace vorn::hierlist {

// Whether the parent is told that a row has become selected. Only what the user does is told.
enum class Tell : std::uint8_t { Nobody, Parent };

// Selects at a row and scrolls it into view. A row that there is not does nothing.
// - Extended selection: with Shift the range from the anchor to the row takes the place of that to
//   the range end, or the row joins the selection when there is no range end; with Control the row
//   changes sides; otherwise it is all that is selected. Where the anchor is gone, the range end
//   takes its place. Shift counts before Control.
// - Multiple selection: the row changes sides.
// - Single selection: the row is all that is selected.
void SelectAt(Actions& actions, Outline& outline, Input& input, std::uint32_t row,
              std::uint32_t modifiers, Tell tell);

// Makes a row the caret and scrolls it into view. A row that there is not does nothing.
void MoveCaret(Actions& actions, Outline& outline, Input& input, std::uint32_t row);

// Goes to a row as the arrow keys do: in multiple selection only the caret does.
void GoTo(Actions& actions, Outline& outline, Input& input, std::uint32_t row,
          std::uint32_t modifiers);

// Selects or deselects one row, on behalf of the host.
Actions SelectRow(Outline& outline, Input& input, std::uint32_t row, bool on, Tell tell);

} // namespace vorn::hierlist
