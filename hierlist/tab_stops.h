// Where the pieces of a text with tabs begin.
#pragma once

#include <cstdint>

namespace vorn::hierlist {

constexpr std::int32_t kDefaultTabCharacters = 8;

struct TabStops {
    std::int32_t* stops = nullptr; // in dialog units, in the host's order; a block
    std::uint32_t count = 0;
};

// Replaces the stops. False when there is no memory for them, or they are too many for a block; the
// old ones stay then.
bool SetTabStops(TabStops& tabs, const std::int32_t* stops, std::uint32_t count);

void FreeTabStops(TabStops& tabs);

// The widths that stops are reckoned in, in pixels: four dialog units, and an average character of
// the list's font.
struct TabUnits {
    std::int32_t dialog = 0;
    std::int32_t character = 0;
};

// The distance from the text's start of the nearest stop beyond `x`. A single stop repeats itself;
// beyond the last of several, and without any, a stop follows every 8 characters.
std::int32_t NextTab(const TabStops& tabs, const TabUnits& units, std::int32_t x);

} // namespace vorn::hierlist
