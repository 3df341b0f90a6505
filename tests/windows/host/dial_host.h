// A host of dials: it writes down the scroll messages that it is sent.
#pragma once

#include "tests/windows/support/host_window.h"

#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <utility>
#include <vector>
#include <vorn32.h>

namespace vorn::test {

struct Scroll {
    int code;
    int position;

    friend bool operator==(const Scroll&, const Scroll&) = default;
};

inline void PrintTo(const Scroll& scroll, std::ostream* out) {
    *out << "code " << scroll.code << " at " << scroll.position;
}

// In the client area of a dial of 100 by 100: its centre is (50, 46), its radius 42, and the corner
// buttons are in columns 2 to 13 and 86 to 97 of the rows 86 to 97.
constexpr POINT kLeftButton = {8, 92};
constexpr POINT kRightButton = {92, 92};
constexpr POINT kWest = {10, 46};
constexpr POINT kNorth = {50, 10};
constexpr POINT kEast = {90, 46};
constexpr POINT kSouth = {50, 80};

inline LPARAM At(POINT point) {
    return MAKELPARAM(point.x, point.y);
}

class DialHost : public testing::Test {
protected:
    HostWindow host;
    std::vector<Scroll> scrolls;
    // Runs inside each scroll message, after it was written down.
    std::function<void(HWND dial)> onScroll;

    DialHost() {
        host.answer = [this](const Message& message) -> std::optional<LRESULT> {
            if (message.message != WM_VSCROLL) {
                return std::nullopt;
            }
            scrolls.push_back({LOWORD(message.wParam), HIWORD(message.wParam)});
            if (onScroll) {
                onScroll(reinterpret_cast<HWND>(message.lParam));
            }
            return 0;
        };
    }

    HWND Create(DWORD style = 0, int width = 100, int height = 100) {
        return host.Create(VORN_DIAL_CLASS, style, 10, 10, width, height);
    }

    HWND CreateAt(LONG position, DWORD style = 0) {
        HWND dial = Create(style);
        SetDialPos(dial, position, FALSE);
        return dial;
    }

    std::vector<Scroll> TakeScrolls() { return std::exchange(scrolls, {}); }

    static void Press(HWND dial, POINT point) {
        SendMessageA(dial, WM_LBUTTONDOWN, MK_LBUTTON, At(point));
    }
    static void Move(HWND dial, POINT point) {
        SendMessageA(dial, WM_MOUSEMOVE, MK_LBUTTON, At(point));
    }
    static void Release(HWND dial, POINT point) { SendMessageA(dial, WM_LBUTTONUP, 0, At(point)); }

    // Whether a timer runs; it does not afterwards.
    static bool StopsTimer(HWND dial, UINT_PTR timer) { return KillTimer(dial, timer) != 0; }
};

} // namespace vorn::test
