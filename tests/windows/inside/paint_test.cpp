// Painting off screen: what a paint draws is what the screen shows, whatever an earlier one left.
#include "core/gdi_win.h"
#include "core/paint_win.h"
#include "tests/windows/support/objects.h"
#include "tests/windows/support/pixels.h"

#include <gtest/gtest.h>

namespace vorn {
namespace {

constexpr COLORREF kLeft = RGB(255, 0, 0);
constexpr COLORREF kRight = RGB(0, 0, 255);
// A window that is shown takes its time.
constexpr int kCycles = 200;

// A window whose halves have two colours.
class Halves {
public:
    Halves(int width, int height) {
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = Procedure;
        windowClass.hInstance = GetModuleHandleA(nullptr);
        windowClass.lpszClassName = "VornTestHalves";
        RegisterClassA(&windowClass);
        window_ = CreateWindowExA(0, windowClass.lpszClassName, "", WS_POPUP | WS_VISIBLE, 0, 0,
                                  width, height, nullptr, nullptr, windowClass.hInstance, nullptr);
        UpdateWindow(window_);
    }
    ~Halves() { DestroyWindow(window_); }
    Halves(const Halves&) = delete;
    Halves& operator=(const Halves&) = delete;

    HWND get() const { return window_; }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_PAINT) {
            return PaintOffscreen(window, [](HWND painted, const OffscreenPaint& offscreen) {
                const Rect client = ClientRect(painted);
                const Rect left = {0, 0, client.right / 2, client.bottom};
                const Rect right = {client.right / 2, 0, client.right, client.bottom};
                FillWithColor(offscreen.context(), left, kLeft);
                FillWithColor(offscreen.context(), right, kRight);
            });
        }
        return DefWindowProcA(window, message, wParam, lParam);
    }

    HWND window_;
};

void ExpectHalves(const Halves& halves, int width, int height) {
    const test::Pixels shown = test::PixelsOf(halves.get());
    ASSERT_EQ(shown.width, width);
    ASSERT_EQ(shown.height, height);
    EXPECT_EQ(shown.Count({0, 0, width / 2, height}, kLeft), width / 2 * height);
    EXPECT_EQ(shown.Count({width / 2, 0, width, height}, kRight), (width - width / 2) * height);
}

TEST(OffscreenPaint, ShowsPaintsOfAnySizeOneAfterTheOther) {
    constexpr SIZE kSizes[] = {{100, 50}, {40, 200}, {300, 20}, {10, 10}, {700, 500}, {101, 51}};
    for (const SIZE& size : kSizes) {
        ExpectHalves(Halves(size.cx, size.cy), size.cx, size.cy);
    }
}

TEST(OffscreenPaint, ShowsAPartInItsPlace) {
    const Halves halves(100, 60);
    constexpr RECT kPart = {30, 20, 70, 40};
    HDC screen = GetDC(halves.get());
    FillRect(screen, &kPart, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    ReleaseDC(halves.get(), screen);
    InvalidateRect(halves.get(), &kPart, FALSE);
    UpdateWindow(halves.get());
    ExpectHalves(halves, 100, 60);
}

TEST(OffscreenPaint, KeepsNothingWhenTheLibraryEnds) {
    const auto cycle = [] {
        const Halves halves(100, 50);
        FreeKeptPixels();
    };
    EXPECT_EQ(test::ObjectsLeftBy(cycle, kCycles), "");
}

// More pixels than are kept.
TEST(OffscreenPaint, LeavesNoLargeBitmapBehind) {
    EXPECT_EQ(test::ObjectsLeftBy([] { const Halves halves(800, 400); }, kCycles), "");
}

} // namespace
} // namespace vorn
