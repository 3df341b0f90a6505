// The side table of an outline in compatibility mode: for each item a place in a list of its own,
// as a list box has, and a value.
//
// Entries lie one behind the other in pages, in no order that counts, and an item knows where its
// entry is: entering one and taking one out cost the same however many there are.
#pragma once

#include "hierlist/item.h"

#include <cstdint>

namespace vorn::hierlist {

struct SideEntry {
    OlbItem* item;
    std::uintptr_t value;
};

struct SideTable {
    SideEntry** pages = nullptr;
    std::uint32_t pageCount = 0;
    std::uint32_t pageRoom = 0; // pages that `pages` has room for
    std::uint32_t count = 0;    // entries
};

// Enters an item that is not in the table. False when there is no memory, with nothing changed.
bool EnterItem(SideTable& table, OlbItem* item, std::uintptr_t value);

// Takes an item out and returns its value; 0 when it was not in the table.
std::uintptr_t LeaveTable(SideTable& table, OlbItem* item);

// The item's entry, null when it is not in the table. Valid until the table changes.
SideEntry* EntryOf(const SideTable& table, const OlbItem* item);

// Frees the table when all items are about to be freed, or already are.
void ClearTable(SideTable& table);

} // namespace vorn::hierlist
