// Copying items with all below them. The copies are made first, in no place, and then placed: so
// nothing has changed when memory runs out, and a copy of an item may go below the item.
#include "hierlist/outline.h"
#include "hierlist/structure.h"

namespace vorn::hierlist {
namespace {

// Makes a copy the last child of another that is in no place yet.
void Append(const Outline& outline, OlbItem* parent, OlbItem* copy) {
    LinkAfter(outline, parent, parent->lastChild, copy);
    SeqInsert(parent->detachedRun, kSeqEnd, copy->node);
    ++parent->childCount;
}

// What is known about the order of an item's children holds of the copies, which are linked alike.
void CopyOrder(const OlbItem* item, OlbItem* copy) {
    if ((item->marks & kMarkInOrder) == 0) {
        copy->marks &= static_cast<std::uint8_t>(~kMarkInOrder);
    }
}

// Copies all below an item. False when there is no memory; `copy` then has some of it.
bool CopyBelow(const Outline& outline, const OlbItem* item, OlbItem* copy) {
    const OlbItem* from = item;
    OlbItem* parent = copy; // of the next copy
    for (;;) {
        if (from->firstChild != nullptr) {
            from = from->firstChild;
        } else {
            while (from != item && from->nextSibling == nullptr) {
                from = from->parent;
                parent = parent->parent;
            }
            if (from == item) {
                return true;
            }
            from = from->nextSibling;
            parent = parent->parent;
        }
        OlbItem* next = Duplicate(from);
        if (next == nullptr) {
            return false;
        }
        CopyOrder(from, next);
        Append(outline, parent, next);
        parent = next;
    }
}

// Counts and records a copy in its place, with all below it. False when there is no memory for the
// side table.
bool RecordAll(Outline& outline, OlbItem* copy) {
    bool recorded = true;
    for (OlbItem* item = copy; item != nullptr; item = NextBelow(copy, item)) {
        outline.itemCount += item != copy; // placing has counted the copy itself
        if (outline.compatibilityMode != 0) {
            recorded &= outline.callbacks->recordItem(outline.context, item, 0);
        }
    }
    return recorded;
}

// Places the children of `copies` at a position. Returns the last one, or NoItem() when the host
// has deleted it.
OlbItem* PlaceAll(Outline& outline, OlbItem* copies, OlbItem* owner, std::uint32_t position) {
    bool recorded = true;
    OlbItem* last = copies->lastChild;
    for (OlbItem* copy = copies->firstChild; copy != nullptr;) {
        OlbItem* next = copy->nextSibling;
        SeqCut(copies->detachedRun, 0, 0);
        InsertAt(outline, owner, position, copy);
        LevelAllBelow(copy);
        recorded &= RecordAll(outline, copy);
        position += position != kAtEnd;
        copy = next;
    }
    const Watch watch(outline, last);
    if (!recorded) {
        outline.callbacks->errorSpace(outline.context);
    }
    if (!watch.Gone()) {
        TellRowsChanged(outline, Redraw::All, kNoRow);
    }
    return watch.Item() != nullptr ? watch.Item() : NoItem();
}

OlbItem* GiveUp(Outline& outline, OlbItem* copies) {
    FreeBelow(copies, nullptr);
    outline.callbacks->errorSpace(outline.context);
    return NoItem();
}

} // namespace

OlbItem* CopyItem(Outline& outline, OlbItem* item, OlbItem* newParent, std::uint16_t position) {
    if (!IsItem(item) || (newParent != nullptr && !IsItem(newParent))) {
        return nullptr;
    }
    OlbItem copies{};
    OlbItem* copy = Duplicate(item);
    if (copy != nullptr) {
        CopyOrder(item, copy);
        Append(outline, &copies, copy);
    }
    if (copy == nullptr || !CopyBelow(outline, item, copy)) {
        return GiveUp(outline, &copies);
    }
    OlbItem* owner = newParent != nullptr ? newParent : &outline.top;
    return PlaceAll(outline, &copies, owner, WidePosition(position));
}

OlbItem* CopyChildren(Outline& outline, OlbItem* from, OlbItem* newParent, std::uint16_t position) {
    if (!IsItem(from) || (newParent != nullptr && !IsItem(newParent)) ||
        from->firstChild == nullptr) {
        return nullptr;
    }
    OlbItem copies{};
    if (!CopyBelow(outline, from, &copies)) {
        return GiveUp(outline, &copies);
    }
    OlbItem* owner = newParent != nullptr ? newParent : &outline.top;
    return PlaceAll(outline, &copies, owner, WidePosition(position));
}

} // namespace vorn::hierlist
