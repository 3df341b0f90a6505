#include "fontselect/families.h"

#include "core/memory.h"
#include "core/text.h"

#include <new>

namespace vorn::fontselect {

struct FamilyBlock {
    static constexpr std::uint32_t kCapacity = 56; // 2 KB

    FamilyBlock* next;
    Family families[kCapacity];
};

namespace {

FamilyBlock* NewBlock() {
    void* block = AllocBlock(nullptr, sizeof(FamilyBlock));
    return block == nullptr ? nullptr : new (block) FamilyBlock{};
}

} // namespace

bool StartFamilies(Families& families) {
    families.first = NewBlock();
    families.last = families.first;
    return families.first != nullptr;
}

bool AddFamily(Families& families, std::uint8_t pitchAndFamily, const char* name) {
    if (families.last == nullptr) {
        return false;
    }
    const std::uint32_t place = families.count % FamilyBlock::kCapacity;
    if (place == 0 && families.count != 0) {
        FamilyBlock* block = NewBlock();
        if (block == nullptr) {
            return false;
        }
        families.last->next = block;
        families.last = block;
    }
    Family& family = families.last->families[place];
    family.trueType = pitchAndFamily & kTrueTypeFlag;
    CopyText(family.name, name);
    ++families.count;
    return true;
}

const Family* FamilyAt(const Families& families, std::uint32_t index) {
    if (index >= families.count) {
        return nullptr;
    }
    const FamilyBlock* block = families.first;
    for (std::uint32_t skip = index / FamilyBlock::kCapacity; skip > 0; --skip) {
        block = block->next;
    }
    return &block->families[index % FamilyBlock::kCapacity];
}

void FreeFamilies(Families& families) {
    for (FamilyBlock* block = families.first; block != nullptr;) {
        FamilyBlock* next = block->next;
        FreeBlock(nullptr, block);
        block = next;
    }
    families = {};
}

} // namespace vorn::fontselect
