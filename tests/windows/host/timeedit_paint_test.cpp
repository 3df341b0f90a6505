// What a time edit looks like.
#include "tests/windows/support/pixels.h"
#include "tests/windows/support/system_color.h"
#include "tests/windows/support/time_host.h"

namespace {

using vorn::test::Difference;
using vorn::test::Drawing;
using vorn::test::Pixels;
using vorn::test::PixelsOf;
using vorn::test::PumpMessages;

constexpr int kWidth = 200;
constexpr int kHeight = 24;
constexpr COLORREF kInk = RGB(200, 0, 0);
constexpr COLORREF kPaper = RGB(250, 250, 200);

class TimeEditPaint : public vorn::test::TimeEditTest {
protected:
    static COLORREF System(int index) { return GetSysColor(index); }

    // The text as the system writes it, in an edit without a border.
    static Pixels Written(const char* text, COLORREF paper, COLORREF ink,
                          HFONT font = static_cast<HFONT>(GetStockObject(SYSTEM_FONT))) {
        return Drawing(kWidth, kHeight, paper, [&](HDC context) {
            SelectObject(context, font);
            TEXTMETRICA metrics{};
            GetTextMetricsA(context, &metrics);
            SetBkMode(context, TRANSPARENT);
            SetTextColor(context, ink);
            TextOutA(context, 4, (kHeight - metrics.tmHeight) / 2, text, lstrlenA(text));
        });
    }

