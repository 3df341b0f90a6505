// The record in which hosts exchange moments with the date and the time edit.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vorn::edit {

// A moment as C libraries break it down. Its layout is fixed.
struct TimeRecord {
    std::int32_t seconds;
    std::int32_t minutes;
    std::int32_t hours;
    std::int32_t day;   // of the month, from 1
    std::int32_t month; // from 0
    std::int32_t year;  // since 1900
    std::int32_t weekday;
    std::int32_t dayOfYear; // from 0
    std::int32_t daylight;
};
static_assert(sizeof(TimeRecord) == 36 && offsetof(TimeRecord, year) == 20);

// What a host that asks for the record's size is answered, beside the size itself.
constexpr std::int32_t kTimeSizeAnswer = 11;

// Writes the size where it is wanted, which may be nowhere.
inline std::int32_t TellTimeSize(std::uint32_t* size) {
    if (size != nullptr) {
        *size = sizeof(TimeRecord);
    }
    return kTimeSizeAnswer;
}

} // namespace vorn::edit
