// The year calendar without its window: where its twelve panels and their days are, which day is
// under a point, and what a click does.
#pragma once

#include "core/geometry.h"
#include "core/steps.h"
#include "date/date_value.h"

#include <cstddef>
#include <cstdint>

namespace vorn::calendar {

// Panels are numbered 0 for January to 11, in rows of three.
constexpr int kPanels = 12;
constexpr int kPanelColumns = 3;
constexpr int kPanelRows = 4;

// The days of a panel lie in cells, seven to a row, in which 31 days find room whatever the weekday
// of the first.
constexpr int kWeekdays = 7;
constexpr int kWeeks = 6;
constexpr int kCells = kWeekdays * kWeeks;

constexpr std::int32_t kMargin = 2; // the face above and left of the panels
constexpr std::int32_t kGroove = 2; // between two panels, taken from the left and upper one
constexpr std::int32_t kTitleIndent = 4;

// How high lines of text are.
struct LineHeights {
    std::int32_t title = 0; // in the system font
    std::int32_t small = 0; // the weekday line, and each row of days
};

struct Layout {
    Rect client;
    LineHeights lines;
    std::int32_t panelWidth = 0;
    std::int32_t panelHeight = 0;
    std::int32_t columnWidth = 0; // of a weekday
};

Layout MakeLayout(const Rect& client, const LineHeights& lines);

// A panel with the groove at its right and lower edge. The last column and row of panels have no
// groove there, and take what the division into panels leaves over.
Rect PanelRectangle(const Layout& layout, int panel);

// The parts of a panel, cut where it ends; empty or inverted where nothing of them is inside.
Rect TitleRectangle(const Layout& layout, int panel);
Rect WeekdayRectangle(const Layout& layout, int panel, int weekday);
Rect CellRectangle(const Layout& layout, int panel, int cell);

// A pair of lines along the panel's right and lower edge, in painting order; empty or inverted
// where it has none.
struct Groove {
    Rect shadowRight;
    Rect shadowBottom;
    Rect highlightRight;
    Rect highlightBottom;
};
Groove GrooveOf(const Layout& layout, int panel);

// Where a day is.
struct Place {
    int panel = -1;
    int cell = -1;

    friend constexpr bool operator==(const Place&, const Place&) = default;
};
constexpr Place kNowhere = {};

// The cell whose rectangle contains the point, a blank one too.
Place PlaceAt(const Layout& layout, Point point);

// The days of a month as they lie in its panel's cells.
struct MonthDays {
    int firstCell = 0;            // the weekday of the 1st, 0 for Sunday
    std::uint16_t length = 0;     // the last day's number
    std::uint16_t lastJulian = 0; // the day before the gap of September 1752 ...
    std::uint16_t skipped = 0;    // ... and how many days are missing after it; else 0
};
MonthDays DaysOf(std::uint16_t year, int panel);

// The day in a cell, 0 for a blank one.
std::uint16_t DayInCell(const MonthDays& days, int cell);

// Where a date is in the calendar of its year; nowhere when there is no such day.
Place PlaceOf(const date::Date& date);

// A date with all three numbers 0 means that none is selected. A calendar without one shows the
// current year.
constexpr bool IsSelected(const date::Date& selection) {
    return selection != date::Date{};
}
constexpr std::uint16_t ShownYear(const date::Date& selection, std::uint16_t currentYear) {
    return IsSelected(selection) ? selection.year : currentYear;
}

// What hosts are told of a date, laid out as they get it.
struct DateQuery {
    std::uint16_t month = 0;
    std::uint16_t day = 0;
    std::uint16_t year = 0;
    std::uint16_t weekday = 0; // 0 for Sunday
    std::uint16_t leapYear = 0;

    friend constexpr bool operator==(const DateQuery&, const DateQuery&) = default;
};
static_assert(sizeof(DateQuery) == 10 && offsetof(DateQuery, year) == 4 &&
              offsetof(DateQuery, leapYear) == 8);

// The query's answer and the day number; zeros and 0 without a selection.
struct QueryResult {
    DateQuery query;
    std::uint32_t dayNumber = 0;
};
QueryResult Query(const date::Date& selection);

// Notification codes.
constexpr std::uint16_t kSelectedCode = 0x0100;
constexpr std::uint16_t kDoubleClickedCode = 0x0101;

enum class ActionKind : std::uint8_t { Repaint, Notify };

struct Action {
    ActionKind kind = ActionKind::Repaint;
    Rect area;              // for Repaint
    std::uint16_t code = 0; // for Notify

    friend constexpr bool operator==(const Action&, const Action&) = default;
};

using Actions = ActionList<Action, 3>;

// A press of the left mouse button: selects the day under the point, in the shown year. Where there
// is none, the selection stays and there is nothing to do.
Actions Press(date::Date& selection, std::uint16_t currentYear, const Layout& layout, Point point);

} // namespace vorn::calendar
