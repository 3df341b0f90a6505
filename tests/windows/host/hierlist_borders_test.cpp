// Borders of outline lists that change, and what the client area becomes then.
#include "tests/windows/support/outline_list.h"
#include "tests/windows/support/system_color.h"

namespace {

using vorn::test::ChangedSystemColor;
using vorn::test::Difference;
using vorn::test::kOutlineHeight;
using vorn::test::kOutlineWidth;
using vorn::test::OutlineListTest;
using vorn::test::Pixels;
using vorn::test::PixelsOf;
using vorn::test::PumpMessages;

constexpr DWORD kBorderBits = WS_BORDER | OLBS_RAISED | OLBS_SUNKEN;

SIZE SizeOf(HWND list) {
    RECT frame{};
    GetWindowRect(list, &frame);
    return {frame.right - frame.left, frame.bottom - frame.top};
}

DWORD StyleOf(HWND list) {
    return static_cast<DWORD>(GetWindowLongA(list, GWL_STYLE));
}

class HierListBorders : public OutlineListTest {
protected:
    static void ExpectSize(HWND list, LONG width, LONG height) {
        EXPECT_EQ(SizeOf(list).cx, width);
        EXPECT_EQ(SizeOf(list).cy, height);
    }
    static void ExpectClient(HWND list, LONG width, LONG height) {
        EXPECT_EQ(ClientOf(list).right, width);
        EXPECT_EQ(ClientOf(list).bottom, height);
    }

    // Paints all of the window, with its frame, in a colour that is no part of it.
    static void PaintOver(HWND list) {
        const HDC context = GetWindowDC(list);
        const RECT all = {0, 0, kOutlineWidth, kOutlineHeight};
        const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
        FillRect(context, &all, brush);
        DeleteObject(brush);
        ReleaseDC(list, context);
    }

