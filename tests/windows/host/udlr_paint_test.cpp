// What the spin pad looks like: one of its five pictures, pixel by pixel.
#include "tests/windows/support/host_window.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/pixels.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace {

using vorn::test::Difference;
using vorn::test::Drawing;
using vorn::test::HostWindow;
using vorn::test::Pixels;
using vorn::test::PixelsOf;
using vorn::test::SendMouse;

constexpr COLORREF kAround = RGB(1, 2, 3);

// A bitmap of the library on a canvas of this size, read by its number.
Pixels Picture(int number, int width, int height, POINT place) {
    HBITMAP bitmap = LoadBitmapA(GetModuleHandleA("VORN32.dll"), MAKEINTRESOURCEA(number));
    EXPECT_NE(bitmap, nullptr) << number;
    BITMAP header{};
    GetObjectA(bitmap, sizeof header, &header);
    EXPECT_EQ(header.bmWidth, 29);
    EXPECT_EQ(header.bmHeight, 29);
    const Pixels pixels = Drawing(width, height, kAround, [&](HDC context) {
        HDC memory = CreateCompatibleDC(context);
        HGDIOBJ previous = SelectObject(memory, bitmap);
        BitBlt(context, place.x, place.y, 29, 29, memory, 0, 0, SRCCOPY);
        SelectObject(memory, previous);
        DeleteDC(memory);
    });
    DeleteObject(bitmap);
    return pixels;
}

Pixels Picture(int number) {
    return Picture(number, 29, 29, {0, 0});
}

class UdlrPaint : public testing::Test {
protected:
    HostWindow host;

    HWND Create(DWORD style = 0) {
        HWND pad = host.Create(VORN_UDLR_CLASS, style, 10, 20, 29, 29);
        UpdateWindow(pad);
        return pad;
    }
};

TEST_F(UdlrPaint, ShowsTheDirectionThatIsPressed) {
    HWND pad = Create();
    EXPECT_EQ(Difference(Picture(305), PixelsOf(pad)), "") << "nothing pressed";
    const struct {
        int x;
        int y;
        int picture;
    } parts[] = {{14, 3, 306}, {24, 14, 307}, {14, 24, 308}, {3, 14, 309}};
    for (const auto& part : parts) {
        SendMouse(pad, WM_LBUTTONDOWN, part.x, part.y);
        EXPECT_EQ(Difference(Picture(part.picture), PixelsOf(pad)), "") << part.picture;
        SendMouse(pad, WM_LBUTTONUP, part.x, part.y);
        EXPECT_EQ(Difference(Picture(305), PixelsOf(pad)), "") << "released";
    }
}

TEST_F(UdlrPaint, FollowsThePointer) {
    HWND pad = Create();
    SendMouse(pad, WM_LBUTTONDOWN, 10, 10);
    EXPECT_EQ(Difference(Picture(305), PixelsOf(pad)), "") << "on a diagonal";
    SendMouse(pad, WM_MOUSEMOVE, 3, 14);
    EXPECT_EQ(Difference(Picture(309), PixelsOf(pad)), "");
    SendMouse(pad, WM_MOUSEMOVE, 14, 24);
    EXPECT_EQ(Difference(Picture(308), PixelsOf(pad)), "");
    SendMouse(pad, WM_MOUSEMOVE, -2, 14);
    EXPECT_EQ(Difference(Picture(305), PixelsOf(pad)), "") << "outside";
    SendMouse(pad, WM_LBUTTONUP, -2, 14);
}

TEST_F(UdlrPaint, TheFivePicturesDiffer) {
    for (int one = 305; one <= 309; ++one) {
        for (int other = 305; other < one; ++other) {
            EXPECT_NE(Difference(Picture(one), Picture(other)), "") << one << " and " << other;
        }
    }
}

TEST_F(UdlrPaint, LooksTheSameDisabled) {
    HWND pad = Create();
    EnableWindow(pad, FALSE);
    EXPECT_EQ(Difference(Picture(305), PixelsOf(pad)), "");
}

TEST_F(UdlrPaint, LiesWithinItsBorder) {
    HWND pad = Create(WS_BORDER);
    const Pixels pixels = PixelsOf(pad);
    ASSERT_EQ(pixels.width, 31);
    const Pixels expected = Picture(305);
    for (int y = 0; y < 29; ++y) {
        for (int x = 0; x < 29; ++x) {
            ASSERT_EQ(pixels.At(x + 1, y + 1), expected.At(x, y)) << x << ", " << y;
        }
    }
}

TEST_F(UdlrPaint, DrawsIntoAContextThatItIsGiven) {
    HWND pad = Create();
    SendMouse(pad, WM_LBUTTONDOWN, 14, 3);
    const Pixels pixels = Drawing(50, 40, kAround, [&](HDC context) {
        SendMessageA(pad, WM_PAINT, reinterpret_cast<WPARAM>(context), 0);
    });
    EXPECT_EQ(Difference(Picture(306, 50, 40, {0, 0}), pixels), "");
    SendMouse(pad, WM_LBUTTONUP, 14, 3);
}

TEST_F(UdlrPaint, LeavesErasingToThePicture) {
    HWND pad = Create();
    const Pixels untouched = Drawing(29, 29, kAround, [&](HDC context) {
        EXPECT_EQ(SendMessageA(pad, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0), 0);
    });
    EXPECT_EQ(untouched.Count({0, 0, 29, 29}, kAround), 29 * 29);
}

// Counts the paints of a pad, and the erasings among them.
WNDPROC padProcedure = nullptr;
int paints = 0;
int erasings = 0;

LRESULT CALLBACK CountPaints(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    paints += message == WM_PAINT;
    erasings += message == WM_ERASEBKGND;
    return CallWindowProcA(padProcedure, window, message, wParam, lParam);
}

TEST_F(UdlrPaint, RepaintsAtOnceAndErasesOnlyWhenEnabledOrDisabled) {
    HWND pad = Create();
    vorn::test::PumpMessages();
    padProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(pad, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountPaints)));
    paints = erasings = 0;
    SendMouse(pad, WM_LBUTTONDOWN, 14, 3);
    EXPECT_EQ(paints, 1);
    SendMouse(pad, WM_MOUSEMOVE, 14, 4);
    EXPECT_EQ(paints, 1) << "the same part";
    SendMouse(pad, WM_MOUSEMOVE, 3, 14);
    EXPECT_EQ(paints, 2);
    SendMessageA(pad, WM_TIMER, 1, 0);
    EXPECT_EQ(paints, 2) << "a repeat looks the same";
    SendMouse(pad, WM_LBUTTONUP, 3, 14);
    EXPECT_EQ(paints, 3);
    EXPECT_EQ(erasings, 0);
    SendMessageA(pad, WM_ENABLE, FALSE, 0);
    EXPECT_EQ(paints, 4);
    EXPECT_EQ(erasings, 1);
    SendMessageA(pad, WM_ENABLE, TRUE, 0);
    EXPECT_EQ(paints, 5);
    EXPECT_EQ(erasings, 2);
}

} // namespace
