// Deleting. What goes is taken out of the outline first; then the host is told, child before
// parent, and whatever it does meanwhile cannot reach what is being freed.
#include "hierlist/outline.h"
#include "hierlist/structure.h"

namespace vorn::hierlist {
namespace {

// Makes sure that nobody refers to an item, or will.
void Retire(Outline& outline, OlbItem* item) {
    if ((item->flags & kFlagSelected) != 0) {
        Deselect(outline, item);
    }
    if (outline.compatibilityMode != 0) {
        outline.callbacks->forgetItem(outline.context, item);
    }
    outline.callbacks->retired(outline.context, item);
    ForgetWatched(outline, item);
    item->marks |= kMarkDying;
}

// The items leave the outline's count as their parents count them.
void RetireAllBelow(Outline& outline, OlbItem* root) {
    Lower(outline.itemCount, root->childCount);
    for (OlbItem* item = NextBelow(root, root); item != nullptr; item = NextBelow(root, item)) {
        Lower(outline.itemCount, item->childCount);
        Retire(outline, item);
    }
}

// Whether the host is told of each item that goes.
bool TellsDeletes(const Outline& outline) {
    return HoldsValues(outline);
}

OlbItem* FirstToFree(OlbItem* item) {
    while (item->firstChild != nullptr) {
        item = item->firstChild;
    }
    return item;
}

// Folds all below an item, which ends closed. Returns whether it was open.
bool FoldAll(Outline& outline, OlbItem* item) {
    const bool wasOpen = (item->flags & kFlagOpen) != 0;
    FoldChildren(outline, item);
    Fold(outline, item, item->shownChildren);
    return wasOpen;
}

// Leaves an outline without items; they are the caller's.
void Empty(Outline& outline) {
    outline.top = Outline{}.top;
    outline.visibleRoot = nullptr;
    outline.itemCount = 0;
    outline.visibleCount = 0;
}

} // namespace

void FreeBelow(OlbItem* root, const Watch* teller) {
    OlbItem* item = FirstToFree(root);
    while (item != root) {
        OlbItem* next = item->nextSibling;
        OlbItem* parent = item->parent != nullptr ? item->parent : root;
        if (teller != nullptr && !teller->Gone()) {
            const Outline& outline = *teller->Watched();
            outline.callbacks->deleted(outline.context, kNoRow, item->itemData);
        }
        FreeItem(item);
        item = next != nullptr ? FirstToFree(next) : parent;
    }
}

std::uint32_t Withdraw(Outline& outline, OlbItem* item) {
    if ((item->flags & kFlagSelected) != 0) {
        Deselect(outline, item);
    }
    FoldAll(outline, item);
    return TakeOut(outline, item);
}

std::uint32_t DeleteItem(Outline& outline, OlbItem* item) {
    if (!IsItem(item)) {
        return kNoRow;
    }
    OlbItem* owner = OwnerOf(outline, item);
    const std::uint32_t row = Withdraw(outline, item);
    RetireAllBelow(outline, item);
    Retire(outline, item);

    const Watch watch(outline, owner);
    const bool tells = TellsDeletes(outline);
    FreeBelow(item, tells ? &watch : nullptr);
    if (tells && !watch.Gone()) {
        outline.callbacks->deleted(outline.context, row, item->itemData);
    }
    FreeItem(item);

    owner = watch.Item();
    if (owner != nullptr && owner != &outline.top && owner->firstChild == nullptr &&
        IsShown(outline, owner)) {
        TellRedraw(outline, Redraw::Row, SeqPosition(owner->node));
    }
    if (!watch.Gone()) {
        TellRowsChanged(outline, Redraw::All, kNoRow);
    }
    return row;
}

std::int32_t DeleteSubtree(Outline& outline, OlbItem* item) {
    if (!IsItem(item)) {
        return -1;
    }
    const bool wasOpen = FoldAll(outline, item);
    RetireAllBelow(outline, item);
    OlbItem removed{};
    removed.firstChild = item->firstChild;
    for (OlbItem* child = item->firstChild; child != nullptr; child = child->nextSibling) {
        child->parent = nullptr; // the host may delete the item before they are freed
    }
    item->firstChild = nullptr;
    item->lastChild = nullptr;
    item->detachedRun = nullptr;
    item->childCount = 0;
    item->marks |= kMarkInOrder;
    item->marks &= static_cast<std::uint8_t>(~kMarkOddChildren);

    const Watch watch(outline, item);
    FreeBelow(&removed, TellsDeletes(outline) ? &watch : nullptr);
    if (watch.Item() != nullptr && IsShown(outline, item)) {
        const std::uint32_t row = SeqPosition(item->node);
        if (!wasOpen) {
            TellRedraw(outline, Redraw::Row, row);
        } else {
            TellRowsChanged(outline, Redraw::FromRow, row);
        }
    }
    return watch.Gone() ? -1 : static_cast<std::int32_t>(outline.itemCount);
}

void Reset(Outline& outline) {
    outline.callbacks->cleared(outline.context);
    OlbItem removed = outline.top;
    Empty(outline);
    ForgetAllWatched(outline, false);
    const bool tells = TellsDeletes(outline);
    if (tells) {
        OlbItem* item = NextBelow(&removed, &removed);
        for (; item != nullptr; item = NextBelow(&removed, item)) {
            item->marks |= kMarkDying;
        }
    }
    const Watch watch(outline, nullptr);
    FreeBelow(&removed, tells ? &watch : nullptr);
    if (!watch.Gone()) {
        TellRowsChanged(outline, Redraw::All, kNoRow);
    }
}

void Destroy(Outline& outline) {
    OlbItem removed = outline.top;
    Empty(outline);
    ForgetAllWatched(outline, true);
    outline.watches = nullptr;
    FreeBelow(&removed, nullptr);
}

} // namespace vorn::hierlist
