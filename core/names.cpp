#include "core/names.h"

namespace vorn {
namespace {

template <std::size_t Size>
constexpr void Put(char (&buffer)[Size], const char* text) {
    for (std::size_t i = 0; text[i] != '\0' && i + 1 < Size; ++i) {
        buffer[i] = text[i];
    }
}

constexpr NameTables MakePlaceholders() {
    NameTables tables{};
    for (std::size_t month = 0; month < kMonths; ++month) {
        const char tens = month + 1 < 10 ? '0' : '1';
        const char units = static_cast<char>('0' + (month + 1) % 10);
        Put(tables.longMonths[month], "----*----1---");
        tables.longMonths[month][13] = tens;
        tables.longMonths[month][14] = units;
        Put(tables.shortMonths[month], "0");
        tables.shortMonths[month][1] = tens;
        tables.shortMonths[month][2] = units;
    }
    Put(tables.weekdayInitials, "SMTWTFS");
    return tables;
}

} // namespace

NameTables PlaceholderNames() {
    return MakePlaceholders();
}

constinit NameTables names = MakePlaceholders();

} // namespace vorn
