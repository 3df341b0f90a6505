// What is selected in an outline, and the three items that selecting goes by. They are items and
// not rows, so that they stay what they are while others come, go, open and close.
//
// The selected items form a list in the order in which they were selected, linked through the items
// themselves: selecting or deselecting one takes the same time however many there are, and needs no
// memory. What always holds:
// - the list has exactly the items with kFlagSelected, each once, and `count` is their number;
// - no item that the outline has freed is in it or is the anchor, the caret or the range end;
// - the caret, and no other item, has kFlagCaret while the list has the focus; otherwise none has.
#pragma once

#include "hierlist/outline.h"

#include <cstdint>

namespace vorn::hierlist {

// Each item is null when there is none.
struct Selection {
    OlbItem* anchor = nullptr;   // where a range with Shift starts
    OlbItem* caret = nullptr;    // the item that keys start from
    OlbItem* rangeEnd = nullptr; // the far end of the last range with Shift
    OlbItem* first = nullptr;    // the selected items, on by nextSelected
    OlbItem* last = nullptr;
    std::uint32_t count = 0; // of the selected items
    bool hasFocus = false;
};

// ---- Rows ----

// The rows there are. The host is told visibleCount, which differs when it has put children at
// positions under hidden parents.
std::uint32_t RowCount(const Outline& outline);

// The row of an item; kNoRow for none and for a hidden one.
std::uint32_t RowOf(Outline& outline, OlbItem* item);

// The row of the caret; while that is hidden, the row of the closed item that hides it. kNoRow when
// there is no caret.
std::uint32_t CaretRow(Outline& outline, const Selection& selection);

// ---- Selecting ----

bool IsSelected(const OlbItem* item);

// Both answer whether that changed anything. The item is one of the outline's.
bool SelectItem(Outline& outline, Selection& selection, OlbItem* item);
bool DeselectItem(Outline& outline, Selection& selection, OlbItem* item);

// Selects or deselects the rows from `first` to `last`, cut to those there are. Returns the number
// of rows that changed. Takes a step for each row.
std::uint32_t SelectRows(Outline& outline, Selection& selection, std::uint32_t first,
                         std::uint32_t last, bool on);

// Deselects everything, in a step for each selected item.
void ClearSelection(Outline& outline, Selection& selection);

// Writes the selected rows, from the top down, at most `most` of them, and returns their number.
// Takes a step for each row down to the last one written.
std::uint32_t SelectedRows(const Outline& outline, const Selection& selection, std::int32_t* rows,
                           std::uint32_t most);

// ---- Caret ----

// Makes an item the caret, or none for null, and moves the mark with it.
void PutCaret(Selection& selection, OlbItem* item);

// Notes whether the list has the focus, and marks the caret accordingly.
void PutFocus(Selection& selection, bool hasFocus);

// ---- What the outline tells ----

// The outline has deselected an item. It cannot be the anchor either: were it hidden, a range would
// start where there is nothing.
void DropDeselected(Selection& selection, OlbItem* item);

// An item is about to be freed; all items are.
void DropItem(Selection& selection, const OlbItem* item);
void DropAllItems(Selection& selection);

} // namespace vorn::hierlist
