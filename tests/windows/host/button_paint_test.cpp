// What the picture button looks like, pixel by pixel, beside a drawing made without it.
#include "tests/windows/support/button_host.h"
#include "tests/windows/support/pixels.h"

#include <string>

namespace {

using vorn::test::Difference;
using vorn::test::Drawing;
using vorn::test::Message;
using vorn::test::Pixels;
using vorn::test::PixelsOf;
using vorn::test::PumpMessages;

constexpr COLORREF kFace = RGB(200, 220, 240);
constexpr COLORREF kText = RGB(255, 0, 0);
constexpr COLORREF kLight = RGB(255, 0, 255);
constexpr COLORREF kShadow = RGB(0, 128, 128);
constexpr COLORREF kSwatch = RGB(0, 200, 0);

void Fill(HDC context, const RECT& area, COLORREF color) {
    HBRUSH brush = CreateSolidBrush(color);
    FillRect(context, &area, brush);
    DeleteObject(brush);
}

// A two-pixel frame: at the corners that they share, the lines at the bottom right win, but for
// the inner corner at the bottom left.
struct Frame {
    COLORREF outerTopLeft;
    COLORREF outerBottomRight;
    COLORREF innerTopLeft;
    COLORREF innerBottomRight;
    COLORREF innerBottomLeft;
};

void DrawSides(HDC context, const RECT& r, COLORREF topLeft, COLORREF bottomRight) {
    Fill(context, {r.left, r.top, r.right, r.top + 1}, topLeft);
    Fill(context, {r.left, r.top, r.left + 1, r.bottom}, topLeft);
    Fill(context, {r.left, r.bottom - 1, r.right, r.bottom}, bottomRight);
    Fill(context, {r.right - 1, r.top, r.right, r.bottom}, bottomRight);
}

void DrawFrame(HDC context, const RECT& r, const Frame& frame) {
    DrawSides(context, r, frame.outerTopLeft, frame.outerBottomRight);
    DrawSides(context, {r.left + 1, r.top + 1, r.right - 1, r.bottom - 1}, frame.innerTopLeft,
              frame.innerBottomRight);
    SetPixel(context, r.left + 1, r.bottom - 2, frame.innerBottomLeft);
}

// A piece of a bitmap, the colour of the whole bitmap's bottom-left pixel left out.
void DrawPiece(HDC context, HBITMAP bitmap, POINT from, SIZE size, POINT to) {
    BITMAP header{};
    ASSERT_NE(GetObjectA(bitmap, sizeof header, &header), 0);
    HDC memory = CreateCompatibleDC(context);
    HGDIOBJ previous = SelectObject(memory, bitmap);
    const COLORREF transparent = GetPixel(memory, 0, header.bmHeight - 1);
    for (int y = 0; y < size.cy; ++y) {
        for (int x = 0; x < size.cx; ++x) {
            const COLORREF color = GetPixel(memory, from.x + x, from.y + y);
            if (color != transparent) {
                SetPixel(context, to.x + x, to.y + y, color);
            }
        }
    }
    SelectObject(memory, previous);
    DeleteDC(memory);
}

HBITMAP LibraryBitmap(int number) {
    HBITMAP bitmap = LoadBitmapA(GetModuleHandleA("VORN32.dll"), MAKEINTRESOURCEA(number));
    EXPECT_NE(bitmap, nullptr) << number;
    return bitmap;
}

// A cell of one of the library's strips.
void DrawCell(HDC context, int strip, int cell, SIZE size, POINT to) {
    HBITMAP bitmap = LibraryBitmap(strip);
    DrawPiece(context, bitmap, {cell * size.cx, 0}, size, to);
    DeleteObject(bitmap);
}

// How the caption stands in a button of this size, and the state that shows in it.
struct Words {
    const char* text;
    int left = 0; // where its share of the button starts
    bool disabled = false;
    bool focus = false;
    HFONT font = nullptr;
};

void DrawWords(HDC context, int width, int height, const Words& words) {
    HGDIOBJ previous =
        SelectObject(context, words.font != nullptr ? words.font : GetStockObject(SYSTEM_FONT));
    SetBkMode(context, TRANSPARENT);
    RECT size = {words.left + 2, 2, width - 2, height - 2};
    DrawTextA(context, words.text, -1, &size, 1061);
    const LONG w = size.right - size.left;
    const LONG h = size.bottom - size.top;
    const LONG left = words.left + (width - words.left - w - 4) / 2 + 2;
    const LONG top = (height - h) / 2;
    RECT place = {left, top, left + w, top + h};
    if (words.disabled) {
        RECT moved = {left + 1, top + 1, left + w + 1, top + h + 1};
        SetTextColor(context, kLight);
        DrawTextA(context, words.text, -1, &moved, 37);
        SetTextColor(context, kShadow);
    } else {
        SetTextColor(context, kText);
    }
    DrawTextA(context, words.text, -1, &place, 37);
    if (words.focus) {
        const RECT around = {left - 2, top, left + w + 2, top + h};
        DrawFocusRect(context, &around);
    }
    SelectObject(context, previous);
}

void DrawEdge(HDC context, int width, int height, bool down, COLORREF outline) {
    DrawSides(context, {0, 0, width, height}, outline, outline);
    const COLORREF frame = GetSysColor(COLOR_WINDOWFRAME);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const RECT inside = {1, 1, width - 1, height - 1};
    if (down) {
        DrawFrame(context, inside, {kShadow, kLight, frame, face, frame});
    } else {
        DrawFrame(context, inside, {face, frame, kLight, kShadow, kShadow});
    }
}

class ButtonPaint : public vorn::test::ButtonTest {
protected:
    HWND CreateColored(DWORD style, int width, int height, const char* caption = "") {
        HWND button = Create(style, width, height);
        SetWindowTextA(button, caption);
        btnSetColor(button, VORN_COLOR_FACE, kFace);
        btnSetColor(button, VORN_COLOR_TEXT, kText);
        btnSetColor(button, VORN_COLOR_HIGHLIGHT, kLight);
        btnSetColor(button, VORN_COLOR_SHADOW, kShadow);
        btnSetColor(button, VORN_COLOR_SWATCH, kSwatch);
        return button;
    }

