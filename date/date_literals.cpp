#include "date/date_literals.h"

#include "core/text.h"

#include <cstring>

namespace vorn::date {

void SetDayLiterals(NameTables& tables, const char* text) {
    if (text != nullptr) {
        CopyText(tables.weekdayInitials, text);
    }
}

void SetMonthLiterals(NameTables& tables, const char* list) {
    if (list == nullptr) {
        return;
    }
    const char* name = list;
    for (std::size_t month = 0; month < kMonths; ++month) {
        CopyText(tables.hostMonths[month], name);
        tables.monthNames[month] = tables.hostMonths[month];
        name += std::strlen(name) + 1;
    }
}

} // namespace vorn::date
