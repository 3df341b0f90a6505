// Opening and closing: the children's run goes into the visible sequence and comes out again.
#include "hierlist/outline.h"
#include "hierlist/structure.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

bool MayOpen(const OlbItem* item) {
    return (item->flags & (kFlagOpen | kFlagLocked)) == 0 && item->childCount > 0;
}

bool MayClose(const OlbItem* item) {
    return (item->flags & kFlagOpen) != 0 && item->childCount > 0;
}

// Closes an open item as the host asks it to: rows of children that childCount leaves out stay.
void CloseCounted(Outline& outline, OlbItem* item) {
    FoldChildren(outline, item);
    Fold(outline, item, item->childCount);
}

// Whether children are left that folding their parent has to do with.
bool MustWalk(const OlbItem* owner) {
    return owner->unfoldedChildren != 0 || owner->selectedChildren != 0;
}

} // namespace

void Unfold(Outline& outline, OlbItem* item) {
    const std::uint32_t children = LinkedChildren(item);
    SeqSplice(outline.visibleRoot, SeqPosition(item->node), item->detachedRun);
    item->detachedRun = nullptr;
    SetShownChildren(outline, item, children);
    item->flags |= kFlagOpen;
    outline.visibleCount += item->childCount;
}

void Fold(Outline& outline, OlbItem* item, std::uint32_t count) {
    if (count != 0) {
        const std::uint32_t row = SeqPosition(item->node);
        OlbSeqNode* rows = SeqCut(outline.visibleRoot, row + 1, row + count);
        SeqSplice(item->detachedRun, kSeqEnd, rows);
        SetShownChildren(outline, item, item->shownChildren - count);
    }
    if ((item->flags & kFlagOpen) != 0) {
        Lower(outline.visibleCount, item->childCount);
        item->flags &= static_cast<std::uint16_t>(~kFlagOpen);
    }
}

void FoldChildren(Outline& outline, OlbItem* item) {
    OlbItem* owner = item;
    OlbItem* child = MustWalk(owner) ? owner->firstChild : nullptr;
    for (;;) {
        if (child == nullptr) {
            if (owner == item) {
                return;
            }
            // All below this one is folded; on with its siblings.
            child = owner;
            Fold(outline, child, child->shownChildren);
            owner = OwnerOf(outline, child);
        } else {
            if ((child->flags & kFlagSelected) != 0) {
                Deselect(outline, child);
            }
            if (child->shownChildren != 0) {
                owner = child;
                child = MustWalk(owner) ? owner->firstChild : nullptr;
                continue;
            }
        }
        child = MustWalk(owner) ? child->nextSibling : nullptr;
    }
}

void Open(Outline& outline, std::uint32_t row) {
    OlbItem* item = IndexToHandle(outline, row);
    if (item == nullptr || !MayOpen(item)) {
        return;
    }
    Unfold(outline, item);
    TellRowsChanged(outline, Redraw::FromRow, row);
}

void Close(Outline& outline, std::uint32_t row) {
    OlbItem* item = IndexToHandle(outline, row);
    if (item == nullptr || !MayClose(item)) {
        return;
    }
    CloseCounted(outline, item);
    TellRowsChanged(outline, Redraw::FromRow, row);
}

void OpenAll(Outline& outline, OlbItem* item) {
    OlbSeqNode* node = SeqFirst(outline.visibleRoot);
    const OlbSeqNode* end = nullptr;
    if (item != nullptr) {
        if (!IsItem(item) || !IsShown(outline, item)) {
            return;
        }
        node = item->node;
        end = SeqAt(outline.visibleRoot, RowsEnd(outline, item));
    }
    for (; node != end; node = SeqNext(node)) {
        if (MayOpen(node->item)) {
            Unfold(outline, node->item);
        }
    }
    TellRowsChanged(outline, Redraw::All, kNoRow);
}

void CloseAll(Outline& outline) {
    for (OlbItem* item = outline.top.firstChild; item != nullptr; item = item->nextSibling) {
        if (MayClose(item)) {
            CloseCounted(outline, item);
        }
    }
    TellRowsChanged(outline, Redraw::All, kNoRow);
}

} // namespace vorn::hierlist
