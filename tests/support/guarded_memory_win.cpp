// Blocks for the checked build. Each ends where its page ends, as near as its alignment lets it,
// before a page that nobody may touch, and its pages are never used again: an access past its end
// or after FreeBlock faults at once. What is written beside it in its pages is found by FreeBlock.
// Either ends the program with a line that tells which.
#include "core/memory.h"
#include "core/platform_win.h"
#include "tests/support/guarded_memory.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace vorn {

// What core/memory_win.cpp is called in this build. A guarded block has a plain one beside it,
// which is counted and made to fail in its place.
void* AllocPlainBlock(void* context, std::uint16_t size);
void FreePlainBlock(void* context, void* block);

namespace {

constexpr SIZE_T kPage = 4096;

// What the library's records are aligned to.
constexpr SIZE_T kAlignment = alignof(void*);

// A live block splits a mapping of its region in three, and a process may have some 65,000. Blocks
// beyond these are plain.
constexpr std::uint32_t kMostGuarded = 20000;

// Fills what is not the block's own of its pages.
constexpr unsigned char kPattern = 0xA7;

constexpr UINT kFaultStatus = 3;

enum class State : std::uint8_t { None, Live, Freed };

struct Guarded {
    void* plain;
    std::uint16_t size;
    State state;
};

// The system reserves in large steps only; so pages are taken from large regions, in order.
constexpr SIZE_T kRegionPages = 1 << 18;

struct Region {
    unsigned char* pages;
    Guarded* blocks; // by the page that a block begins in
    SIZE_T used;     // pages
};

std::array<Region, 256> regions;
std::size_t regionCount = 0;
std::uint32_t liveBlocks = 0;
PVOID faultHandler = nullptr;
SRWLOCK lock = SRWLOCK_INIT;

class Lock {
public:
    Lock() { AcquireSRWLockExclusive(&lock); }
    ~Lock() { ReleaseSRWLockExclusive(&lock); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
};

constexpr SIZE_T RoundUp(SIZE_T value, SIZE_T step) {
    return (value + step - 1) / step * step;
}

// Of a block's size: what it takes of its pages' end, and the pages.
constexpr SIZE_T RoomOf(std::uint16_t size) {
    return RoundUp(std::max<SIZE_T>(size, 1), kAlignment);
}

constexpr SIZE_T PagesOf(std::uint16_t size) {
    return RoundUp(RoomOf(size), kPage) / kPage;
}

// A page among those of the regions; without a region for any other address.
struct Place {
    const Region* region;
    SIZE_T page;
};

Place PlaceOf(const void* address) {
    const auto* byte = static_cast<const unsigned char*>(address);
    for (std::size_t i = 0; i < regionCount; ++i) {
        const Region& region = regions[i];
        if (byte >= region.pages && byte < region.pages + kRegionPages * kPage) {
            return {&region, static_cast<SIZE_T>(byte - region.pages) / kPage};
        }
    }
    return {nullptr, 0};
}

unsigned char* FirstPage(Place place) {
    return place.region->pages + place.page * kPage;
}

// Where the block begins that begins in this page.
unsigned char* AddressOf(Place place, const Guarded& block) {
    return FirstPage(place) + PagesOf(block.size) * kPage - RoomOf(block.size);
}

[[noreturn]] void EndProgram(const char* what, const void* address, const Guarded* block) {
    std::printf("[  FAILED  ] %s: %p", what, address);
    if (block != nullptr && block->state != State::None) {
        std::printf(", %s block of %u bytes", block->state == State::Freed ? "freed" : "live",
                    block->size);
    }
    std::printf("\n");
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), kFaultStatus);
    __builtin_trap();
}

// Whoever touches what is guarded is wrong, the system on our behalf included.
LONG CALLBACK SeeFault(EXCEPTION_POINTERS* exception) {
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode != EXCEPTION_ACCESS_VIOLATION || record.NumberParameters < 2) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    const auto* address = reinterpret_cast<const unsigned char*>(record.ExceptionInformation[1]);
    Place place = PlaceOf(address);
    if (place.region == nullptr) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    while (place.page > 0 && place.region->blocks[place.page].state == State::None) {
        --place.page;
    }
    const Guarded& block = place.region->blocks[place.page];
    const unsigned char* begin = AddressOf(place, block);
    std::printf("at %p, %td bytes from the beginning of the block:\n", record.ExceptionAddress,
                address - begin);
    EndProgram("access to guarded memory", begin, &block);
}

