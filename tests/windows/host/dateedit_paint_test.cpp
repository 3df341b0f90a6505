// What the date edit looks like, pixel by pixel.
#include "tests/windows/host/dateedit_host.h"
#include "tests/windows/support/pixels.h"
#include "tests/windows/support/system_color.h"

#include <algorithm>

namespace {

using vorn::test::ChangedSystemColor;
using vorn::test::DateEditHost;
using vorn::test::Difference;
using vorn::test::Drawing;
using vorn::test::Form;
using vorn::test::Pixels;
using vorn::test::PixelsOf;

constexpr COLORREF kField = RGB(255, 255, 0);
constexpr COLORREF kText = RGB(0, 0, 255);
constexpr COLORREF kHighlight = RGB(255, 0, 255);
constexpr COLORREF kShadow = RGB(0, 255, 255);
constexpr COLORREF kFace = RGB(0, 128, 0);
constexpr COLORREF kFrame = RGB(128, 0, 0);
constexpr COLORREF kSelection = RGB(0, 0, 64);
constexpr COLORREF kSelectedText = RGB(255, 255, 192);

class DateEditPaint : public DateEditHost {
protected:
    ChangedSystemColor frame{COLOR_WINDOWFRAME, kFrame};
    ChangedSystemColor selection{COLOR_HIGHLIGHT, kSelection};
    ChangedSystemColor selectedText{COLOR_HIGHLIGHTTEXT, kSelectedText};

    HWND CreateColored(DWORD style, int width = 120, int height = 24) {
        HWND edit = Create(style, Form::MonthFirst, width, height);
        dtSetColor(edit, VORN_COLOR_FACE, kField);
        dtSetColor(edit, VORN_COLOR_TEXT, kText);
        dtSetColor(edit, VORN_COLOR_HIGHLIGHT, kHighlight);
        dtSetColor(edit, VORN_COLOR_SHADOW, kShadow);
        dtSetColor(edit, VORN_COLOR_BACKGROUND, kFace);
        return edit;
    }

    // The picture without the caret, which blinks.
    static Pixels Shown(HWND edit) {
        HideCaret(edit);
        const Pixels pixels = PixelsOf(edit);
        ShowCaret(edit);
        return pixels;
    }

