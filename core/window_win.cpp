#include "core/window_win.h"

#include <vorn32/library.h>

namespace vorn {
namespace {

constexpr char kHostAppClass[] = "rwswnd";
constexpr int kClassNameSize = 60;

bool IsContainer(HWND window) {
    return (GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0 &&
           (StyleOf(window) & WS_CHILD) != 0;
}

} // namespace

void ChangeStyle(HWND window, DWORD clear, DWORD set) {
    SetWindowLongA(window, GWL_STYLE, static_cast<LONG>((StyleOf(window) & ~clear) | set));
}

void NotifyParent(HWND window, WORD code) {
    const WPARAM idAndCode = MAKEWPARAM(GetDlgCtrlID(window), code);
    SendMessageA(GetParent(window), WM_COMMAND, idAndCode, reinterpret_cast<LPARAM>(window));
}

bool ParentIsHostApp(HWND window) {
    return SendMessageA(GetParent(window), VORN_WM_IS_HOST_APP, 0, 0) == VORN_HOST_APP_YES;
}

bool IsInHostApp(HWND window) {
    for (HWND ancestor = GetParent(window); ancestor != nullptr; ancestor = GetParent(ancestor)) {
        char name[kClassNameSize] = "";
        GetClassNameA(ancestor, name, kClassNameSize);
        if (lstrcmpiA(name, kHostAppClass) == 0) {
            return true;
        }
    }
    return ParentIsHostApp(window);
}

CaptureOwner NewCaptureOwner(HWND window, LPARAM lParam) {
    const auto owner = reinterpret_cast<HWND>(lParam);
    if (owner == nullptr) {
        return CaptureOwner::Nobody;
    }
    return owner == window ? CaptureOwner::Self : CaptureOwner::Other;
}

UINT KeyboardSetting(UINT setting) {
    DWORD value = 0;
    SystemParametersInfoA(setting, 0, &value, 0);
    return LOWORD(value);
}

void FocusTabItem(HWND control, bool previous) {
    HWND dialog = GetParent(control);
    while (IsContainer(dialog)) {
        dialog = GetParent(dialog);
    }
    HWND item = dialog == nullptr ? nullptr : GetNextDlgTabItem(dialog, control, previous);
    if (item != nullptr) {
        SetFocus(item);
    }
}

} // namespace vorn
