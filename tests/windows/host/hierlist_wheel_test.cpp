// The wheels of the mouse, and the thumb of a scroll bar that it drags.
#include "tests/windows/support/input.h"
#include "tests/windows/support/outline_list.h"
#include "tests/windows/support/spy.h"

namespace {

using vorn::test::kOutlineHeight;
using vorn::test::kOutlineWidth;
using vorn::test::Message;
using vorn::test::MoveMouse;
using vorn::test::OutlineListTest;
using vorn::test::PumpMessages;
using vorn::test::Spy;

constexpr int kRowsInView = 5;

// One of the system's settings of the wheels while a test changes it.
class ChangedWheel {
public:
    ChangedWheel(UINT get, UINT set, UINT value) : set_(set) {
        SystemParametersInfoA(get, 0, &old_, 0);
        SystemParametersInfoA(set, value, nullptr, 0);
    }
    ~ChangedWheel() { SystemParametersInfoA(set_, old_, nullptr, 0); }
    ChangedWheel(const ChangedWheel&) = delete;
    ChangedWheel& operator=(const ChangedWheel&) = delete;

private:
    UINT set_;
    UINT old_ = 0;
};

// How far the first row is scrolled to the left.
LONG OffsetOf(HWND list) {
    RECT row{};
    olbGetItemRect(list, 0, &row);
    return -row.left;
}

class HierListWheel : public OutlineListTest {
protected:
    static void Turn(HWND list, UINT message, int by) {
        SendMessageA(list, message, MAKEWPARAM(0, static_cast<WORD>(by)), 0);
    }
    static LONG TopAfter(HWND list, int by) {
        Turn(list, WM_MOUSEWHEEL, by);
        return olbGetTopIndex(list);
    }
    static LONG OffsetAfter(HWND list, int by) {
        Turn(list, WM_MOUSEHWHEEL, by);
        return OffsetOf(list);
    }
    static LONG CharacterWidth() {
        TEXTMETRICA metrics{};
        HDC context = GetDC(nullptr);
        SelectObject(context, GetStockObject(SYSTEM_FONT));
        GetTextMetricsA(context, &metrics);
        ReleaseDC(nullptr, context);
        return metrics.tmAveCharWidth;
    }
};

TEST_F(HierListWheel, TurnsPagesWhenTheSystemIsSetSo) {
    const ChangedWheel pages(SPI_GETWHEELSCROLLLINES, SPI_SETWHEELSCROLLLINES, WHEEL_PAGESCROLL);
    HWND list = Create(WS_VSCROLL);
    AddRows(list, 52);
    EXPECT_EQ(TopAfter(list, -WHEEL_DELTA), kRowsInView);
    EXPECT_EQ(TopAfter(list, -WHEEL_DELTA / 2), kRowsInView) << "half a notch";
    EXPECT_EQ(TopAfter(list, -WHEEL_DELTA / 2), 2 * kRowsInView);
    EXPECT_EQ(TopAfter(list, 2 * WHEEL_DELTA), 0);
    EXPECT_EQ(TopAfter(list, -20 * WHEEL_DELTA), 52 - kRowsInView);
    EXPECT_EQ(TopAfter(list, WHEEL_DELTA), 52 - 2 * kRowsInView);
}

TEST_F(HierListWheel, TurnsLinesOfAnyNumber) {
    const ChangedWheel lines(SPI_GETWHEELSCROLLLINES, SPI_SETWHEELSCROLLLINES, 7);
    HWND list = Create(WS_VSCROLL);
    AddRows(list, 52);
    EXPECT_EQ(TopAfter(list, -WHEEL_DELTA), 7);
    const ChangedWheel none(SPI_GETWHEELSCROLLLINES, SPI_SETWHEELSCROLLLINES, 0);
    EXPECT_EQ(TopAfter(list, -WHEEL_DELTA), 7) << "the system is set not to scroll";
}

TEST_F(HierListWheel, TheOtherOneScrollsSidewaysByCharacters) {
    const ChangedWheel three(SPI_GETWHEELSCROLLCHARS, SPI_SETWHEELSCROLLCHARS, 3);
    HWND list = Create(WS_HSCROLL);
    AddRows(list, 1);
    olbSetHorizontalExtent(list, 1000);
    const LONG width = CharacterWidth();
    EXPECT_EQ(OffsetAfter(list, WHEEL_DELTA), 3 * width);
    EXPECT_EQ(OffsetAfter(list, 2 * WHEEL_DELTA), 9 * width);
    EXPECT_EQ(OffsetAfter(list, -WHEEL_DELTA / 3), 8 * width) << "a third of a notch";
    EXPECT_EQ(OffsetAfter(list, 100 * WHEEL_DELTA), 1000 - kOutlineWidth);
    EXPECT_EQ(OffsetAfter(list, -100 * WHEEL_DELTA), 0);
    EXPECT_EQ(olbGetTopIndex(list), 0);
}

TEST_F(HierListWheel, TheOtherOneLeavesAListThatFitsAlone) {
    HWND list = Create(WS_VSCROLL | WS_HSCROLL);
    AddRows(list, 52);
    EXPECT_EQ(OffsetAfter(list, WHEEL_DELTA), 0);
    EXPECT_EQ(olbGetTopIndex(list), 0);
}

// ---- The thumb ----

class HierListThumb : public OutlineListTest {
protected:
    static constexpr int kMany = 70'000;

