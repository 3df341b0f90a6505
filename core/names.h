// The month names and weekday initials that the date and time controls share, one copy a process.
#pragma once

#include <cstddef>

namespace vorn {

constexpr std::size_t kMonths = 12;
constexpr std::size_t kMonthNameSize = 16;
constexpr std::size_t kShortMonthNameSize = 4;
constexpr std::size_t kWeekdayInitialsSize = 8;
constexpr std::size_t kHostMonthNameSize = 64;

// Filled when the library is attached; hosts may then replace the long month names and the weekday
// initials. Before that the months hold placeholder texts.
struct NameTables {
    char longMonths[kMonths][kMonthNameSize];
    char shortMonths[kMonths][kShortMonthNameSize];
    const char* monthNames[kMonths];              // entry i points at longMonths[i]; January is 0
    const char* shortMonthNames[kMonths];         // entry i points at shortMonths[i]
    char weekdayInitials[kWeekdayInitialsSize];   // one letter a day, Sunday first
    char hostMonths[kMonths][kHostMonthNameSize]; // what monthNames points at from then on
};

// Tables as they are before any loading: "----*----1---01" and "001" to "----*----1---12" and
// "012", null pointers, and the built-in initials.
NameTables PlaceholderNames();

// The process's own tables.
extern NameTables names;

} // namespace vorn
