// Any size, date and point: a year calendar selects only days that exist, and finds them again.
#include "date/calendar.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

using namespace vorn;
using namespace vorn::calendar;

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

// What a window can be like, and a press on it.
struct Input {
    std::int16_t left;
    std::int16_t top;
    std::uint16_t width;
    std::uint16_t height;
    std::uint8_t titleHeight;
    std::uint8_t smallHeight;
    std::uint16_t currentYear;
    date::Date selection;
    std::int16_t x;
    std::int16_t y;
};

void CheckPress(const Input& input, const Layout& layout) {
    const Point point = {input.x, input.y};
    const Place place = PlaceAt(layout, point);
    Require(place == kNowhere || Contains(CellRectangle(layout, place.panel, place.cell), point));

    date::Date selection = input.selection;
    const Actions actions = Press(selection, input.currentYear, layout, point);
    if (actions.count == 0) {
        Require(selection == input.selection);
        return;
    }
    Require(PlaceOf(selection) == place && place != kNowhere);
    Require(selection.year == ShownYear(input.selection, input.currentYear));
    Require(selection.year > date::kLastYear || date::IsValidDate(selection));
    const Action& last = actions.items[actions.count - 1];
    const Action& repaint = actions.items[actions.count - 2];
    Require(last.kind == ActionKind::Notify && last.code == kSelectedCode);
    Require(repaint.kind == ActionKind::Repaint && Contains(repaint.area, point));
}

void CheckDate(const date::Date& date) {
    const Place place = PlaceOf(date);
    if (date.year <= date::kLastYear) {
        Require((place != kNowhere) == date::IsValidDate(date));
    }
    if (place == kNowhere) {
        return;
    }
    const QueryResult result = Query(date);
    Require(DayInCell(DaysOf(date.year, place.panel), place.cell) == date.day);
    Require(!IsSelected(date) || place.cell % kWeekdays == result.query.weekday);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input;
    if (size < sizeof input) {
        return 0;
    }
    std::memcpy(&input, data, sizeof input);
    const Rect client = {input.left, input.top, input.left + input.width, input.top + input.height};
    const Layout layout = MakeLayout(client, {input.titleHeight, input.smallHeight});
    CheckPress(input, layout);
    CheckDate(input.selection);
    return 0;
}
