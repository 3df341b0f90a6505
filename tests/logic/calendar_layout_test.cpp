// The year calendar's layout: its panels and cells, every pixel of several sizes.
#include "date/calendar.h"
#include "tests/support/almanac.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace vorn::calendar {
namespace {

TEST(CalendarLayout, DividesTheClientAreaLessTwoPixels) {
    // (623 - 2) / 3 = 207; (391 - 2) / 4 = 97, 1 left over; (207 - 2) / 7 = 29, 2 left over.
    const Layout layout = MakeLayout({10, 20, 633, 411}, {16, 11});
    EXPECT_EQ(layout.panelWidth, 207);
    EXPECT_EQ(layout.panelHeight, 97);
    EXPECT_EQ(layout.columnWidth, 29);
    EXPECT_EQ(PanelRectangle(layout, 0), (Rect{12, 22, 219, 119}));
    EXPECT_EQ(PanelRectangle(layout, 2), (Rect{426, 22, 633, 119})) << "March is in the first row";
    EXPECT_EQ(PanelRectangle(layout, 3), (Rect{12, 119, 219, 216})) << "April in the second";
    EXPECT_EQ(PanelRectangle(layout, 11), (Rect{426, 313, 633, 411})) << "and a row more here";
}

TEST(CalendarLayout, GivesTheLastColumnAndRowWhatIsLeftOver) {
    const Layout layout = MakeLayout({0, 0, 304, 405}, {16, 11});
    EXPECT_EQ(PanelRectangle(layout, 1), (Rect{102, 2, 202, 102}));
    EXPECT_EQ(PanelRectangle(layout, 2), (Rect{202, 2, 304, 102})) << "2 of 302 columns";
    EXPECT_EQ(PanelRectangle(layout, 10), (Rect{102, 302, 202, 405})) << "3 of 403 rows";
    EXPECT_EQ(PanelRectangle(layout, 11), (Rect{202, 302, 304, 405}));
}

TEST(CalendarLayout, HasTitleWeekdaysAndDaysBelowEachOther) {
    const Layout layout = MakeLayout({0, 0, 302, 402}, {16, 11});
    EXPECT_EQ(TitleRectangle(layout, 0), (Rect{2, 2, 100, 18})) << "the groove is not the title's";
    EXPECT_EQ(TitleRectangle(layout, 2), (Rect{202, 2, 302, 18})) << "there is none at the right";
    EXPECT_EQ(WeekdayRectangle(layout, 0, 0), (Rect{2, 18, 16, 29}));
    EXPECT_EQ(WeekdayRectangle(layout, 0, 6), (Rect{86, 18, 100, 29}));
    EXPECT_EQ(CellRectangle(layout, 0, 0), (Rect{2, 29, 16, 40}));
    EXPECT_EQ(CellRectangle(layout, 0, 6), (Rect{86, 29, 100, 40}));
    EXPECT_EQ(CellRectangle(layout, 0, 7), (Rect{2, 40, 16, 51}));
    EXPECT_EQ(CellRectangle(layout, 0, 41), (Rect{86, 84, 100, 95}));
    EXPECT_EQ(CellRectangle(layout, 4, 10), (Rect{144, 140, 158, 151})) << "May";
}

TEST(CalendarLayout, CutsWhatHasNoRoom) {
    // Panels of 20 by 30: the title, the weekday line, and 1 row of 12 for days.
    const Layout layout = MakeLayout({0, 0, 62, 122}, {16, 11});
    EXPECT_EQ(WeekdayRectangle(layout, 0, 1), (Rect{4, 18, 6, 29}));
    EXPECT_EQ(CellRectangle(layout, 0, 1), (Rect{4, 29, 6, 30})) << "1 of 11 rows of pixels";
    EXPECT_EQ(CellRectangle(layout, 9, 1), (Rect{4, 119, 6, 122})) << "3 where there is no groove";
    const Rect second = CellRectangle(layout, 0, 7);
    EXPECT_GE(second.top, second.bottom) << "none of the second row";
}

TEST(CalendarLayout, SeparatesPanelsByGrooves) {
    const Layout layout = MakeLayout({0, 0, 302, 402}, {16, 11});
    const Groove inner = GrooveOf(layout, 0);
    EXPECT_EQ(inner.shadowRight, (Rect{100, 2, 101, 102}));
    EXPECT_EQ(inner.highlightRight, (Rect{101, 2, 102, 102}));
    EXPECT_EQ(inner.shadowBottom, (Rect{2, 100, 101, 101}));
    EXPECT_EQ(inner.highlightBottom, (Rect{2, 101, 102, 102}));
    const Groove lastColumn = GrooveOf(layout, 5);
    EXPECT_EQ(lastColumn.shadowRight, Rect{});
    EXPECT_EQ(lastColumn.highlightRight, Rect{});
    EXPECT_EQ(lastColumn.shadowBottom, (Rect{202, 200, 302, 201}));
    EXPECT_EQ(lastColumn.highlightBottom, (Rect{202, 201, 302, 202}));
    const Groove lastRow = GrooveOf(layout, 9);
    EXPECT_EQ(lastRow.shadowRight, (Rect{100, 302, 101, 402}));
    EXPECT_EQ(lastRow.highlightRight, (Rect{101, 302, 102, 402}));
    EXPECT_EQ(lastRow.shadowBottom, Rect{});
    EXPECT_EQ(lastRow.highlightBottom, Rect{});
}

// Which cell every pixel of a client area belongs to, painted cell over cell; negative for none.
class PixelMap {
public:
    PixelMap(int width, int height, int titleHeight, int lineHeight)
        : width_(width), height_(height),
          cells_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), -1) {
        const int panelWidth = (width - 2) / 3;
        const int panelHeight = (height - 2) / 4;
        const int column = (panelWidth - 2) / 7;
        for (int panel = 0; panel < 12; ++panel) {
            const int left = 2 + panel % 3 * panelWidth;
            const int top = 2 + panel / 3 * panelHeight;
            const int bottom = panel >= 9 ? height : top + panelHeight - 2;
            for (int cell = 0; cell < 42; ++cell) {
                const int x = left + cell % 7 * column;
                const int y = top + titleHeight + lineHeight + cell / 7 * lineHeight;
                Paint({x, y, x + column, std::min(y + lineHeight, bottom)}, panel * 42 + cell);
            }
        }
    }

    int At(int x, int y) const {
        return x >= 0 && y >= 0 && x < width_ && y < height_ ? cells_[Index(x, y)] : -1;
    }

