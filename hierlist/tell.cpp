// What the control and the host are told, and what is left when the host's code returns.
#include "hierlist/outline.h"
#include "hierlist/structure.h"

namespace vorn::hierlist {
namespace {

// Shows what an item in its place changes: all below it moves down, or its parent becomes one.
void TellPlaced(Outline& outline, OlbItem* item) {
    OlbItem* owner = OwnerOf(outline, item);
    if (IsShown(outline, item)) {
        TellRowsChanged(outline, Redraw::All, kNoRow);
    } else if (owner->firstChild == owner->lastChild && IsShown(outline, owner)) {
        TellRedraw(outline, Redraw::Row, SeqPosition(owner->node));
    }
}

} // namespace

Watch::Watch(Outline& watched, OlbItem* watchedItem)
    : item(watchedItem), outline(&watched), next(watched.watches) {
    watched.watches = this;
}

Watch::~Watch() {
    if (outline != nullptr) {
        outline->watches = next;
    }
}

void ForgetWatched(Outline& outline, const OlbItem* item) {
    for (Watch* watch = outline.watches; watch != nullptr; watch = watch->next) {
        if (watch->item == item) {
            watch->item = nullptr;
        }
    }
}

void ForgetAllWatched(Outline& outline, bool gone) {
    for (Watch* watch = outline.watches; watch != nullptr; watch = watch->next) {
        if (gone || watch->item != &outline.top) {
            watch->item = nullptr;
        }
        if (gone) {
            watch->outline = nullptr;
        }
    }
}

void TellRedraw(Outline& outline, Redraw what, std::uint32_t row) {
    if ((outline.style & kStyleNoRedraw) == 0) {
        outline.callbacks->redraw(outline.context, what, row);
    }
}

void TellRowsChanged(Outline& outline, Redraw what, std::uint32_t row) {
    const Watch watch(outline, nullptr);
    outline.callbacks->rowsChanged(outline.context);
    if (!watch.Gone()) {
        TellRedraw(outline, what, row);
    }
}

OlbItem* Admit(Outline& outline, OlbItem* item) {
    const Watch watch(outline, item);
    if ((outline.style & kStyleOwnerDrawVariable) != 0) {
        const std::uint32_t row = IsShown(outline, item) ? SeqPosition(item->node) : kNoRow;
        const std::uint16_t height = outline.callbacks->measure(outline.context, item, row);
        if (watch.Item() == nullptr) {
            return NoItem();
        }
        item->height = height;
    }
    if (outline.compatibilityMode != 0 &&
        !outline.callbacks->recordItem(outline.context, item, 0)) {
        outline.callbacks->errorSpace(outline.context);
        if (watch.Item() == nullptr) {
            return NoItem();
        }
    }
    TellPlaced(outline, item);
    return watch.Item() != nullptr ? watch.Item() : NoItem();
}

void Deselect(Outline& outline, OlbItem* item) {
    SetSelected(outline, item, false);
    outline.callbacks->deselected(outline.context, item);
}

} // namespace vorn::hierlist
