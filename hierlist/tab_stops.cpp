#include "hierlist/tab_stops.h"

#include "core/memory.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace vorn::hierlist {
namespace {

constexpr std::int64_t kFar = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kUnitsPerWidth = 4; // dialog units in the dialog base width

std::int32_t Pixels(const TabUnits& units, std::int32_t stop) {
    const std::int64_t pixels = std::int64_t{stop} * units.dialog / kUnitsPerWidth;
    return static_cast<std::int32_t>(std::clamp(pixels, -kFar, kFar));
}

std::int32_t NextMultiple(std::int32_t x, std::int32_t unit) {
    if (unit <= 0) {
        return x;
    }
    const std::int64_t next = (std::int64_t{std::max(x, 0)} / unit + 1) * unit;
    return static_cast<std::int32_t>(std::min(next, kFar));
}

} // namespace

bool SetTabStops(TabStops& tabs, const std::int32_t* stops, std::uint32_t count) {
    constexpr std::uint32_t kMost =
        std::numeric_limits<std::uint16_t>::max() / sizeof(std::int32_t);
    std::int32_t* block = nullptr;
    if (count != 0) {
        if (stops == nullptr || count > kMost) {
            return false;
        }
        const std::size_t size = count * sizeof(std::int32_t);
        block = static_cast<std::int32_t*>(AllocBlock(nullptr, static_cast<std::uint16_t>(size)));
        if (block == nullptr) {
            return false;
        }
        std::memcpy(block, stops, size);
    }
    FreeTabStops(tabs);
    tabs = {block, count};
    return true;
}

void FreeTabStops(TabStops& tabs) {
    FreeBlock(nullptr, tabs.stops);
    tabs = {};
}

std::int32_t NextTab(const TabStops& tabs, const TabUnits& units, std::int32_t x) {
    if (tabs.count == 1) {
        return NextMultiple(x, Pixels(units, tabs.stops[0]));
    }
    std::int32_t nearest = 0;
    for (std::uint32_t i = 0; i < tabs.count; ++i) {
        const std::int32_t stop = Pixels(units, tabs.stops[i]);
        if (stop > x && (nearest == 0 || stop < nearest)) {
            nearest = stop;
        }
    }
    return nearest != 0 ? nearest : NextMultiple(x, kDefaultTabCharacters * units.character);
}

} // namespace vorn::hierlist