private:
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x);
    }

    void Paint(const Rect& rect, int value) {
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x) {
                cells_[Index(x, y)] = value;
            }
        }
    }

    int width_;
    int height_;
    std::vector<int> cells_;
};

struct Sizes {
    int width;
    int height;
    LineHeights lines;
};

// Room and to spare, exact divisions and all remainders, and too little room in one direction or
// both, down to none.
const Sizes kSizes[] = {
    {302, 402, {16, 11}}, {303, 403, {16, 11}}, {304, 404, {16, 11}}, {305, 405, {16, 11}},
    {308, 382, {16, 11}}, {620, 390, {16, 11}}, {211, 377, {20, 14}}, {320, 200, {16, 11}},
    {62, 122, {16, 11}},  {100, 90, {16, 11}},  {29, 400, {16, 11}},  {26, 400, {16, 11}},
    {400, 12, {16, 11}},  {400, 5, {1, 1}},     {40, 40, {1, 1}},     {20, 20, {16, 11}},
    {6, 60, {16, 11}},    {60, 6, {16, 11}},    {3, 40, {1, 1}},      {40, 3, {1, 1}},
    {2, 2, {16, 11}},     {1, 1, {16, 11}},     {0, 0, {16, 11}},     {300, 300, {0, 0}},
    {500, 401, {16, 0}},
};

TEST(CalendarLayout, MapsEveryPixelToItsCell) {
    for (const Sizes& sizes : kSizes) {
        const PixelMap map(sizes.width, sizes.height, sizes.lines.title, sizes.lines.small);
        const Rect client = {7, -3, 7 + sizes.width, -3 + sizes.height};
        const Layout layout = MakeLayout(client, sizes.lines);
        int wrong = 0;
        for (int y = -3; y < sizes.height + 3; ++y) {
            for (int x = -3; x < sizes.width + 3; ++x) {
                const Place place = PlaceAt(layout, {x + 7, y - 3});
                const int expected = map.At(x, y);
                const Place there =
                    expected < 0 ? kNowhere : Place{expected / kCells, expected % kCells};
                wrong += place != there;
            }
        }
        EXPECT_EQ(wrong, 0) << sizes.width << " by " << sizes.height;
    }
}

