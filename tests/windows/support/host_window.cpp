#include "tests/windows/support/host_window.h"

namespace vorn::test {
namespace {

constexpr char kClassName[] = "VornTestHost";

} // namespace

LRESULT CALLBACK HostWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCTA*>(lParam);
        SetWindowLongPtrA(window, GWLP_USERDATA,
                          reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    auto* self = reinterpret_cast<HostWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (self != nullptr) {
        if (message == WM_COMMAND && lParam != 0) {
            self->notifications_.push_back(HIWORD(wParam));
        }
        if (self->answer) {
            const std::optional<LRESULT> result = self->answer({message, wParam, lParam});
            if (result) {
                return *result;
            }
        }
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

HostWindow::HostWindow() {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    windowClass.lpszClassName = kClassName;
    RegisterClassA(&windowClass);
    window_ = CreateWindowExA(0, kClassName, "host", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0,
                              640, 480, nullptr, nullptr, windowClass.hInstance, this);
    SetForegroundWindow(window_);
    PumpMessages();
}

HostWindow::~HostWindow() {
    answer = nullptr;
    if (IsWindow(window_)) {
        DestroyWindow(window_);
    }
    PumpMessages();
}

HWND HostWindow::Create(const char* className, DWORD style, int x, int y, int width, int height,
                        int id) {
    return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | style, x, y, width, height,
                           window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                           GetModuleHandleA(nullptr), nullptr);
}

std::vector<int> HostWindow::TakeNotifications() {
    std::vector<int> taken;
    taken.swap(notifications_);
    return taken;
}

void PumpMessages() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

bool PumpFor(DWORD milliseconds, const std::function<bool()>& until) {
    const DWORD start = GetTickCount();
    for (;;) {
        PumpMessages();
        if (until()) {
            return true;
        }
        const DWORD elapsed = GetTickCount() - start;
        if (elapsed >= milliseconds) {
            return false;
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds - elapsed, QS_ALLINPUT);
    }
}

} // namespace vorn::test
