// The operations on an outline.
//
// Items are named by handle or by row, the 0-based position among the visible items. Handles of
// null and NoItem() are refused: an operation that answers a handle answers NoItem() then, one that
// answers a number -1. Each operation runs in time logarithmic in the number of items unless it
// says otherwise, plus a step for each level.
//
// Host code runs in the callbacks and may do anything, up to destroying the outline. An operation
// then ends without touching what is gone, and answers NoItem() for an item that did not survive.
#pragma once

#include "hierlist/item.h"

#include <cstdint>

namespace vorn::hierlist {

// ---- Rows and questions ----

// The handle of a row; null past the end and for kNoRow.
OlbItem* IndexToHandle(const Outline& outline, std::uint32_t row);

// The row of an item; of a hidden one its position among its siblings. kNoRow for no item.
std::uint32_t HandleToIndex(const OlbItem* item);

// The same of an item that was just added, which is likely to be the last row: that takes less.
std::uint32_t IndexOfAdded(const Outline& outline, const OlbItem* item);

// 1 or 0; -1 for no item. Visible is an item all of whose parents are open, which takes a step for
// each of them.
std::int32_t QueryVisible(const OlbItem* item);
std::int32_t QueryOpen(const OlbItem* item);
std::int32_t QueryLocked(const OlbItem* item);
std::int32_t HasChildren(const OlbItem* item);

// 0 at the top; -1 for no item.
std::int32_t LevelOf(const OlbItem* item);

// Null for an item at the top.
OlbItem* ParentOf(const OlbItem* item);

// A child of a closed parent by its position; null when there is none or the parent is open.
OlbItem* DetachedChild(const OlbItem* parent, std::uint32_t position);

// ---- Properties ----

// Both answer what was before; -1 for no item.
std::int32_t SetLocked(OlbItem* item, bool on);
std::int32_t SetSelected(Outline& outline, OlbItem* item, bool on);

// Both leave the siblings where they are, in order or not. A new text of any length that fits a
// block is kept beside the record when it does not fit there; false when there is no memory.
bool SetText(Outline& outline, OlbItem* item, const char* text);
bool SetBitmapIndex(Outline& outline, OlbItem* item, std::int16_t index);

// ---- Adding ----

// Adds a child behind the others or, in a sorted list, where it belongs. A null parent and NoItem()
// both mean the top level. A null text is an empty one; without texts it is any value. The item is
// sorted by its picture index and its text, or by the host. NoItem() when there is no memory or the
// text is too long.
//
// Into a list that is sorted by the host it takes a question for each sibling; among siblings that
// are not known to be in order, a comparison.
OlbItem* AddChild(Outline& outline, OlbItem* parent, const char* text,
                  std::int16_t bitmapIndex = kDefaultPicture);

// Makes an item the child of a parent, or of none, at a position among the siblings; past the last
// one it is appended, as with kAppend. Under a parent that is itself hidden kAppend gives an item
// that is first among its siblings but the last row, with level 0, and any other position one that
// its parent's childCount leaves out. Takes `position` steps when the siblings are not plain rows.
OlbItem* InsertChild(Outline& outline, OlbItem* parent, std::uint16_t position, const char* text);

// Inserts a sibling in front of a row; behind the last row when there is no such row.
OlbItem* InsertAtRow(Outline& outline, std::uint32_t row, const char* text);

// ---- Opening and closing ----

// Makes rows of the children of a row. Nothing happens when it has none, is open or is locked.
void Open(Outline& outline, std::uint32_t row);

// Hides the children of a row, the deeper ones first. Takes a step for each child when one of them
// is open or selected, otherwise none.
void Close(Outline& outline, std::uint32_t row);

// Opens a visible item and all below it, except what is locked and what is below that; every item
// when it is null. Takes a step for each row.
void OpenAll(Outline& outline, OlbItem* item);

// Closes every item at the top.
void CloseAll(Outline& outline);

// ---- Removing ----

// Deletes an item and all below it. Returns the row that it had, kNoRow when it was hidden.
std::uint32_t DeleteItem(Outline& outline, OlbItem* item);

// Deletes all below an item, which ends closed. Returns the number of items left; -1 for no item.
std::int32_t DeleteSubtree(Outline& outline, OlbItem* item);

// Deletes everything.
void Reset(Outline& outline);

// Frees everything at the end of the control's life, without a callback.
void Destroy(Outline& outline);

// ---- Moving and copying ----

// Moves an item, closed, to a position under a new parent, or the top for null. The control is
// drawn again if the item was a row, even one with the style not to redraw. Returns the item;
// NoItem() when the new parent is the item or below it, null for no item.
OlbItem* MoveItem(Outline& outline, OlbItem* item, OlbItem* newParent, std::uint16_t position);

// The same for all children of an item, in order. Returns the last; null when there are none.
OlbItem* MoveChildren(Outline& outline, OlbItem* from, OlbItem* newParent, std::uint16_t position);

// Copies an item with all below it: text, data, pictures, height and lock. All copies are closed
// and none is selected. Returns the copy; NoItem() when there is no memory, null for no item.
OlbItem* CopyItem(Outline& outline, OlbItem* item, OlbItem* newParent, std::uint16_t position);

// The same for all children of an item, in order. Returns the last copy; null when there are none.
OlbItem* CopyChildren(Outline& outline, OlbItem* from, OlbItem* newParent, std::uint16_t position);

// ---- Searching and naming ----

// Searches the children of a closed parent, or for null the items at the top, for a text; without
// texts, for a value. Begins behind `start`, a position or a row, kNoRow for the first, and goes on
// from the first to `start`. `exact`: the whole text counts, else its beginning, byte for byte.
// NoItem() when there is none. Takes a step for each item.
OlbItem* FindString(const Outline& outline, OlbItem* parent, std::uint32_t start, const char* text,
                    bool exact);

// Searches the items at the top as a list box searches its rows: begins behind the one that the row
// `start` is, or is below, and goes round, that one last; from the first when there is no such row.
OlbItem* FindAtTop(const Outline& outline, std::uint32_t start, const char* text, bool exact);

// Writes the texts from the top down to the item, with separators (none when it is NUL), of at most
// 255 characters and terminated; an empty one for no item. Returns the length.
std::uint32_t FullPath(const Outline& outline, const OlbItem* item, char* buffer);

} // namespace vorn::hierlist
