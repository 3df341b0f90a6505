// What the year calendar looks like, pixel by pixel.
#include "tests/support/almanac.h"
#include "tests/windows/support/calendar_host.h"
#include "tests/windows/support/pixels.h"
#include "tests/windows/support/system_color.h"

#include <algorithm>
#include <array>
#include <string>

namespace {

using vorn::test::AlmanacYear;
using vorn::test::CalendarFonts;
using vorn::test::CalendarTest;
using vorn::test::ChangedSystemColor;
using vorn::test::Difference;
using vorn::test::Drawing;
using vorn::test::kAlmanac;
using vorn::test::Pixels;
using vorn::test::PixelsOf;
using vorn::test::PumpMessages;

const std::array<std::string, 12> kMonthNames = {"January",   "February", "March",    "April",
                                                 "May",       "June",     "July",     "August",
                                                 "September", "October",  "November", "December"};
constexpr char kInitials[] = "SMTWTFS";

// No day is selected.
constexpr int kNone = -1;

// A year as it must look, drawn month by month, each with the drawing clipped to its panel.
class YearPicture {
public:
    YearPicture(const AlmanacYear& year, const CalendarFonts& fonts, int width, int height,
                int selectedMonth = kNone, int selectedDay = kNone)
        : year_(year), fonts_(fonts), width_(width), height_(height), selectedMonth_(selectedMonth),
          selectedDay_(selectedDay) {}

    COLORREF selectionBack = GetSysColor(COLOR_HIGHLIGHT);
    COLORREF selectionText = GetSysColor(COLOR_HIGHLIGHTTEXT);
    std::array<std::string, 12> monthNames = kMonthNames;
    std::string initials = kInitials;

    Pixels Draw() const {
        return Drawing(width_, height_, GetSysColor(COLOR_BTNFACE), [&](HDC context) {
            SetBkMode(context, TRANSPARENT);
            for (int month = 0; month < 12; ++month) {
                const int saved = SaveDC(context);
                DrawMonth(context, month);
                RestoreDC(context, saved);
            }
        });
    }

private:
    static void Fill(HDC context, const RECT& area, COLORREF color) {
        HBRUSH brush = CreateSolidBrush(color);
        FillRect(context, &area, brush);
        DeleteObject(brush);
    }

    // The middle of a text too wide for the area is what can be seen of it.
    static void WriteCentered(HDC context, const RECT& area, const std::string& text,
                              COLORREF color) {
        const int saved = SaveDC(context);
        IntersectClipRect(context, area.left, area.top, area.right, area.bottom);
        const int length = static_cast<int>(text.size());
        SIZE size{};
        GetTextExtentPoint32A(context, text.c_str(), length, &size);
        const LONG over = size.cx - (area.right - area.left);
        SetTextColor(context, color);
        TextOutA(context, area.left - over / 2, area.top, text.c_str(), length);
        RestoreDC(context, saved);
    }

    void DrawMonth(HDC context, int month) const {
        const int panelWidth = (width_ - 2) / 3;
        const int panelHeight = (height_ - 2) / 4;
        const bool lastColumn = month % 3 == 2;
        const bool lastRow = month / 3 == 3;
        const int left = 2 + month % 3 * panelWidth;
        const int top = 2 + month / 3 * panelHeight;
        const int right = lastColumn ? width_ : left + panelWidth;
        const int bottom = lastRow ? height_ : top + panelHeight;
        // Nothing leaves the panel, not even the groove of one that is narrower.
        IntersectClipRect(context, left, top, std::max(left, right), std::max(top, bottom));
        DrawGroove(context, {left, top, right, bottom}, !lastColumn, !lastRow);
        IntersectClipRect(context, left, top, std::max(left, lastColumn ? right : right - 2),
                          std::max(top, lastRow ? bottom : bottom - 2));

        Fill(context, {left, top, right, top + fonts_.titleHeight},
             GetSysColor(COLOR_ACTIVECAPTION));
        SelectObject(context, fonts_.title);
        RECT name = {left + 4, top, std::max(left + 4, right), top + fonts_.titleHeight};
        SetTextColor(context, GetSysColor(COLOR_CAPTIONTEXT));
        DrawTextA(context, monthNames[static_cast<std::size_t>(month)].c_str(), -1, &name,
                  DT_SINGLELINE | DT_NOPREFIX);
        SelectObject(context, fonts_.small);
        DrawDays(context, month, left, top + fonts_.titleHeight, (panelWidth - 2) / 7);
    }

