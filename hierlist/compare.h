// How items compare, with each other and with what a search is for.
#pragma once

#include "hierlist/structure.h"

namespace vorn::hierlist {

// Below 0 when the first is to stand before the second. By picture index and text alone.
int CompareItems(const Outline& outline, const OlbItem* first, const OlbItem* second);

// Whether an item has the text, begins with it, or has the value.
bool Matches(const Outline& outline, const OlbItem* item, const char* text, bool exact);

} // namespace vorn::hierlist
