#include "tests/windows/abuse/creation.h"

namespace vorn::test {
namespace {

CreationWatch* watch = nullptr; // one at a time

} // namespace

CreationWatch::CreationWatch(const std::string& className)
    : className_(className),
      hook_(SetWindowsHookExA(WH_CBT, OnHook, nullptr, GetCurrentThreadId())) {
    watch = this;
}

CreationWatch::~CreationWatch() {
    UnhookWindowsHookEx(hook_);
    if (IsWindow(window_) && procedure_ != nullptr) {
        SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure_));
    }
    watch = nullptr;
}

LRESULT CALLBACK CreationWatch::OnHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && watch != nullptr && watch->window_ == nullptr) {
        char name[60] = "";
        GetClassNameA(reinterpret_cast<HWND>(wParam), name, sizeof name);
        if (watch->className_ == name && watch->Meet(reinterpret_cast<HWND>(wParam))) {
            return 1;
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// Whether its creation is refused.
bool CreationWatch::Meet(HWND window) {
    window_ = window;
    procedure_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
    return Ask(CreationStage::Bare);
}

bool CreationWatch::Ask(CreationStage stage) {
    return at && at(window_, stage);
}

LRESULT CreationWatch::Pass(const Message& message) {
    return IsWindow(window_) ? CallWindowProcA(procedure_, window_, message.message, message.wParam,
                                               message.lParam)
                             : 0;
}

LRESULT CreationWatch::PassCreation(const Message& message, CreationStage before,
                                    CreationStage after, LRESULT refusal) {
    if (Ask(before)) {
        return refusal;
    }
    const LRESULT result = Pass(message);
    return Ask(after) ? refusal : result;
}

LRESULT CALLBACK CreationWatch::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (watch == nullptr || window != watch->window_) {
        return DefWindowProcA(window, message, wParam, lParam);
    }
    const Message received = {message, wParam, lParam};
    if (watch->before) {
        watch->before(received);
    }
    switch (message) {
    case WM_NCCREATE:
        return watch->PassCreation(received, CreationStage::BeforeNcCreate,
                                   CreationStage::AfterNcCreate, FALSE);
    case WM_CREATE:
        return watch->PassCreation(received, CreationStage::BeforeCreate,
                                   CreationStage::AfterCreate, -1);
    default:
        return watch->Pass(received);
    }
}

} // namespace vorn::test
