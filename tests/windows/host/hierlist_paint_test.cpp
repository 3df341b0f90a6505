// What outline lists look like, pixel by pixel.
#include "tests/windows/support/objects.h"
#include "tests/windows/support/outline_list.h"
#include "tests/windows/support/system_color.h"

#include <vector>

namespace {

using vorn::test::ChangedSystemColor;
using vorn::test::Difference;
using vorn::test::kOutlineHeight;
using vorn::test::kOutlineWidth;
using vorn::test::kRowHeight;
using vorn::test::OutlineListTest;
using vorn::test::Pixels;
using vorn::test::PixelsOf;
using vorn::test::PumpMessages;

constexpr COLORREF kTransparent = RGB(255, 0, 255);

// A bitmap of the library's, read pixel by pixel.
class Strip {
public:
    explicit Strip(WORD id)
        : bitmap_(LoadBitmapA(GetModuleHandleA("VORN32.dll"), MAKEINTRESOURCEA(id))),
          context_(CreateCompatibleDC(nullptr)), previous_(SelectObject(context_, bitmap_)) {
        EXPECT_NE(bitmap_, nullptr);
    }
    ~Strip() {
        SelectObject(context_, previous_);
        DeleteDC(context_);
        DeleteObject(bitmap_);
    }
    Strip(const Strip&) = delete;
    Strip& operator=(const Strip&) = delete;

    // Copies what is not transparent of a piece that begins at `from`.
    void Put(HDC target, int x, int y, int from, int width, int height) const {
        for (int row = 0; row < height; ++row) {
            for (int column = 0; column < width; ++column) {
                const COLORREF color = GetPixel(context_, from + column, row);
                if (color != kTransparent) {
                    SetPixel(target, x + column, y + row, color);
                }
            }
        }
    }

private:
    HBITMAP bitmap_;
    HDC context_;
    HGDIOBJ previous_;
};

// Dots at the pixels whose coordinates add up to an even number.
void Dots(HDC context, int left, int top, int right, int bottom, COLORREF color) {
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            if ((x + y) % 2 == 0) {
                SetPixel(context, x, y, color);
            }
        }
    }
}

class HierListPaint : public OutlineListTest {};

TEST_F(HierListPaint, AnEmptyListIsItsBackground) {
    HWND list = Create();
    EXPECT_EQ(Difference(Expected(kOutlineWidth, kOutlineHeight, [](HDC) {}), PixelsOf(list)), "");
}

TEST_F(HierListPaint, ARowIsPictureAndText) {
    HWND list = Create();
    EXPECT_EQ(olbAddString(list, "Alpha"), 0);
    EXPECT_EQ(olbAddString(list, "R/D"), 1);
    const Strip strip(217);
    const Pixels expected = Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) {
        for (int row = 0; row < 2; ++row) {
            strip.Put(context, 0, row * kRowHeight + 1, 16, 16, 16);
        }
        Write(context, "Alpha", 19, 0);
        Write(context, "R/D", 19, 1);
    });
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
}

TEST_F(HierListPaint, WhatFollowsAnAmpersandIsUnderlined) {
    HWND list = Create();
    olbEnableBitmaps(list, FALSE);
    olbSetColor(list, OLBC_TEXT, RGB(0, 0, 0), FALSE);
    olbAddString(list, "R&D");
    olbAddString(list, "R&&D");
    const Pixels expected = Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) {
        for (int row = 0; row < 2; ++row) {
            RECT area = {0, row * kRowHeight, kOutlineWidth, (row + 1) * kRowHeight};
            DrawTextA(context, row == 0 ? "R&D" : "R&&D", -1, &area, DT_SINGLELINE | DT_VCENTER);
        }
    });
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
    olbDeleteString(list, 0);
    olbInsertString(list, 0, "RD");
    EXPECT_NE(Difference(expected, PixelsOf(list)), "") << "the line is missed";
}

