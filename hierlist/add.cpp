// Adding a child behind its siblings, or in order.
#include "hierlist/compare.h"
#include "hierlist/outline.h"
#include "hierlist/structure.h"

namespace vorn::hierlist {
namespace {

// An owner's children as adding goes through them, either in the order of their rows or in that of
// the detached run. A child of a level that its parent has too ends the rows.
class Siblings {
public:
    Siblings(Outline& ofOutline, OlbItem* ofOwner, bool areRows)
        : outline(ofOutline), owner(ofOwner), rows(areRows) {}

    OlbItem* First() const {
        if (!rows) {
            return ItemOf(SeqFirst(owner->detachedRun));
        }
        return IsOdd() ? AtRow(FirstRow()) : owner->firstChild;
    }

    OlbItem* After(OlbItem* sibling) const {
        if (!rows) {
            return ItemOf(SeqNext(sibling->node));
        }
        return IsOdd() ? AtRow(RowsEnd(outline, sibling)) : sibling->nextSibling;
    }

    // The place behind all of them.
    Place End() const {
        if (!rows) {
            return {ItemOf(SeqLast(owner->detachedRun)), SeqCount(owner->detachedRun), false};
        }
        if (!IsOdd()) {
            return {owner->lastChild, RowsEnd(outline, owner), true};
        }
        Place end = {nullptr, FirstRow(), true};
        while (OlbItem* sibling = AtRow(end.position)) {
            end = {sibling, RowsEnd(outline, sibling), true};
        }
        return end;
    }

    std::uint32_t FirstRow() const {
        return owner == &outline.top ? 0 : SeqPosition(owner->node) + 1;
    }

    bool AreRows() const { return rows; }

private:
    static OlbItem* ItemOf(const OlbSeqNode* node) {
        return node != nullptr ? node->item : nullptr;
    }

    bool IsOdd() const { return (owner->marks & kMarkOddChildren) != 0; }

    OlbItem* AtRow(std::uint32_t row) const {
        OlbItem* item = IndexToHandle(outline, row);
        const bool isSibling =
            item != nullptr && OwnerOf(outline, item) == owner && item->level > owner->level;
        return isSibling ? item : nullptr;
    }

    Outline& outline;
    OlbItem* owner;
    bool rows;
};

// In front of a sibling; behind them all for null or when it is not in the same sequence.
Place PlaceFor(Outline& outline, const Siblings& siblings, OlbItem* follower) {
    const bool isThere = follower != nullptr && IsShown(outline, follower) == siblings.AreRows();
    return isThere ? PlaceBefore(outline, follower) : siblings.End();
}

// In front of the first sibling that is to stand behind the item.
Place PlaceByScan(Outline& outline, const Siblings& siblings, const OlbItem* item) {
    OlbItem* sibling = siblings.First();
    while (sibling != nullptr && CompareItems(outline, item, sibling) >= 0) {
        sibling = siblings.After(sibling);
    }
    return PlaceFor(outline, siblings, sibling);
}

// The child of a parent, null for the top, that an item below the parent is or is below.
OlbItem* ChildAbove(const OlbItem* parent, OlbItem* item) {
    while (item->parent != parent) {
        item = item->parent;
    }
    return item;
}

// The same among siblings in order, which have positions [first, end) of a sequence to themselves:
// each row on one way down tells the side by the sibling that it belongs to, which is compared only
// once.
Place PlaceByDescent(Outline& outline, OlbItem* owner, bool rows, const OlbItem* item) {
    OlbSeqNode* root = rows ? outline.visibleRoot : owner->detachedRun;
    const std::uint32_t first = rows ? Siblings(outline, owner, rows).FirstRow() : 0;
    const std::uint32_t end = rows ? RowsEnd(outline, owner) : kNoRow;
    const OlbItem* parent = owner != &outline.top ? owner : nullptr;
    const OlbItem* leader = nullptr; // the nearest one known to stay in front
    OlbItem* follower = nullptr;
    const auto isBehind = [&](const OlbSeqNode* node, std::uint32_t position) {
        if (position < first || position >= end) {
            return position >= end;
        }
        OlbItem* sibling = ChildAbove(parent, node->item);
        if (sibling != leader && sibling != follower) {
            if (CompareItems(outline, item, sibling) < 0) {
                follower = sibling;
            } else {
                leader = sibling;
            }
        }
        return sibling == follower;
    };
    const std::uint32_t position = SeqFirstBehind(root, isBehind);
    return {follower != nullptr ? follower->prevSibling : owner->lastChild, position, rows};
}

Place PlaceByText(Outline& outline, OlbItem* owner, bool rows, const OlbItem* item) {
    return (owner->marks & kMarkInOrder) != 0
               ? PlaceByDescent(outline, owner, rows, item)
               : PlaceByScan(outline, Siblings(outline, owner, rows), item);
}

// The first sibling that is to stand behind the item as the host answers, which may do anything
// meanwhile: null as well when the sibling asked about is no longer where it was. The host is asked
// once for each sibling at most, however many it adds.
OlbItem* FollowerByHost(Outline& outline, const Watch& owner, bool rows, const OlbItem* item) {
    const Siblings siblings(outline, owner.Item(), rows);
    OlbItem* sibling = siblings.First();
    for (std::uint32_t left = LinkedChildren(owner.Item()); left > 0 && sibling != nullptr;
         --left) {
        const Watch asked(outline, sibling);
        const int order = outline.callbacks->compareValues(
            outline.context, ValueOf(item), ValueOf(sibling), SeqPosition(sibling->node));
        if (owner.Item() == nullptr || asked.Item() == nullptr ||
            OwnerOf(outline, sibling) != owner.Item() || IsShown(outline, sibling) != rows) {
            return nullptr;
        }
        if (order < 0) {
            return sibling;
        }
        sibling = siblings.After(sibling);
    }
    return nullptr;
}

} // namespace

OlbItem* AddChild(Outline& outline, OlbItem* parent, const char* text, std::int16_t bitmapIndex) {
    if (parent == NoItem()) {
        parent = nullptr;
    }
    if (parent != nullptr && !IsItem(parent)) {
        return NoItem();
    }
    OlbItem* item = NewItem(outline, text);
    if (item == nullptr) {
        return NoItem();
    }
    item->bitmapIndex = bitmapIndex;

    OlbItem* owner = parent != nullptr ? parent : &outline.top;
    const bool sorted = (outline.style & kStyleSort) != 0;
    const bool byText = sorted && !HoldsValues(outline);
    OlbItem* follower = nullptr;
    if (sorted && !byText) {
        const bool wouldBeRow = MakeRoom(outline, owner, outline.autoOpen);
        const Watch watch(outline, owner);
        follower = FollowerByHost(outline, watch, wouldBeRow, item);
        if (watch.Item() == nullptr) {
            FreeItem(item);
            return NoItem();
        }
    }
    const bool isRow = MakeRoom(outline, owner, outline.autoOpen);
    const Place place = byText ? PlaceByText(outline, owner, isRow, item)
                               : PlaceFor(outline, Siblings(outline, owner, isRow), follower);
    KeepOrder(owner, byText);
    PutAt(outline, owner, place, item);
    ++owner->childCount;
    return Admit(outline, item);
}

} // namespace vorn::hierlist
