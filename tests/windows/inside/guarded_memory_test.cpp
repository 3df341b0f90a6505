// What the checked build's blocks find: accesses past their end and after they were freed, and
// writes beside them.
#include "core/memory.h"
#include "core/platform_win.h"
#include "tests/support/guarded_memory.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace vorn {
namespace {

constexpr std::uint16_t kSizes[] = {0, 1, 7, 8, 13, 4088, 4096, 4097, 65535};

// What the library's records are aligned to, which is what can be out of place behind a block.
constexpr std::size_t kAlignment = sizeof(void*);

// Whether the page of this address can be read and written; an access faults where it is reserved
// alone.
bool IsThere(const void* address) {
    MEMORY_BASIC_INFORMATION page{};
    EXPECT_EQ(VirtualQuery(address, &page, sizeof page), sizeof page);
    EXPECT_TRUE(page.State == MEM_COMMIT || page.State == MEM_RESERVE) << page.State;
    return page.State == MEM_COMMIT;
}

unsigned char* Alloc(std::uint16_t size) {
    return static_cast<unsigned char*>(AllocBlock(nullptr, size));
}

TEST(GuardedBlocks, EndBeforeAPageThatFaults) {
    for (const std::uint16_t size : kSizes) {
        unsigned char* block = Alloc(size);
        const std::size_t past = (std::max<std::size_t>(size, 1) + kAlignment - 1) / kAlignment;
        EXPECT_TRUE(IsThere(block + past * kAlignment - 1)) << size;
        EXPECT_FALSE(IsThere(block + past * kAlignment)) << size;
        EXPECT_TRUE(IsIntact(block)) << size;
        FreeBlock(nullptr, block);
    }
}

TEST(GuardedBlocks, BeginBehindAPageThatFaults) {
    unsigned char* block = Alloc(8);
    EXPECT_TRUE(IsThere(block - 4088));
    EXPECT_FALSE(IsThere(block - 4089));
    FreeBlock(nullptr, block);
}

TEST(GuardedBlocks, FaultOnceFreedAndAreNotUsedAgain) {
    std::vector<unsigned char*> freed;
    for (int round = 0; round < 1000; ++round) {
        unsigned char* block = Alloc(5000);
        EXPECT_TRUE(IsThere(block) && IsThere(block + 4999));
        FreeBlock(nullptr, block);
        freed.push_back(block);
    }
    unsigned char* another = Alloc(5000);
    for (const unsigned char* block : freed) {
        EXPECT_FALSE(IsThere(block) || IsThere(block + 4999));
    }
    FreeBlock(nullptr, another);
}

// Every byte of the page beside the block.
TEST(GuardedBlocks, TellWhatIsWrittenBesideThem) {
    unsigned char* block = Alloc(13);
    for (int at = -4080; at < 16; ++at) {
        const unsigned char before = block[at];
        block[at] = static_cast<unsigned char>(before ^ 1);
        EXPECT_EQ(IsIntact(block), at >= 0 && at < 13) << at;
        block[at] = before;
    }
    FreeBlock(nullptr, block);
    EXPECT_FALSE(IsIntact(block)) << "it is out no more";
}

// Beyond some blocks the others are plain; freeing makes place again.
TEST(GuardedBlocks, AreTheFirstTwentyThousand) {
    std::vector<void*> blocks;
    for (int i = 0; i < 20010; ++i) {
        blocks.push_back(Alloc(24));
    }
    EXPECT_TRUE(IsIntact(blocks[19000]));
    EXPECT_FALSE(IsIntact(blocks.back()));
    for (void* block : blocks) {
        FreeBlock(nullptr, block);
    }
    void* block = Alloc(24);
    EXPECT_TRUE(IsIntact(block));
    FreeBlock(nullptr, block);
}

} // namespace
} // namespace vorn
