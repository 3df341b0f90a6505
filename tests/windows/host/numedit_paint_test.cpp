// What numeric edits look like, pixel by pixel.
#include "tests/windows/host/numedit_host.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/pixels.h"
#include "tests/windows/support/system_color.h"

#include <string>

namespace {

using vorn::test::ChangedSystemColor;
using vorn::test::Difference;
using vorn::test::Drawing;
using vorn::test::Message;
using vorn::test::NumEditHost;
using vorn::test::Pixels;
using vorn::test::PixelsOf;

constexpr int kWidth = 120;
constexpr int kHeight = 24;

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 128, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

int TextWidth(const std::string& text) {
    HDC screen = GetDC(nullptr);
    SIZE size{};
    GetTextExtentPoint32A(screen, text.c_str(), static_cast<int>(text.size()), &size);
    ReleaseDC(nullptr, screen);
    return size.cx;
}

// A text in the system's font, at this place, in an edit of the usual size.
Pixels Written(const std::string& text, int x, int y, COLORREF ink, COLORREF background) {
    return Drawing(kWidth, kHeight, background, [&](HDC context) {
        SelectObject(context, GetStockObject(SYSTEM_FONT));
        SetBkMode(context, TRANSPARENT);
        SetTextColor(context, ink);
        TextOutA(context, x, y, text.c_str(), static_cast<int>(text.size()));
    });
}

// The part of a picture.
Pixels Part(const Pixels& pixels, int left, int top, int right, int bottom) {
    Pixels part = {right - left, bottom - top, {}};
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            part.colors.push_back(pixels.At(x, y));
        }
    }
    return part;
}

class NumEditPaint : public NumEditHost {
protected:
    int fontHeight = 0;
    COLORREF window = GetSysColor(COLOR_WINDOW);
    COLORREF ink = GetSysColor(COLOR_WINDOWTEXT);

    void SetUp() override {
        HDC screen = GetDC(nullptr);
        TEXTMETRICA metrics{};
        SelectObject(screen, GetStockObject(SYSTEM_FONT));
        GetTextMetricsA(screen, &metrics);
        ReleaseDC(nullptr, screen);
        fontHeight = metrics.tmHeight;
    }
    int Top() const { return (kHeight - fontHeight) / 2; }

    // Without the caret, which blinks.
    static Pixels Shown(HWND edit) {
        vorn::test::PumpMessages();
        HideCaret(edit);
        return PixelsOf(edit);
    }
    void ExpectText(HWND edit, const std::string& text, int x = 4) const {
        EXPECT_EQ(Difference(Written(text, x, Top(), ink, window), Shown(edit)), "") << text;
    }
};

TEST_F(NumEditPaint, ANullControlIsEmpty) {
    HWND edit = Create();
    EXPECT_EQ(Shown(edit).Count({0, 0, kWidth, kHeight}, window), kWidth * kHeight);
    SetFocus(edit);
    EXPECT_EQ(Shown(edit).Count({0, 0, kWidth, kHeight}, window), kWidth * kHeight);
}

TEST_F(NumEditPaint, EachKindIsDisplayedWithoutTheFocusAndEditedWithIt) {
    const struct {
        DWORD kind;
        const char* displayed;
    } cases[] = {
        {NM_GENERAL, "-1234.57"},
        {NM_INTEGER, "-1234"},
        {NM_INTEGER_GROUPED, "-1,234"},
        {NM_INTEGER_PARENTHESES, "(1234)"},
        {NM_INTEGER_GROUPED_PARENTHESES, "(1,234)"},
        {NM_FLOATING, "-1234.57"},
        {NM_FLOATING_GROUPED, "-1,234.57"},
        {NM_FLOATING_PARENTHESES, "(1234.57)"},
        {NM_FLOATING_GROUPED_PARENTHESES, "(1,234.57)"},
        {NM_FLOATING_UNPADDED, "-1234.57"},
    };
    for (const auto& [kind, displayed] : cases) {
        HWND edit = Create(kind, 2);
        Put(edit, "-1234.567");
        ExpectText(edit, displayed);
        SetFocus(edit);
        ExpectText(edit, "-1234.567");
        SetFocus(host.window());
        ExpectText(edit, displayed);
        DestroyWindow(edit);
    }
}

