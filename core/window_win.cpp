#include "core/window_win.h"

#include <vorn32/library.h>

namespace vorn {
namespace {

constexpr char kHostAppClass[] = "rwswnd";
constexpr int kClassNameSize = 60;

} // namespace

void ChangeStyle(HWND window, DWORD clear, DWORD set) {
    const auto style = static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
    SetWindowLongA(window, GWL_STYLE, static_cast<LONG>((style & ~clear) | set));
}

void NotifyParent(HWND window, WORD code) {
    const WPARAM idAndCode = MAKEWPARAM(GetDlgCtrlID(window), code);
    SendMessageA(GetParent(window), WM_COMMAND, idAndCode, reinterpret_cast<LPARAM>(window));
}

bool IsInHostApp(HWND window) {
    const HWND parent = GetParent(window);
    for (HWND ancestor = parent; ancestor != nullptr; ancestor = GetParent(ancestor)) {
        char name[kClassNameSize] = "";
        GetClassNameA(ancestor, name, kClassNameSize);
        if (lstrcmpiA(name, kHostAppClass) == 0) {
            return true;
        }
    }
    return SendMessageA(parent, VORN_WM_IS_HOST_APP, 0, 0) == VORN_HOST_APP_YES;
}

} // namespace vorn
