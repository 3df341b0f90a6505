// Blocks are global memory: movable ones, and fixed ones beyond a share of the movable handles.
#include "core/memory.h"
#include "core/platform_win.h"

#include <gtest/gtest.h>
#include <vector>

namespace vorn {
namespace {

// A fixed block is its own handle.
bool IsMovable(const void* block) {
    return GlobalHandle(block) != block;
}

TEST(GlobalBlocks, AreMovableAndLocked) {
    void* block = AllocBlock(nullptr, 100);
    EXPECT_TRUE(IsMovable(block));
    EXPECT_EQ(GlobalFlags(GlobalHandle(block)) & GMEM_LOCKCOUNT, 1u);
    FreeBlock(nullptr, block);
}

// The movable ones are counted back: what comes after many is movable again.
TEST(GlobalBlocks, AreFixedWhileManyAreOut) {
    constexpr std::size_t kBlocks = 5000;
    std::vector<void*> blocks;
    for (std::size_t i = 0; i < kBlocks; ++i) {
        blocks.push_back(AllocBlock(nullptr, 8));
        ASSERT_NE(blocks.back(), nullptr) << i;
    }
    EXPECT_TRUE(IsMovable(blocks.front()));
    EXPECT_FALSE(IsMovable(blocks.back()));
    for (void* block : blocks) {
        FreeBlock(nullptr, block);
    }
    void* block = AllocBlock(nullptr, 8);
    EXPECT_TRUE(IsMovable(block));
    FreeBlock(nullptr, block);
}

} // namespace
} // namespace vorn
