// Looking over a window's shoulder: a procedure before its own one.
#pragma once

#include "tests/windows/support/host_window.h"

#include <windows.h>
#include <functional>
#include <optional>
#include <vector>

namespace vorn::test {

// From construction on the window's messages pass the spy first; it steps aside at the end of its
// scope.
class Spy {
public:
    explicit Spy(HWND window);
    ~Spy();
    Spy(const Spy&) = delete;
    Spy& operator=(const Spy&) = delete;

    // Asked before the window gets a message.
    std::function<void(const Message&)> before;

    // Asked after that; an empty answer leaves it to the window.
    std::function<std::optional<LRESULT>(const Message&)> answer;

    // Messages of this number so far.
    std::vector<Message> Received(UINT message) const;
    std::vector<Message> messages;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND window_;
    WNDPROC procedure_;
};

} // namespace vorn::test
