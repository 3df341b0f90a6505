// The spin pad without one of its pictures.
#include "controls/udlr/udlr_win.h"
#include "core/record_win.h"
#include "tests/windows/support/host_window.h"
#include "tests/windows/support/pixels.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn::udlr {
namespace {

TEST(UdlrPictures, OneThatIsMissingDrawsNothing) {
    test::HostWindow host;
    HWND pad = host.Create(VORN_UDLR_CLASS, 0, 10, 20, 29, 29);
    Record* record = RecordOf<Record>(pad);
    ASSERT_NE(record, nullptr);
    DeleteObject(record->pictures[0]);
    record->pictures[0] = nullptr;
    constexpr COLORREF kAround = RGB(1, 2, 3);
    const test::Pixels pixels = test::Drawing(29, 29, kAround, [&](HDC context) {
        SendMessageA(pad, WM_PAINT, reinterpret_cast<WPARAM>(context), 0);
    });
    EXPECT_EQ(pixels.Count({0, 0, 29, 29}, kAround), 29 * 29);
}

TEST(UdlrPictures, GoWithTheWindow) {
    test::HostWindow host;
    HWND pad = host.Create(VORN_UDLR_CLASS, 0, 10, 20, 29, 29);
    const auto pictures = RecordOf<Record>(pad)->pictures;
    for (HBITMAP picture : pictures) {
        EXPECT_EQ(GetObjectType(picture), DWORD{OBJ_BITMAP});
    }
    DestroyWindow(pad);
    for (HBITMAP picture : pictures) {
        EXPECT_EQ(GetObjectType(picture), 0u);
    }
}

} // namespace
} // namespace vorn::udlr
