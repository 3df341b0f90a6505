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
    {VORN_HIERLIST_CLASS, WS_VSCROLL | OLBS_SUNKEN},
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

TEST(Creation, OfAComboBoxWithoutMemoryGivesThePlainOne) {
    test::HostWindow host;
    const std::uint32_t before = BlockCount();
    FailAllocationsAfter(0);
    HWND combo = host.Create(VORN_COMBOBOX_CLASS, CBS_DROPDOWNLIST, 0, 0, 50, 90);
    FailAllocationsAfter(-1);
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(GetPropA(combo, "VORNComboBoxProp"), nullptr);
    EXPECT_EQ(SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("one")), 0);
    EXPECT_EQ(SendMessageA(combo, CB_GETCOUNT, 0, 0), 1);
    SetFocus(host.window());
    SetFocus(combo);
    EXPECT_EQ(SendMessageA(combo, VCBM_GETPREVFOCUS, 0, 0), 0);
    DestroyWindow(combo);
    EXPECT_EQ(BlockCount(), before);
}

TEST(Creation, OfComboBoxesLeavesNoBlock) {
    test::HostWindow host;
    const std::uint32_t before = BlockCount();
    for (int i = 0; i < 300; ++i) {
        HWND combo = host.Create(VORN_COMBOBOX_CLASS, CBS_DROPDOWN, 0, 0, 50, 90);
        ASSERT_EQ(BlockCount(), before + 1);
        DestroyWindow(combo);
        ASSERT_EQ(BlockCount(), before);
    }
}

// A host's own procedure that refuses what the combo box allows.
int refusals = 0;

LRESULT CALLBACK RefuseCombo(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = VORNCBFunction(window, message, wParam, lParam);
    if (message != WM_NCCREATE) {
        return result;
    }
    EXPECT_NE(GetPropA(window, "VORNComboBoxProp"), nullptr);
    ++refusals;
    return 0;
}

TEST(Creation, ARefusedComboBoxLeavesNoBlock) {
    WNDCLASSA own{};
    GetClassInfoA(nullptr, VORN_COMBOBOX_CLASS, &own);
    own.lpfnWndProc = RefuseCombo;
    own.hInstance = GetModuleHandleA(nullptr);
    own.lpszClassName = "RefusedCombo";
    RegisterClassA(&own);
    test::HostWindow host;
    const std::uint32_t before = BlockCount();
    refusals = 0;
    EXPECT_EQ(host.Create("RefusedCombo", CBS_DROPDOWN, 0, 0, 50, 90), nullptr);
    EXPECT_EQ(refusals, 1);
    EXPECT_EQ(BlockCount(), before);
    UnregisterClassA("RefusedCombo", GetModuleHandleA(nullptr));
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