    void DrawDays(HDC context, int month, int left, int top, int column) const {
        const COLORREF ink = GetSysColor(COLOR_WINDOWTEXT);
        for (int weekday = 0; weekday < 7; ++weekday) {
            const RECT area = {left + weekday * column, top, left + (weekday + 1) * column,
                               top + fonts_.smallHeight};
            WriteCentered(context, area,
                          std::string(1, initials[static_cast<std::size_t>(weekday)]), ink);
        }
        int weekday = year_.First(month);
        int y = top + fonts_.smallHeight;
        for (const int day : year_.Days(month)) {
            const RECT area = {left + weekday * column, y, left + (weekday + 1) * column,
                               y + fonts_.smallHeight};
            const bool selected = month == selectedMonth_ && day == selectedDay_;
            if (selected) {
                Fill(context, area, selectionBack);
            }
            WriteCentered(context, area, std::to_string(day), selected ? selectionText : ink);
            if (++weekday == 7) {
                weekday = 0;
                y += fonts_.smallHeight;
            }
        }
    }

    // Shadow at the last pixel but one, highlight at the last; they meet at the corner.
    static void DrawGroove(HDC context, const RECT& panel, bool atRight, bool atBottom) {
        const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
        const COLORREF highlight = GetSysColor(COLOR_BTNHIGHLIGHT);
        const LONG x = panel.right;
        const LONG y = panel.bottom;
        if (atRight) {
            for (LONG row = panel.top; row < y; ++row) {
                SetPixel(context, x - 2, row, atBottom && row == y - 1 ? highlight : shadow);
                SetPixel(context, x - 1, row, highlight);
            }
        }
        if (atBottom) {
            for (LONG spot = panel.left; spot < (atRight ? x - 2 : x); ++spot) {
                SetPixel(context, spot, y - 2, shadow);
                SetPixel(context, spot, y - 1, highlight);
            }
        }
    }

    const AlmanacYear& year_;
    const CalendarFonts& fonts_;
    int width_;
    int height_;
    int selectedMonth_;
    int selectedDay_;
};

const AlmanacYear& Year(int number) {
    return *std::find_if(std::begin(kAlmanac), std::end(kAlmanac),
                         [&](const AlmanacYear& year) { return year.year == number; });
}

class CalendarPaint : public CalendarTest {
protected:
    // With the year shown and no day selected.
    HWND CreateShowing(WORD year, int width = kWidth, int height = kHeight) {
        HWND calendar = Create(width, height);
        // A month makes it a selection in year 0 too.
        Set(calendar, year, 1, 0);
        return calendar;
    }
};

TEST_F(CalendarPaint, ShowsAllMonthsOfEveryYear) {
    for (const AlmanacYear& year : kAlmanac) {
        HWND calendar = CreateShowing(year.year);
        EXPECT_EQ(Difference(YearPicture(year, fonts, kWidth, kHeight).Draw(), PixelsOf(calendar)),
                  "")
            << year.year;
        DestroyWindow(calendar);
    }
}

// The names of the whole process, which a host sets by any date edit, and by function without one.
class HostsNames {
public:
    explicit HostsNames(HWND edit) {
        const std::string months = Joined(kMonths);
        SendMessageA(edit, VDTM_SETMONTHLITERALS, 0, reinterpret_cast<LPARAM>(months.c_str()));
        SendMessageA(edit, VDTM_SETDAYLITERALS, 0, reinterpret_cast<LPARAM>(kDays));
    }
    ~HostsNames() {
        const std::string months = Joined(kMonthNames);
        dtSetMonthLiterals(nullptr, months.c_str());
        dtSetDayLiterals(nullptr, kInitials);
    }
    HostsNames(const HostsNames&) = delete;
    HostsNames& operator=(const HostsNames&) = delete;

