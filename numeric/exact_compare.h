// Exact comparison of decimal and binary numbers, for those that lie half-way between two results
// or too near to tell. Slow beside the products of power_of_ten.h, and seldom needed.
#pragma once

#include <cstdint>

namespace vorn::numeric {

// The most significant decimal digits that can matter: no number half-way between two doubles has
// more than 767. One more digit, other than 0, stands for any that follow.
constexpr int kMostDigits = 768;

// Room for numbers of kMostDigits + 1 digits, and for a double that is scaled to their size.
constexpr int kBigLimbs = 88;

// A whole number; limbs from the lowest up, `count` of them in use.
struct BigNumber {
    std::uint32_t limbs[kBigLimbs];
    int count;
};

BigNumber MakeBigNumber(std::uint64_t number);

// number = number * factor + summand.
void MultiplyAdd(BigNumber& number, std::uint32_t factor, std::uint32_t summand);

// Negative, 0 or positive as decimal * 10^power is below, equal to or above binary * 2^exponent.
// The two must be of the same size, but for a few bits, and doubles or numbers between them.
int CompareExactly(const BigNumber& decimal, int power, std::uint64_t binary, int exponent);

} // namespace vorn::numeric
