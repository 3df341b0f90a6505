#include "hierlist/selection.h"

#include "hierlist/structure.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

void LinkSelected(Selection& selection, OlbItem* item) {
    item->prevSelected = selection.last;
    item->nextSelected = nullptr;
    (selection.last != nullptr ? selection.last->nextSelected : selection.first) = item;
    selection.last = item;
    ++selection.count;
}

void UnlinkSelected(Selection& selection, OlbItem* item) {
    OlbItem* next = item->nextSelected;
    OlbItem* previous = item->prevSelected;
    (previous != nullptr ? previous->nextSelected : selection.first) = next;
    (next != nullptr ? next->prevSelected : selection.last) = previous;
    item->nextSelected = nullptr;
    item->prevSelected = nullptr;
    --selection.count;
}

void MarkCaret(OlbItem* caret, bool on) {
    if (caret != nullptr) {
        caret->flags =
            static_cast<std::uint16_t>(on ? caret->flags | kFlagCaret : caret->flags & ~kFlagCaret);
    }
}

void Drop(OlbItem*& reference, const OlbItem* item) {
    if (reference == item) {
        reference = nullptr;
    }
}

} // namespace

std::uint32_t RowCount(const Outline& outline) {
    return SeqCount(outline.visibleRoot);
}

std::uint32_t RowOf(Outline& outline, OlbItem* item) {
    return IsItem(item) && IsShown(outline, item) ? SeqPosition(item->node) : kNoRow;
}

std::uint32_t CaretRow(Outline& outline, const Selection& selection) {
    OlbItem* item = selection.caret;
    while (item != nullptr && !IsShown(outline, item)) {
        item = item->parent;
    }
    return RowOf(outline, item);
}

bool IsSelected(const OlbItem* item) {
    return (item->flags & kFlagSelected) != 0;
}

bool SelectItem(Outline& outline, Selection& selection, OlbItem* item) {
    if (IsSelected(item)) {
        return false;
    }
    SetSelected(outline, item, true);
    LinkSelected(selection, item);
    return true;
}

bool DeselectItem(Outline& outline, Selection& selection, OlbItem* item) {
    if (!IsSelected(item)) {
        return false;
    }
    SetSelected(outline, item, false);
    UnlinkSelected(selection, item);
    return true;
}

std::uint32_t SelectRows(Outline& outline, Selection& selection, std::uint32_t first,
                         std::uint32_t last, bool on) {
    const std::uint32_t end = std::min(last, RowCount(outline) - 1); // kNoRow when there are none
    std::uint32_t changed = 0;
    OlbSeqNode* node = SeqAt(outline.visibleRoot, first);
    for (std::uint32_t row = first; node != nullptr && row <= end; ++row) {
        changed += on ? SelectItem(outline, selection, node->item)
                      : DeselectItem(outline, selection, node->item);
        node = SeqNext(node);
    }
    return changed;
}

void ClearSelection(Outline& outline, Selection& selection) {
    while (selection.first != nullptr) {
        DeselectItem(outline, selection, selection.first);
    }
}

std::uint32_t SelectedRows(const Outline& outline, const Selection& selection, std::int32_t* rows,
                           std::uint32_t most) {
    const std::uint32_t wanted = std::min(selection.count, most);
    std::uint32_t written = 0;
    std::int32_t row = 0;
    OlbSeqNode* node = SeqFirst(outline.visibleRoot);
    for (; node != nullptr && written < wanted; node = SeqNext(node)) {
        if (IsSelected(node->item)) {
            rows[written] = row;
            ++written;
        }
        ++row;
    }
    return written;
}

void PutCaret(Selection& selection, OlbItem* item) {
    MarkCaret(selection.caret, false);
    selection.caret = item;
    MarkCaret(item, selection.hasFocus);
}

void PutFocus(Selection& selection, bool hasFocus) {
    selection.hasFocus = hasFocus;
    MarkCaret(selection.caret, hasFocus);
}

void DropDeselected(Selection& selection, OlbItem* item) {
    UnlinkSelected(selection, item);
    Drop(selection.anchor, item);
}

void DropItem(Selection& selection, const OlbItem* item) {
    Drop(selection.anchor, item);
    Drop(selection.caret, item);
    Drop(selection.rangeEnd, item);
}

void DropAllItems(Selection& selection) {
    const bool hasFocus = selection.hasFocus;
    selection = {};
    selection.hasFocus = hasFocus;
}

} // namespace vorn::hierlist
