// A parent window for controls under test: it records what it is sent and answers as a test wishes.
#pragma once

#include <windows.h>
#include <functional>
#include <optional>
#include <vector>

namespace vorn::test {

struct Message {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

// A visible top-level window at the screen's top left, 640 by 480 pixels of client area.
class HostWindow {
public:
    HostWindow();
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    HWND window() const { return window_; }

    // Creates a visible child; null when it was refused.
    HWND Create(const char* className, DWORD style, int x, int y, int width, int height,
                int id = 1000);

    // Asked before the default answer of every message; an empty answer leaves it to the default.
    std::function<std::optional<LRESULT>(const Message&)> answer;

    // The notification codes that came with WM_COMMAND since the last call, in order.
    std::vector<int> TakeNotifications();

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND window_ = nullptr;
    std::vector<int> notifications_;
};

// Handles what is in the thread's queue.
void PumpMessages();

// Pumps for a time, or until the condition holds; returns whether it held.
bool PumpFor(
    DWORD milliseconds, const std::function<bool()>& until = [] { return false; });

} // namespace vorn::test
