// Years as an almanac has them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vorn::test {

// The weekday of the first of each month, 0 for Sunday, and the length of February. 1752 is the
// year of the change from the Julian to the Gregorian calendar. Year 0 ends with the same Saturday
// that year 1 begins with.
struct AlmanacYear {
    std::uint16_t year;
    std::array<int, 12> firsts;
    std::uint16_t february;

    // The days of a month, 0 for January, in their order.
    std::vector<std::uint16_t> Days(int month) const {
        const std::uint16_t lengths[] = {31, february, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        std::vector<std::uint16_t> days;
        for (std::uint16_t day = 1; day <= lengths[month]; ++day) {
            if (year != 1752 || month != 8 || day <= 2 || day >= 14) {
                days.push_back(day);
            }
        }
        return days;
    }

    int First(int month) const { return firsts[static_cast<std::size_t>(month)]; }
};

inline const AlmanacYear kAlmanac[] = {
    {0, {5, 1, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4}, 29},
    {1, {6, 2, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4}, 28},
    {1752, {3, 6, 0, 3, 5, 1, 3, 6, 2, 0, 3, 5}, 29},
    {1753, {1, 4, 4, 0, 2, 5, 0, 3, 6, 1, 4, 6}, 28},
    {2023, {0, 3, 3, 6, 1, 4, 6, 2, 5, 0, 3, 5}, 28},
    {2024, {1, 4, 5, 1, 3, 6, 1, 4, 0, 2, 5, 0}, 29},
    {9999, {5, 1, 1, 4, 6, 2, 4, 0, 3, 5, 1, 3}, 28},
};

} // namespace vorn::test
