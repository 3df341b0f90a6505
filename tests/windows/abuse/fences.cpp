#include "tests/windows/abuse/fences.h"

#include <deque>
#include <map>

namespace vorn::test {
namespace {

constexpr SIZE_T kPage = 4096;
constexpr SIZE_T kAlignment = 8;
constexpr std::size_t kMostBlocks = 4000; // each takes 64 KiB of addresses
constexpr std::size_t kMostFreed = 1000;

struct Fenced {
    BYTE* pages;
    SIZE_T size;
};

std::map<const void*, Fenced> blocks;
std::deque<BYTE*> freed;

SIZE_T RoundUp(SIZE_T size, SIZE_T unit) {
    return (size + unit - 1) / unit * unit;
}

} // namespace

void* GetFenced(SIZE_T size) {
    const SIZE_T room = RoundUp(size + 1, kPage);
    auto* pages =
        blocks.size() >= kMostBlocks
            ? nullptr
            : static_cast<BYTE*>(VirtualAlloc(nullptr, room + kPage, MEM_RESERVE, PAGE_NOACCESS));
    if (pages == nullptr) {
        return nullptr;
    }
    if (VirtualAlloc(pages, room, MEM_COMMIT, PAGE_READWRITE) == nullptr) {
        VirtualFree(pages, 0, MEM_RELEASE);
        return nullptr;
    }
    void* block = pages + room - RoundUp(size, kAlignment);
    blocks[block] = {pages, size};
    return block;
}

bool IsFenced(const void* block) {
    return blocks.count(block) != 0;
}

SIZE_T FencedSize(const void* block) {
    return blocks.at(block).size;
}

void FreeFenced(void* block) {
    const Fenced fenced = blocks.at(block);
    blocks.erase(block);
    VirtualFree(fenced.pages, RoundUp(fenced.size + 1, kPage), MEM_DECOMMIT);
    freed.push_back(fenced.pages);
    if (freed.size() > kMostFreed) {
        VirtualFree(freed.front(), 0, MEM_RELEASE);
        freed.pop_front();
    }
}

} // namespace vorn::test
