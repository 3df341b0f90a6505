// The host's weekday initials and month names.
#include "date/date_literals.h"

#include <gtest/gtest.h>
#include <string>

namespace vorn::date {
namespace {

constexpr char kFrench[] = "janvier\0fevrier\0mars\0avril\0mai\0juin\0juillet\0aout\0"
                           "septembre\0octobre\0novembre\0decembre";
const char* const kFrenchMonths[] = {"janvier",   "fevrier", "mars",     "avril",
                                     "mai",       "juin",    "juillet",  "aout",
                                     "septembre", "octobre", "novembre", "decembre"};

TEST(DateDayLiterals, ReplaceTheInitials) {
    NameTables tables = PlaceholderNames();
    SetDayLiterals(tables, "DLMMJVS");
    EXPECT_STREQ(tables.weekdayInitials, "DLMMJVS");
}

TEST(DateDayLiterals, LeaveNothingBehindAShorterText) {
    NameTables tables = PlaceholderNames();
    SetDayLiterals(tables, "AB");
    EXPECT_EQ(std::string(tables.weekdayInitials, 8), std::string("AB\0\0\0\0\0\0", 8));
    SetDayLiterals(tables, "");
    EXPECT_STREQ(tables.weekdayInitials, "");
}

TEST(DateDayLiterals, AreCutToSevenLetters) {
    NameTables tables = PlaceholderNames();
    for (const std::size_t length : {std::size_t{7}, std::size_t{8}, std::size_t{100000}}) {
        SetDayLiterals(tables, std::string(length, 'Q').c_str());
        EXPECT_STREQ(tables.weekdayInitials, "QQQQQQQ");
        EXPECT_STREQ(tables.hostMonths[0], "") << "what lies behind stays";
    }
}

TEST(DateDayLiterals, StayWithoutAText) {
    NameTables tables = PlaceholderNames();
    SetDayLiterals(tables, nullptr);
    EXPECT_STREQ(tables.weekdayInitials, "SMTWTFS");
}

TEST(DateMonthLiterals, ReplaceTheLongNamesOnly) {
    NameTables tables = PlaceholderNames();
    for (std::size_t month = 0; month < kMonths; ++month) {
        tables.shortMonthNames[month] = tables.shortMonths[month];
    }
    SetMonthLiterals(tables, kFrench);
    for (std::size_t month = 0; month < kMonths; ++month) {
        EXPECT_STREQ(tables.monthNames[month], kFrenchMonths[month]);
        EXPECT_EQ(tables.shortMonthNames[month], tables.shortMonths[month]);
        EXPECT_STREQ(tables.shortMonths[month], PlaceholderNames().shortMonths[month]);
    }
    EXPECT_STREQ(tables.weekdayInitials, "SMTWTFS");
}

TEST(DateMonthLiterals, AreCopied) {
    NameTables tables = PlaceholderNames();
    std::string list(kFrench, sizeof kFrench);
    SetMonthLiterals(tables, list.c_str());
    list.assign(list.size(), '?');
    EXPECT_STREQ(tables.monthNames[0], "janvier");
    EXPECT_STREQ(tables.monthNames[11], "decembre");
}

TEST(DateMonthLiterals, MayBeGivenAgain) {
    NameTables tables = PlaceholderNames();
    SetMonthLiterals(tables, kFrench);
    const std::string empty(12, '\0');
    SetMonthLiterals(tables, empty.c_str());
    for (const char* name : tables.monthNames) {
        EXPECT_STREQ(name, "");
    }
    SetMonthLiterals(tables, kFrench);
    EXPECT_STREQ(tables.monthNames[8], "septembre");
}

TEST(DateMonthLiterals, AreCutEachForItself) {
    NameTables tables = PlaceholderNames();
    std::string list;
    for (std::size_t month = 0; month < kMonths; ++month) {
        list += std::string(month == 5 ? 70000 : 60 + month, static_cast<char>('a' + month));
        list += '\0';
    }
    SetMonthLiterals(tables, list.c_str());
    for (std::size_t month = 0; month < kMonths; ++month) {
        const std::size_t length = month < 3 ? 60 + month : 63;
        EXPECT_EQ(tables.monthNames[month], std::string(length, static_cast<char>('a' + month)));
    }
}

TEST(DateMonthLiterals, StayWithoutAList) {
    NameTables tables = PlaceholderNames();
    SetMonthLiterals(tables, kFrench);
    SetMonthLiterals(tables, nullptr);
    EXPECT_STREQ(tables.monthNames[0], "janvier");
}

} // namespace
} // namespace vorn::date