    static Pixels Shown(HWND edit) {
        UpdateWindow(edit);
        PumpMessages();
        return PixelsOf(edit);
    }
};

TEST_F(TimeEditPaint, WritesItsText) {
    HWND edit = CreateAt(14, 5, 9);
    EXPECT_EQ(Difference(Written("2:05:09 PM", System(COLOR_WINDOW), System(COLOR_WINDOWTEXT)),
                         Shown(edit)),
              "");
    Set(edit, 3, 4, 5);
    EXPECT_EQ(Difference(Written("3:04:05 AM", System(COLOR_WINDOW), System(COLOR_WINDOWTEXT)),
                         PixelsOf(edit)),
              "")
        << "at once";
    tmSetNull(edit);
    EXPECT_EQ(PixelsOf(edit).Count({0, 0, kWidth, kHeight}, System(COLOR_WINDOW)),
              kWidth * kHeight);
}

TEST_F(TimeEditPaint, UsesItsColors) {
    HWND edit = CreateAt(14, 5, 9);
    EXPECT_NE(tmSetColor(edit, VORN_COLOR_FACE, kPaper), 0);
    EXPECT_NE(tmSetColor(edit, VORN_COLOR_TEXT, kInk), 0);
    EXPECT_EQ(Difference(Written("2:05:09 PM", kPaper, kInk), PixelsOf(edit)), "");
    EXPECT_NE(tmSetColor(edit, 16, RGB(1, 2, 3)), 0) << "no slot of its";
    EXPECT_EQ(Difference(Written("2:05:09 PM", kPaper, kInk), PixelsOf(edit)), "");
    SendMessageA(edit, VTMM_SETBACKGROUNDCOLOR, 0, static_cast<LPARAM>(kInk));
    SendMessageA(edit, VTMM_SETTEXTCOLOR, 0, static_cast<LPARAM>(VORN_SYSCOLOR(COLOR_WINDOW)));
    EXPECT_EQ(Difference(Written("2:05:09 PM", kInk, System(COLOR_WINDOW)), PixelsOf(edit)), "");
}

TEST_F(TimeEditPaint, UsesItsFont) {
    HFONT font =
        CreateFontA(-14, 0, 0, 0, 700, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
    HWND edit = CreateAt(14, 5, 9);
    SendMessageA(edit, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    EXPECT_EQ(SendMessageA(edit, WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(font));
    EXPECT_EQ(
        Difference(Written("2:05:09 PM", System(COLOR_WINDOW), System(COLOR_WINDOWTEXT), font),
                   Shown(edit)),
        "");
    DestroyWindow(edit);
    EXPECT_NE(DeleteObject(font), 0) << "it was the host's";
}

TEST_F(TimeEditPaint, MarksTheSelectionWhileItHasTheFocus) {
    HWND edit = CreateFocused(14, 5, 9);
    HideCaret(edit);
    const int selected = Shown(edit).Count({0, 0, kWidth, kHeight}, System(COLOR_HIGHLIGHT));
    EXPECT_GT(selected, 50);
    SendMessageA(edit, EM_SETSEL, 0, 8);
    EXPECT_GT(Shown(edit).Count({0, 0, kWidth, kHeight}, System(COLOR_HIGHLIGHT)), 2 * selected);
    SetFocus(host.window());
    EXPECT_EQ(Difference(Written("2:05:09 PM", System(COLOR_WINDOW), System(COLOR_WINDOWTEXT)),
                         Shown(edit)),
              "");
}

TEST_F(TimeEditPaint, RepaintsEverythingWithoutErasing) {
    HWND edit = CreateAt(14, 5, 9);
    const Pixels before = Shown(edit);
    HDC context = GetDC(edit);
    const RECT spoiled = {0, 0, kWidth, kHeight};
    FillRect(context, &spoiled, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    ReleaseDC(edit, context);
    InvalidateRect(edit, nullptr, FALSE);
    EXPECT_EQ(Difference(before, Shown(edit)), "");
}

// ---- Borders ----

TEST_F(TimeEditPaint, DrawsTheBordersOfItsStyles) {
    const COLORREF light = RGB(255, 0, 0);
    const COLORREF dark = RGB(0, 0, 255);
    const COLORREF face = RGB(0, 255, 0);
    // The outermost pixels of the left side and of the right one.
    const auto sides = [&](HWND edit) {
        tmSetNull(edit);
        tmSetColor(edit, VORN_COLOR_HIGHLIGHT, light);
        tmSetColor(edit, VORN_COLOR_SHADOW, dark);
        tmSetColor(edit, VORN_COLOR_BACKGROUND, face);
        const Pixels pixels = PixelsOf(edit);
        const std::vector<std::string> rows = pixels.Letters({{light, 'L'},
                                                              {dark, 'D'},
                                                              {face, 'F'},
                                                              {System(COLOR_WINDOWFRAME), 'W'},
                                                              {System(COLOR_WINDOW), ' '}});
        const std::string& row = rows[static_cast<std::size_t>(pixels.height) / 2];
        return row.substr(0, 3) + row.substr(row.size() - 3);
    };
    const std::string raised = "FL  DW"; // as all controls of the library have it
    const std::string sunken = "DW  FL";
    EXPECT_EQ(sides(Create(VTMS_RAISED)), raised);
    EXPECT_EQ(sides(Create(VTMS_SUNKEN)), sunken);
    EXPECT_EQ(sides(Create(VTMS_RAISED | VTMS_SUNKEN | VTMS_LINE)), raised);
    EXPECT_EQ(sides(Create(VTMS_LINE)), "W    W");
    EXPECT_EQ(sides(Create(0)), "      ");
    HWND later = Create(0);
    tmSetBorderStyle(later, VORN_BORDER_RAISED);
    EXPECT_EQ(sides(later), raised) << "2 is the raised one, however it was set";
    tmSetBorderStyle(later, VORN_BORDER_SUNKEN);
    EXPECT_EQ(sides(later), sunken);
}

// ---- Display styles ----

TEST_F(TimeEditPaint, EachDisplayStyleHasItsLook) {
    HWND plain = CreateAt(14, 5, 9);
    const Pixels plainPixels = Shown(plain);
    DestroyWindow(plain);
    HWND digits = CreateAt(14, 5, 9, VTMS_SECONDS | VTMS_DIGITS);
    const Pixels digitPixels = Shown(digits);
    DestroyWindow(digits);
    HWND cells = CreateAt(14, 5, 9, VTMS_SECONDS | VTMS_CELLS | VTMS_DIGITS);
    const Pixels cellPixels = Shown(cells);
    EXPECT_NE(plainPixels, digitPixels);
    EXPECT_NE(plainPixels, cellPixels);
    EXPECT_NE(digitPixels, cellPixels);
    tmSetDisplayStyle(cells, VTMD_TEXT);
    EXPECT_EQ(Difference(plainPixels, PixelsOf(cells)), "") << "and back";
    tmSetDisplayStyle(cells, VTMD_DIGITS);
    EXPECT_EQ(Difference(digitPixels, PixelsOf(cells)), "");
    tmSetDisplayStyle(cells, 9);
    EXPECT_EQ((GetWindowLongA(cells, GWL_STYLE) & 0x30), 0);
}

} // namespace