    static void Use(DWORD flags) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flags;
        SendInput(1, &input, sizeof input);
    }

    // Presses the bar's thumb where it is at the top and drags it so far down; the bar's own loop
    // takes the messages until the button is up, so all of them are on their way before it begins.
    static void DragThumb(HWND list, int down) {
        const int x = kOutlineWidth - GetSystemMetrics(SM_CXVSCROLL) / 2;
        const int y = GetSystemMetrics(SM_CYVSCROLL) + 3;
        MoveMouse(list, x, y);
        POINT end = {x, y + down};
        ClientToScreen(list, &end);
        Use(MOUSEEVENTF_LEFTDOWN);
        SetCursorPos(end.x, end.y);
        Use(MOUSEEVENTF_LEFTUP);
        vorn::test::PumpFor(3000, [&] { return GetAsyncKeyState(VK_LBUTTON) >= 0; });
        PumpMessages();
    }
};

TEST_F(HierListThumb, IsDraggedToAnyRow) {
    HWND list = Create(WS_VSCROLL);
    AddRows(list, kMany);
    const Spy spy(list);
    DragThumb(list, kOutlineHeight);
    EXPECT_EQ(olbGetTopIndex(list), kMany - kRowsInView) << "the last page";
    const std::vector<Message> scrolled = spy.Received(WM_VSCROLL);
    ASSERT_FALSE(scrolled.empty()) << "the thumb was not dragged";
    bool tracked = false;
    for (const Message& message : scrolled) {
        tracked |= LOWORD(message.wParam) == SB_THUMBTRACK &&
                   HIWORD(message.wParam) == LOWORD(kMany - kRowsInView);
    }
    EXPECT_TRUE(tracked) << "the message has the position's lower half";
}

TEST_F(HierListThumb, IsDraggedBetweenTheRowsOfThePixels) {
    HWND list = Create(WS_VSCROLL);
    AddRows(list, kMany);
    LONG before = 0;
    for (const int down : {5, 10, 20, 30, 40}) {
        olbSetTopIndex(list, 0);
        WORD sent = 0;
        const Spy spy(list);
        DragThumb(list, down);
        const std::vector<Message> scrolled = spy.Received(WM_VSCROLL);
        for (const Message& message : scrolled) {
            sent = LOWORD(message.wParam) == SB_THUMBTRACK ? HIWORD(message.wParam) : sent;
        }
        EXPECT_EQ(LOWORD(olbGetTopIndex(list)), sent) << down;
        EXPECT_GT(olbGetTopIndex(list), before) << down << " pixels are further on";
        before = olbGetTopIndex(list);
    }
}

} // namespace
