// Where records and item blocks come from.
#pragma once

#include <cstdint>

namespace vorn {

// Returns `size` zeroed bytes, or null when there is no memory; also a block of no bytes has an
// address of its own. The context is ignored. A block is
// global memory, movable and locked while few are out and fixed beyond that: a process has only
// some 65,000 movable handles, which it shares with its clipboard and everything else.
void* AllocBlock(void* context, std::uint16_t size);

// Releases a block. Null is allowed.
void FreeBlock(void* context, void* block);

#ifdef VORN_TEST_HOOKS
// The blocks that are out, movable and fixed.
std::uint32_t BlockCount();

// Lets the next `count` allocations succeed and every later one fail; a negative count lets all
// succeed again.
void FailAllocationsAfter(std::int32_t count);
#endif

} // namespace vorn
