// Scroll bars, scrolling, borders and sizes of outline lists.
#include "tests/windows/support/outline_list.h"
#include "tests/windows/support/spy.h"

namespace {

using vorn::test::Difference;
using vorn::test::kOutlineHeight;
using vorn::test::kOutlineWidth;
using vorn::test::Message;
using vorn::test::OutlineListTest;
using vorn::test::Pixels;
using vorn::test::PixelsOf;
using vorn::test::PumpMessages;
using vorn::test::Spy;

int BarWidth() {
    return GetSystemMetrics(SM_CXVSCROLL);
}

int BarHeight() {
    return GetSystemMetrics(SM_CYHSCROLL);
}

struct Bar {
    int min, max, page, position;
    friend bool operator==(const Bar&, const Bar&) = default;
};

std::ostream& operator<<(std::ostream& out, const Bar& bar) {
    return out << bar.min << ".." << bar.max << " page " << bar.page << " at " << bar.position;
}

Bar BarOf(HWND list, int which) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(list, which, &info);
    return {info.nMin, info.nMax, static_cast<int>(info.nPage), info.nPos};
}

bool Shows(HWND list, DWORD bar) {
    return (static_cast<DWORD>(GetWindowLongA(list, GWL_STYLE)) & bar) != 0;
}

void Scroll(HWND list, WORD code, WORD position = 0) {
    SendMessageA(list, WM_VSCROLL, MAKEWPARAM(code, position), 0);
}

class HierListScroll : public OutlineListTest {
protected:
    // Whether the screen shows what a repaint of everything would.
    static std::string StaleParts(HWND list) {
        const Pixels shown = PixelsOf(list);
        RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        return Difference(PixelsOf(list), shown);
    }
};

TEST_F(HierListScroll, BarsComeAndGoWithTheRows) {
    HWND list = Create(WS_VSCROLL | WS_HSCROLL);
    EXPECT_FALSE(Shows(list, WS_VSCROLL | WS_HSCROLL)) << "nothing to scroll";
    EXPECT_EQ(ClientOf(list).right, kOutlineWidth);
    for (int i = 0; i < 5; ++i) {
        olbAddString(list, "x");
    }
    EXPECT_FALSE(Shows(list, WS_VSCROLL)) << "five rows of 18 fit into 100";
    HOLBITEM parent = olbAddChildStringEx(list, nullptr, "parent");
    EXPECT_TRUE(Shows(list, WS_VSCROLL));
    EXPECT_EQ(ClientOf(list).right, kOutlineWidth - BarWidth());
    EXPECT_EQ(BarOf(list, SB_VERT), (Bar{0, 5, 5, 0}));
    for (int i = 0; i < 10; ++i) {
        olbAddChildStringEx(list, parent, "child");
    }
    EXPECT_EQ(BarOf(list, SB_VERT), (Bar{0, 5, 5, 0})) << "hidden items are no rows";
    olbOpenItem(list, 5);
    EXPECT_EQ(BarOf(list, SB_VERT), (Bar{0, 15, 5, 0}));
    olbCloseItem(list, 5);
    EXPECT_EQ(BarOf(list, SB_VERT), (Bar{0, 5, 5, 0}));
    EXPECT_FALSE(Shows(list, WS_HSCROLL));
}

TEST_F(HierListScroll, UnwantedBarsNeverCome) {
    HWND list = Create();
    AddRows(list, 50);
    EXPECT_FALSE(Shows(list, WS_VSCROLL | WS_HSCROLL));
    Scroll(list, SB_BOTTOM);
    EXPECT_EQ(StaleParts(list), "") << "but scrolled it is";
}

TEST_F(HierListScroll, DisabledBarsStayWithTheStyle) {
    HWND list = Create(WS_VSCROLL | LBS_DISABLENOSCROLL);
    EXPECT_TRUE(Shows(list, WS_VSCROLL));
    EXPECT_EQ(ClientOf(list).right, kOutlineWidth - BarWidth());
    AddRows(list, 20);
    EXPECT_EQ(BarOf(list, SB_VERT), (Bar{0, 19, 5, 0}));
}

