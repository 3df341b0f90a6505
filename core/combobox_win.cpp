// The combo box: the system's own, which remembers where the focus came from.
#include "core/memory.h"
#include "core/platform_win.h"

#include <vorn32/combobox.h>

namespace vorn {
namespace {

// The window's extra bytes belong to the system's procedure, so the record is held by a property:
// the handle of its block, which is locked only while somebody looks at it.
constexpr char kProperty[] = "VORNComboBoxProp";

struct FocusRecord {
    WNDPROC systemProcedure;
    HWND previousFocus; // null until the first focus
};

class LockedRecord {
public:
    explicit LockedRecord(HWND window)
        : memory_(GetPropA(window, kProperty)),
          record_(memory_ == nullptr ? nullptr : static_cast<FocusRecord*>(GlobalLock(memory_))) {}
    ~LockedRecord() {
        if (record_ != nullptr) {
            GlobalUnlock(memory_);
        }
    }
    LockedRecord(const LockedRecord&) = delete;
    LockedRecord& operator=(const LockedRecord&) = delete;

    FocusRecord* get() const { return record_; }

private:
    HGLOBAL memory_;
    FocusRecord* record_;
};

WNDPROC FindSystemProcedure() {
    WNDCLASSA systemClass{};
    return GetClassInfoA(nullptr, "COMBOBOX", &systemClass) != 0 ? systemClass.lpfnWndProc
                                                                 : DefWindowProcA;
}

WNDPROC SystemProcedureOf(HWND window) {
    const LockedRecord record(window);
    return record.get() == nullptr ? FindSystemProcedure() : record.get()->systemProcedure;
}

// The record is unlocked before the system's procedure runs: that may end the window.
LRESULT Forward(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcA(SystemProcedureOf(window), window, message, wParam, lParam);
}

// Without memory the control is still a combo box.
void AttachFocusRecord(HWND window) {
    if (GetPropA(window, kProperty) != nullptr) {
        return;
    }
    void* block = AllocBlock(nullptr, sizeof(FocusRecord));
    if (block == nullptr) {
        return;
    }
    static_cast<FocusRecord*>(block)->systemProcedure = FindSystemProcedure();
    HGLOBAL memory = GlobalHandle(block);
    if (SetPropA(window, kProperty, memory) != 0) {
        GlobalUnlock(memory);
    } else {
        FreeBlock(nullptr, block);
    }
}

void DetachFocusRecord(HWND window) {
    HANDLE memory = RemovePropA(window, kProperty);
    if (memory != nullptr) {
        FreeBlock(nullptr, GlobalLock(memory));
    }
}

void RememberFocus(HWND window, HWND previousFocus) {
    const LockedRecord record(window);
    if (record.get() != nullptr) {
        record.get()->previousFocus = previousFocus;
    }
}

LRESULT PreviousFocus(HWND window) {
    const LockedRecord record(window);
    return record.get() == nullptr
               ? 0
               : LOWORD(reinterpret_cast<UINT_PTR>(record.get()->previousFocus));
}

} // namespace
} // namespace vorn

using namespace vorn;

// In a code section of its own.
extern "C" [[gnu::section("VORNCB")]] LRESULT CALLBACK VORNCBFunction(HWND window, UINT message,
                                                                      WPARAM wParam,
                                                                      LPARAM lParam) {
    switch (message) {
    case WM_NCCREATE:
        AttachFocusRecord(window);
        break;
    case WM_SETFOCUS:
        RememberFocus(window, reinterpret_cast<HWND>(wParam));
        break;
    case WM_NCDESTROY: {
        // The system's procedure ends first: it may still send messages that the record answers.
        const LRESULT result = Forward(window, message, wParam, lParam);
        DetachFocusRecord(window);
        return result;
    }
    case VCBM_GETPREVFOCUS:
        return PreviousFocus(window);
    default:
        break;
    }
    return Forward(window, message, wParam, lParam);
}
