// Blocks: zeroed, many at once, and none left.
#include "core/memory.h"
#include "core/platform_win.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace vorn {
namespace {

bool IsZero(const void* block, std::size_t size) {
    const auto* bytes = static_cast<const unsigned char*>(block);
    return std::all_of(bytes, bytes + size, [](unsigned char byte) { return byte == 0; });
}

TEST(Blocks, AreZeroedAndWritable) {
    constexpr std::uint16_t kSizes[] = {1, 2, 100, 620, 65535};
    for (const std::uint16_t size : kSizes) {
        void* block = AllocBlock(nullptr, size);
        ASSERT_NE(block, nullptr) << size;
        EXPECT_TRUE(IsZero(block, size)) << size;
        std::fill_n(static_cast<unsigned char*>(block), size, static_cast<unsigned char>(0xEE));
        FreeBlock(nullptr, block);
    }
}

TEST(Blocks, OfNoBytesHaveAnAddress) {
    void* block = AllocBlock(nullptr, 0);
    EXPECT_NE(block, nullptr);
    FreeBlock(nullptr, block);
}

TEST(Blocks, NullCanBeFreed) {
    const std::uint32_t before = BlockCount();
    FreeBlock(nullptr, nullptr);
    EXPECT_EQ(BlockCount(), before);
}

// More than a process has movable handles; some must be left for everybody else.
TEST(Blocks, TwoHundredThousandAtOnce) {
    constexpr std::size_t kBlocks = 200000;
    const std::uint32_t before = BlockCount();
    std::vector<void*> blocks;
    for (std::size_t i = 0; i < kBlocks; ++i) {
        void* block = AllocBlock(nullptr, 32);
        ASSERT_NE(block, nullptr) << i;
        ASSERT_TRUE(IsZero(block, 32)) << i;
        std::fill_n(static_cast<unsigned char*>(block), 32, static_cast<unsigned char>(i));
        blocks.push_back(block);
    }
    EXPECT_EQ(BlockCount(), before + kBlocks);

    std::vector<HGLOBAL> others;
    for (int i = 0; i < 50000; ++i) {
        others.push_back(GlobalAlloc(GMEM_MOVEABLE, 16));
        ASSERT_NE(others.back(), nullptr) << "no movable handles are left for others: " << i;
    }
    for (HGLOBAL other : others) {
        GlobalFree(other);
    }

    for (std::size_t i = 0; i < kBlocks; ++i) {
        ASSERT_EQ(*static_cast<unsigned char*>(blocks[i]), static_cast<unsigned char>(i));
        FreeBlock(nullptr, blocks[i]);
    }
    EXPECT_EQ(BlockCount(), before);
}

TEST(Blocks, CanBeToldToFail) {
    FailAllocationsAfter(2);
    void* first = AllocBlock(nullptr, 8);
    void* second = AllocBlock(nullptr, 8);
    EXPECT_NE(first, nullptr);
    EXPECT_NE(second, nullptr);
    EXPECT_EQ(AllocBlock(nullptr, 8), nullptr);
    EXPECT_EQ(AllocBlock(nullptr, 8), nullptr);
    FailAllocationsAfter(-1);
    void* third = AllocBlock(nullptr, 8);
    EXPECT_NE(third, nullptr);
    for (void* block : {first, second, third}) {
        FreeBlock(nullptr, block);
    }
}

} // namespace
} // namespace vorn
