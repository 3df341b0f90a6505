// From rows to items and back, and what can be asked of an item.
#include "hierlist/outline.h"
#include "hierlist/structure.h"

namespace vorn::hierlist {
namespace {

OlbItem* ItemOf(const OlbSeqNode* node) {
    return node != nullptr ? node->item : nullptr;
}

std::int32_t QueryFlag(const OlbItem* item, std::uint16_t flag) {
    return IsItem(item) ? (item->flags & flag) != 0 : -1;
}

} // namespace

OlbItem* IndexToHandle(const Outline& outline, std::uint32_t row) {
    return ItemOf(SeqAt(outline.visibleRoot, row));
}

std::uint32_t HandleToIndex(const OlbItem* item) {
    return IsItem(item) ? SeqPosition(item->node) : kNoRow;
}

std::uint32_t IndexOfAdded(const Outline& outline, const OlbItem* item) {
    return item->node == SeqLast(outline.visibleRoot) ? SeqCount(outline.visibleRoot) - 1
                                                      : SeqPosition(item->node);
}

std::int32_t QueryVisible(const OlbItem* item) {
    if (!IsItem(item)) {
        return -1;
    }
    const OlbItem* parent = item->parent;
    while (parent != nullptr && (parent->flags & kFlagOpen) != 0) {
        parent = parent->parent;
    }
    return parent == nullptr;
}

std::int32_t QueryOpen(const OlbItem* item) {
    return QueryFlag(item, kFlagOpen);
}

std::int32_t QueryLocked(const OlbItem* item) {
    return QueryFlag(item, kFlagLocked);
}

std::int32_t HasChildren(const OlbItem* item) {
    return IsItem(item) ? item->childCount != 0 : -1;
}

std::int32_t LevelOf(const OlbItem* item) {
    return IsItem(item) ? item->level : -1;
}

OlbItem* ParentOf(const OlbItem* item) {
    return IsItem(item) ? item->parent : NoItem();
}

OlbItem* DetachedChild(const OlbItem* parent, std::uint32_t position) {
    return IsItem(parent) ? ItemOf(SeqAt(parent->detachedRun, position)) : nullptr;
}

std::int32_t SetLocked(OlbItem* item, bool on) {
    const std::int32_t before = QueryLocked(item);
    if (before >= 0) {
        item->flags =
            static_cast<std::uint16_t>(on ? item->flags | kFlagLocked : item->flags & ~kFlagLocked);
    }
    return before;
}

std::int32_t SetSelected(Outline& outline, OlbItem* item, bool on) {
    const std::int32_t before = QueryFlag(item, kFlagSelected);
    if (before >= 0 && on != (before != 0)) {
        item->flags ^= kFlagSelected;
        OwnerOf(outline, item)->selectedChildren += on ? 1u : ~0u;
    }
    return before;
}

} // namespace vorn::hierlist
