#include "core/memory.h"
#include "core/platform_win.h"

#include <algorithm>

namespace vorn {
namespace {

// A sixteenth of the movable handles that a process has.
constexpr LONG kMostMovableBlocks = 4096;

// The blocks that are out and movable.
volatile LONG movableBlocks = 0;

#ifdef VORN_TEST_HOOKS
volatile LONG blocks = 0;
volatile LONG allocationsLeft = -1;

bool AllocationMayFail() {
    if (allocationsLeft < 0) {
        return false;
    }
    if (allocationsLeft == 0) {
        return true;
    }
    InterlockedDecrement(&allocationsLeft);
    return false;
}
#endif

} // namespace

void* AllocBlock(void* /*context*/, std::uint16_t size) {
#ifdef VORN_TEST_HOOKS
    if (AllocationMayFail()) {
        return nullptr;
    }
#endif
    const bool movable = movableBlocks < kMostMovableBlocks;
    // A movable block of no bytes would have no address.
    const SIZE_T bytes = std::max<SIZE_T>(size, 1);
    HGLOBAL memory = GlobalAlloc(movable ? GMEM_MOVEABLE | GMEM_ZEROINIT : GPTR, bytes);
    if (memory == nullptr) {
        return nullptr;
    }
    void* block = movable ? GlobalLock(memory) : memory;
    if (block == nullptr) {
        GlobalFree(memory);
        return nullptr;
    }
    if (movable) {
        InterlockedIncrement(&movableBlocks);
    }
#ifdef VORN_TEST_HOOKS
    InterlockedIncrement(&blocks);
#endif
    return block;
}

void FreeBlock(void* /*context*/, void* block) {
    if (block == nullptr) {
        return;
    }
    HGLOBAL memory = GlobalHandle(block);
    if (memory == nullptr) {
        return; // none of ours
    }
    // The handle of a fixed block is its address.
    if (memory != block) {
        InterlockedDecrement(&movableBlocks);
        GlobalUnlock(memory);
    }
#ifdef VORN_TEST_HOOKS
    InterlockedDecrement(&blocks);
#endif
    GlobalFree(memory);
}

#ifdef VORN_TEST_HOOKS
std::uint32_t BlockCount() {
    return static_cast<std::uint32_t>(blocks);
}

void FailAllocationsAfter(std::int32_t count) {
    allocationsLeft = count;
}
#endif

} // namespace vorn
