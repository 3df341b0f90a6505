// A picture of a button that takes any size: its frame and its middle keep theirs, what is between
// them stretches.
#pragma once

#include <array>
#include <cstdint>

namespace vorn::edit {

// One row or column of a picture's slices: where it is taken from and where it goes.
struct Slice {
    std::int32_t from = 0;
    std::int32_t fromSize = 0;
    std::int32_t to = 0;
    std::int32_t toSize = 0;
};

// How a picture is cut along one side.
struct SliceCuts {
    std::int32_t size = 0;  // of the picture
    std::int32_t frame = 0; // at both ends
    std::int32_t middle = 0;
    std::int32_t middleSize = 0;
};

// Frame, gap, middle, gap, frame. With less room than frames and middle need the picture shrinks as
// a whole: the first slice has all of it, and the others are empty.
using Slices = std::array<Slice, 5>;
Slices SlicesOf(const SliceCuts& cuts, std::int32_t target);

} // namespace vorn::edit
