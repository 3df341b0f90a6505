// Any sizes, heights, metrics, names and failing allocations keep the font selector's rules true.
#include "core/memory.h"
#include "fontselect/families.h"
#include "fontselect/fontselect.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

using namespace vorn;
using namespace vorn::fontselect;

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

std::int64_t Distance(std::int64_t one, std::int64_t other) {
    return one < other ? other - one : one - other;
}

// The choice by its meaning: neither neighbour is farther away.
void CheckSize(std::int32_t points) {
    const std::int32_t index = IndexOfPoints(points);
    Require(index >= 0 && index < 16);
    const std::int32_t chosen = kPointSizes[static_cast<std::size_t>(index)];
    std::int32_t below = 0;
    std::int32_t above = 0;
    for (const std::int32_t size : kPointSizes) {
        if (size <= points) {
            below = size;
        }
        if (size >= points && above == 0) {
            above = size;
        }
    }
    if (below == 0 || above == 0) {
        Require(chosen == (below == 0 ? 8 : 72));
        return;
    }
    Require(chosen == below || chosen == above);
    Require(Distance(chosen, points) == std::max(Distance(below, points), Distance(above, points)));
}

void CheckHeights(std::int32_t value, std::int32_t pixelsPerInch) {
    const std::int32_t height = LogicalHeight(value & 0xFFFF, pixelsPerInch);
    Require(height <= 0);
    Require(PointsOfCharacterHeight(-std::int64_t{height}, pixelsPerInch) <= (value & 0xFFFF) + 1);
    LogicalHeight(value, pixelsPerInch);
    PointsOfCharacterHeight(std::int64_t{value} * 2, pixelsPerInch);
}

void CheckLayout(std::int32_t width, const FontMetrics& metrics) {
    const ListPlaces places = PlaceLists(width, metrics);
    Require(Width(places.families) >= 0 && Width(places.sizes) >= 0);
    Require(Height(places.families) == Height(places.sizes) && Height(places.sizes) >= 0);
    Require(places.sizes.left - places.families.right == 6);
    Require(HeightsOfItems(metrics).selection == HeightsOfItems(metrics).item + 4);
}

// Families beside a vector of names.
void CheckFamilies(const std::uint8_t* data, std::size_t size) {
    const std::uint32_t before = BlockCount();
    FailAllocationsAfter(data[0] % 8);
    Families families;
    StartFamilies(families);
    std::vector<std::string> names;
    const int copies = 1 + data[0] / 8;
    for (std::size_t at = 1; at < size; ++at) {
        const std::string name(data[at] % 50, static_cast<char>('a' + data[at] % 26));
        for (int copy = 0; copy < copies; ++copy) {
            if (AddFamily(families, data[at], name.c_str())) {
                names.push_back(name.substr(0, 31));
            }
        }
    }
    Require(families.count == names.size());
    for (std::uint32_t i = 0; i < families.count; ++i) {
        Require(FamilyAt(families, i)->name == names[i]);
    }
    Require(FamilyAt(families, families.count) == nullptr);
    FreeFamilies(families);
    FailAllocationsAfter(-1);
    Require(BlockCount() == before);
}

void CheckName(std::size_t size, const std::string& name) {
    std::vector<char> buffer(size, '.');
    CopyFamilyName(buffer, name.c_str());
    Require(size == 0 || buffer.data() == name.substr(0, size - 1));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 20) {
        return 0;
    }
    std::int32_t values[5] = {};
    std::memcpy(values, data, sizeof values);
    CheckSize(values[0]);
    CheckSize(values[0] % 80);
    CheckHeights(values[0], 1 + (values[1] & 0x7FF));
    CheckLayout(values[1], {values[2], values[3], values[4]});
    CheckLayout(values[1] & 0xFF, {values[2] & 0x3F, values[3] & 7, values[4] & 0xF});
    CheckFamilies(data, size);
    CheckName(data[0] % 40, std::string(data[1] % 50, 'x'));
    return 0;
}
