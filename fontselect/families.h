// The font families that a font selector offers, in the order in which the platform names them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vorn::fontselect {

constexpr std::size_t kFaceNameSize = 32; // terminator included

constexpr std::uint32_t kTrueTypeFlag = 4; // in the pitch-and-family byte

struct Family {
    std::uint32_t trueType; // kTrueTypeFlag or 0
    char name[kFaceNameSize];
};
static_assert(sizeof(Family) == 36);

struct FamilyBlock;

// Any number of families: a block of memory takes some, then the next one. Empty means that there
// is not even a first block.
struct Families {
    FamilyBlock* first = nullptr;
    FamilyBlock* last = nullptr;
    std::uint32_t count = 0;
};

// Gives empty families their first block; false when there is no memory.
bool StartFamilies(Families& families);

// Appends a family of this pitch-and-family byte, its name cut to what fits. False, and nothing is
// changed, when there is no memory or no first block.
bool AddFamily(Families& families, std::uint8_t pitchAndFamily, const char* name);

// The family of an index below the count, null for any other.
const Family* FamilyAt(const Families& families, std::uint32_t index);

// Frees all blocks; the families are empty then.
void FreeFamilies(Families& families);

} // namespace vorn::fontselect