// Room above and below that is no even number of pixels is divided as the system does it.
TEST_F(HierListPaint, TextsStandAsHighAsTheSystemCentresThem) {
    HWND list = Create();
    olbEnableBitmaps(list, FALSE);
    olbAddString(list, "Alpha");
    olbAddString(list, "a\tb");
    const int stops[] = {16};
    olbSetTabStops(list, 1, stops);
    for (const int fontHeight : {11, 12, 13, 14, 15}) {
        HFONT font = CreateFontA(fontHeight, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET,
                                 0, 0, 0, DEFAULT_PITCH, "Arial");
        SendMessageA(list, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
        const int height = static_cast<int>(SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
        const Pixels expected = Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) {
            SelectObject(context, font);
            const auto write = [&](const char* text, int left, int row) {
                RECT area = {left, row * height, kOutlineWidth, (row + 1) * height};
                DrawTextA(context, text, -1, &area, DT_SINGLELINE | DT_VCENTER);
            };
            write("Alpha", 0, 0);
            write("a", 0, 1);
            write("b", 16 * LOWORD(GetDialogBaseUnits()) / 4, 1);
        });
        EXPECT_EQ(Difference(expected, PixelsOf(list)), "") << fontHeight;
        SendMessageA(list, WM_SETFONT, 0, FALSE);
        DeleteObject(font);
    }
}

TEST_F(HierListPaint, WithoutPicturesTextBeginsAtTheContent) {
    HWND list = Create();
    EXPECT_EQ(olbEnableBitmaps(list, FALSE), 1);
    olbAddString(list, "Alpha");
    EXPECT_EQ(olbAddChildString(list, 0, "Beta"), 0) << "hidden: the first of its siblings";
    olbOpenItem(list, 0);
    const Pixels expected = Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) {
        Write(context, "Alpha", 0, 0);
        Write(context, "Beta", 20, 1);
    });
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
    EXPECT_EQ(olbEnableBitmaps(list, TRUE), 0);
}

TEST_F(HierListPaint, ATreeHasLinesAndBoxes) {
    HWND list = Create();
    olbEnableBitmaps(list, FALSE);
    EXPECT_EQ(olbShowLines(list, TRUE), 0);
    EXPECT_EQ(olbEnableMicroBitmaps(list, TRUE), 0);
    olbSetColor(list, OLBC_LINES, RGB(10, 20, 200), FALSE);
    HOLBITEM open = olbAddChildStringEx(list, nullptr, "A");
    olbAddChildStringEx(list, open, "b");
    HOLBITEM closed = olbAddChildStringEx(list, open, "c");
    olbAddChildStringEx(list, closed, "hidden");
    olbAddString(list, "D");
    olbOpenItem(list, 0);

    const Strip plus(214);
    const Strip minus(215);
    const Pixels expected = Expected(kOutlineWidth, kOutlineHeight, [&](HDC context) {
        const COLORREF color = RGB(10, 20, 200);
        // Rows begin at 0, 18, 36 and 54; lines turn 8 pixels below.
        Dots(context, 8, 8, 9, 63, color);    // from A down to D
        Dots(context, 28, 18, 29, 45, color); // from A's children's top to c
        Dots(context, 8, 8, 20, 9, color);
        Dots(context, 28, 26, 40, 27, color);
        Dots(context, 28, 44, 40, 45, color);
        Dots(context, 8, 62, 20, 63, color);
        const HBRUSH white = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
        const RECT boxes[] = {{3, 3, 14, 14}, {23, 39, 34, 50}};
        for (const RECT& box : boxes) {
            FillRect(context, &box, white);
        }
        minus.Put(context, 3, 3, 0, 11, 11);
        plus.Put(context, 23, 39, 0, 11, 11);
        Write(context, "A", 20, 0);
        Write(context, "b", 40, 1);
        Write(context, "c", 40, 2);
        Write(context, "D", 20, 3);
    });
    ASSERT_EQ(GetSysColor(COLOR_WINDOW), RGB(255, 255, 255)) << "the boxes' ground above";
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
}

