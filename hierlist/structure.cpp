// Links between items, and their places in the sequences.
#include "hierlist/structure.h"

namespace vorn::hierlist {
namespace {

// The row behind everything below a shown item whose links do not tell which row is the last. All
// that is below it is in one piece.
std::uint32_t RowsEndByDescent(const Outline& outline, const OlbItem* owner) {
    const std::uint32_t row = SeqPosition(owner->node);
    return SeqFirstBehind(outline.visibleRoot, [&](const OlbSeqNode* node, std::uint32_t position) {
        return position > row && !IsBelowOrSame(node->item, owner);
    });
}

void LinkNeighbours(OlbItem* owner, OlbItem* before, OlbItem* after) {
    (before != nullptr ? before->nextSibling : owner->firstChild) = after;
    (after != nullptr ? after->prevSibling : owner->lastChild) = before;
}

} // namespace

std::int16_t LevelBelow(const OlbItem* owner) {
    return static_cast<std::int16_t>(owner->level < kDeepestLevel ? owner->level + 1
                                                                  : kDeepestLevel);
}

bool IsBelowOrSame(const OlbItem* item, const OlbItem* above) {
    while (item != nullptr && item != above) {
        item = item->parent;
    }
    return item != nullptr;
}

OlbItem* NextBelow(OlbItem* root, OlbItem* item) {
    if (item->firstChild != nullptr) {
        return item->firstChild;
    }
    while (item != root && item->nextSibling == nullptr) {
        item = item->parent != nullptr ? item->parent : root;
    }
    return item != root ? item->nextSibling : nullptr;
}

void LevelAllBelow(OlbItem* item) {
    for (OlbItem* below = NextBelow(item, item); below != nullptr; below = NextBelow(item, below)) {
        below->level = LevelBelow(below->parent);
    }
}

void LinkAfter(const Outline& outline, OlbItem* owner, OlbItem* sibling, OlbItem* item) {
    OlbItem* next = sibling != nullptr ? sibling->nextSibling : owner->firstChild;
    item->parent = owner != &outline.top ? owner : nullptr;
    LinkNeighbours(owner, sibling, item);
    LinkNeighbours(owner, item, next);
}

void KeepOrder(OlbItem* owner, bool sorted) {
    if (owner->firstChild != nullptr && !sorted) {
        owner->marks &= static_cast<std::uint8_t>(~kMarkInOrder);
    }
}

bool IsShown(Outline& outline, OlbItem* item) {
    if (item == &outline.top) {
        return true;
    }
    const OlbItem* owner = OwnerOf(outline, item);
    if (owner->shownChildren == 0 || owner->detachedRun == nullptr) {
        return owner->shownChildren != 0;
    }
    return SeqRoot(item->node) == outline.visibleRoot;
}

std::uint32_t RowsEnd(Outline& outline, OlbItem* owner) {
    if (owner == &outline.top) {
        return SeqCount(outline.visibleRoot);
    }
    while (owner->shownChildren != 0) {
        if ((owner->marks & kMarkOddChildren) != 0) {
            return RowsEndByDescent(outline, owner);
        }
        owner = owner->lastChild;
    }
    return SeqPosition(owner->node) + 1;
}

void SetShownChildren(Outline& outline, OlbItem* item, std::uint32_t count) {
    if (item != &outline.top) {
        OlbItem* owner = OwnerOf(outline, item);
        owner->unfoldedChildren += count != 0;
        owner->unfoldedChildren -= item->shownChildren != 0;
    }
    item->shownChildren = count;
}

Place PlaceBefore(Outline& outline, OlbItem* follower) {
    return {follower->prevSibling, SeqPosition(follower->node), IsShown(outline, follower)};
}

void PutAt(Outline& outline, OlbItem* owner, const Place& place, OlbItem* item) {
    item->level = LevelBelow(owner);
    LinkAfter(outline, owner, place.sibling, item);
    const std::uint32_t after = place.position - 1; // kSeqFront for the first
    if (place.isRow) {
        SeqInsert(outline.visibleRoot, after, item->node);
        SetShownChildren(outline, owner, owner->shownChildren + 1);
        owner->flags |= kFlagOpen;
        ++outline.visibleCount;
    } else {
        SeqInsert(owner->detachedRun, after, item->node);
        if (owner->shownChildren != 0) {
            owner->marks |= kMarkOddChildren; // where the rows are among the links is not kept
        }
    }
    ++outline.itemCount;
}

bool MakeRoom(Outline& outline, OlbItem* owner, bool mayOpen) {
    if (!IsShown(outline, owner)) {
        return false;
    }
    if ((owner->flags & kFlagOpen) != 0) {
        return true;
    }
    if ((owner->flags & kFlagLocked) != 0 || !mayOpen) {
        return false;
    }
    if (owner->firstChild != nullptr) {
        Unfold(outline, owner);
    }
    return true;
}

std::uint32_t TakeOut(Outline& outline, OlbItem* item) {
    OlbItem* owner = OwnerOf(outline, item);
    const std::uint32_t position = SeqPosition(item->node);
    std::uint32_t row = kNoRow;
    if (IsShown(outline, item)) {
        row = position;
        SeqCut(outline.visibleRoot, position, position);
        SetShownChildren(outline, owner, owner->shownChildren - 1);
        Lower(outline.visibleCount, 1);
    } else {
        SeqCut(owner->detachedRun, position, position);
    }
    LinkNeighbours(owner, item->prevSibling, item->nextSibling);
    Lower(owner->childCount, 1);
    Lower(outline.itemCount, 1);
    if (owner->firstChild == nullptr) {
        owner->childCount = 0;
        owner->marks |= kMarkInOrder;
        owner->marks &= static_cast<std::uint8_t>(~kMarkOddChildren);
        if (owner != &outline.top) {
            owner->flags &= static_cast<std::uint16_t>(~kFlagOpen);
        }
    }
    return row;
}

} // namespace vorn::hierlist