void AddRegion() {
    void* pages = VirtualAlloc(nullptr, kRegionPages * kPage, MEM_RESERVE, PAGE_NOACCESS);
    void* blocks = VirtualAlloc(nullptr, kRegionPages * sizeof(Guarded), MEM_RESERVE | MEM_COMMIT,
                                PAGE_READWRITE);
    if (regionCount == regions.size() || pages == nullptr || blocks == nullptr) {
        EndProgram("no address space for more guarded memory", pages, nullptr);
    }
    if (faultHandler == nullptr) {
        faultHandler = AddVectoredExceptionHandler(1, SeeFault);
    }
    // The page before the first block is a guard as well.
    regions[regionCount++] = {static_cast<unsigned char*>(pages), static_cast<Guarded*>(blocks), 1};
}

// Gives everything back when the DLL goes.
[[gnu::destructor]] void RemoveRegions() {
    if (faultHandler != nullptr) {
        RemoveVectoredExceptionHandler(faultHandler);
    }
    while (regionCount > 0) {
        const Region& region = regions[--regionCount];
        VirtualFree(region.pages, 0, MEM_RELEASE);
        VirtualFree(region.blocks, 0, MEM_RELEASE);
    }
}

// Where there is place for this many pages and a guard.
Region& RegionFor(SIZE_T pages) {
    if (regionCount == 0 || regions[regionCount - 1].used + pages + 1 > kRegionPages) {
        AddRegion();
    }
    return regions[regionCount - 1];
}

// Null when the system has no pages.
void* AllocGuarded(void* plain, std::uint16_t size) {
    const SIZE_T pages = PagesOf(size);
    Region& region = RegionFor(pages);
    const Place place{&region, region.used};
    unsigned char* first = FirstPage(place);
    if (VirtualAlloc(first, pages * kPage, MEM_COMMIT, PAGE_READWRITE) == nullptr) {
        return nullptr;
    }
    region.used += pages + 1;
    ++liveBlocks;
    Guarded& block = region.blocks[place.page];
    block = {plain, size, State::Live};
    std::memset(first, kPattern, pages * kPage);
    return std::memset(AddressOf(place, block), 0, size);
}

bool IsPattern(const unsigned char* begin, const unsigned char* end) {
    return std::all_of(begin, end, [](unsigned char byte) { return byte == kPattern; });
}

bool IsLive(Place place, const void* address) {
    const Guarded& block = place.region->blocks[place.page];
    return block.state == State::Live && AddressOf(place, block) == address;
}

bool IsIntactAt(Place place) {
    const Guarded& block = place.region->blocks[place.page];
    const unsigned char* first = FirstPage(place);
    const unsigned char* begin = AddressOf(place, block);
    return IsPattern(first, begin) &&
           IsPattern(begin + block.size, first + PagesOf(block.size) * kPage);
}

void FreeGuarded(Place place, void* address) {
    Guarded& block = place.region->blocks[place.page];
    if (!IsLive(place, address)) {
        EndProgram("freed what is no block that is out", address, &block);
    }
    if (!IsIntactAt(place)) {
        EndProgram("written beside the block", address, &block);
    }
    if (VirtualFree(FirstPage(place), PagesOf(block.size) * kPage, MEM_DECOMMIT) == 0) {
        EndProgram("cannot take back the block", address, &block);
    }
    block.state = State::Freed;
    --liveBlocks;
    FreePlainBlock(nullptr, block.plain);
}

} // namespace

void* AllocBlock(void* context, std::uint16_t size) {
    void* plain = AllocPlainBlock(context, size);
    if (plain == nullptr) {
        return nullptr;
    }
    const Lock held;
    void* guarded = liveBlocks < kMostGuarded ? AllocGuarded(plain, size) : nullptr;
    return guarded != nullptr ? guarded : plain;
}

void FreeBlock(void* context, void* block) {
    const Lock held;
    const Place place = PlaceOf(block);
    if (place.region != nullptr) {
        FreeGuarded(place, block);
    } else {
        FreePlainBlock(context, block);
    }
}

bool IsIntact(const void* block) {
    const Lock held;
    const Place place = PlaceOf(block);
    return place.region != nullptr && IsLive(place, block) && IsIntactAt(place);
}

} // namespace vorn
