// The combo box: the system's own, which remembers where the focus came from.
#include "core/platform_win.h"
#include "core/property_win.h"

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

WNDPROC FindSystemProcedure() {
    WNDCLASSA systemClass{};
    return GetClassInfoA(nullptr, "COMBOBOX", &systemClass) != 0 ? systemClass.lpfnWndProc
                                                                 : DefWindowProcA;
}

FocusRecord RecordIn(HWND window) {
    return LoadProperty<FocusRecord>(window, kProperty);
}

WNDPROC SystemProcedureOf(HWND window) {
    const FocusRecord record = RecordIn(window);
    return record.systemProcedure != nullptr ? record.systemProcedure : FindSystemProcedure();
}

LRESULT Forward(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcA(SystemProcedureOf(window), window, message, wParam, lParam);
}

// Without memory the control is still a combo box.
void AttachFocusRecord(HWND window) {
    if (GetPropA(window, kProperty) == nullptr) {
        StoreProperty(window, kProperty, FocusRecord{FindSystemProcedure(), nullptr});
    }
}

void RememberFocus(HWND window, HWND previousFocus) {
    FocusRecord record = RecordIn(window);
    if (record.systemProcedure != nullptr) {
        record.previousFocus = previousFocus;
        StoreProperty(window, kProperty, record);
    }
}

LRESULT PreviousFocus(HWND window) {
    return LOWORD(reinterpret_cast<UINT_PTR>(RecordIn(window).previousFocus));
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
        FreeProperty(window, kProperty);
        return result;
    }
    case VCBM_GETPREVFOCUS:
        return PreviousFocus(window);
    default:
        break;
    }
    return Forward(window, message, wParam, lParam);
}
