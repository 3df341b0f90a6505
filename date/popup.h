// The "Select Date" dialog apart from its windows: its controls, what their notifications ask for,
// and where they stand.
#pragma once

#include "core/geometry.h"

#include <cstdint>

namespace vorn::date {

// Identifiers of the controls.
constexpr std::int32_t kAcceptButton = 1;
constexpr std::int32_t kCancelButton = 2;
constexpr std::int32_t kYearBox = 14;
constexpr std::int32_t kEraseButton = 22;
constexpr std::int32_t kPreviousYearButton = 23;
constexpr std::int32_t kNextYearButton = 25;
constexpr std::int32_t kPopupCalendar = 300;
constexpr std::int32_t kYearFrame = 500; // hidden; the year line stands below its top

// What the dialog ends with. Only when it was cancelled the date edit goes on as if nothing were.
constexpr std::int32_t kDateChosen = 1;
constexpr std::int32_t kPopupCancelled = 2;
constexpr std::int32_t kDateErased = 203;

constexpr std::uint16_t kFirstYear = 1; // that can be typed
constexpr std::uint16_t kLastYear = 9999;

enum class PopupCommand : std::uint8_t {
    None,
    Accept,
    Cancel,
    Erase,
    PreviousYear,
    NextYear,
    TakeTypedYear, // into the date at once, and into the calendar
};

PopupCommand CommandOf(std::int32_t controlId, std::uint32_t code);

// The year that an arrow leads to; the same one at the end of the years.
std::uint16_t YearBefore(std::uint16_t year);
std::uint16_t YearAfter(std::uint16_t year);

// The upper left corners of both arrows and of the year box, in the band above the calendar.
struct YearLine {
    Point previous;
    Point box;
    Point next;
};

YearLine PlaceYearLine(const Rect& calendar, std::int32_t frameTop, const Size& arrow,
                       const Size& box);

// Where the system's buttons stand that take the places of the library's: one below the other, the
// first, 0, at the top of the button to accept.
Rect PlaceSystemButton(const Rect& accept, std::int32_t index);

// Where a window is wholly inside an area, moved as little as possible; at the area's upper left
// when it is larger.
Point MoveInside(const Rect& window, const Rect& area);

} // namespace vorn::date