    const LONG barWidth = GetSystemMetrics(SM_CXVSCROLL);
    const LONG barHeight = GetSystemMetrics(SM_CYHSCROLL);
};

// ---- Sizes ----

struct Growth {
    DWORD border;
    LONG frame;  // both sides
    LONG shared; // of a bar and the border
};
constexpr Growth kGrowths[] = {{0, 0, 0}, {1, 2, 1}, {2, 4, 0}, {3, 4, 0}};

TEST_F(HierListBorders, SetAgainLeaveTheSizeWithBarsThatAreHidden) {
    for (const auto& [border, frame, shared] : kGrowths) {
        HWND list = Create(WS_VSCROLL | WS_HSCROLL);
        for (int call = 1; call <= 3; ++call) {
            SCOPED_TRACE(call);
            olbSetBorderStyle(list, border);
            ExpectSize(list, kOutlineWidth + frame + barWidth - shared,
                       kOutlineHeight + frame + barHeight - shared);
        }
        DestroyWindow(list);
    }
}

TEST_F(HierListBorders, SetAgainLeaveTheSizeWithABarThatIsShown) {
    for (const auto& [border, frame, shared] : kGrowths) {
        HWND list = Create(WS_VSCROLL);
        AddRows(list, 20);
        for (int call = 1; call <= 3; ++call) {
            SCOPED_TRACE(call);
            olbSetBorderStyle(list, border);
            ExpectSize(list, kOutlineWidth + frame - shared, kOutlineHeight + frame);
            ExpectClient(list, kOutlineWidth - barWidth - shared, kOutlineHeight);
        }
        DestroyWindow(list);
    }
}

TEST_F(HierListBorders, SetOneAfterTheOtherAllKeepTheFirstClientArea) {
    HWND list = Create(WS_VSCROLL);
    AddRows(list, 20);
    for (const std::size_t index : {1u, 3u, 1u, 2u, 0u}) {
        const auto& [border, frame, shared] = kGrowths[index];
        SCOPED_TRACE(border);
        olbSetBorderStyle(list, border);
        ExpectSize(list, kOutlineWidth + frame - shared, kOutlineHeight + frame);
    }
    ExpectClient(list, kOutlineWidth - barWidth, kOutlineHeight);
}

TEST_F(HierListBorders, SetBeforeAndAfterTheBarComesGrowOnce) {
    HWND list = Create(WS_VSCROLL);
    olbSetBorderStyle(list, VORN_BORDER_SUNKEN);
    AddRows(list, 20);
    ExpectClient(list, kOutlineWidth, kOutlineHeight);
    olbSetBorderStyle(list, VORN_BORDER_SUNKEN);
    ExpectSize(list, kOutlineWidth + 4 + barWidth, kOutlineHeight + 4);
    ExpectClient(list, kOutlineWidth, kOutlineHeight);
}

TEST_F(HierListBorders, KeepTheClientAreaThatTheHostHasGivenMeanwhile) {
    HWND list = Create(WS_VSCROLL);
    olbSetBorderStyle(list, VORN_BORDER_LINE);
    SetWindowPos(list, nullptr, 0, 0, 200, 150, SWP_NOMOVE | SWP_NOZORDER);
    olbSetBorderStyle(list, VORN_BORDER_RAISED);
    ExpectSize(list, 198 + 4 + barWidth, 148 + 4);
}

// ---- Styles ----

TEST_F(HierListBorders, ComeAndGoWithTheStyleThatAHostChanges) {
    HWND list = Create(OLBS_SUNKEN);
    const struct {
        WORD style;
        LONG border;
    } cases[] = {{OLBS_RAISED | LBS_NOTIFY, 2}, {LBS_NOTIFY, 0}, {OLBS_SUNKEN, 3}, {0, 0}};
    for (const auto& [style, border] : cases) {
        SCOPED_TRACE(border);
        olbChangeStyle(list, style);
        EXPECT_EQ(olbGetBorderStyle(list), border);
        EXPECT_EQ(StyleOf(list) & 0xFFFF, style);
        const LONG frame = border != 0 ? 4 : 0;
        ExpectSize(list, kOutlineWidth, kOutlineHeight);
        ExpectClient(list, kOutlineWidth - frame, kOutlineHeight - frame);
    }
}

TEST_F(HierListBorders, ChangedByTheStyleAreDrawn) {
    HWND list = Create(OLBS_SUNKEN);
    olbChangeStyle(list, OLBS_RAISED);
    PumpMessages();
    const Pixels shown = PixelsOf(list);
    HWND raised = Create(OLBS_RAISED);
    EXPECT_EQ(Difference(PixelsOf(raised), shown), "");
}

TEST_F(HierListBorders, OfTheStyleTakeTheLinesPlace) {
    HWND list = Create(WS_BORDER);
    olbChangeStyle(list, LBS_NOTIFY);
    EXPECT_EQ(olbGetBorderStyle(list), 1);
    ExpectClient(list, kOutlineWidth - 2, kOutlineHeight - 2);
    olbChangeStyle(list, OLBS_SUNKEN | OLBS_RAISED);
    EXPECT_EQ(olbGetBorderStyle(list), 3);
    EXPECT_EQ(StyleOf(list) & kBorderBits, DWORD{OLBS_SUNKEN});
    ExpectClient(list, kOutlineWidth - 4, kOutlineHeight - 4);
}

TEST_F(HierListBorders, FollowAHostsOwnChangeOfTheStyle) {
    HWND list = Create(OLBS_SUNKEN);
    SetWindowLongA(list, GWL_STYLE, static_cast<LONG>(StyleOf(list) & ~DWORD{OLBS_SUNKEN}));
    SetWindowPos(list, nullptr, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_FRAMECHANGED);
    EXPECT_EQ(olbGetBorderStyle(list), 0);
    ExpectClient(list, kOutlineWidth, kOutlineHeight);
}

// ---- Colours ----

TEST_F(HierListBorders, TakeNewSystemColors) {
    for (const DWORD style : {OLBS_RAISED, OLBS_SUNKEN}) {
        HWND list = Create(style);
        const ChangedSystemColor light(COLOR_BTNHIGHLIGHT, RGB(10, 200, 30));
        const ChangedSystemColor dark(COLOR_BTNSHADOW, RGB(200, 10, 30));
        PumpMessages();
        PaintOver(list); // the system itself may have had all windows repainted
        SendMessageA(list, WM_SYSCOLORCHANGE, 0, 0);
        PumpMessages();
        const Pixels shown = PixelsOf(list);
        const RECT all = {0, 0, kOutlineWidth, kOutlineHeight};
        EXPECT_GT(shown.Count(all, RGB(10, 200, 30)), 100) << "two edges of the frame";
        EXPECT_GT(shown.Count(all, RGB(200, 10, 30)), 100);
        RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
        EXPECT_EQ(Difference(PixelsOf(list), shown), "");
        DestroyWindow(list);
    }
}

} // namespace
