#include "date/calendar.h"

#include <algorithm>

namespace vorn::calendar {
namespace {

constexpr int kLastColumn = kPanelColumns - 1;
constexpr int kLastRow = kPanelRows - 1;

int ColumnOf(int panel) {
    return panel % kPanelColumns;
}

int RowOf(int panel) {
    return panel / kPanelColumns;
}

std::uint16_t MonthOf(int panel) {
    return static_cast<std::uint16_t>(panel + 1);
}

Rect Intersection(const Rect& a, const Rect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

// Which of the columns or rows of panels a point is in; the last one when panels have no extent.
std::int32_t PanelAt(std::int32_t offset, std::int32_t panelExtent, int last) {
    return panelExtent > 0 ? std::min(offset / panelExtent, std::int32_t{last}) : last;
}

// The panel without its groove.
Rect Inside(const Layout& layout, int panel) {
    Rect rect = PanelRectangle(layout, panel);
    if (ColumnOf(panel) != kLastColumn) {
        rect.right -= kGroove;
    }
    if (RowOf(panel) != kLastRow) {
        rect.bottom -= kGroove;
    }
    return rect;
}

// A piece of the weekday line (line 0) or of a row of days below it.
Rect LineRectangle(const Layout& layout, int panel, int line, int weekday) {
    const Rect inside = Inside(layout, panel);
    const std::int32_t left = inside.left + weekday * layout.columnWidth;
    const std::int32_t top = inside.top + layout.lines.title + line * layout.lines.small;
    return Intersection({left, top, left + layout.columnWidth, top + layout.lines.small}, inside);
}

Action RepaintOf(const Layout& layout, Place place) {
    return {ActionKind::Repaint, CellRectangle(layout, place.panel, place.cell), 0};
}

} // namespace

Layout MakeLayout(const Rect& client, const LineHeights& lines) {
    const std::int32_t panelWidth = (Width(client) - kMargin) / kPanelColumns;
    const std::int32_t panelHeight = (Height(client) - kMargin) / kPanelRows;
    return {client, lines, panelWidth, panelHeight, (panelWidth - kGroove) / kWeekdays};
}

Rect PanelRectangle(const Layout& layout, int panel) {
    const std::int32_t left = layout.client.left + kMargin + ColumnOf(panel) * layout.panelWidth;
    const std::int32_t top = layout.client.top + kMargin + RowOf(panel) * layout.panelHeight;
    return {left, top,
            ColumnOf(panel) == kLastColumn ? layout.client.right : left + layout.panelWidth,
            RowOf(panel) == kLastRow ? layout.client.bottom : top + layout.panelHeight};
}

Rect TitleRectangle(const Layout& layout, int panel) {
    Rect rect = Inside(layout, panel);
    rect.bottom = std::min(rect.bottom, rect.top + layout.lines.title);
    return rect;
}

Rect WeekdayRectangle(const Layout& layout, int panel, int weekday) {
    return LineRectangle(layout, panel, 0, weekday);
}

Rect CellRectangle(const Layout& layout, int panel, int cell) {
    return LineRectangle(layout, panel, 1 + cell / kWeekdays, cell % kWeekdays);
}

Groove GrooveOf(const Layout& layout, int panel) {
    const Rect rect = PanelRectangle(layout, panel);
    Groove groove;
    if (ColumnOf(panel) != kLastColumn) {
        const std::int32_t edge = rect.right;
        groove.shadowRight = Intersection({edge - 2, rect.top, edge - 1, rect.bottom}, rect);
        groove.highlightRight = Intersection({edge - 1, rect.top, edge, rect.bottom}, rect);
    }
    if (RowOf(panel) != kLastRow) {
        const std::int32_t edge = rect.bottom;
        // The two shadows meet, and the highlights around them, as the edges of two plates do.
        const std::int32_t right = ColumnOf(panel) == kLastColumn ? rect.right : rect.right - 1;
        groove.shadowBottom = Intersection({rect.left, edge - 2, right, edge - 1}, rect);
        groove.highlightBottom = Intersection({rect.left, edge - 1, rect.right, edge}, rect);
    }
    return groove;
}

Place PlaceAt(const Layout& layout, Point point) {
    if (layout.columnWidth <= 0 || layout.lines.small <= 0) {
        return kNowhere;
    }
    const std::int32_t x = point.x - layout.client.left - kMargin;
    const std::int32_t y = point.y - layout.client.top - kMargin;
    if (x < 0 || y < 0) {
        return kNowhere;
    }
    const std::int32_t column = PanelAt(x, layout.panelWidth, kLastColumn);
    const std::int32_t row = PanelAt(y, layout.panelHeight, kLastRow);
    const int panel = row * kPanelColumns + column;
    const std::int32_t weekday = (x - column * layout.panelWidth) / layout.columnWidth;
    const std::int32_t below =
        y - row * layout.panelHeight - layout.lines.title - layout.lines.small;
    const std::int32_t week = below / layout.lines.small;
    if (weekday >= kWeekdays || below < 0 || week >= kWeeks ||
        !Contains(Inside(layout, panel), point)) {
        return kNowhere;
    }
    return {panel, week * kWeekdays + weekday};
}

MonthDays DaysOf(std::uint16_t year, int panel) {
    const std::uint16_t month = MonthOf(panel);
    std::uint16_t weekday = 0;
    date::DayNumber(month, 1, year, nullptr, &weekday);
    MonthDays days = {weekday, date::MonthLength(month, year), 0, 0};
    if (date::IsSkippedDay({month, date::kLastJulianDay + 1, year})) {
        days.lastJulian = date::kLastJulianDay;
        days.skipped = date::kFirstGregorianDay - date::kLastJulianDay - 1;
    }
    return days;
}

std::uint16_t DayInCell(const MonthDays& days, int cell) {
    int day = cell + 1 - days.firstCell;
    if (day > days.lastJulian) {
        day += days.skipped;
    }
    return day >= 1 && day <= days.length ? static_cast<std::uint16_t>(day) : std::uint16_t{0};
}

Place PlaceOf(const date::Date& date) {
    if (date.day < 1 || date.day > date::MonthLength(date.month, date.year) ||
        date::IsSkippedDay(date)) {
        return kNowhere;
    }
    const int panel = date.month - 1;
    const MonthDays days = DaysOf(date.year, panel);
    const int missing = date.day > days.lastJulian ? days.skipped : 0;
    return {panel, days.firstCell + date.day - 1 - missing};
}

QueryResult Query(const date::Date& selection) {
    QueryResult result;
    if (IsSelected(selection)) {
        DateQuery& query = result.query;
        query.month = selection.month;
        query.day = selection.day;
        query.year = selection.year;
        query.leapYear = date::IsLeapYear(selection.year) ? 1 : 0;
        result.dayNumber = date::DayNumber(selection.month, selection.day, selection.year, nullptr,
                                           &query.weekday);
    }
    return result;
}

Actions Press(date::Date& selection, std::uint16_t currentYear, const Layout& layout, Point point) {
    Actions actions;
    const Place place = PlaceAt(layout, point);
    if (place == kNowhere) {
        return actions;
    }
    const std::uint16_t year = ShownYear(selection, currentYear);
    const std::uint16_t day = DayInCell(DaysOf(year, place.panel), place.cell);
    if (day == 0) {
        return actions;
    }
    const Place old = PlaceOf(selection);
    if (old != kNowhere && old != place) {
        Append(actions, RepaintOf(layout, old));
    }
    selection = {MonthOf(place.panel), day, year};
    Append(actions, RepaintOf(layout, place));
    Append(actions, Action{ActionKind::Notify, {}, kSelectedCode});
    return actions;
}

} // namespace vorn::calendar
