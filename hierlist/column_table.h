// Where the columns of an outline list begin when its rows are of variable height.
#pragma once

#include "hierlist/item.h"

#include <cstdint>

namespace vorn::hierlist {

struct Layout;

// The first rows of the columns, as many of them as there was memory for; the others are found by
// walking on from the last that is known.
struct ColumnTable {
    std::uint32_t** chunks = nullptr;
    std::uint32_t known = 0;
    std::uint32_t columns = 0; // all that there are
};

// Walks all rows and notes where columns begin.
void BuildColumns(ColumnTable& table, const Layout& layout);

void FreeColumns(ColumnTable& table);

// The columns that the rows take, without a table. Walks all rows.
std::uint32_t CountColumns(const Layout& layout);

// The first row of a column; the number of rows for columns that are not there.
std::uint32_t ColumnStart(const ColumnTable& table, const Layout& layout, std::uint32_t column);

// The column that a row is in.
std::uint32_t ColumnOf(const ColumnTable& table, const Layout& layout, std::uint32_t row);

} // namespace vorn::hierlist