TEST_F(HierListScroll, MessagesScroll) {
    HWND list = Create(WS_VSCROLL);
    AddRows(list, 20);
    const auto position = [&] { return BarOf(list, SB_VERT).position; };
    Scroll(list, SB_LINEDOWN);
    EXPECT_EQ(position(), 1);
    Scroll(list, SB_PAGEDOWN);
    EXPECT_EQ(position(), 6);
    Scroll(list, SB_PAGEUP);
    EXPECT_EQ(position(), 1);
    Scroll(list, SB_LINEUP);
    Scroll(list, SB_LINEUP);
    EXPECT_EQ(position(), 0);
    Scroll(list, SB_BOTTOM);
    EXPECT_EQ(position(), 15);
    Scroll(list, SB_LINEDOWN);
    Scroll(list, SB_PAGEDOWN);
    EXPECT_EQ(position(), 15) << "the last page";
    Scroll(list, SB_TOP);
    EXPECT_EQ(position(), 0);
    Scroll(list, SB_THUMBTRACK, 7);
    EXPECT_EQ(position(), 7);
    Scroll(list, SB_THUMBPOSITION, 19);
    EXPECT_EQ(position(), 15);
    Scroll(list, SB_ENDSCROLL, 3);
    EXPECT_EQ(position(), 15);
}

TEST_F(HierListScroll, TheScreenShowsWhatARepaintWould) {
    for (const bool lines : {false, true}) {
        HWND list = Create(WS_VSCROLL);
        olbShowLines(list, lines);
        olbEnableMicroBitmaps(list, lines);
        AddRows(list, 20);
        const Pixels top = PixelsOf(list);
        for (const int code : {SB_LINEDOWN, SB_LINEDOWN, SB_PAGEDOWN, SB_LINEUP, SB_PAGEUP}) {
            Scroll(list, static_cast<WORD>(code));
            EXPECT_EQ(StaleParts(list), "") << code;
            EXPECT_NE(Difference(top, PixelsOf(list)), "") << code;
            if (code == SB_PAGEUP) {
                break;
            }
        }
        DestroyWindow(list);
    }
}

TEST_F(HierListScroll, TheViewIsPulledBackByAScrollMessage) {
    HWND list = Create(WS_VSCROLL);
    HOLBITEM parent = olbAddChildStringEx(list, nullptr, "parent");
    for (int i = 0; i < 19; ++i) {
        olbAddChildStringEx(list, parent, "child");
    }
    olbOpenItem(list, 0);
    for (int i = 0; i < 3; ++i) {
        olbAddString(list, "behind");
    }
    Scroll(list, SB_BOTTOM);
    EXPECT_EQ(BarOf(list, SB_VERT), (Bar{0, 22, 5, 18}));
    const Spy spy(list);
    olbCloseItem(list, 0);
    const std::vector<Message> scrolled = spy.Received(WM_VSCROLL);
    ASSERT_EQ(scrolled.size(), 1u);
    EXPECT_EQ(scrolled[0].wParam, static_cast<WPARAM>(MAKELONG(SB_THUMBTRACK, 0)));
    EXPECT_EQ(BarOf(list, SB_VERT), (Bar{0, 0, 0, 0})) << "four rows fit";
    EXPECT_FALSE(Shows(list, WS_VSCROLL));
    EXPECT_EQ(StaleParts(list), "");
}

