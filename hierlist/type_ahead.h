// Finding a row by how its text begins, and what typed characters do.
#pragma once

#include "hierlist/select_at.h"

namespace vorn::hierlist {

// The row of the next sibling of the row `start` whose text begins with `text`, byte for byte: of
// those after it, then of those from the first up to and including it. In a list of values one that
// is the value `text`. Among the items at the top, from the first, when there is no such row.
// kNoRow when none matches. Takes a step for each sibling.
std::uint32_t FindSibling(Outline& outline, std::uint32_t start, const char* text);

// Selects the row that FindSibling finds. `row` becomes that row.
Actions SelectString(Outline& outline, Input& input, std::uint32_t start, const char* text,
                     Tell tell, std::uint32_t& row);

// WM_CHAR: '+' opens the caret's item and '-' closes it; every other character but Tab, Return and
// Space is searched for. Lists of values have no texts to search.
Actions TypeCharacter(Outline& outline, Input& input, char character);

} // namespace vorn::hierlist
