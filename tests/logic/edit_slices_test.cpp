// A picture that takes any size: what of it goes where.
#include "core/edit/edit_slices.h"

#include <gtest/gtest.h>

namespace vorn::edit {
namespace {

constexpr SliceCuts kCuts = {16, 2, 4, 8};

void ExpectSlice(const Slice& slice, int from, int fromSize, int to, int toSize) {
    EXPECT_EQ(slice.from, from);
    EXPECT_EQ(slice.fromSize, fromSize);
    EXPECT_EQ(slice.to, to);
    EXPECT_EQ(slice.toSize, toSize);
}

TEST(EditSlices, FramesAndMiddleKeepTheirSize) {
    const Slices slices = SlicesOf(kCuts, 31);
    ExpectSlice(slices[0], 0, 2, 0, 2);
    ExpectSlice(slices[1], 2, 2, 2, 9);
    ExpectSlice(slices[2], 4, 8, 11, 8);
    ExpectSlice(slices[3], 12, 2, 19, 10);
    ExpectSlice(slices[4], 14, 2, 29, 2);
}

TEST(EditSlices, OfItsOwnSizeIsThePictureItself) {
    for (const Slice& slice : SlicesOf(kCuts, 16)) {
        EXPECT_EQ(slice.to, slice.from);
        EXPECT_EQ(slice.toSize, slice.fromSize);
    }
}

TEST(EditSlices, WithoutGapsEndsAtTheFrames) {
    const Slices slices = SlicesOf(kCuts, 12);
    ExpectSlice(slices[1], 2, 2, 2, 0);
    ExpectSlice(slices[2], 4, 8, 2, 8);
    ExpectSlice(slices[3], 12, 2, 10, 0);
    ExpectSlice(slices[4], 14, 2, 10, 2);
}

TEST(EditSlices, WithTooLittleRoomShrinksAsAWhole) {
    const Slices slices = SlicesOf(kCuts, 11);
    ExpectSlice(slices[0], 0, 16, 0, 11);
    for (std::size_t index = 1; index < slices.size(); ++index) {
        EXPECT_EQ(slices[index].toSize, 0);
    }
}

} // namespace
} // namespace vorn::edit