    // A text as GDI writes it in the stock font, `selectedFrom` to `selectedTo` as selected.
    static Pixels Written(const char* text, int selectedFrom = 0, int selectedTo = 0) {
        return Drawing(120, 24, kField, [=](HDC context) {
            SelectObject(context, GetStockObject(SYSTEM_FONT));
            TEXTMETRICA metrics{};
            GetTextMetricsA(context, &metrics);
            int x = 4;
            for (int index = 0; text[index] != '\0'; ++index) {
                const bool isSelected = index >= selectedFrom && index < selectedTo;
                SetBkColor(context, isSelected ? kSelection : kField);
                SetTextColor(context, isSelected ? kSelectedText : kText);
                TextOutA(context, x, (24 - metrics.tmHeight) / 2, text + index, 1);
                SIZE size{};
                GetTextExtentPoint32A(context, text + index, 1, &size);
                x += size.cx;
            }
        });
    }
};

TEST_F(DateEditPaint, WritesItsTextInItsColours) {
    EXPECT_EQ(Difference(Written("3/5/2007"), PixelsOf(CreateColored(0))), "");
}

TEST_F(DateEditPaint, ShowsWhatIsSelectedWhileItHasTheFocus) {
    HWND edit = CreateColored(0);
    SetFocus(edit);
    EXPECT_EQ(Difference(Written("3 /5 /2007", 0, 2), Shown(edit)), "");
    Select(edit, 4, 8);
    EXPECT_EQ(Difference(Written("3 /5 /2007", 4, 8), Shown(edit)), "");
    SetFocus(host.window());
    EXPECT_EQ(Difference(Written("3/5/2007"), PixelsOf(edit)), "");
}

TEST_F(DateEditPaint, AnEmptyOneIsAField) {
    HWND edit = CreateColored(0);
    dtSetNull(edit);
    EXPECT_EQ(PixelsOf(edit).Count({0, 0, 120, 24}, kField), 120 * 24);
}

TEST_F(DateEditPaint, LooksLikeTheSystemsWhereItCannotBeEdited) {
    HWND edit = Create(0);
    const COLORREF window = GetSysColor(COLOR_WINDOW);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    EXPECT_EQ(PixelsOf(edit).At(0, 0), window);
    SendMessageA(edit, EM_SETREADONLY, TRUE, 0);
    EXPECT_EQ(PixelsOf(edit).At(0, 0), face);
    EXPECT_GT(PixelsOf(edit).Count({0, 0, 120, 24}, GetSysColor(COLOR_WINDOWTEXT)), 20);
    SendMessageA(edit, EM_SETREADONLY, FALSE, 0);
    EnableWindow(edit, FALSE);
    EXPECT_EQ(PixelsOf(edit).At(0, 0), face);
    EXPECT_EQ(PixelsOf(edit).Count({0, 0, 120, 24}, GetSysColor(COLOR_WINDOWTEXT)), 0);
    EXPECT_GT(PixelsOf(edit).Count({0, 0, 120, 24}, GetSysColor(COLOR_GRAYTEXT)), 20);
    EXPECT_EQ(PixelsOf(Create(WS_DISABLED)).At(0, 0), face);
    EnableWindow(edit, TRUE);
    EXPECT_EQ(PixelsOf(edit).At(0, 0), window);
}

std::vector<std::string> Corner(const Pixels& pixels, bool bottomRight) {
    const std::vector<std::string> rows = pixels.Letters(
        {{kHighlight, 'h'}, {kShadow, 's'}, {kFace, 'f'}, {kFrame, 'X'}, {kField, '.'}});
    std::vector<std::string> corner;
    for (std::size_t row = 0; row < 4; ++row) {
        const std::string& line = rows[bottomRight ? rows.size() - 4 + row : row];
        corner.push_back(bottomRight ? line.substr(line.size() - 4) : line.substr(0, 4));
    }
    return corner;
}

using Rows = std::vector<std::string>;

TEST_F(DateEditPaint, HasTheBorderOfItsStyle) {
    const Pixels line = PixelsOf(CreateColored(VDTS_LINE));
    EXPECT_EQ(Corner(line, false), (Rows{"XXXX", "X...", "X...", "X..."}));
    EXPECT_EQ(Corner(line, true), (Rows{"...X", "...X", "...X", "XXXX"}));
    const Pixels raised = PixelsOf(CreateColored(VDTS_RAISED));
    EXPECT_EQ(Corner(raised, false), (Rows{"ffff", "fhhh", "fh..", "fh.."}));
    EXPECT_EQ(Corner(raised, true), (Rows{"..sX", "..sX", "sssX", "XXXX"}));
    const Pixels sunken = PixelsOf(CreateColored(VDTS_SUNKEN));
    EXPECT_EQ(Corner(sunken, false), (Rows{"ssss", "sXXX", "sX..", "sX.."}));
    EXPECT_EQ(Corner(sunken, true), (Rows{"..fh", "..fh", "fffh", "hhhh"}));
}

TEST_F(DateEditPaint, ShowsANewBorder) {
    HWND edit = CreateColored(0);
    dtSetBorderStyle(edit, 1);
    UpdateWindow(edit);
    EXPECT_EQ(Corner(PixelsOf(edit), true), (Rows{"...X", "...X", "...X", "XXXX"}));
    dtSetBorderStyle(edit, 3);
    UpdateWindow(edit);
    EXPECT_EQ(Corner(PixelsOf(edit), false), (Rows{"ssss", "sXXX", "sX..", "sX.."}));
    dtSetColor(edit, VORN_COLOR_SHADOW, kHighlight);
    EXPECT_EQ(Corner(PixelsOf(edit), false), (Rows{"hhhh", "hXXX", "hX..", "hX.."}));
}

// Cells as wide as the widest character and two pixels more.
int CellWidth() {
    TEXTMETRICA metrics{};
    HDC screen = GetDC(nullptr);
    SelectObject(screen, GetStockObject(SYSTEM_FONT));
    GetTextMetricsA(screen, &metrics);
    ReleaseDC(nullptr, screen);
    return metrics.tmMaxCharWidth + 2;
}

TEST_F(DateEditPaint, RulesEvenCells) {
    const int cell = CellWidth();
    const int width = 4 + 12 * cell;
    HWND edit = CreateColored(VDTS_CELLS, width, 24);
    const Pixels pixels = PixelsOf(edit);
    EXPECT_EQ(pixels.Count({0, 0, 3, 24}, kField), 3 * 24) << "before the first cell";
    for (int index = 0; index <= 12; ++index) {
        const int x = 3 + index * cell;
        EXPECT_EQ(pixels.Count({x, 0, x + 1, 24}, kShadow), 24) << index;
    }
    EXPECT_EQ(pixels.Count({4, 0, width, 1}, kShadow), width - 4);
    EXPECT_EQ(pixels.Count({4, 23, width, 24}, kShadow), width - 4);
    EXPECT_EQ(pixels.Count({4, 0, width, 24}, kShadow), 12 * 24 + 2 * (width - 4 - 12));
    // Ink stands in the first eight cells, the slash's too, with as much room left as right.
    for (int index = 0; index < 12; ++index) {
        const RECT inside = {4 + index * cell, 1, 3 + (index + 1) * cell, 23};
        EXPECT_EQ(pixels.Count(inside, kText) > 0, index < 8) << index;
    }
}

TEST_F(DateEditPaint, SelectsWholeCells) {
    const int cell = CellWidth();
    HWND edit = CreateColored(VDTS_CELLS, 4 + 12 * cell, 24);
    SetFocus(edit);
    Select(edit, 3, 5);
    const Pixels pixels = Shown(edit);
    for (int index = 0; index < 10; ++index) {
        const RECT inside = {4 + index * cell, 1, 3 + (index + 1) * cell, 23};
        const int area = (cell - 1) * 22;
        const bool isSelected = index >= 3 && index < 5;
        EXPECT_EQ(pixels.Count(inside, isSelected ? kSelection : kField) +
                      pixels.Count(inside, isSelected ? kSelectedText : kText),
                  area)
            << index;
        EXPECT_EQ(pixels.Count(inside, isSelected ? kText : kSelectedText), 0) << index;
    }
}

// The stock system font has digits of 12 by 22 pixels: a "2" has its upper right, not its upper
// left, and its lower left, not its lower right segment.
TEST_F(DateEditPaint, DrawsDigits) {
    HWND edit = CreateColored(VDTS_DIGITS, 160, 30);
    ASSERT_EQ(SendMessageA(edit, EM_SETSEL, 0, 0), 0);
    dtSetDateString(edit, "2/7/2222");
    const Pixels pixels = PixelsOf(edit);
    const auto segment = [&](int index, int x, int y, int width, int height) {
        const int left = 4 + index * 12 + x;
        return pixels.Count({left, 4 + y, left + width, 4 + y + height}, kText);
    };
    for (const int index : {0, 4, 5, 6, 7}) {
        EXPECT_EQ(segment(index, 4, 0, 4, 3), 4 * 3) << "top";
        EXPECT_EQ(segment(index, 8, 4, 3, 3), 3 * 3) << "upper right";
        EXPECT_EQ(segment(index, 1, 4, 3, 3), 0) << "upper left";
        EXPECT_EQ(segment(index, 1, 14, 3, 3), 3 * 3) << "lower left";
        EXPECT_EQ(segment(index, 8, 14, 3, 3), 0) << "lower right";
        EXPECT_EQ(segment(index, 4, 19, 4, 3), 4 * 3) << "bottom";
    }
    EXPECT_EQ(segment(2, 4, 0, 4, 3), 4 * 3) << "the 7's top";
    EXPECT_EQ(segment(2, 1, 10, 3, 12), 0) << "and nothing at its lower left";
    EXPECT_EQ(pixels.Count({0, 0, 160, 30}, kText) + pixels.Count({0, 0, 160, 30}, kField),
              160 * 30)
        << "in the colours of the host alone";
    SetFocus(edit);
    Select(edit, 3, 4);
    const RECT selected = {4 + 3 * 12, 4, 4 + 4 * 12, 4 + 22};
    const Pixels focused = Shown(edit);
    EXPECT_EQ(focused.Count(selected, kSelection) + focused.Count(selected, kSelectedText),
              12 * 22);
    EXPECT_EQ(focused.Count({0, 0, 160, 30}, kSelection) +
                  focused.Count({0, 0, 160, 30}, kSelectedText),
              12 * 22)
        << "nothing else is selected";
}

HFONT MakeFont(int height) {
    return CreateFontA(height, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, FF_DONTCARE,
                       "Arial");
}

// The rows with ink, of an edit of 60 pixels' height.
SIZE InkRows(const Pixels& pixels) {
    SIZE rows = {-1, -1};
    for (int y = 0; y < pixels.height; ++y) {
        if (pixels.Count({0, y, pixels.width, y + 1}, kText) > 0) {
            rows.cx = rows.cx < 0 ? y : rows.cx;
            rows.cy = y + 1;
        }
    }
    return rows;
}

TEST_F(DateEditPaint, DrawsDigitsInTheSizeOfTheFont) {
    const struct {
        int font;
        int top;                // the first row with ink, centred in 60
        int bottom;             // behind the last one
    } cases[] = {{12, 23, 36},  // 13 high
                 {14, 20, 39},  // 19
                 {16, 19, 41},  // 22
                 {20, 19, 41}}; // 26 with two rows of background at either end
    for (const auto& [height, top, bottom] : cases) {
        HFONT font = MakeFont(height);
        HWND edit = CreateColored(VDTS_DIGITS, 160, 60);
        SendMessageA(edit, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
        dtSetDateString(edit, "8/8/8888");
        EXPECT_EQ(InkRows(PixelsOf(edit)).cx, top) << height;
        EXPECT_EQ(InkRows(PixelsOf(edit)).cy, bottom) << height;
        DestroyWindow(edit);
        DeleteObject(font);
    }
}

TEST_F(DateEditPaint, LeavesTheButtonItsPlace) {
    HWND edit = CreateColored(VDTS_CALENDAR, 60, 24);
    const Pixels pixels = PixelsOf(edit);
    EXPECT_EQ(pixels.Count({60 - 21, 0, 60, 24}, kField), 0);
    EXPECT_EQ(pixels.Count({60 - 21, 0, 60, 24}, kText), 0) << "the text ends before it";
    EXPECT_EQ(pixels.At(38, 0), kField);
    EXPECT_EQ(pixels.At(40, 3), GetSysColor(COLOR_BTNHIGHLIGHT)) << "inside the frame";
    EXPECT_EQ(pixels.At(45, 5), GetSysColor(COLOR_BTNFACE)) << "the user's colour";
    // The arrow: rows of 7, 5, 3 and 1 black pixels, the frame's two sides beside them.
    const COLORREF black = RGB(0, 0, 0);
    int rows[4] = {};
    int count = 0;
    for (int y = 2; y < 22; ++y) {
        const int ink = pixels.Count({41, y, 58, y + 1}, black);
        if (ink > 0 && count < 4) {
            rows[count++] = ink;
        }
    }
    EXPECT_EQ(count, 4);
    EXPECT_EQ(rows[0], 7);
    EXPECT_EQ(rows[1], 5);
    EXPECT_EQ(rows[2], 3);
    EXPECT_EQ(rows[3], 1);
    dtEnableCalendar(edit, FALSE);
    EXPECT_GT(PixelsOf(edit).Count({60 - 21, 0, 60, 24}, kText), 0);
}

TEST_F(DateEditPaint, IsPaintedInAnySize) {
    for (const DWORD style : {0, VDTS_DIGITS, VDTS_CELLS}) {
        HWND edit = CreateColored(style | VDTS_CALENDAR | VDTS_SUNKEN);
        SetFocus(edit);
        for (const int size : {0, 1, 3, 5, 9, 600}) {
            MoveWindow(edit, 0, 0, size, size / 2, TRUE);
            SendMessageA(edit, WM_KEYDOWN, VK_END, 1);
            UpdateWindow(edit);
        }
        DestroyWindow(edit);
    }
}

} // namespace
