// Inserting at a position among siblings.
#include "hierlist/outline.h"
#include "hierlist/structure.h"

namespace vorn::hierlist {
namespace {

// The child at a position in the order of links, null past the end.
OlbItem* ChildAt(const Outline& outline, const OlbItem* owner, std::uint32_t position) {
    if (position >= LinkedChildren(owner)) {
        return nullptr;
    }
    if (AreInSequence(owner)) {
        return owner->shownChildren == 0
                   ? SeqAt(owner->detachedRun, position)->item
                   : IndexToHandle(outline, SeqPosition(owner->firstChild->node) + position);
    }
    OlbItem* child = owner->firstChild;
    for (; position > 0; --position) {
        child = child->nextSibling;
    }
    return child;
}

// The place in front of a child, in the order of links; behind them all for null. A child that is
// shown below a closed parent has no place in the run: then it is behind all that is there.
Place PlaceInFrontOf(Outline& outline, OlbItem* owner, OlbItem* follower, bool isRow) {
    if (follower != nullptr && IsShown(outline, follower) == isRow) {
        return PlaceBefore(outline, follower);
    }
    OlbItem* sibling = follower != nullptr ? follower->prevSibling : owner->lastChild;
    return {sibling, isRow ? RowsEnd(outline, owner) : SeqCount(owner->detachedRun), isRow};
}

// Under a hidden parent an appended item is linked first and has level 0, and one at a position
// does not count.
void InsertHidden(Outline& outline, OlbItem* owner, std::uint32_t position, OlbItem* item) {
    const std::uint32_t count = SeqCount(owner->detachedRun);
    owner->marks &= static_cast<std::uint8_t>(~kMarkInOrder);
    if (position == kAtEnd) {
        PutAt(outline, owner, {nullptr, count, false}, item);
        owner->marks |= kMarkOddChildren;
        ++owner->childCount;
        item->level = 0;
        return;
    }
    const std::uint32_t at = position < count ? position : count;
    OlbItem* sibling = at != 0 ? SeqAt(owner->detachedRun, at - 1)->item : nullptr;
    PutAt(outline, owner, {sibling, at, false}, item);
}

} // namespace

bool AreInSequence(const OlbItem* owner) {
    return (owner->marks & kMarkOddChildren) == 0 && owner->unfoldedChildren == 0 &&
           (owner->shownChildren == 0 || owner->detachedRun == nullptr);
}

void InsertAt(Outline& outline, OlbItem* owner, std::uint32_t position, OlbItem* item) {
    if (!IsShown(outline, owner)) {
        InsertHidden(outline, owner, position, item);
        return;
    }
    const bool isRow = MakeRoom(outline, owner, true);
    OlbItem* follower = ChildAt(outline, owner, position);
    KeepOrder(owner, false);
    PutAt(outline, owner, PlaceInFrontOf(outline, owner, follower, isRow), item);
    ++owner->childCount;
}

OlbItem* InsertChild(Outline& outline, OlbItem* parent, std::uint16_t position, const char* text) {
    if (parent != nullptr && !IsItem(parent)) {
        return NoItem();
    }
    OlbItem* item = NewItem(outline, text);
    if (item == nullptr) {
        return NoItem();
    }
    InsertAt(outline, parent != nullptr ? parent : &outline.top, WidePosition(position), item);
    return Admit(outline, item);
}

OlbItem* InsertAtRow(Outline& outline, std::uint32_t row, const char* text) {
    OlbItem* item = NewItem(outline, text);
    if (item == nullptr) {
        return NoItem();
    }
    OlbItem* follower = IndexToHandle(outline, row);
    const OlbSeqNode* last = SeqLast(outline.visibleRoot);
    const OlbItem* beside = follower != nullptr ? follower : last != nullptr ? last->item : nullptr;
    OlbItem* owner = beside != nullptr ? OwnerOf(outline, beside) : &outline.top;
    const bool isRow = MakeRoom(outline, owner, true);
    KeepOrder(owner, false);
    PutAt(outline, owner, PlaceInFrontOf(outline, owner, follower, isRow), item);
    ++owner->childCount;
    return Admit(outline, item);
}

} // namespace vorn::hierlist
