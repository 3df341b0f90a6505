#include "numeric/exact_compare.h"

#include <algorithm>

namespace vorn::numeric {
namespace {

constexpr int kLimbBits = 32;

// The highest power of five in a limb.
constexpr int kLimbFives = 13;
constexpr std::uint32_t kLimbPower = 1220703125;

void AppendLimb(BigNumber& number, std::uint32_t limb) {
    if (limb != 0 && number.count < kBigLimbs) {
        number.limbs[number.count] = limb;
        ++number.count;
    }
}

void MultiplyByPowerOfFive(BigNumber& number, int power) {
    for (; power >= kLimbFives; power -= kLimbFives) {
        MultiplyAdd(number, kLimbPower, 0);
    }
    for (; power > 0; --power) {
        MultiplyAdd(number, 5, 0);
    }
}

void MultiplyByPowerOfTwo(BigNumber& number, int power) {
    const int whole = std::min(power / kLimbBits, kBigLimbs - number.count);
    std::move_backward(number.limbs, number.limbs + number.count,
                       number.limbs + number.count + whole);
    std::fill_n(number.limbs, whole, 0U);
    number.count += whole;
    MultiplyAdd(number, std::uint32_t{1} << power % kLimbBits, 0);
}

int Compare(const BigNumber& left, const BigNumber& right) {
    if (left.count != right.count) {
        return left.count < right.count ? -1 : 1;
    }
    for (int index = left.count - 1; index >= 0; --index) {
        if (left.limbs[index] != right.limbs[index]) {
            return left.limbs[index] < right.limbs[index] ? -1 : 1;
        }
    }
    return 0;
}

} // namespace

BigNumber MakeBigNumber(std::uint64_t number) {
    BigNumber big;
    big.count = 0;
    for (; number != 0; number >>= kLimbBits) {
        big.limbs[big.count] = static_cast<std::uint32_t>(number);
        ++big.count;
    }
    return big;
}

void MultiplyAdd(BigNumber& number, std::uint32_t factor, std::uint32_t summand) {
    std::uint64_t carry = summand;
    for (int index = 0; index < number.count; ++index) {
        carry += std::uint64_t{number.limbs[index]} * factor;
        number.limbs[index] = static_cast<std::uint32_t>(carry);
        carry >>= kLimbBits;
    }
    AppendLimb(number, static_cast<std::uint32_t>(carry));
}

int CompareExactly(const BigNumber& decimal, int power, std::uint64_t binary, int exponent) {
    BigNumber left = decimal;
    BigNumber right = MakeBigNumber(binary);
    MultiplyByPowerOfFive(power >= 0 ? left : right, power >= 0 ? power : -power);
    const int twos = power - exponent;
    MultiplyByPowerOfTwo(twos >= 0 ? left : right, twos >= 0 ? twos : -twos);
    return Compare(left, right);
}

} // namespace vorn::numeric
