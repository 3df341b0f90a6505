// What the dial looks like, pixel by pixel.
#include "tests/windows/host/dial_host.h"
#include "tests/windows/support/pixels.h"
#include "tests/windows/support/system_color.h"

#include <cmath>

namespace {

using vorn::test::ChangedSystemColor;
using vorn::test::DialHost;
using vorn::test::Difference;
using vorn::test::Drawing;
using vorn::test::kLeftButton;
using vorn::test::kNorth;
using vorn::test::kRightButton;
using vorn::test::Pixels;
using vorn::test::PixelsOf;
using vorn::test::PumpMessages;

constexpr COLORREF kRed = RGB(255, 0, 0);

using Rows = std::vector<std::string>;

class DialPaint : public DialHost {
protected:
    // Painted already.
    HWND Create(DWORD style = 0, int width = 100, int height = 100) {
        HWND dial = DialHost::Create(style, width, height);
        UpdateWindow(dial);
        return dial;
    }

    HWND CreateAt(LONG position, DWORD style = 0) {
        HWND dial = Create(style);
        SetDialPos(dial, position, TRUE);
        return dial;
    }
};

// The colours that the system has besides the knob's.
std::map<COLORREF, char> Letters() {
    return {{GetSysColor(COLOR_BTNFACE), '.'},
            {GetSysColor(COLOR_BTNHIGHLIGHT), 'H'},
            {GetSysColor(COLOR_BTNSHADOW), 'S'},
            {GetSysColor(COLOR_BTNTEXT), 'T'},
            {kRed, 'R'}};
}

// A rectangle of the picture in letters.
Rows Cut(const Pixels& pixels, const RECT& area, const std::map<COLORREF, char>& letters) {
    const Rows all = pixels.Letters(letters);
    Rows cut;
    for (LONG y = area.top; y < area.bottom; ++y) {
        cut.push_back(all[static_cast<std::size_t>(y)].substr(
            static_cast<std::size_t>(area.left), static_cast<std::size_t>(area.right - area.left)));
    }
    return cut;
}

// ---- Corner buttons ----

const Rows kMinusUp = {"HHHHHHHHHHHS", "H..........S", "H..........S", "H..........S",
                       "H..........S", "H..........S", "H..TTTTTTT.S", "H..........S",
                       "H..........S", "H..........S", "H..........S", "SSSSSSSSSSSS"};
const Rows kPlusUp = {"HHHHHHHHHHHS", "H..........S", "H..........S", "H.....T....S",
                      "H.....T....S", "H.....T....S", "H..TTTTTTT.S", "H.....T....S",
                      "H.....T....S", "H.....T....S", "H..........S", "SSSSSSSSSSSS"};

// The same pressed: what is light turns dark, and the other way round.
Rows Pressed(Rows rows) {
    for (std::string& row : rows) {
        for (char& pixel : row) {
            pixel = pixel == 'H' ? 'S' : pixel == 'S' ? 'H' : pixel;
        }
    }
    return rows;
}

constexpr RECT kLeft = {2, 86, 14, 98};
constexpr RECT kRight = {86, 86, 98, 98};

TEST_F(DialPaint, CornerButtonsShowWhatTheyDo) {
    const ChangedSystemColor shadow(COLOR_BTNSHADOW, RGB(1, 2, 3)); // apart from the text
    HWND dial = CreateAt(50);
    EXPECT_EQ(Cut(PixelsOf(dial), kLeft, Letters()), kMinusUp);
    EXPECT_EQ(Cut(PixelsOf(dial), kRight, Letters()), kPlusUp);
    SetDialDirection(dial, 0);
    EXPECT_EQ(Cut(PixelsOf(dial), kLeft, Letters()), kPlusUp);
    EXPECT_EQ(Cut(PixelsOf(dial), kRight, Letters()), kMinusUp);
}

TEST_F(DialPaint, CornerButtonsAreSmallerOnASmallDial) {
    HWND dial = Create(0, 40, 40);
    SetDialPos(dial, 50, TRUE);
    EXPECT_EQ(Cut(PixelsOf(dial), {31, 31, 38, 38}, Letters()),
              (Rows{"HHHHHHS", "H.....S", "H..T..S", "H.TTT.S", "H..T..S", "H.....S", "SSSSSSS"}));
}

TEST_F(DialPaint, CornerButtonsGoDownWhilePressed) {
    HWND dial = CreateAt(50);
    Press(dial, kLeftButton);
    EXPECT_EQ(Cut(PixelsOf(dial), kLeft, Letters()), Pressed(kMinusUp)) << "at once";
    EXPECT_EQ(Cut(PixelsOf(dial), kRight, Letters()), kPlusUp);
    Move(dial, kNorth);
    EXPECT_EQ(Cut(PixelsOf(dial), kLeft, Letters()), kMinusUp) << "while the pointer is away";
    Move(dial, kLeftButton);
    EXPECT_EQ(Cut(PixelsOf(dial), kLeft, Letters()), Pressed(kMinusUp));
    Release(dial, kLeftButton);
    EXPECT_EQ(Cut(PixelsOf(dial), kLeft, Letters()), kMinusUp);
    Press(dial, kRightButton);
    EXPECT_EQ(Cut(PixelsOf(dial), kRight, Letters()), Pressed(kPlusUp));
    SetCapture(host.window());
    EXPECT_EQ(Cut(PixelsOf(dial), kRight, Letters()), kPlusUp) << "the mouse was taken away";
    ReleaseCapture();
}

TEST_F(DialPaint, ADisabledDialHasGraySigns) {
    const ChangedSystemColor gray(COLOR_GRAYTEXT, RGB(1, 2, 3));
    HWND dial = CreateAt(50);
    EnableWindow(dial, FALSE);
    auto letters = Letters();
    letters[RGB(1, 2, 3)] = 'T';
    letters[GetSysColor(COLOR_BTNTEXT)] = '?';
    EXPECT_EQ(Cut(PixelsOf(dial), kLeft, letters), kMinusUp);
    EXPECT_EQ(Cut(PixelsOf(dial), kRight, letters), kPlusUp);
    EnableWindow(dial, TRUE);
    EXPECT_EQ(Cut(PixelsOf(dial), kRight, Letters()), kPlusUp);
}

// ---- The pointer mark ----

// What is red, as black on white.
Pixels Redness(const Pixels& pixels) {
    Pixels red = pixels;
    for (COLORREF& color : red.colors) {
        color = color == kRed ? RGB(0, 0, 0) : RGB(255, 255, 255);
    }
    return red;
}

// A mark of this size around a point.
Pixels Mark(int width, int height, POINT middle, int size) {
    return Drawing(width, height, RGB(255, 255, 255), [&](HDC context) {
        HPEN pen = CreatePen(PS_SOLID, 2, RGB(0, 0, 0));
        HGDIOBJ oldPen = SelectObject(context, pen);
        HGDIOBJ oldBrush = SelectObject(context, GetStockObject(BLACK_BRUSH));
        Ellipse(context, middle.x - size / 2, middle.y - size / 2, middle.x + size / 2,
                middle.y + size / 2);
        SelectObject(context, oldBrush);
        SelectObject(context, oldPen);
        DeleteObject(pen);
    });
}

TEST_F(DialPaint, TheMarkStandsAtThePosition) {
    // Centre (50, 46), radius 42, orbit 39, size 2; 39 x cos 45 = 27.58.
    HWND dial = Create();
    const struct {
        LONG position;
        LONG direction;
        POINT middle;
    } cases[] = {{0, 1, {22, 74}}, {50, 1, {50, 7}}, {100, 1, {78, 74}},
                 {0, 0, {78, 74}}, {50, 0, {50, 7}}, {100, 0, {22, 74}}};
    for (const auto& [position, direction, middle] : cases) {
        SetDialDirection(dial, direction);
        SetDialPos(dial, position, TRUE);
        EXPECT_EQ(Difference(Mark(100, 100, middle, 2), Redness(PixelsOf(dial))), "")
            << position << ", direction " << direction;
    }
}

TEST_F(DialPaint, TheMarkGrowsWithTheKnob) {
    HWND large = Create(0, 400, 400); // centre (200, 196), radius 192, orbit 184, size 18
    SetDialPos(large, 50, TRUE);
    EXPECT_EQ(Difference(Mark(400, 400, {200, 12}, 18), Redness(PixelsOf(large))), "");
    HWND small = Create(0, 40, 40); // centre (20, 16), radius 12, orbit 10, size 2
    SetDialPos(small, 50, TRUE);
    EXPECT_EQ(Difference(Mark(40, 40, {20, 6}, 2), Redness(PixelsOf(small))), "");
}

TEST_F(DialPaint, TheMarkTurnsWithThePositionItself) {
    HWND dial = Create();
    SetDialRange(dial, 50, 150, FALSE); // 100 positions in 270 degrees
    SetDialPos(dial, 50, TRUE);         // -45 + 2.7 x 50 = 90, though 50 is the minimum
    EXPECT_EQ(Difference(Mark(100, 100, {50, 7}, 2), Redness(PixelsOf(dial))), "");
    SetDialPos(dial, 150, TRUE); // 360, mirrored 180: west
    EXPECT_EQ(Difference(Mark(100, 100, {11, 46}, 2), Redness(PixelsOf(dial))), "");
}

TEST_F(DialPaint, TheMarkOfEmptyRangesStandsAtTheStart) {
    HWND dial = Create();
    SetDialRange(dial, 30, 30, TRUE);
    EXPECT_EQ(Difference(Mark(100, 100, {22, 74}, 2), Redness(PixelsOf(dial))), "");
    SetDialRange(dial, 0, 100, FALSE);
    SetDialTurnRange(dial, 90, 90, FALSE);
    SetDialPos(dial, 70, TRUE);
    EXPECT_EQ(Difference(Mark(100, 100, {50, 7}, 2), Redness(PixelsOf(dial))), "");
}

// ---- The knob ----

// Four times the squared distance of a pixel's middle from the middle of the knob's square.
LONG SquaredDistance(const RECT& knob, LONG x, LONG y) {
    const LONG right = 2 * x + 1 - knob.left - knob.right;
    const LONG down = 2 * y + 1 - knob.top - knob.bottom;
    return right * right + down * down;
}

int Brightness(COLORREF color) {
    return GetRValue(color) + GetGValue(color) + GetBValue(color);
}

// Between the knob's darkest and its lightest colour.
int MiddleBrightness() {
    return (Brightness(GetSysColor(COLOR_3DDKSHADOW)) +
            Brightness(GetSysColor(COLOR_BTNHIGHLIGHT))) /
           2;
}

struct Sized {
    int width;
    int height;
    RECT knob;
};
const Sized kSizes[] = {{40, 40, {8, 4, 32, 28}},   {64, 64, {8, 4, 56, 52}},
                        {100, 100, {8, 4, 92, 88}}, {200, 200, {8, 4, 192, 188}},
                        {100, 160, {8, 4, 92, 88}}, {201, 100, {58, 4, 142, 88}}};

// Whether there is something dark, or the mark, where one of 64 rays leaves the knob.
bool HasDarkLine(const Pixels& pixels, const RECT& knob, int ray) {
    const double angle = ray * 2 * std::acos(-1.0) / 64;
    const double radius = static_cast<double>(knob.right - knob.left) / 2;
    for (double distance = radius - 2; distance < radius + 0.5; distance += 0.25) {
        const double x = static_cast<double>(knob.left) + radius + distance * std::cos(angle);
        const double y = static_cast<double>(knob.top) + radius - distance * std::sin(angle);
        const COLORREF color = pixels.At(static_cast<int>(x), static_cast<int>(y));
        if (color == kRed || Brightness(color) < Brightness(GetSysColor(COLOR_BTNFACE)) * 3 / 4) {
            return true;
        }
    }
    return false;
}

TEST_F(DialPaint, AroundTheKnobIsTheButtonFace) {
    for (const Sized& sized : kSizes) {
        HWND dial = Create(0, sized.width, sized.height);
        const Pixels pixels = PixelsOf(dial);
        const LONG side = sized.knob.right - sized.knob.left;
        const LONG cornerTop = sized.height - 15;
        for (LONG y = 0; y < sized.height; ++y) {
            for (LONG x = 0; x < sized.width; ++x) {
                const bool inCorner = y >= cornerTop && (x < 15 || x >= sized.width - 15);
                const COLORREF color = pixels.At(static_cast<int>(x), static_cast<int>(y));
                const bool isKnob = SquaredDistance(sized.knob, x, y) < (side + 1) * (side + 1);
                if (!inCorner && !isKnob && color != kRed) {
                    ASSERT_EQ(color, GetSysColor(COLOR_BTNFACE))
                        << sized.width << " by " << sized.height << ": " << x << ", " << y;
                }
            }
        }
        DestroyWindow(dial);
    }
}

TEST_F(DialPaint, TheKnobIsADiscLitFromTheUpperLeft) {
    for (const Sized& sized : kSizes) {
        HWND dial = Create(0, sized.width, sized.height);
        SetDialPos(dial, 50, TRUE);
        const Pixels pixels = PixelsOf(dial);
        const LONG side = sized.knob.right - sized.knob.left;
        for (int ray = 0; ray < 64; ++ray) {
            EXPECT_TRUE(HasDarkLine(pixels, sized.knob, ray)) << sized.width << ", ray " << ray;
        }
        const auto at = [&](int eighthX, int eighthY) {
            return Brightness(pixels.At(static_cast<int>(sized.knob.left + side * eighthX / 8),
                                        static_cast<int>(sized.knob.top + side * eighthY / 8)));
        };
        EXPECT_GT(at(3, 3), MiddleBrightness());
        EXPECT_LT(at(6, 6), MiddleBrightness());
        EXPECT_GT(at(3, 3), at(4, 4));
        EXPECT_GT(at(4, 4), at(5, 5));
        DestroyWindow(dial);
    }
}

TEST_F(DialPaint, AVeryLargeKnobIsStretched) {
    HWND parent = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 1200, 1020, nullptr,
                                  nullptr, GetModuleHandleA(nullptr), nullptr);
    HWND dial = CreateWindowExA(0, VORN_DIAL_CLASS, "", WS_CHILD | WS_VISIBLE, 0, -160, 1180, 1180,
                                parent, nullptr, GetModuleHandleA(nullptr), nullptr);
    PumpMessages();
    UpdateWindow(dial);
    const Pixels pixels = PixelsOf(dial);
    EXPECT_GT(Brightness(pixels.At(450, 446)), MiddleBrightness());
    EXPECT_LT(Brightness(pixels.At(960, 956)), MiddleBrightness()) << "the disc reaches as far";
    EXPECT_NE(pixels.At(590, 1160), GetSysColor(COLOR_BTNFACE));
    DestroyWindow(parent);
}

