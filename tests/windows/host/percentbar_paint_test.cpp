// What the percent bar looks like, pixel by pixel.
#include "tests/windows/support/host_window.h"
#include "tests/windows/support/pixels.h"
#include "tests/windows/support/system_color.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace {

using vorn::test::ChangedSystemColor;
using vorn::test::Difference;
using vorn::test::Drawing;
using vorn::test::HostWindow;
using vorn::test::Message;
using vorn::test::Pixels;
using vorn::test::PixelsOf;

constexpr COLORREF kBar = RGB(255, 255, 0);
constexpr COLORREF kFill = RGB(0, 0, 255);
constexpr COLORREF kText = RGB(255, 0, 0);
constexpr COLORREF kBackground = RGB(0, 128, 0);
constexpr COLORREF kHighlight = RGB(255, 0, 255);
constexpr COLORREF kShadow = RGB(0, 255, 255);

class PercentBarPaint : public testing::Test {
protected:
    HostWindow host;
    HBRUSH parentBrush = nullptr;

    PercentBarPaint() {
        host.answer = [this](const Message& message) -> std::optional<LRESULT> {
            if (message.message == WM_CTLCOLORDLG) {
                return reinterpret_cast<LRESULT>(parentBrush);
            }
            return std::nullopt;
        };
    }

    HWND Create(DWORD style, int width, int height) {
        HWND bar = host.Create(VORN_PERCENTBAR_CLASS, style, 10, 10, width, height);
        pbSetColor(bar, VORN_COLOR_FACE, kBar);
        pbSetColor(bar, VORN_COLOR_FILL, kFill);
        pbSetColor(bar, VORN_COLOR_TEXT, kText);
        pbSetColor(bar, VORN_COLOR_BACKGROUND, kBackground);
        pbSetColor(bar, VORN_COLOR_HIGHLIGHT, kHighlight);
        pbSetColor(bar, VORN_COLOR_SHADOW, kShadow);
        return bar;
    }
};

void Fill(HDC context, const RECT& area, COLORREF color) {
    HBRUSH brush = CreateSolidBrush(color);
    FillRect(context, &area, brush);
    DeleteObject(brush);
}

TEST_F(PercentBarPaint, FillsItsShareOfTheBar) {
    HWND bar = Create(0, 90, 20);
    pbSetProgress(bar, 50);
    EXPECT_EQ(Difference(Drawing(90, 20, kBar,
                                 [](HDC context) {
                                     Fill(context, {0, 0, 45, 20}, kFill);
                                 }),
                         PixelsOf(bar)),
              "");
}

TEST_F(PercentBarPaint, ShowsAnEmptyBarForALimitOfZeroAndForNegativeProgress) {
    const Pixels empty = Drawing(90, 20, kBar, [](HDC) {});
    HWND bar = Create(0, 90, 20);
    EXPECT_EQ(Difference(empty, PixelsOf(bar)), "");
    pbSetProgress(bar, -40);
    EXPECT_EQ(Difference(empty, PixelsOf(bar)), "");
    pbSetProgress(bar, 50);
    pbSetLimit(bar, 0);
    EXPECT_EQ(Difference(empty, PixelsOf(bar)), "");
}

// The percentage as it must stand: centred, in the fill's colour, and over the fill in the bar's.
Pixels BarWithPercentage(int width, int height, int fillWidth, const char* text, HFONT font) {
    return Drawing(width, height, kBar, [&](HDC context) {
        SelectObject(context, font);
        SetBkMode(context, TRANSPARENT);
        RECT measured{};
        DrawTextA(context, text, -1, &measured, DT_SINGLELINE | DT_CALCRECT);
        const LONG left = (width - measured.right) / 2;
        RECT whole = {left, 0, left + measured.right, height};
        SetTextColor(context, kFill);
        DrawTextA(context, text, -1, &whole, DT_SINGLELINE | DT_VCENTER);
        const RECT filled = {0, 0, fillWidth, height};
        Fill(context, filled, kFill);
        RECT over = {left, 0, fillWidth, height};
        SetTextColor(context, kBar);
        if (left < fillWidth) {
            DrawTextA(context, text, -1, &over, DT_SINGLELINE | DT_VCENTER);
        }
        SelectObject(context, GetStockObject(SYSTEM_FONT));
    });
}

TEST_F(PercentBarPaint, WritesThePercentageInTwoColors) {
    HWND bar = Create(VPBS_PERCENT, 120, 24);
    HFONT system = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    const struct {
        LONG progress;
        int fillWidth;
        const char* text;
    } cases[] = {{0, 0, "0%"},    {10, 12, "10%"},    {45, 54, "45%"},
                 {50, 60, "50%"}, {100, 120, "100%"}, {-5, 0, "-5%"}};
    for (const auto& [progress, fillWidth, text] : cases) {
        pbSetProgress(bar, progress);
        EXPECT_EQ(Difference(BarWithPercentage(120, 24, fillWidth, text, system), PixelsOf(bar)),
                  "")
            << text;
    }
}