TEST_F(NumEditPaint, TheDecimalCharacterIsDisplayed) {
    HWND edit = Create();
    NmEditParams params = Params(NM_FLOATING_GROUPED, 2);
    params.decimalChar = ',';
    params.thousandChar = '.';
    params.leadingZero = 0;
    nmSetEditParams(edit, &params);
    Put(edit, "1234.5");
    ExpectText(edit, "1.234,50");
    Put(edit, "0.5");
    ExpectText(edit, ",50");
}

TEST_F(NumEditPaint, AlignmentIsForTheDisplayAlone) {
    HWND edit = Create(NM_INTEGER, 0, VNMS_RIGHT);
    Put(edit, "1234");
    const int width = TextWidth("1234");
    ExpectText(edit, "1234", kWidth - width);
    nmSetAlignment(edit, VNMA_CENTER);
    ExpectText(edit, "1234", 4 + (116 + 1 - width) / 2);
    SetFocus(edit);
    ExpectText(edit, "1234", 4);
    SetFocus(host.window());
    nmSetAlignment(edit, VNMA_LEFT);
    ExpectText(edit, "1234", 4);
    HWND both = Create(NM_INTEGER, 0, VNMS_CENTER | VNMS_RIGHT);
    Put(both, "1234");
    ExpectText(both, "1234", 4);
}

TEST_F(NumEditPaint, TheSelectionIsTheSystems) {
    HWND edit = CreateFocused();
    Put(edit, "12345");
    Select(edit, 1, 3);
    const int digit = TextWidth("1");
    const Pixels pixels = Shown(edit);
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
    const RECT selected = {4 + digit, Top(), 4 + 3 * digit, Top() + fontHeight};
    const int inside = pixels.Count(selected, highlight) +
                       pixels.Count(selected, GetSysColor(COLOR_HIGHLIGHTTEXT));
    EXPECT_EQ(inside, 2 * digit * fontHeight);
    EXPECT_EQ(pixels.Count({0, 0, kWidth, kHeight}, highlight), pixels.Count(selected, highlight))
        << "and nowhere else";
    SetFocus(host.window());
    EXPECT_EQ(Shown(edit).Count({0, 0, kWidth, kHeight}, highlight), 0);
}

TEST_F(NumEditPaint, AScrolledTextStartsWithItsFirstVisibleCharacter) {
    HWND edit = CreateFocused();
    Put(edit, std::string(40, '7').c_str());
    Select(edit, 40, 40);
    const auto first = static_cast<int>(SendMessageA(edit, EM_GETFIRSTVISIBLELINE, 0, 0));
    ASSERT_GT(first, 0);
    const int digit = TextWidth("7");
    EXPECT_LE(4 + (40 - first) * digit + 2, kWidth) << "the caret is inside";
    EXPECT_GT(4 + (40 - first + 1) * digit + 2, kWidth) << "and no more is hidden";
    ExpectText(edit, std::string(static_cast<std::size_t>(40 - first), '7'));
}

TEST_F(NumEditPaint, ColorsAreThoseOfTheSlots) {
    HWND edit = Create();
    Put(edit, "12");
    EXPECT_NE(SendMessageA(edit, VNMM_SETBACKGROUNDCOLOR, 0, kRed), 0);
    EXPECT_NE(SendMessageA(edit, VNMM_SETTEXTCOLOR, 0, kBlue), 0);
    EXPECT_EQ(Difference(Written("12", 4, Top(), kBlue, kRed), Shown(edit)), "");
    nmSetColor(edit, 3, kGreen);
    EXPECT_EQ(Difference(Written("12", 4, Top(), kBlue, kRed), Shown(edit)), "");
    nmSetColor(edit, VORN_COLOR_FACE, VORN_SYSCOLOR(COLOR_WINDOW));
    nmSetColor(edit, VORN_COLOR_TEXT, VORN_SYSCOLOR(COLOR_WINDOWTEXT));
    const ChangedSystemColor changed(COLOR_WINDOW, RGB(240, 250, 240));
    InvalidateRect(edit, nullptr, FALSE);
    EXPECT_EQ(Difference(Written("12", 4, Top(), ink, RGB(240, 250, 240)), Shown(edit)), "");
}

