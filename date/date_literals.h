// The host's own weekday initials and month names in place of those of the library.
#pragma once

#include "core/names.h"

namespace vorn::date {

// Replaces the weekday initials: one letter a day, Sunday first. Those beyond seven are cut. Null
// changes nothing.
void SetDayLiterals(NameTables& tables, const char* text);

// Replaces the long month names with copies of these: twelve terminated names, one after another,
// each cut to 63 characters. The short names stay. Null changes nothing.
void SetMonthLiterals(NameTables& tables, const char* list);

} // namespace vorn::date
