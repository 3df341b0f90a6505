#include "hierlist/sidetable.h"

#include "core/memory.h"

#include <cstring>
#include <limits>

namespace vorn::hierlist {
namespace {

constexpr std::uint32_t kPageEntries = 2048;
constexpr std::uint32_t kFewestPages = 4;
constexpr std::uint32_t kLargestBlock = std::numeric_limits<std::uint16_t>::max();
static_assert(kPageEntries * sizeof(SideEntry) <= kLargestBlock);

// As many whole pages as an item's 24 bits can tell the places of.
constexpr std::uint32_t kPlaceBits = 0xFF'FFFF;
constexpr std::uint32_t kMostPages = kPlaceBits / kPageEntries;
constexpr std::size_t kLinkSize = sizeof(void*);
static_assert(kMostPages * kLinkSize <= kLargestBlock);

SideEntry& EntryAt(const SideTable& table, std::uint32_t index) {
    return table.pages[index / kPageEntries][index % kPageEntries];
}

bool MakeRoomForPage(SideTable& table) {
    if (table.pageCount < table.pageRoom) {
        return true;
    }
    const std::uint32_t doubled = table.pageRoom == 0 ? kFewestPages : 2 * table.pageRoom;
    const std::uint32_t room = doubled < kMostPages ? doubled : kMostPages;
    if (room == table.pageRoom) {
        return false;
    }
    const std::size_t size = room * kLinkSize;
    void* block = AllocBlock(nullptr, static_cast<std::uint16_t>(size));
    if (block == nullptr) {
        return false;
    }
    if (table.pageCount != 0) {
        std::memcpy(block, table.pages, table.pageCount * kLinkSize);
    }
    FreeBlock(nullptr, table.pages);
    table.pages = static_cast<SideEntry**>(block);
    table.pageRoom = room;
    return true;
}

bool AddPage(SideTable& table) {
    if (!MakeRoomForPage(table)) {
        return false;
    }
    void* page = AllocBlock(nullptr, kPageEntries * sizeof(SideEntry));
    if (page == nullptr) {
        return false;
    }
    table.pages[table.pageCount++] = static_cast<SideEntry*>(page);
    return true;
}

// Keeps one page that is not needed, so that an item that comes and goes costs no page each time.
void DropSparePages(SideTable& table) {
    while (table.pageCount * kPageEntries >= table.count + 2 * kPageEntries) {
        FreeBlock(nullptr, table.pages[--table.pageCount]);
    }
}

} // namespace

bool EnterItem(SideTable& table, OlbItem* item, std::uintptr_t value) {
    if (table.count == table.pageCount * kPageEntries && !AddPage(table)) {
        return false;
    }
    EntryAt(table, table.count) = {item, value};
    item->sidePlace = ++table.count & kPlaceBits;
    return true;
}

std::uintptr_t LeaveTable(SideTable& table, OlbItem* item) {
    const SideEntry* entry = EntryOf(table, item);
    if (entry == nullptr) {
        return 0;
    }
    const std::uintptr_t value = entry->value;
    const SideEntry last = EntryAt(table, --table.count);
    EntryAt(table, item->sidePlace - 1) = last;
    last.item->sidePlace = item->sidePlace;
    item->sidePlace = 0;
    DropSparePages(table);
    return value;
}

SideEntry* EntryOf(const SideTable& table, const OlbItem* item) {
    return item->sidePlace != 0 ? &EntryAt(table, item->sidePlace - 1) : nullptr;
}

void ClearTable(SideTable& table) {
    while (table.pageCount > 0) {
        FreeBlock(nullptr, table.pages[--table.pageCount]);
    }
    FreeBlock(nullptr, table.pages);
    table = {};
}

} // namespace vorn::hierlist
