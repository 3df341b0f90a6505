// Items' memory: one block for an item, its node and its text. A block of its own would cost the
// node as much again as it has bytes, and a second way to memory wherever the two are used
// together.
#include "core/memory.h"
#include "hierlist/structure.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <new>

namespace vorn::hierlist {
namespace {

constexpr std::size_t kLargestBlock = std::numeric_limits<std::uint16_t>::max();

// What an item's block holds: its text's slot follows.
struct ItemBlock {
    OlbItem item;
    OlbSeqNode node;
};

char* SlotOf(OlbItem* item) {
    return reinterpret_cast<char*>(item) + sizeof(ItemBlock);
}

const char* SlotOf(const OlbItem* item) {
    return reinterpret_cast<const char*>(item) + sizeof(ItemBlock);
}

// What the slot behind a record takes for a text: room for a pointer to one, in case it grows.
std::size_t SlotSize(std::size_t length) {
    return std::max(length + 1 + 3, sizeof(char*));
}

// An item whose slot has this size, and its node. Null when there is no memory.
OlbItem* Allocate(std::size_t slotSize) {
    const std::size_t size = sizeof(ItemBlock) + slotSize;
    void* memory = AllocBlock(nullptr, static_cast<std::uint16_t>(size));
    if (memory == nullptr) {
        return nullptr;
    }
    auto* block = new (memory) ItemBlock{};
    block->item.node = &block->node;
    block->node.item = &block->item;
    return &block->item;
}

OlbItem* WithValue(std::uintptr_t value) {
    OlbItem* item = Allocate(sizeof(value));
    if (item != nullptr) {
        item->marks |= kMarkValue;
        std::memcpy(SlotOf(item), &value, sizeof(value));
    }
    return item;
}

bool Fits(std::size_t length) {
    return length <= kLargestBlock - sizeof(ItemBlock) - 4;
}

OlbItem* WithText(const char* text, std::size_t length) {
    OlbItem* item = Allocate(SlotSize(length));
    if (item != nullptr) {
        std::memcpy(SlotOf(item), text, length + 1);
    }
    return item;
}

constexpr std::uint32_t kLongestKey = 500;

// For an item that will be compared: with a key behind the text, so that the platform, which takes
// far longer to compare than to walk, is asked once for each item and not once for each step.
OlbItem* WithTextToSort(const Outline& outline, const char* text, std::size_t length) {
    if ((outline.style & kStyleSort) == 0 || outline.callbacks->sortKey == nullptr ||
        !Fits(length + kLongestKey)) {
        return WithText(text, length);
    }
    std::array<char, kLongestKey> key{};
    const std::uint32_t size =
        outline.callbacks->sortKey(outline.context, text, key.data(), kLongestKey);
    if (size == 0) {
        return WithText(text, length);
    }
    OlbItem* item = Allocate(SlotSize(length) + size);
    if (item != nullptr) {
        std::memcpy(SlotOf(item), text, length + 1);
        std::memcpy(SlotOf(item) + length + 1, key.data(), size);
        item->marks |= kMarkSortKey;
    }
    return item;
}

// The text outside the record, null when it is inside.
char* OutsideText(const OlbItem* item) {
    char* text = nullptr;
    if ((item->marks & kMarkTextOutside) != 0) {
        std::memcpy(&text, SlotOf(item), sizeof(text));
    }
    return text;
}

// Characters that the slot surely holds besides the terminating one.
std::size_t RoomInSlot(const OlbItem* item) {
    const bool holdsText = (item->marks & (kMarkValue | kMarkTextOutside)) == 0;
    return std::max(holdsText ? std::strlen(SlotOf(item)) : 0, sizeof(char*) - 1);
}

// False when there is no memory, with the old text still there.
bool StoreText(OlbItem* item, const char* text, std::size_t length) {
    char* before = OutsideText(item);
    if (length <= RoomInSlot(item)) {
        std::memmove(SlotOf(item), text, length + 1); // it may be a part of the old one
        item->marks &= static_cast<std::uint8_t>(~(kMarkValue | kMarkTextOutside | kMarkSortKey));
    } else {
        void* block = AllocBlock(nullptr, static_cast<std::uint16_t>(length + 1));
        if (block == nullptr) {
            return false;
        }
        std::memcpy(block, text, length + 1);
        std::memcpy(SlotOf(item), &block, sizeof(block));
        item->marks &= static_cast<std::uint8_t>(~(kMarkValue | kMarkSortKey));
        item->marks |= kMarkTextOutside;
    }
    FreeBlock(nullptr, before);
    return true;
}

void StoreValue(OlbItem* item, std::uintptr_t value) {
    FreeBlock(nullptr, OutsideText(item));
    std::memcpy(SlotOf(item), &value, sizeof(value));
    item->marks &= static_cast<std::uint8_t>(~(kMarkTextOutside | kMarkSortKey));
    item->marks |= kMarkValue;
}

// Siblings are no longer known to be in order.
void LoseOrder(Outline& outline, const OlbItem* item) {
    OlbItem* owner = OwnerOf(outline, item);
    if (owner->firstChild != owner->lastChild) {
        owner->marks &= static_cast<std::uint8_t>(~kMarkInOrder);
    }
}

} // namespace

const char* TextOf(const OlbItem* item) {
    if ((item->marks & kMarkValue) != 0) {
        return "";
    }
    const char* outside = OutsideText(item);
    return outside != nullptr ? outside : SlotOf(item);
}

const char* SortKeyOf(const OlbItem* item) {
    const char* text = SlotOf(item);
    return (item->marks & kMarkSortKey) != 0 ? text + std::strlen(text) + 1 : nullptr;
}

std::uintptr_t ValueOf(const OlbItem* item) {
    std::uintptr_t value = 0;
    if ((item->marks & kMarkValue) != 0) {
        std::memcpy(&value, SlotOf(item), sizeof(value));
    }
    return value;
}

std::uintptr_t DataOf(const OlbItem* item) {
    return (item->marks & kMarkData) != 0 ? item->itemData : ValueOf(item);
}

void SetData(OlbItem* item, std::uintptr_t data) {
    item->itemData = data;
    item->marks |= kMarkData;
}

OlbItem* NewItem(Outline& outline, const char* text) {
    OlbItem* item = nullptr;
    if (HoldsValues(outline)) {
        item = WithValue(reinterpret_cast<std::uintptr_t>(text));
    } else {
        text = text != nullptr ? text : "";
        const std::size_t length = std::strlen(text);
        if (!Fits(length)) {
            return nullptr;
        }
        item = WithTextToSort(outline, text, length);
    }
    if (item == nullptr) {
        outline.callbacks->errorSpace(outline.context);
    }
    return item;
}

OlbItem* Duplicate(const OlbItem* item) {
    const char* text = TextOf(item);
    OlbItem* copy = (item->marks & kMarkValue) != 0 ? WithValue(ValueOf(item))
                                                    : WithText(text, std::strlen(text));
    if (copy != nullptr) {
        copy->flags = static_cast<std::uint16_t>(item->flags & kFlagLocked);
        copy->bitmaps = item->bitmaps;
        copy->bitmapIndex = item->bitmapIndex;
        copy->height = item->height;
        copy->itemData = item->itemData;
        copy->marks |= item->marks & kMarkData;
    }
    return copy;
}

void FreeItem(OlbItem* item) {
    FreeBlock(nullptr, OutsideText(item));
    FreeBlock(nullptr, item);
}

bool SetText(Outline& outline, OlbItem* item, const char* text) {
    if (!IsItem(item)) {
        return false;
    }
    if (HoldsValues(outline)) {
        StoreValue(item, reinterpret_cast<std::uintptr_t>(text));
    } else {
        text = text != nullptr ? text : "";
        const std::size_t length = std::strlen(text);
        if (!Fits(length)) {
            return false;
        }
        if (!StoreText(item, text, length)) {
            outline.callbacks->errorSpace(outline.context);
            return false;
        }
    }
    LoseOrder(outline, item);
    return true;
}

bool SetBitmapIndex(Outline& outline, OlbItem* item, std::int16_t index) {
    if (!IsItem(item)) {
        return false;
    }
    item->bitmapIndex = index;
    LoseOrder(outline, item);
    return true;
}

} // namespace vorn::hierlist
