#include "numeric/power_of_ten.h"

#include <array>
#include <bit>

namespace vorn::numeric {
namespace {

// 10 to the power p is 10 to the power of the multiple of kStep at or below p, from the table of
// those, times a power below kStep, which is exact in 64 bits but for its factors of 2.
constexpr int kStep = 27;
constexpr int kFirstStep = kLowestPower / kStep;
constexpr int kMantissaBits = 64;

// The first 64 bits of 10 to each multiple of kStep, the rest cut off.
constexpr std::uint64_t kSteps[] = {
    0x8049A4AC0C5811AE, // -351
    0xCF42894A5DCE35EA, // -324
    0xA76C582338ED2621, // -297
    0x873E4F75E2224E68, // -270
    0xDA7F5BF590966848, // -243
    0xB080392CC4349DEC, // -216
    0x8E938662882AF53E, // -189
    0xE65829B3046B0AFA, // -162
    0xBA121A4650E4DDEB, // -135
    0x964E858C91BA2655, // -108
    0xF2D56790AB41C2A2, // -81
    0xC428D05AA4751E4C, // -54
    0x9E74D1B791E07E48, // -27
    0x8000000000000000, // 0
    0xCECB8F27F4200F3A, // 27
    0xA70C3C40A64E6C51, // 54
    0x86F0AC99B4E8DAFD, // 81
    0xDA01EE641A708DE9, // 108
    0xB01AE745B101E9E4, // 135
    0x8E41ADE9FBEBC27D, // 162
    0xE5D3EF282A242E81, // 189
    0xB9A74A0637CE2EE1, // 216
    0x95F83D0A1FB69CD9, // 243
    0xF24A01A73CF2DCCF, // 270
    0xC3B8358109E84F07, // 297
    0x9E19DB92B4E31BA9, // 324
};

static_assert(kHighestPower == kLowestPower + static_cast<int>(std::size(kSteps)) * kStep - 1);

constexpr std::array<std::uint64_t, kStep> kPowersOfFive = [] {
    std::array<std::uint64_t, kStep> powers{1};
    for (std::size_t power = 1; power < powers.size(); ++power) {
        powers[power] = powers[power - 1] * 5;
    }
    return powers;
}();

Product Normalised(std::uint64_t number) {
    const int shift = std::countl_zero(number);
    return {number << shift, -shift};
}

// 217706 / 65536 is log2(10), near enough for every power of the table.
Product Step(int power) {
    const int bits = (power * 217706) >> 16;
    return {kSteps[power / kStep - kFirstStep], bits - (kMantissaBits - 1)};
}

// The product's first 64 bits, the rest cut off. With factors that are less than a and b units too
// small, the product is less than a + b + 1 units too small before its highest bit is brought up,
// which doubles that but for the bit that comes along.
Product Times(const Product& left, const Product& right) {
    const std::uint64_t leftHigh = left.mantissa >> 32;
    const std::uint64_t leftLow = left.mantissa & 0xFFFFFFFF;
    const std::uint64_t rightHigh = right.mantissa >> 32;
    const std::uint64_t rightLow = right.mantissa & 0xFFFFFFFF;
    const std::uint64_t low = leftLow * rightLow;
    const std::uint64_t middle = leftHigh * rightLow + (low >> 32);
    const std::uint64_t otherMiddle = leftLow * rightHigh + (middle & 0xFFFFFFFF);
    const std::uint64_t high = leftHigh * rightHigh + (middle >> 32) + (otherMiddle >> 32);
    const int exponent = left.exponent + right.exponent + kMantissaBits;
    if ((high >> 63) != 0) {
        return {high, exponent};
    }
    return {(high << 1) | ((otherMiddle >> 31) & 1), exponent - 1};
}

} // namespace

// A step is less than 1 unit too small, a step times an exact power of five less than 2 * 1 + 1,
// and that times an exact number less than 2 * 3 + 1: kProductError.
Product TimesPowerOfTen(std::uint64_t number, int power) {
    const int index = (power - kLowestPower) / kStep;
    const int stepPower = (kFirstStep + index) * kStep;
    const int rest = power - stepPower;
    const Product step = Step(stepPower);
    const Product value = Normalised(number);
    if (rest == 0) {
        return Times(step, value);
    }
    const Product fine = Normalised(kPowersOfFive[static_cast<std::size_t>(rest)]);
    Product scale = Times(step, fine);
    scale.exponent += rest;
    return Times(scale, value);
}

} // namespace vorn::numeric
