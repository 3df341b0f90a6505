// The year calendar's days: where they lie, what hosts are told of them, what a press does.
#include "date/calendar.h"
#include "tests/support/almanac.h"

#include <array>
#include <gtest/gtest.h>
#include <vector>

namespace vorn::calendar {
namespace {

using date::Date;
using test::AlmanacYear;
using test::kAlmanac;

TEST(Calendar, HasItsDaysUnderTheirWeekdays) {
    for (const AlmanacYear& year : kAlmanac) {
        for (int panel = 0; panel < kPanels; ++panel) {
            SCOPED_TRACE(testing::Message() << year.year << ", panel " << panel);
            std::array<std::uint16_t, kCells> expected{};
            std::size_t cell = static_cast<std::size_t>(year.First(panel));
            for (const std::uint16_t day : year.Days(panel)) {
                expected[cell] = day;
                ++cell;
            }
            const MonthDays days = DaysOf(year.year, panel);
            for (int index = 0; index < kCells; ++index) {
                EXPECT_EQ(DayInCell(days, index), expected[static_cast<std::size_t>(index)])
                    << "cell " << index;
            }
        }
    }
}

TEST(Calendar, FindsEveryDayInItsCell) {
    for (const AlmanacYear& year : kAlmanac) {
        for (int panel = 0; panel < kPanels; ++panel) {
            int cell = year.First(panel);
            for (const std::uint16_t day : year.Days(panel)) {
                const Date date = {static_cast<std::uint16_t>(panel + 1), day, year.year};
                EXPECT_EQ(PlaceOf(date), (Place{panel, cell}))
                    << year.year << " " << panel << " " << day;
                ++cell;
            }
        }
    }
}

TEST(Calendar, JumpsFromThe2ndToThe14thOfSeptember1752) {
    const MonthDays days = DaysOf(1752, 8);
    // 1752-09-01 was a Tuesday.
    const std::uint16_t firstWeek[] = {0, 0, 1, 2, 14, 15, 16};
    for (int cell = 0; cell < 7; ++cell) {
        EXPECT_EQ(DayInCell(days, cell), firstWeek[cell]) << cell;
    }
    EXPECT_EQ(DayInCell(days, 20), 30);
    EXPECT_EQ(DayInCell(days, 21), 0);
    EXPECT_EQ(PlaceOf({9, 14, 1752}), (Place{8, 4}));
}

TEST(Calendar, HasNoPlaceForWhatIsNoDay) {
    const Date dates[] = {{0, 0, 0},        {0, 1, 2024},  {13, 1, 2024}, {1, 0, 2024},
                          {1, 32, 2024},    {2, 30, 2024}, {2, 29, 2023}, {4, 31, 2024},
                          {9, 3, 1752},     {9, 13, 1752}, {9, 0, 0},     {0xFFFF, 0xFFFF, 0xFFFF},
                          {1, 0xFFFF, 2024}};
    for (const Date& date : dates) {
        EXPECT_EQ(PlaceOf(date), kNowhere) << date.month << " " << date.day << " " << date.year;
    }
}

TEST(Calendar, IsWithoutSelectionWhenAllNumbersAreZero) {
    EXPECT_FALSE(IsSelected({0, 0, 0}));
    EXPECT_TRUE(IsSelected({9, 0, 0}));
    EXPECT_TRUE(IsSelected({0, 1, 0}));
    EXPECT_TRUE(IsSelected({0, 0, 2024}));
    EXPECT_EQ(ShownYear({0, 0, 0}, 2031), 2031);
    EXPECT_EQ(ShownYear({9, 0, 0}, 2031), 0);
    EXPECT_EQ(ShownYear({0, 0, 1752}, 2031), 1752);
}

TEST(Calendar, TellsAboutADate) {
    // 36524 days from 1 January 1900, which is day 693597, to 1 January 2000, a Saturday.
    EXPECT_EQ(Query({1, 1, 2000}).query, (DateQuery{1, 1, 2000, 6, 1}));
    EXPECT_EQ(Query({1, 1, 2000}).dayNumber, 730121u);
    EXPECT_EQ(Query({1, 1, 1900}).query, (DateQuery{1, 1, 1900, 1, 0}));
    EXPECT_EQ(Query({1, 1, 1900}).dayNumber, 693597u);
    EXPECT_EQ(Query({9, 2, 1752}).query, (DateQuery{9, 2, 1752, 3, 1}));
    EXPECT_EQ(Query({9, 2, 1752}).dayNumber, 639797u);
    EXPECT_EQ(Query({9, 14, 1752}).query, (DateQuery{9, 14, 1752, 4, 1}));
    EXPECT_EQ(Query({9, 14, 1752}).dayNumber, 639798u);
    EXPECT_EQ(Query({1, 1, 1}).query, (DateQuery{1, 1, 1, 6, 0}));
    EXPECT_EQ(Query({1, 1, 1}).dayNumber, 0u);
    EXPECT_EQ(Query({12, 31, 1700}).query.leapYear, 1) << "a Julian century";
    EXPECT_EQ(Query({12, 31, 1800}).query.leapYear, 0) << "a Gregorian one";
}

TEST(Calendar, TellsNothingWithoutASelection) {
    EXPECT_EQ(Query({0, 0, 0}).query, DateQuery{});
    EXPECT_EQ(Query({0, 0, 0}).dayNumber, 0u);
}

TEST(Calendar, TellsTheNumbersOfWhatIsNoDay) {
    const QueryResult result = Query({9, 0, 0});
    EXPECT_EQ(result.query.month, 9);
    EXPECT_EQ(result.query.day, 0);
    EXPECT_EQ(result.query.year, 0);
    EXPECT_EQ(result.query.leapYear, 1) << "every fourth year up to 1752";
}

// Panels of 100 by 100 pixels with titles of 16 and lines of 11, columns of 14.
Layout LargeLayout() {
    return MakeLayout({0, 0, 302, 402}, {16, 11});
}

// The middle of a cell there.
Point MiddleOf(int panel, int cell) {
    return {2 + panel % 3 * 100 + cell % 7 * 14 + 7, 2 + panel / 3 * 100 + 27 + cell / 7 * 11 + 5};
}

// The rectangle of a cell there; the sixth week of an upper panel would be cut at 98.
Rect RectOf(int panel, int cell) {
    const Point middle = MiddleOf(panel, cell);
    return {middle.x - 7, middle.y - 5, middle.x + 7, middle.y + 6};
}

std::vector<Action> ActionsOf(const Actions& actions) {
    return {actions.begin(), actions.end()};
}

TEST(CalendarPress, SelectsRepaintsAndNotifiesInThisOrder) {
    // 10 March 2024 is a Sunday, 1 March a Friday; 4 July is a Thursday, 1 July a Monday.
    Date selection = {3, 10, 2024};
    EXPECT_EQ(ActionsOf(Press(selection, 2031, LargeLayout(), MiddleOf(6, 4))),
              (std::vector<Action>{{ActionKind::Repaint, RectOf(2, 14), 0},
                                   {ActionKind::Repaint, RectOf(6, 4), 0},
                                   {ActionKind::Notify, {}, 0x0100}}));
    EXPECT_EQ(selection, (Date{7, 4, 2024}));
}

TEST(CalendarPress, RepaintsOneCellWithoutAnOldOne) {
    const std::vector<Action> expected = {{ActionKind::Repaint, RectOf(0, 4), 0},
                                          {ActionKind::Notify, {}, 0x0100}};
    // 1 January 2026 is a Thursday.
    Date none = {0, 0, 0};
    EXPECT_EQ(ActionsOf(Press(none, 2026, LargeLayout(), MiddleOf(0, 4))), expected);
    EXPECT_EQ(none, (Date{1, 1, 2026})) << "in the current year";
    Date noDay = {2, 30, 2026};
    EXPECT_EQ(ActionsOf(Press(noDay, 2031, LargeLayout(), MiddleOf(0, 4))), expected);
    EXPECT_EQ(noDay, (Date{1, 1, 2026})) << "in the year of what is no day";
    Date same = {1, 1, 2026};
    EXPECT_EQ(ActionsOf(Press(same, 2031, LargeLayout(), MiddleOf(0, 4))), expected);
    EXPECT_EQ(same, (Date{1, 1, 2026})) << "pressed again";
}

TEST(CalendarPress, LeavesTheSelectionWhereThereIsNoDay) {
    // In January 2026 the first four cells are blank, and those after the 31st, a Saturday.
    for (const Point point :
         {MiddleOf(0, 0), MiddleOf(0, 3), MiddleOf(0, 35), MiddleOf(0, 41), Point{50, 10},
          Point{50, 20}, Point{50, 28}, Point{101, 60}, Point{1, 60}, Point{60, 1}, Point{60, -1},
          Point{-1, 60}, Point{302, 340}, Point{250, 402}}) {
        Date selection = {3, 10, 2026};
        EXPECT_EQ(Press(selection, 2031, LargeLayout(), point).count, 0u)
            << point.x << ", " << point.y;
        EXPECT_EQ(selection, (Date{3, 10, 2026}));
        Date none = {0, 0, 0};
        EXPECT_EQ(Press(none, 2026, LargeLayout(), point).count, 0u);
        EXPECT_EQ(none, Date{});
    }
}

TEST(CalendarPress, SelectsThe14thInTheThirdCellOfSeptember1752) {
    Date selection = {1, 1, 1752};
    Press(selection, 2031, LargeLayout(), MiddleOf(8, 4));
    EXPECT_EQ(selection, (Date{9, 14, 1752}));
    Press(selection, 2031, LargeLayout(), MiddleOf(8, 3));
    EXPECT_EQ(selection, (Date{9, 2, 1752}));
}

TEST(CalendarPress, SelectsEveryDayOfEveryYear) {
    for (const AlmanacYear& year : kAlmanac) {
        for (int panel = 0; panel < kPanels; ++panel) {
            int cell = year.First(panel);
            for (const std::uint16_t day : year.Days(panel)) {
                Date selection = {13, 1, year.year}; // no day, but the year counts
                Press(selection, 2031, LargeLayout(), MiddleOf(panel, cell));
                EXPECT_EQ(selection, (Date{static_cast<std::uint16_t>(panel + 1), day, year.year}));
                ++cell;
            }
        }
    }
}

} // namespace
} // namespace vorn::calendar
