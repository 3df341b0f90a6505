#include "core/attach.h"

namespace vorn {
namespace {

// String resources: long month names from 1, the weekday initials, short month names from 14.
constexpr unsigned kFirstMonthString = 1;
constexpr unsigned kWeekdayInitialsString = 13;
constexpr unsigned kFirstShortMonthString = 14;

// One less than the buffers hold.
constexpr int kMonthNameLoadSize = static_cast<int>(kMonthNameSize) - 1;

bool LoadNames(NameTables& tables, const PlatformServices& platform) {
    for (unsigned month = 0; month < kMonths; ++month) {
        tables.monthNames[month] = tables.longMonths[month];
        tables.shortMonthNames[month] = tables.shortMonths[month];
        if (platform.loadString(platform.context, kFirstMonthString + month,
                                tables.longMonths[month], kMonthNameLoadSize) == 0 ||
            platform.loadString(platform.context, kFirstShortMonthString + month,
                                tables.shortMonths[month], kShortMonthNameSize) == 0) {
            return false;
        }
    }
    return platform.loadString(platform.context, kWeekdayInitialsString, tables.weekdayInitials,
                               kWeekdayInitialsSize) != 0;
}

bool RegisterClasses(const PlatformServices& platform) {
    for (const ClassDescription& description : kClassTable) {
        void* cursor = description.cursor == ClassCursor::Arrow
                           ? platform.arrowCursor(platform.context)
                           : nullptr;
        void* brush = description.brush == ClassBrush::None
                          ? nullptr
                          : platform.stockBrush(platform.context, description.brush);
        if (!platform.registerClass(platform.context, description, cursor, brush)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool Attach(Library& library, const PlatformServices& platform) {
    if (library.registered) {
        return true;
    }
    platform.debugOutput(platform.context, "VORN32.DLL Loading...\n");
    library.registered = LoadNames(*library.names, platform) && RegisterClasses(platform);
    return library.registered;
}

void Detach(const Library& library, const PlatformServices& platform) {
    if (!library.registered) {
        return;
    }
    platform.debugOutput(platform.context, "VORN32.DLL Unloading...\n");
    for (const ControlClass id : kUnregisterOrder) {
        platform.unregisterClass(platform.context, Describe(id));
    }
}

} // namespace vorn