TEST_F(HierListScroll, AHigherWindowPullsTheViewBackToo) {
    HWND list = Create(WS_VSCROLL);
    AddRows(list, 20);
    Scroll(list, SB_BOTTOM);
    SetWindowPos(list, nullptr, 0, 0, kOutlineWidth, 10 * 18 + 9, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(BarOf(list, SB_VERT), (Bar{0, 19, 10, 10}));
    SetWindowPos(list, nullptr, 0, 0, kOutlineWidth, 400, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_FALSE(Shows(list, WS_VSCROLL));
    EXPECT_EQ(StaleParts(list), "");
}

TEST_F(HierListScroll, TheWheelScrollsByTheSystemsSetting) {
    HWND list = Create(WS_VSCROLL);
    AddRows(list, 100);
    UINT lines = 0;
    SystemParametersInfoA(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const auto turn = [&](int by) {
        SendMessageA(list, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(by)), 0);
        return BarOf(list, SB_VERT).position;
    };
    EXPECT_EQ(turn(-120), static_cast<int>(lines));
    EXPECT_EQ(turn(-240), static_cast<int>(3 * lines));
    EXPECT_EQ(turn(120), static_cast<int>(2 * lines));
    EXPECT_EQ(turn(1200), 0);
}

TEST_F(HierListScroll, ColumnsScrollSideways) {
    HWND list = Create(WS_VSCROLL | WS_HSCROLL | LBS_MULTICOLUMN, 300, 90 + BarHeight());
    AddRows(list, 50); // ten columns of five
    EXPECT_FALSE(Shows(list, WS_VSCROLL));
    EXPECT_TRUE(Shows(list, WS_HSCROLL));
    const Bar bar = BarOf(list, SB_HORZ);
    const int column = (bar.max + 1) / 10;
    EXPECT_EQ(bar, (Bar{0, 10 * column - 1, 300, 0}));
    const auto position = [&](WORD code, WORD to = 0) {
        SendMessageA(list, WM_HSCROLL, MAKEWPARAM(code, to), 0);
        EXPECT_EQ(StaleParts(list), "") << code;
        return BarOf(list, SB_HORZ).position;
    };
    EXPECT_EQ(position(SB_LINERIGHT), column);
    EXPECT_EQ(position(SB_THUMBTRACK, 77), 77);
    EXPECT_EQ(position(SB_RIGHT), 10 * column - 300);
    EXPECT_EQ(position(SB_LEFT), 0);
    SendMessageA(list, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0);
    EXPECT_EQ(BarOf(list, SB_HORZ).position, column);
}

TEST_F(HierListScroll, NothingShowsWhileDrawingIsOff) {
    HWND list = Create(WS_VSCROLL);
    const Pixels empty = PixelsOf(list);
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    const Spy spy(list);
    for (int i = 0; i < 1000; ++i) {
        olbAddString(list, "x");
    }
    PumpMessages();
    EXPECT_EQ(spy.messages.size(), 0u) << "neither painted nor resized";
    EXPECT_EQ(Difference(empty, PixelsOf(list)), "");
    EXPECT_FALSE(Shows(list, WS_VSCROLL));
    InvalidateRect(list, nullptr, FALSE);
    UpdateWindow(list);
    EXPECT_EQ(Difference(empty, PixelsOf(list)), "") << "not even then";
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    UpdateWindow(list);
    EXPECT_EQ(BarOf(list, SB_VERT), (Bar{0, 999, 5, 0}));
    EXPECT_NE(Difference(empty, PixelsOf(list)), "");
    EXPECT_EQ(StaleParts(list), "");
}

TEST_F(HierListScroll, UnderNoRedrawTheBarsAreRightWhenPainted) {
    HWND list = Create(WS_VSCROLL | LBS_NOREDRAW);
    for (int i = 0; i < 20; ++i) {
        olbAddString(list, "x");
    }
    EXPECT_FALSE(GetUpdateRect(list, nullptr, FALSE));
    EXPECT_FALSE(Shows(list, WS_VSCROLL));
    InvalidateRect(list, nullptr, FALSE);
    UpdateWindow(list);
    EXPECT_EQ(BarOf(list, SB_VERT), (Bar{0, 19, 5, 0}));
    EXPECT_TRUE(Shows(list, WS_VSCROLL));
}

TEST_F(HierListScroll, ThumbsGoBeyondSixteenBits) {
    HWND list = Create(WS_VSCROLL);
    AddRows(list, 70000);
    Scroll(list, SB_BOTTOM);
    EXPECT_EQ(BarOf(list, SB_VERT), (Bar{0, 69999, 5, 69995}));
    Scroll(list, SB_THUMBTRACK, 9);
    EXPECT_EQ(BarOf(list, SB_VERT).position, 9) << "a program's message has 16 bits";
}

// ---- Borders ----

struct BorderCase {
    DWORD style;
    int border;
    int width; // on each side
};

TEST_F(HierListScroll, StylesAreBorders) {
    const BorderCase cases[] = {
        {0, 0, 0},
        {WS_BORDER, 1, 1},
        {OLBS_RAISED, 2, 2},
        {OLBS_SUNKEN, 3, 2},
        {OLBS_SUNKEN | OLBS_RAISED | WS_BORDER, 3, 2},
    };
    for (const auto& [style, border, width] : cases) {
        HWND list = Create(style);
        EXPECT_EQ(olbGetBorderStyle(list), border);
        EXPECT_EQ(ClientOf(list).right, kOutlineWidth - 2 * width);
        EXPECT_EQ(ClientOf(list).bottom, kOutlineHeight - 2 * width);
        DestroyWindow(list);
    }
}

TEST_F(HierListScroll, ANewBorderKeepsTheClientArea) {
    HWND list = Create();
    const struct {
        DWORD border;
        int growth;
        DWORD style;
    } cases[] = {{1, 2, WS_BORDER}, {2, 4, OLBS_RAISED}, {3, 4, OLBS_SUNKEN}, {0, 0, 0}};
    for (const auto& [border, growth, style] : cases) {
        EXPECT_EQ(olbSetBorderStyle(list, border), 1);
        RECT window{};
        GetWindowRect(list, &window);
        EXPECT_EQ(window.right - window.left, kOutlineWidth + growth);
        EXPECT_EQ(window.bottom - window.top, kOutlineHeight + growth);
        EXPECT_EQ(ClientOf(list).right, kOutlineWidth);
        EXPECT_EQ(ClientOf(list).bottom, kOutlineHeight);
        EXPECT_EQ(static_cast<DWORD>(GetWindowLongA(list, GWL_STYLE)) &
                      (WS_BORDER | OLBS_RAISED | OLBS_SUNKEN),
                  style);
        EXPECT_EQ(olbGetBorderStyle(list), static_cast<LONG>(border));
    }
}

TEST_F(HierListScroll, ANewBorderCountsWantedBars) {
    const struct {
        DWORD border;
        int width, height;
    } cases[] = {{1, 2 + BarWidth() - 1, 2}, {3, 4 + BarWidth(), 4}};
    for (const auto& [border, width, height] : cases) {
        HWND list = Create(WS_VSCROLL);
        olbSetBorderStyle(list, border);
        RECT window{};
        GetWindowRect(list, &window);
        EXPECT_EQ(window.right - window.left, kOutlineWidth + width);
        EXPECT_EQ(window.bottom - window.top, kOutlineHeight + height);
        DestroyWindow(list);
    }
}

TEST_F(HierListScroll, FramesAreAroundClientAreaAndBars) {
    HWND list = Create(WS_VSCROLL | OLBS_RAISED);
    olbSetColor(list, OLBC_LIGHTEDGE, RGB(1, 0, 0), FALSE);
    olbSetColor(list, OLBC_DARKEDGE, RGB(2, 0, 0), FALSE);
    olbSetColor(list, OLBC_FACE, RGB(3, 0, 0), TRUE);
    AddRows(list, 20);
    Pixels pixels = PixelsOf(list);
    const COLORREF frame = GetSysColor(COLOR_WINDOWFRAME);
    const int right = kOutlineWidth - 1;
    EXPECT_EQ(pixels.At(0, 50), RGB(3, 0, 0)) << "the face outside at the left";
    EXPECT_EQ(pixels.At(1, 50), RGB(1, 0, 0)) << "the light edge inside";
    EXPECT_EQ(pixels.At(right, 50), frame) << "the window frame outside at the right";
    EXPECT_EQ(pixels.At(right - 1, 50), RGB(2, 0, 0)) << "the dark edge inside";
    olbSetBorderStyle(list, VORN_BORDER_NONE);
    olbSetBorderStyle(list, VORN_BORDER_LINE);
    pixels = PixelsOf(list);
    EXPECT_EQ(pixels.At(0, 50), frame);
    EXPECT_EQ(pixels.At(50, 0), frame);
    EXPECT_EQ(pixels.At(pixels.width - 1, 50), frame);
    EXPECT_EQ(pixels.At(50, pixels.height - 1), frame);
}

// ---- Windows that are no outline lists ----

TEST_F(HierListScroll, OtherWindowsAreRefused) {
    HWND destroyed = Create();
    DestroyWindow(destroyed);
    for (HWND window : {HWND{nullptr}, host.window(), destroyed}) {
        EXPECT_EQ(olbAddString(window, "x"), -1);
        EXPECT_EQ(olbAddChildString(window, 0, "x"), -1);
        EXPECT_EQ(olbAddChildStringEx(window, nullptr, "x"), OLB_NOITEM);
        olbOpenItem(window, 0);
        olbCloseItem(window, 0);
        EXPECT_EQ(olbShowLines(window, TRUE), -1);
        EXPECT_EQ(olbEnableMicroBitmaps(window, TRUE), -1);
        EXPECT_EQ(olbEnableBitmaps(window, TRUE), -1);
        EXPECT_EQ(olbSetFullSelectRect(window, TRUE), -1);
        EXPECT_EQ(olbSetIndent(window, 5), -1);
        EXPECT_EQ(olbGetIndent(window), -1);
        EXPECT_EQ(olbSetBitmapIndexEx(window, nullptr, 5), -1);
        EXPECT_EQ(olbSetColor(window, 2, 0x123456, TRUE), 0u);
        EXPECT_EQ(olbSetBorderStyle(window, 1), 0);
        EXPECT_EQ(olbGetBorderStyle(window), -1);
    }
}

} // namespace
