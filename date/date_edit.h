// The date edit's dealings with its host: everything about them that needs no window. What the
// keyboard does is in date_keys.h.
#pragma once

#include "core/edit/edit_border.h"
#include "core/edit/time_record.h"
#include "date/date_entry.h"

#include <cstddef>
#include <cstdint>

namespace vorn::date {

// What the border's style bits mean at creation, in the order in which they are tested.
constexpr edit::BorderBits kBorderBits = {
    {{0x1000, kBorderSunken}, {0x2000, kBorderRaised}, {0x4000, kBorderLine}}};

// A date edit is at least a character and its drop-down button wide.
constexpr edit::Compactness kCompactness = {1, 7};

// The record in which hosts read and write date and layout. Its layout is fixed.
struct EditParams {
    std::uint32_t size; // kEditParamsSize
    std::uint32_t setDate;
    std::uint16_t year; // 0: today
    std::uint16_t month;
    std::uint16_t day;
    std::uint16_t reserved1; // neither read nor written
    std::uint32_t keepLayout;
    std::uint16_t separator; // in the low byte; 0: the user's
    std::uint16_t reserved2;
    std::uint32_t monthLeadingZero;
    std::uint32_t dayLeadingZero;
    std::uint32_t fourDigitYear;
    std::uint32_t kinds[kPositions]; // the first 0: kinds and flags of the user's picture
};
constexpr std::uint32_t kEditParamsSize = 48;

static_assert(sizeof(EditParams) == kEditParamsSize);
static_assert(offsetof(EditParams, size) == 0 && offsetof(EditParams, setDate) == 4);
static_assert(offsetof(EditParams, year) == 8 && offsetof(EditParams, month) == 10);
static_assert(offsetof(EditParams, day) == 12 && offsetof(EditParams, reserved1) == 14);
static_assert(offsetof(EditParams, keepLayout) == 16 && offsetof(EditParams, separator) == 20);
static_assert(offsetof(EditParams, reserved2) == 22);
static_assert(offsetof(EditParams, monthLeadingZero) == 24);
static_assert(offsetof(EditParams, dayLeadingZero) == 28);
static_assert(offsetof(EditParams, fourDigitYear) == 32 && offsetof(EditParams, kinds) == 36);

using edit::TimeRecord;

// A new edit: today, in the user's layout.
void StartDate(DateEntry& entry, const Date& today, const RegionalProfile& profile);

// Takes the user's layout again.
void ReloadLayout(DateEntry& entry, const RegionalProfile& profile);

// Fills size, date, separator, the month's leading zero and the kinds, and both flags with 1, so
// that the record handed back changes the date alone. The other fields stay.
void GetEditParams(EditParams& params, const HeldDate& date);

// Takes the layout unless it is to be kept and, when `takeDate`, the date; null is then a date of
// the year 0.
void SetEditParams(DateEntry& entry, const EditParams& params, bool takeDate, const Date& today,
                   const RegionalProfile& profile);

// Takes the numbers as they are. 0 September of the year 0 is no date.
void SetDate(DateEntry& entry, const Date& date);

// Takes numbers in the order of the layout, as they are; none, and a missing text, for no date. In
// a layout with two-digit years those below 100 are of the 20th century. Numbers beyond the third
// do not count; a field without one stays.
void SetDateString(DateEntry& entry, const char* text);

// No date, and its numbers 0.
void SetNull(DateEntry& entry);

// Takes a text as the user would type it; none for no date.
void SetText(DateEntry& entry, const char* text);

// The date of a time record and back; the record's times of day are 0.
void SetTime(DateEntry& entry, const TimeRecord& time);
TimeRecord TimeOf(const Date& date);

// The captions of the pop-up's buttons: OK, Cancel, Erase. One copy a process.
constexpr std::int32_t kCaptions = 3;
constexpr std::size_t kCaptionSize = 32;
struct Captions {
    char texts[kCaptions][kCaptionSize];
};
extern Captions captions;

// "&OK", "&Cancel" and "&Erase".
void ResetCaptions(Captions& captions);

// Replaces one caption, cut to its buffer; a null text changes nothing. Returns the caption, null
// when there is none of that number.
char* SetCaption(Captions& captions, std::int32_t which, const char* text);

} // namespace vorn::date
