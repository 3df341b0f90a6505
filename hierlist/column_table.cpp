#include "hierlist/column_table.h"

#include "core/memory.h"
#include "hierlist/layout.h"
#include "hierlist/outline.h"

namespace vorn::hierlist {
namespace {

// Blocks have at most 65,535 bytes, so starts are kept in chunks.
constexpr std::uint32_t kChunk = 1024;
constexpr std::uint32_t kChunks = 4096;

// Walks from the first row of a column to the first of the next. Returns its item, null at the end.
OlbItem* WalkColumn(const Layout& layout, OlbItem* item, std::uint32_t& row) {
    std::int64_t height = 0;
    do {
        height += HeightOf(layout, item);
        item = ItemBelow(item);
        ++row;
    } while (item != nullptr && height + HeightOf(layout, item) <= layout.client.height);
    return item;
}

bool Store(ColumnTable& table, std::uint32_t row) {
    const std::uint32_t chunk = table.known / kChunk;
    if (chunk >= kChunks) {
        return false;
    }
    if (table.chunks == nullptr) {
        table.chunks = static_cast<std::uint32_t**>(
            AllocBlock(nullptr, static_cast<std::uint16_t>(kChunks * sizeof(std::uint32_t*))));
        if (table.chunks == nullptr) {
            return false;
        }
    }
    if (table.chunks[chunk] == nullptr) {
        table.chunks[chunk] = static_cast<std::uint32_t*>(
            AllocBlock(nullptr, static_cast<std::uint16_t>(kChunk * sizeof(std::uint32_t))));
        if (table.chunks[chunk] == nullptr) {
            return false;
        }
    }
    table.chunks[chunk][table.known % kChunk] = row;
    ++table.known;
    return true;
}

std::uint32_t Known(const ColumnTable& table, std::uint32_t column) {
    return table.chunks[column / kChunk][column % kChunk];
}

// The last column that is known and does not begin behind a row, and its start.
struct Position {
    std::uint32_t column = 0;
    std::uint32_t row = 0;
};

Position KnownBefore(const ColumnTable& table, std::uint32_t row) {
    std::uint32_t low = 0;
    std::uint32_t high = table.known;
    while (high - low > 1) {
        const std::uint32_t middle = low + (high - low) / 2;
        (Known(table, middle) <= row ? low : high) = middle;
    }
    return {low, table.known != 0 ? Known(table, low) : 0};
}

} // namespace

void BuildColumns(ColumnTable& table, const Layout& layout) {
    table.known = 0;
    table.columns = 0;
    bool storing = true;
    std::uint32_t row = 0;
    OlbItem* item = IndexToHandle(*layout.outline, 0);
    while (item != nullptr) {
        storing = storing && Store(table, row);
        ++table.columns;
        item = WalkColumn(layout, item, row);
    }
}

void FreeColumns(ColumnTable& table) {
    for (std::uint32_t chunk = 0; table.chunks != nullptr && chunk < kChunks; ++chunk) {
        FreeBlock(nullptr, table.chunks[chunk]);
    }
    FreeBlock(nullptr, table.chunks);
    table = {};
}

std::uint32_t CountColumns(const Layout& layout) {
    std::uint32_t columns = 0;
    std::uint32_t row = 0;
    OlbItem* item = IndexToHandle(*layout.outline, 0);
    for (; item != nullptr; ++columns) {
        item = WalkColumn(layout, item, row);
    }
    return columns;
}

std::uint32_t ColumnStart(const ColumnTable& table, const Layout& layout, std::uint32_t column) {
    if (column < table.known) {
        return Known(table, column);
    }
    std::uint32_t at = table.known != 0 ? table.known - 1 : 0;
    std::uint32_t row = table.known != 0 ? Known(table, at) : 0;
    OlbItem* item = IndexToHandle(*layout.outline, row);
    for (; item != nullptr && at < column; ++at) {
        item = WalkColumn(layout, item, row);
    }
    return row;
}

std::uint32_t ColumnOf(const ColumnTable& table, const Layout& layout, std::uint32_t row) {
    Position at = KnownBefore(table, row);
    OlbItem* item = IndexToHandle(*layout.outline, at.row);
    while (item != nullptr) {
        std::uint32_t next = at.row;
        item = WalkColumn(layout, item, next);
        if (item == nullptr || next > row) {
            break;
        }
        ++at.column;
        at.row = next;
    }
    return at.column;
}

} // namespace vorn::hierlist