// ---- Focus ----

TEST_F(DialPaint, TheFocusIsARectangleAroundAll) {
    for (const int width : {40, 41, 100, 203}) {
        HWND dial = Create(0, width, 100);
        SetFocus(host.window());
        const Pixels without = PixelsOf(dial);
        const Pixels expected = Drawing(width, 100, RGB(0, 0, 0), [&](HDC context) {
            for (int y = 0; y < 100; ++y) {
                for (int x = 0; x < width; ++x) {
                    SetPixel(context, x, y, without.At(x, y));
                }
            }
            const RECT client = {0, 0, width, 100};
            DrawFocusRect(context, &client);
        });
        EXPECT_NE(Difference(without, expected), "");
        SetFocus(dial);
        ASSERT_EQ(GetFocus(), dial);
        EXPECT_EQ(Difference(expected, PixelsOf(dial)), "");
        SetFocus(host.window());
        EXPECT_EQ(Difference(without, PixelsOf(dial)), "");
        DestroyWindow(dial);
    }
}

// ---- System colours ----

TEST_F(DialPaint, FollowsTheSystemColorsWhenItIsTold) {
    HWND dial = CreateAt(50);
    const Pixels before = PixelsOf(dial);
    {
        const ChangedSystemColor face(COLOR_BTNFACE, RGB(0, 0, 96));
        const ChangedSystemColor dark(COLOR_3DDKSHADOW, RGB(0, 64, 0));
        const ChangedSystemColor shadow(COLOR_BTNSHADOW, RGB(0, 32, 0));
        const ChangedSystemColor light(COLOR_BTNHIGHLIGHT, RGB(0, 0, 255));
        SendMessageA(dial, WM_SYSCOLORCHANGE, 0, 0);
        const Pixels pixels = PixelsOf(dial);
        EXPECT_EQ(pixels.At(0, 0), RGB(0, 0, 96));
        int blue = 0;
        int green = 0;
        for (int y = 4; y < 88; ++y) {
            for (int x = 8; x < 92; ++x) {
                const COLORREF color = pixels.At(x, y);
                EXPECT_TRUE(GetRValue(color) == 0 || color == kRed)
                    << "a colour of before at " << x << ", " << y;
                blue += GetBValue(color) > 96;
                green += GetGValue(color) > 16;
            }
        }
        EXPECT_GT(blue, 1000) << "the lit side";
        EXPECT_GT(green, 500) << "the dark side";
    }
    SendMessageA(dial, WM_SYSCOLORCHANGE, 0, 0);
    EXPECT_EQ(Difference(before, PixelsOf(dial)), "");
}