TEST_F(PercentBarPaint, WritesATruncatedPercentage) {
    HWND bar = Create(VPBS_PERCENT, 120, 24);
    pbSetLimit(bar, 3);
    pbSetProgress(bar, 1);
    HFONT system = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(Difference(BarWithPercentage(120, 24, 40, "33%", system), PixelsOf(bar)), "");
    pbSetLimit(bar, 0);
    EXPECT_EQ(Difference(BarWithPercentage(120, 24, 0, "0%", system), PixelsOf(bar)), "");
}

TEST_F(PercentBarPaint, WritesThePercentageInItsOwnFont) {
    HFONT font =
        CreateFontA(20, 0, 0, 0, FW_BOLD, 0, 0, 0, 0, 0, 0, NONANTIALIASED_QUALITY, 0, "Arial");
    HWND bar = Create(VPBS_PERCENT, 120, 24);
    pbSetProgress(bar, 45);
    pbSetPercentFont(bar, font);
    EXPECT_EQ(Difference(BarWithPercentage(120, 24, 54, "45%", font), PixelsOf(bar)), "");
    pbSetPercentFont(bar, nullptr);
    SendMessageA(bar, VPBM_SETPERCENTFONT, reinterpret_cast<WPARAM>(font), 0);
    EXPECT_EQ(Difference(BarWithPercentage(120, 24, 54, "45%", font), PixelsOf(bar)), "")
        << "by message";
    pbSetPercentFont(bar, nullptr);
    HFONT system = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(Difference(BarWithPercentage(120, 24, 54, "45%", system), PixelsOf(bar)), "");
    DeleteObject(font);
}

// The colours' letters: outer edge (white where the parent sets none), bar, fill, ...
std::map<COLORREF, char> Letters() {
    return {{kBar, '.'},
            {kFill, '#'},
            {kBackground, 'g'},
            {kHighlight, 'B'},
            {kShadow, 'A'},
            {RGB(255, 255, 255), 'C'},
            {GetSysColor(COLOR_WINDOWFRAME), 'W'}};
}

TEST_F(PercentBarPaint, HasThreeFrames) {
    HWND bar = Create(VPBS_LINE, 10, 7);
    pbSetProgress(bar, 50);
    EXPECT_EQ(PixelsOf(bar).Letters(Letters()), (std::vector<std::string>{
                                                    "WWWWWWWWWW",
                                                    "W####....W",
                                                    "W####....W",
                                                    "W####....W",
                                                    "W####....W",
                                                    "W####....W",
                                                    "WWWWWWWWWW",
                                                }));
    pbSetBorderStyle(bar, VORN_BORDER_RAISED);
    EXPECT_EQ(PixelsOf(bar).Letters(Letters()), (std::vector<std::string>{
                                                    "CCCCCCCCCW",
                                                    "CBBBBBBBAW",
                                                    "CB###...AW",
                                                    "CB###...AW",
                                                    "CB###...AW",
                                                    "CAAAAAAAAW",
                                                    "WWWWWWWWWW",
                                                }));
    pbSetBorderStyle(bar, VORN_BORDER_SUNKEN);
    EXPECT_EQ(PixelsOf(bar).Letters(Letters()), (std::vector<std::string>{
                                                    "AAAAAAAAAB",
                                                    "AWWWWWWWCB",
                                                    "AW###...CB",
                                                    "AW###...CB",
                                                    "AW###...CB",
                                                    "AWCCCCCCCB",
                                                    "BBBBBBBBBB",
                                                }));
    pbSetBorderStyle(bar, 7);
    EXPECT_EQ(PixelsOf(bar).Letters(Letters()), (std::vector<std::string>(7, "#####.....")))
        << "neither frame nor inset";
}

TEST_F(PercentBarPaint, HasTicksInsideTheBar) {
    HWND bar = Create(VPBS_TICKMARKS, 40, 8);
    const COLORREF frame = GetSysColor(COLOR_WINDOWFRAME);
    const Pixels pixels = PixelsOf(bar);
    for (int x = 0; x < 40; ++x) {
        // Long ticks at 4, 8 ... 36; short ones at 2, 6 ... 38, five pixels high.
        const bool isLong = x % 4 == 0 && x != 0;
        const bool isShort = x % 4 == 2;
        for (int y = 0; y < 8; ++y) {
            const bool tick = isLong || (isShort && y >= 3);
            EXPECT_EQ(pixels.At(x, y), tick ? frame : kBar) << x << ", " << y;
        }
    }
}

