// The bits of an IEEE double.
#pragma once

#include <cstdint>

namespace vorn::numeric {

constexpr std::uint64_t kSignBit = std::uint64_t{1} << 63;
constexpr std::uint64_t kInfinityBits = std::uint64_t{0x7FF} << 52;

constexpr int kFractionBits = 52;
constexpr int kLowestExponent = -1074; // of the lowest bit of the smallest numbers

// mantissa times 2 to the power exponent.
struct BinaryForm {
    std::uint64_t mantissa;
    int exponent;
};

// Of a finite double without its sign.
constexpr BinaryForm BinaryFormOf(std::uint64_t magnitude) {
    const std::uint64_t fraction = magnitude & ((std::uint64_t{1} << kFractionBits) - 1);
    const int field = static_cast<int>(magnitude >> kFractionBits);
    if (field == 0) {
        return {fraction, kLowestExponent};
    }
    return {fraction | (std::uint64_t{1} << kFractionBits), field - 1 + kLowestExponent};
}

} // namespace vorn::numeric