TEST_F(DialPaint, FollowsTheSystemColorsWhenItIsNotTold) {
    HWND dial = CreateAt(50);
    const Pixels before = PixelsOf(dial);
    {
        const ChangedSystemColor light(COLOR_BTNHIGHLIGHT, RGB(1, 255, 1));
        SetDialPos(dial, 50, TRUE);
        EXPECT_GT(GetGValue(PixelsOf(dial).At(35, 31)), GetRValue(PixelsOf(dial).At(35, 31)));
    }
    SetDialPos(dial, 50, TRUE);
    EXPECT_EQ(Difference(before, PixelsOf(dial)), "");
}

// ---- Repainting ----

TEST_F(DialPaint, RepaintsInPartsAsInOne) {
    HWND dial = CreateAt(30, WS_TABSTOP);
    SetFocus(dial);
    const Pixels whole = PixelsOf(dial);
    HDC context = GetDC(dial);
    const RECT client = {0, 0, 100, 100};
    FillRect(context, &client, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    ReleaseDC(dial, context);
    EXPECT_NE(Difference(whole, PixelsOf(dial)), "");
    for (LONG y = 0; y < 100; y += 33) {
        for (LONG x = 0; x < 100; x += 27) {
            const RECT part = {x, y, x + 27, y + 33};
            InvalidateRect(dial, &part, FALSE);
            UpdateWindow(dial);
        }
    }
    EXPECT_EQ(Difference(whole, PixelsOf(dial)), "");
}

TEST_F(DialPaint, ResizingMakesTheFaceAnew) {
    HWND dial = CreateAt(50);
    HWND fresh = host.Create(VORN_DIAL_CLASS, 0, 300, 10, 150, 150);
    SetDialPos(fresh, 50, TRUE);
    SetWindowPos(dial, nullptr, 0, 0, 150, 150, SWP_NOMOVE | SWP_NOZORDER);
    UpdateWindow(dial);
    EXPECT_EQ(Difference(PixelsOf(fresh), PixelsOf(dial)), "");
}

} // namespace
