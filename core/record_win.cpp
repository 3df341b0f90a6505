#include "core/record_win.h"

#include "core/classes_win.h"
#include "core/memory.h"

namespace vorn {
namespace {

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
    } else if (record != nullptr) {
        SetPropA(window, description.name, record);
    } else {
        RemovePropA(window, description.name);
    }
}

void* FetchRecord(HWND window, ControlClass id) {
    if (!IsOurs(window)) {
        return nullptr;
    }
    const ClassDescription& description = Describe(id);
    return IsOfClass(window, id)
               ? reinterpret_cast<void*>(GetWindowLongPtrA(window, description.recordOffset))
               : GetPropA(window, description.name);
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
