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

// The first sibling that is to stand behind an item, null when all stay in front of it.
OlbItem* FollowerByScan(const Outline& outline, const Siblings& siblings, const OlbItem* item) {
    OlbItem* sibling = siblings.First();
    while (sibling != nullptr && CompareItems(outline, item, sibling) >= 0) {
        sibling = siblings.After(sibling);
    }
    return sibling;
}

// The child of a parent, null for the top, that an item below the parent is or is below.
OlbItem* ChildAbove(const OlbItem* parent, OlbItem* item) {
    while (item->parent != parent) {
        item = item->parent;
    }
    return item;
}

// The same among siblings in order, in positions [first, end) of a sequence: each row on one way
// down tells the side by the sibling that it belongs to, which is compared only once.
OlbItem* FollowerByDescent(const Outline& outline, const OlbItem* owner, OlbSeqNode* root,
                           std::uint32_t first, std::uint32_t end, const OlbItem* item) {
    const OlbItem* parent = owner != &outline.top ? owner : nullptr;
    const OlbItem* leader = nullptr; // the nearest one known to stay in front
    OlbItem* follower = nullptr;
    SeqFirstBehind(root, [&](const OlbSeqNode* node, std::uint32_t position) {
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
    });
    return follower;
}

OlbItem* FollowerByText(Outline& outline, OlbItem* owner, bool rows, const OlbItem* item) {
    const Siblings siblings(outline, owner, rows);
    if ((owner->marks & kMarkInOrder) == 0) {
        return FollowerByScan(outline, siblings, item);
    }
    if (!rows) {
        return FollowerByDescent(outline, owner, owner->detachedRun, 0, kNoRow, item);
    }
    return FollowerByDescent(outline, owner, outline.visibleRoot, siblings.FirstRow(),
                             RowsEnd(outline, owner), item);
}

// The same as the host answers, which may do anything meanwhile: null as well when the sibling
// asked about is no longer where it was. The host is asked once for each sibling at most, however
// many it adds.
OlbItem* FollowerByHost(Outline& outline, const Watch& owner, bool rows, const OlbItem* item) {
    const Siblings siblings(outline, owner.Item(), rows);
    OlbItem* sibling = siblings.First();
    for (std::uint32_t left = owner.Item()->linkedChildren; left > 0 && sibling != nullptr;
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
    bool isRow = MakeRoom(outline, owner, outline.autoOpen);
    OlbItem* follower = nullptr;
    const bool sorted = (outline.style & kStyleSort) != 0;
    const bool byText = sorted && !HoldsValues(outline);
    if (byText) {
        follower = FollowerByText(outline, owner, isRow, item);
    } else if (sorted) {
        const Watch watch(outline, owner);
        follower = FollowerByHost(outline, watch, isRow, item);
        if (watch.Item() == nullptr) {
            FreeItem(item);
            return NoItem();
        }
        isRow = MakeRoom(outline, owner, outline.autoOpen);
    }

    const bool hasFollower = follower != nullptr && IsShown(outline, follower) == isRow;
    const Place place =
        hasFollower ? PlaceBefore(outline, follower) : Siblings(outline, owner, isRow).End();
    KeepOrder(owner, byText);
    PutAt(outline, owner, place, item);
    ++owner->childCount;
    return Admit(outline, item);
}

} // namespace vorn::hierlist