    static constexpr char kDays[] = "DLMWJVZ";
    inline static const std::array<std::string, 12> kMonths = {
        "Jaenner", "Feber", "Maerz", "Wandelmonat", "V",  "VI",
        "VII",     "VIII",  "IX",    "X",           "XI", "XII"};

private:
    static std::string Joined(const std::array<std::string, 12>& names) {
        std::string list;
        for (const std::string& name : names) {
            list += name + '\0';
        }
        return list;
    }
};

TEST_F(CalendarPaint, ShowsTheHostsNamesFromItsNextPaint) {
    HWND calendar = CreateShowing(2024);
    HWND edit = host.Create(VORN_DATEEDIT_CLASS, 0, 0, 0, 10, 10);
    const Pixels before = PixelsOf(calendar);
    {
        const HostsNames names(edit);
        EXPECT_EQ(GetUpdateRect(calendar, nullptr, FALSE), FALSE) << "nothing is redrawn";
        EXPECT_EQ(Difference(before, PixelsOf(calendar)), "");
        RedrawWindow(calendar, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        YearPicture picture(Year(2024), fonts, kWidth, kHeight);
        picture.monthNames = HostsNames::kMonths;
        picture.initials = HostsNames::kDays;
        EXPECT_EQ(Difference(picture.Draw(), PixelsOf(calendar)), "");
    }
    RedrawWindow(calendar, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(Difference(before, PixelsOf(calendar)), "");
}

TEST_F(CalendarPaint, CanBeRead) {
    const Pixels pixels = PixelsOf(CreateShowing(2024));
    const COLORREF ink = GetSysColor(COLOR_WINDOWTEXT);
    for (int month = 0; month < 12; ++month) {
        const RECT title = {2 + month % 3 * 200, 2 + month / 3 * 110, 200 + month % 3 * 200,
                            2 + month / 3 * 110 + fonts.titleHeight};
        EXPECT_GT(pixels.Count(title, GetSysColor(COLOR_ACTIVECAPTION)), 1500);
        EXPECT_GT(pixels.Count(title, GetSysColor(COLOR_CAPTIONTEXT)), 50);
        EXPECT_GT(pixels.Count(Cell(month, 17), ink), 4) << "a day";
        EXPECT_EQ(pixels.Count(Cell(month, 41), ink), 0) << "no day";
    }
}

TEST_F(CalendarPaint, HighlightsTheSelectedDay) {
    const struct {
        WORD year, month, day;
    } cases[] = {{2024, 2, 29}, {2024, 1, 1}, {2024, 12, 31}, {1752, 9, 2},
                 {1752, 9, 14}, {0, 12, 31},  {1, 1, 1},      {9999, 12, 31}};
    HWND calendar = Create();
    for (const auto& [year, month, day] : cases) {
        Set(calendar, year, month, day);
        EXPECT_EQ(Difference(YearPicture(Year(year), fonts, kWidth, kHeight, month - 1, day).Draw(),
                             PixelsOf(calendar)),
                  "")
            << year << "-" << month << "-" << day;
    }
}

TEST_F(CalendarPaint, HighlightsNothingThatIsNoDay) {
    const struct {
        WORD year, month, day;
    } cases[] = {{2023, 2, 29}, {2023, 4, 31}, {2023, 0, 1}, {2023, 13, 1},
                 {1752, 9, 3},  {1752, 9, 13}, {0, 9, 0}};
    HWND calendar = Create();
    for (const auto& [year, month, day] : cases) {
        Set(calendar, year, month, day);
        EXPECT_EQ(
            Difference(YearPicture(Year(year), fonts, kWidth, kHeight).Draw(), PixelsOf(calendar)),
            "")
            << year << "-" << month << "-" << day;
    }
}

TEST_F(CalendarPaint, MovesTheHighlightToTheDayThatIsPressed) {
    HWND calendar = Create();
    Set(calendar, 2024, 5, 17);
    Press(calendar, Middle(1, 4 + 28)); // the 29th; 1 February 2024 is a Thursday
    EXPECT_EQ(Difference(YearPicture(Year(2024), fonts, kWidth, kHeight, 1, 29).Draw(),
                         PixelsOf(calendar)),
              "");
    Press(calendar, {50, 5});
    EXPECT_EQ(Difference(YearPicture(Year(2024), fonts, kWidth, kHeight, 1, 29).Draw(),
                         PixelsOf(calendar)),
              "")
        << "a press on a title leaves it";
}

TEST_F(CalendarPaint, ShowsTheCurrentYearWithoutASelection) {
    const WORD before = CurrentYear();
    HWND calendar = Create();
    PumpMessages();
    const Pixels fresh = PixelsOf(calendar);
    ASSERT_EQ(CurrentYear(), before) << "the year turned; run the test again";
    HWND same = CreateShowing(before);
    EXPECT_EQ(Difference(PixelsOf(same), fresh), "");
    HWND other = CreateShowing(static_cast<WORD>(before + 1));
    EXPECT_NE(Difference(PixelsOf(other), fresh), "");
}

TEST_F(CalendarPaint, FitsEverySize) {
    // All remainders of the divisions, and too little room for the text until nothing is left.
    const SIZE sizes[] = {{602, 442}, {603, 443}, {604, 444}, {630, 445}, {500, 390}, {400, 300},
                          {302, 202}, {200, 400}, {150, 100}, {62, 122},  {40, 40},   {29, 300},
                          {300, 13},  {11, 9},    {5, 5},     {2, 2},     {1, 1}};
    for (const SIZE& size : sizes) {
        const int width = static_cast<int>(size.cx);
        const int height = static_cast<int>(size.cy);
        HWND calendar = Create(width, height);
        Set(calendar, 2024, 12, 31);
        EXPECT_EQ(Difference(YearPicture(Year(2024), fonts, width, height, 11, 31).Draw(),
                             PixelsOf(calendar)),
                  "")
            << width << " by " << height;
        DestroyWindow(calendar);
    }
}

TEST_F(CalendarPaint, RepaintsPiecesAsTheWhole) {
    HWND calendar = Create();
    Set(calendar, 2024, 5, 17);
    const Pixels whole = PixelsOf(calendar);
    for (int piece = 0; piece < 40; ++piece) {
        const LONG left = piece * 37 % 560;
        const LONG top = piece * 53 % 400;
        HDC context = GetDC(calendar);
        const RECT area = {left, top, left + 1 + piece, top + 40 - piece};
        FillRect(context, &area, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
        ReleaseDC(calendar, context);
        InvalidateRect(calendar, &area, FALSE);
        UpdateWindow(calendar);
    }
    EXPECT_EQ(Difference(whole, PixelsOf(calendar)), "");
}

TEST_F(CalendarPaint, IsPaintedAnewWhenItsSizeChanges) {
    HWND calendar = Create();
    Set(calendar, 2024, 5, 17);
    SetWindowPos(calendar, nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
    UpdateWindow(calendar);
    EXPECT_EQ(
        Difference(YearPicture(Year(2024), fonts, 500, 400, 4, 17).Draw(), PixelsOf(calendar)), "");
}

TEST_F(CalendarPaint, HasTheSystemsColors) {
    const ChangedSystemColor face(COLOR_BTNFACE, RGB(200, 210, 220));
    const ChangedSystemColor text(COLOR_WINDOWTEXT, RGB(0, 0, 90));
    const ChangedSystemColor caption(COLOR_ACTIVECAPTION, RGB(90, 0, 0));
    const ChangedSystemColor captionText(COLOR_CAPTIONTEXT, RGB(255, 255, 0));
    const ChangedSystemColor shadow(COLOR_BTNSHADOW, RGB(1, 2, 3));
    const ChangedSystemColor light(COLOR_BTNHIGHLIGHT, RGB(250, 240, 230));
    const ChangedSystemColor selection(COLOR_HIGHLIGHT, RGB(0, 120, 0));
    const ChangedSystemColor selectionText(COLOR_HIGHLIGHTTEXT, RGB(255, 200, 255));
    HWND calendar = Create();
    Set(calendar, 2024, 5, 17);
    EXPECT_EQ(Difference(YearPicture(Year(2024), fonts, kWidth, kHeight, 4, 17).Draw(),
                         PixelsOf(calendar)),
              "");
    const Pixels pixels = PixelsOf(calendar);
    EXPECT_EQ(pixels.At(0, 0), RGB(200, 210, 220));
    EXPECT_EQ(pixels.At(3, 3), RGB(90, 0, 0));
    EXPECT_EQ(pixels.At(200, 50), RGB(1, 2, 3));
    EXPECT_EQ(pixels.At(201, 50), RGB(250, 240, 230));
    const RECT cell = Cell(4, 19);
    EXPECT_EQ(pixels.At(static_cast<int>(cell.left), static_cast<int>(cell.top)), RGB(0, 120, 0));
}

TEST_F(CalendarPaint, HighlightsInBlackAndWhiteInsteadOfGray) {
    const struct {
        COLORREF highlight;
        bool isException;
    } cases[] = {{RGB(192, 192, 192), true}, {RGB(192, 192, 193), false}, {RGB(128, 0, 0), false}};
    const ChangedSystemColor selectionText(COLOR_HIGHLIGHTTEXT, RGB(0, 0, 255));
    for (const auto& [highlight, isException] : cases) {
        const ChangedSystemColor selection(COLOR_HIGHLIGHT, highlight);
        HWND calendar = Create();
        Set(calendar, 2024, 5, 17);
        YearPicture picture(Year(2024), fonts, kWidth, kHeight, 4, 17);
        picture.selectionBack = isException ? RGB(0, 0, 0) : highlight;
        picture.selectionText = isException ? RGB(255, 255, 255) : RGB(0, 0, 255);
        EXPECT_EQ(Difference(picture.Draw(), PixelsOf(calendar)), "") << std::hex << highlight;
        DestroyWindow(calendar);
    }
}

} // namespace