    // A button of this size that is up and no default, with what a test draws in it.
    template <class Draw>
    static Pixels Up(int width, int height, Draw draw) {
        return Drawing(width, height, kFace, [&](HDC context) {
            draw(context);
            DrawEdge(context, width, height, false, kFace);
        });
    }

    void AnswerHostApp(LRESULT answer) {
        host.answer = [answer](const Message& message) -> std::optional<LRESULT> {
            return message.message == VORN_WM_IS_HOST_APP ? std::optional<LRESULT>(answer)
                                                          : std::nullopt;
        };
    }
};

TEST_F(ButtonPaint, IsRaisedOrSunken) {
    HWND button = CreateColored(0, 60, 24);
    EXPECT_EQ(Difference(Up(60, 24, [](HDC) {}), PixelsOf(button)), "");
    btnSetState(button, TRUE);
    EXPECT_EQ(Difference(Drawing(60, 24, kFace,
                                 [](HDC context) { DrawEdge(context, 60, 24, true, kFace); }),
                         PixelsOf(button)),
              "");
    btnSetState(button, FALSE);
    EXPECT_EQ(Difference(Up(60, 24, [](HDC) {}), PixelsOf(button)), "");
}

TEST_F(ButtonPaint, HasAnOutlineAsTheDefault) {
    HWND button = CreateColored(0, 60, 24);
    btnSetStyle(button, VBTS_DEFAULT, TRUE);
    const COLORREF frame = GetSysColor(COLOR_WINDOWFRAME);
    EXPECT_EQ(Difference(Drawing(60, 24, kFace,
                                 [&](HDC context) { DrawEdge(context, 60, 24, false, frame); }),
                         PixelsOf(button)),
              "");
    btnSetStyle(button, 0, TRUE);
    EXPECT_EQ(Difference(Up(60, 24, [](HDC) {}), PixelsOf(button)), "");
}

TEST_F(ButtonPaint, CentresItsCaption) {
    for (const char* text : {"Caption", "i", "&Save", "wider than the button, much", "a\nb"}) {
        for (const int height : {24, 31}) {
            HWND button = CreateColored(0, 90, height, text);
            EXPECT_EQ(Difference(Up(90, height,
                                    [&](HDC context) { DrawWords(context, 90, height, {text}); }),
                                 PixelsOf(button)),
                      "")
                << text;
            EXPECT_GT(PixelsOf(button).Count({0, 0, 90, height}, kText), 3) << "it can be seen";
            DestroyWindow(button);
        }
    }
}

TEST_F(ButtonPaint, WritesItsCaptionInItsFont) {
    HFONT font =
        CreateFontA(20, 0, 0, 0, FW_BOLD, 0, 0, 0, 0, 0, 0, NONANTIALIASED_QUALITY, 0, "Arial");
    HWND button = CreateColored(0, 120, 40, "Caption");
    SendMessageA(button, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    Words words{"Caption"};
    words.font = font;
    EXPECT_EQ(Difference(Up(120, 40, [&](HDC context) { DrawWords(context, 120, 40, words); }),
                         PixelsOf(button)),
              "");
    SendMessageA(button, WM_SETFONT, 0, TRUE);
    EXPECT_EQ(
        Difference(Up(120, 40, [&](HDC context) { DrawWords(context, 120, 40, {"Caption"}); }),
                   PixelsOf(button)),
        "");
    DestroyWindow(button);
    DeleteObject(font);
}

TEST_F(ButtonPaint, EmbossesItsCaptionWhenDisabled) {
    HWND button = CreateColored(0, 90, 30, "Caption");
    EnableWindow(button, FALSE);
    Words words{"Caption"};
    words.disabled = true;
    EXPECT_EQ(Difference(Up(90, 30, [&](HDC context) { DrawWords(context, 90, 30, words); }),
                         PixelsOf(button)),
              "");
    EXPECT_EQ(PixelsOf(button).Count({0, 0, 90, 30}, kText), 0);
    EnableWindow(button, TRUE);
    EXPECT_EQ(Difference(Up(90, 30, [&](HDC context) { DrawWords(context, 90, 30, {"Caption"}); }),
                         PixelsOf(button)),
              "");
}

TEST_F(ButtonPaint, IsEmbossedWhenCreatedDisabled) {
    HWND button = CreateColored(WS_DISABLED, 90, 30, "Caption");
    Words words{"Caption"};
    words.disabled = true;
    EXPECT_EQ(Difference(Up(90, 30, [&](HDC context) { DrawWords(context, 90, 30, words); }),
                         PixelsOf(button)),
              "");
}

TEST_F(ButtonPaint, FramesItsCaptionWithTheFocus) {
    const COLORREF frame = GetSysColor(COLOR_WINDOWFRAME);
    const auto focused = [&](const Words& words) {
        return Drawing(90, 30, kFace, [&](HDC context) {
            DrawWords(context, 90, 30, words);
            DrawEdge(context, 90, 30, false, frame);
        });
    };
    HWND button = CreateColored(0, 90, 30, "Caption");
    SetFocus(button);
    Words words{"Caption"};
    words.focus = true;
    EXPECT_EQ(Difference(focused(words), PixelsOf(button)), "");
    SetWindowTextA(button, "");
    EXPECT_EQ(Difference(focused({""}), PixelsOf(button)), "") << "nothing to frame";
}

TEST_F(ButtonPaint, ShowsACellBesideItsCaption) {
    constexpr SIZE kCell = {20, 20};
    for (const int height : {30, 41, 12}) {
        HWND button = CreateColored(VBTS_PICTURE, 110, height, "Go");
        for (const UINT index : {0u, 1u, 7u, 14u, 15u, 16u, 17u, 31u, 0xFFFFFFFFu}) {
            EXPECT_TRUE(btnSetPicture(button, index));
            const int cell = index < 15 ? static_cast<int>(index) : 0;
            EXPECT_EQ(Difference(Up(110, height,
                                    [&](HDC context) {
                                        DrawCell(context, 222, cell, kCell, {8, (height - 20) / 2});
                                        DrawWords(context, 110, height, {"Go", 28});
                                    }),
                                 PixelsOf(button)),
                      "")
                << index;
        }
        DestroyWindow(button);
    }
}

TEST_F(ButtonPaint, ShowsACellAlone) {
    constexpr SIZE kCell = {16, 15};
    HWND button = CreateColored(VBTS_PICTURE | VBTS_PICTUREONLY, 41, 30, "never shown");
    for (const UINT index : {0u, 1u, 15u, 31u, 32u, 0xFFFFFFFFu}) {
        SendMessageA(button, VBTM_SETPICTURE, index, 0);
        const int cell = index < 32 ? static_cast<int>(index) : 0;
        EXPECT_EQ(Difference(Up(41, 30,
                                [&](HDC context) {
                                    DrawCell(context, 223, cell, kCell, {12, 7});
                                }),
                             PixelsOf(button)),
                  "")
            << index;
    }
}

TEST_F(ButtonPaint, EveryUsedCellShowsSomethingOfItsOwn) {
    HWND button = CreateColored(VBTS_PICTURE, 110, 30);
    std::vector<Pixels> seen;
    for (UINT index = 0; index < 15; ++index) {
        btnSetPicture(button, index);
        seen.push_back(PixelsOf(button));
        EXPECT_LT(seen.back().Count({8, 5, 28, 25}, kFace), 20 * 20 - 20) << index;
        for (UINT other = 0; other < index; ++other) {
            EXPECT_NE(seen[other], seen[index]) << other << " and " << index;
        }
    }
}

// A bitmap of two colours, the second at the bottom left and along the diagonal.
HBITMAP Stripes(int width, int height) {
    HDC screen = GetDC(nullptr);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    HDC memory = CreateCompatibleDC(screen);
    ReleaseDC(nullptr, screen);
    HGDIOBJ previous = SelectObject(memory, bitmap);
    Fill(memory, {0, 0, width, height}, RGB(90, 60, 30));
    for (int i = 0; i < width && i < height; ++i) {
        SetPixel(memory, i, height - 1 - i, RGB(255, 255, 0));
    }
    SelectObject(memory, previous);
    DeleteDC(memory);
    return bitmap;
}

TEST_F(ButtonPaint, ShowsTheHostsBitmapBesideItsCaption) {
    HBITMAP bitmap = Stripes(25, 13);
    HWND button = CreateColored(VBTS_PICTURE, 110, 30, "Go");
    EXPECT_TRUE(btnSetBitmap(button, bitmap));
    EXPECT_EQ(Difference(Up(110, 30,
                            [&](HDC context) {
                                DrawPiece(context, bitmap, {0, 0}, {25, 13}, {4, 8});
                                DrawWords(context, 110, 30, {"Go", 29});
                            }),
                         PixelsOf(button)),
              "");
    btnSetBitmap(button, nullptr);
    EXPECT_EQ(Difference(Up(110, 30,
                            [&](HDC context) {
                                DrawCell(context, 222, 0, {20, 20}, {8, 5});
                                DrawWords(context, 110, 30, {"Go", 28});
                            }),
                         PixelsOf(button)),
              "")
        << "back to the strip";
    DeleteObject(bitmap);
}

TEST_F(ButtonPaint, ShowsTheHostsBitmapAlone) {
    HBITMAP bitmap = Stripes(25, 13);
    HWND button = CreateColored(VBTS_PICTURE | VBTS_PICTUREONLY, 60, 30, "never shown");
    btnSetBitmap(button, bitmap);
    const Pixels expected = Up(60, 30, [&](HDC context) {
        DrawPiece(context, bitmap, {0, 0}, {25, 13}, {17, 8});
    });
    EXPECT_EQ(Difference(expected, PixelsOf(button)), "");
    AnswerHostApp(VORN_HOST_APP_YES);
    InvalidateRect(button, nullptr, FALSE);
    UpdateWindow(button);
    EXPECT_EQ(Difference(expected, PixelsOf(button)), "") << "in the host application too";
    DeleteObject(bitmap);
}

TEST_F(ButtonPaint, CropsABitmapLargerThanItself) {
    HBITMAP bitmap = Stripes(100, 80);
    HWND button = CreateColored(VBTS_PICTURE | VBTS_PICTUREONLY, 60, 30);
    btnSetBitmap(button, bitmap);
    EXPECT_EQ(Difference(Up(60, 30,
                            [&](HDC context) {
                                DrawPiece(context, bitmap, {0, 0}, {100, 80}, {-20, -25});
                            }),
                         PixelsOf(button)),
              "");
    DeleteObject(bitmap);
}

TEST_F(ButtonPaint, ShowsThePictureOfTheHostApplication) {
    AnswerHostApp(VORN_HOST_APP_YES);
    HBITMAP bitmap = Stripes(25, 13);
    HWND button = CreateColored(VBTS_PICTURE, 110, 31, "Go");
    const Pixels expected = Up(110, 31, [&](HDC context) {
        DrawCell(context, 228, 0, {20, 20}, {8, 5});
        DrawWords(context, 110, 31, {"Go", 28});
    });
    EXPECT_EQ(Difference(expected, PixelsOf(button)), "");
    btnSetPicture(button, 4);
    EXPECT_EQ(Difference(expected, PixelsOf(button)), "") << "whatever the index";
    btnSetBitmap(button, bitmap);
    EXPECT_EQ(Difference(expected, PixelsOf(button)), "") << "and the host's bitmap";
    DeleteObject(bitmap);
}

TEST_F(ButtonPaint, ShowsNothingAloneInTheHostApplication) {
    AnswerHostApp(VORN_HOST_APP_YES);
    HWND button = CreateColored(VBTS_PICTURE | VBTS_PICTUREONLY, 41, 30);
    EXPECT_EQ(Difference(Up(41, 30, [](HDC) {}), PixelsOf(button)), "");
    AnswerHostApp(98);
    btnSetPicture(button, 1);
    EXPECT_EQ(Difference(Up(41, 30,
                            [](HDC context) {
                                DrawCell(context, 223, 1, {16, 15}, {12, 7});
                            }),
                         PixelsOf(button)),
              "")
        << "any other answer";
}

// The strip is chosen at creation, the cells by the style at each paint.
TEST_F(ButtonPaint, KeepsTheStripOfItsCreation) {
    HWND button = CreateColored(VBTS_PICTURE, 61, 30);
    SetStyleBits(button, VBTS_PICTURE | VBTS_PICTUREONLY);
    btnSetPicture(button, 3);
    EXPECT_EQ(Difference(Up(61, 30,
                            [](HDC context) {
                                HBITMAP strip = LibraryBitmap(222);
                                DrawPiece(context, strip, {48, 0}, {16, 15}, {22, 7});
                                DeleteObject(strip);
                            }),
                         PixelsOf(button)),
              "");
}

void DrawSwatch(HDC context, int height) {
    const LONG top = (height - 8) / 2;
    Fill(context, {6, top, 14, top + 8}, kSwatch);
    DrawFrame(
        context, {4, top - 2, 16, top + 10},
        {kShadow, kLight, GetSysColor(COLOR_WINDOWFRAME), kFace, GetSysColor(COLOR_WINDOWFRAME)});
}

TEST_F(ButtonPaint, ShowsItsSwatchBesideItsCaption) {
    for (const int height : {30, 25}) {
        HWND button = CreateColored(VBTS_SWATCH, 90, height, "Red");
        EXPECT_EQ(Difference(Up(90, height,
                                [&](HDC context) {
                                    DrawSwatch(context, height);
                                    DrawWords(context, 90, height, {"Red", 16});
                                }),
                             PixelsOf(button)),
                  "");
        DestroyWindow(button);
    }
}

TEST_F(ButtonPaint, ShowsItsSwatchAlone) {
    HWND button = CreateColored(VBTS_SWATCH | VBTS_PICTUREONLY, 90, 30, "never shown");
    EXPECT_EQ(
        Difference(Up(90, 30, [](HDC context) { DrawSwatch(context, 30); }), PixelsOf(button)), "");
}

TEST_F(ButtonPaint, SwitchesBetweenPictureAndSwatch) {
    HWND button = CreateColored(VBTS_PICTURE | VBTS_SWATCH, 90, 30);
    const Pixels picture = Up(90, 30, [](HDC context) {
        DrawCell(context, 222, 0, {20, 20}, {8, 5});
    });
    EXPECT_EQ(Difference(picture, PixelsOf(button)), "") << "the picture counts";
    btnEnableColorCode(button, TRUE);
    EXPECT_EQ(
        Difference(Up(90, 30, [](HDC context) { DrawSwatch(context, 30); }), PixelsOf(button)), "");
    btnEnablePicture(button, TRUE);
    EXPECT_EQ(Difference(picture, PixelsOf(button)), "");
    btnEnablePicture(button, FALSE);
    EXPECT_EQ(Difference(Up(90, 30, [](HDC) {}), PixelsOf(button)), "");
}

TEST_F(ButtonPaint, SetsTheSwatchByFunctionMessageAndSlot) {
    HWND button = CreateColored(VBTS_SWATCH, 90, 30);
    btnSetColorCode(button, RGB(1, 0, 0));
    EXPECT_EQ(PixelsOf(button).At(10, 15), RGB(1, 0, 0));
    SendMessageA(button, VBTM_SETCOLORCODE, 0, RGB(2, 0, 0));
    EXPECT_EQ(PixelsOf(button).At(10, 15), RGB(2, 0, 0));
    btnSetColor(button, VORN_COLOR_SWATCH, VORN_SYSCOLOR(COLOR_INFOBK));
    EXPECT_EQ(PixelsOf(button).At(10, 15), GetSysColor(COLOR_INFOBK));
}

TEST_F(ButtonPaint, StartsWithTheSystemsColors) {
    HWND button = Create(VBTS_SWATCH, 90, 30);
    SetWindowTextA(button, "text");
    const Pixels pixels = PixelsOf(button);
    EXPECT_EQ(pixels.At(20, 5), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(pixels.At(10, 15), RGB(0, 0x80, 0)) << "dark green";
    EXPECT_EQ(pixels.At(2, 10), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(pixels.At(87, 10), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_GT(pixels.Count({16, 3, 86, 27}, GetSysColor(COLOR_BTNTEXT)), 20);
}

TEST_F(ButtonPaint, FollowsTheSystemColors) {
    HWND button = Create(0, 90, 30);
    const INT element = COLOR_BTNFACE;
    const COLORREF old = GetSysColor(COLOR_BTNFACE);
    const COLORREF changed = RGB(1, 2, 3);
    SetSysColors(1, &element, &changed);
    InvalidateRect(button, nullptr, FALSE);
    UpdateWindow(button);
    EXPECT_EQ(PixelsOf(button).At(45, 15), changed);
    EXPECT_EQ(PixelsOf(button).At(0, 15), changed) << "the outline too";
    SetSysColors(1, &element, &old);
}

TEST_F(ButtonPaint, RepaintsAPartLikeTheWhole) {
    HWND button = CreateColored(VBTS_PICTURE, 110, 30, "Caption");
    const Pixels whole = PixelsOf(button);
    const RECT part = {15, 6, 61, 22};
    HDC context = GetDC(button);
    Fill(context, part, RGB(0, 0, 0));
    ReleaseDC(button, context);
    InvalidateRect(button, &part, FALSE);
    UpdateWindow(button);
    EXPECT_EQ(Difference(whole, PixelsOf(button)), "");
}

TEST_F(ButtonPaint, IsDrawnInSizesThatHaveNoRoom) {
    for (const auto& [width, height] : {SIZE{1, 1}, SIZE{2, 2}, SIZE{3, 30}, SIZE{30, 3}}) {
        for (const DWORD style : {DWORD{0}, DWORD{VBTS_PICTURE}, DWORD{VBTS_SWATCH},
                                  DWORD{VBTS_PICTURE | VBTS_PICTUREONLY}}) {
            HWND button = CreateColored(style, width, height, "text");
            UpdateWindow(button);
            EXPECT_FALSE(GetUpdateRect(button, nullptr, FALSE));
            DestroyWindow(button);
        }
    }
}

TEST_F(ButtonPaint, HasNoFrameOfTheSystems) {
    HWND button =
        CreateWindowExA(WS_EX_CLIENTEDGE, VORN_BUTTON_CLASS, "", WS_CHILD | WS_VISIBLE | WS_BORDER,
                        10, 10, 60, 24, host.window(), nullptr, GetModuleHandleA(nullptr), nullptr);
    btnSetColor(button, VORN_COLOR_FACE, kFace);
    btnSetColor(button, VORN_COLOR_HIGHLIGHT, kLight);
    btnSetColor(button, VORN_COLOR_SHADOW, kShadow);
    EXPECT_EQ(SendMessageA(button, WM_NCPAINT, 1, 0), 0);
    RedrawWindow(button, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
    EXPECT_EQ(Difference(Up(60, 24, [](HDC) {}), PixelsOf(button)), "");
}

TEST_F(ButtonPaint, AsksItsParentOnlyWhereTheAnswerShows) {
    int asked = 0;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        asked += message.message == VORN_WM_IS_HOST_APP;
        return std::nullopt;
    };
    HWND button = Create(0, 60, 24);
    PumpMessages();
    asked = 0;
    btnSetColorCode(button, 0);
    EXPECT_EQ(asked, 0);
    btnEnablePicture(button, TRUE);
    EXPECT_EQ(asked, 1);
}

} // namespace
