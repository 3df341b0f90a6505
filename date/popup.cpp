#include "date/popup.h"

#include <algorithm>

namespace vorn::date {
namespace {

// Notifications of the controls.
constexpr std::uint32_t kClicked = 0;
constexpr std::uint32_t kDayDoubleClicked = 0x0101;
constexpr std::uint32_t kTextChanged = 0x0300;

constexpr std::int32_t kSystemButtonHeight = 25;
constexpr std::int32_t kSystemButtonGap = 8;

PopupCommand CommandOfClick(std::int32_t controlId) {
    switch (controlId) {
    case kAcceptButton:
        return PopupCommand::Accept;
    case kCancelButton:
        return PopupCommand::Cancel;
    case kEraseButton:
        return PopupCommand::Erase;
    case kPreviousYearButton:
        return PopupCommand::PreviousYear;
    case kNextYearButton:
        return PopupCommand::NextYear;
    default:
        return PopupCommand::None;
    }
}

std::int32_t CentredTop(std::int32_t top, std::int32_t bottom, std::int32_t height) {
    return top + (bottom - top - height) / 2;
}

} // namespace

PopupCommand CommandOf(std::int32_t controlId, std::uint32_t code) {
    if (controlId == kYearBox) {
        return code == kTextChanged ? PopupCommand::TakeTypedYear : PopupCommand::None;
    }
    if (controlId == kPopupCalendar) {
        return code == kDayDoubleClicked ? PopupCommand::Accept : PopupCommand::None;
    }
    return code == kClicked ? CommandOfClick(controlId) : PopupCommand::None;
}

std::uint16_t YearBefore(std::uint16_t year) {
    return year == 0 ? year : static_cast<std::uint16_t>(year - 1);
}

std::uint16_t YearAfter(std::uint16_t year) {
    return year >= kLastYear ? year : static_cast<std::uint16_t>(year + 1);
}

YearLine PlaceYearLine(const Rect& calendar, std::int32_t frameTop, const Size& arrow,
                       const Size& box) {
    const std::int32_t arrowTop = CentredTop(frameTop, calendar.top, arrow.height);
    return {{calendar.left - 1, arrowTop},
            {calendar.left + (Width(calendar) - box.width) / 2,
             CentredTop(frameTop, calendar.top, box.height)},
            {calendar.right - 1 - arrow.width, arrowTop}};
}

Rect PlaceSystemButton(const Rect& accept, std::int32_t index) {
    const std::int32_t top = accept.top + index * (kSystemButtonHeight + kSystemButtonGap);
    return {accept.left, top, accept.right, top + kSystemButtonHeight};
}

Point MoveInside(const Rect& window, const Rect& area) {
    return {std::max(std::min(window.left, area.right - Width(window)), area.left),
            std::max(std::min(window.top, area.bottom - Height(window)), area.top)};
}

} // namespace vorn::date
