// Doubles as exact decimal numbers, for checking what rounds them: schoolbook arithmetic on limbs
// of nine decimal digits.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace vorn::test {

// 0.digits times 10 to the power `point`; without zeros at either end, and without digits 0.
struct Decimal {
    std::string digits;
    long long point = 0;
};

inline Decimal MakeDecimal(std::string digits, long long point) {
    const std::size_t first = std::min(digits.find_first_not_of('0'), digits.size());
    digits.erase(0, first);
    digits.erase(digits.find_last_not_of('0') + 1);
    return {digits, digits.empty() ? 0 : point - static_cast<long long>(first)};
}

// Negative, 0 or positive as the first is smaller, equal or larger.
inline int CompareDecimals(const Decimal& left, const Decimal& right) {
    if (left.digits.empty() || right.digits.empty()) {
        return static_cast<int>(right.digits.empty()) - static_cast<int>(left.digits.empty());
    }
    if (left.point != right.point) {
        return left.point < right.point ? -1 : 1;
    }
    return left.digits.compare(right.digits);
}

using Limbs = std::vector<std::uint32_t>; // from the lowest up
constexpr std::uint32_t kLimbBase = 1'000'000'000;
constexpr int kHighestSmallPower = 1300;

inline Limbs TimesSmall(const Limbs& number, std::uint32_t factor) {
    Limbs product(number.size() + 1);
    std::uint64_t carry = 0;
    std::uint32_t* out = product.data();
    for (const std::uint32_t limb : number) {
        carry += std::uint64_t{limb} * factor;
        *out++ = static_cast<std::uint32_t>(carry % kLimbBase);
        carry /= kLimbBase;
    }
    *out = static_cast<std::uint32_t>(carry);
    if (carry == 0) {
        product.pop_back();
    }
    return product;
}

// base to any power from 0 to kHighestSmallPower.
template <std::uint32_t base>
const Limbs& SmallPower(int power) {
    static const std::vector<Limbs> powers = [] {
        std::vector<Limbs> all = {{1}};
        while (all.size() <= kHighestSmallPower) {
            all.push_back(TimesSmall(all.back(), base));
        }
        return all;
    }();
    return powers.at(static_cast<std::size_t>(power));
}

inline Limbs Times(const Limbs& number, std::uint64_t factor) {
    Limbs sum(number.size() + 3);
    std::size_t place = 0;
    for (; factor != 0; factor /= kLimbBase, ++place) {
        const Limbs part = TimesSmall(number, static_cast<std::uint32_t>(factor % kLimbBase));
        std::uint32_t carry = 0;
        for (std::size_t index = 0; index < part.size() || carry != 0; ++index) {
            std::uint32_t& limb = sum[place + index];
            limb += (index < part.size() ? part[index] : 0) + carry;
            carry = limb >= kLimbBase ? 1 : 0;
            limb -= carry * kLimbBase;
        }
    }
    while (!sum.empty() && sum.back() == 0) {
        sum.pop_back();
    }
    return sum;
}

// The `count` highest limbs, the first of them without its leading zeros.
inline std::string HighDigits(const Limbs& number, std::size_t count) {
    std::string text;
    for (std::size_t index = 0; index < std::min(count, number.size()); ++index) {
        const std::string limb = std::to_string(number[number.size() - 1 - index]);
        text += index == 0 ? limb : std::string(9 - limb.size(), '0') + limb;
    }
    return text;
}

// mantissa * 2^exponent, its digits beyond the highest `limbs` limbs left out; the exponent is
// between -kHighestSmallPower and kHighestSmallPower.
inline Decimal ExactDecimal(std::uint64_t mantissa, int exponent, std::size_t limbs = 1000) {
    const Limbs number =
        Times(exponent >= 0 ? SmallPower<2>(exponent) : SmallPower<5>(-exponent), mantissa);
    if (number.empty()) {
        return {};
    }
    const auto length =
        static_cast<long long>(9 * (number.size() - 1) + std::to_string(number.back()).size());
    return MakeDecimal(HighDigits(number, limbs), length + std::min(exponent, 0));
}

// What is random here is the same on every run and every platform.
struct RandomBits {
    std::uint64_t state = 0x9E3779B97F4A7C15;

    std::uint64_t Next() {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        return state * 0x2545F4914F6CDD1D;
    }
    std::uint64_t Below(std::uint64_t limit) { return Next() % limit; }
};

} // namespace vorn::test