TEST_F(NumEditPaint, TheParentMayChooseColors) {
    HWND edit = Create();
    Put(edit, "12");
    nmSetColor(edit, VORN_COLOR_FACE, kRed);
    HBRUSH brush = CreateSolidBrush(kGreen);
    int asked = 0;
    HBRUSH answer = brush;
    const auto before = host.answer;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message != WM_CTLCOLOREDIT) {
            return before(message);
        }
        ++asked;
        EXPECT_EQ(reinterpret_cast<HWND>(message.lParam), edit);
        auto* context = reinterpret_cast<HDC>(message.wParam);
        EXPECT_EQ(GetBkColor(context), kRed) << "the slots are there before";
        EXPECT_EQ(GetTextColor(context), GetSysColor(COLOR_WINDOWTEXT));
        SetTextColor(context, kBlue);
        return reinterpret_cast<LRESULT>(answer);
    };
    RedrawWindow(edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(Difference(Written("12", 4, Top(), kBlue, kGreen), Shown(edit)), "");
    answer = nullptr;
    RedrawWindow(edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(Difference(Written("12", 4, Top(), kBlue, kRed), Shown(edit)), "")
        << "no brush: the slot's colour";
    host.answer = before;
    DeleteObject(brush);
}

TEST_F(NumEditPaint, ABackgroundColorWithoutABrushIsNotTheFields) {
    HWND edit = Create();
    Put(edit, "12");
    const auto before = host.answer;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message != WM_CTLCOLOREDIT) {
            return before(message);
        }
        SetBkColor(reinterpret_cast<HDC>(message.wParam), kGreen);
        return 0;
    };
    RedrawWindow(edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    ExpectText(edit, "12");
    host.answer = before;
}

// The text was scrolled to its end while it was typed.
TEST_F(NumEditPaint, AnAlignedTextIsShownFromItsStartAgain) {
    for (const DWORD alignment : {VNMS_RIGHT, VNMS_CENTER}) {
        HWND fresh = Create(NM_INTEGER, 0, alignment, 40);
        Put(fresh, "123456");
        const Pixels expected = Shown(fresh);
        DestroyWindow(fresh);
        HWND edit = Create(NM_INTEGER, 0, alignment, 40);
        Put(edit, "123456");
        SetFocus(edit);
        PressKey(VK_END);
        ASSERT_GT(SendMessageA(edit, EM_GETFIRSTVISIBLELINE, 0, 0), 0);
        SetFocus(host.window());
        EXPECT_EQ(Difference(expected, Shown(edit)), "");
        DestroyWindow(edit);
    }
}

TEST_F(NumEditPaint, DisabledAndReadOnlyLookSo) {
    HWND edit = Create();
    Put(edit, "12");
    EnableWindow(edit, FALSE);
    EXPECT_EQ(
        Difference(Written("12", 4, Top(), GetSysColor(COLOR_GRAYTEXT), GetSysColor(COLOR_BTNFACE)),
                   Shown(edit)),
        "");
    EnableWindow(edit, TRUE);
    ExpectText(edit, "12");
    SendMessageA(edit, EM_SETREADONLY, TRUE, 0);
    EXPECT_EQ(Difference(Written("12", 4, Top(), ink, GetSysColor(COLOR_BTNFACE)), Shown(edit)),
              "");
}

// The spin area of 24 rows is 15 columns wide; the line is the first of them.
TEST_F(NumEditPaint, SpinButtonsStandAtTheRight) {
    const ChangedSystemColor frame(COLOR_WINDOWFRAME, kBlue);
    HWND edit = Create(NM_INTEGER, 0, VNMS_SPIN);
    const Pixels rest = Shown(edit);
    EXPECT_EQ(rest.Count({0, 0, kWidth, kHeight}, kBlue), kHeight);
    EXPECT_EQ(rest.Count({105, 0, 106, kHeight}, kBlue), kHeight);
    EXPECT_EQ(rest.Count({0, 0, 105, kHeight}, window), 105 * kHeight);
    const Pixels up = Part(rest, 106, 0, 120, 12);
    const Pixels down = Part(rest, 106, 12, 120, 24);
    // Three rows of arrow: 1, 3 and 5 pixels, the other way round below; black is in the frame too.
    const auto widthOfRow = [](const Pixels& button, int y) {
        return button.Count({2, y, 12, y + 1}, RGB(0, 0, 0));
    };
    int widest = 0;
    int first = -1;
    int last = -1;
    for (int y = 2; y < 10; ++y) {
        const int above = widthOfRow(up, y);
        if (above > 0) {
            first = first < 0 ? y : first;
            last = y;
            widest = std::max(widest, above);
        }
    }
    ASSERT_GE(first, 0);
    EXPECT_EQ(widthOfRow(up, first), 1);
    EXPECT_EQ(widthOfRow(up, last), 5);
    EXPECT_EQ(widest, 5);
    EXPECT_EQ(widthOfRow(down, first), 5);
    EXPECT_EQ(widthOfRow(down, last), 1);
    nmEnableSpinButtons(edit, FALSE);
    EXPECT_EQ(Shown(edit).Count({0, 0, kWidth, kHeight}, window), kWidth * kHeight);
}

