// Memory that cannot be touched behind its end, nor after it was given back.
#pragma once

#include <windows.h>

namespace vorn::test {

// Zeroed bytes at the end of a page, in front of one that cannot be touched; aligned to 8 bytes.
// Null when there is no more room for such blocks.
void* GetFenced(SIZE_T size);

bool IsFenced(const void* block);
SIZE_T FencedSize(const void* block);

// From then on the block cannot be touched; its place is used again only after many others.
void FreeFenced(void* block);

} // namespace vorn::test