// A quarter full bar with its scale, as they must stand.
Pixels BarWithScale(HFONT font) {
    return Drawing(300, 60, kBackground, [&](HDC context) {
        TEXTMETRICA metrics{};
        SelectObject(context, font);
        GetTextMetricsA(context, &metrics);
        const int left = static_cast<int>(metrics.tmMaxCharWidth);
        const int right = 300 - left;
        const int bottom =
            60 - static_cast<int>(metrics.tmHeight + metrics.tmAscent + metrics.tmInternalLeading);
        Fill(context, {left, 0, right, bottom}, kBar);
        Fill(context, {left, 0, left + (right - left) / 4, bottom}, kFill);
        SetBkMode(context, TRANSPARENT);
        SetTextColor(context, kText);
        for (int value = 0; value <= 100; value += 10) {
            const std::string label = std::to_string(value);
            SIZE size{};
            GetTextExtentPoint32A(context, label.c_str(), static_cast<int>(label.size()), &size);
            TextOutA(context, left + value * (right - left) / 100 - static_cast<int>(size.cx) / 2,
                     bottom + 4, label.c_str(), static_cast<int>(label.size()));
        }
        SelectObject(context, GetStockObject(SYSTEM_FONT));
    });
}

TEST_F(PercentBarPaint, HasAScaleUnderTheBar) {
    HWND bar = Create(VPBS_SCALETEXT, 300, 60);
    pbSetProgress(bar, 25);
    const Pixels expected = BarWithScale(static_cast<HFONT>(GetStockObject(SYSTEM_FONT)));
    EXPECT_EQ(Difference(expected, PixelsOf(bar)), "");
    EXPECT_GT(PixelsOf(bar).Count({0, 0, 300, 60}, kText), 50) << "the labels can be seen";
}

TEST_F(PercentBarPaint, HasTheScaleInItsOwnFont) {
    HFONT font =
        CreateFontA(12, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, NONANTIALIASED_QUALITY, 0, "Arial");
    HWND bar = Create(VPBS_SCALETEXT, 300, 60);
    SendMessageA(bar, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    // By the bar alone: its rectangle follows the font as well.
    pbSetProgress(bar, 25);
    EXPECT_EQ(Difference(BarWithScale(font), PixelsOf(bar)), "");
    DestroyWindow(bar);
    DeleteObject(font);
}

TEST_F(PercentBarPaint, HasNoFrameOfTheSystems) {
    HWND bar = CreateWindowExA(WS_EX_CLIENTEDGE, VORN_PERCENTBAR_CLASS, "",
                               WS_CHILD | WS_VISIBLE | WS_BORDER, 10, 10, 60, 20, host.window(),
                               nullptr, GetModuleHandleA(nullptr), nullptr);
    pbSetColor(bar, VORN_COLOR_FACE, kBar);
    RedrawWindow(bar, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
    EXPECT_EQ(Difference(Drawing(60, 20, kBar, [](HDC) {}), PixelsOf(bar)), "");
}

TEST_F(PercentBarPaint, TakesTheParentsBrushAndColors) {
    constexpr COLORREF kParentBack = RGB(10, 20, 30);
    constexpr COLORREF kParentText = RGB(200, 100, 50);
    constexpr COLORREF kParentBrush = RGB(90, 80, 70);
    HWND bar = Create(VPBS_RAISED | VPBS_SCALETEXT, 300, 60);
    HBRUSH brush = CreateSolidBrush(kParentBrush);
    COLORREF textColorBefore = 0;
    HWND asking = nullptr;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message != WM_CTLCOLORDLG) {
            return std::nullopt;
        }
        HDC context = reinterpret_cast<HDC>(message.wParam);
        asking = reinterpret_cast<HWND>(message.lParam);
        textColorBefore = GetTextColor(context);
        SetTextColor(context, kParentText);
        SetBkColor(context, kParentBack);
        return reinterpret_cast<LRESULT>(brush);
    };
    pbEnableText(bar, TRUE);
    const Pixels pixels = PixelsOf(bar);
    EXPECT_EQ(asking, bar);
    EXPECT_EQ(textColorBefore, kText);
    EXPECT_EQ(pixels.At(0, 0), kParentBrush);
    EXPECT_EQ(pixels.At(299, 59), kParentBrush);
    EXPECT_EQ(pixels.Count({0, 0, 300, 60}, kBackground), 0);
    EXPECT_EQ(pixels.Count({0, 0, 300, 60}, kText), 0);
    EXPECT_GT(pixels.Count({0, 30, 300, 60}, kParentText), 50) << "the scale";
    EXPECT_GT(pixels.Count({0, 0, 300, 1}, kParentBack), 200) << "the frame's outer edge";
    DeleteObject(brush);
}

