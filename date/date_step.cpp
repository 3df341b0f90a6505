#include "date/date_step.h"

namespace vorn::date {
namespace {

constexpr std::uint16_t kLastMonth = 12;
constexpr std::uint16_t kFebruary = 2;
constexpr std::uint16_t kLeapDay = 29;

// Neighbours, since the calendar changed between them.
constexpr Date kLastJulian = {9, kLastJulianDay, 1752};
constexpr Date kFirstGregorian = {9, kFirstGregorianDay, 1752};

void StepDay(Date& date, bool up) {
    if (date == (up ? kLastJulian : kFirstGregorian)) {
        date = up ? kFirstGregorian : kLastJulian;
    } else if (up && date.day < MonthLength(date.month, date.year)) {
        ++date.day;
    } else if (!up && date.day > 1) {
        --date.day;
    }
}

void StepMonth(Date& date, bool up) {
    if (up && date.month < kLastMonth) {
        ++date.month;
        LimitDay(date);
    } else if (!up && date.month > 1) {
        --date.month;
        LimitDay(date);
    }
}

void StepYear(Date& date, bool up) {
    if (up ? date.year >= kLastYear : date.year == 0) {
        return;
    }
    date.year = static_cast<std::uint16_t>(date.year + (up ? 1 : -1));
    if (date.month == kFebruary && date.day == kLeapDay) {
        date.day = kLeapDay - 1;
    }
}

} // namespace

void StepField(edit::Actions& actions, DateEntry& entry, bool up) {
    HeldDate& date = entry.date;
    const std::int32_t position = entry.caret.field;
    ClearTypedZeros(date);
    date.null = 0;
    switch (date.layout.kinds[position]) {
    case kDay:
        StepDay(date.value, up);
        break;
    case kMonth:
        StepMonth(date.value, up);
        break;
    case kYear:
        StepYear(date.value, up);
        break;
    default:
        break;
    }
    SelectField(entry.caret, FieldMapOf(date), position);
    FinishChange(actions, entry, edit::ActionKind::RepaintText);
}

} // namespace vorn::date
