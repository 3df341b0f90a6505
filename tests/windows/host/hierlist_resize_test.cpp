// Outline lists in another size: the screen shows what a repaint of everything would.
#include "tests/windows/support/outline_list.h"

namespace {

using vorn::test::Difference;
using vorn::test::kOutlineHeight;
using vorn::test::kOutlineWidth;
using vorn::test::Message;
using vorn::test::OutlineListTest;
using vorn::test::Pixels;
using vorn::test::PixelsOf;
using vorn::test::PumpMessages;

constexpr SIZE kSizes[] = {{kOutlineWidth + 60, kOutlineHeight},
                           {kOutlineWidth + 20, kOutlineHeight + 30},
                           {kOutlineWidth - 30, kOutlineHeight - 20},
                           {kOutlineWidth, kOutlineHeight}};

class HierListResize : public OutlineListTest {
protected:
    static void ExpectFreshInEachSize(HWND list) {
        PumpMessages();
        for (const SIZE& size : kSizes) {
            const Pixels before = PixelsOf(list);
            SetWindowPos(list, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
            PumpMessages();
            const Pixels shown = PixelsOf(list);
            EXPECT_FALSE(shown == before);
            RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            EXPECT_EQ(Difference(PixelsOf(list), shown), "") << size.cx << " by " << size.cy;
        }
    }
};

TEST_F(HierListResize, TheFocusFrameOfAnEmptyListGoesAlong) {
    HWND list = Create();
    SetFocus(list);
    ExpectFreshInEachSize(list);
}

TEST_F(HierListResize, RowsThatTheParentDrawsGoAlong) {
    host.answer = [](const Message& message) -> std::optional<LRESULT> {
        if (message.message != WM_DRAWITEM) {
            return std::nullopt;
        }
        const auto& row = *reinterpret_cast<const DRAWITEMSTRUCT*>(message.lParam);
        FrameRect(row.hDC, &row.rcItem, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
        return TRUE;
    };
    for (const DWORD style : {LBS_OWNERDRAWFIXED, LBS_OWNERDRAWVARIABLE}) {
        HWND list = Create(style | LBS_HASSTRINGS | WS_VSCROLL);
        AddRows(list, 4);
        ExpectFreshInEachSize(list);
        DestroyWindow(list);
    }
    host.answer = nullptr;
}

TEST_F(HierListResize, PlainRowsAreFreshToo) {
    HWND list = Create(WS_VSCROLL);
    AddRows(list, 4);
    SetFocus(list);
    olbSetCurSel(list, 1);
    ExpectFreshInEachSize(list);
}

} // namespace