TEST_F(HierListPaint, AFolderIsAsOpenAsItsItem) {
    HWND list = Create();
    HOLBITEM folder = olbAddChildStringEx(list, nullptr, "");
    olbAddChildStringEx(list, folder, "");
    EXPECT_EQ(olbSetBitmapIndexEx(list, folder, OLB_SORTFIRST), -1);
    const Strip strip(217);
    const auto shows = [&](int index) {
        const Pixels expected =
            Expected(16, 16, [&](HDC context) { strip.Put(context, 0, 0, 16 * index, 16, 16); });
        const Pixels pixels = PixelsOf(list);
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                if (pixels.At(x, y + 1) != expected.At(x, y)) {
                    return false;
                }
            }
        }
        return true;
    };
    EXPECT_TRUE(shows(6));
    olbOpenItem(list, 0);
    EXPECT_TRUE(shows(7));
    olbCloseItem(list, 0);
    EXPECT_TRUE(shows(6));
    EXPECT_EQ(olbSetBitmapIndexEx(list, folder, 9), -32768);
    EXPECT_TRUE(shows(9));
    EXPECT_EQ(olbSetBitmapIndexEx(list, folder, -1), 9);
    EXPECT_EQ(olbSetBitmapIndexEx(list, nullptr, 4), 1) << "the default of all";
    EXPECT_TRUE(shows(4));
}

TEST_F(HierListPaint, ColoursAreTheHosts) {
    HWND list = Create();
    olbEnableBitmaps(list, FALSE);
    olbAddString(list, "Text");
    constexpr COLORREF kGround = RGB(0, 0, 64);
    constexpr COLORREF kInk = RGB(255, 255, 128);
    EXPECT_EQ(olbSetColor(list, OLBC_BACKGROUND, kGround, FALSE), kGround);
    EXPECT_EQ(olbSetColor(list, OLBC_TEXT, kInk, FALSE), kInk);
    EXPECT_EQ(olbSetColor(list, 3, RGB(9, 9, 9), FALSE), 3u) << "stored nothing";
    EXPECT_EQ(PixelsOf(list).At(50, 50), RGB(255, 255, 255)) << "not repainted";
    EXPECT_NE(olbSetColor(list, 3, RGB(9, 9, 9), TRUE), 0u) << "UpdateWindow's result";
    const Pixels expected = Expected(
        kOutlineWidth, kOutlineHeight,
        [&](HDC context) {
            SetTextColor(context, kInk);
            Write(context, "Text", 0, 0);
        },
        kGround);
    EXPECT_EQ(Difference(expected, PixelsOf(list)), "");
}

TEST_F(HierListPaint, NothingIsRepaintedForColoursUnderNoRedraw) {
    HWND list = Create(LBS_NOREDRAW);
    EXPECT_EQ(olbSetColor(list, OLBC_BACKGROUND, RGB(1, 2, 3), TRUE), RGB(1, 2, 3));
    EXPECT_FALSE(GetUpdateRect(list, nullptr, FALSE));
}

TEST_F(HierListPaint, SystemColoursAreFollowed) {
    HWND list = Create();
    const ChangedSystemColor changed(COLOR_WINDOW, RGB(40, 80, 120));
    SendMessageA(list, WM_SYSCOLORCHANGE, 0, 0);
    UpdateWindow(list);
    EXPECT_EQ(PixelsOf(list).At(50, 50), RGB(40, 80, 120));
}