TEST(CalendarLayout, FindsNothingFarOutside) {
    const Layout layout = MakeLayout({0, 0, 302, 402}, {16, 11});
    for (int along = 0; along < 402; along += 5) {
        for (int beyond = 1; beyond < 2000; beyond += 3) {
            EXPECT_EQ(PlaceAt(layout, {-beyond, along}), kNowhere);
            EXPECT_EQ(PlaceAt(layout, {along, -beyond}), kNowhere);
            EXPECT_EQ(PlaceAt(layout, {302 + beyond, along}), kNowhere);
            EXPECT_EQ(PlaceAt(layout, {along, 402 + beyond}), kNowhere);
        }
    }
    for (const int edge : {-32768, 32767}) {
        EXPECT_EQ(PlaceAt(layout, {edge, edge}), kNowhere);
    }
}

TEST(CalendarLayout, AgreesOnCellsWithTheirPixels) {
    for (const Sizes& sizes : kSizes) {
        const Layout layout = MakeLayout({0, 0, sizes.width, sizes.height}, sizes.lines);
        int wrong = 0;
        for (int panel = 0; panel < kPanels; ++panel) {
            for (int cell = 0; cell < kCells; ++cell) {
                const Rect rect = CellRectangle(layout, panel, cell);
                for (int y = rect.top; y < rect.bottom; ++y) {
                    for (int x = rect.left; x < rect.right; ++x) {
                        wrong += PlaceAt(layout, {x, y}) != Place{panel, cell};
                    }
                }
            }
        }
        EXPECT_EQ(wrong, 0) << sizes.width << " by " << sizes.height;
    }
}

TEST(CalendarLayout, LeadsFromEveryPixelToADayAndBack) {
    for (const test::AlmanacYear& almanac : test::kAlmanac) {
        const std::uint16_t year = almanac.year;
        const Layout layout = MakeLayout({0, 0, 305, 405}, {16, 11});
        int days = 0;
        for (int y = 0; y < 405; ++y) {
            for (int x = 0; x < 305; ++x) {
                const Place place = PlaceAt(layout, {x, y});
                const std::uint16_t day = place == kNowhere
                                              ? std::uint16_t{0}
                                              : DayInCell(DaysOf(year, place.panel), place.cell);
                if (day != 0) {
                    ++days;
                    const auto month = static_cast<std::uint16_t>(place.panel + 1);
                    ASSERT_EQ(PlaceOf({month, day, year}), place) << x << ", " << y;
                }
            }
        }
        // Columns of 14 by rows of 11, none of them cut.
        const int inYear = year == 1752 ? 355 : almanac.february == 29 ? 366 : 365;
        EXPECT_EQ(days, inYear * 14 * 11) << year;
    }
}

// Also the sizes that are no sizes.
TEST(CalendarLayout, KeepsEverythingInsideItsPanel) {
    for (const Sizes& sizes : kSizes) {
        const Layout layout = MakeLayout({0, 0, sizes.width, sizes.height}, sizes.lines);
        for (int panel = 0; panel < kPanels; ++panel) {
            const Rect whole = PanelRectangle(layout, panel);
            const Groove groove = GrooveOf(layout, panel);
            std::vector<Rect> parts = {TitleRectangle(layout, panel), groove.shadowRight,
                                       groove.shadowBottom, groove.highlightRight,
                                       groove.highlightBottom};
            for (int weekday = 0; weekday < kWeekdays; ++weekday) {
                parts.push_back(WeekdayRectangle(layout, panel, weekday));
            }
            for (int cell = 0; cell < kCells; ++cell) {
                parts.push_back(CellRectangle(layout, panel, cell));
            }
            for (const Rect& part : parts) {
                const bool empty = part.left >= part.right || part.top >= part.bottom;
                EXPECT_TRUE(empty || (part.left >= whole.left && part.top >= whole.top &&
                                      part.right <= whole.right && part.bottom <= whole.bottom))
                    << sizes.width << " by " << sizes.height << ", panel " << panel;
            }
        }
    }
}

} // namespace
} // namespace vorn::calendar
