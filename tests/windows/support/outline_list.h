// A host with outline lists, for their tests.
#pragma once

#include "tests/windows/support/host_window.h"
#include "tests/windows/support/pixels.h"

#include <gtest/gtest.h>
#include <string>
#include <vorn32.h>

namespace vorn::test {

constexpr int kOutlineId = 77;
constexpr int kRowHeight = 18; // a picture's 16 and 2
constexpr int kOutlineWidth = 120;
constexpr int kOutlineHeight = 100; // five rows and 10 pixels

class OutlineListTest : public testing::Test {
protected:
    HostWindow host;

    HWND Create(DWORD style = 0, int width = kOutlineWidth, int height = kOutlineHeight) {
        HWND list = host.Create(VORN_HIERLIST_CLASS, style, 5, 6, width, height, kOutlineId);
        PumpMessages();
        return list;
    }

    // Rows "0", "1" and so on.
    static void AddRows(HWND list, int count) {
        SendMessageA(list, WM_SETREDRAW, FALSE, 0);
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(olbAddString(list, std::to_string(i).c_str()), i);
        }
        SendMessageA(list, WM_SETREDRAW, TRUE, 0);
        UpdateWindow(list);
    }

    static RECT ClientOf(HWND list) {
        RECT client{};
        GetClientRect(list, &client);
        return client;
    }

    // What the list should look like with nothing in it: the background, into which `draw` draws
    // with the stock system font, transparently.
    static Pixels Expected(int width, int height, const std::function<void(HDC)>& draw,
                           COLORREF background = GetSysColor(COLOR_WINDOW)) {
        return Drawing(width, height, background, [&](HDC context) {
            SelectObject(context, GetStockObject(SYSTEM_FONT));
            SetBkMode(context, TRANSPARENT);
            SetTextColor(context, GetSysColor(COLOR_WINDOWTEXT));
            draw(context);
        });
    }

    static void Write(HDC context, const char* text, int x, int row) {
        RECT rect = {x, row * kRowHeight, 10000, (row + 1) * kRowHeight};
        DrawTextA(context, text, -1, &rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    }
};

} // namespace vorn::test