TEST_F(HierListPaint, FontsAreFollowed) {
    HWND list = Create(WS_VSCROLL);
    olbEnableBitmaps(list, FALSE);
    AddRows(list, 3);
    HFONT font = CreateFontA(40, 0, 0, 0, 400, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                             NONANTIALIASED_QUALITY, 0, "Arial");
    SendMessageA(list, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    EXPECT_EQ(SendMessageA(list, WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(font));
    EXPECT_NE(GetWindowLongA(list, GWL_STYLE) & WS_VSCROLL, 0) << "three rows of 40 or more in 100";
    const Pixels pixels = PixelsOf(list);
    SIZE size{};
    Expected(1, 1, [&](HDC context) {
        SelectObject(context, font);
        GetTextExtentPoint32A(context, "1", 1, &size);
    });
    const int height = static_cast<int>(size.cy);
    ASSERT_GT(height, kRowHeight);
    const Pixels expected = Expected(80, height, [&](HDC context) {
        SelectObject(context, font);
        RECT rect = {0, 0, 80, height};
        DrawTextA(context, "1", -1, &rect, DT_SINGLELINE | DT_VCENTER);
    });
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < 80; ++x) {
            ASSERT_EQ(pixels.At(x, height + y), expected.At(x, y)) << "at " << x << "," << y;
        }
    }
    SendMessageA(list, WM_SETFONT, 0, TRUE);
    EXPECT_EQ(SendMessageA(list, WM_GETFONT, 0, 0), 0) << "the system's";
    EXPECT_EQ(GetWindowLongA(list, GWL_STYLE) & WS_VSCROLL, 0);
    DeleteObject(font);
}

TEST_F(HierListPaint, ColumnsAreCutAtTheirEdge) {
    HWND list = Create(LBS_MULTICOLUMN, 400, 20); // a row a column
    olbEnableBitmaps(list, FALSE);
    olbAddString(list, "A text that is much longer than fifteen average characters are");
    olbAddString(list, "Next");
    const Pixels pixels = PixelsOf(list);
    TEXTMETRICA metrics{};
    HDC screen = GetDC(nullptr);
    HGDIOBJ previous = SelectObject(screen, GetStockObject(SYSTEM_FONT));
    GetTextMetricsA(screen, &metrics);
    SelectObject(screen, previous);
    ReleaseDC(nullptr, screen);
    const int column = 15 * static_cast<int>(metrics.tmAveCharWidth);
    const Pixels expected = Expected(400, 20, [&](HDC context) {
        const int saved = SaveDC(context);
        IntersectClipRect(context, 0, 0, column, kRowHeight);
        Write(context, "A text that is much longer than fifteen average characters are", 0, 0);
        RestoreDC(context, saved);
        Write(context, "Next", column, 0);
    });
    EXPECT_EQ(Difference(expected, pixels), "");
}

TEST_F(HierListPaint, PartsArePaintedAsTheWholeIs) {
    HWND list = Create();
    olbShowLines(list, TRUE);
    olbEnableMicroBitmaps(list, TRUE);
    AddRows(list, 4);
    const Pixels whole = PixelsOf(list);
    for (const RECT& part : {RECT{0, 0, 9, 9}, RECT{7, 25, 30, 60}, RECT{19, 53, 120, 55}}) {
        RedrawWindow(list, &part, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        EXPECT_EQ(Difference(whole, PixelsOf(list)), "");
    }
}

TEST_F(HierListPaint, TheParentGivesTheBackgroundWhenItIsAsked) {
    // Only lists with option 8 ask; a new one does not.
    int asked = 0;
    host.answer = [&](const vorn::test::Message& message) -> std::optional<LRESULT> {
        asked += message.message == WM_CTLCOLORLISTBOX;
        return std::nullopt;
    };
    Create();
    EXPECT_EQ(asked, 0);
}

TEST_F(HierListPaint, PaintingLeavesNoObjects) {
    HWND list = Create(WS_VSCROLL);
    olbShowLines(list, TRUE);
    olbEnableMicroBitmaps(list, TRUE);
    AddRows(list, 3);
    EXPECT_EQ(
        vorn::test::ObjectsLeftBy(
            [&] { RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }, 200),
        "");
}

TEST_F(HierListPaint, AThousandListsLeaveNoObjects) {
    EXPECT_EQ(vorn::test::ObjectsLeftBy([&] {
                  HWND list =
                      host.Create(VORN_HIERLIST_CLASS, WS_VSCROLL | OLBS_SUNKEN, 0, 0, 50, 40);
                  olbAddString(list, "x");
                  DestroyWindow(list);
              }),
              "");
}

} // namespace