TEST_F(NumEditPaint, APressedButtonIsSunken) {
    HWND edit = CreateFocused(NM_INTEGER, 0, VNMS_SPIN);
    Put(edit, "5");
    const Pixels rest = Shown(edit);
    vorn::test::SendMouse(edit, WM_LBUTTONDOWN, 110, 5);
    const Pixels up = Shown(edit);
    EXPECT_NE(Part(up, 105, 0, 120, 12), Part(rest, 105, 0, 120, 12));
    EXPECT_EQ(Part(up, 105, 12, 120, 24), Part(rest, 105, 12, 120, 24));
    vorn::test::SendMouse(edit, WM_LBUTTONUP, 110, 5);
    EXPECT_EQ(Part(Shown(edit), 105, 0, 120, 24), Part(rest, 105, 0, 120, 24));
    vorn::test::SendMouse(edit, WM_LBUTTONDOWN, 110, 20);
    const Pixels down = Shown(edit);
    EXPECT_EQ(Part(down, 105, 0, 120, 12), Part(rest, 105, 0, 120, 12));
    EXPECT_NE(Part(down, 105, 12, 120, 24), Part(rest, 105, 12, 120, 24));
    vorn::test::SendMouse(edit, WM_LBUTTONUP, 110, 20);
}

TEST_F(NumEditPaint, ARightAlignedTextEndsAtTheButtons) {
    HWND edit = Create(NM_INTEGER, 0, VNMS_SPIN | VNMS_RIGHT);
    Put(edit, "1234");
    const int left = 105 - TextWidth("1234");
    const Pixels expected = Written("1234", left, Top(), ink, window);
    EXPECT_EQ(Difference(Part(expected, 0, 0, 105, kHeight), Part(Shown(edit), 0, 0, 105, kHeight)),
              "");
}

// Cells of 12 columns, whatever the digit is; with 120 columns from 4 on.
TEST_F(NumEditPaint, DisplayStylesHaveCells) {
    for (const int style : {VNMD_DIGITS, VNMD_CELLS}) {
        HWND edit = Create(NM_INTEGER);
        nmSetDisplayStyle(edit, style);
        Put(edit, "17");
        const Pixels first = Shown(edit);
        Put(edit, "71");
        const Pixels second = Shown(edit);
        EXPECT_EQ(Difference(Part(first, 4, 0, 16, 24), Part(second, 16, 0, 28, 24)), "") << style;
        EXPECT_EQ(Difference(Part(first, 16, 0, 28, 24), Part(second, 4, 0, 16, 24)), "");
        EXPECT_NE(Part(first, 4, 0, 16, 24), Part(first, 16, 0, 28, 24));
        EXPECT_GT(first.Count({4, 0, 16, 24}, ink), 0);
        DestroyWindow(edit);
    }
}

TEST_F(NumEditPaint, DigitsShowTheIntegerAlone) {
    HWND edit = Create(NM_FLOATING_GROUPED_PARENTHESES, 2, VNMS_DIGITS);
    Put(edit, "-12.75");
    const Pixels number = Shown(edit);
    Put(edit, "-12");
    EXPECT_EQ(Difference(number, Shown(edit)), "");
}

TEST_F(NumEditPaint, BordersAreDrawnInTheSlotsColors) {
    HWND edit = Create(NM_GENERAL, 0, VNMS_LINE);
    const COLORREF frame = GetSysColor(COLOR_WINDOWFRAME);
    EXPECT_EQ(Shown(edit).Count({0, 0, kWidth, kHeight}, frame), 2 * kWidth + 2 * (kHeight - 2));
    HWND raised = Create(NM_GENERAL, 0, VNMS_RAISED);
    nmSetColor(raised, VORN_COLOR_HIGHLIGHT, kRed);
    nmSetColor(raised, VORN_COLOR_SHADOW, kGreen);
    nmSetColor(raised, VORN_COLOR_BACKGROUND, kBlue);
    const Pixels pixels = Shown(raised);
    for (const COLORREF color : {kRed, kGreen, kBlue}) {
        EXPECT_GT(pixels.Count({0, 0, kWidth, kHeight}, color), kHeight) << color;
    }
}

} // namespace
