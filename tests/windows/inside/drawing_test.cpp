// The shared painters, on real device contexts.
#include "core/frames_win.h"
#include "core/transparent_blit_win.h"
#include "tests/support/frame_pictures.h"
#include "tests/windows/support/objects.h"
#include "tests/windows/support/pixels.h"

#include <gtest/gtest.h>

namespace vorn {
namespace {

using test::Drawing;
using test::Picture;

constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr COLORREF kA = RGB(255, 0, 0);
constexpr COLORREF kB = RGB(0, 255, 0);
constexpr COLORREF kC = RGB(0, 0, 255);

std::map<COLORREF, char> FrameLetters() {
    return {{kPaper, '.'}, {kA, 'A'}, {kB, 'B'}, {kC, 'C'}, {GetSysColor(COLOR_WINDOWFRAME), 'W'}};
}

using FramePainter = void (*)(HDC, const Rect&, const FrameColors&);

Picture Painted(FramePainter paint, const Rect& rect, const Picture& sizedLike) {
    return Drawing(static_cast<int>(sizedLike[0].size()), static_cast<int>(sizedLike.size()),
                   kPaper,
                   [&](HDC context) {
                       paint(context, rect, {kA, kB, kC});
                   })
        .Letters(FrameLetters());
}

TEST(FramePainters, PaintThePictures) {
    for (const test::FramePicture& picture : test::FramePictures()) {
        EXPECT_EQ(Painted(DrawSunkenFrame, picture.rect, picture.sunken), picture.sunken)
            << picture.name;
        EXPECT_EQ(Painted(DrawRaisedFrame, picture.rect, picture.raised), picture.raised)
            << picture.name;
    }
}

TEST(FramePainters, LeaveTheBlackPenSelected) {
    for (const FramePainter paint : {DrawSunkenFrame, DrawRaisedFrame}) {
        Drawing(10, 8, kPaper, [&](HDC context) {
            SelectObject(context, GetStockObject(WHITE_PEN));
            paint(context, {1, 1, 9, 7}, {kA, kB, kC});
            EXPECT_EQ(GetCurrentObject(context, OBJ_PEN), GetStockObject(BLACK_PEN));
        });
    }
}

TEST(FramePainters, OutlineHasAllFourSides) {
    const Picture expected = {"......", ".AAAA.", ".A..A.", ".AAAA.", "......"};
    const Picture painted = Drawing(6, 5, kPaper, [](HDC context) {
                                DrawOutline(context, {1, 1, 5, 4}, kA);
                            }).Letters(FrameLetters());
    EXPECT_EQ(painted, expected);
}

// Paints letters in the colours of the map on a bitmap.
void PaintLetters(HBITMAP bitmap, const Picture& picture, const std::map<char, COLORREF>& colors) {
    HDC context = CreateCompatibleDC(nullptr);
    HGDIOBJ previous = SelectObject(context, bitmap);
    for (std::size_t y = 0; y < picture.size(); ++y) {
        for (std::size_t x = 0; x < picture[y].size(); ++x) {
            SetPixel(context, static_cast<int>(x), static_cast<int>(y), colors.at(picture[y][x]));
        }
    }
    SelectObject(context, previous);
    DeleteDC(context);
}

// A bitmap of letters, of the screen's kind.
HBITMAP BitmapOf(const Picture& picture, const std::map<char, COLORREF>& colors) {
    HDC screen = GetDC(nullptr);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, static_cast<int>(picture[0].size()),
                                            static_cast<int>(picture.size()));
    ReleaseDC(nullptr, screen);
    PaintLetters(bitmap, picture, colors);
    return bitmap;
}

constexpr COLORREF kPink = RGB(255, 0, 255);
constexpr COLORREF kBack = RGB(200, 220, 240);
const std::map<char, COLORREF> kInks = {{'t', kPink}, {'r', kA}, {'g', kB}, {'k', RGB(0, 0, 0)}};
const std::map<COLORREF, char> kResult = {{kPaper, '.'}, {kBack, 'b'},        {kA, 'r'},
                                          {kB, 'g'},     {RGB(0, 0, 0), 'k'}, {kPink, 't'}};

Picture Blitted(HBITMAP bitmap, const Rect& target, Point source) {
    return Drawing(
               8, 6, kPaper,
               [&](HDC context) { DrawTransparentBitmap(context, target, bitmap, source, kBack); })
        .Letters(kResult);
}

TEST(TransparentBitmap, ReplacesItsBottomLeftColorWhereverItOccurs) {
    HBITMAP bitmap = BitmapOf({"trrk", "rttg", "rtgg", "tkkr"}, kInks);
    EXPECT_EQ(Blitted(bitmap, {2, 1, 6, 5}, {0, 0}), (Picture{
                                                         "........",
                                                         "..brrk..",
                                                         "..rbbg..",
                                                         "..rbgg..",
                                                         "..bkkr..",
                                                         "........",
                                                     }));
    DeleteObject(bitmap);
}

TEST(TransparentBitmap, TakesTheColorFromTheWholeBitmapNotThePiece) {
    // The piece's own bottom-left pixel is red; pink is still what is transparent.
    HBITMAP bitmap = BitmapOf({"ttrt", "ttrg", "tttt"}, kInks);
    EXPECT_EQ(Blitted(bitmap, {0, 0, 2, 2}, {2, 0}), (Picture{
                                                         "rb......",
                                                         "rg......",
                                                         "........",
                                                         "........",
                                                         "........",
                                                         "........",
                                                     }));
    DeleteObject(bitmap);
}

TEST(TransparentBitmap, ShowsTheBackgroundBeyondTheEdge) {
    HBITMAP bitmap = BitmapOf({"rr", "tk"}, kInks);
    EXPECT_EQ(Blitted(bitmap, {1, 1, 6, 5}, {1, 0}), (Picture{
                                                         "........",
                                                         ".rbbbb..",
                                                         ".kbbbb..",
                                                         ".bbbbb..",
                                                         ".bbbbb..",
                                                         "........",
                                                     }));
    EXPECT_EQ(Blitted(bitmap, {0, 0, 2, 2}, {10, 10}), (Picture{
                                                           "bb......",
                                                           "bb......",
                                                           "........",
                                                           "........",
                                                           "........",
                                                           "........",
                                                       }));
    DeleteObject(bitmap);
}

TEST(TransparentBitmap, ShowsTheBackgroundBeforeItsFirstPixel) {
    HBITMAP bitmap = BitmapOf({"rg", "tk"}, kInks);
    EXPECT_EQ(Blitted(bitmap, {1, 1, 5, 5}, {-1, -2}), (Picture{
                                                           "........",
                                                           ".bbbb...",
                                                           ".bbbb...",
                                                           ".brgb...",
                                                           ".bbkb...",
                                                           "........",
                                                       }));
    DeleteObject(bitmap);
}

// Whatever program drew it: all depths with the inks in a table where there is one, both ways up.
TEST(TransparentBitmap, WorksWithBitmapsOfEveryKind) {
    struct {
        BITMAPINFOHEADER header;
        RGBQUAD inks[256];
    } info = {{}, {{255, 0, 255, 0}, {0, 0, 255, 0}, {0, 255, 0, 0}, {0, 0, 0, 0}}};
    for (const WORD depth : {WORD{4}, WORD{8}, WORD{16}, WORD{24}, WORD{32}}) {
        for (const LONG height : {4, -4}) {
            info.header = {sizeof info.header, 4, height, 1, depth, BI_RGB, 0, 0, 0, 0, 0};
            void* bits = nullptr;
            HBITMAP bitmap = CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info),
                                              DIB_RGB_COLORS, &bits, nullptr, 0);
            PaintLetters(bitmap, {"trrk", "rttg", "rtgg", "tkkr"}, kInks);
            EXPECT_EQ(Blitted(bitmap, {2, 1, 6, 5}, {0, 0}), (Picture{
                                                                 "........",
                                                                 "..brrk..",
                                                                 "..rbbg..",
                                                                 "..rbgg..",
                                                                 "..bkkr..",
                                                                 "........",
                                                             }))
                << depth << " bits a pixel, height " << height;
            DeleteObject(bitmap);
        }
    }
}

