// What the operations on an outline are made of.
//
// What always holds, whatever the host does:
// - an item's node is in the visible sequence or in its parent's detached run;
// - the visible sequence holds an item only with all its parents, each before its children and
//   everything below one item in one piece; shownChildren is how many of the children it holds;
// - an open item has children and all of them are in the visible sequence;
// - childCount is the number of linked children at most, and visibleCount and itemCount never fall
//   below 0.
#pragma once

#include "hierlist/item.h"

namespace vorn::hierlist {

constexpr std::uint32_t kSeqEnd = kSeqFront - 1; // after which a node or run goes last

// Keeps an eye on an item while the host's code runs. Lives on the stack.
class Watch {
public:
    Watch(Outline& watched, OlbItem* watchedItem);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    // Null when the item is no more; so it is when the outline is gone.
    OlbItem* Item() const { return item; }
    bool Gone() const { return outline == nullptr; }
    Outline* Watched() const { return outline; }

    friend void ForgetWatched(Outline& outline, const OlbItem* item);
    friend void ForgetAllWatched(Outline& outline, bool gone);

private:
    OlbItem* item;
    Outline* outline;
    Watch* next;
};

// Tells the waiting operations that an item, or all, or the outline itself, is no more.
void ForgetWatched(Outline& outline, const OlbItem* item);
void ForgetAllWatched(Outline& outline, bool gone);

// ---- Memory ----

// A new item with its node, in no place yet. Null when there is no memory, of which the host is
// told, or the text is too long.
OlbItem* NewItem(Outline& outline, const char* text);

// A new item with the same text and properties, neither open nor selected. The host is not told.
OlbItem* Duplicate(const OlbItem* item);

// Frees an item and its node.
void FreeItem(OlbItem* item);

// Frees everything below an item, children before their parents. The item itself is in no outline;
// items without a parent are its children too. With a watch the host is told of each, as long as
// the outline watched is there.
void FreeBelow(OlbItem* root, const Watch* teller);

// Whether texts are replaced by values that only the host understands.
inline bool HoldsValues(const Outline& outline) {
    return (outline.style & kStyleOwnerDraw) != 0 && (outline.style & kStyleHasStrings) == 0;
}

// ---- Links ----

inline OlbItem* OwnerOf(Outline& outline, const OlbItem* item) {
    return item->parent != nullptr ? item->parent : &outline.top;
}

inline void Lower(std::uint32_t& count, std::uint32_t by) {
    count -= by < count ? by : count;
}

// The level of an item's children.
std::int16_t LevelBelow(const OlbItem* owner);

// Gives everything below an item its level.
void LevelAllBelow(OlbItem* item);

// Whether an item is another one or below it. Takes a step for each level.
bool IsBelowOrSame(const OlbItem* item, const OlbItem* above);

// The next item in the order of links, everything below `root` and then null. Items without a
// parent are children of `root`.
OlbItem* NextBelow(OlbItem* root, OlbItem* item);

// Links an item behind a sibling, or first for null.
void LinkAfter(const Outline& outline, OlbItem* owner, OlbItem* sibling, OlbItem* item);

// Notes what a new child does to the order that its owner's children are in: it stays as it was
// when the child is put where sorting says. To be called before the child is linked.
void KeepOrder(OlbItem* owner, bool sorted);

// ---- Places ----

// Whether an item is in the visible sequence, which its parents' flags need not tell.
bool IsShown(Outline& outline, OlbItem* item);

// The row behind the last one that is below an item, the item's own included.
std::uint32_t RowsEnd(Outline& outline, OlbItem* owner);

void SetShownChildren(Outline& outline, OlbItem* item, std::uint32_t count);

// How many children the links know.
inline std::uint32_t LinkedChildren(const OlbItem* owner) {
    return owner->shownChildren + SeqCount(owner->detachedRun);
}

// A place among an owner's children: behind a sibling, first for null, and at a row or at a
// position of the detached run.
struct Place {
    OlbItem* sibling;
    std::uint32_t position;
    bool isRow;
};

Place PlaceBefore(Outline& outline, OlbItem* follower);

// Puts an item there, with its level, and counts it in the outline; not in the owner's childCount.
// A row among an owner's children opens the owner.
void PutAt(Outline& outline, OlbItem* owner, const Place& place, OlbItem* item);

// Whether a new child's place is among the rows. Opens a closed owner that has children, if it may
// be opened at all; one without is opened when the child is put there.
bool MakeRoom(Outline& outline, OlbItem* owner, bool mayOpen);

// A position among siblings that may be beyond 16 bits; kAtEnd for kAppend.
constexpr std::uint32_t kAtEnd = 0xFFFFFFFF;

inline std::uint32_t WidePosition(std::uint16_t position) {
    return position != kAppend ? position : kAtEnd;
}

// Whether the positions of an owner's children in their sequence tell their order in the links.
bool AreInSequence(const OlbItem* owner);

// Places an item at a position among the owner's children, with all that is odd about positions
// under hidden parents.
void InsertAt(Outline& outline, OlbItem* owner, std::uint32_t position, OlbItem* item);

// ---- Folding ----

// Makes rows of the detached children of an item that is a row.
void Unfold(Outline& outline, OlbItem* item);

// Takes `count` rows below an item, whose children have none themselves, back into its run.
void Fold(Outline& outline, OlbItem* item, std::uint32_t count);

// Folds and deselects all children of an item and what is below them.
void FoldChildren(Outline& outline, OlbItem* item);

// Takes an item, folded, out of its place and its links, and out of the counts. Returns the row
// that it had.
std::uint32_t TakeOut(Outline& outline, OlbItem* item);

// The same of any item, which is folded and deselected first.
std::uint32_t Withdraw(Outline& outline, OlbItem* item);

// ---- Telling the control ----

void Deselect(Outline& outline, OlbItem* item);

// What follows when a new item is in its place: its height is asked, it is entered in the side
// table, the control is told. Returns the item, or NoItem() when the host has deleted it by then.
OlbItem* Admit(Outline& outline, OlbItem* item);

// Those end an operation; the outline may be gone afterwards.
void TellRowsChanged(Outline& outline, Redraw what, std::uint32_t row);
void TellRedraw(Outline& outline, Redraw what, std::uint32_t row);

} // namespace vorn::hierlist
