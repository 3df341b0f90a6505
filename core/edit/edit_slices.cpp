#include "core/edit/edit_slices.h"

namespace vorn::edit {

Slices SlicesOf(const SliceCuts& cuts, std::int32_t target) {
    Slices slices;
    const std::int32_t gaps = target - 2 * cuts.frame - cuts.middleSize;
    if (gaps < 0) {
        slices[0] = {0, cuts.size, 0, target};
        return slices;
    }
    const std::int32_t afterMiddle = cuts.middle + cuts.middleSize;
    const std::int32_t from[] = {
        0, cuts.frame, cuts.middle, afterMiddle, cuts.size - cuts.frame, cuts.size};
    const std::int32_t toSize[] = {cuts.frame, gaps / 2, cuts.middleSize, gaps - gaps / 2,
                                   cuts.frame};
    std::int32_t to = 0;
    for (std::size_t index = 0; index < slices.size(); ++index) {
        slices[index] = {from[index], from[index + 1] - from[index], to, toSize[index]};
        to += toSize[index];
    }
    return slices;
}

} // namespace vorn::edit