TEST(TransparentBitmap, LooksAtColorsAlone) {
    // Two pixels of one colour; the fourth byte of the first is no part of it.
    const DWORD pixels[] = {0x80FF00FF, 0x00FF00FF};
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, 2, 1, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    CopyMemory(bits, pixels, sizeof pixels);
    EXPECT_EQ(Blitted(bitmap, {0, 0, 2, 1}, {0, 0})[0], "bb......");
    DeleteObject(bitmap);
}

TEST(TransparentBitmap, WorksWithOneBitAPixel) {
    for (const bool blackIsTransparent : {true, false}) {
        // Two columns: the left one set (white), the right one clear (black), or turned.
        const WORD rows[] = {static_cast<WORD>(blackIsTransparent ? 0x0040 : 0x0080),
                             static_cast<WORD>(blackIsTransparent ? 0x0040 : 0x0080)};
        HBITMAP bitmap = CreateBitmap(2, 2, 1, 1, rows);
        const Picture painted = Blitted(bitmap, {0, 0, 2, 2}, {0, 0});
        EXPECT_EQ(painted[0], blackIsTransparent ? "b......." : "bk......");
        DeleteObject(bitmap);
    }
}

TEST(Painters, LeaveNoObjectsBehind) {
    HBITMAP bitmap = BitmapOf({"rr", "tk"}, kInks);
    HDC screen = GetDC(nullptr);
    HDC context = CreateCompatibleDC(screen);
    EXPECT_EQ(test::ObjectsLeftBy([&] {
                  DrawSunkenFrame(context, {0, 0, 9, 9}, {kA, kB, kC});
                  DrawRaisedFrame(context, {0, 0, 9, 9}, {kA, kB, kC});
                  DrawOutline(context, {0, 0, 9, 9}, kA);
                  DrawTransparentBitmap(context, {0, 0, 9, 9}, bitmap, {0, 0}, kBack);
                  DrawTransparentBitmap(context, {0, 0, 9, 9}, nullptr, {0, 0}, kBack);
              }),
              "");
    DeleteDC(context);
    ReleaseDC(nullptr, screen);
    DeleteObject(bitmap);
}

TEST(TransparentBitmap, OfNullPaintsNothing) {
    EXPECT_EQ(Blitted(nullptr, {0, 0, 4, 4}, {0, 0}), Picture(6, "........"));
}

} // namespace
} // namespace vorn
