// Blocks for tests that run without the platform: plain memory, counted, which can be made to fail.
#include "tests/support/memory.h"

#include "core/memory.h"

#include <algorithm>
#include <cstdlib>

namespace vorn {
namespace {

std::uint32_t blocks = 0;
std::int32_t allocationsLeft = -1;
std::uint64_t bytesAsked = 0;

} // namespace

void* AllocBlock(void* /*context*/, std::uint16_t size) {
    if (allocationsLeft == 0) {
        return nullptr;
    }
    if (allocationsLeft > 0) {
        --allocationsLeft;
    }
    // As large as asked for, so that the address sanitizer sees every overrun.
    void* block = std::calloc(1, std::max<std::size_t>(size, 1));
    blocks += block != nullptr;
    bytesAsked += size;
    return block;
}

void FreeBlock(void* /*context*/, void* block) {
    blocks -= block != nullptr;
    std::free(block);
}

std::uint64_t BytesAsked() {
    return bytesAsked;
}

std::uint32_t BlockCount() {
    return blocks;
}

void FailAllocationsAfter(std::int32_t count) {
    allocationsLeft = count;
}

} // namespace vorn
