// The dialog that holds the lists: it paints the background and passes everything else on.
#include "core/gdi_win.h"
#include "core/window_win.h"

#include <vorn32/fontselect.h>

namespace vorn::fontselect {
namespace {

// The atom of all dialogs' class.
constexpr DWORD kDialogClass = 0x8002;

// What the message itself is answered with. Other windows have something else in that place.
void SetResult(HWND dialog, LRESULT result) {
    if (GetClassLongA(dialog, GCW_ATOM) == kDialogClass) {
        SetWindowLongPtrA(dialog, DWLP_MSGRESULT, result);
    }
}

void EraseBackground(HWND dialog, HDC context) {
    const LRESULT color = SendMessageA(GetParent(dialog), VFSM_GETBACKGROUNDCOLOR, 0, 0);
    FillWithColor(context, ClientRect(dialog), static_cast<COLORREF>(color));
    SetResult(dialog, 1);
}

} // namespace
} // namespace vorn::fontselect

using namespace vorn;
using namespace vorn::fontselect;

extern "C" INT_PTR CALLBACK fnFontSelProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    HWND control = GetParent(dialog);
    switch (message) {
    case WM_ERASEBKGND:
        EraseBackground(dialog, reinterpret_cast<HDC>(wParam));
        return 1;
    case WM_COMMAND:
        SendMessageA(control, message, wParam, lParam);
        return 1;
    case WM_LBUTTONDOWN:
        if (ParentIsHostApp(control)) {
            SendMessageA(control, message, wParam, lParam);
            return 1;
        }
        return 0;
    default:
        return 0;
    }
}