TEST_F(PercentBarPaint, EverySlotFollowsTheSystemColors) {
    for (const int slot : {VORN_COLOR_HIGHLIGHT, VORN_COLOR_SHADOW, VORN_COLOR_FACE,
                           VORN_COLOR_TEXT, VORN_COLOR_BACKGROUND, VORN_COLOR_FILL}) {
        HWND bar = Create(VPBS_RAISED | VPBS_SCALETEXT, 300, 60);
        pbSetProgress(bar, 50);
        pbSetColor(bar, slot, VORN_SYSCOLOR(COLOR_INFOBK));
        const RECT all = {0, 0, 300, 60};
        EXPECT_GT(PixelsOf(bar).Count(all, GetSysColor(COLOR_INFOBK)), 30) << slot;
        {
            const ChangedSystemColor changed(COLOR_INFOBK, RGB(1, 2, 3));
            InvalidateRect(bar, nullptr, FALSE);
            UpdateWindow(bar);
            EXPECT_GT(PixelsOf(bar).Count(all, RGB(1, 2, 3)), 30) << slot;
        }
        DestroyWindow(bar);
    }
}

TEST_F(PercentBarPaint, FreshControlsHaveTheSystemsColors) {
    const ChangedSystemColor window(COLOR_WINDOW, RGB(1, 0, 0));
    const ChangedSystemColor text(COLOR_WINDOWTEXT, RGB(2, 0, 0));
    const ChangedSystemColor light(COLOR_BTNHIGHLIGHT, RGB(3, 0, 0));
    const ChangedSystemColor shadow(COLOR_BTNSHADOW, RGB(4, 0, 0));
    const ChangedSystemColor face(COLOR_BTNFACE, RGB(5, 0, 0));
    const ChangedSystemColor fill(COLOR_HIGHLIGHT, RGB(6, 0, 0));
    HWND bar = host.Create(VORN_PERCENTBAR_CLASS, VPBS_RAISED | VPBS_SCALETEXT, 10, 10, 300, 60);
    pbSetProgress(bar, 50);
    const Pixels pixels = PixelsOf(bar);
    EXPECT_EQ(pixels.At(200, 5), RGB(1, 0, 0));
    EXPECT_GT(pixels.Count({0, 20, 300, 60}, RGB(2, 0, 0)), 50) << "the scale";
    EXPECT_GT(pixels.Count({0, 0, 300, 30}, RGB(3, 0, 0)), 100) << "the frame's light side";
    EXPECT_GT(pixels.Count({0, 0, 300, 60}, RGB(4, 0, 0)), 100) << "and its dark side";
    EXPECT_EQ(pixels.At(0, 59), RGB(5, 0, 0));
    EXPECT_EQ(pixels.At(100, 5), RGB(6, 0, 0));
}

TEST_F(PercentBarPaint, KeepsASmallBarWhenTheScaleHasNoRoom) {
    HWND bar = Create(VPBS_SCALETEXT, 60, 14);
    TEXTMETRICA metrics{};
    HDC context = GetDC(nullptr);
    SelectObject(context, GetStockObject(SYSTEM_FONT));
    GetTextMetricsA(context, &metrics);
    ReleaseDC(nullptr, context);
    const LONG left = metrics.tmMaxCharWidth;
    const LONG right = std::max(60 - left, left + 10);
    const Pixels pixels = PixelsOf(bar);
    EXPECT_EQ(pixels.Count({left, 0, std::min<LONG>(right, 60), 10}, kBar),
              (std::min<LONG>(right, 60) - left) * 10);
    EXPECT_EQ(pixels.Count({0, 10, 60, 14}, kBar), 0);
}

TEST_F(PercentBarPaint, MessagesSetTheColorsOfTheirSlots) {
    HWND bar = Create(VPBS_SCALETEXT, 300, 60);
    SendMessageA(bar, VPBM_SETBARCOLOR, 0, RGB(1, 1, 1));
    SendMessageA(bar, VPBM_SETBACKGROUNDCOLOR, 0, RGB(2, 2, 2));
    SendMessageA(bar, VPBM_SETFILLCOLOR, 0, RGB(3, 3, 3));
    SendMessageA(bar, VPBM_SETTEXTCOLOR, 0, RGB(4, 4, 4));
    pbSetProgress(bar, 50);
    const Pixels pixels = PixelsOf(bar);
    EXPECT_EQ(pixels.At(200, 5), RGB(1, 1, 1));
    EXPECT_EQ(pixels.At(0, 0), RGB(2, 2, 2));
    EXPECT_EQ(pixels.At(100, 5), RGB(3, 3, 3));
    EXPECT_GT(pixels.Count({0, 20, 300, 60}, RGB(4, 4, 4)), 50);
}

} // namespace
