#include "tests/windows/support/spy.h"

namespace vorn::test {
namespace {

constexpr char kProperty[] = "VornTestSpy";

} // namespace

LRESULT CALLBACK Spy::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* spy = static_cast<Spy*>(GetPropA(window, kProperty));
    if (spy == nullptr) {
        return DefWindowProcA(window, message, wParam, lParam);
    }
    const Message received = {message, wParam, lParam};
    spy->messages.push_back(received);
    WNDPROC procedure = spy->procedure_;
    if (spy->before) {
        spy->before(received);
    }
    const std::optional<LRESULT> answered =
        spy->answer ? spy->answer(received) : std::optional<LRESULT>();
    if (answered || !IsWindow(window)) {
        return answered.value_or(0);
    }
    return CallWindowProcA(procedure, window, message, wParam, lParam);
}

Spy::Spy(HWND window) : window_(window) {
    SetPropA(window, kProperty, this);
    procedure_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
}

Spy::~Spy() {
    if (IsWindow(window_)) {
        SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure_));
        RemovePropA(window_, kProperty);
    }
}

std::vector<Message> Spy::Received(UINT message) const {
    std::vector<Message> found;
    for (const Message& candidate : messages) {
        if (candidate.message == message) {
            found.push_back(candidate);
        }
    }
    return found;
}

} // namespace vorn::test
