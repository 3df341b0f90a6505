#include "core/property_win.h"

#include "core/memory.h"

#include <cstring>

namespace vorn {
namespace {

// The block of a property for as long as it is looked at; without an address when the property is
// not there or is no such block.
class LockedBlock {
public:
    LockedBlock(HWND window, const char* name, std::uint16_t size)
        : memory_(GetPropA(window, name)),
          address_(memory_ != nullptr && GlobalSize(memory_) >= size ? GlobalLock(memory_)
                                                                     : nullptr) {}
    ~LockedBlock() {
        if (address_ != nullptr) {
            GlobalUnlock(memory_);
        }
    }
    LockedBlock(const LockedBlock&) = delete;
    LockedBlock& operator=(const LockedBlock&) = delete;

    void* address() const { return address_; }

private:
    HGLOBAL memory_;
    void* address_;
};

bool MakeBlock(HWND window, const char* name, std::uint16_t size) {
    void* block = AllocBlock(nullptr, size);
    if (block == nullptr) {
        return false;
    }
    HGLOBAL memory = GlobalHandle(block);
    if (SetPropA(window, name, memory) == 0) {
        FreeBlock(nullptr, block);
        return false;
    }
    GlobalUnlock(memory);
    return true;
}

} // namespace

bool StoreProperty(HWND window, const char* name, const void* value, std::uint16_t size) {
    if (GetPropA(window, name) == nullptr && !MakeBlock(window, name, size)) {
        return false;
    }
    const LockedBlock block(window, name, size);
    if (block.address() == nullptr) {
        return false;
    }
    std::memcpy(block.address(), value, size);
    return true;
}

bool LoadProperty(HWND window, const char* name, void* value, std::uint16_t size) {
    const LockedBlock block(window, name, size);
    if (block.address() == nullptr) {
        return false;
    }
    std::memcpy(value, block.address(), size);
    return true;
}

void FreeProperty(HWND window, const char* name) {
    HGLOBAL memory = RemovePropA(window, name);
    if (memory != nullptr) {
        FreeBlock(nullptr, GlobalLock(memory));
    }
}

} // namespace vorn
