#include "core/record_win.h"

#include "core/classes_win.h"
#include "core/memory.h"

#include <array>
#include <atomic>

namespace vorn {
namespace {

// Where the records of some windows were stored: what the window's extra bytes hold need not be
// doubted when it is the same. Each class has places of its own, so that a record found there is
// one of the class, whatever other threads store meanwhile.
struct Known {
    std::atomic<HWND> window{nullptr};
    std::atomic<void*> record{nullptr};
};

constexpr std::size_t kKnownOfClass = 16;
std::array<std::array<Known, kKnownOfClass>, kControlClasses> known;

Known& KnownOf(HWND window, ControlClass id) {
    return known[Index(id)][(reinterpret_cast<UINT_PTR>(window) >> 1) % kKnownOfClass];
}

void Remember(HWND window, ControlClass id, void* record) {
    Known& place = KnownOf(window, id);
    place.window = window;
    place.record = record;
}

bool IsKnown(HWND window, ControlClass id, const void* record) {
    const Known& place = KnownOf(window, id);
    return record != nullptr && place.window == window && place.record == record;
}

// Only windows of this process: another one's record is an address in its memory, not in ours.
bool IsOurs(HWND window) {
    DWORD process = 0;
    return GetWindowThreadProcessId(window, &process) != 0 && process == GetCurrentProcessId();
}

// The class itself, not one of the same name that the host keeps to itself.
bool IsOfClass(HWND window, ControlClass id) {
    return static_cast<ATOM>(GetClassLongA(window, GCW_ATOM)) == ClassAtom(id) &&
           reinterpret_cast<HINSTANCE>(GetClassLongPtrA(window, GCLP_HMODULE)) == Module();
}

} // namespace

// Of a host's own class on top of one of ours nobody knows what its extra bytes hold; there the
// record is a property of the window, named after the class.
void StoreRecord(HWND window, ControlClass id, void* record) {
    const ClassDescription& description = Describe(id);
    if (IsOfClass(window, id)) {
        SetWindowLongPtrA(window, description.recordOffset, reinterpret_cast<LONG_PTR>(record));
        Remember(window, id, record);
    } else if (record != nullptr) {
        SetPropA(window, description.name, record);
    } else {
        RemovePropA(window, description.name);
    }
}

void* FetchRecord(HWND window, ControlClass id) {
    const ClassDescription& description = Describe(id);
    const auto stored = [&] {
        return reinterpret_cast<void*>(GetWindowLongPtrA(window, description.recordOffset));
    };
    void* record = KnownOf(window, id).window == window ? stored() : nullptr;
    if (IsKnown(window, id, record)) {
        return record;
    }
    if (!IsOurs(window)) {
        return nullptr;
    }
    return IsOfClass(window, id) ? stored() : GetPropA(window, description.name);
}

void* AllocRecord(HWND window, ControlClass id, std::uint16_t size) {
    if (FetchRecord(window, id) != nullptr) {
        return nullptr;
    }
    void* record = AllocBlock(nullptr, size);
    StoreRecord(window, id, record);
    // There was nowhere to keep it.
    if (FetchRecord(window, id) != record) {
        FreeBlock(nullptr, record);
        return nullptr;
    }
    return record;
}

void FreeRecord(HWND window, ControlClass id) {
    void* record = FetchRecord(window, id);
    if (record != nullptr) {
        StoreRecord(window, id, nullptr);
        FreeBlock(nullptr, record);
    }
}

} // namespace vorn
