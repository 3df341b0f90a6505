// Creation without memory, and blocks that stay behind.
#include "core/memory.h"
#include "tests/windows/support/host_window.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn {
namespace {

struct Control {
    const char* className;
    DWORD style;
};

constexpr Control kControls[] = {
    {VORN_PERCENTBAR_CLASS, VPBS_PERCENT | VPBS_SCALETEXT},
    {VORN_BUTTON_CLASS, VBTS_PICTURE | VBTS_NOTIFY},
    {VORN_UDLR_CLASS, WS_BORDER},
    {VORN_DIAL_CLASS, WS_TABSTOP},
};

TEST(Creation, FailsWithoutMemoryAndLeavesNoBlock) {
    test::HostWindow host;
    const std::uint32_t before = BlockCount();
    for (const auto& [className, style] : kControls) {
        FailAllocationsAfter(0);
        EXPECT_EQ(host.Create(className, style, 0, 0, 50, 20), nullptr) << className;
        FailAllocationsAfter(-1);
        EXPECT_EQ(BlockCount(), before) << className;
    }
}

TEST(Creation, AThousandControlsLeaveNoBlock) {
    test::HostWindow host;
    const std::uint32_t before = BlockCount();
    for (const auto& [className, style] : kControls) {
        for (int i = 0; i < 1000; ++i) {
            HWND control = host.Create(className, style, 0, 0, 50, 20);
            ASSERT_NE(control, nullptr) << className;
            EXPECT_GT(BlockCount(), before) << className;
            DestroyWindow(control);
            ASSERT_EQ(BlockCount(), before) << className;
        }
    }
}

TEST(Creation, ByAClassWithoutRoomForTheRecordFailsCleanly) {
    WNDCLASSA small{};
    small.lpfnWndProc = VORNPctBarWinFn;
    small.hInstance = GetModuleHandleA(nullptr);
    small.lpszClassName = VORN_PERCENTBAR_CLASS; // the same name, the program's own class
    small.cbWndExtra = 0;
    const ATOM atom = RegisterClassA(&small);
    if (atom == 0) {
        GTEST_FAIL() << "the program already has a class of this name";
    }
    test::HostWindow host;
    const std::uint32_t before = BlockCount();
    EXPECT_EQ(host.Create(VORN_PERCENTBAR_CLASS, 0, 0, 0, 50, 20), nullptr);
    EXPECT_EQ(BlockCount(), before);
    UnregisterClassA(VORN_PERCENTBAR_CLASS, GetModuleHandleA(nullptr));
}

} // namespace
} // namespace vorn
