// Products of integers and powers of ten, near enough to round most numbers and exact enough to
// round the rest. Only integers are used, so the results do not depend on how the processor or the
// host rounds floating-point numbers.
#pragma once

#include <cstdint>

namespace vorn::numeric {

// A number of at least `mantissa` times 2 to the power `exponent`, and less than that with
// kProductError added to the mantissa. The mantissa's highest bit is set.
struct Product {
    std::uint64_t mantissa;
    int exponent;
};

constexpr std::uint64_t kProductError = 7;

constexpr int kLowestPower = -351;
constexpr int kHighestPower = 350;

// The product of a number other than 0 and 10 to a power between the two above.
Product TimesPowerOfTen(std::uint64_t number, int power);

} // namespace vorn::numeric
