// Moving items to other parents and positions.
#include "hierlist/outline.h"
#include "hierlist/structure.h"

namespace vorn::hierlist {
namespace {

// Whether an item is one of the first `count` among its siblings.
bool IsAmongFirst(const OlbItem* owner, const OlbItem* item, std::uint32_t count) {
    if (AreInSequence(owner)) {
        return SeqPosition(item->node) - SeqPosition(owner->firstChild->node) < count;
    }
    const OlbItem* child = owner->firstChild;
    for (; count > 0 && child != item && child != nullptr; --count) {
        child = child->nextSibling;
    }
    return count > 0 && child == item;
}

// Moves an item without telling the control. False when there is no memory for the side table.
bool Transplant(Outline& outline, OlbItem* item, OlbItem* owner, std::uint32_t position) {
    if (position != kAtEnd && OwnerOf(outline, item) == owner &&
        IsAmongFirst(owner, item, position)) {
        --position;
    }
    Withdraw(outline, item);
    const bool recorded = outline.compatibilityMode != 0;
    const std::uintptr_t value =
        recorded ? outline.callbacks->forgetItem(outline.context, item) : 0;
    InsertAt(outline, owner, position, item);
    LevelAllBelow(item);
    return !recorded || outline.callbacks->recordItem(outline.context, item, value);
}

// Ends a move. Where a row was taken away everything is drawn again whatever the style says.
// Returns the item, or NoItem() when the host has deleted it.
OlbItem* Finish(Outline& outline, OlbItem* item, bool wasRow, bool recorded) {
    const Watch watch(outline, item);
    if (!recorded) {
        outline.callbacks->errorSpace(outline.context);
    }
    if (!watch.Gone() && !wasRow) {
        TellRowsChanged(outline, Redraw::All, kNoRow);
    } else if (!watch.Gone()) {
        outline.callbacks->rowsChanged(outline.context);
        if (!watch.Gone()) {
            outline.callbacks->redraw(outline.context, Redraw::All, kNoRow);
        }
    }
    return watch.Item() != nullptr ? watch.Item() : NoItem();
}

} // namespace

OlbItem* MoveItem(Outline& outline, OlbItem* item, OlbItem* newParent, std::uint16_t position) {
    if (!IsItem(item) || (newParent != nullptr && !IsItem(newParent))) {
        return nullptr;
    }
    if (IsBelowOrSame(newParent, item)) {
        return NoItem();
    }
    OlbItem* owner = newParent != nullptr ? newParent : &outline.top;
    const bool wasRow = IsShown(outline, item);
    const bool recorded = Transplant(outline, item, owner, WidePosition(position));
    return Finish(outline, item, wasRow, recorded);
}

OlbItem* MoveChildren(Outline& outline, OlbItem* from, OlbItem* newParent, std::uint16_t position) {
    if (!IsItem(from) || (newParent != nullptr && !IsItem(newParent)) ||
        from->lastChild == nullptr) {
        return nullptr;
    }
    OlbItem* last = from->lastChild;
    if (newParent == from) {
        return last;
    }
    if (IsBelowOrSame(newParent, from)) {
        return NoItem();
    }
    OlbItem* owner = newParent != nullptr ? newParent : &outline.top;
    std::uint32_t at = WidePosition(position);
    bool wasRow = false;
    bool recorded = true;
    while (OlbItem* child = from->firstChild) {
        wasRow |= IsShown(outline, child);
        recorded &= Transplant(outline, child, owner, at);
        at += at != kAtEnd;
    }
    return Finish(outline, last, wasRow, recorded);
}

} // namespace vorn::hierlist
