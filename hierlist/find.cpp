// Searching among siblings.
#include "hierlist/compare.h"
#include "hierlist/outline.h"

namespace vorn::hierlist {

OlbItem* FindString(const Outline& outline, OlbItem* parent, std::uint32_t start, const char* text,
                    bool exact) {
    if (parent != nullptr && (!IsItem(parent) || parent->detachedRun == nullptr)) {
        return NoItem();
    }
    OlbSeqNode* sequence = parent != nullptr ? parent->detachedRun : outline.visibleRoot;
    const OlbSeqNode* node = SeqAt(sequence, start + 1); // the first for kNoRow
    if (node == nullptr) {
        node = SeqFirst(sequence);
    }
    if (node == nullptr) {
        return NoItem();
    }
    for (OlbItem* item = node->item; item != nullptr; item = item->nextSibling) {
        if (Matches(outline, item, text, exact)) {
            return item;
        }
    }
    OlbItem* item = parent != nullptr ? parent->firstChild : SeqFirst(sequence)->item;
    for (std::uint32_t left = start + 1; left > 0 && item != nullptr; --left) {
        if (Matches(outline, item, text, exact)) {
            return item;
        }
        item = item->nextSibling;
    }
    return NoItem();
}

OlbItem* FindAtTop(const Outline& outline, std::uint32_t start, const char* text, bool exact) {
    OlbItem* last = IndexToHandle(outline, start);
    while (last != nullptr && last->parent != nullptr) {
        last = last->parent;
    }
    for (OlbItem* item = last != nullptr ? last->nextSibling : nullptr; item != nullptr;
         item = item->nextSibling) {
        if (Matches(outline, item, text, exact)) {
            return item;
        }
    }
    OlbItem* end = last != nullptr ? last->nextSibling : nullptr;
    for (OlbItem* item = outline.top.firstChild; item != end; item = item->nextSibling) {
        if (Matches(outline, item, text, exact)) {
            return item;
        }
    }
    return NoItem();
}

} // namespace vorn::hierlist
